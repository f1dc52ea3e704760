import QtQuick 2.12
import "../Constants/Colors.js" as Colors
import "../Constants/Icons.js" as Icons

// A list of names with check boxes for the method popups; `toggled` asks
// the owner, whose answer decides whether the mark stands.
ListView {
    id: list

    property var marks: ({})
    property string namePrefix: "check"
    // function(id, checked) -> bool
    property var decide: null

    clip: true
    spacing: 4
    boundsBehavior: Flickable.StopAtBounds

    function isMarked(id) { return marks[id] === true }
    function clearMarks() { marks = ({}) }

    delegate: Rectangle {
        objectName: list.namePrefix + index
        width: list.width
        height: 40
        radius: 4
        color: area.pressed ? Colors.zirconColor : Colors.whiteColor
        border.color: Colors.lineColor
        Text {
            id: box
            anchors.left: parent.left
            anchors.leftMargin: 8
            anchors.verticalCenter: parent.verticalCenter
            font.family: Icons.fontFamily
            font.pixelSize: 24
            color: Colors.summerSkyColor
            text: list.isMarked(modelData.id) ? Icons.checked : Icons.unchecked
        }
        Text {
            anchors.left: box.right
            anchors.leftMargin: 10
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            elide: Text.ElideRight
            color: Colors.deeptangaroaColor
            font.family: "Roboto"
            font.pixelSize: 16
            text: modelData.methodName
        }
        MouseArea {
            id: area
            anchors.fill: parent
            onClicked: {
                var id = modelData.id
                var m = Object.assign({}, list.marks)
                m[id] = list.decide ? list.decide(id, !list.isMarked(id)) : !list.isMarked(id)
                list.marks = m
            }
        }
    }
}
