.pragma library
.import "../Constants/NumberFormat.js" as NumberFormat
// What the meter, calibration and burette pages show and accept: the
// reading's text, the limits of the entry pages, the next sample id.

var outOfRangeValue = 9999   // the meter's "no value"
var maxMv = 2000.9           // beyond this the reading is "mV OverRange"

// The value of a reading in its mode: pH to the resolution, redox to 0.1,
// ISE to its significant digits.
function valueText(value, readMode, decimals, significantDigits) {
    if (readMode === "Redox")
        return Number(value).toFixed(1)
    if (readMode === "pH")
        return Number(value).toFixed(decimals)
    return String(NumberFormat.sigFigsDec(Number(value), significantDigits, 4))
}

// The main text of the Measure page; r holds mV, message, outOfRange,
// readMode, value, resolution, significantDigits.
function readingText(r) {
    if (Math.abs(r.mV) > maxMv)
        return QT_TRANSLATE_NOOP("TranslationListElements", "mV OverRange")
    if (r.message)
        return r.message
    if (r.outOfRange || Number(r.value) === outOfRangeValue)
        return QT_TRANSLATE_NOOP("TranslationListElements", "Out of Range")
    return valueText(r.value, r.readMode, NumberFormat.countDecimal(r.resolution), r.significantDigits)
}

// The live point of a calibration; "" while it has no value.
function calibrationText(value, readMode, decimals, significantDigits) {
    if (Math.round(Number(value)) === outOfRangeValue)
        return ""
    return valueText(value, readMode, decimals, significantDigits)
}

// The electrode's offset, its mV at pH 7: that of the segment holding pH 7
// (points sorted by value), else of the first point.
function phOffset(values, offsets) {
    for (var i = 0; i + 1 < values.length; ++i) {
        if (values[i] <= 7 && values[i + 1] >= 7)
            return offsets[i]
    }
    return offsets.length > 0 ? offsets[0] : 0
}

function slopeUnit(electrodeType) {
    if (electrodeType === "pH")
        return "%"
    if (electrodeType === "ISE")
        return "mV/dec"
    return ""
}

// The refusal of a pH standard's value by the number of decimals.
var phStandardMessages = [QT_TRANSLATE_NOOP("TranslationListElements", "Enter a pH value between -2 - 20"),
                          QT_TRANSLATE_NOOP("TranslationListElements", "Enter a pH value between -2.0 - 20.0"),
                          QT_TRANSLATE_NOOP("TranslationListElements", "Enter a pH value between -2.00 - 20.00"),
                          QT_TRANSLATE_NOOP("TranslationListElements", "Enter a pH value between -2.000 - 20.000")]

// The pattern, range and refusal text of a standard's value by read mode.
function standardLimits(readMode, decimals) {
    if (readMode === "pH") {
        var d = Math.max(1, decimals)
        return { pattern: new RegExp("^-?(0|([1-9]\\d{0,1})|(\\d{0,0}))(\\.\\d{1," + d + "})?$"), min: -2, max: 20,
                 message: phStandardMessages[decimals] || "Enter a pH value between " + (-2).toFixed(decimals) + " - " + (20).toFixed(decimals) }
    }
    if (readMode === "Redox")
        return { pattern: /^-?(0|([1-9]\d{0,3})|(\d{0,0}))(\.\d{1,1})?$/, min: -2000, max: 2000,
                 message: QT_TRANSLATE_NOOP("TranslationListElements", "Enter a value between -2000 - 2000") }
    return { pattern: /^-?(0|([1-9]\d{0,4})|(\d{0,0}))(\.\d{1,5})?$/, min: 0, max: 20000,
             message: QT_TRANSLATE_NOOP("TranslationListElements", "Enter a value between 0 - 20000") }
}

// "" when the text is a standard's value for the mode, "empty" for no text,
// else the refusal to show.
function checkStandard(text, readMode, decimals) {
    if (text.length === 0)
        return "empty"
    var limits = standardLimits(readMode, decimals)
    var v = parseFloat(text)
    if (!limits.pattern.test(text) || isNaN(v) || v < limits.min || v > limits.max)
        return limits.message
    return ""
}

// What a slope typed on the one-point page may be: a pH slope within 80 to
// 120 %, the limits of a calibration's average slope; any other slope takes
// four digits and two decimals.
function slopeMessage(electrodeType) {
    if (electrodeType === "pH")
        return QT_TRANSLATE_NOOP("TranslationListElements", "Enter a slope value between 80.0 - 120.0 %")
    if (electrodeType === "ISE")
        return QT_TRANSLATE_NOOP("TranslationListElements", "Enter a slope value between -9999.99 - 9999.99 mV/dec")
    return "Enter a slope value between -9999.99 - 9999.99 " + slopeUnit(electrodeType)
}
// "" for a slope that is taken, "Slope out of range" for a pH slope beyond
// its limits, else the message above (an empty field included).
function checkSlope(text, electrodeType) {
    var v = parseFloat(text)
    if (!/^-?\d{1,4}(\.\d{1,2})?$/.test(text) || !isFinite(v))
        return slopeMessage(electrodeType)
    if (electrodeType === "pH" && (Math.abs(v) < 80 || Math.abs(v) > 120))
        return QT_TRANSLATE_NOOP("TranslationListElements", "Slope out of range")
    return ""
}

// The preset of a dose in mL, at most two decimals and at most the burette.
function checkPreset(text, buretteSizeMl) {
    if (text.length === 0)
        return "empty"
    var v = parseFloat(text)
    if (!/^\d{0,20}(\.\d{1,2})?$/.test(text) || isNaN(v) || v < 0)
        return QT_TRANSLATE_NOOP("TranslationListElements", "Please enter a value with maximum \n2 decimals.")
    if (v > buretteSizeMl)
        return QT_TRANSLATE_NOOP("TranslationListElements", "Preset value must be less than \nmaximum burette volume")
    if (v === 0)
        return QT_TRANSLATE_NOOP("TranslationListElements", "Please enter a value with maximum \n2 decimals.")
    return ""
}

// The sample id after `value`: its last (up to three) digits counted up by
// one, or "001" added to a text that ends in none.
function nextSampleId(value) {
    var m = /(\d{1,3})$/.exec(value)
    if (!m)
        return value + "001"
    return value.slice(0, value.length - m[1].length) + NumberFormat.leftPad(parseInt(m[1], 10) + 1, 3)
}

// Rinse cycles stepped by the buttons, 0 (no rinse) to 10.
function stepRinseCycles(cycles, delta) {
    return Math.max(0, Math.min(10, cycles + delta))
}

// "" when an installation date may be saved: not after today, not before 2000.
function checkInstallationDate(date, today) {
    var day = new Date(today.getFullYear(), today.getMonth(), today.getDate())
    if (date.getTime() > day.getTime())
        return QT_TRANSLATE_NOOP("TranslationListElements", "The installation date cannot be in the future.")
    if (date.getFullYear() < 2000)
        return QT_TRANSLATE_NOOP("TranslationListElements", "The installation date cannot be before 2000.")
    return ""
}
