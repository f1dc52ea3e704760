import QtQuick 2.12
import "../Background"
import "../TimeDateLang"

// The burette's installation date, from the last step of the first start.
SetupBackground {
    id: page

    function prepare() { datePage.setCurrentDate() }

    objectName: "Burette Installation Date"
    title: qsTr("Installation Date") + ls.translatedText
    stepText: qsTr("Setup | Step 13 of 13") + ls.translatedText
    nextText: qsTr("Save Date") + ls.translatedText
    backText: qsTr("Cancel") + ls.translatedText

    DatePage {
        id: datePage
        anchors.centerIn: parent
        fromBurette: true
    }

    onBackClicked: setupStack.pop()
    onNextClicked: {
        setup.installationDate = String(datePage.selectedDateObject().getTime())
        setup.setSetupValues()
        setUpBuretteSize.formatDate()
        setupStack.pop()
    }
}
