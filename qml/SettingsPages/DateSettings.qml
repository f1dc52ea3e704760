import QtQuick 2.12
import "../Background"
import "../Buttons"
import "../TimeDateLang"

// The date, on the first start's picker. Save Date sets the system clock's
// date (the time stays), then the hardware clock, and keeps the date.
MainContentBackground {
    id: page
    objectName: "Date Settings"
    header3Text: qsTr("Date") + ls.translatedText

    function setCurrentDate() { datePage.setCurrentDate() }
    function save() {
        var chosen = datePage.selectedDateObject()
        setup.setupSysDateTime(chosen, new Date())
        setup.saveHardwareClock()
        setup.date = chosen
        setup.setSetupValues()
        display01.loadModelData()
        settingsStack.pop()
    }

    DatePage {
        id: datePage
        anchors.horizontalCenter: parent.horizontalCenter
        y: 4
    }
    Row {
        x: 20
        y: 330
        spacing: 16
        PopupAlternateButton {
            objectName: "cancelDate"
            text: qsTr("Cancel") + ls.translatedText
            onClicked: settingsStack.pop()
        }
        PopupButton {
            objectName: "saveDate"
            text: qsTr("Save Date") + ls.translatedText
            onClicked: page.save()
        }
    }
}
