import QtQuick 2.12

// The titration page of the working method opened outside the wizard: the
// rows and rules of the wizard's titration page. With onlySetup its button
// stores the titration ("Save"); without, it stores it and goes on to the
// pre-check of the run.
Titration06 {
    property string multipleOptionsOrigin: "phTitrationDynamic"
    property bool onlySetup: false

    nextText: onlySetup ? qsTr("Save") + ls.translatedText : qsTr("Next") + ls.translatedText

    function refresh() {
        loadModelData()
        mainWindow.titrationChanged()
    }

    function nextAction() {
        setSampleAmountValue()
        wizardFlow.finishSetup(false, onlySetup)
    }
}
