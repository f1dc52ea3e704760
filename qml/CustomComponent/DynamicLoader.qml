import QtQuick 2.12

// Creates the popups that exist only while shown (each is destroyed when it
// closes) and, as the process pages come in, opens the process stacks.
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

    // Opens the calibration stack on the section on show, at its first page.
    function loadElectrodeCalibration() {
        var stack = electrodeCalibrationProcessStack
        mainWindow.lastPageInCurrentStack = mainWindow.currentStack.currentItem
        stack.start()
        mainWindow.currentDynamicContent = stack
        mainWindow.processIndex = 2
        mainWindow.currentStack.push(stack)
        sideBar.resetBackButton()
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

    // The standardisation of the current method's titrant, from the page on show.
    function loadTitrantStandardization() {
        mainWindow.processIndex = 1
        mainWindow.lastPageInCurrentStack = mainWindow.currentStack.currentItem
        mainWindow.currentStack.push(titration14)
    }

    // The setup pages of the working method, opened from the page on show,
    // which the standardisation's summary comes back to. A known-addition
    // electrode has its own titrant and titration pages.
    function openSetupPage(setupPage) {
        mainWindow.lastPageInCurrentStack = mainWindow.currentStack.currentItem
        setupPage.loadModelData()
        mainWindow.currentStack.push(setupPage)
    }
    function isMka() { return electrode.electrodeType === "ISE-MKA" }
    function loadElectrodeSetup() { openSetupPage(electrodeSetupOnly) }
    function loadElectrodeCalibrationWithSetup() { openSetupPage(electrodeSetupDynamic) }
    function loadTitrantSetup() { openSetupPage(isMka() ? titrantSetupMkaOnly : titrantSetupOnly) }
    function loadTitrantStandardizationWithSetup() { openSetupPage(isMka() ? titrantSetupMkaDynamic : titrantSetupDynamic) }
    function loadTitrationSetup() { openSetupPage(isMka() ? titrationSetupMkaOnly : titrationSetupOnly) }
    function loadTitrationWithSetup() { openSetupPage(isMka() ? titrationSetupMkaDynamic : titrationSetupDynamic) }

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
