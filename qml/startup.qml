import QtQuick 2.12
import QtQuick.Controls 2.12
import QtQuick.Window 2.12
import "Constants/Paths.js" as Paths

// The splash, shown while the back end is built.
ApplicationWindow {
    id: rootWindow
    width: 640
    height: 480
    visible: true
    visibility: Window.FullScreen
    flags: Qt.FramelessWindowHint

    Rectangle {
        width: 640
        height: 480
        color: "#273740"

        Image {
            anchors.centerIn: parent
            width: 640
            height: 480
            scale: 0.85
            fillMode: Image.PreserveAspectFit
            sourceSize.width: 640
            source: Paths.startupScreen
        }
    }
}
