import QtQuick 2.12
import "../Background"
import "../Buttons"
import "../Constants/Colors.js" as Colors
import "../Constants/NumberFormat.js" as NumberFormat
import "../Constants/Temperature.js" as Temperature
import "SettingsRules.js" as SettingsRules

// The manual temperature, used without a temperature probe: typed in the
// unit of the settings, kept in °C.
MainContentBackground {
    id: page
    objectName: "Temperature Input"
    header3Text: qsTr("Temperature Input") + ls.translatedText

    property int tempUnit: setup.temperatureFormat_Index
    property string message: ""

    function loadValue() {
        tempUnit = setup.temperatureFormat_Index
        valueInput.text = NumberFormat.sigFigsDec(Temperature.inUnit(setup.temperatureInput, tempUnit), 4, 1)
        message = ""
    }
    function save() {
        valueInput.focus = false
        var celsius = SettingsRules.temperatureCelsius(valueInput.text, tempUnit)
        if (isNaN(celsius)) {
            message = tempUnit === 1
                    ? qsTr("Invalid value. Please enter a value between 32.0 - 192.0 °F.") + ls.translatedText
                    : qsTr("Invalid value. Please enter a value between") + ls.translatedText + " 0.0 - 100.0 °C"
            return
        }
        setup.temperatureInput = celsius
        setup.setSetupValues()
        display01.loadModelData()
        settingsStack.pop()
    }

    MouseArea {
        anchors.fill: parent
        onClicked: valueInput.focus = false
    }
    Text {
        x: 30
        y: 16
        color: Colors.slateColor
        font.family: "Roboto"
        font.pixelSize: 16
        text: (page.tempUnit === 1 ? qsTr("Manual temperature, 32.0 - 192.0 °F") : qsTr("Manual temperature, 0.0 - 100.0 °C")) + ls.translatedText
    }
    Row {
        x: 30
        y: 48
        spacing: 12
        Rectangle {
            width: 200
            height: 48
            radius: 4
            border.width: 1
            border.color: valueInput.activeFocus ? Colors.summerSkyColor : Colors.lineColor
            TextInput {
                id: valueInput
                objectName: "temperatureValueInput"
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
                        mainWindow.currentEdit = valueInput
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
    Text {
        objectName: "temperatureMessage"
        x: 30
        y: 112
        width: 480
        wrapMode: Text.WordWrap
        font.family: "Roboto"
        font.pixelSize: 16
        color: Colors.orangepeelColor
        text: page.message
    }
    PopupButton {
        objectName: "saveTemperature"
        x: 20
        y: 300
        text: qsTr("Save") + ls.translatedText
        onClicked: page.save()
    }
}
