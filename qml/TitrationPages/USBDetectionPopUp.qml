import QtQuick 2.12
import "../Popup"

// "USB Drive Detected": a disk with method files arrived while home is on
// show; "Yes" goes on to the choice of methods to install.
MessagePopup {
    id: popup
    title: qsTr("USB Drive Detected") + ls.translatedText
    message: qsTr("A USB drive with methods has been detected. Do you want to install these methods?") + "\n"
             + qsTr("You may choose which methods to install on the next screen.") + ls.translatedText
    firstButtonText: qsTr("Yes") + ls.translatedText
    secondButtonText: qsTr("No") + ls.translatedText

    onSecondClicked: mainWindow.hidePopup()
    onFirstClicked: {
        mainWindow.hidePopup()
        next.start()
    }

    Timer {
        id: next
        interval: 100
        onTriggered: {
            if (method.importedMethodCount === 0) {
                exportImportErrorPopUp.changeText(2)
                mainWindow.showPopup(exportImportErrorPopUp)
            } else {
                installMethodsPopUp.open()
            }
        }
    }
}
