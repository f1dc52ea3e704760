import QtQuick 2.12
import "../Popup"

// A message with one "OK" button: refused input, errors, notices.
MessagePopup {
    isDynamic: true
    firstButtonText: qsTr("OK") + ls.translatedText

    function loadModel(title, message, name) {
        this.title = title
        this.message = message
    }

    onFirstClicked: mainWindow.hidePopup()
}
