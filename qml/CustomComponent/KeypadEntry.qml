import QtQuick 2.12
import "../Buttons"
import "../Constants/Colors.js" as Colors

// The number keypad of the entry pages: the typed text, the refusal under
// it, and Save / Cancel. The page checks the text in `accepted`; it marks a
// refusal with refuse(message), or with refuse("") for an empty field (the
// border turns orange for a moment).
Item {
    id: keypad

    property alias prompt: promptText.text
    property string text: ""
    property string unit: ""
    property bool allowMinus: true
    property int maxLength: 12
    // The text the page opened with is selected: the first key replaces it.
    property bool selected: false
    // Rows under the field, such as the choices of a dispense.
    default property alias extraContent: extra.data
    signal accepted(string text)
    signal cancelled()

    anchors.fill: parent

    function clear() {
        text = ""
        selected = false
        messageText.text = ""
        refusedTimer.stop()
        field.border.color = Colors.lineColor
        Qt.callLater(takeFocus)
    }
    // Opens on `value`, selected.
    function show(value) {
        clear()
        text = value
        selected = text.length > 0
    }
    function refuse(message) {
        messageText.text = message
        field.border.color = Colors.orangepeelColor
        refusedTimer.restart()
    }
    function press(key) {
        messageText.text = ""
        if (selected && key !== "-")
            keypad.text = ""
        selected = false
        if (key === "⌫")
            keypad.text = keypad.text.slice(0, -1)
        else if (key === "-")
            keypad.text = keypad.text.indexOf("-") === 0 ? keypad.text.slice(1) : "-" + keypad.text
        else if (keypad.text.length < maxLength)
            keypad.text += key
    }

    // Typed keys reach the keypad once the page is on show (the stack
    // settles its focus after the push).
    function takeFocus() {
        if (visible)
            forceActiveFocus()
    }
    focus: visible
    onVisibleChanged: Qt.callLater(takeFocus)
    Keys.onPressed: {
        if (event.key === Qt.Key_Backspace)
            keypad.press("⌫")
        else if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter)
            keypad.accepted(keypad.text)
        else if (/^[0-9.]$/.test(event.text) || (event.text === "-" && keypad.allowMinus))
            keypad.press(event.text)
        event.accepted = true
    }

    Timer {
        id: refusedTimer
        interval: 1500
        onTriggered: field.border.color = Colors.lineColor
    }

    Column {
        x: 20
        y: 16
        width: 220
        spacing: 10
        Text {
            id: promptText
            width: parent.width
            wrapMode: Text.WordWrap
            color: Colors.slateColor
            font.family: "Roboto"
            font.pixelSize: 16
        }
        Rectangle {
            id: field
            objectName: "keypadField"
            width: parent.width
            height: 56
            radius: 4
            border.width: 2
            border.color: Colors.lineColor
            Rectangle {
                // The mark of a selected text.
                visible: keypad.selected
                x: 8
                anchors.verticalCenter: parent.verticalCenter
                width: Math.min(typed.contentWidth, typed.width) + 8
                height: 34
                radius: 2
                color: Colors.summerSkyColor
                opacity: 0.3
            }
            Text {
                id: typed
                anchors.left: parent.left
                anchors.leftMargin: 12
                anchors.right: unitText.left
                anchors.verticalCenter: parent.verticalCenter
                elide: Text.ElideLeft
                color: Colors.deeptangaroaColor
                font.family: "Roboto"
                font.pixelSize: 24
                text: keypad.text
            }
            Text {
                id: unitText
                anchors.right: parent.right
                anchors.rightMargin: 12
                anchors.verticalCenter: parent.verticalCenter
                color: Colors.slateColor
                font.family: "Roboto"
                font.pixelSize: 17
                text: keypad.unit
            }
        }
        Text {
            id: messageText
            width: parent.width
            wrapMode: Text.WordWrap
            color: Colors.orangepeelColor
            font.family: "Roboto"
            font.pixelSize: 15
        }
        Column {
            id: extra
            width: parent.width
        }
    }

    Grid {
        x: 256
        y: 16
        columns: 4
        spacing: 8
        Repeater {
            model: ["7", "8", "9", "⌫", "4", "5", "6", "-", "1", "2", "3", ".", "0"]
            Rectangle {
                objectName: "key" + (modelData === "⌫" ? "Back" : modelData === "-" ? "Minus" : modelData === "." ? "Point" : modelData)
                width: 60
                height: 52
                radius: 4
                opacity: modelData !== "-" || keypad.allowMinus ? 1 : 0
                enabled: opacity > 0
                color: keyArea.pressed ? Colors.zirconColor : Colors.whiteColor
                border.color: Colors.lineColor
                Text {
                    anchors.centerIn: parent
                    color: Colors.deeptangaroaColor
                    font.family: "Roboto"
                    font.pixelSize: 22
                    text: modelData
                }
                MouseArea {
                    id: keyArea
                    anchors.fill: parent
                    onClicked: keypad.press(modelData)
                }
            }
        }
    }

    Row {
        x: 20
        y: 300
        spacing: 16
        PopupAlternateButton {
            text: qsTr("Cancel") + ls.translatedText
            onClicked: keypad.cancelled()
        }
        PopupButton {
            objectName: "keypadSave"
            text: qsTr("Save") + ls.translatedText
            onClicked: keypad.accepted(keypad.text)
        }
    }
}
