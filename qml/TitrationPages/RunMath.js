.pragma library
.import "../Constants/NumberFormat.js" as NumberFormat
// The arithmetic and checks of the run screens and their summaries.

// The sample id of the next run: an id ending in "_" and three digits counts
// on by one ("S_009" -> "S_010"); any other id gets the suffix "_001".
function nextSampleId(id) {
    var text = String(id)
    var n = text.length
    var suffix = text.substring(n - 3)
    if (!/[0-9]$/.test(text) || n < 4 || text.charAt(n - 4) !== "_" || !/^[0-9]{3}$/.test(suffix))
        return text + "_001"
    return text.substring(0, n - 3) + NumberFormat.leftPad(parseInt(suffix, 10) + 1, 3)
}

// The text of the run button before cycle `cycleIndex`; "" from cycle 6 on,
// when only Complete remains.
function cycleButtonText(cycleIndex) {
    var names = ["", QT_TRANSLATE_NOOP("TranslationListElements", "Run 1st Cycle"),
                 QT_TRANSLATE_NOOP("TranslationListElements", "Run 2nd Cycle"),
                 QT_TRANSLATE_NOOP("TranslationListElements", "Run 3rd Cycle"),
                 QT_TRANSLATE_NOOP("TranslationListElements", "Run 4th Cycle"),
                 QT_TRANSLATE_NOOP("TranslationListElements", "Run 5th Cycle")]
    return cycleIndex >= 1 && cycleIndex <= 5 ? names[cycleIndex] : ""
}

// The message for a typed sample id, "" when it is good. `pattern` is the
// window's identifier pattern.
function sampleIdError(text, pattern) {
    var id = String(text).replace(/^\s+|\s+$/g, "")
    if (id.length < 1)
        return QT_TRANSLATE_NOOP("TranslationListElements", "Sample Id cannot be blank")
    if (!pattern.test(id))
        return QT_TRANSLATE_NOOP("TranslationListElements", "Special characters are not allowed")
    if (id.length > 14)
        return QT_TRANSLATE_NOOP("TranslationListElements", "Invalid name. Please enter up to 14 alphanumeric characters.")
    return ""
}

// The message for a typed sample, standard or reagent amount, "" when good.
function amountError(text) {
    var value = parseFloat(text)
    if (!/^\d{0,4}(\.\d{1,5})?$/.test(String(text)) || isNaN(value) || value < 1e-05 || value > 1000)
        return QT_TRANSLATE_NOOP("TranslationListElements", "Invalid value. Please enter a value between 0.00001 - 1000.0, maximum 5 decimals.")
    return ""
}

// The mean of the values whose flag is set; 0 when none is.
function mean(values, included) {
    var sum = 0
    var n = 0
    for (var i = 0; i < values.length; ++i) {
        if (included[i]) {
            sum += values[i]
            ++n
        }
    }
    return n > 0 ? sum / n : 0
}

// The relative standard deviation of the included values as the summary
// shows it: "0.0%" below two values, "-" when the mean is 0 (no RSD exists),
// else the percentage to two decimals.
function rsdText(values, included) {
    var picked = []
    for (var i = 0; i < values.length; ++i) {
        if (included[i])
            picked.push(values[i])
    }
    if (picked.length < 2)
        return "0.0%"
    var m = mean(picked, picked.map(function () { return true }))
    if (m === 0)
        return "-"
    var squares = 0
    for (var j = 0; j < picked.length; ++j)
        squares += (picked[j] - m) * (picked[j] - m)
    return (Math.sqrt(squares / (picked.length - 1)) / m * 100).toFixed(2) + "%"
}

// A number from text that may be in exponent notation ("1.5e-05").
function numberOf(text) {
    var s = String(text)
    var at = s.toLowerCase().indexOf("e")
    if (at < 0)
        return parseFloat(s)
    return parseFloat(s.substring(0, at)) * Math.pow(10, parseInt(s.substring(at + 1), 10))
}

// The averages of one known-addition cycle over its additions: volume and
// mV over all, concentration and precision over the rows that have one
// (0 and 999 mean none).
function mkaAverages(additions) {
    var r = { volume: 0, mV: 0, conc: 0, precision: 0 }
    var nConc = 0
    var nPrecision = 0
    for (var i = 0; i < additions.length; ++i) {
        var a = additions[i]
        r.volume += a.volume
        r.mV += a.mVvalue
        if (a.calConc !== 0 && a.calConc !== 999) {
            r.conc += a.calConc
            ++nConc
        }
        if (a.precision !== 0 && a.precision !== 999) {
            r.precision += a.precision
            ++nPrecision
        }
    }
    var n = additions.length
    r.volume = n > 0 ? r.volume / n : 0
    r.mV = n > 0 ? r.mV / n : 0
    r.conc = nConc > 0 ? r.conc / nConc : 0
    r.precision = nPrecision > 0 ? r.precision / nPrecision : 0
    return r
}

// Milliseconds as "hh:mm:ss".
function duration(ms) {
    var s = Math.max(0, Math.floor(ms / 1000))
    function two(v) { return (v < 10 ? "0" : "") + v }
    return two(Math.floor(s / 3600)) + ":" + two(Math.floor(s / 60) % 60) + ":" + two(s % 60)
}
