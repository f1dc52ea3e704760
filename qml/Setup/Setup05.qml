import QtQuick 2.12
import "../Background"
import "../TimeDateLang"

// Step 4: the time, in the 12- or 24-hour form. Next sets the system clock
// and keeps both.
SetupBackground {
    id: page

    function prepare() { timePage.setCurrentTime(setup.time, setup.timeFormat_Index) }

    objectName: "Time"
    title: qsTr("Set Time") + ls.translatedText
    stepText: qsTr("Setup | Step 4 of 13") + ls.translatedText

    TimePage {
        id: timePage
        anchors.centerIn: parent
    }

    onBackClicked: setupStack.pop()
    onNextClicked: {
        setup.timeFormat_Index = timePage.timeFormatIndex
        setup.time = timePage.formatTime()
        // The date part is the date just set on the previous steps.
        var day = new Date(setup.date)
        setup.setupSysDateTime2(timePage.clockTime(), isNaN(day.getTime()) ? new Date() : day)
        setup.saveHardwareClock()
        setup.setSetupValues()
        setup06.prepare()
        setupStack.push(setup06)
    }
}
