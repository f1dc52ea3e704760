import QtQuick 2.12
import "../Background"
import "../Buttons"
import "../TimeDateLang"

// The first or last day of an export's custom range, on the date wheels.
MainContentBackground {
    id: page
    objectName: "Export Date Range"
    header3Text: qsTr("Date Range") + ls.translatedText

    property var target: null
    property bool settingFrom: true

    function open(owner, from, date) {
        target = owner
        settingFrom = from
        picker.setDate(Date.fromLocaleString(Qt.locale("C"), date, "yyyy-MM-dd"))
        logStack.push(page)
    }

    function buttonName(select) {
        return select ? qsTr("Set From Date") : qsTr("Set To Date")
    }

    DatePage {
        id: picker
        anchors.horizontalCenter: parent.horizontalCenter
        y: 30
    }
    PopupButton {
        objectName: "setDate"
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 24
        text: page.buttonName(page.settingFrom) + ls.translatedText
        onClicked: {
            page.target.changeDates(Qt.formatDate(picker.selectedDateObject(), "yyyy-MM-dd"))
            logStack.pop()
        }
    }
}
