import QtQuick 2.12
import "../Constants/Colors.js" as Colors

// The panel of a modal popup: a title and the content below, centred in the window.
Rectangle {
    id: panel

    property string title: ""
    default property alias content: body.data
    readonly property alias body: body

    width: 460
    height: 280
    x: (mainWindow.width - width) / 2
    y: (mainWindow.height - height) / 2
    radius: 6
    color: Colors.whiteColor
    visible: false

    // Taps on the panel stay on it.
    MouseArea {
        anchors.fill: parent
    }

    Rectangle {
        id: titleBar
        width: parent.width
        height: 52
        radius: panel.radius
        color: Colors.lightelephantColor
        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: panel.radius
            color: parent.color
        }
        Text {
            anchors.fill: parent
            anchors.leftMargin: 20
            anchors.rightMargin: 20
            verticalAlignment: Text.AlignVCenter
            elide: Text.ElideRight
            color: Colors.whiteColor
            font.family: "Roboto"
            font.pixelSize: 20
            font.weight: Font.Medium
            text: panel.title
        }
    }

    Item {
        id: body
        anchors.top: titleBar.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.margins: 20
    }
}
