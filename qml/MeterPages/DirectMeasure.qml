import QtQuick 2.12
import "../Background"
import "../Buttons"
import "../CustomComponent"
import "../Constants/Colors.js" as Colors
import "../TitrationPages/EntryRules.js" as EntryRules

// The meter's settings: read mode and its rows, on a scratch copy of the
// meter's record (`measurementTemp`) until Save.
MainContentBackground {
    id: page
    objectName: "Measure ReadMode"
    header3Text: qsTr("Direct Measure") + ls.translatedText

    readonly property var fields: ["id", "sno", "readMode", "stirSpeed", "sampleId", "sampleIdValue",
        "significantDigits", "directMeasurementUnit", "mV", "scaledValue", "sensorName", "isATC", "temp",
        "stability", "bufferGroup", "resolution", "iseType", "mcreatedAt", "mupdatedAt", "sampleIDAutoInc",
        "sampleIDManual"]
    readonly property var readModes: ["pH", "Redox", "ISE"]
    readonly property var resolutions: ["0.1", "0.01", "0.001"]
    readonly property var speeds: ["No Stirring", "Very Slow", "Slow", "Medium", "Fast", "Very Fast"]
    readonly property var sampleIds: ["None", "Auto-Incremental", "Manual"]
    readonly property var units: ["ppm", "Molar", "mg/L", "%", "ppb", "None"]
    readonly property var ions: ["Ammonia (NH3)", "Ammonium (NH4+)", "Bromide (Br-)", "Cadmium (Cd2+)",
        "Calcium (Ca2+)", "Carbon Dioxide (CO2)", "Chloride (Cl-)", "Chlorine (Cl2)", "Copper (Cu2+)",
        "Cyanide (CN-)", "Fluoride (F-)", "Fluoroborate (BF4-)", "Divalent Cation (X2+)", "Iodide (I-)",
        "Lead (Pb2+)", "Nitrate (NO3-)", "Potassium (K+)", "Silver (Ag+)", "Sodium (Na+)", "Sulfide (S2-)",
        "Surfactant", "Thiocyanate (SCN-)", "Monovalent Anion (X-)", "Monovalent Cation (X+)", "Divalent Anion (X2-)"]
    property int typeIndex: 0
    // Why the last Save was refused; cleared by the next edit.
    property string errorMessage: ""
    // A manual sample id is asked for at each Save.
    readonly property bool sIdMan: measurement.sampleId === "Manual"

    function copyFields(from, to) {
        for (var i = 0; i < fields.length; ++i)
            to[fields[i]] = from[fields[i]]
    }
    function initTemp() { copyFields(measurement, measurementTemp) }
    // The stored resolution is a float: the option nearest to it.
    function resolutionIndex(resolution) {
        for (var i = 0; i < resolutions.length; ++i) {
            if (Math.abs(parseFloat(resolutions[i]) - resolution) < 1e-6)
                return i
        }
        return 1
    }

    function setMeasureReadModeDropdownOptions() {
        typeIndex = Math.max(0, readModes.indexOf(measurement.readMode))
    }
    function reIntializeUI() { setMeasureReadModeDropdownOptions() }

    // The rows show the scratch copy.
    function loadModelData() {
        errorMessage = ""
        typeIndex = Math.max(0, readModes.indexOf(measurementTemp.readMode))
        readModeRow.select(measurementTemp.readMode)
        iseTypeRow.select(measurementTemp.iseType)
        electrodeNameRow.text = measurementTemp.sensorName
        resolutionRow.currentIndex = resolutionIndex(measurementTemp.resolution)
        bufferGroupRow.select(measurementTemp.bufferGroup)
        stirSpeedRow.select(measurementTemp.stirSpeed)
        sampleIdRow.select(measurementTemp.sampleId)
        prefixRow.text = measurementTemp.sampleIDAutoInc
        digitsRow.currentIndex = Math.max(0, Math.min(3, measurementTemp.significantDigits - 1))
        unitsRow.select(measurementTemp.directMeasurementUnit)
    }

    // A new read mode starts from its defaults.
    function changeReadMode(mode) {
        var t = measurementTemp
        t.readMode = mode
        t.iseType = mode === "ISE" ? ions[0] : ""
        t.directMeasurementUnit = mode === "pH" ? "pH" : mode === "Redox" ? "RmV" : "ppm"
        t.sensorName = ""
        t.bufferGroup = mode === "pH" ? "USA" : ""
        t.stirSpeed = "Medium"
        t.sampleId = "None"
        t.sampleIDAutoInc = ""
        t.sampleIDManual = ""
        t.sampleIdValue = ""
        if (mode === "pH")
            t.resolution = 0.01
        if (mode === "ISE")
            t.significantDigits = 4
        dm.qmlStirSpeed = 3
        loadModelData()
    }

    function setSampleId() {
        var t = measurementTemp
        if (t.sampleId === "Auto-Incremental")
            t.sampleIdValue = t.sampleIDAutoInc
        else if (t.sampleId === "Manual")
            t.sampleIdValue = t.sampleIDManual
        else {
            t.sampleIDAutoInc = ""
            t.sampleIDManual = ""
            t.sampleIdValue = ""
        }
        copyFields(measurementTemp, measurement)
    }

    function save() {
        electrodeNameRow.release()
        prefixRow.release()
        Qt.inputMethod.hide()
        var checked = EntryRules.measureSettingsCheck(electrodeNameRow.text, measurementTemp.sampleId, prefixRow.text,
                                                      { format: mainWindow.format, formatNum: mainWindow.formatNum })
        if (checked.message !== "") {
            errorMessage = checked.message
            return
        }
        errorMessage = ""
        measurementTemp.sensorName = checked.name
        measurementTemp.sampleIDAutoInc = checked.prefix
        setSampleId()
        measurement.setMeasurementValues(measurement)
        mainWindow.updateStirSpeed(measurement.stirSpeed)
        mc.qmlStartMeasure()
        measureStack.pop()
    }

    // While the keyboard is up, the row being typed into and the buttons
    // stand above it.
    function showRow(row) {
        list.contentY = Math.max(0, Math.min(row.y - 8, list.contentHeight - keyboardRoom))
    }
    readonly property int keyboardRoom: 130

    Flickable {
        id: list
        x: 20
        y: 4
        width: 510
        height: Qt.inputMethod.visible ? page.keyboardRoom : 324
        clip: true
        contentHeight: rows.height
        boundsBehavior: Flickable.StopAtBounds
        Column {
            id: rows
            width: parent.width
            ChoiceRow {
                id: readModeRow
                height: 46
                objectName: "readModeRow"
                label: qsTr("Read Mode") + ls.translatedText
                options: page.readModes
                onChosen: page.changeReadMode(text)
            }
            ChoiceRow {
                id: iseTypeRow
                height: 46
                visible: page.typeIndex === 2
                label: qsTr("ISE Type") + ls.translatedText
                options: page.ions
                onChosen: measurementTemp.iseType = text
            }
            TextEntryRow {
                id: electrodeNameRow
                height: 46
                objectName: "electrodeName"
                label: qsTr("Electrode Name") + ls.translatedText
                onEdited: page.errorMessage = ""
                onFocused: page.showRow(electrodeNameRow)
            }
            ChoiceRow {
                id: resolutionRow
                height: 46
                visible: page.typeIndex === 0
                label: qsTr("Resolution") + ls.translatedText
                options: page.resolutions
                onChosen: measurementTemp.resolution = parseFloat(text)
            }
            ChoiceRow {
                id: bufferGroupRow
                height: 46
                objectName: "bufferGroupRow"
                visible: page.typeIndex === 0
                label: qsTr("Buffer Group") + ls.translatedText
                options: ["USA", "DIN"]
                onChosen: measurementTemp.bufferGroup = text
            }
            ChoiceRow {
                id: stirSpeedRow
                height: 46
                label: qsTr("Stir Speed") + ls.translatedText
                options: page.speeds
                onChosen: measurementTemp.stirSpeed = text
            }
            ChoiceRow {
                id: sampleIdRow
                height: 46
                objectName: "sampleIdRow"
                label: qsTr("Sample ID") + ls.translatedText
                options: page.sampleIds
                onChosen: {
                    measurementTemp.sampleId = text
                    if (text !== "Auto-Incremental") {
                        measurementTemp.sampleIDAutoInc = ""
                        measurementTemp.sampleIDManual = ""
                        prefixRow.text = ""
                    }
                }
            }
            TextEntryRow {
                id: prefixRow
                height: 46
                objectName: "sampleIdPrefix"
                visible: sampleIdRow.currentText === "Auto-Incremental"
                label: qsTr("Auto-Incremental Prefix") + ls.translatedText
                onEdited: page.errorMessage = ""
                onFocused: page.showRow(prefixRow)
            }
            ChoiceRow {
                id: digitsRow
                height: 46
                visible: page.typeIndex === 2
                label: qsTr("Significant Digits") + ls.translatedText
                options: ["1", "2", "3", "4"]
                onChosen: measurementTemp.significantDigits = index + 1
            }
            ChoiceRow {
                id: unitsRow
                height: 46
                visible: page.typeIndex === 2
                label: qsTr("Direct Measure Units") + ls.translatedText
                options: page.units
                onChosen: measurementTemp.directMeasurementUnit = text
            }
        }
    }

    Row {
        x: 20
        y: Qt.inputMethod.visible ? page.keyboardRoom + 6 : 336
        spacing: 16
        PopupAlternateButton {
            text: qsTr("Cancel") + ls.translatedText
            onClicked: measureStack.pop()
        }
        PopupButton {
            objectName: "measureSettingsSave"
            text: qsTr("Save") + ls.translatedText
            onClicked: page.save()
        }
    }
    Text {
        objectName: "measureSettingsError"
        // Beside Save, clear of the tip's mark in the corner.
        x: 308
        y: Qt.inputMethod.visible ? page.keyboardRoom : 330
        width: 180
        visible: page.errorMessage !== ""
        wrapMode: Text.WordWrap
        color: Colors.orangepeelColor
        font.family: "Roboto"
        font.pixelSize: 14
        text: qsTr(page.errorMessage) + ls.translatedText
    }
}
