import QtQuick 2.12
import "../Background"
import "../TimeDateLang"

// Step 2: the date. Next sets the system clock's date and keeps it.
SetupBackground {
    id: page

    // An interrupted first start shows the date it saved; else today.
    function prepare() {
        var saved = new Date(setup.date)
        if (isNaN(saved.getTime()))
            datePage.setCurrentDate()
        else
            datePage.setDate(saved)
    }

    objectName: "Date"
    title: qsTr("Set Date") + ls.translatedText
    stepText: qsTr("Setup | Step 2 of 13") + ls.translatedText

    DatePage {
        id: datePage
        anchors.centerIn: parent
    }

    onBackClicked: setupStack.pop()
    onNextClicked: {
        var chosen = datePage.selectedDateObject()
        setup.setupSysDateTime(chosen, new Date())
        setup.saveHardwareClock()
        setup.installationDate = ""
        setup.date = chosen
        setup.setSetupValues()
        setup04.dynamicChange()
        setupStack.push(setup04)
    }
}
