import QtQuick 2.12
import "../Constants/Colors.js" as Colors
import "../Constants/Icons.js" as Icons
import "../Buttons"

// The left navigation column: back, then the six sections. Section indexes:
// 0 home, 1 settings, 2 logs, 3 methods, 4 burette, 5 measure.
Rectangle {
    id: sideBar

    property int currentStackIndex: 0
    property int previousStackIndex: 0
    // The section asked for while a calibration waited for confirmation.
    property int selectedStackIndex: -1
    readonly property var stateNames: ["", "settings", "logs", "methods", "burette", "measure"]

    width: 90
    height: 480
    color: Colors.deeptangaroaColor

    function stacks() {
        return [titrationStack, settingsStack, logStack, methodStack, buretteStack, measureStack]
    }
    function buttons() {
        return [homeButton, settingsButton, eventLogButton, methodsButton, buretteButton, measureButton]
    }

    function switchToHome(forced) { switchTo(0, forced) }
    function switchToSettings(forced) { switchTo(1, forced) }
    function switchToLogs(forced) { switchTo(2, forced) }
    function switchToMethods(forced) { switchTo(3, forced) }
    function switchToBurette(forced) { switchTo(4, forced) }
    function switchToMeasure(forced) { switchTo(5, forced) }
    function switchToIndex(index, forced) { switchTo(index, forced) }

    function checkProcessStatus() {
        return mainWindow.processIndex === 2 && mainWindow.currentDynamicContent !== null
                && mainWindow.currentDynamicContent.processRunning === true
    }

    // False when a running calibration must be confirmed first.
    function checkIsForced(forced, index) {
        if (!forced && checkProcessStatus()) {
            selectedStackIndex = index
            mainWindow.presentConfirmation()
            return false
        }
        return true
    }

    function switchTo(index, forced) {
        // Deletions pending in the method list are carried out on any tap here.
        titration21.methodListView.deleteSelected()
        if (!checkIsForced(forced === true, index))
            return
        if (index !== 5 && mainWindow.measureMode) {
            mainWindow.measureMode = false
            tc.qmlStopMeasure()
        }
        var stack = stacks()[index]
        if (stack === mainWindow.currentStack) {
            switchToFirstPage()
            return
        }
        if (index === 4)
            burette01.loadModelData()
        resetButtons()
        buttons()[index].iconState = "Selected"
        if (index === 0) {
            mainWindow.currentStack = stack
            currentStackIndex = index
        }
        if (stack.depth > 1)
            stack.pop(null)
        if (index === 2) {
            log01.eraseModelData()
            dm.startLogFetch("TITRATION")
            dm.startLogFetch("STANDARDIZATION")
            dm.startLogFetch("CALIBRATION")
            dm.startLogFetch("MEASUREMENT")
        }
        mainWindow.currentStack = stack
        currentStackIndex = index
        sideBar.state = stateNames[index]
        switchIndicatorColor()
        resetBackButton()
        updateSidebarSwitch()
        if (index === 2)
            log01.noDataLogScreen.visible = !dm.checkDB()
        else if (index === 3)
            titration21.populateModel()
        else if (index === 5) {
            directMeasure.setMeasureReadModeDropdownOptions()
            startMeasureTimer.start()
        }
    }

    // The section already on show: back to its first page.
    function switchToFirstPage() {
        var stack = mainWindow.currentStack
        if (stack.depth > 1)
            stack.pop(null)
        backButton.iconState = "Inactive"
        if (stack === titrationStack)
            titration01.updateUI()
        switchIndicatorColor()
    }

    function resetButtons() {
        var all = buttons()
        for (var i = 0; i < all.length; ++i) {
            all[i].iconState = "Active"
            all[i].enabled = true
        }
        previousStackIndex = currentStackIndex
        mainWindow.previousStack = mainWindow.currentStack
    }

    function switchIndicatorColor() {
        var onHome = mainWindow.currentStack === titrationStack && titrationStack.currentItem === titration01
        indicator.color = onHome ? Colors.deeptangaroaColor : Colors.whiteSmokeColor
    }

    function resetBackButton() {
        var stack = mainWindow.currentStack
        backButton.iconState = (stack && stack.depth > 1) || mainWindow.processIndex >= 0 ? "Active" : "Inactive"
    }

    // The new section shows, the one left hides (the slide of the original
    // design lasts 0 ms, so it is a plain switch).
    function updateSidebarSwitch() {
        var all = stacks()
        for (var i = 0; i < all.length; ++i)
            all[i].visible = all[i] === mainWindow.currentStack
    }

    // After "Cancel Calibration": back to the page the process was opened
    // from, then on to the section that was asked for.
    function resetAndSwitchStack() {
        if (mainWindow.lastPageInCurrentStack && mainWindow.currentStack)
            mainWindow.currentStack.pop(mainWindow.lastPageInCurrentStack)
        var index = selectedStackIndex
        mainWindow.resetProcessIndex()
        if (index >= 0)
            switchTo(index, true)
        selectedStackIndex = -1
    }

    Timer {
        id: startMeasureTimer
        interval: 200
        onTriggered: {
            // A calibration opened in the meantime keeps the meter.
            if (!mainWindow.measureMode && mainWindow.processIndex !== 2) {
                measure01.loadStirButton()
                tc.qmlStartMeasure()
                mainWindow.measureMode = true
            }
        }
    }

    Rectangle {
        id: indicator
        anchors.right: parent.right
        width: 3
        height: parent.height
        color: Colors.deeptangaroaColor
    }

    Column {
        anchors.top: parent.top
        anchors.topMargin: 8
        spacing: 2

        SidebarButton {
            id: backButton
            glyph: Icons.back
            iconState: "Inactive"
            onClicked: mainWindow.backButtonAction()
        }
        Rectangle {
            width: 70
            height: 1
            x: 10
            color: Colors.lightelephantColor
        }
        SidebarButton {
            id: homeButton
            glyph: Icons.home
            iconState: "Selected"
            onClicked: sideBar.switchToHome(false)
        }
        SidebarButton {
            id: settingsButton
            glyph: Icons.settings
            onClicked: sideBar.switchToSettings(false)
        }
        SidebarButton {
            id: eventLogButton
            glyph: Icons.logs
            onClicked: sideBar.switchToLogs(false)
        }
        SidebarButton {
            id: methodsButton
            glyph: Icons.methods
            onClicked: sideBar.switchToMethods(false)
        }
        SidebarButton {
            id: buretteButton
            glyph: Icons.burette
            onClicked: sideBar.switchToBurette(false)
        }
        SidebarButton {
            id: measureButton
            glyph: Icons.measure
            onClicked: sideBar.switchToMeasure(false)
        }
    }
}
