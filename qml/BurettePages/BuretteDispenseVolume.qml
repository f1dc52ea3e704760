import QtQuick 2.12
import QtQuick.Controls 2.12
import "../Background"
import "../CustomComponent"
import "../MeterPages/MeterFormat.js" as MeterFormat

// How the Dispense button doses: while held ("Continuous"), or a preset
// volume in mL, at most the burette's size.
MainContentBackground {
    id: page
    objectName: "Dispense Volume"
    header3Text: qsTr("Dispense Volume") + ls.translatedText

    function loadUI() {
        keypad.clear()
        if (burette01.isContinuous) {
            continuousButton.checked = true
        } else {
            presetButton.checked = true
            keypad.show(burette01.dispenseVolumeText)
        }
    }

    KeypadEntry {
        id: keypad
        prompt: qsTr("Preset volume") + ls.translatedText
        unit: "mL"
        allowMinus: false
        onCancelled: buretteStack.pop()
        onTextChanged: if (text.length > 0) presetButton.checked = true
        onAccepted: {
            if (continuousButton.checked) {
                burette01.dispenseVolumeText = "Continuous"
                buretteStack.pop()
                return
            }
            var verdict = MeterFormat.checkPreset(text, setup.buretteSize)
            if (verdict === "empty") {
                refuse("")
                return
            }
            if (verdict.length > 0) {
                refuse(qsTr(verdict) + ls.translatedText)
                return
            }
            burette01.dispenseVolumeText = parseFloat(text).toFixed(2)
            buretteStack.pop()
        }
        RadioButton {
            id: continuousButton
            text: qsTr("Continuous") + ls.translatedText
            font.family: "Roboto"
            font.pixelSize: 16
        }
        RadioButton {
            id: presetButton
            text: qsTr("Preset Value") + ls.translatedText
            font.family: "Roboto"
            font.pixelSize: 16
            onClicked: keypad.forceActiveFocus()
        }
    }
}
