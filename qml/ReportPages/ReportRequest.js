.pragma library

// What a summary's Export or Print asks of the report controller: the log
// named as the summary names it (by index: 0 titration, 1 standardisation,
// 2 calibration, 3 measurement), the controller's word for it, the file
// type, the form and where the text goes.
var modes = ["Titration Log", "Standardization Log", "Calibration Log", "Direct Measurement Log"]
var controllerNames = ["Titration Log", "Titrant Log", "Calibration Log", "Direct Measure Log"]

function modeOf(index) {
    return index >= 0 && index < modes.length ? modes[index] : ""
}

// null for a log the controller does not know, or an entry not yet stored.
// fileType "CSV" or "Report"; format "Short" or "Long" (either case).
function summaryRequest(modeValue, logId, fileType, format, printing) {
    var at = modes.indexOf(modeValue)
    if (at < 0 || !(logId > 0))
        return null
    var shortForm = String(format).toLowerCase() === "short"
    var csv = printing || fileType === "CSV"
    return {
        logId: logId,
        reportFor: controllerNames[at],
        // A printer takes text; the measurement log calls its PDF "PDF".
        fileType: csv ? "CSV" : (at === 3 ? "PDF" : "Report"),
        format: shortForm ? "short" : "Long",
        isCSV: !printing && csv,
        needs: printing ? "printer" : "usb"
    }
}
