import QtQuick 2.12
import "../Background"
import "../CustomComponent"
import "MeterFormat.js" as MeterFormat

// The keypad of a standard's value, with the limits of the read mode.
MainContentBackground {
    id: page
    objectName: "Calibration Standard Value"
    header3Text: qsTr("Standard Value") + ls.translatedText
    hasInfo: false

    function clear() { keypad.clear() }
    function open(text) {
        keypad.show(text)
        keypad.unit = stack.calibrationType() === "pH" ? "pH" : stack.calibrationType() === "Redox" ? "mV" : ""
        keypad.allowMinus = stack.calibrationType() !== "ISE"
    }

    KeypadEntry {
        id: keypad
        prompt: qsTr("Calibration Solution Standard Value") + ls.translatedText
        onCancelled: stack.pop()
        onAccepted: {
            var verdict = MeterFormat.checkStandard(text, stack.calibrationType(), stack.phDecimals())
            if (verdict === "empty") {
                refuse("")
                return
            }
            if (verdict.length > 0) {
                refuse(qsTr(verdict) + ls.translatedText)
                return
            }
            calibrationCycleModel.calValueUser = parseFloat(text)
            calibrationStandard.setValue(text)
            measure03.userEditCalValue = true
            stack.pop()
        }
    }
}
