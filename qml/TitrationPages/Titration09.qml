import QtQuick 2.12
import "../Background"
import "../Constants/Colors.js" as Colors
import "../Constants/Icons.js" as Icons

// The success popup: a tick, a title and a message, gone after 3 seconds
// (the loader's timer decides what follows, by the label).
PopupBackground {
    id: popup

    property bool isDynamic: true
    property string label: ""
    property alias message: messageText.text

    function loadModel(title, message, name) {
        this.title = title
        this.message = message
        label = title
    }

    height: 52 + 20 + Math.max(56, messageText.implicitHeight) + 20

    Row {
        width: parent.width
        spacing: 16
        Text {
            font.family: Icons.fontFamily
            font.pixelSize: 48
            color: Colors.greenColor
            text: Icons.done
        }
        Text {
            id: messageText
            width: parent.width - 64
            anchors.verticalCenter: parent.verticalCenter
            wrapMode: Text.WordWrap
            color: Colors.deeptangaroaColor
            font.family: "Roboto"
            font.pixelSize: 17
        }
    }
}
