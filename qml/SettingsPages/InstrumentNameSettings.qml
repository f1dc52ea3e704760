import QtQuick 2.12
import "../Background"
import "../Buttons"
import "../Constants/Colors.js" as Colors
import "../Constants/Icons.js" as Icons
import "../TimeDateLang/DateTimeMath.js" as DateTimeMath

// The instrument's name, 1 to 14 characters of the name pattern. The field
// clears on focus and gets its last value back when left empty.
MainContentBackground {
    id: page
    objectName: "Instrument Name Settings"
    header3Text: qsTr("Instrument Name") + ls.translatedText

    property string textInputLastValue: ""
    property string insValue: ""
    property string refusal: ""
    property bool marked: false

    onInsValueChanged: nameInput.text = insValue
    onVisibleChanged: {
        if (visible) {
            refusal = ""
            marked = false
            nameInput.text = insValue
        }
    }

    function save() {
        var verdict = DateTimeMath.instrumentNameVerdict(nameInput.text, mainWindow.format)
        marked = verdict !== ""
        refusal = verdict === "empty" ? "" : verdict
        if (verdict !== "")
            return
        nameInput.focus = false
        Qt.inputMethod.hide()
        setup.instrumentName = nameInput.text
        setup.setSetupValues()
        display01.loadModelData()
        settingsStack.pop()
    }

    MouseArea {
        anchors.fill: parent
        onClicked: {
            nameInput.focus = false
            Qt.inputMethod.hide()
        }
    }
    Column {
        x: 30
        y: 24
        spacing: 12
        Text {
            color: Colors.slateColor
            font.family: "Roboto"
            font.pixelSize: 16
            text: qsTr("Up to 14 letters and digits") + ls.translatedText
        }
        Row {
            spacing: 10
            Rectangle {
                width: 360
                height: 48
                radius: 4
                border.width: page.marked ? 2 : 1
                border.color: page.marked ? Colors.orangepeelColor
                                          : nameInput.activeFocus ? Colors.summerSkyColor : Colors.lineColor
                TextInput {
                    id: nameInput
                    objectName: "settingsNameInput"
                    anchors.fill: parent
                    anchors.leftMargin: 12
                    anchors.rightMargin: 12
                    verticalAlignment: TextInput.AlignVCenter
                    clip: true
                    maximumLength: 20
                    inputMethodHints: Qt.ImhNoPredictiveText
                    color: Colors.deeptangaroaColor
                    font.family: "Roboto"
                    font.pixelSize: 20
                    onActiveFocusChanged: {
                        if (activeFocus) {
                            page.textInputLastValue = text
                            text = ""
                        } else if (text.length === 0) {
                            text = page.textInputLastValue
                        }
                    }
                    onTextEdited: { page.marked = false; page.refusal = "" }
                    onAccepted: focus = false
                }
            }
            Text {
                objectName: "settingsNameWarningMark"
                anchors.verticalCenter: parent.verticalCenter
                visible: page.marked
                font.family: Icons.fontFamily
                font.pixelSize: 32
                color: Colors.orangepeelColor
                text: Icons.warning
            }
        }
        Text {
            width: 440
            wrapMode: Text.WordWrap
            visible: page.refusal !== ""
            color: Colors.orangepeelColor
            font.family: "Roboto"
            font.pixelSize: 16
            text: (page.refusal === "long" ? qsTr("Invalid name. Please enter up to 14 alphanumeric characters.")
                   : page.refusal === "special" ? qsTr("Special characters are not allowed") : "") + ls.translatedText
        }
    }
    PopupButton {
        objectName: "saveName"
        x: 20
        y: 300
        text: qsTr("Save") + ls.translatedText
        onClicked: page.save()
    }
}
