import QtQuick 2.12
import QtQuick.Controls 2.12
import "../Background"
import "../Buttons"
import "../Constants/Colors.js" as Colors
import "EntryRules.js" as EntryRules

// "Save Method": the name and password of a setup built from home, kept as
// a method before the run. A success makes it the current method and
// signals `methodSaved`, where the offers before the run go on.
PopupBackground {
    id: popup
    title: qsTr("Save Method") + ls.translatedText
    // High on the screen: the keyboard takes the lower part.
    height: 264
    y: 8

    property string errorMessage: ""
    property string errorField: ""
    signal methodSaved()
    signal cancelled()

    // Saved or not, the run comes next (once saved, after "Method Saved").
    onCancelled: titration07.goOn()

    function errorToggle() {
        errorMessage = ""
        errorField = ""
    }

    function reset() {
        nameField.text = ""
        passwordField.text = ""
        errorToggle()
    }

    function save() {
        errorToggle()
        var name = nameField.text.replace(/^\s+|\s+$/g, "")
        var r = EntryRules.saveMethodMessage(name, passwordField.text, mainWindow.formatNum, mainWindow.tapToTextString)
        if (r.message !== "") {
            errorMessage = r.message
            errorField = r.field
            return
        }
        nameField.focus = false
        passwordField.focus = false
        Qt.inputMethod.hide()
        var refusal = dm.library.saveCurrent(name, passwordField.text)
        if (refusal !== "") {
            errorMessage = EntryRules.saveRefusalMessage(refusal)
            errorField = "name"
            return
        }
        dm.reInitializeMethodModel(method.id)
        electrode.methodId = method.id
        titrant.methodId = method.id
        titration.methodId = method.id
        setup.currentMethodId = method.id
        setup.setSetupValues()
        electrode.setElectrodeSetupValues()
        titrant.setTitrantSetupValues(electrode.electrodeType, true)
        titration.setTitrationSetupValues(electrode.electrodeType)
        dynamicLoader.loadSuccessPopUp(qsTr("Method Saved") + ls.translatedText,
                                       qsTr("Your method has\nbeen saved as - ") + ls.translatedText + name, "")
        methodSaved()
    }

    Column {
        width: parent.width
        spacing: 8
        Row {
            spacing: 12
            Text { width: 110; anchors.verticalCenter: parent.verticalCenter; text: qsTr("Method Name") + ls.translatedText
                   font.family: "Roboto"; font.pixelSize: 15; color: popup.errorField === "name" ? Colors.orangepeelColor : Colors.slateColor }
            TextField {
                id: nameField
                objectName: "saveMethodName"
                width: 300
                height: 44
                maximumLength: 20
                placeholderText: mainWindow.tapToTextString
            }
        }
        Row {
            spacing: 12
            Text { width: 110; anchors.verticalCenter: parent.verticalCenter; text: qsTr("Password") + ls.translatedText
                   font.family: "Roboto"; font.pixelSize: 15; color: popup.errorField === "password" ? Colors.orangepeelColor : Colors.slateColor }
            TextField {
                id: passwordField
                objectName: "saveMethodPassword"
                width: 300
                height: 44
                maximumLength: 20
                echoMode: TextInput.Password
                placeholderText: mainWindow.tapToTextString
            }
        }
        Text {
            width: parent.width
            height: 20
            wrapMode: Text.WordWrap
            color: Colors.orangepeelColor
            font.family: "Roboto"
            font.pixelSize: 14
            text: popup.errorMessage === "" ? "" : qsTr(popup.errorMessage) + ls.translatedText
        }
        Row {
            anchors.right: parent.right
            spacing: 16
            PopupAlternateButton {
                text: qsTr("Cancel") + ls.translatedText
                onClicked: {
                    Qt.inputMethod.hide()
                    mainWindow.hidePopup()
                    popup.cancelled()
                }
            }
            PopupButton {
                objectName: "saveMethodSave"
                text: qsTr("Save") + ls.translatedText
                onClicked: popup.save()
            }
        }
    }
}
