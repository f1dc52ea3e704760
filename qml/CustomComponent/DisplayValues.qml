import QtQuick 2.12
import "../Constants/DateFormat.js" as DateFormat
import "../Constants/Temperature.js" as Temperature

// Dates, times and temperatures as the instrument's settings show them.
QtObject {
    function switchDateFormat(date) {
        return Qt.formatDate(date, DateFormat.dateFormat(setup.dateFormat_Index))
    }
    // Stored dates are milliseconds in text.
    function formatStringDate(text) {
        return switchDateFormat(new Date(Number(text)))
    }
    function formatDate(date) {
        return date === "NILL" ? date : switchDateFormat(date)
    }
    function formatTime(date) {
        return date === "NILL" ? date : Qt.formatTime(date, DateFormat.timeFormat(setup.timeFormat_Index, false))
    }
    function formatTimeWithSeconds(date) {
        return Qt.formatTime(date, DateFormat.timeFormat(setup.timeFormat_Index, true))
    }
    function formattedDateTime(date) {
        return formatDate(date) + " | " + formatTime(date)
    }
    // A date kept as text (a calibration point's, a method's last run), by
    // the settings; a text that is no date stays as it is.
    function storedDate(text) {
        return DateFormat.parseStored(text)
    }
    function formatCalibrationDate(text) {
        var d = storedDate(text)
        return isNaN(d.getTime()) ? String(text) : formattedDateTime(d)
    }
    function getConvertedTemp(temp) {
        return Temperature.inUnit(temp, setup.temperatureFormat_Index)
    }
}
