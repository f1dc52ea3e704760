import QtQuick 2.12
import "../Background"
import "../CustomComponent"
import "MeterFormat.js" as MeterFormat

// The keypad of a one-point calibration's slope.
MainContentBackground {
    id: page
    objectName: "Calibration Slope Value"
    header3Text: qsTr("Slope") + ls.translatedText
    hasInfo: false

    function clear() { keypad.clear() }
    function open(text) {
        keypad.show(text)
        keypad.unit = MeterFormat.slopeUnit(stack.calibrationType())
    }

    KeypadEntry {
        id: keypad
        prompt: qsTr("Electrode slope") + ls.translatedText
        onCancelled: stack.pop()
        onAccepted: {
            var verdict = MeterFormat.checkSlope(text, stack.calibrationType())
            if (verdict === "Slope out of range") {
                refuse(qsTr(MeterFormat.slopeMessage(stack.calibrationType())) + ls.translatedText)
                mainWindow.showSlopeError()
                return
            }
            if (verdict.length > 0) {
                refuse(qsTr(verdict) + ls.translatedText)
                return
            }
            calibrationSlope.setSlope(text)
            stack.pop()
        }
    }
}
