import QtQuick 2.12
import QtQuick.Controls 2.12
import "../Background"
import "../TimeDateLang/DateTimeMath.js" as DateTimeMath

// Step 3: how dates are shown. Each choice shows the date just set in its form.
SetupBackground {
    id: page

    property var shownDate: new Date()

    // The choices show the date of the settings (the one just set), else today.
    function dynamicChange() {
        var d = new Date(setup.date)
        shownDate = isNaN(d.getTime()) ? new Date() : d
        formats.currentIndex = Math.max(0, Math.min(3, setup.dateFormat_Index))
    }

    objectName: "Date Display"
    title: qsTr("Set Date Display Format") + ls.translatedText
    stepText: qsTr("Setup | Step 3 of 13") + ls.translatedText

    SetupChoiceList {
        id: formats
        anchors.centerIn: parent
        options: DateTimeMath.dateDisplayFormats.map(function(f) { return Qt.formatDate(page.shownDate, f) })
    }

    onBackClicked: setupStack.pop()
    onNextClicked: {
        setup.dateFormat_Index = formats.currentIndex
        setup05.prepare()
        setupStack.push(setup05)
    }
}
