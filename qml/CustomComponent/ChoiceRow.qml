import QtQuick 2.12
import QtQuick.Controls 2.12
import "../Constants/Colors.js" as Colors

// A settings row whose value is one of a list, chosen from a drop-down.
Rectangle {
    id: row

    property alias label: labelText.text
    property var options: []
    property alias currentIndex: box.currentIndex
    // Room on the right, for a row that lies under the window's tip corner.
    property int boxRightMargin: 12
    readonly property string currentText: box.currentText
    signal chosen(int index, string text)

    // Shows `text` without telling anyone; -1 when it is not an option.
    function select(text) {
        box.currentIndex = options.indexOf(text)
    }

    width: parent ? parent.width : 510
    height: 52
    color: Colors.whiteColor

    Text {
        id: labelText
        anchors.left: parent.left
        anchors.leftMargin: 20
        anchors.verticalCenter: parent.verticalCenter
        width: parent.width * 0.45
        elide: Text.ElideRight
        color: Colors.deeptangaroaColor
        font.family: "Roboto"
        font.pixelSize: 17
    }
    ComboBox {
        id: box
        objectName: row.objectName + "Box"
        anchors.right: parent.right
        anchors.rightMargin: row.boxRightMargin
        anchors.verticalCenter: parent.verticalCenter
        width: parent.width * 0.46
        height: Math.min(48, row.height - 2)
        font.family: "Roboto"
        font.pixelSize: 16
        model: row.options
        onActivated: row.chosen(index, textAt(index))
        // The list opens and closes at once, and a tap beside it only
        // closes it: the page under it never takes that tap.
        Component.onCompleted: {
            popup.enter = null
            popup.exit = null
            popup.modal = true
            popup.dim = false
        }
    }
    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: 1
        color: Colors.lineColor
    }
}
