import QtQuick 2.12
import QtTest 1.12
import "../../qml/MeterPages/MeterFormat.js" as MeterFormat

// What the meter, calibration and burette pages show and accept.
TestCase {
    name: "MeterFormat"

    function test_reading_data() {
        var r = function (mV, value, mode, extra) {
            var o = { mV: mV, message: "", outOfRange: false, readMode: mode, value: value, resolution: 0.01, significantDigits: 3 }
            for (var k in extra) o[k] = extra[k]
            return o
        }
        return [
            { tag: "pH to the resolution", r: r(10, 6.8321, "pH", {}), expected: "6.83" },
            { tag: "pH at 0.001", r: r(10, 6.8321, "pH", { resolution: 0.001 }), expected: "6.832" },
            { tag: "pH at 0.1", r: r(10, 6.86, "pH", { resolution: 0.1 }), expected: "6.9" },
            { tag: "redox to 0.1 mV", r: r(245.26, 245.26, "Redox", {}), expected: "245.3" },
            { tag: "ISE by significant digits", r: r(10, 0.012345, "ISE", {}), expected: "0.0123" },
            { tag: "2000.9 mV still a number", r: r(2000.9, 1.5, "pH", {}), expected: "1.50" },
            { tag: "beyond 2000.9 mV", r: r(-2001, 1.5, "pH", {}), expected: "mV OverRange" },
            { tag: "the meter's message first", r: r(10, 1, "ISE", { message: "Please Calibrate " }), expected: "Please Calibrate " },
            { tag: "out of the measuring range", r: r(10, 1, "pH", { outOfRange: true }), expected: "Out of Range" },
            { tag: "the no-value sentinel", r: r(10, 9999, "pH", {}), expected: "Out of Range" }
        ]
    }
    function test_reading(data) {
        compare(MeterFormat.readingText(data.r), data.expected)
    }

    function test_standard_data() {
        return [
            { tag: "pH buffer", text: "7.00", mode: "pH", dec: 2, expected: "" },
            { tag: "pH too many decimals", text: "7.001", mode: "pH", dec: 2, expected: "Enter a pH value between -2.00 - 20.00" },
            { tag: "pH above 20", text: "21", mode: "pH", dec: 2, expected: "Enter a pH value between -2.00 - 20.00" },
            { tag: "pH below -2", text: "-2.5", mode: "pH", dec: 2, expected: "Enter a pH value between -2.00 - 20.00" },
            { tag: "empty is marked", text: "", mode: "pH", dec: 2, expected: "empty" },
            { tag: "redox", text: "-1999.5", mode: "Redox", dec: 1, expected: "" },
            { tag: "redox beyond 2000", text: "2000.5", mode: "Redox", dec: 1, expected: "Enter a value between -2000 - 2000" },
            { tag: "redox two decimals", text: "220.25", mode: "Redox", dec: 1, expected: "Enter a value between -2000 - 2000" },
            { tag: "ISE", text: "0.00125", mode: "ISE", dec: 2, expected: "" },
            { tag: "ISE negative", text: "-1", mode: "ISE", dec: 2, expected: "Enter a value between 0 - 20000" },
            { tag: "not a number", text: "1.2.3", mode: "ISE", dec: 2, expected: "Enter a value between 0 - 20000" }
        ]
    }
    function test_standard(data) {
        compare(MeterFormat.checkStandard(data.text, data.mode, data.dec), data.expected)
    }

    function test_slope_data() {
        return [
            { tag: "pH slope kept", text: "97.5", type: "pH", expected: "" },
            { tag: "pH slope under 80 %", text: "79.9", type: "pH", expected: "Slope out of range" },
            { tag: "pH slope over 120 %", text: "120.5", type: "pH", expected: "Slope out of range" },
            { tag: "ISE slope in mV per decade", text: "-57.1", type: "ISE", expected: "" },
            { tag: "empty", text: "", type: "pH", expected: "Enter a slope value between 80.0 - 120.0 %" },
            { tag: "not a number", text: "9.9.9", type: "pH", expected: "Enter a slope value between 80.0 - 120.0 %" },
            { tag: "ISE three decimals", text: "-57.125", type: "ISE", expected: "Enter a slope value between -9999.99 - 9999.99 mV/dec" }
        ]
    }
    function test_slope(data) {
        compare(MeterFormat.checkSlope(data.text, data.type), data.expected)
    }

    function test_preset_data() {
        var decimals = "Please enter a value with maximum \n2 decimals."
        return [
            { tag: "2.00 mL", text: "2.00", size: 20, expected: "" },
            { tag: "the whole burette", text: "10", size: 10, expected: "" },
            { tag: "12 mL over a 10 mL burette", text: "12", size: 10, expected: "Preset value must be less than \nmaximum burette volume" },
            { tag: "three decimals", text: "1.005", size: 20, expected: decimals },
            { tag: "nothing to dose", text: "0", size: 20, expected: decimals },
            { tag: "empty", text: "", size: 20, expected: "empty" }
        ]
    }
    function test_preset(data) {
        compare(MeterFormat.checkPreset(data.text, data.size), data.expected)
    }

    function test_sampleIdAndCycles() {
        compare(MeterFormat.nextSampleId("S-007"), "S-008")
        compare(MeterFormat.nextSampleId("LOT999"), "LOT1000")
        compare(MeterFormat.nextSampleId("AB"), "AB001")
        compare(MeterFormat.stepRinseCycles(0, -1), 0)
        compare(MeterFormat.stepRinseCycles(10, 1), 10)
        compare(MeterFormat.stepRinseCycles(3, -1), 2)
    }

    function test_installationDate() {
        var today = new Date(2026, 10, 23, 15, 0)
        compare(MeterFormat.checkInstallationDate(new Date(2026, 10, 23), today), "")
        compare(MeterFormat.checkInstallationDate(new Date(2026, 10, 24), today), "The installation date cannot be in the future.")
        compare(MeterFormat.checkInstallationDate(new Date(1999, 11, 31), today), "The installation date cannot be before 2000.")
    }

    function test_phOffset() {
        compare(MeterFormat.phOffset([4.01, 7.0, 10.01], [6.5, 6.2, 6.0]), 6.5)
        compare(MeterFormat.phOffset([7.0, 10.01], [6.2, 6.0]), 6.2)
        compare(MeterFormat.phOffset([9.18, 10.01], [4.0, 6.0]), 4.0)
    }
}
