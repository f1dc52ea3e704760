import QtQuick 2.12
import "../Background"
import "../Buttons"
import "../Constants/Colors.js" as Colors
import "../CustomComponent"

// The home screen: the last titration, calibration and standardisation of
// the current method, the way to repeat it, to pick a saved method, or to
// set up a new titration.
MainContentBackground {
    id: page
    objectName: "Home"
    header3Text: qsTr("Home") + ls.translatedText

    readonly property bool changedSetup: electrode.isElectrodeChanged || titrant.isTitrantChanged
    readonly property bool hasHistory: dm.methodCount > 0 || method.lastTitration !== "" || method.lastStandardization !== ""
    property alias repeatLastTitrationButton: repeatLastTitrationButton

    // Refreshes the screen after a change of method or setup.
    function updateUI() {
        homeCalibrationLine.update()
        dm.getMethodsFromDB()
        lastTitrationLabels.visible = method.lastTitration !== "" && !changedSetup
    }

    function titrantShownName() {
        return titrant.titrantName === "User Defined" ? titrant.titrantName_userDefined : titrant.titrantName
    }

    // A stored stamp ("hh:mm AM | MM/dd/yyyy") by the settings' formats.
    function whenText(stamp) {
        return stamp ? displayValues.formatCalibrationDate(stamp) : ""
    }

    // Repeat (or run, after a change) the current method's titration.
    function repeatLastTitration() {
        startTitrationFullscreen.setCycleModelValue()
        mainWindow.fromHomeStack = false
        titrationPreCheck.changeHeaderButtonText()
        // Set first: the pre-check lays its buttons out as it shows.
        titration15.isFromRepeatButton = true
        titrationStack.push(titrationPreCheck)
        dbTimer.start()
    }

    // The entry to the new-setup road (the method wizard follows titration03).
    function startNewTitration() {
        titration15.isFromRepeatButton = false
        titrationStack.push(titration03)
    }

    // The last setup's parts, each opening its page of the working method:
    // the titration's goes on to the pre-check of a run, the titrant's to its
    // standardisation, the electrode's to its calibration.
    function tileTapped(tile) {
        if (tile === "titrationTile") {
            mainWindow.isHomeTitrationButton = true
            dynamicLoader.loadTitrationWithSetup()
        } else if (tile === "titrantTile") {
            dynamicLoader.loadTitrantStandardizationWithSetup()
        } else if (tile === "electrodeTile") {
            calibrationSuccessPopop.fromHomeCalibrationButton = true
            dynamicLoader.loadElectrodeCalibrationWithSetup()
        }
    }

    // A known-addition method has no end-point technique of its own: the
    // electrode's kind chooses its run, as the engine does.
    function techniqueShown() {
        return electrode.electrodeType === "ISE-MKA" ? qsTr("Multiple Known Addition") + ls.translatedText
                                                     : titration.titrationTechnique
    }

    function useSavedMethod() {
        sideBar.switchToMethods()
        methodStack.pop(titration21)
    }

    Timer {
        id: dbTimer
        interval: 500
        onTriggered: {
            electrode.setElectrodeSetupValues()
            titrant.setTitrantSetupValues(electrode.electrodeType, false)
            titration.setTitrationSetupValues(electrode.electrodeType)
        }
    }

    Component.onCompleted: updateUI()
    onVisibleChanged: if (visible) updateUI()

    Column {
        id: savedTitrationFrame
        objectName: "savedTitrationFrame"
        visible: page.hasHistory
        anchors.fill: parent
        anchors.margins: 20
        spacing: 10

        Rectangle {
            width: parent.width
            height: 112
            radius: 4
            color: Colors.whiteColor
            border.color: Colors.lineColor

            Column {
                id: lastTitrationLabels
                anchors.fill: parent
                anchors.margins: 12
                spacing: 4
                Text {
                    text: qsTr("Last Titration") + ls.translatedText + "   " + page.whenText(method.lastTitration)
                    color: Colors.slateColor
                    font.pixelSize: 15
                }
                Text {
                    width: parent.width
                    elide: Text.ElideRight
                    text: method.methodName
                    color: Colors.deeptangaroaColor
                    font.pixelSize: 20
                    font.weight: Font.Medium
                }
                Text {
                    objectName: "lastAverage"
                    text: titration.avgConc !== "" ? titration.avgConc + " " + titration.resultUnits : ""
                    color: Colors.deeptangaroaColor
                    font.pixelSize: 17
                }
                Row {
                    spacing: 16
                    Text {
                        visible: method.lastCalibration !== "" && !electrode.isElectrodeChanged
                        text: qsTr("Calibrated") + ls.translatedText + " " + page.whenText(method.lastCalibration)
                        color: Colors.slateColor
                        font.pixelSize: 14
                    }
                    Text {
                        visible: method.lastStandardization !== "" && !titrant.isTitrantChanged
                        text: qsTr("Standardized") + ls.translatedText + " " + page.whenText(method.lastStandardization)
                        color: Colors.slateColor
                        font.pixelSize: 14
                    }
                }
            }
            Text {
                anchors.centerIn: parent
                visible: !lastTitrationLabels.visible
                text: method.methodName !== "" ? method.methodName : qsTr("No titration run yet") + ls.translatedText
                color: Colors.slateColor
                font.pixelSize: 17
            }
        }

        // The last setup's three parts.
        Row {
            spacing: 10
            visible: method.lastTitration !== "" || method.isChangeFromHome
            Repeater {
                model: [
                    { name: qsTr("Electrode") + ls.translatedText, value: electrode.electrodeName, id: "electrodeTile" },
                    { name: qsTr("Titrant") + ls.translatedText, value: page.titrantShownName(), id: "titrantTile" },
                    { name: qsTr("Titration") + ls.translatedText, value: page.techniqueShown(), id: "titrationTile" }
                ]
                Rectangle {
                    objectName: modelData.id
                    width: (savedTitrationFrame.width - 20) / 3
                    height: 58
                    radius: 4
                    color: tileArea.pressed ? Colors.zirconColor : Colors.whiteColor
                    border.color: Colors.lineColor
                    Column {
                        anchors.fill: parent
                        anchors.margins: 10
                        spacing: 4
                        Text { text: modelData.name; color: Colors.slateColor; font.pixelSize: 13 }
                        Text {
                            // A long name ("Multiple Known Addition") gets a
                            // smaller size before it is cut.
                            width: parent.width
                            elide: Text.ElideRight
                            fontSizeMode: Text.HorizontalFit
                            minimumPixelSize: 12
                            text: modelData.value
                            color: Colors.deeptangaroaColor
                            font.pixelSize: 16
                        }
                    }
                    MouseArea {
                        id: tileArea
                        anchors.fill: parent
                        onClicked: page.tileTapped(modelData.id)
                    }
                }
            }
        }

        PopupButton {
            id: repeatLastTitrationButton
            objectName: "repeatLastTitrationButton"
            visible: method.lastTitration !== ""
            width: parent.width
            text: (electrode.isElectrodeChanged || titrant.isTitrantChanged || titration.isTitrationChanged
                   ? qsTr("Run Titration") : qsTr("Repeat Last Titration")) + ls.translatedText
            onClicked: page.repeatLastTitration()
        }
        Row {
            spacing: 10
            PopupAlternateButton {
                id: usedSavedTitrationButton
                objectName: "usedSavedTitrationButton"
                visible: dm.methodCount > 0
                width: (savedTitrationFrame.width - 10) / 2
                text: qsTr("Use a Saved Method") + ls.translatedText
                onClicked: page.useSavedMethod()
            }
            PopupAlternateButton {
                width: (savedTitrationFrame.width - 10) / 2
                text: qsTr("Start a New Titration") + ls.translatedText
                onClicked: page.startNewTitration()
            }
        }
    }

    PopupButton {
        id: setupNewTitrationButton
        objectName: "setupNewTitrationButton"
        visible: !page.hasHistory
        anchors.centerIn: parent
        width: 320
        text: qsTr("Start a New Titration") + ls.translatedText
        onClicked: page.startNewTitration()
    }

    // When and with what average slope the pH electrode was last calibrated.
    HomeCalibrationLine {
        id: homeCalibrationLine
        anchors.left: parent.left
        anchors.bottom: parent.bottom
        anchors.margins: 20
    }
}
