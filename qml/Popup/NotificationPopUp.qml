import QtQuick 2.12

// A notification of the instrument (calibration due, log full, maintenance):
// "Ignore" closes it; the second button, when there is one, opens the logs.
MessagePopup {
    isDynamic: true
    firstButtonText: qsTr("Ignore") + ls.translatedText

    function loadModel(title, message, name) {
        this.title = title
        this.message = message
        secondButtonText = name ? name : ""
    }

    onFirstClicked: mainWindow.hidePopup()
    onSecondClicked: {
        sideBar.switchToLogs(true)
        mainWindow.hidePopup()
    }
}
