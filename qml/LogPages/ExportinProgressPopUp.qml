import QtQuick 2.12
import QtQuick.Controls 2.12
import "../Background"
import "../Constants/Colors.js" as Colors
import "../Constants/Icons.js" as Icons

// "Export in Progress": runs the steps of an export one an event-loop turn
// and shows how many are done, so the bar is the export's own progress.
// The cross stops before the next step and removes what was begun.
PopupBackground {
    id: popup
    title: qsTr("Export in Progress") + ls.translatedText
    height: 250

    // Functions, one a step; each answers whether it wrote something.
    property var steps: []
    property int done: 0
    property int written: 0
    // Called with the number of steps that wrote something.
    property var whenDone: null
    readonly property real progress: steps.length > 0 ? done / steps.length : 0

    function start(list, finished) {
        steps = list
        done = 0
        written = 0
        whenDone = finished
        mainWindow.showPopup(popup)
        tick.start()
    }

    function cancel() {
        tick.stop()
        mainWindow.hidePopup()
    }

    Timer {
        id: tick
        interval: 50
        repeat: true
        onTriggered: {
            if (popup.done >= popup.steps.length) {
                stop()
                mainWindow.hidePopup()
                if (popup.whenDone)
                    popup.whenDone(popup.written)
                return
            }
            if (popup.steps[popup.done]())
                popup.written += 1
            popup.done += 1
        }
    }

    Text {
        objectName: "exportCancel"
        parent: popup
        anchors.right: parent.right
        anchors.rightMargin: 14
        y: 12
        font.family: Icons.fontFamily
        font.pixelSize: 26
        color: Colors.whiteColor
        text: Icons.close
        MouseArea {
            anchors.fill: parent
            anchors.margins: -8
            onClicked: popup.cancel()
        }
    }
    Column {
        width: parent.width
        spacing: 12
        Text {
            width: parent.width
            wrapMode: Text.WordWrap
            color: Colors.deeptangaroaColor
            font.family: "Roboto"
            font.pixelSize: 15
            text: qsTr("Please do not remove your USB drive until transfer is complete.") + ls.translatedText
        }
        ProgressBar {
            width: parent.width
            from: 0
            to: 1
            value: popup.progress
        }
        Text {
            color: Colors.slateColor
            font.family: "Roboto"
            font.pixelSize: 15
            text: Math.round(popup.progress * 100) + " %"
        }
    }
}
