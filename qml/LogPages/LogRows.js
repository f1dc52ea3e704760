.pragma library
// What a row of the logs shows and what an export asks for, from plain
// values: the screens hand in the entry's fields, this module answers texts
// and the request object.

// The name of a titration log row.
// e: { methodName, titrationType (of the run), sampleID, sampleIDValue,
//      electrodeType, iseType, setupType (of the titration setup) }
// tr: translates a vocabulary word for the screen.
function titrationName(e, tr) {
    var blank = e.titrationType === "Direct Blank" || e.titrationType === "Back Blank"
    if (blank)
        return "Blank"
    if (e.sampleID && e.sampleID !== "None" && e.sampleIDValue)
        return e.sampleIDValue
    if (e.methodName)
        return e.methodName
    if (e.electrodeType === "pH" || e.electrodeType === "Redox")
        return e.electrodeType + " | " + tr(e.setupType)
    if (e.electrodeType === "ISE-Titration")
        return e.electrodeType + " | " + e.iseType + " | " + tr(e.setupType)
    return e.electrodeType + " | " + e.iseType
}

// The average of a titration row: the stored "a|b|c" as "a b c"; a blank
// run shows its first part only.
function titrationAverage(avgConc, runType) {
    var parts = String(avgConc || "").split("|")
    if (runType === "Direct Blank" || runType === "Back Blank")
        return parts[0]
    return parts.join(" ")
}

// The ids of an export's "All": the last and the first element of a list
// newest first (the oldest and the newest id), -1 for an empty list.
function limitsOf(ids) {
    if (!ids || ids.length === 0)
        return [-1, -1]
    return [ids[ids.length - 1], ids[0]]
}

// A date range "yyyy-MM-dd" in order: one given backwards is swapped.
function orderedRange(from, to) {
    return from <= to ? [from, to] : [to, from]
}

var kinds = ["Titration Log", "Titrant Log", "Calibration Log", "Direct Measure Log"]

// The request of an export or print.
// c: { exportOf, fileType ("CSV"|"Report"), exportTo, exportBy ("All"|
//      "Data Set"|"Date Range"), format ("short"|"Long"), setFrom, setTo
//      (Data Set numbers), lastDays ("10"|"30"|"60"|"" for custom),
//      fromDate, toDate, ids: [4 arrays of ids newest first] }
function request(c) {
    var r = {
        exportOf: c.exportOf,
        fileType: c.fileType,
        exportTo: c.exportTo,
        exportBy: c.exportBy,
        format: c.format
    }
    var own = kinds.indexOf(c.exportOf)
    if (c.exportBy === "Data Set") {
        r.recordOffsetMin = String(c.setFrom)
        r.recordOffsetMax = String(c.setTo)
    } else if (own >= 0) {
        var l = limitsOf(c.ids[own])
        r.recordOffsetMin = l[0]
        r.recordOffsetMax = l[1]
    } else {
        r.recordOffsetMin = 0
        r.recordOffsetMax = 2147483647
    }
    if (c.exportBy === "Date Range") {
        r.lastDays = c.lastDays
        var range = orderedRange(c.fromDate, c.toDate)
        r.fromDate = range[0]
        r.toDate = range[1]
    }
    var names = ["titration", "stand", "cal", "measure"]
    for (var k = 0; k < 4; ++k) {
        var lim = limitsOf(c.ids[k])
        r[names[k] + "LimitMin"] = lim[0]
        r[names[k] + "LimitMax"] = lim[1]
    }
    return r
}

// "All Logs" goes out as one request a log that holds rows, so that each
// is a step of its own; any other export is one step.
function requestsOf(c) {
    if (c.exportOf !== "All Logs")
        return [request(c)]
    var list = []
    for (var k = 0; k < 4; ++k) {
        if (!c.ids[k] || c.ids[k].length === 0)
            continue
        var one = Object.assign({}, c, { exportOf: kinds[k] })
        list.push(request(one))
    }
    return list
}
