import QtQuick 2.12

// The option lists of the screens in one translation context. No page
// shows this item: the pages keep the English texts and show them through
// qsTr(element).
Item {
    // Index of each list for setModel().
    readonly property var models: [stirSpeedModel, titrationTechniqueModel, processControlModel, concInputModeModel,
                                   amountModel, blankRequiredModel, sampleIdModel, displayUnitsModel, bufferGroupModel,
                                   electrodeTypeModel, directMeasureUnitsModel]

    function setModel(modelIndex) {
        return models[modelIndex]
    }

    ListModel {
        id: stirSpeedModel
        ListElement { element: qsTr("No Stirring") }
        ListElement { element: qsTr("Very Slow") }
        ListElement { element: qsTr("Slow") }
        ListElement { element: qsTr("Medium") }
        ListElement { element: qsTr("Fast") }
        ListElement { element: qsTr("Very Fast") }
    }
    ListModel {
        id: titrationTechniqueModel
        ListElement { element: qsTr("Preset End Pt.") }
        ListElement { element: qsTr("Equivalence Pt.") }
        ListElement { element: qsTr("Multiple Known Addition") }
    }
    ListModel {
        id: processControlModel
        ListElement { element: qsTr("Routine") }
        ListElement { element: qsTr("Quick") }
        ListElement { element: qsTr("Careful") }
        ListElement { element: qsTr("User Defined") }
    }
    ListModel {
        id: concInputModeModel
        ListElement { element: qsTr("Manual Entry") }
        ListElement { element: qsTr("Standardization") }
    }
    ListModel {
        id: amountModel
        ListElement { element: qsTr("Fixed Volume") }
        ListElement { element: qsTr("Variable Volume") }
        ListElement { element: qsTr("Fixed Weight") }
        ListElement { element: qsTr("Variable Weight") }
    }
    ListModel {
        id: blankRequiredModel
        ListElement { element: qsTr("No") }
        ListElement { element: qsTr("Fixed") }
        ListElement { element: qsTr("Variable") }
    }
    ListModel {
        id: sampleIdModel
        ListElement { element: qsTr("None") }
        ListElement { element: qsTr("Auto-Incremental") }
        ListElement { element: qsTr("Manual") }
    }
    ListModel {
        id: displayUnitsModel
        ListElement { element: qsTr("pH") }
        ListElement { element: qsTr("mV") }
    }
    ListModel {
        id: bufferGroupModel
        ListElement { element: qsTr("USA") }
        ListElement { element: qsTr("DIN") }
    }
    ListModel {
        id: electrodeTypeModel
        ListElement { element: qsTr("pH") }
        ListElement { element: qsTr("Redox") }
        ListElement { element: qsTr("ISE-Titration") }
        ListElement { element: qsTr("ISE-MKA") }
    }
    ListModel {
        id: directMeasureUnitsModel
        ListElement { element: qsTr("ppm") }
        ListElement { element: qsTr("Molar") }
        ListElement { element: qsTr("mg/L") }
        ListElement { element: qsTr("%") }
        ListElement { element: qsTr("ppb") }
        ListElement { element: qsTr("None") }
    }
}
