import QtQuick 2.12
import QtQuick.Controls 2.12
import "../Background"
import "../Buttons"
import "../Constants/Colors.js" as Colors
import "EntryRules.js" as EntryRules

// Name and password of a method: "Create Method" at the end of the wizard
// from the Methods section (the method and its three parts stored and made
// the current method), a copy of the selected method ("Copy Method") and a
// new name or password for it ("Edit Name and Password").
MainContentBackground {
    id: page
    objectName: "Create Method"
    header3Text: qsTr(mode) + ls.translatedText

    property string mode: "Create Method"
    property string errorMessage: ""

    function openCreate() {
        open("Create Method", "")
    }

    function openRename() {
        open("Edit Name and Password", method.methodName)
    }

    function openCopy() {
        open("Copy Method", method.methodName)
    }

    function open(title, name) {
        mode = title
        nameField.text = name
        passwordField.text = ""
        confirmField.text = ""
        errorMessage = ""
        mainWindow.currentStack.push(page)
    }

    function rename(name) {
        method.updateMethodModel(method.id, name, passwordField.text)
        if (method.success !== 1) {
            errorMessage = EntryRules.saveRefusalMessage("databaseError")
            return
        }
        dm.reInitializeMethodModel(method.id)
        titration21.populateModel()
        methodStack.pop()
        dynamicLoader.loadSuccessPopUp(qsTr("Method Updated") + ls.translatedText,
                                       name + qsTr(" - has been saved with your new settings.") + ls.translatedText, "")
    }

    // The copy is stored as a new method with the standardisation of its
    // original, and becomes the method on the edit page.
    function copy(name) {
        var original = method.id
        var refusal = dm.library.saveCurrent(name, passwordField.text)
        if (refusal !== "") {
            errorMessage = EntryRules.saveRefusalMessage(refusal)
            return
        }
        setup.currentMethodId = method.id
        setup.setSetupValues()
        dm.copyStandardization(original, method.id)
        dm.reInitializeMethodModel(method.id)
        titration21.populateModel()
        // The success message's end goes back to the edit page.
        dynamicLoader.loadSuccessPopUp(qsTr("Method Saved") + ls.translatedText,
                                       qsTr("Your method has\nbeen saved as - ") + ls.translatedText + name, "")
    }

    function save() {
        var name = nameField.text.replace(/^\s+|\s+$/g, "")
        var message = EntryRules.methodNameMessage(name, passwordField.text, confirmField.text,
                                                   mainWindow.formatNum, mainWindow.tapToTextString)
        if (message !== "") {
            errorMessage = message
            return
        }
        nameField.focus = false
        passwordField.focus = false
        Qt.inputMethod.hide()
        if (mode === "Edit Name and Password") {
            rename(name)
            return
        }
        if (mode === "Copy Method") {
            copy(name)
            return
        }
        var refusal = dm.library.saveCurrent(name, passwordField.text)
        if (refusal !== "") {
            errorMessage = EntryRules.saveRefusalMessage(refusal)
            return
        }
        setup.currentMethodId = method.id
        setup.setSetupValues()
        titration21.populateModel()
        methodStack.pop()
        methodStack.pop()
        methodStack.pop()
        dynamicLoader.loadSuccessPopUp(qsTr("Method Saved") + ls.translatedText,
                                       qsTr("Your method has\nbeen saved as - ") + ls.translatedText + name, "")
    }

    // The button and the message stand beside the fields, above the keyboard.
    Column {
        id: side
        anchors.right: parent.right
        anchors.rightMargin: 24
        y: 14
        width: 150
        spacing: 10
        PopupButton {
            objectName: "createMethodSave"
            width: side.width
            text: qsTr("Save") + ls.translatedText
            onClicked: page.save()
        }
        Text {
            width: side.width
            wrapMode: Text.WordWrap
            color: Colors.orangepeelColor
            font.family: "Roboto"
            font.pixelSize: 14
            text: page.errorMessage === "" ? "" : qsTr(page.errorMessage) + ls.translatedText
        }
    }
    // All three fields stand above the keyboard.
    Column {
        id: form
        x: 30
        y: 6
        width: side.x - 30 - 20
        spacing: 2
        Text { text: qsTr("Method Name") + ls.translatedText; font.family: "Roboto"; font.pixelSize: 14; color: Colors.slateColor }
        TextField {
            id: nameField
            objectName: "methodNameField"
            width: form.width
            height: 40
            maximumLength: 20
            placeholderText: mainWindow.tapToTextString
            onActiveFocusChanged: if (activeFocus) page.errorMessage = ""
        }
        Text { text: qsTr("Password (Optional)") + ls.translatedText; font.family: "Roboto"; font.pixelSize: 14; color: Colors.slateColor }
        TextField {
            id: passwordField
            objectName: "passwordField"
            width: form.width
            height: 40
            maximumLength: 20
            echoMode: TextInput.Password
            placeholderText: mainWindow.tapToTextString
            onActiveFocusChanged: if (activeFocus) page.errorMessage = ""
        }
        Text { text: qsTr("Confirm Password") + ls.translatedText; font.family: "Roboto"; font.pixelSize: 14; color: Colors.slateColor }
        TextField {
            id: confirmField
            objectName: "confirmPasswordField"
            width: form.width
            height: 40
            maximumLength: 20
            echoMode: TextInput.Password
            placeholderText: mainWindow.tapToTextString
            onActiveFocusChanged: if (activeFocus) page.errorMessage = ""
        }
    }
}
