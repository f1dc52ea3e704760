import QtQuick 2.12
import "WizardRows.js" as WizardRows

// The ends of the method wizard. From the Methods section the new method is
// named and saved ("Create Method"); a stored method being edited is written
// over in place; from home the setup is kept and the save offer comes up
// before the run.
QtObject {
    id: flow

    function reInitializeWizard() {
        var pages = [titration04, titration05, titration06, titrantSetupMka, titrationSetupMka]
        for (var i = 0; i < pages.length; ++i)
            pages[i].reInitializeUI()
    }

    // The first refusal of a finished titration page, shown; false if any.
    function check(mka) {
        var message = WizardRows.finishCheck({ reactionRatio: titration.reactionRatio, resultUnits: titration.resultUnits,
                                               sampleMolecularWeight: titration.sampleMolecularWeight,
                                               sampleAmount: titration.sampleAmount,
                                               sampleAmountValue: titration.sampleAmountValue,
                                               sampleDensity: titration.sampleDensity }, mka)
        if (message === "")
            return true
        dynamicLoader.loadTitrationValidationPopUp(qsTr("Error") + ls.translatedText, qsTr(message) + ls.translatedText, "")
        return false
    }

    function setSampleIdValuePopup() {
        if (titration.sampleID === "Manual")
            titration.sampleIDValue = ""
    }

    function saveParts() {
        electrode.setElectrodeSetupValues()
        titrant.setTitrantSetupValues(electrode.electrodeType, true)
        return titration.setTitrationSetupValues(electrode.electrodeType)
    }

    function methodUpdated() {
        dynamicLoader.loadSuccessPopUp(qsTr("Method Updated") + ls.translatedText,
                                       method.methodName + qsTr(" - has been saved with your new settings.") + ls.translatedText, "")
    }

    // The end of a setup page opened on its own (onlySetup): back to where
    // it was opened from, the method updated.
    function setupSaved() {
        mainWindow.currentStack.pop()
        mainWindow.processIndex = -1
        methodUpdated()
    }

    // From the titrant page of the working method to the standardisation's
    // pre-check; its summary comes back to where the page was opened from.
    function standardizeFromSetup() {
        var back = mainWindow.lastPageInCurrentStack
        titrationPreCheck.standardize()
        mainWindow.lastPageInCurrentStack = back
    }

    // The end of a titration page of the working method opened outside the
    // wizard: stored and back (onlySetup), or stored and on to the pre-check.
    function finishSetup(mka, onlySetup) {
        if (!check(mka))
            return
        setSampleIdValuePopup()
        if (onlySetup) {
            titration.setTitrationSetupValues(electrode.electrodeType)
            setupSaved()
            return
        }
        electrode.setElectrodeSetupValues()
        titrant.setTitrantSetupValues(electrode.electrodeType, false)
        titration.setTitrationSetupValues(electrode.electrodeType)
        startTitrationFullscreen.setCycleModelValue()
        mainWindow.fromHomeStack = false
        titrationProcessStack.pushPreCheck()
    }

    function finish(mka) {
        if (!check(mka))
            return
        if (mainWindow.currentStack === methodStack) {
            titration24.openCreate()
            return
        }
        mainWindow.fromHomeStack = false
        titration.setTitrationSetupValues(electrode.electrodeType)
        setSampleIdValuePopup()
        mainWindow.offerSaveMethod()
    }
}
