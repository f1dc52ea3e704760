import QtQuick 2.12

// Creates the popups that exist only while shown (each is destroyed when it
// closes) and opens the process stacks: calibration (processIndex 2),
// titrant standardisation (1), titration (0).
Item {
    id: loader

    property var successPopup: null
    readonly property var showLabels: ["Measurement Saved", "Cycle Stopped", "Method Updated",
                                       "Installation Date Saved", "Burette Size Changed"]

    // Creates the popup of `file` with its model; null when it cannot be made.
    function create(file, title, message, name) {
        var component = Qt.createComponent(file)
        if (component.status !== Component.Ready) {
            console.log("Error:", component.errorString())
            return null
        }
        var popup = component.createObject(mainWindow, { visible: false })
        if (!popup) {
            console.log("Error:", component.errorString())
            return null
        }
        popup.loadModel(title, message, name)
        return popup
    }

    // Opens a process stack on the section on show, with its flags; the page
    // on show is where the process comes back to.
    function openProcess(stack, index, skipSetup, onlySetup) {
        mainWindow.lastPageInCurrentStack = mainWindow.currentStack.currentItem
        stack.skipSetup = skipSetup
        if (onlySetup !== undefined)
            stack.onlySetup = onlySetup
        if (stack.mkaType !== undefined)
            stack.mkaType = isMka()
        mainWindow.currentDynamicContent = stack
        mainWindow.processIndex = index
    }
    function pushProcess(stack) {
        mainWindow.currentStack.push(stack)
        sideBar.resetBackButton()
    }

    // The calibration stack: at its first point, at the electrode's setup
    // page that goes on to it, or at the setup page that only saves.
    function openCalibration(skipSetup, onlySetup) {
        var stack = electrodeCalibrationProcessStack
        openProcess(stack, 2, skipSetup, onlySetup)
        stack.start()
        if (!skipSetup) {
            stack.currentItem.reInitializeUI()
            stack.currentItem.loadModelData()
        }
        pushProcess(stack)
    }
    function loadElectrodeCalibration() { openCalibration(true, false) }
    function loadElectrodeCalibrationWithSetup() { openCalibration(false, false) }
    function loadElectrodeSetup() { openCalibration(false, true) }

    // The titrant's and the titration's stacks at their setup pages.
    function openSetup(stack, index, onlySetup) {
        openProcess(stack, index, false, onlySetup)
        stack.fromDynamicLoader = true
        stack.initStack()
        stack.loadModel()
        pushProcess(stack)
    }
    function loadTitrantSetup() { openSetup(titrantStandardizationProcessStack, 1, true) }
    function loadTitrantStandardizationWithSetup() { openSetup(titrantStandardizationProcessStack, 1, false) }
    function loadTitrationSetup() { openSetup(titrationProcessStack, 0, true) }
    function loadTitrationWithSetup() { openSetup(titrationProcessStack, 0, false) }

    // The standardisation of the current method's titrant: its pre-check,
    // inside the stack when its setup page is on show, else a stack of its own.
    function loadTitrantStandardization() {
        var stack = titrantStandardizationProcessStack
        if (mainWindow.currentStack.currentItem === stack && mainWindow.processIndex === 1) {
            stack.pushPreCheck()
            return
        }
        openProcess(stack, 1, true)
        stack.initStack()
        pushProcess(stack)
    }

    function loadTitrationValidationPopUp(title, message, name) {
        var popup = create("../TitrationPages/TitrationValidationPopUp.qml", title, message, name)
        if (popup)
            mainWindow.showPopup(popup)
        return popup
    }

    function loadNotificationPopUp(title, message, name) {
        var popup = create("../Popup/NotificationPopUp.qml", title, message, name)
        if (popup)
            mainWindow.showPopup(popup)
        return popup
    }

    function loadSuccessPopUp(title, message, name) {
        var popup = create("../TitrationPages/Titration09.qml", title, message, name)
        if (!popup)
            return null
        successPopup = popup
        if (showLabels.indexOf(popup.label) >= 0 || (popup.label === "Method Saved" && mainWindow.currentStack === methodStack))
            mainWindow.showPopup(popup)
        else
            mainWindow.transitionToPopup(popup)
        timer.restart()
        return popup
    }

    // The run screen of the current method's titration, from the page on show.
    function loadTitration() {
        mainWindow.processIndex = 0
        mainWindow.lastPageInCurrentStack = mainWindow.currentStack.currentItem
        mainWindow.showFullscreenOn(startTitrationFullscreen)
    }

    function isMka() { return electrode.electrodeType === "ISE-MKA" }

    // After the success popup's 3 seconds, by its label.
    function callbc() {
        var label = successPopup ? successPopup.label : ""
        if (label === qsTr("Method Deleted")) {
            methodStack.pop()
            methodStack.pop()
            titration21.populateModel()
        } else if (label === qsTr("Method Saved") && mainWindow.currentStack === methodStack) {
            mainWindow.hidePopup()
            methodStack.pop()
            return
        } else if (label === qsTr("Method Saved")) {
            // A setup kept as a method on its way to the run.
            successPopup = null
            offerChain.start()
            return
        }
        if (mainWindow.currentPopup === successPopup)
            mainWindow.hidePopup()
        successPopup = null
    }

    Timer {
        id: timer
        interval: 3000
        onTriggered: loader.callbc()
    }
}
