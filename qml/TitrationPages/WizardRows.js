.pragma library
// Which rows the method pages show for the choices made so far, and the
// rules that tie the fields of a method together. Rows are named by their
// English titles; option texts are compared in English.

var resultUnits = ["M", "mM", "mg/100mL", "mg/L", "g/100mL", "g/L", "ppm", "ppb", "oz/gal", "% w/v",
                   "mol/kg", "mmol/kg", "mmol/g", "mg/100g", "mg/g", "mg/kg", "g/100g", "g/kg",
                   "ppm by weight", "% w/w", "TAN", "TBN", "Consumption mmol", "F*Consumption mmol"]
var mkaResultUnits = ["M", "mM", "mg/100mL", "mg/L", "g/100mL", "g/L", "ppm", "ppb", "oz/gal", "% w/v",
                      "%w/w", "ppm(w)", "mg/100g", "mg/g", "mg/serving", "mg"]
var mkaProcessRows = [QT_TRANSLATE_NOOP("TranslationListElements", "Constant Increment"),
                      QT_TRANSLATE_NOOP("TranslationListElements", "Measurement Stability"),
                      QT_TRANSLATE_NOOP("TranslationListElements", "Tmin"),
                      QT_TRANSLATE_NOOP("TranslationListElements", "Tmax"),
                      QT_TRANSLATE_NOOP("TranslationListElements", "dVmin"),
                      QT_TRANSLATE_NOOP("TranslationListElements", "dVmax")]

function isWeight(amount) { return amount === "Fixed Weight" || amount === "Variable Weight" }
function isVolume(amount) { return amount === "Fixed Volume" || amount === "Variable Volume" }

function electrodeRows(type) {
    if (type === "pH")
        return [QT_TRANSLATE_NOOP("TranslationListElements", "Electrode Type"),
                QT_TRANSLATE_NOOP("TranslationListElements", "Electrode Name"),
                QT_TRANSLATE_NOOP("TranslationListElements", "Resolution"),
                QT_TRANSLATE_NOOP("TranslationListElements", "Buffer Group")]
    if (type === "Redox")
        return [QT_TRANSLATE_NOOP("TranslationListElements", "Electrode Type"),
                QT_TRANSLATE_NOOP("TranslationListElements", "Electrode Name")]
    return [QT_TRANSLATE_NOOP("TranslationListElements", "Electrode Type"),
            QT_TRANSLATE_NOOP("TranslationListElements", "ISE Type"),
            QT_TRANSLATE_NOOP("TranslationListElements", "Electrode Name")]
}

// s: concInputMode, standTechnique, standAmount
function titrantRows(s) {
    var rows = [QT_TRANSLATE_NOOP("TranslationListElements", "Titrant Name"),
                QT_TRANSLATE_NOOP("TranslationListElements", "Titrant ID"),
                QT_TRANSLATE_NOOP("TranslationListElements", "Conc. Input Mode")]
    if (s.concInputMode !== "Standardization")
        return rows.concat([QT_TRANSLATE_NOOP("TranslationListElements", "Titrant Concentration")])
    rows = rows.concat([QT_TRANSLATE_NOOP("TranslationListElements", "Nominal Concentration"),
                        QT_TRANSLATE_NOOP("TranslationListElements", "Standardize Tech."),
                        QT_TRANSLATE_NOOP("TranslationListElements", "Number of Endpoints")])
    if (s.standTechnique === "Preset End Pt.")
        rows.push(QT_TRANSLATE_NOOP("TranslationListElements", "Endpoint Values"))
    rows = rows.concat([QT_TRANSLATE_NOOP("TranslationListElements", "Result Units"),
                        QT_TRANSLATE_NOOP("TranslationListElements", "Standardize Reaction Ratio"),
                        QT_TRANSLATE_NOOP("TranslationListElements", "Standard Name"),
                        QT_TRANSLATE_NOOP("TranslationListElements", "Standard Amount")])
    if (isWeight(s.standAmount))
        rows = rows.concat([QT_TRANSLATE_NOOP("TranslationListElements", "Standard Molecular Wt"),
                            QT_TRANSLATE_NOOP("TranslationListElements", "Standard Purity")])
    else
        rows.push(QT_TRANSLATE_NOOP("TranslationListElements", "Standard Concentration"))
    return rows.concat([QT_TRANSLATE_NOOP("TranslationListElements", "Pre-dose Titrant Volume"),
                        QT_TRANSLATE_NOOP("TranslationListElements", "Max Total Titrant Volume"),
                        QT_TRANSLATE_NOOP("TranslationListElements", "Stand. Process Control"),
                        QT_TRANSLATE_NOOP("TranslationListElements", "Pre-stir Duration"),
                        QT_TRANSLATE_NOOP("TranslationListElements", "Stir Speed")])
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
    var rows = [QT_TRANSLATE_NOOP("TranslationListElements", "Titrant Name and Concentration"),
                QT_TRANSLATE_NOOP("TranslationListElements", "Titration Technique"),
                QT_TRANSLATE_NOOP("TranslationListElements", "Number of Endpoints")]
    var preset = s.technique === "Preset End Pt."
    if (preset && s.electrodeType === "pH")
        rows.push(QT_TRANSLATE_NOOP("TranslationListElements", "Display Units"))
    if (preset)
        rows.push(QT_TRANSLATE_NOOP("TranslationListElements", "Endpoint Values"))
    rows.push(QT_TRANSLATE_NOOP("TranslationListElements", "Titration Type"))
    var back = s.titrationType === "Back Titration"
    if (!back) {
        rows.push(QT_TRANSLATE_NOOP("TranslationListElements", "Blank Required"))
        if (s.blankRequired === "Fixed")
            rows.push(QT_TRANSLATE_NOOP("TranslationListElements", "Fixed Blank Value"))
    }
    rows.push(QT_TRANSLATE_NOOP("TranslationListElements", "Result Units"))
    if (hasReactionRatio(s.resultUnitsIndex))
        rows = rows.concat(back ? [QT_TRANSLATE_NOOP("TranslationListElements", "Reagent Reaction Ratio"),
                                   QT_TRANSLATE_NOOP("TranslationListElements", "Titrant Reaction Ratio")] : [QT_TRANSLATE_NOOP("TranslationListElements", "Reaction Ratio")])
    if (back) {
        rows.push(QT_TRANSLATE_NOOP("TranslationListElements", "Reagent Amount"))
        if (s.reagentAmount === "Manual Volume")
            rows = rows.concat([QT_TRANSLATE_NOOP("TranslationListElements", "Reagent Concentration"),
                                QT_TRANSLATE_NOOP("TranslationListElements", "Reagent Volume")])
        else if (s.reagentAmount === "Manual Weight")
            rows = rows.concat([QT_TRANSLATE_NOOP("TranslationListElements", "Reagent Molecular Wt"),
                                QT_TRANSLATE_NOOP("TranslationListElements", "Reagent Purity"),
                                QT_TRANSLATE_NOOP("TranslationListElements", "Reagent Weight")])
    }
    if (needsSampleMolWeight(s.resultUnitsIndex))
        rows.push(QT_TRANSLATE_NOOP("TranslationListElements", "Sample Mol. Wt."))
    rows.push(QT_TRANSLATE_NOOP("TranslationListElements", "Sample Amount"))
    if (checkSampleDensityCondition(s.resultUnitsIndex, s.sampleAmount))
        rows.push(QT_TRANSLATE_NOOP("TranslationListElements", "Sample Density"))
    rows = rows.concat([QT_TRANSLATE_NOOP("TranslationListElements", "Pre-dose Titrant Volume"),
                        QT_TRANSLATE_NOOP("TranslationListElements", "Max Total Titrant Volume"),
                        QT_TRANSLATE_NOOP("TranslationListElements", "Titration Process Control"),
                        QT_TRANSLATE_NOOP("TranslationListElements", "Pre-stir Duration"),
                        QT_TRANSLATE_NOOP("TranslationListElements", "Stir Speed"),
                        QT_TRANSLATE_NOOP("TranslationListElements", "Sample ID")])
    if (s.sampleID === "Auto-Incremental")
        rows.push(QT_TRANSLATE_NOOP("TranslationListElements", "Auto-Incremental Prefix"))
    return rows
}

function mkaTitrantRows(concentrationUnit) {
    var rows = [QT_TRANSLATE_NOOP("TranslationListElements", "Titrant Name"),
                QT_TRANSLATE_NOOP("TranslationListElements", "Titrant ID"),
                QT_TRANSLATE_NOOP("TranslationListElements", "Titrant Concentration")]
    if (concentrationUnit === "mg/L")
        rows.push(QT_TRANSLATE_NOOP("TranslationListElements", "Titrant Molecular Weight"))
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
    var rows = [QT_TRANSLATE_NOOP("TranslationListElements", "Titrant Name and Concentration"),
                QT_TRANSLATE_NOOP("TranslationListElements", "Result Units")]
    if (s.resultUnits === "mg/serving")
        rows.push(QT_TRANSLATE_NOOP("TranslationListElements", "Serving Size"))
    if (["M", "mM", "oz/gal"].indexOf(s.resultUnits) < 0)
        rows.push(QT_TRANSLATE_NOOP("TranslationListElements", "Sample Mol. Wt."))
    rows.push(QT_TRANSLATE_NOOP("TranslationListElements", "Sample Amount"))
    if (mkaDensityCondition(unitIndex, s.sampleAmount))
        rows.push(QT_TRANSLATE_NOOP("TranslationListElements", "Sample Density"))
    rows = rows.concat([QT_TRANSLATE_NOOP("TranslationListElements", "Total Solution Volume"),
                        QT_TRANSLATE_NOOP("TranslationListElements", "Max Total Titrant Volume"),
                        QT_TRANSLATE_NOOP("TranslationListElements", "Blank Conc. Required"),
                        QT_TRANSLATE_NOOP("TranslationListElements", "MKA Process Control")])
    if (s.processControl === "User Defined")
        rows = rows.concat(mkaProcessRows)
    rows = rows.concat([QT_TRANSLATE_NOOP("TranslationListElements", "Precision Level"),
                        QT_TRANSLATE_NOOP("TranslationListElements", "Pre-stir Duration"),
                        QT_TRANSLATE_NOOP("TranslationListElements", "Stir Speed"),
                        QT_TRANSLATE_NOOP("TranslationListElements", "Sample ID")])
    if (s.sampleID === "Auto-Incremental")
        rows.push(QT_TRANSLATE_NOOP("TranslationListElements", "Auto-Incremental Prefix"))
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
        return QT_TRANSLATE_NOOP("TranslationListElements", " Reaction Ratio value can't be blank!")
    if (massUnits.indexOf(t.resultUnits) >= 0 && !(t.sampleMolecularWeight > 0))
        return QT_TRANSLATE_NOOP("TranslationListElements", " Sample Weight value can't be blank!")
    var variable = t.sampleAmount === "Variable Weight" || t.sampleAmount === "Variable Volume"
    if (!variable && !(t.sampleAmountValue > 0))
        return QT_TRANSLATE_NOOP("TranslationListElements", " Sample Amount value can't be blank!")
    if (isWeight(t.sampleAmount) && !(t.sampleDensity > 0))
        return QT_TRANSLATE_NOOP("TranslationListElements", " Sample Density value can't be blank!")
    return ""
}
