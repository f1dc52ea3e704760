import QtQuick 2.12
import "../Background"
import "../Buttons"
import "../TimeDateLang"

// The time, on the first start's picker, in the 12- or 24-hour form. Save
// Time sets the system clock (12 AM as 00, 12 PM as 12), then the hardware
// clock, and keeps the time and its form.
MainContentBackground {
    id: page
    objectName: "Time Settings"
    header3Text: qsTr("Time") + ls.translatedText

    function setCurrentTime(text, formatIndex) { timePage.setCurrentTime(text, formatIndex) }
    function sysTime() { setup.setupSysDateTime2(timePage.clockTime(), new Date()) }
    function save() {
        sysTime()
        setup.saveHardwareClock()
        setup.time = timePage.formatTime()
        setup.timeFormat_Index = timePage.timeFormatIndex
        setup.setSetupValues()
        display01.loadModelData()
        settingsStack.pop()
    }

    TimePage {
        id: timePage
        anchors.horizontalCenter: parent.horizontalCenter
        y: 4
    }
    Row {
        x: 20
        y: 330
        spacing: 16
        PopupAlternateButton {
            objectName: "cancelTime"
            text: qsTr("Cancel") + ls.translatedText
            onClicked: settingsStack.pop()
        }
        PopupButton {
            objectName: "saveTime"
            text: qsTr("Save Time") + ls.translatedText
            onClicked: page.save()
        }
    }
}
