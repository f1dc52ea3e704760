import QtQuick 2.12
import "../Popup"

// "Export Complete", once every step of an export has run.
MessagePopup {
    title: qsTr("Export Complete") + ls.translatedText
    message: qsTr("Export completed!") + "\n" + qsTr("You may now remove your USB drive.") + ls.translatedText
    firstButtonText: qsTr("Close") + ls.translatedText
    onFirstClicked: mainWindow.hidePopup()
}
