.pragma library
// The method report: the rows the report output reads in order (keys "1"
// to "103"), each naming where its value comes from, and the objects those
// values come from. Sources: 0 filled in by the report output, 1 electrode,
// 2 titrant, 3 titration, 5 the instrument's settings, 6 values composed
// here (dates, the calibration, the blank).

// heading, source, value key, decimals (-1 text, 4 significant figures,
// 7 the electrode's decimals), unit key
var table = [
    ["Titrator Model", 0], ["Serial Number", 0], ["Software Rev.", 0], ["Titrator Name", 5, "instrumentName"],
    ["Report Date", 0], ["Report Time", 0], ["Method Name", 0], ["Method Edited", 6, "methodEdited"],
    ["Electrode Type", 1, "electrodeType"], ["Electrode Name", 1, "electrodeName"], ["Resolution", 1, "resolution"],
    ["Buffer Group", 1, "bufferGroup"], ["ISE Type", 1, "iseType"], ["Measure Units", 1, "directMeasureUnit"],
    ["Calibrate Log #", 6, "calibrationId"], ["Calibrate Date", 6, "calibrationDate"], ["Calibrate Time", 6, "calibrationTime"],
    ["Slope Value", 6, "slope"], ["Offset Value", 6, "offset"],
    ["Titrant Name", 2, "titrantName"], ["Titrant ID", 2, "titrantID"], ["Titrant Input M", 2, "concInputMode"],
    ["Conc. Value", 2, "concInputMode_manualEntry", 4, "concInputMode_Unit"],
    ["Titrant N Conc.", 2, "nominalConc", 4, "nominalConc_Unit"],
    ["Titrant A Conc.", 2, "titrantConcentration_Value", 4, "nominalConc_Unit"],
    ["StandardizeDate", 6, "standardizeDate"], ["StandardizeTime", 6, "standardizeTime"],
    ["Titer Ratio", 2, "titerRatio", 3], ["Titrant Conc.", 3, "titrantConcentration", 4, "resultUnits"],
    ["Titrant In Date", 6, "titrantDate"], ["Titrant In Time", 6, "titrantTime"],
    ["Stdz Technique", 2, "standTechnique"], ["Stdz Endpoints", 2, "noOfEndPoints"],
    ["Stdz EP 1", 2, "endPointsValues", 7, "endPoint_Unit"], ["Stdz EP 2", 2, "endPointsValueSecond", 7, "endPoint_Unit"],
    ["Stdz ResultUnit", 2, "resultUnits"], ["Stdz Rxn Ratio", 2, "standReactionRatio", 3],
    ["Standard Name", 2, "standardName"], ["Standard Amount", 2, "standAmount"],
    ["Standard Amount Value", 2, "standAmount_Value", 3, "standAmount_Unit"],
    ["Standard MW", 2, "standMolecularWeight", 3, "standMolecularWeight_Unit"],
    ["Standard Purity", 2, "standardPurity", 1, "standardPurity_Unit"],
    ["Standard Conc.", 2, "standConcentration", 4, "standConcentration_Unit"],
    ["Titrant MW", 2, "titrantMolecularWeight", 3, "titrantMolecularWeight_Unit"],
    ["Titrant Predose", 2, "preDoseTitrantVolume", 3, "preDoseTitrantVolume_Unit"],
    ["Titrant Max Vol", 2, "maxTotalVolume", 3, "maxTotalVolume_Unit"],
    ["Stdz Control", 2, "standProcessControl"], ["DE", 2, "deltaE", -1, "deltaE_Unit"],
    ["DVmin", 2, "deltaVmin", -1, "volume_Unit"], ["DVmax", 2, "deltaVmax", -1, "volume_Unit"],
    ["dE/dt", 2, "stabilityCriteria", -1, "dEdT_Unit"], ["tmin", 2, "tMin", -1, "time_Unit"], ["tmax", 2, "tMax", -1, "time_Unit"],
    ["Threshold", 2, "threshold"], ["Stdz Pre-stir", 2, "preStirDuration", -1, "preStirDuration_Unit"],
    ["Stdz Stir Speed", 2, "stirSpeed"],
    ["Titration Tech.", 3, "titrationTechnique"], ["Titration EP#", 3, "noOfEndPoints"],
    ["Titration EP 1", 3, "endPointValues", 7, "endPointValues_unit"],
    ["Titration EP 2", 3, "endPointValues_Second", 7, "endPointValues_unit"],
    ["Titration EP 3", 3, "endPointValues_Third", 7, "endPointValues_unit"],
    ["Titrate Display", 3, "displayUnits"], ["Titration Type", 3, "titrationType"], ["Blank Required", 3, "blankRequired"],
    ["Blank Value", 6, "blankRequiredValue", -1, "blank_Unit"], ["Blank In Date", 6, "blankDate"], ["Blank In Time", 6, "blankTime"],
    ["Titration Units", 3, "resultUnits"], ["Reaction Ratio", 3, "reactionRatio", 3],
    ["Rgnt Rxn Ratio", 3, "reagentReactionRatio", 3], ["Ttrnt Rxn Ratio", 3, "titrantReactionRatio", 3],
    ["Reagent Amount", 3, "reagentAmount"], ["Reagent Amount Value", 3, "reagentAmountValue", 3],
    ["Reagent MW", 3, "reagentMolecularWeight", 3], ["Reagent Purity", 3, "reagentPurity", 1],
    ["Reagent Weight", 3, "reagentWeight", 3], ["Reagent Volume", 3, "reagentVolume", 3],
    ["Reagent Conc.", 3, "reagentConcentration", 4],
    ["Sample Amount", 3, "sampleAmount"], ["Sample Amount Value", 3, "sampleAmountValue", 4, "sampleAmountValue_unit"],
    ["Sample MW", 3, "sampleMolecularWeight", 3], ["Sample Density", 3, "sampleDensity", 3],
    ["Total Sol. Vol.", 3, "totalSolutionVolume", 3, "volume_Unit"],
    ["Titrate Predose", 3, "preDoseTitrantVolume", 3, "volume_Unit"],
    ["Titrate Max Vol", 3, "maxTotalTitrantVolume", 3, "volume_Unit"],
    ["Process Control", 3, "titrationProcessControl"], ["DE", 3, "deltaE", -1, "deltaE_Unit"],
    ["DVmin", 3, "deltaVmin", -1, "volume_Unit"], ["DVmax", 3, "deltaVmax", -1, "volume_Unit"],
    ["dE/dt", 3, "stabilityCriteria", -1, "dEdT_Unit"], ["tmin", 3, "tMin", -1, "time_Unit"], ["tmax", 3, "tMax", -1, "time_Unit"],
    ["Titrate Threshold", 3, "threshold"], ["Titrate Prestir", 3, "preStirDuration", -1, "time_Unit"],
    ["Constant Increment", 3, "mkaProcessControlConstant", -1, "constantIncrement_unit"],
    ["Measurement Stability", 3, "mkaProcessControlMeasurement"],
    ["Tmin", 3, "mkaTmin"], ["Tmax", 3, "mkaTmax"], ["dVmin", 3, "mkaDVmin"], ["dVmax", 3, "mkaDVmax"],
    ["Precision Level", 3, "mkaProcessControlPrecision", -1, "precision_unit"],
    ["Titration Stir", 3, "stirSpeed"], ["Sample ID", 3, "sampleID"]
]

// The rows as the report output reads them; `tr` translates a heading.
function rows(tr) {
    var object = {}
    for (var i = 0; i < table.length; ++i) {
        var t = table[i]
        var row = { index: t[1], heading: tr ? tr(t[0]) : t[0], value: t[2] || "", unitValue: t[4] || "" }
        if (t[3] !== undefined && t[3] >= 0)
            row.digit = t[3]
        object[String(i + 1)] = row
    }
    return object
}

// The units the stored records leave implicit, added to a copy of each.
function withUnits(record, electrodeType, displayUnits) {
    var r = Object.assign({}, record)
    var potential = electrodeType === "pH" && displayUnits !== "mV" ? "pH" : "mV"
    r.volume_Unit = "mL"
    r.time_Unit = "s"
    r.deltaE_Unit = "mV"
    r.dEdT_Unit = "mV/s"
    r.endPointValues_unit = potential
    if (!r.endPoint_Unit)
        r.endPoint_Unit = potential
    if (!r.preStirDuration_Unit)
        r.preStirDuration_Unit = "s"
    r.sampleAmountValue_unit = String(r.sampleAmount || "").indexOf("Weight") >= 0 ? "g" : "mL"
    return r
}
