import QtQuick 2.12
import "../Constants/Colors.js" as Colors
import "DateTimeMath.js" as DateTimeMath

// The date picker: month, day and year wheels (years 2000 to 2030); the day
// wheel follows the month and leap years. Pages read selectedMonth (the
// English name), selectedDate, selectedYear, or selectedDateObject().
// With fromBurette, setCurrentDate() starts from the burette's
// installation date when one was kept.
Rectangle {
    id: tumblerFrame

    property bool fromBurette: false
    readonly property var engMonths: DateTimeMath.engMonths
    readonly property string selectedMonth: engMonths[monthPicker.currentIndex] || engMonths[0]
    readonly property int selectedDate: dayPicker.currentIndex + 1
    readonly property int selectedYear: DateTimeMath.firstYear + yearPicker.currentIndex
    readonly property var monthNames: [
        qsTr("January") + ls.translatedText, qsTr("February") + ls.translatedText,
        qsTr("March") + ls.translatedText, qsTr("April") + ls.translatedText,
        qsTr("May") + ls.translatedText, qsTr("June") + ls.translatedText,
        qsTr("July") + ls.translatedText, qsTr("August") + ls.translatedText,
        qsTr("September") + ls.translatedText, qsTr("October") + ls.translatedText,
        qsTr("November") + ls.translatedText, qsTr("December") + ls.translatedText]

    // The wheels go to `date` (a Date), or to today.
    function setDate(date) {
        var d = date && !isNaN(date.getTime()) ? date : new Date()
        var year = DateTimeMath.clampYear(d.getFullYear())
        yearPicker.currentIndex = year - DateTimeMath.firstYear
        monthPicker.currentIndex = d.getMonth()
        resizeDays()
        dayPicker.currentIndex = Math.min(d.getDate(), dayModel.count) - 1
    }
    function setCurrentDate() {
        if (fromBurette && setup.installationDate !== "")
            setDate(new Date(parseInt(setup.installationDate, 10)))
        else
            setDate(new Date())
    }
    // Midnight of the chosen day.
    function selectedDateObject() {
        return new Date(selectedYear, monthPicker.currentIndex, selectedDate)
    }
    // The day list takes as many rows as the month has days.
    function resizeDays() {
        // From the wheels themselves: selectedYear may not have followed yet.
        var days = DateTimeMath.daysInMonth(monthPicker.currentIndex, DateTimeMath.firstYear + yearPicker.currentIndex)
        if (dayPicker.currentIndex >= days)
            dayPicker.currentIndex = days - 1
        while (dayModel.count > days)
            dayModel.remove(dayModel.count - 1)
        while (dayModel.count < days)
            dayModel.append({ day: dayModel.count + 1 })
    }

    width: 3 * 170
    height: 248
    color: "transparent"

    ListModel { id: dayModel }

    Row {
        anchors.centerIn: parent
        spacing: 20
        PickerTumbler {
            id: monthPicker
            objectName: "monthPicker"
            model: 12
            textOf: function(index) { return tumblerFrame.monthNames[index] }
            onCurrentIndexChanged: tumblerFrame.resizeDays()
        }
        PickerTumbler {
            id: dayPicker
            objectName: "dayPicker"
            model: dayModel
            textOf: function(index) { return String(index + 1) }
        }
        PickerTumbler {
            id: yearPicker
            objectName: "yearPicker"
            model: DateTimeMath.years()
            onCurrentIndexChanged: tumblerFrame.resizeDays()
        }
    }

    Component.onCompleted: {
        resizeDays()
        setCurrentDate()
    }
}
