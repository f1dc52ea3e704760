import QtQuick 2.12
import "../Background"
import "../Buttons"
import "../Constants/Colors.js" as Colors
import "../Constants/Temperature.js" as Temperature
import "MeterFormat.js" as MeterFormat

// The stored calibration: its points, average slope (the offset of a
// redox calibration) and date; Done returns to where it was opened from.
MainContentBackground {
    id: page
    objectName: "Calibration Summary"
    header3Text: qsTr("Calibration Summary") + ls.translatedText
    state: "regularCalibration"

    property int cid: 0
    property int calibrationLogId: 0
    property string electrodeName: ""
    property string electrodeType: ""
    property var calibrationCycles: []
    readonly property var columnWidths: [86, 124, 100, 90, 110]

    function pointValueText(point) {
        var digits = dm.calibrationModel ? dm.calibrationModel.significantDigits : 4
        return MeterFormat.valueText(point.calValue, electrodeType, stack.phDecimals(), digits)
    }

    function injectSummaryModel() {
        state = electrodeType === "ATC" ? "atcCalibration" : electrodeType === "Redox" ? "redoxCalibration" : "regularCalibration"
        calibrationCycles = []
        pointsModel.clear()
        var cycles = dm.calibrationcycles
        if (cycles.length === 0) {
            console.log("If you see this log, that means UI not getting data from model. Please check models")
            dateText.text = ""
            averageText.text = ""
            return
        }
        var unit = MeterFormat.slopeUnit(electrodeType)
        var values = [], offsets = []
        for (var i = 0; i < cycles.length; ++i) {
            var p = cycles.get(i)
            calibrationCycles.push(p)
            values.push(p.calValue)
            offsets.push(p.offset)
            var last = electrodeType === "Redox" ? p.offset.toFixed(1) + " mV" : p.slope.toFixed(1) + (unit ? " " + unit : "")
            pointsModel.append({ point: String(i + 1), value: pointValueText(p), mv: p.voltage.toFixed(1) + " mV",
                                 temp: Temperature.inUnit(p.temperature, setup.temperatureFormat_Index).toFixed(1) + " "
                                       + Temperature.unitText(setup.temperatureFormat_Index), slope: last })
        }
        dateText.text = displayValues.formatCalibrationDate(cycles.get(cycles.length - 1).timestamp)
        offsetText.text = electrodeType === "pH" ? qsTr("Offset") + ls.translatedText + ": "
                                                   + MeterFormat.phOffset(values, offsets).toFixed(1) + " mV" : ""
        updateAvgSlopeValue()
        refreshTimer.restart()
    }

    function updateAvgSlopeValue() {
        var avg = dm.calibrationModel ? dm.calibrationModel.avgSlope : 0
        averageText.text = electrodeType === "Redox"
                ? qsTr("Offset") + ls.translatedText + ": " + avg.toFixed(1) + " mV"
                : qsTr("Average Slope") + ls.translatedText + ": " + avg.toFixed(1) + " " + MeterFormat.slopeUnit(electrodeType)
    }

    function completeAction() {
        if (mainWindow.currentStack === logStack) {
            mainWindow.currentStack.pop()
            return
        }
        if (mainWindow.currentStack === titrationStack && stack.skipSetup) {
            // Before a run: the titrant's offer when it still needs a standardisation.
            if (method.lastStandardization === "" && titrant.concInputMode === "Standardization") {
                mainWindow.showPopup(titration12)
            } else {
                mainWindow.showPopup(calibrationSuccessPopop)
                calibrationSuccessPopop.dismissAfter3Sec()
            }
            return
        }
        // The vocabulary's name of the meter's own mode.
        dm.deviceMode = "Measurement"
        mainWindow.currentStack.pop(mainWindow.lastPageInCurrentStack)
        mainWindow.resetProcessIndex()
        if (mainWindow.currentStack === methodStack)
            method.isChangeFromHome = false
        else if (mainWindow.currentStack === titrationStack)
            method.isChangeFromHome = true
        sideBar.resetBackButton()
    }

    Timer {
        id: refreshTimer
        interval: 300
        onTriggered: {
            setup.getLastCalibrationTime()
            dm.getLastCalibrationTimeForTitration()
            titration01.updateUI()
        }
    }

    ListModel { id: pointsModel }

    Column {
        x: 20
        y: 8
        width: 510
        spacing: 2
        Text {
            width: parent.width
            elide: Text.ElideRight
            font.family: "Roboto"
            font.pixelSize: 15
            color: Colors.slateColor
            text: (page.electrodeName.length > 0 ? page.electrodeName + "  |  " : "") + dateText.text
        }
        Row {
            spacing: 32
            Text {
                id: averageText
                objectName: "averageSlope"
                font.family: "Roboto"
                font.pixelSize: 19
                font.weight: Font.Medium
                color: Colors.deeptangaroaColor
            }
            Text {
                id: offsetText
                objectName: "phOffset"
                font.family: "Roboto"
                font.pixelSize: 19
                font.weight: Font.Medium
                color: Colors.deeptangaroaColor
            }
        }
        Text { id: dateText; visible: false }
    }

    Rectangle {
        x: 20
        y: 64
        width: 510
        height: 226
        radius: 4
        color: Colors.whiteColor
        border.color: Colors.lineColor
        clip: true
        Row {
            id: headerRow
            x: 6
            height: 34
            Repeater {
                model: [qsTr("Cal. Point"), qsTr("Calibration Value"), qsTr("mV Value"),
                        // the unit's symbol is the same in every language
                        qsTr("Temp. °C").replace("°C", Temperature.unitText(setup.temperatureFormat_Index)),
                        page.electrodeType === "Redox" ? qsTr("Offset") : qsTr("Segment Slope")]
                Text {
                    width: page.columnWidths[index]
                    height: 34
                    verticalAlignment: Text.AlignVCenter
                    elide: Text.ElideRight
                    font.family: "Roboto"
                    font.pixelSize: 13
                    font.weight: Font.Medium
                    color: Colors.slateColor
                    text: modelData + ls.translatedText
                }
            }
        }
        ListView {
            x: 6
            y: 34
            width: 500
            height: 190
            clip: true
            model: pointsModel
            delegate: Row {
                height: 38
                Repeater {
                    model: [point, value, mv, temp, slope]
                    Text {
                        width: page.columnWidths[index]
                        height: 38
                        verticalAlignment: Text.AlignVCenter
                        elide: Text.ElideRight
                        font.family: "Roboto"
                        font.pixelSize: 15
                        color: Colors.deeptangaroaColor
                        text: modelData
                    }
                }
            }
        }
    }

    Row {
        x: 20
        y: 300
        spacing: 16
        PopupAlternateButton {
            objectName: "summaryPrintButton"
            text: qsTr("Print") + ls.translatedText
            onClicked: exportSummaryScreen.loadModelData(2, page.cid, true)
        }
        PopupAlternateButton {
            objectName: "summaryExportButton"
            text: qsTr("Export") + ls.translatedText
            onClicked: exportSummaryScreen.loadModelData(2, page.cid, false)
        }
        PopupButton {
            objectName: "summaryDone"
            text: qsTr("Done") + ls.translatedText
            onClicked: page.completeAction()
        }
    }
}
