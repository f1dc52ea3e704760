import QtQuick 2.12

// The known-addition titrant page of the working method opened outside the
// wizard: "Save" with onlySetup, otherwise "Standardize Titrant".
TitrantSetupMKA {
    property string multipleOptionsOrigin: "mkaTitrantDynamic"
    property bool onlySetup: false

    nextText: onlySetup ? qsTr("Save") + ls.translatedText : qsTr("Standardize Titrant") + ls.translatedText

    function nextAction() {
        titration05.setCycleModelValue()
        titrant.setTitrantSetupValues(electrode.electrodeType, true)
        if (onlySetup)
            wizardFlow.setupSaved()
        else
            wizardFlow.standardizeFromSetup()
    }
}
