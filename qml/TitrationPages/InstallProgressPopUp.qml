import QtQuick 2.12
import QtQuick.Controls 2.12
import "../Background"
import "../Buttons"
import "../Constants/Colors.js" as Colors

// Installs the chosen methods one a tick; the bar shows how many are in.
// "Cancel" stops before the next one.
PopupBackground {
    id: popup
    title: qsTr("Installing Methods") + ls.translatedText
    height: 230

    property var list: []
    property int done: 0
    property int countBefore: 0

    function start(ids) {
        list = ids
        done = 0
        countBefore = dm.methodCount
        mainWindow.showPopup(popup)
        tick.start()
    }

    function finish() {
        tick.stop()
        titration21.populateModel()
        mainWindow.hidePopup()
        if (dm.methodCount > countBefore) {
            mainWindow.showPopup(installationCompletePopUp)
        } else if (done > 0) {
            exportImportErrorPopUp.changeText(4)
            mainWindow.showPopup(exportImportErrorPopUp)
        }
    }

    Timer {
        id: tick
        interval: 200
        repeat: true
        onTriggered: {
            if (popup.done >= popup.list.length) {
                popup.finish()
                return
            }
            method.listToDb([popup.list[popup.done]])
            popup.done += 1
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
            font.pixelSize: 16
            text: qsTr("Installing methods: ") + ls.translatedText + popup.done + " / " + popup.list.length
        }
        ProgressBar {
            width: parent.width
            from: 0
            to: Math.max(1, popup.list.length)
            value: popup.done
        }
    }
    PopupAlternateButton {
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        text: qsTr("Cancel") + ls.translatedText
        onClicked: popup.finish()
    }
}
