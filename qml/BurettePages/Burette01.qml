import QtQuick 2.12
import "../Background"
import "../Buttons"
import "../CustomComponent"
import "../Constants/Colors.js" as Colors
import "../MeterPages/MeterFormat.js" as MeterFormat

// The burette: its size and installation date, rinse cycles, the dispense
// volume, and the Rinse and Dispense buttons. States of each button: 0 idle,
// 1 running, 2 locked until the burette reports back.
MainContentBackground {
    id: page
    objectName: "Burette"
    header3Text: qsTr("Burette") + ls.translatedText

    property string dispenseVolumeText: "Continuous"
    property bool isContinuous: dispenseVolumeText === "Continuous"
    property int rinseState: 0
    property int dispenseState: 0
    readonly property var sizes: ["10 mL", "20 mL", "50 mL"]

    function loadModelData() {
        sizeRow.select(setup.buretteSize + " mL")
        dateRow.value = setup.installationDate.length > 0 ? displayValues.formatStringDate(setup.installationDate)
                                                          : qsTr("Not set") + ls.translatedText
    }

    function rinseTapped() {
        if (rinseState === 0 && dm.rinseCycles > 0 && !debounceTimer.running) {
            debounceTimer.start()
            tc.qmlStartRinse()
            rinseState = 1
            rinseButton.text = qsTr("Stop") + ls.translatedText
            dispenseButton.text = "- - - - -"
            dispenseState = 2
        } else if (rinseState === 1) {
            tc.qmlStopRinse()
            rinseButton.text = qsTr("Wait") + ls.translatedText
            rinseState = 2
        }
    }
    function dispenseTapped() {
        if (isContinuous)
            return
        if (dispenseState === 0 && !debounceTimer.running) {
            debounceTimer.start()
            tc.qmlStartDispense(parseFloat(dispenseVolumeText))
            dispenseButton.text = qsTr("Stop") + ls.translatedText
            dispenseState = 1
            rinseState = 2
        } else if (dispenseState === 1) {
            tc.qmlStopDispense()
            dispenseWait()
        }
    }
    function continuousPressed() {
        if (!isContinuous || dispenseState === 2)
            return
        tc.qmlStartDispense()
        dispenseButton.text = qsTr("Stop") + ls.translatedText
        dispenseState = 1
        rinseState = 2
    }
    function continuousReleased() {
        if (!isContinuous || dispenseState !== 1)
            return
        tc.qmlStopDispense()
        dispenseWait()
        rinseState = 2
    }

    function dispenseWait() {
        dispenseButton.text = qsTr("Wait") + ls.translatedText
        dispenseState = 2
    }
    function dispenseCompleted() { idle() }
    function rinseCompleted() { idle() }
    function idle() {
        dispenseButton.text = qsTr("Dispense") + ls.translatedText
        rinseButton.text = qsTr("Rinse") + ls.translatedText
        dispenseState = 0
        rinseState = 0
    }

    Timer {
        id: debounceTimer
        interval: 500
    }

    Column {
        x: 20
        y: 8
        width: 510
        ChoiceRow {
            id: sizeRow
            objectName: "buretteSize"
            label: qsTr("Burette Size") + ls.translatedText
            options: page.sizes
            onChosen: {
                setup.buretteSize = parseInt(text.split(" ")[0])
                setup.setSetupValues()
                dynamicLoader.loadSuccessPopUp(qsTr("Burette Size Changed") + ls.translatedText,
                                               qsTr("Burette size has been saved with new size.") + ls.translatedText, "")
            }
        }
        SettingRow {
            id: dateRow
            objectName: "installationDateRow"
            label: qsTr("Installation Date") + ls.translatedText
            opensPage: true
            onClicked: {
                buretteInstallationDate.loadUI()
                buretteStack.push(buretteInstallationDate)
            }
        }
        Rectangle {
            width: parent.width
            height: 52
            color: Colors.whiteColor
            Text {
                anchors.left: parent.left
                anchors.leftMargin: 20
                anchors.verticalCenter: parent.verticalCenter
                font.family: "Roboto"
                font.pixelSize: 17
                color: Colors.deeptangaroaColor
                text: qsTr("Rinse Cycles") + ls.translatedText
            }
            Row {
                anchors.right: parent.right
                anchors.rightMargin: 12
                anchors.verticalCenter: parent.verticalCenter
                spacing: 8
                PopupAlternateButton {
                    objectName: "rinseFewer"
                    width: 48
                    height: 40
                    text: "−"
                    enabled: dm.rinseCycles > 0 && page.rinseState === 0
                    onClicked: dm.rinseCycles = MeterFormat.stepRinseCycles(dm.rinseCycles, -1)
                }
                Text {
                    objectName: "rinseCycles"
                    width: 40
                    anchors.verticalCenter: parent.verticalCenter
                    horizontalAlignment: Text.AlignHCenter
                    font.family: "Roboto"
                    font.pixelSize: 20
                    color: Colors.summerSkyColor
                    text: dm.rinseCycles
                }
                PopupAlternateButton {
                    objectName: "rinseMore"
                    width: 48
                    height: 40
                    text: "+"
                    enabled: dm.rinseCycles < 10 && page.rinseState === 0
                    onClicked: dm.rinseCycles = MeterFormat.stepRinseCycles(dm.rinseCycles, 1)
                }
            }
            Rectangle {
                anchors.bottom: parent.bottom
                width: parent.width
                height: 1
                color: Colors.lineColor
            }
        }
        SettingRow {
            id: volumeRow
            objectName: "dispenseVolumeRow"
            label: qsTr("Dispense Volume") + ls.translatedText
            value: page.isContinuous ? qsTr("Continuous") + ls.translatedText : page.dispenseVolumeText + " mL"
            opensPage: page.rinseState === 0 && page.dispenseState === 0
            onClicked: {
                buretteDispenseVolume.loadUI()
                buretteStack.push(buretteDispenseVolume)
            }
        }
    }

    Row {
        x: 20
        y: 252
        spacing: 24
        PopupButton {
            id: rinseButton
            objectName: "rinseButton"
            width: 200
            height: 64
            text: qsTr("Rinse") + ls.translatedText
            enabled: page.rinseState !== 2
            onClicked: page.rinseTapped()
        }
        PopupButton {
            id: dispenseButton
            objectName: "dispenseButton"
            width: 200
            height: 64
            text: qsTr("Dispense") + ls.translatedText
            enabled: page.dispenseState !== 2
            onClicked: page.dispenseTapped()
            MouseArea {
                anchors.fill: parent
                enabled: page.isContinuous
                onPressed: page.continuousPressed()
                onReleased: page.continuousReleased()
                onCanceled: page.continuousReleased()
            }
        }
    }
}
