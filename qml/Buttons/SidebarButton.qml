import QtQuick 2.12
import "../Constants/Colors.js" as Colors
import "../Constants/Icons.js" as Icons

// One entry of the side bar: a glyph. "Active" is the
// normal look, "Selected" the section on show, "Inactive" a button that
// cannot act (the back button on a first page).
Item {
    id: button

    property string glyph: ""
    property string iconState: "Active"
    signal clicked()

    width: 90
    height: 64
    enabled: iconState !== "Inactive"

    Rectangle {
        anchors.fill: parent
        anchors.margins: 4
        radius: 6
        color: button.iconState === "Selected" ? Colors.summerSkyColor
             : area.pressed ? Colors.lightelephantColor : "transparent"
    }
    Text {
        anchors.centerIn: parent
        font.family: Icons.fontFamily
        font.pixelSize: 34
        color: button.iconState === "Inactive" ? Colors.slateColor : Colors.whiteColor
        text: button.glyph
    }
    MouseArea {
        id: area
        anchors.fill: parent
        onClicked: button.clicked()
    }
}
