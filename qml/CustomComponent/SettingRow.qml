import QtQuick 2.12
import "../Constants/Colors.js" as Colors

// One row of a settings list: a label, its value and, when it opens a page,
// a tap on the whole row.
Rectangle {
    id: row

    property alias label: labelText.text
    property alias value: valueText.text
    property bool opensPage: false
    property alias valueColor: valueText.color
    signal clicked()

    width: parent ? parent.width : 510
    height: 52
    color: area.pressed ? Colors.zirconColor : Colors.whiteColor

    Text {
        id: labelText
        anchors.left: parent.left
        anchors.leftMargin: 20
        anchors.verticalCenter: parent.verticalCenter
        width: parent.width * 0.48
        elide: Text.ElideRight
        color: Colors.deeptangaroaColor
        font.family: "Roboto"
        font.pixelSize: 17
    }
    Text {
        id: valueText
        anchors.right: parent.right
        anchors.rightMargin: row.opensPage ? 36 : 20
        anchors.verticalCenter: parent.verticalCenter
        width: parent.width * 0.44
        horizontalAlignment: Text.AlignRight
        elide: Text.ElideRight
        color: Colors.summerSkyColor
        font.family: "Roboto"
        font.pixelSize: 17
        font.weight: Font.Medium
    }
    Text {
        visible: row.opensPage
        anchors.right: parent.right
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        color: Colors.slateColor
        font.family: "Roboto"
        font.pixelSize: 20
        text: "›"
    }
    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: 1
        color: Colors.lineColor
    }
    MouseArea {
        id: area
        anchors.fill: parent
        enabled: row.opensPage
        onClicked: row.clicked()
    }
}
