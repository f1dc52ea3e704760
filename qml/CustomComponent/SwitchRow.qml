import QtQuick 2.12
import QtQuick.Controls 2.12
import "../Constants/Colors.js" as Colors

// A settings row with an on/off switch; `toggled` tells the new state.
Rectangle {
    id: row

    property alias label: labelText.text
    property alias checked: toggle.checked
    signal toggled(bool on)

    width: parent ? parent.width : 510
    height: 52
    color: Colors.whiteColor

    Text {
        id: labelText
        anchors.left: parent.left
        anchors.leftMargin: 20
        anchors.right: toggle.left
        anchors.verticalCenter: parent.verticalCenter
        elide: Text.ElideRight
        color: Colors.deeptangaroaColor
        font.family: "Roboto"
        font.pixelSize: 17
    }
    Switch {
        id: toggle
        objectName: row.objectName + "Switch"
        anchors.right: parent.right
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        onToggled: row.toggled(checked)
    }
    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: 1
        color: Colors.lineColor
    }
}
