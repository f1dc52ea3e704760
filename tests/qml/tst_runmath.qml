import QtQuick 2.12
import QtTest 1.12
import "../../qml/TitrationPages/RunMath.js" as RunMath
import "../../qml/Constants/NamePatterns.js" as NamePatterns

TestCase {
    name: "RunMath"

    function test_nextSampleId_data() {
        return [
            { tag: "no suffix gets 001", id: "Lot", expected: "Lot_001" },
            { tag: "prefix ending in 9 gets 001", id: "Lot9", expected: "Lot9_001" },
            { tag: "suffix counts on", id: "Lot9_001", expected: "Lot9_002" },
            { tag: "009 becomes 010", id: "S_009", expected: "S_010" },
            { tag: "010 becomes 011", id: "S_010", expected: "S_011" },
            { tag: "digits without the underscore", id: "A1234", expected: "A1234_001" },
            { tag: "underscore with two digits", id: "A_12", expected: "A_12_001" }
        ]
    }
    function test_nextSampleId(data) {
        compare(RunMath.nextSampleId(data.id), data.expected)
    }

    function test_cycleButtonText_data() {
        return [
            { tag: "first", n: 1, expected: "Run 1st Cycle" },
            { tag: "third", n: 3, expected: "Run 3rd Cycle" },
            { tag: "fifth", n: 5, expected: "Run 5th Cycle" },
            { tag: "sixth: only Complete", n: 6, expected: "" }
        ]
    }
    function test_cycleButtonText(data) {
        compare(RunMath.cycleButtonText(data.n), data.expected)
    }

    function test_sampleIdError_data() {
        return [
            { tag: "blank", text: "   ", expected: "Sample Id cannot be blank" },
            { tag: "special characters", text: "ab$c", expected: "Special characters are not allowed" },
            { tag: "fifteen characters", text: "ABCDEFGHIJKLMNO", expected: "Invalid name. Please enter up to 14 alphanumeric characters." },
            { tag: "trimmed and good", text: "  Lot9 ", expected: "" }
        ]
    }
    function test_sampleIdError(data) {
        compare(RunMath.sampleIdError(data.text, new RegExp(NamePatterns.identifier("English"))), data.expected)
    }

    function test_amountError_data() {
        var refused = "Invalid value. Please enter a value between 0.00001 - 1000.0, maximum 5 decimals."
        return [
            { tag: "inside", text: "2.5", expected: "" },
            { tag: "smallest", text: "0.00001", expected: "" },
            { tag: "largest", text: "1000", expected: "" },
            { tag: "above", text: "1000.1", expected: refused },
            { tag: "zero", text: "0", expected: refused },
            { tag: "six decimals", text: "1.000001", expected: refused },
            { tag: "empty", text: "", expected: refused }
        ]
    }
    function test_amountError(data) {
        compare(RunMath.amountError(data.text), data.expected)
    }

    function test_averageAndRsd_data() {
        return [
            { tag: "two cycles", v: [0.1, 0.102], f: [true, true], mean: 0.101, rsd: "1.40%" },
            { tag: "one left out", v: [0.1, 0.2, 0.1], f: [true, false, true], mean: 0.1, rsd: "0.00%" },
            { tag: "a single cycle", v: [0.1, 0.2], f: [true, false], mean: 0.1, rsd: "0.0%" },
            { tag: "none included", v: [0.1, 0.2], f: [false, false], mean: 0, rsd: "0.0%" },
            { tag: "mean of zero has no RSD", v: [0.1, -0.1], f: [true, true], mean: 0, rsd: "-" }
        ]
    }
    function test_averageAndRsd(data) {
        fuzzyCompare(RunMath.mean(data.v, data.f), data.mean, 1e-12)
        compare(RunMath.rsdText(data.v, data.f), data.rsd)
    }

    function test_mkaAverages() {
        var a = RunMath.mkaAverages([
            { volume: 0.1, mVvalue: 100, calConc: 0, precision: 999 },
            { volume: 0.2, mVvalue: 110, calConc: 0.001, precision: 2 },
            { volume: 0.3, mVvalue: 120, calConc: 0.003, precision: 4 }])
        fuzzyCompare(a.volume, 0.2, 1e-12)
        fuzzyCompare(a.mV, 110, 1e-12)
        fuzzyCompare(a.conc, 0.002, 1e-12)
        fuzzyCompare(a.precision, 3, 1e-12)
        compare(RunMath.numberOf("1.5e-05"), 1.5e-05)
        compare(RunMath.duration(3723000), "01:02:03")
    }
}
