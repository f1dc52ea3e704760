import QtQuick 2.12
import QtQuick.Controls 2.12
import "../Background"
import "../Buttons"
import "../Constants/Colors.js" as Colors

// "Enter Password": a protected method opens for changes only with its
// password; a wrong one empties the field and says so.
PopupBackground {
    id: popup
    title: qsTr("Enter Password") + ls.translatedText
    height: 264
    y: 8

    property int methodId: 0
    property string expected: ""
    property bool wrong: false

    function ask(id, password) {
        methodId = id
        expected = password
        wrong = false
        field.text = ""
        mainWindow.showPopup(popup)
    }

    function submit() {
        if (field.text === "" || field.text !== expected) {
            field.text = ""
            wrong = true
            return
        }
        field.focus = false
        Qt.inputMethod.hide()
        mainWindow.hidePopup()
        titration21.editMethod()
    }

    Column {
        width: parent.width
        spacing: 8
        Text {
            width: parent.width
            wrapMode: Text.WordWrap
            color: Colors.deeptangaroaColor
            font.family: "Roboto"
            font.pixelSize: 15
            text: qsTr("This method has been password protected. Please enter the password to make changes.") + ls.translatedText
        }
        TextField {
            id: field
            objectName: "methodPasswordField"
            width: parent.width
            height: 44
            maximumLength: 20
            echoMode: activeFocus ? TextInput.Password : TextInput.Normal
            placeholderText: qsTr("Tap to enter password") + ls.translatedText
            onActiveFocusChanged: if (activeFocus) popup.wrong = false
        }
        Text {
            height: 20
            color: Colors.orangepeelColor
            font.family: "Roboto"
            font.pixelSize: 14
            text: popup.wrong ? qsTr("Invalid Password") + ls.translatedText : ""
        }
        Row {
            anchors.right: parent.right
            spacing: 16
            PopupAlternateButton {
                text: qsTr("Cancel") + ls.translatedText
                onClicked: {
                    field.focus = false
                    Qt.inputMethod.hide()
                    mainWindow.hidePopup()
                }
            }
            PopupButton {
                objectName: "passwordSubmit"
                text: qsTr("Submit") + ls.translatedText
                onClicked: popup.submit()
            }
        }
    }
}
