import QtQuick 2.12

// The known-addition titration page of the working method opened outside the
// wizard: "Save" with onlySetup, otherwise "Run Titration" (the pre-check).
TitrationSetupMKA {
    property string multipleOptionsOrigin: "mkaTitrationDynamic"
    property bool onlySetup: false

    nextText: onlySetup ? qsTr("Save") + ls.translatedText : qsTr("Run Titration") + ls.translatedText

    function refresh() {
        loadModelData()
        mainWindow.titrationChanged()
    }

    function nextAction() {
        titration05.setCycleModelValue()
        setSampleAmountValue()
        wizardFlow.finishSetup(true, onlySetup)
    }
}
