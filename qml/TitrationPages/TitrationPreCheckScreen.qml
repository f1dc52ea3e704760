import QtQuick 2.12
import "../Background"
import "../Buttons"
import "../Constants/Colors.js" as Colors
import "RunOffers.js" as RunOffers

// The last look before a titration: the method's electrode and its
// calibration, the titrant and its standardisation, the burette, the
// sample; then the start (through the sample id and amount popups the
// method asks for), a blank, a standardisation or a calibration.
MainContentBackground {
    id: page
    objectName: "Titration Pre-Check"

    // The pre-check of the Methods section (a picked method) rather than of home.
    property bool inMethodStack: false
    // The pre-check inside the titration's process stack, after the
    // titration's setup page: the run only, no calibration or standardisation.
    property bool inProcessStack: false
    // Reached by repeating the last titration (which offers Standardize and Calibrate).
    readonly property bool isFromRepeatButton: titration15.isFromRepeatButton
    readonly property bool startAllowed: !(titration.titrationType === "Back Titration"
                                           && titration.reagentAmount === "Back Blank Titration"
                                           && titration.blankConcentration == 0)
    readonly property bool standardised: method.lastStandardization !== ""

    function changeHeaderButtonText() {
        var t = electrode.electrodeType
        header3Text = (t === "pH" ? qsTr("pH Titration | Pre-Check")
                     : t === "Redox" ? qsTr("Redox Titration | Pre-Check")
                     : t === "ISE-MKA" ? qsTr("MKA Titration | Pre-Check")
                     : qsTr("ISE Titration | Pre-Check")) + ls.translatedText
    }

    function titrantConcText() {
        // A known-addition standard is given with its own unit.
        if (electrode.electrodeType === "ISE-MKA")
            return mainWindow.sigFigsDec(titrant.titrantConcentrationValue, 4, 5) + " " + titrant.titrantConcentration
        if (titrant.concInputMode === "Manual Entry")
            return mainWindow.sigFigsDec(titrant.concInputMode_manualEntry, 4, 5) + " " + titrant.concInputMode_Unit
        return mainWindow.sigFigsDec(titrant.titrantConcentrationValue, 4, 5) + " " + titrant.resultUnits
    }


    // The lines of the check, with what the user should know about each.
    function checkLines() {
        var lines = []
        var calibrated = method.lastCalibration !== ""
        lines.push({ name: qsTr("Electrode"), value: electrode.electrodeName + " (" + electrode.electrodeType + ")",
                     note: titration.displayUnits === "mV" ? "" : calibrated ? qsTr("Calibrated") + " " + displayValues.formatCalibrationDate(method.lastCalibration)
                                                                             : qsTr("Not calibrated: calibrating the sensor is strongly encouraged.") })
        var standardisation = titrant.concInputMode === "Manual Entry" ? qsTr("Entered by hand")
                            : standardised ? qsTr("Standardized") + " " + displayValues.formatCalibrationDate(method.lastStandardization)
                            : qsTr("Not standardized: the nominal concentration is used.")
        lines.push({ name: qsTr("Titrant"), value: titration01.titrantShownName() + "  " + titrantConcText(), note: standardisation })
        lines.push({ name: qsTr("Burette"), value: setup.buretteSize + " mL",
                     note: RunOffers.exceedsBurette(titration.maxTotalTitrantVolume, setup.buretteSize) ? qsTr("The method may dispense more than the burette holds; it refills between doses.") : "" })
        var sample = titration.sampleAmount.indexOf("Variable") === 0 ? qsTr("asked at the start")
                   : titration.sampleAmountValue + (titration.sampleAmount.indexOf("Weight") >= 0 ? " g" : " mL")
        lines.push({ name: qsTr("Sample"), value: sample,
                     note: titration.sampleID === "None" ? "" : qsTr("Sample Id") + ": " + (titration.sampleID === "Manual" ? qsTr("asked at the start") : titration.sampleIDValue) })
        return lines
    }

    // The start as the method asks: sample id, sample amount, then the run.
    function startPressed() {
        if (!startAllowed)
            return
        if (inMethodStack) {
            dm.getStandardizedFetch(method.id)
            if (titrant.concInputMode !== "Manual Entry" && dm.isStandardizedVal === false) {
                titrant.titrantConcentrationValue = titrant.nominalConc
                titrant.concInputMode_Unit = titrant.nominalConc_Unit
                titrant.setTitrantSetupValues(electrode.electrodeType, false)
            }
            if (titration.blankRequired !== "Fixed" && titration.blankRequired !== "Manual Entry")
                titration.blankRequiredValue = 0
            mainWindow.fromHomeStack = false
        }
        dm.blankTitrationMode = false
        dm.deviceMode = "Titration"
        startTitrationFullscreen.setCycleModelValue()
        if (titration.sampleID === "Manual") {
            manualSampleIdPopup.ask()
            return
        }
        afterSampleId()
    }

    // The chain after the sample id: the reagent's weight, the sample
    // amount, or the run itself.
    function afterSampleId() {
        if (titration.reagentWeightType === "Variable Weight")
            variablereagentweightPopup.ask()
        else
            afterReagent()
    }

    function afterReagent() {
        var amount = titration.sampleAmount
        if (amount === "Variable Weight" || amount === "Variable Volume")
            variableSampleAmountPopup.ask(amount === "Variable Volume", 0, true)
        else
            dynamicLoader.loadTitration()
    }

    function runBlank() {
        dm.blankTitrationMode = true
        if (titration.titrationType === "Back Titration") {
            dm.titrationModel.titrationType = "Back Blank"
        } else {
            titration.blankRequiredValue = 9999
            dm.titrationModel.titrationType = "Direct Blank"
        }
        dynamicLoader.loadTitration()
    }

    function standardize() {
        offerChain.origin = page
        dm.blankTitrationMode = false
        dm.deviceMode = "Standardization"
        startTitrationFullscreen.setCycleModelValue()
        dynamicLoader.loadTitrantStandardization()
    }

    // The method's own calibration of its electrode.
    function calibrate() {
        offerChain.origin = page
        calibrationSuccessPopop.fromHomeCalibrationButton = false
        offerChain.calibrate(inMethodStack ? method.electrodeSetupModel.electrodeName : electrode.electrodeName)
    }

    // The buttons stand where they belong from the first frame on show, so a
    // tap at once lands on the button it aims at.
    onVisibleChanged: if (visible) { changeHeaderButtonText(); checkList.model = checkLines(); buttonFlow.forceLayout() }

    Column {
        id: checkColumn
        x: 20
        y: 12
        width: parent.width - 40
        spacing: 6
        Text {
            width: parent.width
            elide: Text.ElideRight
            text: method.methodName
            color: Colors.deeptangaroaColor
            font.pixelSize: 19
            font.weight: Font.Medium
        }
        Repeater {
            id: checkList
            Rectangle {
                width: checkColumn.width
                height: modelData.note !== "" ? noteText.y + noteText.implicitHeight + 8 : 32
                color: "transparent"
                Text { text: modelData.name; color: Colors.slateColor; font.pixelSize: 15; width: 90 }
                Text {
                    x: 96
                    width: parent.width - 96
                    elide: Text.ElideRight
                    text: modelData.value
                    color: Colors.deeptangaroaColor
                    font.pixelSize: 16
                }
                Text {
                    id: noteText
                    x: 96
                    y: 22
                    width: parent.width - 96
                    wrapMode: Text.WordWrap
                    visible: modelData.note !== ""
                    text: modelData.note
                    color: modelData.note.indexOf(qsTr("Not")) === 0 || modelData.note.indexOf(qsTr("The method")) === 0
                           ? Colors.orangepeelColor : Colors.slateColor
                    font.pixelSize: 13
                }
            }
        }
        Text {
            width: parent.width
            wrapMode: Text.WordWrap
            text: qsTr("Make sure the electrode is in your sample solution before pressing the start titration button below.") + ls.translatedText
            color: Colors.slateColor
            font.pixelSize: 14
        }
    }

    // Up to four buttons: a second line above when they do not fit beside
    // the tip corner.
    Flow {
        id: buttonFlow
        anchors.left: parent.left
        anchors.leftMargin: 20
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 20
        width: parent.width - 20 - 80
        spacing: 10
        PopupAlternateButton {
            id: runBlankButton
            objectName: "runBlankButton"
            width: 120
            visible: electrode.electrodeType !== "ISE-MKA"
                     && ((titration.titrationType === "Direct Titration" && titration.blankRequired === "Variable")
                         || (titration.titrationType === "Back Titration" && titration.reagentAmount === "Back Blank Titration"))
            text: qsTr("Run a Blank") + ls.translatedText
            onClicked: page.runBlank()
        }
        PopupAlternateButton {
            id: standardizeButton
            objectName: "standardizeButton"
            width: 130
            // the Methods section's pre-check offers it always (its setup page comes first)
            visible: !page.inProcessStack && (page.inMethodStack || (titrant.concInputMode !== "Manual Entry" && page.isFromRepeatButton))
            text: qsTr("Standardize") + ls.translatedText
            onClicked: page.standardize()
        }
        PopupAlternateButton {
            id: calibrateButton
            objectName: "calibrateButton"
            width: 120
            visible: !page.inProcessStack && (page.inMethodStack || (titration.displayUnits !== "mV" && page.isFromRepeatButton))
            text: qsTr("Calibrate") + ls.translatedText
            onClicked: page.calibrate()
        }
        PopupButton {
            id: startButton
            objectName: "startTitrationButton"
            width: 180
            visible: page.startAllowed
            enabled: page.startAllowed
            text: qsTr("Start Titration") + ls.translatedText
            onClicked: page.startPressed()
        }
    }
}
