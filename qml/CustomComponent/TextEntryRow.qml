import QtQuick 2.12
import "../Constants/Colors.js" as Colors

// A settings row with a text typed on the virtual keyboard.
Rectangle {
    id: row

    property alias label: labelText.text
    property alias text: input.text
    property alias validator: input.validator
    property int maximumLength: 20
    signal edited(string text)
    signal focused()

    // Leaves the field (a Save takes the text as it stands).
    function release() { input.focus = false }

    width: parent ? parent.width : 510
    height: 52
    color: Colors.whiteColor

    Text {
        id: labelText
        anchors.left: parent.left
        anchors.leftMargin: 20
        anchors.verticalCenter: parent.verticalCenter
        width: parent.width * 0.45
        elide: Text.ElideRight
        color: Colors.deeptangaroaColor
        font.family: "Roboto"
        font.pixelSize: 17
    }
    Rectangle {
        anchors.right: parent.right
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        width: parent.width * 0.46
        height: 40
        radius: 4
        border.color: input.activeFocus ? Colors.summerSkyColor : Colors.lineColor
        TextInput {
            id: input
            objectName: row.objectName + "Input"
            anchors.fill: parent
            anchors.leftMargin: 10
            anchors.rightMargin: 10
            verticalAlignment: TextInput.AlignVCenter
            clip: true
            maximumLength: row.maximumLength
            color: Colors.deeptangaroaColor
            font.family: "Roboto"
            font.pixelSize: 16
            onTextEdited: row.edited(text)
            onAccepted: focus = false
            // As on the entry pages: the field clears when it takes the
            // focus, and gets its text back when it is left empty.
            property string lastText: ""
            onActiveFocusChanged: {
                if (activeFocus) {
                    lastText = text
                    text = ""
                    row.focused()
                } else if (text === "") {
                    text = lastText
                }
            }
        }
        Text {
            anchors.fill: input
            anchors.leftMargin: 10
            verticalAlignment: Text.AlignVCenter
            visible: input.text.length === 0 && !input.activeFocus
            color: Colors.slateColor
            font.family: "Roboto"
            font.pixelSize: 14
            text: mainWindow.tapToTextString
        }
    }
    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: 1
        color: Colors.lineColor
    }
}
