.pragma library
// The arithmetic of the date, time and language pickers and of the first-start
// pages: month lengths, the years on offer, 12/24-hour conversions, the texts
// handed to the clock and kept in the settings.

var firstYear = 2000
var lastYear = 2030
var engMonths = ["January", "February", "March", "April", "May", "June", "July",
                 "August", "September", "October", "November", "December"]
// The languages as the settings keep them, in the picker's order.
var languages = ["English", "Français", "Deutsch", "Italiano", "Español",
                 "中文", "Português", "日本語", "한국어", "русский"]
var keyboardLocales = ["en_GB", "fr_FR", "de_DE", "it_IT", "es_ES",
                       "zh_CN", "pt_PT", "ja_JP", "ko_KR", "ru_RU"]
// The date display formats of the settings, by index.
var dateDisplayFormats = ["M/d/yyyy", "d/M/yyyy", "MMM-d-yyyy", "d-MMM-yyyy"]

// February has 29 days in a year that divides by 4 (2000 to 2030 have no
// other leap rule to mind).
function daysInMonth(monthIndex, year) {
    if (monthIndex === 1)
        return year % 4 === 0 ? 29 : 28
    return [3, 5, 8, 10].indexOf(monthIndex) >= 0 ? 30 : 31
}

function years() {
    var list = []
    for (var y = firstYear; y <= lastYear; ++y)
        list.push(String(y))
    return list
}

// The index `step` places on from `index` in a list of `count`, round at both ends.
function wrap(index, step, count) {
    if (count <= 0)
        return 0
    return ((index + step) % count + count) % count
}

// A year the picker offers, nearest to `year`.
function clampYear(year) {
    return Math.max(firstYear, Math.min(lastYear, year))
}

function pad2(n) {
    return n < 10 ? "0" + n : String(n)
}

// 12-hour hour (1 to 12) and "AM"/"PM" to 0..23: 12 AM is 0, 12 PM is 12.
function to24Hour(hour12, ap) {
    var h = parseInt(hour12, 10) % 12
    return ap === "PM" ? h + 12 : h
}

// 0..23 to { hour: 1..12, ap: "AM"|"PM" }.
function to12Hour(hour24) {
    var h = parseInt(hour24, 10)
    return { hour: h % 12 === 0 ? 12 : h % 12, ap: h < 12 ? "AM" : "PM" }
}

// The time for `date -s`: "HH:mm:00", digits only, whatever the language.
function clockTime(hour24, minute) {
    return pad2(hour24) + ":" + pad2(minute) + ":00"
}

// The time as the settings keep it: "09:05 PM" in the 12-hour form
// (formatIndex 0), "21:05" in the 24-hour form.
function storedTime(hour24, minute, formatIndex) {
    if (formatIndex === 0) {
        var t = to12Hour(hour24)
        return pad2(t.hour) + ":" + pad2(minute) + " " + t.ap
    }
    return pad2(hour24) + ":" + pad2(minute)
}

// A kept time back to { hour24, minute }; null when it is not one.
function parseStoredTime(text) {
    var m = /^(\d{1,2}):(\d{2})(?:\s*(AM|PM))?$/.exec(String(text).trim())
    if (!m)
        return null
    var h = parseInt(m[1], 10), min = parseInt(m[2], 10)
    if (min > 59 || (m[3] ? h < 1 || h > 12 : h > 23))
        return null
    return { hour24: m[3] ? to24Hour(h, m[3]) : h, minute: min }
}

// The picker's position of a kept language; English for any other text.
function languageIndex(language) {
    var i = languages.indexOf(language)
    return i < 0 ? 0 : i
}

function keyboardLocale(language) {
    var i = languages.indexOf(language)
    return i < 0 ? "" : keyboardLocales[i]
}

// The instrument name typed on the sixth step: "" when it is taken, else
// why not: "empty" (a warning mark), "long" (over 14 characters) or
// "special" (a character the pattern does not allow).
function instrumentNameVerdict(text, pattern) {
    var t = String(text)
    if (t.length === 0)
        return "empty"
    if (t.length > 14)
        return "long"
    return pattern.test(t) ? "" : "special"
}
