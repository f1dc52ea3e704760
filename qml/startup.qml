import QtQuick 2.12
import QtQuick.Window 2.12

// The splash, shown while the back end is built.
Window {
    id: splash
    width: 640
    height: 480
    visible: true
    flags: Qt.FramelessWindowHint
    color: "#0d3b66"

    Column {
        anchors.centerIn: parent
        spacing: 12
        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            text: "Vantor Pro V400"
            color: "white"
            font.pixelSize: 36
            font.bold: true
        }
        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            text: "Starting..."
            color: "#cfe3f5"
            font.pixelSize: 18
        }
    }
}
