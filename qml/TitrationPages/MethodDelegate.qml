import QtQuick 2.12
import "../Constants/Colors.js" as Colors
import "../Constants/Icons.js" as Icons

// One row of the method list. A swipe to the left opens the delete area;
// a tap on delete fades the name away, and a tap on the fading row undoes
// it. Once faded the row hides and waits for the list to delete it.
Flickable {
    id: row

    property string methodName: ""
    property bool locked: false
    property int rowIndex: 0
    readonly property bool fading: fadeaway.running
    readonly property int deleteWidth: 96
    signal nameTapped()
    signal editTapped()
    signal deleted()

    objectName: "methodRow" + rowIndex
    height: 56
    contentWidth: width + deleteWidth
    contentHeight: height
    flickableDirection: Flickable.HorizontalFlick
    boundsBehavior: Flickable.StopAtBounds
    interactive: !fading
    clip: true

    // Less than 20 pixels open flicks back; more stays open at delete.
    onMovementEnded: contentX = contentX < 20 ? 0 : deleteWidth
    Behavior on contentX { enabled: !row.moving; NumberAnimation { duration: 120 } }

    function undoDeleteMethod() {
        face.opacity = 1
        fadeaway.stop()
        face.opacity = 1
        contentX = 0
    }

    Rectangle {
        id: face
        width: row.width
        height: row.height
        radius: 4
        color: nameArea.pressed ? Colors.zirconColor : Colors.whiteColor
        border.color: Colors.lineColor
        Text {
            // The name stays where it stands while the row slides open, so
            // the user sees which method the delete area is for.
            anchors.left: parent.left
            anchors.leftMargin: 16 + Math.max(0, row.contentX)
            anchors.right: lockMark.left
            anchors.rightMargin: 8
            anchors.verticalCenter: parent.verticalCenter
            elide: Text.ElideRight
            text: row.methodName
            color: Colors.deeptangaroaColor
            font.pixelSize: 18
        }
        Text {
            id: lockMark
            objectName: "methodLock" + row.rowIndex
            anchors.right: editMark.left
            anchors.verticalCenter: parent.verticalCenter
            width: 32
            visible: row.locked
            font.family: Icons.fontFamily
            font.pixelSize: 20
            color: Colors.slateColor
            text: Icons.lock
        }
        MouseArea {
            id: nameArea
            objectName: "methodName" + row.rowIndex
            anchors.left: parent.left
            anchors.right: editMark.left
            height: parent.height
            onClicked: row.fading ? row.undoDeleteMethod() : row.nameTapped()
        }
        Rectangle {
            id: editMark
            objectName: "editMethod" + row.rowIndex
            anchors.right: parent.right
            width: 56
            height: parent.height
            color: editArea.pressed ? Colors.zirconColor : "transparent"
            Text {
                anchors.centerIn: parent
                font.family: Icons.fontFamily
                font.pixelSize: 24
                color: Colors.summerSkyColor
                text: Icons.edit
            }
            MouseArea {
                id: editArea
                anchors.fill: parent
                onClicked: row.fading ? row.undoDeleteMethod() : row.editTapped()
            }
        }
        NumberAnimation {
            id: fadeaway
            target: face
            property: "opacity"
            from: 1
            to: 0
            duration: 3000
            onStopped: {
                if (face.opacity === 0)
                    row.deleted()
            }
        }
    }
    Rectangle {
        objectName: "deleteMethod" + row.rowIndex
        x: row.width
        width: row.deleteWidth
        height: row.height
        radius: 4
        color: deleteArea.pressed ? Colors.pressedColor : Colors.orangepeelColor
        Text {
            anchors.centerIn: parent
            color: Colors.whiteColor
            font.family: "Roboto"
            font.pixelSize: 16
            font.weight: Font.Medium
            text: qsTr("Delete") + ls.translatedText
        }
        MouseArea {
            id: deleteArea
            anchors.fill: parent
            onClicked: {
                row.contentX = 0
                fadeaway.start()
            }
        }
    }
}
