import QtQuick 2.12
import QtTest 1.12
import "../../qml/TitrationPages/RunOffers.js" as RunOffers

TestCase {
    name: "RunOffers"

    function method(changes) {
        var m = { electrodeType: "pH", displayUnits: "pH", lastCalibration: "", lastStandardization: "",
                  concInputMode: "Standardization" }
        for (var k in changes)
            m[k] = changes[k]
        return m
    }

    function test_nextOffer_data() {
        return [
            { tag: "pH, nothing done: calibration first", m: {}, step: 1, expected: "calibrate" },
            { tag: "calibration declined: the titrant", m: {}, step: 2, expected: "standardize" },
            { tag: "calibrated: the titrant", m: { lastCalibration: "03:59 PM | 11/24/2026" }, step: 1, expected: "standardize" },
            { tag: "shown in mV: no calibration", m: { displayUnits: "mV" }, step: 1, expected: "standardize" },
            { tag: "redox: no calibration", m: { electrodeType: "Redox" }, step: 1, expected: "standardize" },
            { tag: "typed-in concentration: straight on", m: { concInputMode: "Manual Entry" }, step: 2, expected: "" },
            { tag: "standardised: straight on", m: { lastStandardization: "03:59 PM | 11/24/2026" }, step: 2, expected: "" },
            { tag: "both done", m: { lastCalibration: "x", lastStandardization: "y" }, step: 1, expected: "" }
        ]
    }
    function test_nextOffer(data) {
        compare(RunOffers.nextOffer(method(data.m), data.step), data.expected)
    }

    function test_exceedsBurette_data() {
        return [
            { tag: "within", max: 15, burette: 20, expected: false },
            { tag: "equal", max: 20, burette: 20, expected: false },
            { tag: "beyond", max: 25, burette: 20, expected: true }
        ]
    }
    function test_exceedsBurette(data) {
        compare(RunOffers.exceedsBurette(data.max, data.burette), data.expected)
    }
}
