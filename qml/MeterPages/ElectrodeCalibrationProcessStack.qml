import QtQuick 2.12
import QtQuick.Controls 2.12
import "../Constants/NumberFormat.js" as NumberFormat
import "MeterFormat.js" as MeterFormat

// The calibration of an electrode, point by point: start, live point with
// override, the standard's value, point done, the slope of a one-point
// calibration, the summary. Pushed onto the section it is opened from; from
// a method's electrode tile it starts at the electrode's setup page
// (`electrodeSetupDynamic`, "Next" to the calibration) and, with onlySetup,
// the same page that only saves (`electrodeSetupOnly`).
StackView {
    id: stack
    objectName: "processStack"

    property bool onlySetup: false
    property bool skipSetup: true
    property bool fromDynmaicLoader: false
    property bool processRunning: false

    width: 550
    height: 480
    initialItem: measure02
    pushEnter: Transition {}
    pushExit: Transition {}
    popEnter: Transition {}
    popExit: Transition {}
    replaceEnter: Transition {}
    replaceExit: Transition {}

    // The electrode type of the calibration in hand: "pH", "Redox", "ISE".
    function calibrationType() {
        return dm.calibrationModel ? dm.calibrationModel.electrodeType : measurement.readMode
    }
    // Decimals of a pH value: the meter's resolution in the Measure section,
    // the electrode's elsewhere.
    function phDecimals() {
        var resolution = mainWindow.currentStack === measureStack ? measurement.resolution
                                                                   : (dm.calibrationModel ? dm.calibrationModel.resolution : 0.01)
        return NumberFormat.countDecimal(resolution)
    }

    // The first page by the flags.
    function firstPage() {
        return skipSetup ? measure02 : onlySetup ? electrodeSetupOnly : electrodeSetupDynamic
    }

    // A new calibration (or setup) starts at its first page.
    function start() {
        var first = firstPage()
        if (depth > 1)
            pop(null)
        if (currentItem !== first)
            replace(first)
        processRunning = false
        resetmeasureByElectrodeType()
        measure02.updateHeader()
    }
    // From the electrode's setup page on to the calibration's first page.
    function calibrateFromSetup() {
        resetmeasureByElectrodeType()
        measure02.updateHeader()
        push(measure02)
    }
    function resetmeasureByElectrodeType() {
        calibrationStandard.clear()
        calibrationStandardValue.clear()
        calibrationSlope.clear()
        calibrationSlopeValue.clear()
        measure03.userEditCalValue = false
    }
    function stableCalibration() { measure03.stableCalibration() }
    function unStableCalibration() { measure03.unStableCalibration() }
    function stopCalibration() { measure03.stopMeasure() }
    function resetProcessForBackButton() {
        if (currentItem === measure03)
            processRunning = false
    }

    CalibrateElectrode { id: measure02; visible: false }
    CalibrateOverride { id: measure03; visible: false }
    CalibrationStandard { id: calibrationStandard; visible: false }
    CalibrationStandardValue { id: calibrationStandardValue; visible: false }
    CalibrationPointSuccessfull { id: measure04; visible: false }
    CalibrationSlope { id: calibrationSlope; visible: false }
    CalibrationSlopeValue { id: calibrationSlopeValue; visible: false }
    CalibrationSummary { id: calibrationSummary; visible: false }
}
