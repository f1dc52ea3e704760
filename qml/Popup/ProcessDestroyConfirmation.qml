import QtQuick 2.12

// Asks before a running process is left: "Go Back" keeps it, "Cancel ..."
// ends it.
MessagePopup {
    id: popup

    property string processName: ""
    property alias setTitle: popup.title
    property alias setMessage: popup.message

    firstButtonText: qsTr("Cancel %1").arg(qsTr(processName)) + ls.translatedText
    secondButtonText: qsTr("Go Back") + ls.translatedText

    onSecondClicked: mainWindow.hidePopup()
    onFirstClicked: {
        mainWindow.hidePopup()
        if (mainWindow.processIndex === 0 || mainWindow.processIndex === 1)
            mainWindow.hideFullscreen()
        else if (mainWindow.processIndex === 2)
            sideBar.resetAndSwitchStack()
    }
}
