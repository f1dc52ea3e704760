import QtQuick 2.12

// The titrant page of the working method opened outside the wizard: the rows
// and rules of the wizard's titrant page. With onlySetup its button stores
// the titrant ("Save"); without, it stores it and goes to the standardisation
// ("Standardize Titrant"), a button a typed-in concentration does not have.
Titration05 {
    property string multipleOptionsOrigin: "phTitrantDynamic"
    property bool onlySetup: false

    nextText: onlySetup ? qsTr("Save") + ls.translatedText : qsTr("Standardize Titrant") + ls.translatedText
    nextVisible: onlySetup || titrant.concInputMode !== "Manual Entry"

    function refresh() {
        loadModelData()
        mainWindow.titrantChanged()
    }

    function storeTitrant() {
        setCycleModelValue()
        setStandAmountValue()
    }

    function saveAction() {
        storeTitrant()
        titrant.setTitrantSetupValues(electrode.electrodeType, true)
        wizardFlow.setupSaved()
    }

    // The concentration is found anew: 1 until the standardisation stores it.
    function standardizeAction() {
        storeTitrant()
        method.titrantConcentration = 1
        titrant.setTitrantSetupValues(electrode.electrodeType, true)
        wizardFlow.standardizeFromSetup()
    }

    function nextAction() {
        if (onlySetup)
            saveAction()
        else
            standardizeAction()
    }
}
