import QtQuick 2.12
import "../Background"
import "../Buttons"
import "../Constants/Colors.js" as Colors
import "../Constants/Temperature.js" as Temperature
import "../CustomComponent"
import "MeterFormat.js" as MeterFormat

// The live point of a calibration: the recognised buffer or the standard's
// value, its mV and temperature. Override takes an unsettled reading;
// Accept and Edit come once it is stable.
MainContentBackground {
    id: page
    objectName: stable ? "Calibrate pH(Edit and Accept)" : "Calibrate pH(Override screen)"

    property bool userEditCalValue: false
    property bool stable: false
    property string calibrationType: "pH"

    function updateHeader() {
        header3Text = measure02.header3Text
        calibrationType = stack.calibrationType()
        refresh()
    }

    function scaledValue() {
        var type = stack.calibrationType()
        var digits = dm.calibrationModel ? dm.calibrationModel.significantDigits : measurement.significantDigits
        return MeterFormat.calibrationText(calibrationCycleModel.calValue, type, stack.phDecimals(), digits)
    }

    function refresh() {
        valueText.text = scaledValue()
        mvText.text = calibrationCycleModel.voltage.toFixed(1) + "  mV"
        // in the unit of the settings, as the reading shows it
        var unit = setup.temperatureFormat_Index
        temperatureText.text = Temperature.inUnit(measurement.temp, unit).toFixed(1) + " " + Temperature.unitText(unit) + "  "
                               + (measurement.isATC ? "ATC" : "MAN")
    }

    function showButtons(stableNow) {
        stable = stableNow
        overrideButton.visible = !stableNow
        acceptButton.visible = stableNow
        editButton.visible = stableNow
    }
    function unStableCalibration() {
        showButtons(false)
        refresh()
    }
    function stableCalibration() {
        showButtons(true)
        refresh()
    }
    function stopMeasure() {
        showButtons(true)
        if (dm.calibrationModel)
            dm.calibrationModel.isCalibrationRunning = false
        mc.qmlStopCalibration()
    }
    // A new point is unsettled until the meter says otherwise: a reading
    // left over from before must never be accepted.
    function resetButtons() {
        showButtons(false)
        calibrationCycleModel.calValue = 9999
        calibrationCycleModel.voltage = 0
        refresh()
    }

    function accept() {
        resetButtons()
        if (mainWindow.currentStack === titrationStack && !method.isChangeFromHome && method.lastCalibration.length === 0)
            method.isChangeFromHome = true
        else if (mainWindow.currentStack === methodStack)
            method.isChangeFromHome = false
        mc.accptCalibration(userEditCalValue)
        userEditCalValue = false
        if (!mc.isSlopeErrorOnAccept()) {
            measure04.updateHeader()
            stack.push(measure04)
        }
    }

    // Back from the standard's value: the edited value shows.
    onVisibleChanged: if (visible) refresh()


    Rectangle {
        x: 20
        y: 12
        width: 510
        height: 262
        radius: 6
        color: Colors.whiteColor
        border.color: Colors.lineColor

        StableMark {
            id: timerMark
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
            font.family: "Roboto"
            font.pixelSize: 15
            color: Colors.slateColor
            text: page.calibrationType === "pH" ? qsTr("Buffer") + ls.translatedText : qsTr("Standard") + ls.translatedText
        }
        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            y: 52
            spacing: 12
            Text {
                id: valueText
                objectName: "calibrationValue"
                height: 96
                verticalAlignment: Text.AlignVCenter
                font.family: "Roboto"
                font.pixelSize: 72
                font.weight: Font.Light
                color: Colors.deeptangaroaColor
            }
            Text {
                anchors.baseline: valueText.baseline
                font.family: "Roboto"
                font.pixelSize: 24
                color: Colors.slateColor
                text: page.calibrationType === "pH" ? "pH" : page.calibrationType === "Redox" ? "mV"
                      : (dm.calibrationModel ? dm.calibrationModel.directMeasureUnit : "")
            }
        }
        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            y: 170
            spacing: 40
            Text {
                id: temperatureText
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
    }

    Row {
        x: 20
        y: 292
        spacing: 16
        PopupAlternateButton {
            id: overrideButton
            text: qsTr("Override") + ls.translatedText
            onClicked: {
                if (mainWindow.currentStack === methodStack && method.isChangeFromHome)
                    method.isChangeFromHome = false
                mc.qmlOverrideCalibration()
            }
        }
        PopupAlternateButton {
            id: editButton
            visible: false
            text: qsTr("Edit") + ls.translatedText
            onClicked: {
                calibrationStandard.updateHeader()
                stack.push(calibrationStandard)
            }
        }
        PopupButton {
            id: acceptButton
            visible: false
            text: qsTr("Accept") + ls.translatedText
            onClicked: page.accept()
        }
    }
}
