import QtQuick 2.12
import "../Constants/Colors.js" as Colors
import "../Constants/Icons.js" as Icons

// The mark of a reading: a still tick when stable, a blinking timer while it
// settles.
Row {
    id: mark

    property bool stable: false

    spacing: 6
    opacity: 1
    onStableChanged: if (stable) opacity = 1

    Timer {
        interval: 500
        repeat: true
        running: !mark.stable && mark.visible
        onTriggered: mark.opacity = mark.opacity > 0.5 ? 0.25 : 1
    }
    Text {
        font.family: Icons.fontFamily
        font.pixelSize: 26
        color: mark.stable ? Colors.greenColor : Colors.slateColor
        text: mark.stable ? Icons.done : Icons.timer
    }
    Text {
        anchors.verticalCenter: parent.verticalCenter
        font.family: "Roboto"
        font.pixelSize: 15
        color: mark.stable ? Colors.greenColor : Colors.slateColor
        text: mark.stable ? qsTr("Stable") + ls.translatedText : qsTr("Settling") + ls.translatedText
    }
}
