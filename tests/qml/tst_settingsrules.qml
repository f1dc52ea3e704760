import QtQuick 2.12
import QtTest 1.12
import "../../qml/SettingsPages/SettingsRules.js" as SettingsRules

TestCase {
    name: "SettingsRules"

    function test_dueHours_data() {
        return [
            { tag: "one hour", texts: ["1", "24", "9999"], valid: true },
            { tag: "0 in one row refuses all", texts: ["24", "0", "24"], valid: false },
            { tag: "10000", texts: ["10000", "24", "24"], valid: false },
            { tag: "empty", texts: ["24", "", "24"], valid: false },
            { tag: "decimal", texts: ["1.5", "24", "24"], valid: false },
            { tag: "sign", texts: ["-5", "24", "24"], valid: false },
            { tag: "letters", texts: ["24h", "24", "24"], valid: false },
            { tag: "blanks around", texts: [" 48 ", "24", "24"], valid: true },
            { tag: "no rows", texts: [], valid: false }
        ]
    }
    function test_dueHours(data) {
        compare(SettingsRules.allDueHoursValid(data.texts), data.valid)
    }

    function test_brightness_data() {
        return [
            { tag: "up", level: 3, delta: 1, expected: 4 },
            { tag: "not above 5", level: 5, delta: 1, expected: 5 },
            { tag: "not below 1", level: 1, delta: -1, expected: 1 },
            { tag: "a stored 0 comes up to 1", level: 0, delta: 0, expected: 1 }
        ]
    }
    function test_brightness(data) {
        compare(SettingsRules.stepBrightness(data.level, data.delta), data.expected)
    }

    function test_temperature_data() {
        return [
            { tag: "25 °C", text: "25", unit: 0, celsius: 25 },
            { tag: "100 °C", text: "100.00", unit: 0, celsius: 100 },
            { tag: "100.01 °C", text: "100.01", unit: 0, celsius: NaN },
            { tag: "three decimals", text: "25.125", unit: 0, celsius: NaN },
            { tag: "212 °F is out", text: "212", unit: 1, celsius: NaN },
            { tag: "32 °F", text: "32", unit: 1, celsius: 0 },
            { tag: "31.9 °F", text: "31.9", unit: 1, celsius: NaN },
            { tag: "empty", text: "", unit: 0, celsius: NaN },
            { tag: "sign", text: "-1", unit: 0, celsius: NaN }
        ]
    }
    function test_temperature(data) {
        var c = SettingsRules.temperatureCelsius(data.text, data.unit)
        if (isNaN(data.celsius))
            verify(isNaN(c), data.text + " gave " + c)
        else
            fuzzyCompare(c, data.celsius, 1e-9)
    }

    function test_atc_data() {
        return [
            { tag: "reading 1.2 low", text: "25.0", shown: 23.8, offset: 0.5, unit: 0, expected: 1.7 },
            { tag: "rounded to a tenth", text: "25.04", shown: 25.0, offset: 0, unit: 0, expected: 0 },
            { tag: "in °F", text: "77", shown: 75.2, offset: 0, unit: 1, expected: 1 },
            { tag: "refused", text: "101", shown: 25, offset: 0, unit: 0, expected: NaN }
        ]
    }
    function test_atc(data) {
        var r = SettingsRules.atcCalibration(data.text, data.shown, data.offset, data.unit)
        if (isNaN(data.expected))
            compare(r, null)
        else
            fuzzyCompare(r.offset, data.expected, 1e-6)
    }

    function test_maintenance() {
        compare(SettingsRules.maintenanceIndex(6), 2)
        compare(SettingsRules.maintenanceIndex(0), 0)
        var scheduled = new Date(2026, 5, 1)
        compare(SettingsRules.maintenanceShown(scheduled, new Date(2020, 0, 1)).getTime(), scheduled.getTime())
        // no schedule yet: a year after the first start
        compare(SettingsRules.maintenanceShown(new Date(NaN), new Date(2026, 2, 14)).getFullYear(), 2027)
        compare(SettingsRules.maintenanceShown(undefined, undefined), null)
    }
}
