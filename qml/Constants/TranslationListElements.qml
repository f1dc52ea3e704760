import QtQuick 2.12

// The option lists of the screens in one translation context. The window
// holds the one instance (listElements); the pages take their lists from it,
// keep the English texts (stored and compared as they are) and show them
// through qsTr(element).
Item {
    visible: false
    // Index of each list for setModel().
    readonly property var models: [stirSpeedModel, titrationTechniqueModel, processControlModel, concInputModeModel, amountModel, blankRequiredModel, sampleIdModel, displayUnitsModel, bufferGroupModel, electrodeTypeModel, directMeasureUnitsModel, iseTypeModel, resolutionModel, titrantNameModel, titrantNameModelTwo, titrantConcentrationModel, titrantResultUnitsModel, standardNameModel, resultUnitsModel, resultUnitsModelTwo, sampleAmountModelTwo, reactionRatioModel, reagentAmountModel, reagentWeightModel, mkaBlankRequiredModel, numberOfEndpointsModel, titrationTypeModel]

    function setModel(modelIndex) {
        return models[modelIndex]
    }

    readonly property var byName: ({ stirSpeedModel: stirSpeedModel, titrationTechniqueModel: titrationTechniqueModel, processControlModel: processControlModel, concInputModeModel: concInputModeModel, amountModel: amountModel, blankRequiredModel: blankRequiredModel, sampleIdModel: sampleIdModel, displayUnitsModel: displayUnitsModel, bufferGroupModel: bufferGroupModel, electrodeTypeModel: electrodeTypeModel, directMeasureUnitsModel: directMeasureUnitsModel, iseTypeModel: iseTypeModel, resolutionModel: resolutionModel, titrantNameModel: titrantNameModel, titrantNameModelTwo: titrantNameModelTwo, titrantConcentrationModel: titrantConcentrationModel, titrantResultUnitsModel: titrantResultUnitsModel, standardNameModel: standardNameModel, resultUnitsModel: resultUnitsModel, resultUnitsModelTwo: resultUnitsModelTwo, sampleAmountModelTwo: sampleAmountModelTwo, reactionRatioModel: reactionRatioModel, reagentAmountModel: reagentAmountModel, reagentWeightModel: reagentWeightModel, mkaBlankRequiredModel: mkaBlankRequiredModel, numberOfEndpointsModel: numberOfEndpointsModel, titrationTypeModel: titrationTypeModel })

    // The English entries of the list of that name, as an array.
    function options(name) {
        return entries(byName[name])
    }

    function entries(model) {
        var out = []
        for (var i = 0; i < model.count; ++i)
            out.push(model.get(i).element)
        return out
    }


    ListModel {
        id: stirSpeedModel
        ListElement { element: QT_TR_NOOP("Very Slow") }
        ListElement { element: QT_TR_NOOP("Slow") }
        ListElement { element: QT_TR_NOOP("Medium") }
        ListElement { element: QT_TR_NOOP("Fast") }
        ListElement { element: QT_TR_NOOP("Very Fast") }
        ListElement { element: QT_TR_NOOP("No Stirring") }
    }
    ListModel {
        id: titrationTechniqueModel
        ListElement { element: QT_TR_NOOP("Equivalence Pt.") }
        ListElement { element: QT_TR_NOOP("Preset End Pt.") }
    }
    ListModel {
        id: processControlModel
        ListElement { element: QT_TR_NOOP("Routine") }
        ListElement { element: QT_TR_NOOP("Quick") }
        ListElement { element: QT_TR_NOOP("Careful") }
        ListElement { element: QT_TR_NOOP("User Defined") }
    }
    ListModel {
        id: concInputModeModel
        ListElement { element: QT_TR_NOOP("Manual Entry") }
        ListElement { element: QT_TR_NOOP("Standardization") }
    }
    ListModel {
        id: amountModel
        ListElement { element: QT_TR_NOOP("Fixed Weight") }
        ListElement { element: QT_TR_NOOP("Variable Weight") }
        ListElement { element: QT_TR_NOOP("Fixed Volume") }
        ListElement { element: QT_TR_NOOP("Variable Volume") }
    }
    ListModel {
        id: blankRequiredModel
        ListElement { element: QT_TR_NOOP("No") }
        ListElement { element: QT_TR_NOOP("Fixed") }
        ListElement { element: QT_TR_NOOP("Variable") }
    }
    ListModel {
        id: sampleIdModel
        ListElement { element: QT_TR_NOOP("None") }
        ListElement { element: QT_TR_NOOP("Auto-Incremental") }
        ListElement { element: QT_TR_NOOP("Manual") }
    }
    ListModel {
        id: displayUnitsModel
        ListElement { element: QT_TR_NOOP("pH") }
        ListElement { element: QT_TR_NOOP("mV") }
    }
    ListModel {
        id: bufferGroupModel
        ListElement { element: QT_TR_NOOP("USA") }
        ListElement { element: QT_TR_NOOP("DIN") }
    }
    ListModel {
        id: electrodeTypeModel
        ListElement { element: QT_TR_NOOP("pH") }
        ListElement { element: QT_TR_NOOP("Redox") }
        ListElement { element: QT_TR_NOOP("ISE-Titration") }
        ListElement { element: QT_TR_NOOP("ISE-MKA") }
    }
    ListModel {
        id: directMeasureUnitsModel
        ListElement { element: QT_TR_NOOP("ppm") }
        ListElement { element: QT_TR_NOOP("Molar") }
        ListElement { element: QT_TR_NOOP("mg/L") }
        ListElement { element: QT_TR_NOOP("%") }
        ListElement { element: QT_TR_NOOP("ppb") }
        ListElement { element: QT_TR_NOOP("None") }
    }
    ListModel {
        id: iseTypeModel
        ListElement { element: QT_TR_NOOP("Ammonia (NH3)") }
        ListElement { element: QT_TR_NOOP("Ammonium (NH4+)") }
        ListElement { element: QT_TR_NOOP("Bromide (Br-)") }
        ListElement { element: QT_TR_NOOP("Cadmium (Cd2+)") }
        ListElement { element: QT_TR_NOOP("Calcium (Ca2+)") }
        ListElement { element: QT_TR_NOOP("Carbon Dioxide (CO2)") }
        ListElement { element: QT_TR_NOOP("Chloride (Cl-)") }
        ListElement { element: QT_TR_NOOP("Chlorine (Cl2)") }
        ListElement { element: QT_TR_NOOP("Copper (Cu2+)") }
        ListElement { element: QT_TR_NOOP("Cyanide (CN-)") }
        ListElement { element: QT_TR_NOOP("Fluoride (F-)") }
        ListElement { element: QT_TR_NOOP("Fluoroborate (BF4-)") }
        ListElement { element: QT_TR_NOOP("Iodide (I-)") }
        ListElement { element: QT_TR_NOOP("Lead (Pb2+)") }
        ListElement { element: QT_TR_NOOP("Nitrate (NO3-)") }
        ListElement { element: QT_TR_NOOP("Potassium (K+)") }
        ListElement { element: QT_TR_NOOP("Silver (Ag+)") }
        ListElement { element: QT_TR_NOOP("Sodium (Na+)") }
        ListElement { element: QT_TR_NOOP("Sulfide (S2-)") }
        ListElement { element: QT_TR_NOOP("Surfactant") }
        ListElement { element: QT_TR_NOOP("Thiocyanate (SCN-)") }
        ListElement { element: QT_TR_NOOP("Monovalent Anion (X-)") }
        ListElement { element: QT_TR_NOOP("Monovalent Cation (X+)") }
        ListElement { element: QT_TR_NOOP("Divalent Anion (X2-)") }
        ListElement { element: QT_TR_NOOP("Divalent Cation (X2+)") }
    }
    ListModel {
        id: resolutionModel
        ListElement { element: QT_TR_NOOP("0.1") }
        ListElement { element: QT_TR_NOOP("0.01") }
        ListElement { element: QT_TR_NOOP("0.001") }
    }
    ListModel {
        id: titrantNameModel
        ListElement { element: QT_TR_NOOP("NaOH") }
        ListElement { element: QT_TR_NOOP("HCl") }
        ListElement { element: QT_TR_NOOP("H2SO4") }
        ListElement { element: QT_TR_NOOP("AgNO3") }
        ListElement { element: QT_TR_NOOP("EDTA") }
        ListElement { element: QT_TR_NOOP("HClO4") }
        ListElement { element: QT_TR_NOOP("I2") }
        ListElement { element: QT_TR_NOOP("KIO3") }
        ListElement { element: QT_TR_NOOP("KOH") }
        ListElement { element: QT_TR_NOOP("Na2S2O3") }
        ListElement { element: QT_TR_NOOP("User Defined") }
    }
    ListModel {
        id: titrantNameModelTwo
        ListElement { element: QT_TR_NOOP("Ammonia (NH3)") }
        ListElement { element: QT_TR_NOOP("Calcium (Ca+2)") }
        ListElement { element: QT_TR_NOOP("Carbon Dioxide (CO2)") }
        ListElement { element: QT_TR_NOOP("Chloride (Cl-)") }
        ListElement { element: QT_TR_NOOP("Fluoride (F-)") }
        ListElement { element: QT_TR_NOOP("Iodide (I-)") }
        ListElement { element: QT_TR_NOOP("Nitrate (NO3-)") }
        ListElement { element: QT_TR_NOOP("Potassium (K+)") }
        ListElement { element: QT_TR_NOOP("Sodium (Na+)") }
        ListElement { element: QT_TR_NOOP("Sodium Chloride (NaCl)") }
        ListElement { element: QT_TR_NOOP("User Defined") }
    }
    ListModel {
        id: titrantConcentrationModel
        ListElement { element: QT_TR_NOOP("mg/L") }
        ListElement { element: QT_TR_NOOP("M") }
        ListElement { element: QT_TR_NOOP("mM") }
    }
    ListModel {
        id: titrantResultUnitsModel
        ListElement { element: QT_TR_NOOP("M") }
        ListElement { element: QT_TR_NOOP("mM") }
    }
    ListModel {
        id: standardNameModel
        ListElement { element: QT_TR_NOOP("AgNO3") }
        ListElement { element: QT_TR_NOOP("Ascorbic Acid") }
        ListElement { element: QT_TR_NOOP("KCl") }
        ListElement { element: QT_TR_NOOP("KH(IO3)2") }
        ListElement { element: QT_TR_NOOP("KHP") }
        ListElement { element: QT_TR_NOOP("KIO3") }
        ListElement { element: QT_TR_NOOP("Na2S2O3") }
        ListElement { element: QT_TR_NOOP("NaCl") }
        ListElement { element: QT_TR_NOOP("THAM") }
        ListElement { element: QT_TR_NOOP("User Defined") }
    }
    ListModel {
        id: resultUnitsModel
        ListElement { element: QT_TR_NOOP("M") }
        ListElement { element: QT_TR_NOOP("mM") }
        ListElement { element: QT_TR_NOOP("mg/100mL") }
        ListElement { element: QT_TR_NOOP("mg/L") }
        ListElement { element: QT_TR_NOOP("g/100mL") }
        ListElement { element: QT_TR_NOOP("g/L") }
        ListElement { element: QT_TR_NOOP("ppm") }
        ListElement { element: QT_TR_NOOP("ppb") }
        ListElement { element: QT_TR_NOOP("oz/gal") }
        ListElement { element: QT_TR_NOOP("% w/v") }
        ListElement { element: QT_TR_NOOP("mol/kg") }
        ListElement { element: QT_TR_NOOP("mmol/kg") }
        ListElement { element: QT_TR_NOOP("mmol/g") }
        ListElement { element: QT_TR_NOOP("mg/100g") }
        ListElement { element: QT_TR_NOOP("mg/g") }
        ListElement { element: QT_TR_NOOP("mg/kg") }
        ListElement { element: QT_TR_NOOP("g/100g") }
        ListElement { element: QT_TR_NOOP("g/kg") }
        ListElement { element: QT_TR_NOOP("ppm by weight") }
        ListElement { element: QT_TR_NOOP("% w/w") }
        ListElement { element: QT_TR_NOOP("TAN") }
        ListElement { element: QT_TR_NOOP("TBN") }
        ListElement { element: QT_TR_NOOP("Consumption mmol") }
        ListElement { element: QT_TR_NOOP("F*Consumption mmol") }
    }
    ListModel {
        id: resultUnitsModelTwo
        ListElement { element: QT_TR_NOOP("M") }
        ListElement { element: QT_TR_NOOP("mM") }
        ListElement { element: QT_TR_NOOP("mg/100mL") }
        ListElement { element: QT_TR_NOOP("mg/L") }
        ListElement { element: QT_TR_NOOP("g/100mL") }
        ListElement { element: QT_TR_NOOP("g/L") }
        ListElement { element: QT_TR_NOOP("ppm") }
        ListElement { element: QT_TR_NOOP("ppb") }
        ListElement { element: QT_TR_NOOP("oz/gal") }
        ListElement { element: QT_TR_NOOP("% w/v") }
        ListElement { element: QT_TR_NOOP("%w/w") }
        ListElement { element: QT_TR_NOOP("ppm(w)") }
        ListElement { element: QT_TR_NOOP("mg/100g") }
        ListElement { element: QT_TR_NOOP("mg/g") }
        ListElement { element: QT_TR_NOOP("mg/serving") }
        ListElement { element: QT_TR_NOOP("mg") }
    }
    ListModel {
        id: sampleAmountModelTwo
        ListElement { element: QT_TR_NOOP("Fixed Volume") }
        ListElement { element: QT_TR_NOOP("Fixed Weight") }
        ListElement { element: QT_TR_NOOP("Variable Weight") }
        ListElement { element: QT_TR_NOOP("Serving No.") }
    }
    ListModel {
        id: reactionRatioModel
        ListElement { element: QT_TR_NOOP("Reagent Reaction Ratio") }
        ListElement { element: QT_TR_NOOP("Titrant Reaction Ratio") }
    }
    ListModel {
        id: reagentAmountModel
        ListElement { element: QT_TR_NOOP("Manual Calc.") }
        ListElement { element: QT_TR_NOOP("Manual Volume") }
        ListElement { element: QT_TR_NOOP("Manual Weight") }
        ListElement { element: QT_TR_NOOP("Back Blank Titration") }
    }
    ListModel {
        id: reagentWeightModel
        ListElement { element: QT_TR_NOOP("Fixed Weight") }
        ListElement { element: QT_TR_NOOP("Variable Weight") }
    }
    ListModel {
        id: mkaBlankRequiredModel
        ListElement { element: QT_TR_NOOP("No") }
        ListElement { element: QT_TR_NOOP("Manual Entry") }
    }
    ListModel {
        id: numberOfEndpointsModel
        ListElement { element: QT_TR_NOOP("1") }
        ListElement { element: QT_TR_NOOP("2") }
        ListElement { element: QT_TR_NOOP("3") }
    }
    ListModel {
        id: titrationTypeModel
        ListElement { element: QT_TR_NOOP("Direct Titration") }
        ListElement { element: QT_TR_NOOP("Back Titration") }
    }
}
