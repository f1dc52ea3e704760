import QtQuick 2.12
import "../Background"
import "../TimeDateLang"

// Step 1 of the first start: the language. Next stores it and the whole
// interface and the keyboard change to it at once.
SetupBackground {
    id: page

    function prepare() { languagePage.setCurrentLanguage(setup.language) }

    objectName: "Language"
    title: qsTr("Select Language") + ls.translatedText
    stepText: qsTr("Setup | Step 1 of 13") + ls.translatedText
    backVisible: false

    LanguagePage {
        id: languagePage
        anchors.centerIn: parent
    }

    onNextClicked: {
        setup.language = languagePage.selectedLanguage
        mainWindow.changeKeyboardLanguage()
        setup.setSetupValues()
        display01.reIntializeUI()
        display01.loadModelData()
        setup03.prepare()
        setupStack.push(setup03)
    }
}
