.pragma library
.import "../Constants/Temperature.js" as Temperature
// The rules of the settings pages: every value is checked here before any
// switch or value is written.

var brightnessMin = 1
var brightnessMax = 5
var dueHoursMin = 1
var dueHoursMax = 9999
var maintenanceMonths = [1, 3, 6, 12]

// One step of the brightness bars, kept within 1 to 5.
function stepBrightness(level, delta) {
    var next = Number(level) + delta
    if (isNaN(next))
        return 3
    return Math.max(brightnessMin, Math.min(brightnessMax, next))
}

// Calibration due hours, as typed: whole hours 1 to 9999.
function dueHoursValid(text) {
    var t = String(text).trim()
    if (!/^\d{1,4}$/.test(t))
        return false
    var h = parseInt(t, 10)
    return h >= dueHoursMin && h <= dueHoursMax
}

// The three rows of the calibration reminder are taken together: one bad
// value refuses all three.
function allDueHoursValid(texts) {
    for (var i = 0; i < texts.length; ++i) {
        if (!dueHoursValid(texts[i]))
            return false
    }
    return texts.length > 0
}

// The radio button of a stored period (months); the first for any other.
function maintenanceIndex(months) {
    var i = maintenanceMonths.indexOf(Number(months))
    return i < 0 ? 0 : i
}

// The maintenance date on show: the schedule, else one year after the date
// of the first start; null when neither is known.
function maintenanceShown(scheduledAt, startDate) {
    var s = scheduledAt ? new Date(scheduledAt) : null
    if (s && !isNaN(s.getTime()))
        return s
    var d = startDate ? new Date(startDate) : null
    if (!d || isNaN(d.getTime()))
        return null
    return new Date(d.getFullYear() + 1, d.getMonth(), d.getDate(), d.getHours(), d.getMinutes())
}

// Manual temperature: a text of up to three digits and two decimals, 0 to
// 100 °C or 32 to 192 °F. Gives the value in °C, or NaN when refused.
var temperaturePattern = /^\d{0,3}(\.\d{1,2})?$/
function temperatureCelsius(text, unitIndex) {
    var t = String(text).trim()
    if (t.length === 0 || !temperaturePattern.test(t))
        return NaN
    var v = parseFloat(t)
    if (isNaN(v))
        return NaN
    if (unitIndex === 1) {
        if (v < 32 || v > 192)
            return NaN
        return Temperature.fahrenhiteTcelcious(v)
    }
    return v < 0 || v > 100 ? NaN : v
}

// The probe's calibration against a reference thermometer. `shown` is the
// probe's reading as the page shows it (the current offset included), both
// in the unit of the settings. Gives the reference in °C and the new offset
// (°C, one decimal in °C; unrounded when entered in °F), or null when the
// reference is refused.
function atcCalibration(referenceText, shown, currentOffset, unitIndex) {
    var reference = temperatureCelsius(referenceText, unitIndex)
    if (isNaN(reference))
        return null
    var shownC = unitIndex === 1 ? Temperature.fahrenhiteTcelcious(shown) : shown
    var offset = reference - shownC + currentOffset
    if (unitIndex !== 1)
        offset = Number(offset.toFixed(1))
    return { reference: reference, offset: offset }
}
