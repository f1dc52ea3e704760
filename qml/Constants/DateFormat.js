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
