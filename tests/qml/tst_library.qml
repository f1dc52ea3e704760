import QtQuick 2.12
import QtTest 1.12
import "../../qml/TitrationPages/MethodList.js" as MethodList
import "../../qml/TitrationPages/MethodReport.js" as MethodReport
import "../../qml/LogPages/LogRows.js" as LogRows

// The method list's deletions and installs, the log rows and the export
// request.
TestCase {
    name: "Library"

    function test_selectionAfterDeletions_data() {
        return [
            { tag: "the selected row went", current: 2, deleted: [2], left: 3, expected: -1 },
            { tag: "a row above went", current: 3, deleted: [0], left: 3, expected: 2 },
            { tag: "two above, one below", current: 3, deleted: [0, 1, 4], left: 2, expected: 1 },
            { tag: "a row below went", current: 1, deleted: [2], left: 3, expected: 1 },
            { tag: "nothing selected", current: -1, deleted: [0], left: 3, expected: -1 },
            { tag: "the last rows went", current: 0, deleted: [1, 2], left: 0, expected: -1 }
        ]
    }
    function test_selectionAfterDeletions(data) {
        compare(MethodList.selectionAfterDeletions(data.current, data.deleted, data.left), data.expected)
    }

    // Checks one after the other; the answers and the places they leave.
    function test_toggleInstall_data() {
        return [
            { tag: "within the free places", free: 2, taps: [[5, true], [7, true]], answers: [true, true], taken: [5, 7] },
            { tag: "a third mark clears itself", free: 2, taps: [[5, true], [7, true], [9, true]], answers: [true, true, false], taken: [5, 7] },
            { tag: "unchecking frees a place", free: 1, taps: [[5, true], [5, false], [9, true]], answers: [true, false, true], taken: [9] },
            { tag: "a full library takes none", free: MethodList.freeSlots(10), taps: [[5, true]], answers: [false], taken: [] },
            { tag: "the same id twice takes one place", free: 3, taps: [[5, true], [5, true]], answers: [true, true], taken: [5] }
        ]
    }
    function test_toggleInstall(data) {
        var slots = MethodList.emptySlots()
        var answers = data.taps.map(function (t) { return MethodList.toggleInstall(slots, t[0], t[1], data.free) })
        compare(answers, data.answers)
        compare(MethodList.chosen(slots), data.taken)
    }

    function test_titrationName_data() {
        var e = { methodName: "Acetic", titrationType: "Titration", sampleID: "None", sampleIDValue: "",
                  electrodeType: "pH", iseType: "Fluoride", setupType: "Direct Titration" }
        function w(changes) { return Object.assign({}, e, changes) }
        return [
            { tag: "a method's run", e: e, expected: "Acetic" },
            { tag: "a blank run", e: w({ titrationType: "Back Blank" }), expected: "Blank" },
            { tag: "a sample id", e: w({ sampleID: "Manual", sampleIDValue: "Lot9" }), expected: "Lot9" },
            { tag: "no method, pH", e: w({ methodName: "" }), expected: "pH | Direct Titration" },
            { tag: "no method, ISE titration", e: w({ methodName: "", electrodeType: "ISE-Titration" }), expected: "ISE-Titration | Fluoride | Direct Titration" },
            { tag: "no method, known addition", e: w({ methodName: "", electrodeType: "ISE-MKA" }), expected: "ISE-MKA | Fluoride" }
        ]
    }
    function test_titrationName(data) {
        compare(LogRows.titrationName(data.e, function (t) { return t }), data.expected)
    }

    function test_titrationAverage() {
        compare(LogRows.titrationAverage("0.1|0.2", "Titration"), "0.1 0.2")
        compare(LogRows.titrationAverage("1.5|0.2", "Direct Blank"), "1.5")
    }

    function config(changes) {
        var c = { exportOf: "Titration Log", fileType: "CSV", exportTo: "USB Drive", exportBy: "All", format: "short",
                  setFrom: "", setTo: "", lastDays: "", fromDate: "2026-01-01", toDate: "2026-02-01",
                  ids: [[9, 8, 7], [], [4], [3, 2]] }
        return Object.assign(c, changes)
    }

    function test_request_data() {
        return [
            { tag: "all of a log: its oldest and newest id", c: {}, key: "recordOffsetMin", expected: 7 },
            { tag: "an empty log's limits", c: {}, key: "standLimitMin", expected: -1 },
            { tag: "a data set as given, reversed too", c: { exportBy: "Data Set", setFrom: "5", setTo: "2" }, key: "recordOffsetMin", expected: "5" },
            { tag: "a range given backwards is swapped", c: { exportBy: "Date Range", fromDate: "2026-03-01", toDate: "2026-01-01" }, key: "fromDate", expected: "2026-01-01" },
            { tag: "the last days pass on", c: { exportBy: "Date Range", lastDays: "30" }, key: "lastDays", expected: "30" }
        ]
    }
    function test_request(data) {
        compare(LogRows.request(config(data.c))[data.key], data.expected)
    }

    // "All Logs" is a step a log that holds rows, each with its own limits.
    function test_requestsOfAllLogs() {
        var list = LogRows.requestsOf(config({ exportOf: "All Logs" }))
        compare(list.map(function (r) { return r.exportOf }), ["Titration Log", "Calibration Log", "Direct Measure Log"])
        compare([list[2].recordOffsetMin, list[2].recordOffsetMax], [2, 3])
    }

    function test_methodReportRows() {
        var rows = MethodReport.rows(null)
        compare(Object.keys(rows).length, 103)
        compare(rows["24"].heading, "Titrant N Conc.")
        compare([rows["24"].index, rows["24"].value, rows["24"].digit, rows["24"].unitValue], [2, "nominalConc", 4, "nominalConc_Unit"])
        compare(rows["103"].heading, "Sample ID")
        verify(rows["1"].digit === undefined)
    }
}
