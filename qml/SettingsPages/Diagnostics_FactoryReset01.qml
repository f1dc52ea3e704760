import QtQuick 2.12
import QtQuick.Controls 2.12
import "../Background"
import "../Buttons"
import "../Constants/Colors.js" as Colors

// The factory reset under way: two seconds in which Cancel still stops it,
// then the settings go back to their factory values, the methods are kept
// when asked, the database is emptied and the application restarts.
MainContentBackground {
    id: page
    objectName: "Factory Reset Progress"
    header3Text: qsTr("Factory reset in progress...") + ls.translatedText

    property bool isChecked: false
    property int progress: 0

    function startTimer() {
        progress = 0
        simpletimer.start()
    }
    function cancel() {
        simpletimer.stop()
        settingsStack.pop()
    }
    function reset() {
        setup.resetSetupValues()
        if (isChecked)
            rm.backupMethods()
        // A database that could not be emptied stays, with its message on
        // show; the application restarts only after a reset that was done.
        if (rm.wipeDatabase()) {
            rm.restartApp()
        } else {
            busy_popup.state = "nullState"
            settingsStack.pop()
        }
    }

    // Leaving the page before the bar is full is a cancel too.
    onVisibleChanged: {
        if (!visible && simpletimer.running)
            simpletimer.stop()
    }

    Timer {
        id: simpletimer
        interval: 20
        repeat: true
        onTriggered: {
            page.progress += 1
            if (page.progress >= 100) {
                stop()
                busy_popup.state = "factoryReset"
                restartTimer.start()
            }
        }
    }
    Timer {
        id: restartTimer
        interval: 500
        onTriggered: page.reset()
    }

    ProgressBar {
        objectName: "factoryResetProgress"
        x: 40
        y: 80
        width: 470
        from: 0
        to: 100
        value: page.progress
    }
    Text {
        x: 40
        y: 110
        font.family: "Roboto"
        font.pixelSize: 18
        color: Colors.deeptangaroaColor
        text: page.progress + " %"
    }
    PopupAlternateButton {
        objectName: "cancelFactoryReset"
        x: 20
        y: 300
        enabled: page.progress < 100
        text: qsTr("Cancel") + ls.translatedText
        onClicked: page.cancel()
    }
}
