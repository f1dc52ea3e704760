import QtQuick 2.12
import QtTest 1.12
import "../../qml/TimeDateLang/DateTimeMath.js" as DateTimeMath

TestCase {
    name: "DateTimeMath"

    function test_daysInMonth_data() {
        return [
            { tag: "February of a leap year", month: 1, year: 2028, days: 29 },
            { tag: "February of a common year", month: 1, year: 2027, days: 28 },
            { tag: "February 2000", month: 1, year: 2000, days: 29 },
            { tag: "January", month: 0, year: 2027, days: 31 },
            { tag: "April", month: 3, year: 2027, days: 30 },
            { tag: "July", month: 6, year: 2027, days: 31 },
            { tag: "August", month: 7, year: 2027, days: 31 },
            { tag: "September", month: 8, year: 2027, days: 30 },
            { tag: "November", month: 10, year: 2027, days: 30 },
            { tag: "December", month: 11, year: 2027, days: 31 }
        ]
    }
    function test_daysInMonth(data) {
        compare(DateTimeMath.daysInMonth(data.month, data.year), data.days)
    }

    function test_years() {
        var years = DateTimeMath.years()
        compare(years[0], "2000")
        compare(years[years.length - 1], "2030")
        compare(years.indexOf("2031"), -1)
        compare(DateTimeMath.clampYear(2031), 2030)
        compare(DateTimeMath.clampYear(1999), 2000)
    }

    function test_wrap_data() {
        return [
            { tag: "up from the first goes to the last", index: 0, step: -1, count: 12, expected: 11 },
            { tag: "down from the last goes to the first", index: 30, step: 1, count: 31, expected: 0 },
            { tag: "inside", index: 4, step: 1, count: 12, expected: 5 },
            { tag: "empty list", index: 0, step: 1, count: 0, expected: 0 }
        ]
    }
    function test_wrap(data) {
        compare(DateTimeMath.wrap(data.index, data.step, data.count), data.expected)
    }

    function test_hours_data() {
        return [
            { tag: "12 AM is midnight", hour12: 12, ap: "AM", hour24: 0, clock: "00:30:00", stored12: "12:30 AM", stored24: "00:30" },
            { tag: "12 PM is noon", hour12: 12, ap: "PM", hour24: 12, clock: "12:30:00", stored12: "12:30 PM", stored24: "12:30" },
            { tag: "1 AM", hour12: 1, ap: "AM", hour24: 1, clock: "01:30:00", stored12: "01:30 AM", stored24: "01:30" },
            { tag: "11 PM", hour12: 11, ap: "PM", hour24: 23, clock: "23:30:00", stored12: "11:30 PM", stored24: "23:30" }
        ]
    }
    function test_hours(data) {
        compare(DateTimeMath.to24Hour(data.hour12, data.ap), data.hour24)
        var back = DateTimeMath.to12Hour(data.hour24)
        compare(back.hour, data.hour12)
        compare(back.ap, data.ap)
        compare(DateTimeMath.clockTime(data.hour24, 30), data.clock)
        compare(DateTimeMath.storedTime(data.hour24, 30, 0), data.stored12)
        compare(DateTimeMath.storedTime(data.hour24, 30, 1), data.stored24)
        compare(DateTimeMath.parseStoredTime(data.stored12).hour24, data.hour24)
        compare(DateTimeMath.parseStoredTime(data.stored24).hour24, data.hour24)
    }

    function test_parseStoredTime_refuses_data() {
        return [{ tag: "empty", text: "" }, { tag: "hour 24", text: "24:00" }, { tag: "13 PM", text: "13:00 PM" },
                { tag: "minute 60", text: "10:60" }, { tag: "words", text: "noon" }]
    }
    function test_parseStoredTime_refuses(data) {
        compare(DateTimeMath.parseStoredTime(data.text), null)
    }

    function test_languages_data() {
        return [
            { tag: "English", name: "English", index: 0, locale: "en_GB" },
            { tag: "Russian", name: "русский", index: 9, locale: "ru_RU" },
            { tag: "Korean", name: "한국어", index: 8, locale: "ko_KR" },
            { tag: "wrong case is unknown", name: "english", index: 0, locale: "" },
            { tag: "empty is English on the wheel", name: "", index: 0, locale: "" }
        ]
    }
    function test_languages(data) {
        compare(DateTimeMath.languageIndex(data.name), data.index)
        compare(DateTimeMath.keyboardLocale(data.name), data.locale)
    }

    function test_instrumentName_data() {
        var pattern = /^(?:[A-Za-z0-9 \-_.\u00C0-\u00D6\u00D8-\u00F6\u00F8-\u00FF]+|[一-龠]+)$/
        return [
            { tag: "empty", text: "", pattern: pattern, verdict: "empty" },
            { tag: "fourteen", text: "Bench 1 Lab 42", pattern: pattern, verdict: "" },
            { tag: "fifteen", text: "Bench 1 Lab 423", pattern: pattern, verdict: "long" },
            { tag: "a mark not allowed", text: "Lab#1", pattern: pattern, verdict: "special" },
            { tag: "accents", text: "Équipe", pattern: pattern, verdict: "" }
        ]
    }
    function test_instrumentName(data) {
        compare(DateTimeMath.instrumentNameVerdict(data.text, data.pattern), data.verdict)
    }
}
