import QtQuick 2.12
import "../Background"
import "../CustomComponent"
import "../Constants/DateFormat.js" as DateFormat
import "../Constants/Temperature.js" as Temperature

// The display settings: brightness, name, date, time, language, temperature.
// Each row shows the kept value; a tap opens its page, the two lists of
// forms store at once.
MainContentBackground {
    id: page
    objectName: "Display"
    header3Text: qsTr("Display") + ls.translatedText

    property var dateOptions: []
    readonly property var temperatureOptions: ["°C", "°F"]

    function loadModelData() {
        brightnessRow.value = String(setup.displayBrightness)
        nameRow.value = setup.instrumentName
        dateRow.value = displayValues.formatDate(new Date())
        timeRow.value = setup.time
        languageRow.value = setup.language
        temperatureInputRow.value = dm.isProbePresent() ? "ATC" : "MAN"
        reIntializeUI()
    }
    // The forms of today's date, and both lists at their kept index.
    function reIntializeUI() {
        var today = new Date()
        var list = []
        for (var i = 0; i < DateFormat.dateFormats.length; ++i)
            list.push(Qt.formatDate(today, DateFormat.dateFormats[i]))
        dateOptions = list
        dateDisplayRow.currentIndex = setup.dateFormat_Index
        temperatureUnitsRow.currentIndex = setup.temperatureFormat_Index
    }

    // A probe plugged in while the page is open shows at once.
    Connections {
        target: dm
        enabled: page.visible
        function onProbeTempChanged() { temperatureInputRow.value = dm.isProbePresent() ? "ATC" : "MAN" }
    }

    Column {
        width: parent.width
        SettingRow {
            id: brightnessRow
            objectName: "brightnessRow"
            height: 46
            label: qsTr("Display Brightness") + ls.translatedText
            opensPage: true
            onClicked: {
                dispBrightPage.loadBrightnessLevel()
                settingsStack.push(dispBrightPage)
            }
        }
        SettingRow {
            id: nameRow
            objectName: "nameRow"
            height: 46
            label: qsTr("Instrument Name") + ls.translatedText
            opensPage: true
            onClicked: {
                insNamePage.textInputLastValue = setup.instrumentName
                insNamePage.insValue = setup.instrumentName
                settingsStack.push(insNamePage)
            }
        }
        SettingRow {
            id: dateRow
            objectName: "dateRow"
            height: 46
            label: qsTr("Date") + ls.translatedText
            opensPage: true
            onClicked: {
                dateSettingsPage.setCurrentDate()
                settingsStack.push(dateSettingsPage)
            }
        }
        ChoiceRow {
            id: dateDisplayRow
            objectName: "dateDisplayRow"
            height: 46
            label: qsTr("Date Display") + ls.translatedText
            options: page.dateOptions
            onChosen: {
                setup.dateFormat_Index = index
                setup.setSetupValues()
                dateRow.value = displayValues.formatDate(new Date())
            }
        }
        SettingRow {
            id: timeRow
            objectName: "timeRow"
            height: 46
            label: qsTr("Time") + ls.translatedText
            opensPage: true
            onClicked: {
                timeHourPage.setCurrentTime(setup.time, setup.timeFormat_Index)
                settingsStack.push(timeHourPage)
            }
        }
        SettingRow {
            id: languageRow
            objectName: "languageRow"
            height: 46
            label: qsTr("Language") + ls.translatedText
            opensPage: true
            onClicked: {
                langSettingsPage.setCurrentLanguage(setup.language)
                settingsStack.push(langSettingsPage)
            }
        }
        SettingRow {
            id: temperatureInputRow
            objectName: "temperatureInputRow"
            height: 46
            label: qsTr("Temperature Input") + ls.translatedText
            opensPage: true
            // With a probe: its calibration; without: the manual temperature.
            onClicked: {
                var page = dm.isProbePresent() ? tempCurSettingsPage : tempSettingsPage
                page.loadValue()
                settingsStack.push(page)
            }
        }
        ChoiceRow {
            id: temperatureUnitsRow
            objectName: "temperatureUnitsRow"
            height: 46
            label: qsTr("Temperature Units") + ls.translatedText
            options: page.temperatureOptions
            // clear of the tip corner below it
            boxRightMargin: 84
            onChosen: {
                setup.temperatureFormat_Index = index
                setup.setSetupValues()
            }
        }
    }
}
