import QtQuick 2.12
import "../Constants/Colors.js" as Colors
import "../Constants/Icons.js" as Icons
import "../Popup"

// "Titrant Standardized" at the end of a standardisation asked for before a
// run: Continue goes to the run's pre-check, the cross goes home.
MessagePopup {
    id: popup
    // The pre-check was reached by repeating the last titration (home).
    property bool isFromRepeatButton: false

    title: qsTr("Titrant Standardized") + ls.translatedText
    message: qsTr("The titrant has been successfully standardized.") + ls.translatedText
    firstButtonText: qsTr("Continue") + ls.translatedText

    onFirstClicked: {
        mainWindow.hidePopup()
        offerChain.toPreCheck()
    }

    function closeToHome() {
        mainWindow.hidePopup()
        mainWindow.resetProcessIndex()
        titration01.updateUI()
        titrationStack.pop(titration01)
        sideBar.resetBackButton()
    }

    Text {
        objectName: "titration15Close"
        parent: popup
        anchors.right: parent.right
        anchors.top: parent.top
        width: 52
        height: 52
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        font.family: Icons.fontFamily
        font.pixelSize: 28
        color: Colors.whiteColor
        text: Icons.close
        MouseArea {
            anchors.fill: parent
            onClicked: popup.closeToHome()
        }
    }
}
