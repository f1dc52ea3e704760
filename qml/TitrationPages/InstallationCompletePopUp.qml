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
        if (mainWindow.currentStack === methodStack)
            titration21.populateModel()
        else
            sideBar.switchToMethods(false)
    }
    onSecondClicked: {
        mainWindow.hidePopup()
        sideBar.switchToHome(false)
    }
}
