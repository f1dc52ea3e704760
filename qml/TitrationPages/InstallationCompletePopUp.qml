import QtQuick 2.12
import "../Popup"

// The end of an installation: home, or the method list with the new methods.
MessagePopup {
    title: qsTr("Installation Complete") + ls.translatedText
    message: qsTr("Your methods have been installed.") + "\n" + qsTr("You may now remove your USB drive.") + ls.translatedText
    firstButtonText: qsTr("View Methods") + ls.translatedText
    secondButtonText: qsTr("Return to Home") + ls.translatedText
    onFirstClicked: {
        mainWindow.hidePopup()
        titration21.populateModel()
    }
    onSecondClicked: {
        mainWindow.hidePopup()
        sideBar.switchToHome(false)
    }
}
