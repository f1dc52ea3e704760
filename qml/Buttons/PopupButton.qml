import QtQuick 2.12
import "../Constants/Colors.js" as Colors

// The blue button of popups and pages.
Rectangle {
    id: button

    property alias text: label.text
    property color textColor: Colors.whiteColor
    property color fillColor: Colors.summerSkyColor
    signal clicked()

    width: Math.max(128, label.implicitWidth + 40)
    height: 48
    radius: 4
    color: !enabled ? Colors.zirconColor : area.pressed ? Colors.pressedColor : fillColor
    opacity: enabled ? 1 : 0.6

    Text {
        id: label
        anchors.centerIn: parent
        color: button.enabled ? button.textColor : Colors.slateColor
        font.family: "Roboto"
        font.pixelSize: 17
        font.weight: Font.Medium
    }
    MouseArea {
        id: area
        anchors.fill: parent
        onClicked: button.clicked()
    }
}
