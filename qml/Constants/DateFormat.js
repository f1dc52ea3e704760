.pragma library
// Date and time display by the instrument's settings.

var dateFormats = ["MM/dd/yyyy", "dd/MM/yyyy", "MMM-dd-yyyy", "dd-MMM-yyyy"]

function dateFormat(dateFormatIndex) {
    return dateFormats[dateFormatIndex] || dateFormats[0]
}

// 0 is the 12-hour form.
function timeFormat(timeFormatIndex, withSeconds) {
    if (timeFormatIndex === 0)
        return withSeconds ? "hh:mm:ss AP" : "hh:mm AP"
    return withSeconds ? "hh:mm:ss" : "hh:mm"
}

// A date and time kept as text: "dd/MM/yyyy | hh:mm AP" (the points of a
// calibration), "hh:mm AP | MM/dd/yyyy" (a method's last runs) or ISO 8601.
// An invalid Date for any other text.
function parseStored(text) {
    var t = String(text).trim()
    var m = /^(\d{2})\/(\d{2})\/(\d{4}) \| (\d{1,2}):(\d{2})(?: ?([AP]M))?$/i.exec(t)
    if (m)
        return localDate(m[3], m[2], m[1], m[4], m[5], m[6])
    m = /^(\d{1,2}):(\d{2})(?: ?([AP]M))? \| (\d{2})\/(\d{2})\/(\d{4})$/i.exec(t)
    if (m)
        return localDate(m[6], m[4], m[5], m[1], m[2], m[3])
    return /^\d{4}-\d{2}-\d{2}/.test(t) ? new Date(t) : new Date(NaN)
}

function localDate(year, month, day, hour, minute, amPm) {
    var h = parseInt(hour, 10)
    if (amPm)
        h = h % 12 + (amPm.toUpperCase() === "PM" ? 12 : 0)
    return new Date(parseInt(year, 10), parseInt(month, 10) - 1, parseInt(day, 10), h, parseInt(minute, 10))
}
