import QtQuick 2.12
import QtTest 1.12
import "../../qml/Constants/NumberFormat.js" as NumberFormat
import "../../qml/Constants/Temperature.js" as Temperature
import "../../qml/Constants/NamePatterns.js" as NamePatterns
import "../../qml/Constants/DateFormat.js" as DateFormat

TestCase {
    name: "Helpers"

    function test_sigFigs_data() {
        return [
            { tag: "rounds to three figures", n: 0.012345, sig: 3, expected: 0.0123 },
            { tag: "large number keeps its magnitude", n: 12345, sig: 3, expected: 12300 },
            { tag: "short text is padded", n: 2, sig: 3, expected: "2.00" },
            { tag: "four figures", n: 1.23456, sig: 4, expected: 1.235 },
            { tag: "zero is zero", n: 0, sig: 3, expected: 0 },
            { tag: "negative is zero", n: -5.5, sig: 3, expected: 0 }
        ]
    }
    function test_sigFigs(data) {
        compare(NumberFormat.sigFigs(data.n, data.sig), data.expected)
    }

    function test_sigFigsDec_data() {
        return [
            { tag: "small values take fixed decimals", n: 0.0123456, sig: 4, dec: 5, expected: "0.01235" },
            { tag: "negative small value", n: -0.05, sig: 4, dec: 5, expected: "-0.05000" },
            { tag: "others take significant figures", n: 1.23456, sig: 4, dec: 5, expected: "1.235" },
            { tag: "below the whole-number limit", n: 9876.5, sig: 4, dec: 5, expected: "9877" },
            { tag: "beyond sig digits becomes whole", n: 123456.7, sig: 4, dec: 5, expected: 123500 }
        ]
    }
    function test_sigFigsDec(data) {
        compare(NumberFormat.sigFigsDec(data.n, data.sig, data.dec), data.expected)
    }

    function test_resolution_data() {
        return [
            { tag: "0.1", r: 0.1, expected: 1 },
            { tag: "0.01", r: 0.01, expected: 2 },
            { tag: "0.001", r: 0.001, expected: 3 },
            { tag: "anything else", r: 1, expected: 3 }
        ]
    }
    function test_resolution(data) {
        compare(NumberFormat.convertFloatResToInt(data.r), data.expected)
    }

    function test_countDecimal_data() {
        return [
            { tag: "whole", r: 1, expected: 0 }, { tag: "0.1", r: 0.1, expected: 1 },
            { tag: "0.01", r: 0.01, expected: 2 }, { tag: "0.001", r: 0.001, expected: 3 },
            { tag: "finer than 0.001", r: 0.0001, expected: 2 }
        ]
    }
    function test_countDecimal(data) {
        compare(NumberFormat.countDecimal(data.r), data.expected)
    }

    function test_leftPad() {
        compare(NumberFormat.leftPad(7, 2), "07")
        compare(NumberFormat.leftPad(5, 4), "0005")
        compare(NumberFormat.leftPad(123, 2), "123")
    }

    function test_temperature() {
        compare(Temperature.celciousTfahrenhite(25), 77)
        compare(Temperature.celciousTfahrenhite(-40), -40)
        fuzzyCompare(Temperature.fahrenhiteTcelcious(212), 100, 1e-9)
        fuzzyCompare(Temperature.fahrenhiteTcelcious(Temperature.celciousTfahrenhite(37.5)), 37.5, 1e-9)
        compare(Temperature.inUnit(20, 0), 20)
        compare(Temperature.inUnit(20, 1), 68)
    }

    function test_userName_data() {
        return [
            { tag: "letters digits space", text: "Lab 1", ok: true },
            { tag: "accented and marks", text: "Électrode-2_b.c", ok: true },
            { tag: "ideographs", text: "滴定", ok: true },
            { tag: "empty", text: "", ok: false },
            { tag: "slash", text: "a/b", ok: false },
            { tag: "semicolon", text: "Lab;DROP", ok: false },
            { tag: "latin then ideograph", text: "abc滴", ok: false },
            { tag: "newline", text: "ab\ncd", ok: false }
        ]
    }
    function test_userName(data) {
        compare(NamePatterns.userName().test(data.text), data.ok)
    }

    function test_identifier_data() {
        return [
            { tag: "English id", language: "English", text: "S-01 a.b", ok: true },
            { tag: "English refuses accents", language: "English", text: "é", ok: false },
            { tag: "English refuses slash", language: "English", text: "a/b", ok: false },
            { tag: "German accents", language: "German", text: "Probe_ä", ok: true },
            { tag: "German refuses slash", language: "German", text: "a/b", ok: false },
            { tag: "German refuses empty", language: "German", text: "", ok: false }
        ]
    }
    function test_identifier(data) {
        compare(NamePatterns.identifier(data.language).test(data.text), data.ok)
    }

    function test_dateFormats() {
        var d = new Date(2026, 2, 14, 21, 5, 9)
        compare(Qt.formatDate(d, DateFormat.dateFormat(0)), "03/14/2026")
        compare(Qt.formatDate(d, DateFormat.dateFormat(1)), "14/03/2026")
        compare(Qt.formatDate(d, DateFormat.dateFormat(3)), "14-Mar-2026")
        compare(Qt.formatDate(d, DateFormat.dateFormat(9)), "03/14/2026")
        compare(Qt.formatTime(d, DateFormat.timeFormat(1, true)), "21:05:09")
        compare(Qt.formatTime(d, DateFormat.timeFormat(0, false)), "09:05 PM")
    }

    // Stored date texts become dates, whatever the settings show them as.
    function test_parseStored_data() {
        return [
            { tag: "calibration point PM", text: "24/11/2026 | 03:59 PM", expected: new Date(2026, 10, 24, 15, 59) },
            { tag: "last run AM", text: "09:05 AM | 11/24/2026", expected: new Date(2026, 10, 24, 9, 5) },
            { tag: "midnight", text: "24/11/2026 | 12:30 AM", expected: new Date(2026, 10, 24, 0, 30) },
            { tag: "noon", text: "12:10 PM | 11/24/2026", expected: new Date(2026, 10, 24, 12, 10) },
            { tag: "ISO", text: "2026-11-24T15:59:00", expected: new Date(2026, 10, 24, 15, 59) }
        ]
    }
    function test_parseStored(data) {
        compare(DateFormat.parseStored(data.text).getTime(), data.expected.getTime())
    }
    function test_parseStored_other_text() {
        verify(isNaN(DateFormat.parseStored("NILL").getTime()))
        verify(isNaN(DateFormat.parseStored("").getTime()))
    }
}
