import QtQuick 2.12
import "../Background"
import "../Buttons"
import "../TimeDateLang"

// The language, on the first start's picker. Save changes every text and
// the keyboard at once.
MainContentBackground {
    id: page
    objectName: "Language Settings"
    header3Text: qsTr("Language") + ls.translatedText

    function setCurrentLanguage(language) { langPage.setCurrentLanguage(language) }
    function save() {
        setup.language = langPage.selectedLanguage
        mainWindow.changeKeyboardLanguage()
        setup.setSetupValues()
        display01.reIntializeUI()
        display01.loadModelData()
        settingsStack.pop()
    }

    LanguagePage {
        id: langPage
        anchors.horizontalCenter: parent.horizontalCenter
        y: 20
    }
    Row {
        x: 20
        y: 330
        spacing: 16
        PopupAlternateButton {
            objectName: "cancelLanguage"
            text: qsTr("Cancel") + ls.translatedText
            onClicked: settingsStack.pop()
        }
        PopupButton {
            objectName: "saveLanguage"
            text: qsTr("Save") + ls.translatedText
            onClicked: page.save()
        }
    }
}
