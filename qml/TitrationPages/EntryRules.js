.pragma library
.import "../Constants/NumberFormat.js" as NumberFormat
// The limits of every value typed on the method pages: the accepted range
// (on parseFloat of the text), the pattern of the text, the message shown on
// a refusal, what an empty field stores and how the stored value is rounded.
// Patterns allow as many decimals as their message says.

var MSG_CONC_M5 = QT_TRANSLATE_NOOP("TranslationListElements", "Invalid value.  Please enter a value between 0.0001 - 100.0, maximum 5 decimals.")
var MSG_CONC_MM5 = QT_TRANSLATE_NOOP("TranslationListElements", "Invalid value.  Please enter a value between 0.1 - 100000.0, maximum 5 decimals.")
var MSG_CONC_M4 = QT_TRANSLATE_NOOP("TranslationListElements", "Invalid value.  Please enter a value between 0.0001 - 100.0, maximum 4 decimals.")
var MSG_CONC_MM4 = QT_TRANSLATE_NOOP("TranslationListElements", "Invalid value.  Please enter a value between 0.1 - 100000.0, maximum 4 decimals.")
var MSG_MW = QT_TRANSLATE_NOOP("TranslationListElements", "Invalid value.  Please enter a value between 0.01 - 100,000 with maximum 2 decimals.")
var MSG_PURITY = QT_TRANSLATE_NOOP("TranslationListElements", "Invalid value. Please enter a value between 0.01 - 100.00 with maximum 2 decimals.")
var MSG_AMOUNT5 = QT_TRANSLATE_NOOP("TranslationListElements", "Invalid value. Please enter a value between \n0.00001 - 1000.0 with maximum 5 decimals.")
var MSG_RATIO4 = QT_TRANSLATE_NOOP("TranslationListElements", "Invalid value. Please enter a value between \n 0.0001 - 100.0 with maximum 4 decimals.")
var MSG_PREDOSE = QT_TRANSLATE_NOOP("TranslationListElements", "Invalid value. Please enter a value between 0 - burette size with maximum 2 decimals.")
var MSG_MAXVOL = QT_TRANSLATE_NOOP("TranslationListElements", "Invalid value. Please enter a value between 0 - 100 with maximum 2 decimals.")
var MSG_PRESTIR = QT_TRANSLATE_NOOP("TranslationListElements", "Invalid value. Please enter a value between 0 - 10,000.")
var MSG_DELTA_E = QT_TRANSLATE_NOOP("TranslationListElements", "Invalid value. Please enter a value between 0.1 - 100.0 with maximum 1 decimal.")
var MSG_DOSE = QT_TRANSLATE_NOOP("TranslationListElements", "Invalid value.  Please enter a value between 0.001 - 10.000 with maximum 3 decimals.")
var MSG_STABILITY = QT_TRANSLATE_NOOP("TranslationListElements", "Invalid value. Please enter a value between 0.1 - 200.0 with maximum 1 decimal.")
var MSG_TMIN = QT_TRANSLATE_NOOP("TranslationListElements", "Invalid value. Please enter a value between 1 - 150 without decimal.")
var MSG_TMAX = QT_TRANSLATE_NOOP("TranslationListElements", "Invalid value. Please enter a value between 1 - 15000 without decimal.")
var MSG_THRESHOLD = QT_TRANSLATE_NOOP("TranslationListElements", "Invalid value. Please enter a value between 1 - 20000 without decimal.")
var MSG_EP_PH = QT_TRANSLATE_NOOP("TranslationListElements", "Enter a pH value between 0.00 - 14.00")

// A pattern of `whole` integer digits (as "{0,5}") and at most `dec` decimals.
function num(whole, dec) {
    return new RegExp("^\\d" + whole + "(\\.\\d{1," + dec + "})?$")
}
function dose(whole, dec) {
    return new RegExp("^\\d" + whole + "(\\.\\d{0," + dec + "})?$")
}
var WHOLE = /^\d*$/

// title: the page title (tip: the key of its tip when not the title);
// field: object and property the value goes to;
// store: "f2".."f5" toFixed, "sig5" five significant figures, "t3sig5"
// toFixed(3) then five figures, "int" whole number, "" as typed.
var entries = {
    titrantConcentrationMka: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Titrant Concentration"),
        field: ["titrant", "titrantConcentrationValue"],
        min: 0.00001, max: 10000, pattern: num("{0,5}", 5), store: "f5",
        message: QT_TRANSLATE_NOOP("TranslationListElements", "Invalid value. Please enter a value between 0.00001 - 10,000 with maximum 5 decimals.") },
    titrantMolecularWeight: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Titrant Molecular Weight"),
        unit: "g/mol", field: ["titrant", "titrantMolecularWeight"],
        min: 0.01, max: 100000, pattern: num("{1,6}", 2), store: "",
        message: QT_TRANSLATE_NOOP("TranslationListElements", "Invalid value. Please enter a value between 0.01 - 100,000 with maximum 2 decimals.") },
    concInputModeM: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Titrant Concentration"),
        tip: "Conc. Input Mode", unit: "M", field: ["titrant", "concInputMode_manualEntry"],
        min: 0.0001, max: 100, pattern: num("{0,3}", 5), message: MSG_CONC_M5, empty: 1, store: "f5" },
    concInputModemM: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Titrant Concentration"),
        tip: "Conc. Input Mode", unit: "mM", field: ["titrant", "concInputMode_manualEntry"],
        min: 0.1, max: 100000, pattern: num("{0,6}", 5), message: MSG_CONC_MM5, empty: 1, store: "f5" },
    nominalConcM: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Nominal Concentration"),
        unit: "M", field: ["titrant", "nominalConc"],
        min: 0.0001, max: 100, pattern: num("{0,3}", 4), message: MSG_CONC_M4, store: "f4" },
    nominalConcmM: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Nominal Concentration"),
        unit: "mM", field: ["titrant", "nominalConc"],
        min: 0.1, max: 100000, pattern: num("{0,6}", 4), message: MSG_CONC_MM4, store: "f4" },
    titrantEndPointpH: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Endpoint Values"),
        unit: "pH", field: ["titrant", "endPointsValues"],
        min: 0, max: 14, message: MSG_EP_PH, empty: 1, store: "" },
    titrantEndPointmV: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Endpoint Values"),
        unit: "mV", field: ["titrant", "endPointsValues"], signed: true,
        min: -2000, max: 2000, message: QT_TRANSLATE_NOOP("TranslationListElements", "Enter a mV value between - 2000.0 - +2000.0 mV."), store: "" },
    standReactionRatio: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Standardization Reaction Ratio"),
        field: ["titrant", "standReactionRatio"],
        min: 0.0001, max: 100, pattern: num("{0,3}", 4), message: MSG_RATIO4, empty: 0, store: "sig5" },
    fixedStandAmountWeight: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Standard Amount"),
        unit: "grams", field: ["titrant", "fixedStandAmountWeight"],
        min: 0.00001, max: 1000, pattern: num("{0,4}", 5), message: MSG_AMOUNT5, empty: 0, store: "sig5" },
    fixedStandAmountVolume: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Standard Amount"),
        unit: "mL", field: ["titrant", "fixedStandAmountVolume"],
        min: 0.00001, max: 1000, pattern: num("{0,4}", 5), message: MSG_AMOUNT5, empty: 0, store: "sig5" },
    standMolecularWeight: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Standard Molecular Weight"),
        unit: "g/mol", field: ["titrant", "standMolecularWeight"],
        min: 0.01, max: 100000, pattern: num("{0,6}", 2), message: MSG_MW, store: "" },
    standardPurity: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Standard Purity"),
        unit: "%", field: ["titrant", "standardPurity"],
        min: 0.01, max: 100, pattern: num("{0,3}", 2), message: MSG_PURITY, empty: 100, store: "" },
    standConcentrationM: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Standard Concentration"),
        unit: "M", field: ["titrant", "standConcentration"],
        min: 0.0001, max: 100, pattern: num("{0,3}", 5), message: MSG_CONC_M5, empty: 1, store: "f5" },
    standConcentrationmM: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Standard Concentration"),
        unit: "mM", field: ["titrant", "standConcentration"],
        min: 0.1, max: 100000, pattern: num("{0,6}", 5), message: MSG_CONC_MM5, empty: 1, store: "f5" },
    titrantPreDose: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Pre-dose Titrant Volume"),
        unit: "mL", field: ["titrant", "preDoseTitrantVolume"],
        min: 0, maxFromBurette: true, pattern: num("{0,20}", 2), message: MSG_PREDOSE, empty: 0, store: "f2" },
    titrantMaxVolume: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Max Total Titrant Volume"),
        unit: "mL", field: ["titrant", "maxTotalVolume"],
        min: 0, max: 100, pattern: num("{0,3}", 2), message: MSG_MAXVOL, empty: 0, store: "f2" },
    titrantPreStir: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Pre-stir Duration"),
        unit: "sec", field: ["titrant", "preStirDuration"],
        min: 0, max: 10000, pattern: WHOLE, message: MSG_PRESTIR, empty: 0, store: "int" },
    endPointpH: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Endpoint Values"),
        unit: "pH", field: ["titration", "endPointValues"],
        min: 0, max: 14, message: MSG_EP_PH, store: "", signed: true },
    endPointmV: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Endpoint Values"),
        unit: "mV", field: ["titration", "endPointValues"], signed: true,
        min: -2000, max: 2000, message: QT_TRANSLATE_NOOP("TranslationListElements", "Enter a mV value between -2000.0 - +2000.0 mV."), store: "" },
    blankRequiredValue: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Fixed Blank Value"),
        tip: "Blank Required", unit: "mmol", field: ["titration", "blankRequiredValue"],
        min: 0, max: 1000, pattern: num("{0,5}", 5), empty: 0, store: "sig5",
        message: QT_TRANSLATE_NOOP("TranslationListElements", "Invalid value.  Please enter a value between 0.00000 - 1000 with maximum 5 decimals.") },
    resultUnitsValue: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Result Units(F*Consumption mmol)"),
        field: ["titration", "resultUnitsValue"],
        min: 0.0001, max: 1000, pattern: num("{0,4}", 4), empty: 1, store: "f4",
        message: QT_TRANSLATE_NOOP("TranslationListElements", "Invalid value. Please enter a value between 0.0001 - 1000 with maximum 4 decimals.") },
    reactionRatio: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Reaction Ratio"), field: ["titration", "reactionRatio"],
        min: 0.0001, max: 100, pattern: num("{0,3}", 4), message: MSG_RATIO4, empty: 1, store: "" },
    reagentReactionRatio: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Reagent Reaction Ratio"),
        field: ["titration", "reagentReactionRatio"],
        min: 0.00001, max: 1000, pattern: num("{0,4}", 5), empty: 1, store: "",
        message: QT_TRANSLATE_NOOP("TranslationListElements", "Invalid value. Please enter a value between \n 0.00001 - 1000.0, maximum 5 decimals.") },
    titrantReactionRatio: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Titrant Reaction Ratio"),
        field: ["titration", "titrantReactionRatio"],
        min: 0.0001, max: 100, pattern: num("{0,3}", 4), message: MSG_RATIO4, empty: 1, store: "" },
    reagentAmountValue: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Reagent Amount"),
        unit: "mmol", field: ["titration", "reagentAmountValue"],
        min: 0.001, max: 10000, pattern: num("{0,5}", 3), empty: 1, store: "f5",
        message: QT_TRANSLATE_NOOP("TranslationListElements", "Invalid value.  Please enter a value between 0.001 - 10,000 with maximum 3 decimals.") },
    reagentMolecularWeight: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Reagent Molecular Weight"),
        unit: "g/mol", field: ["titration", "reagentMolecularWeight"],
        min: 0.01, max: 100000, pattern: num("{0,6}", 2), message: MSG_MW, store: "" },
    reagentPurity: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Reagent Purity"),
        unit: "%", field: ["titration", "reagentPurity"],
        min: 0.01, max: 100, pattern: num("{0,3}", 2), message: MSG_PURITY, empty: 100, store: "" },
    reagentWeight: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Fixed Reagent Weight"),
        unit: "g", field: ["titration", "reagentWeight"],
        min: 0.00001, max: 1000, pattern: num("{0,4}", 5), message: MSG_AMOUNT5, empty: 0, store: "" },
    reagentVolume: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Reagent Volume"),
        unit: "mL", field: ["titration", "reagentVolume"],
        min: 0.00001, max: 1000, pattern: num("{0,4}", 5), empty: 0, store: "f5",
        message: QT_TRANSLATE_NOOP("TranslationListElements", "Invalid value. Please enter a value between 0.00001 - 1000.0 with maximum 5 decimals.") },
    reagentConcentration: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Reagent Concentration"),
        unit: "M", field: ["titration", "reagentConcentration"],
        min: 0.0001, max: 100, pattern: num("{0,3}", 4), message: MSG_CONC_M4.replace(", maximum", " with maximum"),
        empty: 1, store: "f5" },
    sampleMolecularWeight: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Sample Mol. Wt."),
        unit: "g/mol", field: ["titration", "sampleMolecularWeight"],
        min: 0.01, max: 100000, pattern: num("{0,6}", 2), message: MSG_MW, store: "" },
    fixedSampleWeight: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Sample Amount"),
        unit: "g", field: ["titration", "fixedSampleWeightValue"],
        min: 0.00001, max: 1000, pattern: num("{0,4}", 5), message: MSG_AMOUNT5, empty: 0, store: "f5" },
    fixedSampleVolume: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Sample Amount"),
        unit: "mL", field: ["titration", "fixedSampleVolumeValue"],
        min: 0.001, max: 1000, pattern: num("{0,4}", 3), empty: 0, store: "f5",
        message: QT_TRANSLATE_NOOP("TranslationListElements", "Invalid value. Please enter a value between \n0.001 - 1000.0 with maximum 3 decimals.") },
    servingNo: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Sample Amount"),
        unit: "servings", field: ["titration", "servingNo"],
        min: 0.00001, max: 1000, pattern: num("{0,4}", 5), message: MSG_AMOUNT5, empty: 0, store: "f5" },
    sampleDensity: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Sample Density"),
        unit: "g/mL", field: ["titration", "sampleDensity"],
        min: 0.001, max: 100, pattern: num("{0,3}", 3), empty: 0, store: "f3",
        message: QT_TRANSLATE_NOOP("TranslationListElements", "Invalid value. Please enter a value between 0.001 - 100.0 \nwith maximum 3 decimals.") },
    titrationPreDose: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Pre-dose Titrant Volume"),
        unit: "mL", field: ["titration", "preDoseTitrantVolume"],
        min: 0, maxFromBurette: true, pattern: num("{0,2}", 2), message: MSG_PREDOSE, empty: 0, store: "f2" },
    titrationMaxVolume: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Max Total Titrant Volume"),
        unit: "mL", field: ["titration", "maxTotalTitrantVolume"],
        min: 0, max: 100, pattern: num("{0,3}", 2), message: MSG_MAXVOL, empty: 5, store: "f2" },
    titrationPreStir: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Pre-stir Duration"),
        unit: "sec", field: ["titration", "preStirDuration"],
        min: 0, max: 10000, pattern: WHOLE, message: MSG_PRESTIR, empty: 0, store: "int" },
    servingSizeg: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Serving Size"),
        unit: "g", field: ["titration", "servingSize"],
        min: 0.0001, max: 100, pattern: num("{0,3}", 5), message: MSG_CONC_M5, empty: 1, store: "f3" },
    servingSizemL: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Serving Size"),
        unit: "mL", field: ["titration", "servingSize"],
        min: 0.1, max: 100000, pattern: num("{0,6}", 5), message: MSG_CONC_MM5, empty: 1, store: "f3" },
    totalSolutionVolume: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Total Solution Volume"),
        unit: "mL", field: ["titration", "totalSolutionVolume"],
        min: 1, max: 10000, pattern: num("{0,5}", 3), empty: 0, store: "t3sig5",
        message: QT_TRANSLATE_NOOP("TranslationListElements", "Invalid value. Please enter a value between 1 - 10000 with maximum 3 decimals.") },
    precisionLevel: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Precision Level"),
        unit: "%", field: ["titration", "mkaProcessControlPrecision"],
        min: 0.1, max: 20, pattern: num("{0,2}", 1), empty: 2, store: "",
        message: QT_TRANSLATE_NOOP("TranslationListElements", "Invalid value.  Please enter a value between 0.1 - 20 with maximum 1 decimal.") },

    // User defined process control of a titration or standardisation; the
    // field's object is chosen by the page ("titrant" or "titration").
    deltaE: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Target ΔE"),
        unit: "mV", field: ["", "deltaE"], min: 0.1, max: 100,
        pattern: dose("{0,3}", 1), message: MSG_DELTA_E, store: "", decimals: 1 },
    deltaVmin: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Minimum Dose ΔVmin"),
        unit: "mL", field: ["", "deltaVmin"], min: 0.001, max: 10,
        pattern: dose("{0,2}", 3), message: MSG_DOSE, store: "", decimals: 3 },
    deltaVmax: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Maximum Dose ΔVmax"),
        unit: "mL", field: ["", "deltaVmax"], min: 0.001, max: 10,
        pattern: dose("{0,2}", 3), message: MSG_DOSE, store: "", decimals: 3 },
    stablityCriteria: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Stability Criteria dE/dt"),
        unit: "mV/min", field: ["", "stablityCriteria"],
        min: 0.1, max: 200, pattern: dose("{0,3}", 1), message: MSG_STABILITY, store: "", decimals: 3 },
    tMin: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Minimum Response Time tmin"),
        unit: "sec", field: ["", "tMin"], min: 1, max: 150,
        pattern: /^\d{0,3}$/, message: MSG_TMIN, store: "int", decimals: 0 },
    tMax: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Maximum Response Time tmax"),
        unit: "sec", field: ["", "tMax"], min: 1, max: 15000,
        pattern: /^\d{0,5}$/, message: MSG_TMAX, store: "int", decimals: 0 },
    threshold: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Threshold"),
        unit: "mV/mL", field: ["", "threshold"], min: 1, max: 20000,
        pattern: /^\d{0,5}$/, message: MSG_THRESHOLD, store: "int", decimals: 0 },

    // Known addition: the constant increment and the stability are held to
    // the limits of the titration's target ΔE and dE/dt.
    mkaConstant: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Constant Increment"),
        tip: "Target ΔE", unit: "mV", field: ["titration", "mkaProcessControlConstant"],
        min: 0.1, max: 100, pattern: dose("{0,3}", 1), message: MSG_DELTA_E, empty: 18, store: "", decimals: 1 },
    mkaMeasurement: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Measurement Stability"),
        tip: "Stability Criteria dE/dt", unit: "mV/min", field: ["titration", "mkaProcessControlMeasurement"],
        min: 0.1, max: 200, pattern: dose("{0,3}", 1), message: MSG_STABILITY, empty: 3, store: "", decimals: 1 },
    mkaTmin: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Tmin"),
        tip: "Minimum Response Time tmin", unit: "sec", field: ["titration", "tMin"], min: 1, max: 150,
        pattern: /^\d{0,3}$/, message: MSG_TMIN, empty: 2, store: "int", decimals: 0 },
    mkaTmax: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Tmax"),
        tip: "Maximum Response Time tmax", unit: "sec", field: ["titration", "tMax"], min: 1, max: 15000,
        pattern: /^\d{0,5}$/, message: MSG_TMAX, empty: 10, store: "int", decimals: 0 },
    mkaDVmin: { title: QT_TRANSLATE_NOOP("TranslationListElements", "dVmin"),
        tip: "Minimum Dose ΔVmin", unit: "mL", field: ["titration", "deltaVmin"], min: 0.001, max: 10,
        pattern: dose("{0,2}", 3), message: MSG_DOSE, empty: 10, store: "", decimals: 3 },
    mkaDVmax: { title: QT_TRANSLATE_NOOP("TranslationListElements", "dVmax"),
        tip: "Maximum Dose ΔVmax", unit: "mL", field: ["titration", "deltaVmax"], min: 0.001, max: 10,
        pattern: dose("{0,2}", 3), message: MSG_DOSE, empty: 10, store: "", decimals: 3 }
}

function entry(key) {
    var e = entries[key]
    if (!e)
        throw new Error("no entry " + key)
    return e
}

// The key of the tip of an entry's page: its title, unless another tip
// tells about the same value.
function tipKey(key) {
    var e = entry(key)
    return e.tip || e.title
}

// The text as typed, with the letters A to Z and a to z taken out.
function stripLetters(text) {
    return String(text).replace(/[A-Za-z]/g, "")
}

function rounded(value, store) {
    switch (store) {
    case "f2": return Number(value.toFixed(2))
    case "f3": return Number(value.toFixed(3))
    case "f4": return Number(value.toFixed(4))
    case "f5": return Number(value.toFixed(5))
    case "sig5": return Number(NumberFormat.sigFigs(value, 5))
    case "t3sig5": return Number(NumberFormat.sigFigs(Number(value.toFixed(3)), 5))
    case "int": return Math.round(value)
    default: return value
    }
}

// Checks the text of an entry. ctx.buretteSize bounds the pre-dose volumes.
// Answers { ok, value, message }: value is what is stored.
function validate(key, text, ctx) {
    var e = entry(key)
    var t = String(text).trim()
    if (t === "" && e.empty !== undefined)
        return { ok: true, value: e.empty, message: "" }
    var max = e.maxFromBurette ? Number(ctx && ctx.buretteSize !== undefined ? ctx.buretteSize : 0) : e.max
    var body = e.signed ? t.replace(/^[-+]/, "") : t
    var patternOk = e.pattern ? e.pattern.test(body) : /^\d*(\.\d*)?$/.test(body) && body !== "" && body !== "."
    var v = parseFloat(t)
    if (!patternOk || isNaN(v) || v < e.min || v > max)
        return { ok: false, value: undefined, message: e.message }
    return { ok: true, value: rounded(v, e.store), message: "" }
}

// The key of an entry whose limits depend on a unit.
function keyFor(base, unit) {
    return base + unit
}

// Names typed on the method pages. kind: "format" names (electrode,
// titrant, standard) or "formatNum" identifiers (titrant id, sample ids).
var SPECIAL = QT_TRANSLATE_NOOP("TranslationListElements", "Special characters are not allowed")
var names = {
    electrodeName: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Electrode Name"), pattern: "format", max: 14,
        tooLong: QT_TRANSLATE_NOOP("TranslationListElements", "Invalid name. Please enter up to 14 alphanumeric characters.") },
    titrantName: { title: QT_TRANSLATE_NOOP("TranslationListElements", "User Defined Titrant Name"), pattern: "format", max: 14,
        tooLong: QT_TRANSLATE_NOOP("TranslationListElements", "Invalid name. Please enter up to 14 alphanumeric characters.") },
    titrantID: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Titrant ID"), pattern: "formatNum", max: 14,
        tooLong: QT_TRANSLATE_NOOP("TranslationListElements", "Invalid name. Please enter up to 14 alphanumeric characters") },
    standardName: { title: QT_TRANSLATE_NOOP("TranslationListElements", "User Defined Standard Name"), pattern: "format", max: 14,
        tooLong: QT_TRANSLATE_NOOP("TranslationListElements", "Invalid name. Please enter up to 14 alphanumeric \ncharacters.") },
    sampleIdManual: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Sample ID-Manual"),
        pattern: "formatNum", max: 14, blank: QT_TRANSLATE_NOOP("TranslationListElements", "Sample Id cannot be blank"),
        tooLong: QT_TRANSLATE_NOOP("TranslationListElements", "Invalid name. Please enter up to 14 alphanumeric characters.") },
    sampleIdPrefix: { title: QT_TRANSLATE_NOOP("TranslationListElements", "Sample ID-Auto-Incremental"),
        pattern: "formatNum", max: 10, blank: QT_TRANSLATE_NOOP("TranslationListElements", "Sample Id cannot be blank"),
        tooLong: QT_TRANSLATE_NOOP("TranslationListElements", "Invalid name. Please enter up to 10 alphanumeric characters."), noUnderscore: true }
}

// patterns: { format: RegExp, formatNum: RegExp }. Answers { ok, value, message }.
// Every name loses its blanks at both ends before it is checked and stored.
function validateName(kind, text, patterns) {
    var n = names[kind]
    var t = String(text).replace(/^\s+|\s+$/g, "")
    if (t.length === 0 && n.blank)
        return { ok: false, message: n.blank }
    if (t.length === 0 || t.length > n.max)
        return { ok: false, message: n.tooLong }
    if (!patterns[n.pattern].test(t) || (n.noUnderscore && t.indexOf("_") >= 0))
        return { ok: false, message: SPECIAL }
    return { ok: true, value: t, message: "" }
}

// The electrode name and auto-increment prefix of the Measure section's
// settings, by the rules of the method pages; an empty electrode name is no
// name. Answers { message, name, prefix }: the first refusal, or "" with
// the trimmed texts to store.
function measureSettingsCheck(name, sampleId, prefix, patterns) {
    var out = { message: "", name: String(name).replace(/^\s+|\s+$/g, ""), prefix: "" }
    if (out.name !== "") {
        var n = validateName("electrodeName", out.name, patterns)
        if (!n.ok)
            return { message: n.message }
    }
    if (sampleId === "Auto-Incremental") {
        var p = validateName("sampleIdPrefix", prefix, patterns)
        if (!p.ok)
            return { message: p.message }
        out.prefix = p.value
    }
    return out
}

// The name and password of a method saved from the Methods section: the
// first message, or "". Fields left at the placeholder count as empty.
function methodNameMessage(name, password, confirm, formatNum, placeholder) {
    var n = String(name).replace(/^\s+|\s+$/g, "")
    var p = password === placeholder ? "" : String(password)
    var c = confirm === placeholder ? "" : String(confirm)
    if (n === "" || n === placeholder)
        return QT_TRANSLATE_NOOP("TranslationListElements", "Method name cannot be empty")
    if (!formatNum.test(n))
        return SPECIAL
    if (n.length > 14)
        return QT_TRANSLATE_NOOP("TranslationListElements", "Invalid name. Please enter up to 14 alphanumeric  characters.")
    if (p !== "" && c !== "" && p !== c)
        return QT_TRANSLATE_NOOP("TranslationListElements", "Password & confirm password should be same")
    if (p.length > 14)
        return QT_TRANSLATE_NOOP("TranslationListElements", "Invalid Password. Please enter up to 14 alphanumeric characters.")
    if (p !== "" && !formatNum.test(p))
        return SPECIAL
    return ""
}

// The same from home: { message, field } ("name" or "password"), or message "".
function saveMethodMessage(name, password, formatNum, placeholder) {
    var n = String(name).replace(/^\s+|\s+$/g, "")
    var p = password === placeholder ? "" : String(password)
    if (n === "" || n === placeholder)
        return { message: QT_TRANSLATE_NOOP("TranslationListElements", "Method Name can't be empty"), field: "name" }
    if (!formatNum.test(n))
        return { message: SPECIAL, field: "name" }
    if (p !== "" && !formatNum.test(p))
        return { message: SPECIAL, field: "password" }
    if (n.length >= 15 || p.length >= 15)
        return { message: QT_TRANSLATE_NOOP("TranslationListElements", "Invalid name. Please enter up to 14 alphanumeric characters."), field: "name" }
    return { message: "", field: "" }
}

// Why the method library refused to save a method, as the screens say it.
var saveRefusals = {
    duplicateName: QT_TRANSLATE_NOOP("TranslationListElements", "A method with this name already exists."),
    libraryFull: QT_TRANSLATE_NOOP("TranslationListElements", "Method log is full, new method cannot be saved."),
    databaseError: QT_TRANSLATE_NOOP("TranslationListElements", "The method could not be stored. Please try again.")
}
function saveRefusalMessage(reason) {
    return reason === "" ? "" : (saveRefusals[reason] || saveRefusals.databaseError)
}
