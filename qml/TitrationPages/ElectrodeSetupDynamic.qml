import QtQuick 2.12

// The electrode page of the working method opened outside the wizard: the
// rows and rules of the wizard's electrode page. With onlySetup its button
// stores the setup and goes back ("Save"); without, it stores the electrode
// and starts its calibration.
Titration04 {
    property string multipleOptionsOrigin: "electrodeDynamic"
    property bool onlySetup: true

    nextText: onlySetup ? qsTr("Save") + ls.translatedText : qsTr("Next") + ls.translatedText

    // A new electrode type resets the titrant and titration as in the wizard,
    // so all three parts are written, not the electrode alone.
    function saveAction() {
        setMkaTitrantNameDefault()
        mainWindow.setEndPointUnits()
        wizardFlow.saveParts()
        wizardFlow.setupSaved()
    }

    // The calibration of the method's electrode, recorded as the method's.
    function calibrateAction() {
        electrode.setElectrodeSetupValues()
        method.calibratedElectrodeName = electrode.electrodeName
        dm.deviceMode = "Calibration"
        dm.isCalibrationFromMeasurement = false
        dm.initiateCalibrationModelFromTitration()
        electrodeCalibrationProcessStack.calibrateFromSetup()
        mc.qmlStartCalibration()
    }

    function nextAction() {
        if (onlySetup)
            saveAction()
        else
            calibrateAction()
    }
}
