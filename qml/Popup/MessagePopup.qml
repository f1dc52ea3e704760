import QtQuick 2.12
import "../Background"
import "../Buttons"
import "../Constants/Colors.js" as Colors

// A popup of a title, a message and one or two buttons; the panel grows
// with the message. `isDynamic` popups are destroyed when closed.
PopupBackground {
    id: popup

    property bool isDynamic: false
    property alias message: messageText.text
    property alias firstButtonText: firstButton.text
    property alias secondButtonText: secondButton.text
    readonly property alias firstButton: firstButton
    readonly property alias secondButton: secondButton
    signal firstClicked()
    signal secondClicked()

    height: 52 + 20 + messageText.implicitHeight + 24 + firstButton.height + 20

    Text {
        id: messageText
        width: parent.width
        wrapMode: Text.WordWrap
        color: Colors.deeptangaroaColor
        font.family: "Roboto"
        font.pixelSize: 17
        lineHeight: 1.15
    }
    Row {
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        spacing: 16
        PopupAlternateButton {
            id: secondButton
            visible: text.length > 0
            onClicked: popup.secondClicked()
        }
        PopupButton {
            id: firstButton
            onClicked: popup.firstClicked()
        }
    }
}
