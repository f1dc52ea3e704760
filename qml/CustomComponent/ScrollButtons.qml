import QtQuick 2.12
import "../Constants/Colors.js" as Colors
import "../Constants/Icons.js" as Icons

// Two buttons beside a list that move it by a page, for lists longer than
// the screen (a flick does the same).
Column {
    id: buttons

    property Flickable target: null
    property string namePrefix: "list"
    readonly property bool needed: target !== null && target.contentHeight > target.height + 1

    visible: needed
    width: 44
    spacing: 8

    function step(direction) {
        var maxY = Math.max(0, target.contentHeight - target.height)
        var y = target.contentY + direction * (target.height - 46)
        target.contentY = Math.max(0, Math.min(maxY, y))
    }

    Repeater {
        model: [-1, 1]
        Rectangle {
            objectName: buttons.namePrefix + (modelData < 0 ? "Up" : "Down")
            width: 44
            height: 44
            radius: 22
            color: tap.pressed ? Colors.zirconColor : Colors.whiteColor
            border.color: Colors.lineColor
            enabled: buttons.target !== null && (modelData < 0 ? !buttons.target.atYBeginning : !buttons.target.atYEnd)
            opacity: enabled ? 1 : 0.4
            Text {
                anchors.centerIn: parent
                font.family: Icons.fontFamily
                font.pixelSize: 24
                color: Colors.summerSkyColor
                text: modelData < 0 ? Icons.arrowUp : Icons.arrowDown
            }
            MouseArea {
                id: tap
                anchors.fill: parent
                onClicked: buttons.step(modelData)
            }
        }
    }
}
