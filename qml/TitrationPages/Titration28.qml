import QtQuick 2.12
import "../Background"
import "../Buttons"
import "../Constants/Colors.js" as Colors

// "Method Quick View": the selected method's name, titrant, electrode,
// technique and type, with the way to use it or to change it.
PopupBackground {
    id: popup
    title: qsTr("Method Quick View") + ls.translatedText
    height: 300

    property string methodName: ""
    property bool locked: false

    function loadModelQuickView() {
        methodName = method.methodName
        toggleLockButton()
        var mka = electrode.electrodeType === "ISE-MKA"
        rows.model = [
            [qsTr("Method Name"), methodName],
            [qsTr("Titrant"), titrant.titrantName],
            [qsTr("Electrode"), electrode.electrodeName],
            [qsTr("Technique"), mka ? "" : qsTr(titration.titrationTechnique)],
            [qsTr("Type"), mka ? "" : qsTr(titration.titrationType)]
        ]
    }

    function toggleLockButton() {
        locked = method.methodPassword.length > 0
    }

    function useMethod() {
        mainWindow.hidePopup()
        methodPrecheck.changeHeaderButtonText()
        methodStack.push(methodPrecheck)
    }

    function editMethod() {
        mainWindow.hidePopup()
        if (locked)
            passwordPopupTimer.start()
        else
            titration21.editMethod()
    }

    // The password popup follows once this one has gone.
    Timer {
        id: passwordPopupTimer
        interval: 50
        onTriggered: passwordVerificationPopUp.ask(method.id, method.methodPassword)
    }

    Column {
        width: parent.width
        spacing: 6
        Repeater {
            id: rows
            Row {
                spacing: 12
                Text {
                    width: 130
                    color: Colors.slateColor
                    font.family: "Roboto"
                    font.pixelSize: 15
                    text: modelData[0] + ls.translatedText
                }
                Text {
                    width: popup.width - 40 - 142
                    elide: Text.ElideRight
                    color: Colors.deeptangaroaColor
                    font.family: "Roboto"
                    font.pixelSize: 15
                    text: modelData[1]
                }
            }
        }
    }
    Row {
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        spacing: 12
        PopupAlternateButton {
            width: 100
            text: qsTr("Close") + ls.translatedText
            onClicked: mainWindow.hidePopup()
        }
        PopupAlternateButton {
            objectName: "quickViewEdit"
            width: 140
            text: qsTr("Edit Method") + ls.translatedText
            onClicked: popup.editMethod()
        }
        PopupButton {
            objectName: "quickViewUse"
            width: 140
            text: qsTr("Use Method") + ls.translatedText
            onClicked: popup.useMethod()
        }
    }
}
