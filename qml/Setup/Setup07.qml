import QtQuick 2.12
import "../Background"
import "../Constants/Colors.js" as Colors
import "../Constants/Icons.js" as Icons
import "../TimeDateLang/DateTimeMath.js" as DateTimeMath

// Step 6: the instrument's name, 1 to 14 letters, digits and the marks the
// name pattern allows. An empty name gets the warning mark; any other
// refusal says why.
SetupBackground {
    id: page

    property string refusal: ""
    property bool marked: false

    function prepare() {
        nameInput.text = setup.instrumentName
        refusal = ""
        marked = false
    }

    objectName: "Instrument Name"
    title: qsTr("Set Instrument Name") + ls.translatedText
    stepText: qsTr("Setup | Step 6 of 13") + ls.translatedText

    // A tap beside the field ends the typing and the keyboard goes.
    MouseArea {
        anchors.fill: parent
        onClicked: {
            nameInput.focus = false
            Qt.inputMethod.hide()
        }
    }
    Column {
        anchors.horizontalCenter: parent.horizontalCenter
        y: 20
        spacing: 12
        Text {
            color: Colors.deeptangaroaColor
            font.family: "Roboto"
            font.pixelSize: 18
            text: qsTr("Instrument Name") + ls.translatedText
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
                    objectName: "instrumentNameInput"
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
                    onTextEdited: { page.marked = false; page.refusal = "" }
                    onAccepted: focus = false
                }
                Text {
                    anchors.fill: nameInput
                    verticalAlignment: Text.AlignVCenter
                    visible: nameInput.text.length === 0 && !nameInput.activeFocus
                    color: Colors.slateColor
                    font.family: "Roboto"
                    font.pixelSize: 16
                    text: mainWindow.tapToTextString
                }
            }
            Text {
                objectName: "nameWarningMark"
                anchors.verticalCenter: parent.verticalCenter
                visible: page.marked
                font.family: Icons.fontFamily
                font.pixelSize: 32
                color: Colors.orangepeelColor
                text: Icons.warning
            }
        }
        Text {
            width: 420
            wrapMode: Text.WordWrap
            visible: page.refusal !== ""
            color: Colors.orangepeelColor
            font.family: "Roboto"
            font.pixelSize: 16
            text: (page.refusal === "long" ? qsTr("Invalid name. Please enter up to 14 alphanumeric characters.")
                   : page.refusal === "special" ? qsTr("Special characters are not allowed") : "") + ls.translatedText
        }
    }

    onBackClicked: setupStack.pop()
    onNextClicked: {
        var verdict = DateTimeMath.instrumentNameVerdict(nameInput.text, mainWindow.format)
        marked = verdict !== ""
        refusal = verdict === "empty" ? "" : verdict
        if (verdict !== "")
            return
        nameInput.focus = false
        Qt.inputMethod.hide()
        setup.instrumentName = nameInput.text
        setupStack.push(setup08)
    }
}
