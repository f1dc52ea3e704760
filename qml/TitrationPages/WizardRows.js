.pragma library
// Which rows the method pages show for the choices made so far, and the
// rules that tie the fields of a method together. Rows are named by their
// English titles; option texts are compared in English.

var resultUnits = ["M", "mM", "mg/100mL", "mg/L", "g/100mL", "g/L", "ppm", "ppb", "oz/gal", "% w/v",
                   "mol/kg", "mmol/kg", "mmol/g", "mg/100g", "mg/g", "mg/kg", "g/100g", "g/kg",
                   "ppm by weight", "% w/w", "TAN", "TBN", "Consumption mmol", "F*Consumption mmol"]
var mkaResultUnits = ["M", "mM", "mg/100mL", "mg/L", "g/100mL", "g/L", "ppm", "ppb", "oz/gal", "% w/v",
                      "%w/w", "ppm(w)", "mg/100g", "mg/g", "mg/serving", "mg"]
var mkaProcessRows = ["Constant Increment", "Measurement Stability", "Tmin", "Tmax", "dVmin", "dVmax"]

function isWeight(amount) { return amount === "Fixed Weight" || amount === "Variable Weight" }
function isVolume(amount) { return amount === "Fixed Volume" || amount === "Variable Volume" }

function electrodeRows(type) {
    if (type === "pH")
        return ["Electrode Type", "Electrode Name", "Resolution", "Buffer Group"]
    if (type === "Redox")
        return ["Electrode Type", "Electrode Name"]
    return ["Electrode Type", "ISE Type", "Electrode Name"]
}

// s: concInputMode, standTechnique, standAmount
function titrantRows(s) {
    var rows = ["Titrant Name", "Titrant ID", "Conc. Input Mode"]
    if (s.concInputMode !== "Standardization")
        return rows.concat(["Titrant Concentration"])
    rows = rows.concat(["Nominal Concentration", "Standardize Tech.", "Number of Endpoints"])
    if (s.standTechnique === "Preset End Pt.")
        rows.push("Endpoint Values")
    rows = rows.concat(["Result Units", "Standardize Reaction Ratio", "Standard Name", "Standard Amount"])
    if (isWeight(s.standAmount))
        rows = rows.concat(["Standard Molecular Wt", "Standard Purity"])
    else
        rows.push("Standard Concentration")
    return rows.concat(["Pre-dose Titrant Volume", "Max Total Titrant Volume", "Stand. Process Control",
                        "Pre-stir Duration", "Stir Speed"])
}

// The end-point counts offered: the titrant's preset standardisation has
// one; a titration's preset end point up to three; equivalence points two.
function endPointCounts(technique, forTitrant) {
    if (technique === "Preset End Pt.")
        return forTitrant ? ["1"] : ["1", "2", "3"]
    return ["1", "2"]
}

// The end-point count kept when the technique changes: three end points
// exist only with preset end points, and fall back to one.
function endPointsFor(technique, count) {
    return technique !== "Preset End Pt." && count > 2 ? 1 : count
}

function hasReactionRatio(unitIndex) { return unitIndex !== 22 && unitIndex !== 23 }
function needsSampleMolWeight(unitIndex) {
    return (unitIndex >= 2 && unitIndex <= 9) || (unitIndex >= 13 && unitIndex <= 19)
}
function checkSampleDensityCondition(unitIndex, sampleAmount) {
    return (unitIndex <= 9 && isWeight(sampleAmount)) || (unitIndex > 9 && unitIndex <= 21 && isVolume(sampleAmount))
}

// s: electrodeType, technique, titrationType, blankRequired, resultUnitsIndex,
// sampleAmount, reagentAmount, processControl, sampleID
function titrationRows(s) {
    var rows = ["Titrant Name and Concentration", "Titration Technique", "Number of Endpoints"]
    var preset = s.technique === "Preset End Pt."
    if (preset && s.electrodeType === "pH")
        rows.push("Display Units")
    if (preset)
        rows.push("Endpoint Values")
    rows.push("Titration Type")
    var back = s.titrationType === "Back Titration"
    if (!back) {
        rows.push("Blank Required")
        if (s.blankRequired === "Fixed")
            rows.push("Fixed Blank Value")
    }
    rows.push("Result Units")
    if (hasReactionRatio(s.resultUnitsIndex))
        rows = rows.concat(back ? ["Reagent Reaction Ratio", "Titrant Reaction Ratio"] : ["Reaction Ratio"])
    if (back) {
        rows.push("Reagent Amount")
        if (s.reagentAmount === "Manual Volume")
            rows = rows.concat(["Reagent Concentration", "Reagent Volume"])
        else if (s.reagentAmount === "Manual Weight")
            rows = rows.concat(["Reagent Molecular Wt", "Reagent Purity", "Reagent Weight"])
    }
    if (needsSampleMolWeight(s.resultUnitsIndex))
        rows.push("Sample Mol. Wt.")
    rows.push("Sample Amount")
    if (checkSampleDensityCondition(s.resultUnitsIndex, s.sampleAmount))
        rows.push("Sample Density")
    rows = rows.concat(["Pre-dose Titrant Volume", "Max Total Titrant Volume", "Titration Process Control",
                        "Pre-stir Duration", "Stir Speed", "Sample ID"])
    if (s.sampleID === "Auto-Incremental")
        rows.push("Auto-Incremental Prefix")
    return rows
}

function mkaTitrantRows(concentrationUnit) {
    var rows = ["Titrant Name", "Titrant ID", "Titrant Concentration"]
    if (concentrationUnit === "mg/L")
        rows.push("Titrant Molecular Weight")
    return rows
}

function mkaSampleAmounts(unit, servingUnit) {
    if (unit !== "mg/serving")
        return ["Fixed Volume", "Fixed Weight", "Variable Weight"]
    return servingUnit === "g" ? ["Fixed Weight", "Variable Weight", "Serving No."] : ["Fixed Volume", "Serving No."]
}

// The sample kind kept legal for a unit by serving.
function checkSampleAmount(unit, servingUnit, amount) {
    if (unit !== "mg/serving")
        return amount === "Serving No." ? "Fixed Volume" : amount
    var allowed = mkaSampleAmounts(unit, servingUnit)
    if (allowed.indexOf(amount) >= 0)
        return amount
    return servingUnit === "g" ? "Fixed Weight" : "Fixed Volume"
}

function mkaDensityCondition(unitIndex, sampleAmount) {
    return (unitIndex <= 9 && isWeight(sampleAmount)) || (unitIndex >= 10 && unitIndex <= 13 && sampleAmount === "Fixed Volume")
}

// s: resultUnits, sampleAmount, servingUnit, processControl, sampleID
function mkaTitrationRows(s) {
    var unitIndex = mkaResultUnits.indexOf(s.resultUnits)
    var rows = ["Titrant Name and Concentration", "Result Units"]
    if (s.resultUnits === "mg/serving")
        rows.push("Serving Size")
    if (["M", "mM", "oz/gal"].indexOf(s.resultUnits) < 0)
        rows.push("Sample Mol. Wt.")
    rows.push("Sample Amount")
    if (mkaDensityCondition(unitIndex, s.sampleAmount))
        rows.push("Sample Density")
    rows = rows.concat(["Total Solution Volume", "Max Total Titrant Volume", "Blank Conc. Required", "MKA Process Control"])
    if (s.processControl === "User Defined")
        rows = rows.concat(mkaProcessRows)
    rows = rows.concat(["Precision Level", "Pre-stir Duration", "Stir Speed", "Sample ID"])
    if (s.sampleID === "Auto-Incremental")
        rows.push("Auto-Incremental Prefix")
    return rows
}

// End-point values when the display unit changes: leaving mV for pH puts
// every value at pH 7, leaving pH for mV at 0 mV.
function convertEndPoints(fromUnit, toUnit, values) {
    if (fromUnit === toUnit)
        return values.slice()
    var v = toUnit === "pH" ? 7 : 0
    return values.map(function () { return v })
}

// Shown numbers lose their trailing zeros.
function shown(x, decimals) {
    return Number(Number(x).toFixed(decimals)).toString()
}

var massUnits = ["mg/100mL", "mg/L", "g/100mL", "g/L", "ppm", "ppb", "oz/gal", "% w/v", "mg/100g", "mg/kg",
                 "g/100g", "g/kg", "ppm by weight", "% w/w"]

// The check of a finished titration page: the first message, or "".
// t: reactionRatio, resultUnits, sampleMolecularWeight, sampleAmount,
// sampleAmountValue, sampleDensity; mka: no reaction ratio to check.
function finishCheck(t, mka) {
    if (!mka && hasReactionRatio(resultUnits.indexOf(t.resultUnits)) && !(t.reactionRatio > 0))
        return " Reaction Ratio value can't be blank!"
    if (massUnits.indexOf(t.resultUnits) >= 0 && !(t.sampleMolecularWeight > 0))
        return " Sample Weight value can't be blank!"
    var variable = t.sampleAmount === "Variable Weight" || t.sampleAmount === "Variable Volume"
    if (!variable && !(t.sampleAmountValue > 0))
        return " Sample Amount value can't be blank!"
    if (isWeight(t.sampleAmount) && !(t.sampleDensity > 0))
        return " Sample Density value can't be blank!"
    return ""
}
