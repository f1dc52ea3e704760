import QtQuick 2.12
import "../Background"
import "../Buttons"
import "../Constants/Colors.js" as Colors
import "../Constants/NumberFormat.js" as NumberFormat
import "../Constants/Temperature.js" as Temperature
import "SettingsRules.js" as SettingsRules

// The temperature probe's calibration: the probe's reading beside the
// temperature of a reference thermometer. Save keeps the difference as the
// probe's offset and stores the calibration as an ATC calibration, with its
// log entry and report.
MainContentBackground {
    id: page
    objectName: "ATC Probe Calibration"
    header3Text: qsTr("ATC Probe Calibration") + ls.translatedText

    property int tempUnit: setup.temperatureFormat_Index
    property real tempOffset: setup.temperatureOffset
    property string message: ""
    // The probe's reading with the offset in use, in the unit of the settings.
    readonly property real shownReading: Temperature.inUnit(dm.probeTemp + setup.temperatureOffset, tempUnit)

    function loadValue() {
        tempUnit = setup.temperatureFormat_Index
        if (setup.temperatureInputAtc === 0)
            setup.temperatureInputAtc = dm.probeTemp + setup.getTemperatureOffset()
        textEdit1.text = NumberFormat.sigFigsDec(Temperature.inUnit(setup.temperatureInputAtc, tempUnit), 4, 1)
        message = ""
    }
    function save() {
        textEdit1.focus = false
        var r = SettingsRules.atcCalibration(textEdit1.text, Number(shownReading.toFixed(1)),
                                             setup.getTemperatureOffset(), tempUnit)
        if (!r) {
            message = tempUnit === 1
                    ? qsTr("Invalid value. Please enter a value between 32.0 - 192.0 °F.") + ls.translatedText
                    : qsTr("Invalid value. Please enter a value between") + ls.translatedText + " 0.0 - 100.0 °C"
            return
        }
        setup.temperatureInputAtc = r.reference
        setup.setTemperatureOffset(r.offset)
        tempOffset = r.offset
        setup.setSetupValues()
        dm.insertATCCalibrationValues(setup.temperatureInputAtc, setup.temperatureInputAtc - tempOffset, tempOffset)
        calibrationLogModel.saveLogValues(setup.isDatalogFullNotifOn, dm.calibrationModel)
        if (dm.calibrationModel)
            dm.storeMeterReport("Calibration", dm.calibrationModel.id)
        display01.loadModelData()
        settingsStack.pop()
        dynamicLoader.loadSuccessPopUp(qsTr("ATC Probe Calibrated") + ls.translatedText,
                                       qsTr("Temperature offset") + ls.translatedText + ": "
                                       + NumberFormat.sigFigsDec(r.offset, 3, 1) + " °C", "")
    }

    MouseArea {
        anchors.fill: parent
        onClicked: textEdit1.focus = false
    }
    Column {
        x: 30
        y: 24
        spacing: 18
        Row {
            spacing: 12
            Text {
                width: 230
                anchors.verticalCenter: parent.verticalCenter
                font.family: "Roboto"
                font.pixelSize: 18
                color: Colors.deeptangaroaColor
                text: qsTr("Current Temperature") + ls.translatedText
            }
            Text {
                id: label2
                objectName: "probeReading"
                anchors.verticalCenter: parent.verticalCenter
                font.family: "Roboto"
                font.pixelSize: 20
                font.weight: Font.Medium
                color: Colors.summerSkyColor
                text: page.shownReading.toFixed(1) + " " + Temperature.unitText(page.tempUnit)
            }
        }
        Row {
            spacing: 12
            Text {
                width: 230
                anchors.verticalCenter: parent.verticalCenter
                font.family: "Roboto"
                font.pixelSize: 18
                color: Colors.deeptangaroaColor
                text: qsTr("Reference Temperature") + ls.translatedText
            }
            Rectangle {
                width: 140
                height: 48
                radius: 4
                border.width: 1
                border.color: textEdit1.activeFocus ? Colors.summerSkyColor : Colors.lineColor
                TextInput {
                    id: textEdit1
                    objectName: "referenceTemperatureInput"
                    anchors.fill: parent
                    anchors.leftMargin: 12
                    anchors.rightMargin: 12
                    verticalAlignment: TextInput.AlignVCenter
                    maximumLength: 6
                    inputMethodHints: Qt.ImhFormattedNumbersOnly
                    color: Colors.deeptangaroaColor
                    font.family: "Roboto"
                    font.pixelSize: 20
                    onTextEdited: page.message = ""
                    onActiveFocusChanged: {
                        if (activeFocus) {
                            mainWindow.currentEdit = textEdit1
                            selectAll()
                        }
                    }
                }
            }
            Text {
                anchors.verticalCenter: parent.verticalCenter
                font.family: "Roboto"
                font.pixelSize: 20
                color: Colors.deeptangaroaColor
                text: Temperature.unitText(page.tempUnit)
            }
        }
    }
    Text {
        objectName: "atcMessage"
        x: 30
        y: 160
        width: 480
        wrapMode: Text.WordWrap
        font.family: "Roboto"
        font.pixelSize: 16
        color: Colors.orangepeelColor
        text: page.message
    }
    PopupButton {
        objectName: "saveAtc"
        x: 20
        y: 300
        text: qsTr("Save") + ls.translatedText
        onClicked: page.save()
    }
}
