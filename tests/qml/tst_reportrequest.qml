import QtQuick 2.12
import QtTest 1.12
import "../../qml/ReportPages/ReportRequest.js" as ReportRequest

// What a summary's Export and Print hand to the report controller.
TestCase {
    name: "ReportRequest"

    function test_request_data() {
        return [
            { tag: "titration PDF", mode: 0, id: 7, type: "Report", format: "Long", print: false,
              expected: { reportFor: "Titration Log", fileType: "Report", format: "Long", isCSV: false, needs: "usb" } },
            { tag: "standardisation CSV, Short as short", mode: 1, id: 2, type: "CSV", format: "Short", print: false,
              expected: { reportFor: "Titrant Log", fileType: "CSV", format: "short", isCSV: true, needs: "usb" } },
            { tag: "measurement PDF", mode: 3, id: 4, type: "Report", format: "short", print: false,
              expected: { reportFor: "Direct Measure Log", fileType: "PDF", format: "short", isCSV: false, needs: "usb" } },
            { tag: "a print is text for the printer", mode: 2, id: 3, type: "Report", format: "Long", print: true,
              expected: { reportFor: "Calibration Log", fileType: "CSV", format: "Long", isCSV: false, needs: "printer" } },
            { tag: "an entry not stored", mode: 0, id: 0, type: "CSV", format: "Long", print: false, expected: null },
            { tag: "an unknown log", mode: 7, id: 1, type: "CSV", format: "Long", print: false, expected: null }
        ]
    }
    function test_request(data) {
        var r = ReportRequest.summaryRequest(ReportRequest.modeOf(data.mode), data.id, data.type, data.format, data.print)
        if (data.expected === null) {
            compare(r, null)
            return
        }
        for (var key in data.expected)
            compare(r[key], data.expected[key], key)
        compare(r.logId, data.id)
    }
}
