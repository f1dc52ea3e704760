import QtQuick 2.12
import QtQuick.Controls 2.12
import "../Constants/Colors.js" as Colors
import "DateTimeMath.js" as DateTimeMath

// The time picker: "12 Hours" / "24 Hours", then hour, minute and, in the
// 12-hour form, AM/PM wheels. Switching the form keeps the time on show.
// Pages read timeFormatIndex (0: 12 hours, 1: 24 hours), selectedHour,
// selectedMin, selectedAp, or hour24() and clockTime().
Rectangle {
    id: timePage

    readonly property int timeFormatIndex: hour12RadioButton.checked ? 0 : 1
    readonly property string selectedHour: DateTimeMath.pad2(state === "state12" ? hourPicker.currentIndex + 1 : hourPicker.currentIndex)
    readonly property string selectedMin: DateTimeMath.pad2(minutePicker.currentIndex)
    readonly property string selectedAp: apPicker.currentIndex === 0 ? "AM" : "PM"
    readonly property var hour12Model: ["01", "02", "03", "04", "05", "06", "07", "08", "09", "10", "11", "12"]
    readonly property var hour24Model: {
        var list = []
        for (var h = 0; h < 24; ++h)
            list.push(DateTimeMath.pad2(h))
        return list
    }
    readonly property var minuteModel: {
        var list = []
        for (var m = 0; m < 60; ++m)
            list.push(DateTimeMath.pad2(m))
        return list
    }

    // The chosen hour, 0 to 23: 12 AM is 0, 12 PM is 12.
    function hour24() {
        return state === "state12" ? DateTimeMath.to24Hour(hourPicker.currentIndex + 1, selectedAp)
                                   : hourPicker.currentIndex
    }
    function minute() { return minutePicker.currentIndex }
    // "HH:mm:00" for the clock; the kept form ("09:05 PM" or "21:05").
    function clockTime() { return DateTimeMath.clockTime(hour24(), minute()) }
    function formatTime() { return DateTimeMath.storedTime(hour24(), minute(), timeFormatIndex) }

    function showTime(h24, min, formatIndex) {
        if (formatIndex === 0)
            hour12RadioButton.checked = true
        else
            hour24RadioButton.checked = true
        state = formatIndex === 0 ? "state12" : "state24"
        if (formatIndex === 0) {
            var t = DateTimeMath.to12Hour(h24)
            hourPicker.currentIndex = t.hour - 1
            apPicker.currentIndex = t.ap === "AM" ? 0 : 1
        } else {
            hourPicker.currentIndex = h24
        }
        minutePicker.currentIndex = min
    }
    // The wheels go to a kept time ("09:05 PM", "21:05") in the kept form,
    // or to the time now when the text is no time.
    function setCurrentTime(text, formatIndex) {
        var t = DateTimeMath.parseStoredTime(text)
        var now = new Date()
        showTime(t ? t.hour24 : now.getHours(), t ? t.minute : now.getMinutes(), formatIndex === 0 ? 0 : 1)
    }
    // Keeps the time on show across a change of form.
    function switchHourFormat(formatIndex) {
        var h = hour24(), m = minute()
        showTime(h, m, formatIndex)
    }

    width: 560
    height: 300
    color: "transparent"
    state: "state24"
    states: [
        State { name: "state12"; PropertyChanges { target: hourPicker; model: timePage.hour12Model } },
        State { name: "state24"; PropertyChanges { target: hourPicker; model: timePage.hour24Model } }
    ]

    Row {
        id: formRow
        anchors.horizontalCenter: parent.horizontalCenter
        spacing: 24
        RadioButton {
            id: hour12RadioButton
            objectName: "hour12RadioButton"
            text: qsTr("12 Hours") + ls.translatedText
            font.family: "Roboto"
            font.pixelSize: 17
            onClicked: timePage.switchHourFormat(0)
        }
        RadioButton {
            id: hour24RadioButton
            objectName: "hour24RadioButton"
            checked: true
            text: qsTr("24 Hours") + ls.translatedText
            font.family: "Roboto"
            font.pixelSize: 17
            onClicked: timePage.switchHourFormat(1)
        }
    }
    Row {
        anchors.top: formRow.bottom
        anchors.topMargin: 2
        anchors.horizontalCenter: parent.horizontalCenter
        spacing: 24
        PickerTumbler { id: hourPicker; objectName: "hourPicker"; wheelWidth: 110; model: timePage.hour24Model }
        PickerTumbler { id: minutePicker; objectName: "minutePicker"; wheelWidth: 110; model: timePage.minuteModel }
        PickerTumbler {
            id: apPicker
            objectName: "apPicker"
            wheelWidth: 110
            wrapAround: false
            visible: timePage.state === "state12"
            model: ["AM", "PM"]
            textOf: function(index) { return (index === 0 ? qsTr("AM") : qsTr("PM")) + ls.translatedText }
        }
    }

    Component.onCompleted: setCurrentTime("", 1)
}
