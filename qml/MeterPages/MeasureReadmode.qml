import QtQuick 2.12
import "../Background"
import "../Buttons"
import "../Constants/Colors.js" as Colors
import "../CustomComponent"
import "MeterFormat.js" as MeterFormat

// The live reading of the meter, the first page of the Measure section:
// value with its stable mark, temperature, mV, sample id, electrode, last
// calibration, and Settings, Calibrate, Save and the stirrer.
MainContentBackground {
    id: page
    objectName: "Measure"
    header3Text: qsTr("Measure ") + measurement.readMode + ls.translatedText

    property bool stable: false
    property bool isAutoIncremented: false
    property string lastCalibrationText: ""

    function measValue() {
        return MeterFormat.readingText({ mV: measurement.mV, message: measurement.measureMessage,
                                         outOfRange: mc.isMeasureOutOfRange(), readMode: measurement.readMode,
                                         value: measurement.scaledValue, resolution: measurement.resolution,
                                         significantDigits: measurement.significantDigits })
    }

    function temperatureText() {
        var t = measurement.temp
        var text = setup.temperatureFormat_Index !== 0 ? mainWindow.celciousTfahrenhite(t).toFixed(1) + " °F"
                                                       : t.toFixed(1) + " °C"
        return text + "  " + (measurement.isATC ? "ATC" : "MAN")
    }

    // One sample: the texts follow the meter.
    function updateReading() {
        header3Text = qsTr("Measure ") + measurement.readMode
                + (measurement.readMode === "ISE" ? " " + measurement.iseType : "") + ls.translatedText
        valueText.text = qsTr(measValue()) + ls.translatedText
        mvText.text = measurement.mV.toFixed(1) + "  mV"
        temperatureLabel.text = temperatureText()
    }

    function stableMeasurement() {
        stable = true
        updateReading()
    }
    function unStableMeasurement() {
        stable = false
        updateReading()
    }

    // The meter's settings as stored, the stirrer's speed from them.
    function loadStirButton() {
        dm.deviceMode = "Measurement"
        dm.getMeasureFromDB()
        if (dm.measure)
            mainWindow.updateStirSpeed(dm.measure.stirSpeed)
        directMeasure.initTemp()
        stable = false
        lastCalibrationText = method.lastCalibration.length > 0 ? displayValues.formatCalibrationDate(method.lastCalibration) : ""
        updateReading()
    }

    function openSettings() {
        directMeasure.reIntializeUI()
        directMeasure.initTemp()
        directMeasure.loadModelData()
        measureStack.push(directMeasure)
    }

    function startCalibration() {
        method.calibratedElectrodeName = measurement.sensorName
        dm.deviceMode = "Calibration"
        dm.isCalibrationFromMeasurement = true
        dm.initiateCalibrationModelFromMeasure()
        dynamicLoader.loadElectrodeCalibration()
        // Leaving the page stops the reading; the calibration reads next.
        dm.deviceMode = "Calibration"
        mc.qmlStartCalibration()
    }

    // Stores the reading with the calibration in use, in the log and the
    // meter's row; an auto-incremented id moves on to the next sample.
    function saveMeasurement() {
        if (directMeasure.sIdMan) {
            manualSampleIdPopup.ask()
            return
        }
        saveWithSampleId(measurement.sampleIdValue)
        if (measurement.sampleId === "Auto-Incremental" && measurement.sampleIdValue.length > 0) {
            measurement.sampleIdValue = MeterFormat.nextSampleId(measurement.sampleIdValue)
            measurement.setMeasurementValues(measurement)
        }
    }
    function saveWithSampleId(sampleIdValue) {
        var cal = dm.calibrationModel
        if (cal && cal.id > 0) {
            measurement.calDateTime = cal.mcreatedAt
            measurement.calAvg = cal.avgSlope
            measurement.calLogId = cal.id
        }
        measurement.sampleIdValue = sampleIdValue
        measurementLogModel.measurementModel = measurement
        if (!measurementLogModel.saveLogValues(setup.isDatalogFullNotifOn))
            mainWindow.showMessage(qsTr("Not Saved") + ls.translatedText,
                                   qsTr("The reading could not be saved.") + ls.translatedText)
        else
            dm.storeMeterReport("Measurement", measurementLogModel.id)
        measurement.setMeasurementValues(measurement)
    }

    // The meter reads for this page whenever it is on show.
    onVisibleChanged: {
        if (visible) {
            // Settled again from the next samples on.
            stable = false
            dm.deviceMode = "Measurement"
            lastCalibrationText = method.lastCalibration.length > 0 ? displayValues.formatCalibrationDate(method.lastCalibration) : ""
        }
    }


    Rectangle {
        id: card
        x: 20
        y: 12
        width: 510
        height: 262
        radius: 6
        color: Colors.whiteColor
        border.color: Colors.lineColor

        StableMark {
            id: stableMark
            anchors.right: parent.right
            anchors.rightMargin: 16
            anchors.top: parent.top
            anchors.topMargin: 12
            stable: page.stable
        }
        Text {
            anchors.left: parent.left
            anchors.leftMargin: 16
            anchors.top: parent.top
            anchors.topMargin: 14
            width: 300
            elide: Text.ElideRight
            font.family: "Roboto"
            font.pixelSize: 15
            color: Colors.slateColor
            text: measurement.sensorName
        }
        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            y: 52
            spacing: 12
            Text {
                id: valueText
                objectName: "measureValue"
                font.family: "Roboto"
                font.pixelSize: valueText.text.length > 9 ? 40 : 72
                font.weight: Font.Light
                color: Colors.deeptangaroaColor
                height: 96
                verticalAlignment: Text.AlignVCenter
            }
            Text {
                anchors.baseline: valueText.baseline
                visible: !isNaN(parseFloat(valueText.text))
                font.family: "Roboto"
                font.pixelSize: 24
                color: Colors.slateColor
                text: measurement.directMeasurementUnit === "None" || measurement.directMeasurementUnit === "RmV"
                      ? (measurement.readMode === "Redox" ? "mV" : "") : measurement.directMeasurementUnit
            }
        }
        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            y: 160
            spacing: 40
            Text {
                id: temperatureLabel
                font.family: "Roboto"
                font.pixelSize: 18
                color: Colors.deeptangaroaColor
            }
            Text {
                id: mvText
                font.family: "Roboto"
                font.pixelSize: 18
                color: Colors.deeptangaroaColor
            }
        }
        Column {
            x: 16
            y: 200
            width: parent.width - 32
            spacing: 4
            Text {
                width: parent.width
                visible: measurement.sampleIdValue.length > 0 && measurement.sampleIdValue !== "None"
                elide: Text.ElideRight
                font.family: "Roboto"
                font.pixelSize: 15
                color: Colors.slateColor
                text: qsTr("Sample ID") + ls.translatedText + ": " + measurement.sampleIdValue
            }
            Text {
                width: parent.width
                visible: page.lastCalibrationText.length > 0
                elide: Text.ElideRight
                font.family: "Roboto"
                font.pixelSize: 15
                color: Colors.slateColor
                text: qsTr("Last Calibration") + ls.translatedText + " " + page.lastCalibrationText
            }
        }
    }

    Row {
        x: 20
        y: 292
        spacing: 12
        PopupAlternateButton {
            objectName: "measureSettingsButton"
            width: 104
            text: qsTr("Settings") + ls.translatedText
            onClicked: page.openSettings()
        }
        PopupAlternateButton {
            width: 104
            text: qsTr("Calibrate") + ls.translatedText
            onClicked: page.startCalibration()
        }
        PopupButton {
            objectName: "measureSaveButton"
            width: 104
            text: qsTr("Save") + ls.translatedText
            onClicked: page.saveMeasurement()
        }
        PopupAlternateButton {
            width: 104
            // The stirrer's state, worded as on the run screen; a tap switches it.
            text: (dm.qmlStirrerState ? qsTr("Stirrer On") : qsTr("Stirrer Off")) + ls.translatedText
            onClicked: dm.qmlStirrerState ? tc.qmlStopStirrer() : tc.qmlStartStirrer()
        }
    }
}
