import QtQuick 2.12
import QtQuick.Controls 2.12
import "../Background"
import "../Buttons"
import "../Constants/Colors.js" as Colors

// A popup that asks for one value: a field (with a unit after it), the
// message of a refused value in orange, and two buttons. It moves up while
// the keyboard is on show so that its buttons stay in reach.
PopupBackground {
    id: popup

    property alias field: field
    property alias unit: unitLabel.text
    // The name of the field before it, and the hint in it while it is empty.
    property alias label: fieldLabel.text
    property alias placeholder: field.placeholderText
    property alias errorText: errorLabel.text
    property bool errorMessageVisibility: false
    property string textInputLastValue: ""
    property alias firstButtonText: firstButton.text
    property alias secondButtonText: secondButton.text
    // Letters are taken out of the field as they are typed.
    property bool numeric: true
    property int maxChars: 20
    signal firstClicked()
    signal secondClicked()

    height: 52 + 20 + 48 + 8 + 44 + 48 + 20
    y: Qt.inputMethod.visible ? 8 : (mainWindow.height - height) / 2

    function refuse(message) {
        errorText = message
        errorMessageVisibility = true
    }

    onVisibleChanged: {
        if (visible) {
            field.text = textInputLastValue
            errorMessageVisibility = false
        }
    }

    Row {
        width: parent.width
        spacing: 12
        Text {
            id: fieldLabel
            visible: text !== ""
            anchors.verticalCenter: parent.verticalCenter
            color: Colors.slateColor
            font.family: "Roboto"
            font.pixelSize: 17
        }
        TextField {
            id: field
            objectName: "entryField"
            width: parent.width - unitLabel.width - 12 - (fieldLabel.visible ? fieldLabel.width + 12 : 0)
            height: 48
            font.pixelSize: 18
            inputMethodHints: popup.numeric ? Qt.ImhFormattedNumbersOnly : Qt.ImhNoPredictiveText
            onActiveFocusChanged: {
                if (activeFocus) {
                    popup.textInputLastValue = text
                    text = ""
                } else if (text === "") {
                    text = popup.textInputLastValue
                }
            }
            onTextChanged: {
                var cleaned = popup.numeric ? text.replace(/[A-Za-z]/g, "") : text
                if (cleaned.length > popup.maxChars)
                    cleaned = cleaned.substring(0, popup.maxChars)
                if (cleaned !== text) {
                    var at = Math.min(cursorPosition, cleaned.length)
                    text = cleaned
                    cursorPosition = at
                }
            }
        }
        Text {
            id: unitLabel
            anchors.verticalCenter: parent.verticalCenter
            color: Colors.slateColor
            font.pixelSize: 17
        }
    }
    Text {
        id: errorLabel
        objectName: "entryError"
        y: 56
        width: parent.width
        height: 44
        visible: popup.errorMessageVisibility
        wrapMode: Text.WordWrap
        color: Colors.orangepeelColor
        font.pixelSize: 14
    }
    Row {
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        spacing: 16
        PopupAlternateButton {
            id: secondButton
            onClicked: popup.secondClicked()
        }
        PopupButton {
            id: firstButton
            onClicked: {
                field.focus = false
                Qt.inputMethod.commit()
                popup.firstClicked()
            }
        }
    }
}
