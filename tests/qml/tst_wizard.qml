import QtQuick 2.12
import QtTest 1.12
import "../../qml/TitrationPages/EntryRules.js" as EntryRules
import "../../qml/TitrationPages/WizardRows.js" as WizardRows
import "../../qml/Constants/NamePatterns.js" as NamePatterns

TestCase {
    name: "Wizard"

    // Every entry: the value at each edge is taken, one step outside is
    // refused with the page's message; one more decimal than the message
    // allows is refused too.
    function test_edges_data() {
        return [
            { tag: "titrant conc. MKA", key: "titrantConcentrationMka", lo: "0.00001", below: "0.000009", hi: "10000", above: "10000.1", longer: "1.123456" },
            { tag: "titrant MW", key: "titrantMolecularWeight", lo: "0.01", below: "0.009", hi: "100000", above: "100000.01", longer: "1.123" },
            { tag: "manual conc. M", key: "concInputModeM", lo: "0.0001", below: "0.00009", hi: "100", above: "100.5", longer: "1.123456" },
            { tag: "manual conc. mM", key: "concInputModemM", lo: "0.1", below: "0.09", hi: "100000", above: "100000.1", longer: "1.123456" },
            { tag: "nominal M", key: "nominalConcM", lo: "0.0001", below: "0.00009", hi: "100", above: "100.01", longer: "1.12345" },
            { tag: "nominal mM", key: "nominalConcmM", lo: "0.1", below: "0.09", hi: "100000", above: "100000.1", longer: "1.12345" },
            { tag: "titrant EP pH", key: "titrantEndPointpH", lo: "0", below: "-0.01", hi: "14", above: "14.01" },
            { tag: "titrant EP mV", key: "titrantEndPointmV", lo: "-2000", below: "-2000.1", hi: "2000", above: "2000.1" },
            { tag: "stand. ratio", key: "standReactionRatio", lo: "0.0001", below: "0.00009", hi: "100", above: "100.1", longer: "1.12345" },
            { tag: "stand. weight", key: "fixedStandAmountWeight", lo: "0.00001", below: "0.000009", hi: "1000", above: "1000.1", longer: "1.123456" },
            { tag: "stand. volume", key: "fixedStandAmountVolume", lo: "0.00001", below: "0.000009", hi: "1000", above: "1000.1" },
            { tag: "stand. MW", key: "standMolecularWeight", lo: "0.01", below: "0.009", hi: "100000", above: "100000.1", longer: "1.123" },
            { tag: "stand. purity", key: "standardPurity", lo: "0.01", below: "0.009", hi: "100", above: "100.01", longer: "1.123" },
            { tag: "stand. conc. M", key: "standConcentrationM", lo: "0.0001", below: "0.00009", hi: "100", above: "100.1" },
            { tag: "stand. conc. mM", key: "standConcentrationmM", lo: "0.1", below: "0.09", hi: "100000", above: "100000.1" },
            { tag: "titrant pre-dose", key: "titrantPreDose", lo: "0", below: "-1", hi: "25", above: "25.01", longer: "1.123" },
            { tag: "titrant max vol.", key: "titrantMaxVolume", lo: "0", below: "-1", hi: "100", above: "100.01", longer: "1.123" },
            { tag: "titrant pre-stir", key: "titrantPreStir", lo: "0", below: "-1", hi: "10000", above: "10001", longer: "1.5" },
            { tag: "EP pH", key: "endPointpH", lo: "0", below: "-0.01", hi: "14", above: "14.01" },
            { tag: "EP mV", key: "endPointmV", lo: "-2000", below: "-2000.1", hi: "2000", above: "2000.1" },
            { tag: "fixed blank", key: "blankRequiredValue", lo: "0", below: "-0.1", hi: "1000", above: "1000.1", longer: "1.123456" },
            { tag: "factor F", key: "resultUnitsValue", lo: "0.0001", below: "0.00009", hi: "1000", above: "1000.1", longer: "1.12345" },
            { tag: "reaction ratio", key: "reactionRatio", lo: "0.0001", below: "0.00009", hi: "100", above: "100.1", longer: "1.12345" },
            { tag: "reagent ratio", key: "reagentReactionRatio", lo: "0.00001", below: "0.000009", hi: "1000", above: "1000.1" },
            { tag: "titrant ratio", key: "titrantReactionRatio", lo: "0.0001", below: "0.00009", hi: "100", above: "100.1" },
            { tag: "reagent mmol", key: "reagentAmountValue", lo: "0.001", below: "0.0009", hi: "10000", above: "10000.1", longer: "1.1234" },
            { tag: "reagent MW", key: "reagentMolecularWeight", lo: "0.01", below: "0.009", hi: "100000", above: "100000.1" },
            { tag: "reagent purity", key: "reagentPurity", lo: "0.01", below: "0.009", hi: "100", above: "100.1" },
            { tag: "reagent weight", key: "reagentWeight", lo: "0.00001", below: "0.000009", hi: "1000", above: "1000.1" },
            { tag: "reagent volume", key: "reagentVolume", lo: "0.00001", below: "0.000009", hi: "1000", above: "1000.1" },
            { tag: "reagent conc.", key: "reagentConcentration", lo: "0.0001", below: "0.00009", hi: "100", above: "100.1", longer: "1.12345" },
            { tag: "sample MW", key: "sampleMolecularWeight", lo: "0.01", below: "0.009", hi: "100000", above: "100000.1" },
            { tag: "sample weight", key: "fixedSampleWeight", lo: "0.00001", below: "0.000009", hi: "1000", above: "1000.1" },
            { tag: "sample volume", key: "fixedSampleVolume", lo: "0.001", below: "0.0009", hi: "1000", above: "1000.1", longer: "1.1234" },
            { tag: "servings", key: "servingNo", lo: "0.00001", below: "0.000009", hi: "1000", above: "1000.1" },
            { tag: "density", key: "sampleDensity", lo: "0.001", below: "0.0009", hi: "100", above: "100.1", longer: "1.1234" },
            { tag: "titration pre-dose", key: "titrationPreDose", lo: "0", below: "-1", hi: "25", above: "25.01" },
            { tag: "titration max vol.", key: "titrationMaxVolume", lo: "0", below: "-1", hi: "100", above: "100.01" },
            { tag: "titration pre-stir", key: "titrationPreStir", lo: "0", below: "-1", hi: "10000", above: "10001" },
            { tag: "serving g", key: "servingSizeg", lo: "0.0001", below: "0.00009", hi: "100", above: "100.1" },
            { tag: "serving mL", key: "servingSizemL", lo: "0.1", below: "0.09", hi: "100000", above: "100000.1" },
            { tag: "total solution", key: "totalSolutionVolume", lo: "1", below: "0.999", hi: "10000", above: "10000.1", longer: "1.1234" },
            { tag: "precision", key: "precisionLevel", lo: "0.1", below: "0.09", hi: "20", above: "20.1", longer: "1.12" },
            { tag: "delta E", key: "deltaE", lo: "0.1", below: "0.09", hi: "100", above: "100.1", longer: "1.12" },
            { tag: "dVmin", key: "deltaVmin", lo: "0.001", below: "0.0009", hi: "10", above: "10.001", longer: "1.1234" },
            { tag: "dVmax", key: "deltaVmax", lo: "0.001", below: "0.0009", hi: "10", above: "10.001" },
            { tag: "dE/dt", key: "stablityCriteria", lo: "0.1", below: "0.09", hi: "200", above: "200.1" },
            { tag: "tmin", key: "tMin", lo: "1", below: "0", hi: "150", above: "151", longer: "1.5" },
            { tag: "tmax", key: "tMax", lo: "1", below: "0", hi: "15000", above: "15001" },
            { tag: "threshold", key: "threshold", lo: "1", below: "0", hi: "20000", above: "20001" },
            { tag: "MKA constant", key: "mkaConstant", lo: "0.1", below: "0.09", hi: "100", above: "100.1" },
            { tag: "MKA stability", key: "mkaMeasurement", lo: "0.1", below: "0.09", hi: "200", above: "200.1" },
            { tag: "MKA tmin", key: "mkaTmin", lo: "1", below: "0", hi: "150", above: "151" },
            { tag: "MKA tmax", key: "mkaTmax", lo: "1", below: "0", hi: "15000", above: "15001" },
            { tag: "MKA dVmin", key: "mkaDVmin", lo: "0.001", below: "0.0009", hi: "10", above: "10.1" },
            { tag: "MKA dVmax", key: "mkaDVmax", lo: "0.001", below: "0.0009", hi: "10", above: "10.1" }
        ]
    }
    function test_edges(data) {
        var ctx = { buretteSize: 25 }
        var message = EntryRules.entry(data.key).message
        verify(message.length > 0)
        compare(EntryRules.validate(data.key, data.lo, ctx).ok, true, "low edge " + data.lo)
        compare(EntryRules.validate(data.key, data.hi, ctx).ok, true, "high edge " + data.hi)
        var below = EntryRules.validate(data.key, data.below, ctx)
        compare(below.ok, false, "below " + data.below)
        compare(below.message, message)
        compare(EntryRules.validate(data.key, data.above, ctx).message, message, "above " + data.above)
        if (data.longer !== undefined)
            compare(EntryRules.validate(data.key, data.longer, ctx).ok, false, "too many decimals " + data.longer)
    }

    function test_messages_and_storing() {
        compare(EntryRules.validate("concInputModeM", "100.5", {}).message,
                "Invalid value.  Please enter a value between 0.0001 - 100.0, maximum 5 decimals.")
        compare(EntryRules.validate("concInputModemM", "100.5", {}).value, 100.5)
        compare(EntryRules.validate("concInputModeM", "", {}).value, 1)
        compare(EntryRules.validate("titrationMaxVolume", "", {}).value, 5)
        compare(EntryRules.validate("standardPurity", "", {}).value, 100)
        compare(EntryRules.validate("nominalConcM", "", {}).ok, false)
        compare(EntryRules.validate("standReactionRatio", "1.2345", {}).value, 1.2345)
        compare(EntryRules.validate("totalSolutionVolume", "123.456", {}).value, 123.46)
        compare(EntryRules.validate("titrantPreDose", "10", { buretteSize: 5 }).message,
                "Invalid value. Please enter a value between 0 - burette size with maximum 2 decimals.")
        compare(EntryRules.stripLetters("1a2.b5Z"), "12.5")
        // a blank is an amount of matter, as the summary gives it
        compare(EntryRules.entry("blankRequiredValue").unit, "mmol")
    }

    function test_electrode_rows() {
        compare(WizardRows.electrodeRows("pH"), ["Electrode Type", "Electrode Name", "Resolution", "Buffer Group"])
        compare(WizardRows.electrodeRows("Redox"), ["Electrode Type", "Electrode Name"])
        compare(WizardRows.electrodeRows("ISE-MKA"), ["Electrode Type", "ISE Type", "Electrode Name"])
    }

    function test_titrant_rows() {
        compare(WizardRows.titrantRows({ concInputMode: "Manual Entry" }),
                ["Titrant Name", "Titrant ID", "Conc. Input Mode", "Titrant Concentration"])
        var s = WizardRows.titrantRows({ concInputMode: "Standardization", standTechnique: "Preset End Pt.", standAmount: "Fixed Weight" })
        compare(s.slice(3, 11), ["Nominal Concentration", "Standardize Tech.", "Number of Endpoints", "Endpoint Values",
                                 "Result Units", "Standardize Reaction Ratio", "Standard Name", "Standard Amount"])
        compare(s.slice(11, 13), ["Standard Molecular Wt", "Standard Purity"])
        var v = WizardRows.titrantRows({ concInputMode: "Standardization", standTechnique: "Equivalence Pt.", standAmount: "Fixed Volume" })
        compare(v.indexOf("Endpoint Values"), -1)
        compare(v[v.indexOf("Standard Amount") + 1], "Standard Concentration")
        compare(WizardRows.endPointCounts("Preset End Pt.", true), ["1"])
        compare(WizardRows.endPointCounts("Preset End Pt.", false), ["1", "2", "3"])
        compare(WizardRows.endPointCounts("Equivalence Pt.", false), ["1", "2"])
        compare(WizardRows.endPointsFor("Equivalence Pt.", 3), 1)
        compare(WizardRows.endPointsFor("Equivalence Pt.", 2), 2)
        compare(WizardRows.endPointsFor("Preset End Pt.", 3), 3)
    }

    function rowsOf(changes) {
        var s = { electrodeType: "pH", technique: "Equivalence Pt.", titrationType: "Direct Titration", blankRequired: "No",
                  resultUnitsIndex: 0, sampleAmount: "Fixed Volume", reagentAmount: "Manual Calc.", sampleID: "None" }
        for (var k in changes)
            s[k] = changes[k]
        return WizardRows.titrationRows(s)
    }

    // Rows each choice adds (in) and takes away (out) against the plain
    // direct equivalence titration of a pH electrode in "M" by volume.
    function test_titration_rows_data() {
        return [
            { tag: "preset pH", c: { technique: "Preset End Pt." }, at: { "Display Units": 3, "Endpoint Values": 4 } },
            { tag: "preset redox", c: { technique: "Preset End Pt.", electrodeType: "Redox" }, at: { "Endpoint Values": 3 }, out: ["Display Units"] },
            { tag: "equivalence", c: {}, out: ["Display Units", "Endpoint Values", "Sample Mol. Wt.", "Sample Density"], in_: ["Blank Required", "Reaction Ratio"] },
            { tag: "fixed blank", c: { blankRequired: "Fixed" }, in_: ["Fixed Blank Value"] },
            { tag: "back", c: { titrationType: "Back Titration" }, in_: ["Reagent Reaction Ratio", "Titrant Reaction Ratio", "Reagent Amount"], out: ["Blank Required", "Reaction Ratio"] },
            { tag: "back manual volume", c: { titrationType: "Back Titration", reagentAmount: "Manual Volume" }, in_: ["Reagent Concentration", "Reagent Volume"], out: ["Reagent Purity"] },
            { tag: "back manual weight", c: { titrationType: "Back Titration", reagentAmount: "Manual Weight" }, in_: ["Reagent Molecular Wt", "Reagent Purity", "Reagent Weight"] },
            { tag: "back blank", c: { titrationType: "Back Titration", reagentAmount: "Back Blank Titration" }, out: ["Reagent Volume", "Reagent Weight"] },
            { tag: "consumption", c: { resultUnitsIndex: 22 }, out: ["Reaction Ratio"] },
            { tag: "F consumption back", c: { resultUnitsIndex: 23, titrationType: "Back Titration" }, out: ["Reagent Reaction Ratio", "Titrant Reaction Ratio"] },
            { tag: "mg/L", c: { resultUnitsIndex: 3 }, in_: ["Sample Mol. Wt."], out: ["Sample Density"] },
            { tag: "mg/L by weight", c: { resultUnitsIndex: 3, sampleAmount: "Fixed Weight" }, in_: ["Sample Mol. Wt.", "Sample Density"] },
            { tag: "M by volume", c: { resultUnitsIndex: 0 }, out: ["Sample Mol. Wt.", "Sample Density"] },
            { tag: "mol/kg by volume", c: { resultUnitsIndex: 10, sampleAmount: "Variable Volume" }, in_: ["Sample Density"], out: ["Sample Mol. Wt."] },
            { tag: "mg/kg by weight", c: { resultUnitsIndex: 15, sampleAmount: "Fixed Weight" }, in_: ["Sample Mol. Wt."], out: ["Sample Density"] },
            { tag: "TBN by volume", c: { resultUnitsIndex: 21 }, in_: ["Sample Density"] },
            { tag: "auto sample id", c: { sampleID: "Auto-Incremental" }, in_: ["Auto-Incremental Prefix"] }
        ]
    }
    function test_titration_rows(data) {
        var rows = rowsOf(data.c)
        for (var t in data.at)
            compare(rows.indexOf(t), data.at[t], t)
        var i
        for (i in data.in_)
            verify(rows.indexOf(data.in_[i]) >= 0, data.in_[i])
        for (i in data.out)
            compare(rows.indexOf(data.out[i]), -1, data.out[i])
        compare(rows[rows.length - 1].indexOf("Sample ID") === 0 || rows[rows.length - 1] === "Auto-Incremental Prefix", true)
    }

    function test_mka_rows() {
        var s = { resultUnits: "mg/serving", sampleAmount: "Fixed Volume", servingUnit: "g", processControl: "User Defined", sampleID: "None" }
        var rows = WizardRows.mkaTitrationRows(s)
        compare(rows.slice(0, 4), ["Titrant Name and Concentration", "Result Units", "Serving Size", "Sample Mol. Wt."])
        compare(rows.slice(rows.indexOf("MKA Process Control") + 1, rows.indexOf("Precision Level")), WizardRows.mkaProcessRows)
        s.resultUnits = "M"; s.processControl = "Routine"
        rows = WizardRows.mkaTitrationRows(s)
        compare(rows.indexOf("Serving Size"), -1)
        compare(rows.indexOf("Sample Mol. Wt."), -1)
        compare(rows.indexOf("Constant Increment"), -1)
        s.resultUnits = "%w/w"
        verify(WizardRows.mkaTitrationRows(s).indexOf("Sample Density") > 0)
        compare(WizardRows.mkaTitrantRows("mg/L"), ["Titrant Name", "Titrant ID", "Titrant Concentration", "Titrant Molecular Weight"])
        compare(WizardRows.mkaTitrantRows("M").length, 3)
        compare(WizardRows.mkaSampleAmounts("mg/serving", "g"), ["Fixed Weight", "Variable Weight", "Serving No."])
        compare(WizardRows.checkSampleAmount("mg/serving", "g", "Fixed Volume"), "Fixed Weight")
        compare(WizardRows.checkSampleAmount("mg/serving", "mL", "Variable Weight"), "Fixed Volume")
        compare(WizardRows.checkSampleAmount("mg/L", "g", "Serving No."), "Fixed Volume")
    }

    function test_display_unit_change() {
        compare(WizardRows.convertEndPoints("mV", "pH", [150, -20, 3]), [7, 7, 7])
        compare(WizardRows.convertEndPoints("pH", "mV", [4, 9, 7]), [0, 0, 0])
        compare(WizardRows.convertEndPoints("pH", "pH", [4, 9, 7]), [4, 9, 7])
    }

    function test_finish_checks() {
        var t = { reactionRatio: 1, resultUnits: "mg/L", sampleMolecularWeight: 0, sampleAmount: "Fixed Volume",
                  sampleAmountValue: 10, sampleDensity: 1 }
        compare(WizardRows.finishCheck(t, false), " Sample Weight value can't be blank!")
        t.resultUnits = "Consumption mmol"; t.reactionRatio = 0
        compare(WizardRows.finishCheck(t, false), "")
        t.resultUnits = "M"
        compare(WizardRows.finishCheck(t, false), " Reaction Ratio value can't be blank!")
        compare(WizardRows.finishCheck(t, true), "")
        t.sampleAmountValue = 0
        compare(WizardRows.finishCheck(t, true), " Sample Amount value can't be blank!")
        t.sampleAmount = "Variable Weight"; t.sampleDensity = 0
        compare(WizardRows.finishCheck(t, true), " Sample Density value can't be blank!")
    }
    // Names: length limits, the pattern, the sample prefix's "_", blanks.
    function test_names_data() {
        var tooLong = "Invalid name. Please enter up to 14 alphanumeric characters."
        return [
            { tag: "electrode ok", kind: "electrodeName", text: "Glass 1", message: "" },
            { tag: "electrode 15", kind: "electrodeName", text: "ABCDEFGHIJKLMNO", message: tooLong },
            { tag: "electrode mark", kind: "electrodeName", text: "Glass#1", message: "Special characters are not allowed" },
            { tag: "electrode trimmed", kind: "electrodeName", text: "  Glass 1 ", message: "", value: "Glass 1" },
            { tag: "titrant trimmed 14", kind: "titrantName", text: " ABCDEFGHIJKLMN ", message: "", value: "ABCDEFGHIJKLMN" },
            { tag: "titrant id trimmed", kind: "titrantID", text: "  Lot7  ", message: "", value: "Lot7" },
            { tag: "standard 15", kind: "standardName", text: "ABCDEFGHIJKLMNO", message: "Invalid name. Please enter up to 14 alphanumeric \ncharacters." },
            { tag: "sample blank", kind: "sampleIdManual", text: "   ", message: "Sample Id cannot be blank" },
            { tag: "prefix 10", kind: "sampleIdPrefix", text: "ABCDEFGHIJ", message: "" },
            { tag: "prefix 11", kind: "sampleIdPrefix", text: "ABCDEFGHIJK", message: "Invalid name. Please enter up to 10 alphanumeric characters." },
            { tag: "prefix underscore", kind: "sampleIdPrefix", text: "AB_1", message: "Special characters are not allowed" }
        ]
    }
    function test_names(data) {
        var patterns = { format: NamePatterns.userName(), formatNum: NamePatterns.identifier("English") }
        var r = EntryRules.validateName(data.kind, data.text, patterns)
        compare(r.message, data.message)
        if (data.value !== undefined)
            compare(r.value, data.value)
    }

    // The Measure section's settings: the electrode name (none is allowed)
    // and the prefix of an auto-incremented sample id.
    function test_measure_settings_data() {
        return [
            { tag: "no name, no id", name: "", sampleId: "None", prefix: "AB_", message: "", stored: "" },
            { tag: "name trimmed", name: "  Glass 1", sampleId: "None", prefix: "", message: "", stored: "Glass 1" },
            { tag: "name too long", name: "Probe#7 Long Name He", sampleId: "None", prefix: "",
              message: "Invalid name. Please enter up to 14 alphanumeric characters." },
            { tag: "name mark", name: "Probe#7", sampleId: "None", prefix: "", message: "Special characters are not allowed" },
            { tag: "prefix ok", name: "", sampleId: "Auto-Incremental", prefix: " S-007 ", message: "", storedPrefix: "S-007" },
            { tag: "prefix long", name: "", sampleId: "Auto-Incremental", prefix: "AB_CD#EFGHIJKLMNOP",
              message: "Invalid name. Please enter up to 10 alphanumeric characters." },
            { tag: "prefix underscore", name: "", sampleId: "Auto-Incremental", prefix: "AB_CD", message: "Special characters are not allowed" },
            { tag: "prefix blank", name: "", sampleId: "Auto-Incremental", prefix: "  ", message: "Sample Id cannot be blank" }
        ]
    }
    function test_measure_settings(data) {
        var patterns = { format: NamePatterns.userName(), formatNum: NamePatterns.identifier("English") }
        var r = EntryRules.measureSettingsCheck(data.name, data.sampleId, data.prefix, patterns)
        compare(r.message, data.message)
        if (data.stored !== undefined)
            compare(r.name, data.stored)
        if (data.storedPrefix !== undefined)
            compare(r.prefix, data.storedPrefix)
    }

    function test_method_names() {
        var num = NamePatterns.identifier("English")
        var ph = "Tap to enter text"
        compare(EntryRules.methodNameMessage(ph, ph, ph, num, ph), "Method name cannot be empty")
        compare(EntryRules.methodNameMessage("ABCDEFGHIJKLMNO", "", "", num, ph),
                "Invalid name. Please enter up to 14 alphanumeric  characters.")
        compare(EntryRules.methodNameMessage("Acid 1", "ab", "ac", num, ph), "Password & confirm password should be same")
        compare(EntryRules.methodNameMessage("Acid 1", ph, ph, num, ph), "")
        compare(EntryRules.saveMethodMessage("", "", num, ph).message, "Method Name can't be empty")
        compare(EntryRules.saveMethodMessage("Acid 1", "a#b", num, ph).field, "password")
        // each refusal of the library has its own message
        var reasons = ["duplicateName", "libraryFull", "databaseError"].map(EntryRules.saveRefusalMessage)
        compare(reasons[0], "A method with this name already exists.")
        compare(reasons[1], "Method log is full, new method cannot be saved.")
        verify(reasons[2] !== reasons[0] && reasons[2] !== reasons[1])
        compare(EntryRules.saveRefusalMessage(""), "")
    }
}
