import QtQuick 2.12
import QtQuick.Controls 2.12
import "../Constants/Colors.js" as Colors
import "../Constants/Icons.js" as Icons
import "DateTimeMath.js" as DateTimeMath

// One wheel of a picker: an arrow above (the value before), the wheel, an
// arrow below (the value after); the arrows wrap round at the ends. The
// arrows and the wheel are named after the picker's objectName ("Up",
// "Down", "Wheel") for the UI driver.
Column {
    id: picker

    property alias model: wheel.model
    property alias currentIndex: wheel.currentIndex
    readonly property int count: wheel.count
    // The text of a row; the row's modelData by default.
    property var textOf: function(index, modelData) { return String(modelData) }
    property int wheelWidth: 150
    property int fontSize: 22
    property bool wrapAround: true

    function settle() {
        wheel.positionViewAtIndex(wheel.currentIndex, Tumbler.Center)
    }
    function step(by) {
        // One row at once, without the turn of a flick: taps in quick
        // succession each count.
        wheel.currentIndex = DateTimeMath.wrap(wheel.currentIndex, by, wheel.count)
        wheel.positionViewAtIndex(wheel.currentIndex, Tumbler.Center)
    }

    spacing: 4
    width: wheelWidth

    Rectangle {
        id: upButton
        objectName: picker.objectName + "Up"
        width: picker.wheelWidth
        height: 40
        radius: 4
        color: upArea.pressed ? Colors.zirconColor : "transparent"
        Text {
            anchors.centerIn: parent
            font.family: Icons.fontFamily
            font.pixelSize: 30
            color: Colors.summerSkyColor
            text: Icons.arrowUp
        }
        MouseArea { id: upArea; anchors.fill: parent; onClicked: picker.step(-1) }
    }
    Tumbler {
        id: wheel
        objectName: picker.objectName + "Wheel"
        width: picker.wheelWidth
        height: 156
        visibleItemCount: 3
        wrap: picker.wrapAround
        clip: true
        // An index set while the page was hidden is not where the wheel
        // stands: it is put there when the wheel shows.
        // The same after a change of model (the hour list of 12 or 24).
        onVisibleChanged: if (visible) Qt.callLater(picker.settle)
        onModelChanged: Qt.callLater(picker.settle)
        delegate: Text {
            text: picker.textOf(index, modelData)
            color: Colors.deeptangaroaColor
            font.family: "Roboto"
            font.pixelSize: picker.fontSize
            font.weight: Tumbler.displacement === 0 ? Font.Medium : Font.Normal
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            elide: Text.ElideRight
            opacity: 1.0 - Math.abs(Tumbler.displacement) / (wheel.visibleItemCount / 2 + 0.5)
        }
        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            width: parent.width
            height: parent.height / wheel.visibleItemCount
            color: "transparent"
            border.color: Colors.summerSkyColor
            radius: 4
        }
    }
    Rectangle {
        id: downButton
        objectName: picker.objectName + "Down"
        width: picker.wheelWidth
        height: 40
        radius: 4
        color: downArea.pressed ? Colors.zirconColor : "transparent"
        Text {
            anchors.centerIn: parent
            font.family: Icons.fontFamily
            font.pixelSize: 30
            color: Colors.summerSkyColor
            text: Icons.arrowDown
        }
        MouseArea { id: downArea; anchors.fill: parent; onClicked: picker.step(1) }
    }
}
