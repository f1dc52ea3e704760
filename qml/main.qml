import QtQuick 2.12
import QtQuick.Controls 2.12
import QtQuick.Controls.Material 2.12
import QtQuick.Window 2.12
import QtQuick.VirtualKeyboard 2.1
import QtQuick.VirtualKeyboard.Settings 2.2
import "Constants/Colors.js" as Colors
import "Constants/Paths.js" as Paths
import "Constants/Strings.js" as Strings
import "Constants/NumberFormat.js" as NumberFormat
import "Constants/Temperature.js" as Temperature
import "Constants/NamePatterns.js" as NamePatterns
import "Background"
import "Constants"
import "BurettePages"
import "CustomComponent"
import "LogPages"
import "MeterPages"
import "Popup"
import "ReportPages"
import "SettingsPages"
import "Setup"
import "TitrationPages"

// The one window of the instrument: six section stacks beside the side bar,
// the full-screen layer of the run screens, the popup frame, the first-start
// stack, the keyboard, the tips, and the functions the back end calls.
// Later layers cover earlier ones.
ApplicationWindow {
    id: mainWindow

    property alias settingsStack: settingsStack
    property alias logStack: logStack
    property alias methodStack: methodStack
    property alias buretteStack: buretteStack
    property alias measureStack: measureStack
    property var currentStack: null
    property var previousStack: null
    property int currentStackDepth: currentStack ? currentStack.depth : 0
    readonly property var paths: Paths
    readonly property var colors: Colors
    readonly property var strings: Strings
    property var currentPopup: null
    property var nextPopup: null
    // Popups asked for while one is on show wait here, first come first shown.
    property var popupQueue: []
    property var currentFullscreen: null
    property var currentEdit: null
    property int yValue: 0
    property bool isHomeTitrationButton: false
    property bool measureMode: false
    property int processIndex: -1
    property var currentDynamicContent: null
    property var lastPageInCurrentStack: null
    property bool fromHomeStack: false
    property string tapToTextString: qsTr("Tap to enter text") + ls.translatedText
    property var format: regexExp()
    property var formatNum: regexExpNum()
    property int itemClicked: 0

    width: 640
    height: 480
    visible: true
    title: "Vantor Pro V400"
    color: Colors.deeptangaroaColor
    font.family: "Roboto"
    Material.theme: Material.Light
    Material.accent: Colors.summerSkyColor

    onCurrentStackChanged: tips.dismiss()
    onCurrentStackDepthChanged: tips.dismiss()

    // ---- fonts and style --------------------------------------------------
    FontLoader { id: robotoLight; source: "assets/Fonts/roboto.light.ttf" }
    FontLoader { id: robotoRegular; source: "assets/Fonts/roboto.regular.ttf" }
    FontLoader { id: robotoMedium; source: "assets/Fonts/roboto.medium.ttf" }
    FontLoader { id: robotoBold; source: "assets/Fonts/roboto.bold.ttf" }
    FontLoader { id: materialIcons; source: "assets/Fonts/materialicons.regular.ttf" }
    QtObject {
        id: appstyle
        readonly property QtObject font: QtObject {
            readonly property string familyRegular: robotoRegular.name
            readonly property string familyBold: robotoBold.name
            readonly property string familyMedium: robotoMedium.name
            readonly property string familyLight: robotoLight.name
        }
    }

    // ---- name patterns, number and temperature helpers --------------------
    function regexExp() { return NamePatterns.userName() }
    function regexExpNum() { return NamePatterns.identifier(setup.language) }
    function leftPad(number, targetLength) { return NumberFormat.leftPad(number, targetLength) }
    function celciousTfahrenhite(c) { return Temperature.celciousTfahrenhite(c) }
    function fahrenhiteTcelcious(f) { return Temperature.fahrenhiteTcelcious(f) }
    function sigFigs(n, sig) { return NumberFormat.sigFigs(n, sig) }
    function sigFigsDec(n, sig, dec) { return NumberFormat.sigFigsDec(n, sig, dec) }
    function convertFloatResToInt(resolutionAsFloat) { return NumberFormat.convertFloatResToInt(resolutionAsFloat) }
    function formatFloat(value) { return value.toFixed(titrant.checkDecimal(value)) }
    function resetProcessIndex() { processIndex = -1 }

    // The first row of a ListModel whose translated element equals the translated text.
    function indexOfElementIn(element, model) {
        for (var i = 0; i < model.count; ++i) {
            if (qsTr(model.get(i).element) === qsTr(element))
                return i
        }
        return -1
    }

    function updateStirSpeed(name) {
        var speeds = ["No Stirring", "Very Slow", "Slow", "Medium", "Fast", "Very Fast"]
        var index = speeds.indexOf(name)
        if (index >= 0)
            dm.qmlStirSpeed = index
        tc.qmlSetStirSpeed(dm.qmlStirSpeed)
    }

    function setEndPointUnits() {
        var unit = electrode.electrodeType == "pH" ? "pH" : "mV"
        titrant.endPoint_Unit = unit
        titration.displayUnits = unit
    }

    // ---- popups -----------------------------------------------------------
    function presentPopup(popup) {
        // The tip is about the page; a modal popup takes its place.
        tips.dismiss()
        popupFrame.visible = true
        currentPopup = popup
        popup.visible = true
    }

    // A popup asked for while another is on show waits for it to close.
    function showPopup(popup) {
        if (!popup)
            return
        if (currentPopup && currentPopup.visible && currentPopup !== popup) {
            if (popupQueue.indexOf(popup) < 0)
                popupQueue.push(popup)
            return
        }
        presentPopup(popup)
    }

    function closePopup(popup) {
        if (!popup)
            return
        popup.visible = false
        if (popup.isDynamic === true)
            popup.destroy()
    }

    // Shows the next waiting popup; false when none waits.
    function showQueuedPopup() {
        while (popupQueue.length > 0) {
            var next = popupQueue.shift()
            if (next) {
                presentPopup(next)
                return true
            }
        }
        return false
    }

    function hidePopup() {
        var closing = currentPopup
        currentPopup = null
        closePopup(closing)
        if (!showQueuedPopup())
            popupFrame.visible = false
    }

    function hideSinglePopup(popup) {
        popupFrame.visible = false
        closePopup(popup)
        currentPopup = null
        showQueuedPopup()
    }

    // Chained popups: the frame stays, the next replaces the one on show.
    function transitionToPopup(popup) {
        var closing = currentPopup
        nextPopup = popup
        if (closing !== popup)
            closePopup(closing)
        presentPopup(popup)
    }

    // A message for the user, from the back end or a page (one "OK" button).
    function showMessage(title, message) {
        dynamicLoader.loadTitrationValidationPopUp(title, message, "")
    }

    // ---- full-screen layer ------------------------------------------------
    // The run screens start their first cycle as they open.
    function showFullscreenOn(view) {
        // The screen hidden last is reset first, should its fade still be on.
        if (fullscreenHideTimer.running) {
            fullscreenHideTimer.stop()
            resetFullscreen()
        }
        currentFullscreen = view
        fullscreenContainer.visible = true
        fullscreenContainer.enabled = true
        view.visible = true
        if (view === titrantStandardization) {
            dm.deviceMode = "Standardization"
            view.start()
            updateStirSpeed(titrant.stirSpeed)
        } else if (view === startTitrationFullscreen) {
            dm.deviceMode = "Titration"
            if (electrode.electrodeType === "ISE-MKA") {
                view.mkaPageReset(view.cycleIndex <= 1)
                view.startMkaTitration()
            } else {
                view.start()
            }
            updateStirSpeed(titration.stirSpeed)
        }
        fullscreenContainer.opacity = 1
        fullscreenContainer.scale = 1
    }

    // The screen going away takes no more taps while it fades.
    function hideFullscreen() {
        fullscreenContainer.enabled = false
        fullscreenContainer.opacity = 0
        fullscreenContainer.scale = 0.85
        fullscreenHideTimer.start()
    }

    function resetFullscreen() {
        if (currentFullscreen) {
            currentFullscreen.visible = false
            currentFullscreen.resetPage()
        }
        fullscreenContainer.visible = false
    }

    // The end of the wizard from home: the offer to keep the setup as a method.
    function offerSaveMethod() {
        showPopup(titration07)
    }

    // ---- back, cancel, section helpers -------------------------------------
    function backButtonAction() {
        if (currentEdit && currentEdit.focus)
            currentEdit.focus = false
        var skipPop = false
        if ((processIndex === 0 || processIndex === 1) && currentDynamicContent && currentDynamicContent.depth === 1)
            resetProcessIndex()
        if (processIndex === 2) {
            if (currentDynamicContent.depth === 1) {
                resetProcessIndex()
            } else if (currentDynamicContent.processRunning) {
                currentDynamicContent.resetProcessForBackButton()
                skipPop = true
            } else {
                processIndex = 1
            }
        }
        if (!skipPop) {
            if (processIndex >= 0) {
                if (processIndex === 0 && !fromHomeStack)
                    currentStack.pop()
                else
                    currentDynamicContent.pop(currentDynamicContent.initialItem)
            } else {
                currentStack.pop()
                display01.loadModelData()
            }
        }
        sideBar.resetBackButton()
        sideBar.switchIndicatorColor()
        Qt.inputMethod.hide()
    }

    function presentConfirmation() {
        if (processIndex === 2) {
            processDestroyConfirmationPopup.processName = "Calibration"
            processDestroyConfirmationPopup.setTitle = qsTr("Cancelling Calibration") + ls.translatedText
            processDestroyConfirmationPopup.setMessage = qsTr("Are you sure you want to cancel calibration? Your current buffers will not be saved") + ls.translatedText
            showPopup(processDestroyConfirmationPopup)
        }
    }

    function skipToHome() {
        titrationStack.visible = true
        sideBar.visible = true
        sideBar.switchIndicatorColor()
        setupStack.visible = false
    }

    // The language of the settings for every text and for the keyboard.
    function changeKeyboardLanguage() {
        ls.updateLanguage(setup.language)
        VirtualKeyboardSettings.locale = ls.keyboardLocale(setup.language)
    }

    // Finish of the first start: home fades in under the setup pages.
    function finishFirstStart() {
        titrationStack.visible = true
        sideBar.visible = true
        sideBar.switchIndicatorColor()
        transitionToHome.start()
    }

    // ---- slots the back end calls -----------------------------------------
    function titrationCompleted() {
        console.log("titrationCompleted Slot")
        tc.qmlStopTitration()
        if (currentFullscreen)
            currentFullscreen.titrationCompleted()
    }
    function newPoint(point) {
        if (currentFullscreen)
            currentFullscreen.addPointToChart(point)
    }
    function stableCalibration() {
        if (dm.deviceMode === "Measurement")
            measure01.stableMeasurement()
        else if (currentDynamicContent)
            currentDynamicContent.stableCalibration()
    }
    function unStableCalibration() {
        if (dm.deviceMode === "Measurement")
            measure01.unStableMeasurement()
        else if (currentDynamicContent)
            currentDynamicContent.unStableCalibration()
    }
    function stopQmlCalibration() {
        tc.qmlStopStirrer()
        if (currentDynamicContent)
            currentDynamicContent.stopCalibration()
    }
    function showSlopeError() {
        exportImportErrorPopUp.changeText(7)
        showPopup(exportImportErrorPopUp)
    }
    function qmlDispenseCompleted() { burette01.dispenseCompleted() }
    function qmlDispenseWait() { burette01.dispenseWait() }
    function qmlRinseCompleted() { burette01.rinseCompleted() }
    function usbStatusChanged() {
        if (currentStack !== titrationStack || titrationStack.currentItem !== titration01)
            return
        if (rm.usbIsReady)
            usbTime.start()
    }
    function exportQueryError(errMsg, iserr) {
        if (iserr === true)
            dynamicLoader.loadTitrationValidationPopUp("Error", errMsg, "")
        else
            currentStack.pop()
    }
    function calibrationNotificationQmlSlot(etype) {
        var due = qsTr("Calibration due time interval has been reached without a calibration being performed - perform a calibration on the electrode.") + ls.translatedText
        var full = qsTr("You are nearing the maximum amount of saved data points. Press Ignore to automatically overwrite data points. Press View Log for other options including exporting the data log.") + ls.translatedText
        var viewLog = qsTr("View Log") + ls.translatedText
        var kinds = {
            1: [qsTr("pH Calibration Due"), due, "", false],
            2: [qsTr("Redox Calibration Due"), due, "", false],
            3: [qsTr("ISE Calibration Due"), due, "", false],
            4: [qsTr("Titration Log Full"), full, viewLog, false],
            5: [qsTr("Titrant Log Full"), full, viewLog, true],
            6: [qsTr("Titration Log Full"), full, viewLog, true],
            7: [qsTr("Measurement Log Full"), full, viewLog, true],
            8: [qsTr("Calibration Log Full"), full, viewLog, true],
            9: [qsTr("Maintenance due"), qsTr("Maintenance due time interval has been reached - perform any required maintenance on the instrument.") + ls.translatedText, "", false]
        }
        var kind = kinds[Number(etype)]
        if (!kind) {
            console.log("Notification of unknown type", etype)
            return
        }
        if (kind[3] && typeof setup.startBeep === "function")
            setup.startBeep()
        dynamicLoader.loadNotificationPopUp(kind[0], kind[1], kind[2])
    }
    function logSaved() {
        dynamicLoader.loadSuccessPopUp(qsTr("Measurement Saved") + ls.translatedText,
                                       qsTr("Your measurement has been saved") + ls.translatedText, "")
    }
    function qmlSoftwareUpdateCompleted(successful) {
        console.log("Software update completed:", successful)
        if (!softwareProgressPopUp.visible)
            return
        if (successful === true)
            hidePopup()
        else
            softwareProgressPopUp.swUpdateCloseButton.visible = true
    }
    function qmlShowSoftwareUpdateWarning() {
        showPopup(softwareUpdatePopup)
    }
    function electrodeChanged() {
        if (currentStack !== measureStack && currentStack !== methodStack)
            electrode.isElectrodeChanged = true
    }
    function titrantChanged() {
        if (currentStack !== measureStack && currentStack !== methodStack)
            titrant.isTitrantChanged = true
    }
    function titrationChanged() {
        if (currentStack !== measureStack && currentStack !== methodStack)
            titration.isTitrationChanged = true
    }

    // ---- tips, version page, screenshot -----------------------------------
    function handleTipAction() {
        if (!currentStack || !currentStack.currentItem)
            return
        var page = currentStack.currentItem
        if (page.objectName === "processStack")
            page = page.currentItem
        if (page && page.hasInfo)
            tips.presentTipsFor(page.objectName)
    }

    function openVersionPage() {
        if (setup.instrumentName !== "PtQrBenchHandy" && setup.instrumentName !== "Kestrum Tester")
            return
        dm.getLoadedMspVersion()
        rm.refreshIpAddress()
        rm.playNotify()
        versionPopup.visible = true
    }

    function screenshotTapped() {
        itemClicked += 1
        if (itemClicked < 6)
            return
        itemClicked = 0
        if (rm.usbIsReady && reportController.handleScreenShotImage()) {
            screenshotClicker.enabled = false
            screenshotconfirmation.start()
        } else {
            screenShotConfirmPopup.changeText(5)
            showPopup(screenShotConfirmPopup)
        }
    }

    Timer {
        id: fullscreenHideTimer
        interval: 120
        onTriggered: mainWindow.resetFullscreen()
    }
    Timer {
        id: usbTime
        interval: 1000
        // A disk with methods on it offers to install them.
        onTriggered: {
            if (rm.methodImport() && method.importedMethodCount > 0)
                mainWindow.showPopup(usbDetectionPopUp)
        }
    }
    Timer {
        id: screenshotconfirmation
        interval: 1000
        onTriggered: {
            screenShotConfirmPopup.changeText(19)
            mainWindow.showPopup(screenShotConfirmPopup)
            screenshotClicker.enabled = true
        }
    }

    // ---- 1. hidden pages and helpers ---------------------------------------
    DynamicLoader { id: dynamicLoader }
    DisplayValues { id: displayValues }
    TranslationListElements { id: listElements }
    WizardFlow { id: wizardFlow }
    OfferChain { id: offerChain }
    // The method wizard's pages, pushed on the stack of the section on show.
    Item {
        visible: false
        Titration04 { id: titration04; visible: false }
        Titration05 { id: titration05; visible: false }
        Titration06 { id: titration06; visible: false }
        TitrantSetupMKA { id: titrantSetupMka; visible: false }
        TitrationSetupMKA { id: titrationSetupMka; visible: false }
        UserDefinedProcessControll { id: userDefinedProcessControll; visible: false }
        EntryPage { id: entryPage; visible: false }
        MultipleOptionsPage { id: multipleOptionsPage; visible: false }
        Titration24 { id: titration24; visible: false }
    }

    // ---- 2. the six section stacks -----------------------------------------
    CustomStackView {
        id: titrationStack
        initialItem: titration01
        visible: false
        Component.onCompleted: mainWindow.currentStack = titrationStack
        onCurrentItemChanged: {
            sideBar.resetBackButton()
            sideBar.switchIndicatorColor()
        }
        Titration01 { id: titration01; visible: false }
        Titration03 { id: titration03; visible: false }
        TitrationPreCheckScreen { id: titrationPreCheck; visible: false }
        TitrationSummary { id: titrationSummaryPage; visible: false }
        StandardizationSummary { id: standardizationSummary; visible: false }
    }
    CustomStackView {
        id: settingsStack
        initialItem: settings01
        onCurrentItemChanged: sideBar.resetBackButton()
        Settings01 { id: settings01; visible: false }
        Display01 { id: display01; visible: false }
        DisplayBrightnessSettings { id: dispBrightPage; visible: false }
        InstrumentNameSettings { id: insNamePage; visible: false }
        DateSettings { id: dateSettingsPage; visible: false }
        TimeHoursDisplay { id: timeHourPage; visible: false }
        LanguageSettings { id: langSettingsPage; visible: false }
        TemperatureSettings { id: tempSettingsPage; visible: false }
        TemperatureCurrentSettings { id: tempCurSettingsPage; visible: false }
        Settings_Notifications { id: settingsNotifications; visible: false }
        Diagnostics_Notif_CalibrationDue { id: notifCalibrationDue; visible: false }
        Diagnostics_Notif_MaintenanceDue { id: notifMaintenanceDue; visible: false }
        Settings_FilesandInfo { id: settingsFilesandInfo; visible: false }
        Settings_FilesInfo_Firmware { id: settingsFilesInfoFirmware; visible: false }
        DiagnosticsSettings { id: diagnosticsSettings; visible: false }
        Diagnostics_FactoryReset { id: diagnosticsFactoryReset; visible: false }
        Diagnostics_FactoryReset01 { id: diagnosticsFactoryReset01; visible: false }
    }
    CustomStackView {
        id: logStack
        initialItem: log01
        onCurrentItemChanged: sideBar.resetBackButton()
        Log01 { id: log01; visible: false }
        NoDataLogScreen { id: nodataLogScreen; visible: false }
        TitrationLog { id: titrationLog; visible: false }
        TitrantLog { id: titrantLog; visible: false }
        CalibrationLog { id: calibrationLog; visible: false }
        MeasureLog { id: measureLog; visible: false }
        LogEntrySummary { id: logEntrySummary; visible: false }
        ExportLogScreen { id: exportLogScreen; visible: false }
        ExportLogScreen { id: printLogScreen; printLog: true; visible: false }
        ExportDateRange { id: exportDateRange; visible: false }
    }
    CustomStackView {
        id: methodStack
        initialItem: titration21
        onCurrentItemChanged: sideBar.resetBackButton()
        Titration21 { id: titration21; visible: false }
        MethodPrecheck { id: methodPrecheck; visible: false }
        TempTableView { id: titration22; visible: false }
    }
    CustomStackView {
        id: buretteStack
        initialItem: burette01
        onCurrentItemChanged: sideBar.resetBackButton()
        Burette01 { id: burette01; visible: false }
        BuretteDispenseVolume { id: buretteDispenseVolume; visible: false }
        BuretteInstallationDate { id: buretteInstallationDate; visible: false }
    }
    CustomStackView {
        id: measureStack
        initialItem: measure01
        onCurrentItemChanged: {
            if (measureStack.visible && measureStack.depth === 1)
                tc.qmlStartMeasure()
            else
                tc.qmlStopMeasure()
            sideBar.resetBackButton()
        }
        MeasureReadmode { id: measure01; visible: false }
        DirectMeasure { id: directMeasure; visible: false }
    }
    // The process stacks, pushed onto the section that opens them; the
    // working method's setup pages (the wizard's pages opened on their own)
    // live in them.
    ElectrodeCalibrationProcessStack {
        id: electrodeCalibrationProcessStack
        visible: false
        ElectrodeSetupDynamic { id: electrodeSetupDynamic; onlySetup: false; visible: false }
        ElectrodeSetupDynamic { id: electrodeSetupOnly; visible: false }
    }
    TitrantStandardizationProcessStack {
        id: titrantStandardizationProcessStack
        TitrantSetupDynamic { id: titrantSetupDynamic; visible: false }
        TitrantSetupDynamic { id: titrantSetupOnly; onlySetup: true; visible: false }
        TitrantSetupMkaDynamic { id: titrantSetupMkaDynamic; visible: false }
        TitrantSetupMkaDynamic { id: titrantSetupMkaOnly; onlySetup: true; visible: false }
        Titration14 { id: titration14; visible: false }
    }
    TitrationProcessStack {
        id: titrationProcessStack
        TitrationSetupDynamic { id: titrationSetupDynamic; visible: false }
        TitrationSetupDynamic { id: titrationSetupOnly; onlySetup: true; visible: false }
        TitrationSetupMkaDynamic { id: titrationSetupMkaDynamic; visible: false }
        TitrationSetupMkaDynamic { id: titrationSetupMkaOnly; onlySetup: true; visible: false }
        TitrationPreCheckScreen { id: titrationPrecheckDynamic; inProcessStack: true; visible: false }
    }

    // ---- 3. side bar -------------------------------------------------------
    SideBar {
        id: sideBar
        visible: false
    }

    // ---- 4. full-screen layer of the run screens ----------------------------
    Rectangle {
        id: fullscreenContainer
        anchors.fill: parent
        color: "transparent"
        opacity: 0
        scale: 0.85
        visible: false
        StartTitrationScreen { id: startTitrationFullscreen }
        StartTitrationScreen { id: titrantStandardization; standardization: true }
    }

    // ---- 5. popup frame ----------------------------------------------------
    Rectangle {
        id: popupFrame
        anchors.fill: parent
        color: "#1f2d36"
        opacity: 0.96
        visible: false
        // A tap beside the popup keeps it, but for the question before a
        // process is cancelled, where it means "Go Back".
        MouseArea {
            anchors.fill: parent
            onClicked: {
                if (mainWindow.currentPopup === processDestroyConfirmationPopup)
                    mainWindow.hidePopup()
                // The update's progress only once it has ended in a failure.
                if (mainWindow.currentPopup === softwareProgressPopUp && softwareProgressPopUp.swUpdateCloseButton.visible)
                    mainWindow.hidePopup()
            }
        }
        Item { id: popupContainer; anchors.fill: parent }

        ExportImportErrorPopUp { id: exportImportErrorPopUp }
        ExportSummaryScreen { id: exportSummaryScreen }
        Titration07 { id: titration07 }
        Titration08 { id: titration08 }
        Titration10 { id: titration10 }
        Titration12 { id: titration12 }
        Titration13 { id: titration13 }
        Titration15 { id: titration15 }
        PasswordVerificationPopUp { id: passwordVerificationPopUp }
        Titration28 { id: titration28 }
        Titration26 { id: titration26 }
        InstallMethodsPopUp { id: installMethodsPopUp }
        USBDetectionPopUp { id: usbDetectionPopUp }
        InstallProgressPopUp { id: installProgressPopUp }
        InstallationCompletePopUp { id: installationCompletePopUp }
        SelectExportMethodsPopup { id: selectExportMethodsPopup }
        ExportinProgressPopUp { id: exportinProgressPopUp }
        ExportCompletePopUp { id: exportCompletePopUp }
        DeleteLogConfirmPopup { id: deleteConfirmPopUp }
        ProcessDestroyConfirmation { id: processDestroyConfirmationPopup }
        ManualSampleIdPopup { id: manualSampleIdPopup }
        VariableSampleAmountPopup { id: variableSampleAmountPopup }
        VariableStandardAmountPopup { id: variableStandardAmountPopup }
        VariableReagentWeightPopup { id: variablereagentweightPopup }
        CalibrationSuccessPopup { id: calibrationSuccessPopop }
        FPopup { id: softwareProgressPopUp }
        SWUpdatePopup { id: softwareUpdatePopup }
    }

    // ---- 7. first-start stack ----------------------------------------------
    // Made only while the first start is not done (Component.onCompleted).
    Loader {
        id: setupStack
        anchors.fill: parent
        active: false
        source: "Setup/FirstStartStack.qml"
    }
    // The first start's last page fades out over home, then goes.
    SequentialAnimation {
        id: transitionToHome
        NumberAnimation { target: setupStack; property: "opacity"; to: 0; duration: 300 }
        ScriptAction {
            script: {
                setupStack.visible = false
                setupStack.opacity = 1
                setupStack.active = false
            }
        }
    }

    // ---- 8. keyboard -------------------------------------------------------
    InputPanel {
        id: inputPanel
        z: 99
        x: 0
        y: mainWindow.height
        width: mainWindow.width
        onActiveChanged: {
            if (!active && mainWindow.currentEdit)
                mainWindow.currentEdit.focus = false
        }
        states: State {
            name: "visible"
            when: inputPanel.active
            PropertyChanges { target: inputPanel; y: mainWindow.height - inputPanel.height }
        }
    }

    // ---- 9. version page, busy popup, tips ---------------------------------
    VersionPopup { id: versionPopup }
    PopupWithBusyIndicator { id: busy_popup }
    // The report flow's popups: records found, the outcome, "USB is not ready".
    // During an export of steps its progress popup shows the work, and the
    // page that started it tells the outcome once all steps have run.
    Connections {
        target: reportController
        function onShowPopupMultiInput(popupState, logCount, fileName) {
            if (!exportinProgressPopUp.visible)
                busy_popup.showPopupMultiInput(popupState, logCount, fileName)
        }
        function onDismissPopup(popupState) {
            if (!exportinProgressPopUp.visible)
                busy_popup.dismissPopup(popupState)
        }
    }
    Tips { id: tips }

    // ---- 10. tip hot spot ---------------------------------------------------
    MouseArea {
        id: tipsClickReceiver
        // Off under the keyboard, and over the run screens (they carry their
        // tip's mark in their header; the corner would take Complete's taps).
        enabled: !inputPanel.active && !(fullscreenContainer.visible && fullscreenContainer.opacity > 0)
        width: 64
        height: 64
        anchors.right: parent.right
        anchors.rightMargin: 13
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 16
        onClicked: mainWindow.handleTipAction()
    }

    // ---- 11. screenshot ------------------------------------------------------
    ExportImportErrorPopUp { id: screenShotConfirmPopup }
    MouseArea {
        id: screenshotClicker
        x: 600
        y: 0
        width: 40
        height: 70
        onClicked: mainWindow.screenshotTapped()
    }

    Component.onCompleted: {
        console.log("Main :: AppLoaded ", dm.titrationQMLVersion, dm.titrationQMLCoreVersion)
        // The one window takes the input focus (the splash had it): the
        // keyboard follows its focused field, the number keys for a number.
        requestActivate()
        if (setup.isDataUpdated) {
            skipToHome()
            changeKeyboardLanguage()
        } else {
            console.log("settings are not loaded")
            setupStack.active = true
            // A first start switched off after its first step goes on in the
            // language it chose, keyboard included.
            if (setup.language !== "")
                changeKeyboardLanguage()
        }
    }
}
