import QtQuick 2.12
import "RunOffers.js" as RunOffers

// The offers between a finished setup (or a pre-check) and the run: calibrate
// the sensor, standardise the titrant, then the pre-check. `origin` is the
// page the chain started from: the pre-check follows it, or is it.
QtObject {
    id: chain

    property var origin: null

    function methodState() {
        return { electrodeType: electrode.electrodeType, displayUnits: titration.displayUnits,
                 lastCalibration: method.lastCalibration, lastStandardization: method.lastStandardization,
                 concInputMode: titrant.concInputMode }
    }

    // The offer of `step` (1 calibration, 2 titrant) or, with none due, the pre-check.
    function offerFrom(step) {
        var next = RunOffers.nextOffer(methodState(), step)
        if (next === "calibrate") {
            mainWindow.transitionToPopup(titration10)
        } else if (next === "standardize") {
            mainWindow.transitionToPopup(titration13)
        } else {
            if (mainWindow.currentPopup)
                mainWindow.hidePopup()
            toPreCheck()
        }
    }

    // After the save offer, the method saved or not.
    function start() {
        origin = titrationStack.currentItem
        titration15.isFromRepeatButton = false
        offerFrom(1)
    }

    // The calibration of the method's electrode, recorded as the method's.
    function calibrate(electrodeName) {
        if (mainWindow.currentPopup)
            mainWindow.hidePopup()
        method.calibratedElectrodeName = electrodeName
        dm.deviceMode = "Calibration"
        dm.isCalibrationFromMeasurement = false
        dm.initiateCalibrationModelFromTitration()
        dynamicLoader.loadElectrodeCalibration()
        mc.qmlStartCalibration()
    }

    function standardize() {
        if (mainWindow.currentPopup)
            mainWindow.hidePopup()
        dm.blankTitrationMode = false
        dm.deviceMode = "Standardization"
        startTitrationFullscreen.setCycleModelValue()
        dynamicLoader.loadTitrantStandardization()
    }

    // No standardisation: the nominal concentration stands in.
    function declineStandardization() {
        titrant.titrantConcentrationValue = titrant.nominalConc
        titrant.setTitrantSetupValues(electrode.electrodeType, false)
        mainWindow.hidePopup()
        toPreCheck()
    }

    // The concentration typed in place of a standardisation: the titrant
    // becomes one of a concentration entered by hand.
    function enterConcentration() {
        mainWindow.hidePopup()
        var unit = titrant.nominalConc_Unit === "mM" ? "mM" : "M"
        titrant.concInputMode_manualEntry = titrant.nominalConc
        entryPage.openEntry("concInputMode" + unit, function () {
            titrant.concInputMode = "Manual Entry"
            titrant.concInputMode_Unit = unit
            titrant.setTitrantSetupValues(electrode.electrodeType, true)
            chain.toPreCheck()
        })
    }

    function inStack(stack, page) {
        return page !== null && stack.find(function (item) { return item === page }) !== null
    }

    // The pre-check of home's stack: back to it when it is below, else on
    // top of the page the chain started from.
    function toPreCheck() {
        mainWindow.resetProcessIndex()
        titrationPreCheck.changeHeaderButtonText()
        if (inStack(titrationStack, titrationPreCheck)) {
            titrationStack.pop(titrationPreCheck)
        } else {
            if (inStack(titrationStack, origin))
                titrationStack.pop(origin)
            titrationStack.push(titrationPreCheck)
        }
        sideBar.resetBackButton()
    }
}
