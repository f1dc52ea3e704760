import QtQuick 2.12
import "../Background"
import "../Buttons"
import "../CustomComponent"
import "../Constants/Colors.js" as Colors
import "MeterFormat.js" as MeterFormat

// The result of a one-point calibration: its slope, which the user may set
// to the electrode's known slope before the summary.
MainContentBackground {
    id: page
    objectName: "Calibrate pH(Calibration Result screen)"
    header3Text: qsTr("Calibration Result") + ls.translatedText

    property string slopeText: ""

    function clear() { slopeText = "" }
    function updateHeader() {
        var cycles = dm.calibrationcycles
        slopeText = cycles.length > 0 ? cycles.get(0).slope.toFixed(1) : ""
        slopeRow.value = slopeText + " " + MeterFormat.slopeUnit(stack.calibrationType())
    }
    function setSlope(text) {
        slopeText = text
        slopeRow.value = text + " " + MeterFormat.slopeUnit(stack.calibrationType())
    }

    function save() {
        var cycles = dm.calibrationcycles
        var slope = parseFloat(slopeText)
        if (cycles.length > 0 && !isNaN(slope)) {
            cycles.get(cycles.length - 1).updateSlopeValue(slope)
            dm.calibrationModel.updateAvgSlopeValue(slope)
        }
        measure04.showSummary()
    }

    Column {
        x: 20
        y: 24
        width: 510
        SettingRow {
            id: slopeRow
            objectName: "slopeRow"
            label: qsTr("Slope") + ls.translatedText
            opensPage: true
            onClicked: {
                calibrationSlopeValue.open(page.slopeText)
                stack.push(calibrationSlopeValue)
            }
        }
    }
    Row {
        x: 20
        y: 292
        spacing: 16
        PopupAlternateButton {
            text: qsTr("Cancel") + ls.translatedText
            onClicked: measure04.showSummary()
        }
        PopupButton {
            objectName: "slopeSave"
            text: qsTr("Save") + ls.translatedText
            onClicked: page.save()
        }
    }
}
