import QtQuick 2.12
import "RunMath.js" as RunMath

// Asks for the weight (state "") or volume (state "volume") of the sample
// of a cycle, then starts it.
EntryPopup {
    id: popup
    property int cycleNo: 0
    property bool isNewProcess: true

    title: (state === "volume" ? qsTr("Variable Sample Volume") : qsTr("Variable Sample Weight")) + ls.translatedText
    unit: state === "volume" ? "mL" : qsTr("grams") + ls.translatedText
    firstButtonText: qsTr("Save-Run") + ls.translatedText
    secondButtonText: qsTr("Cancel") + ls.translatedText
    states: State { name: "volume" }

    function ask(volume, cycle, newProcess) {
        state = volume ? "volume" : ""
        cycleNo = cycle
        isNewProcess = newProcess
        textInputLastValue = String(titration.sampleAmountValue)
        mainWindow.showPopup(popup)
    }

    onSecondClicked: {
        field.text = String(dm.deviceMode === "Standardization" ? titrant.standAmount_Value : titration.sampleAmountValue)
        mainWindow.hidePopup()
    }
    onFirstClicked: {
        var message = RunMath.amountError(field.text)
        if (message !== "") {
            refuse(qsTr(message) + ls.translatedText)
            return
        }
        var value = parseFloat(field.text)
        if (dm.deviceMode === "Titration") {
            titration.sampleAmountValue = value
            runtitration.sampleAmountValue = value
            titration.setTitrationSetupValues(electrode.electrodeType)
        } else if (dm.deviceMode === "Standardization") {
            titrant.standAmount_Value = value
            runtitration.standAmountValue = value
            titrant.setTitrantSetupValues(electrode.electrodeType, false)
        } else {
            console.log("device mode invalid")
            return
        }
        mainWindow.hidePopup()
        if (cycleNo > 0)
            startTitrationFullscreen.startCycle()
        else
            dynamicLoader.loadTitration()
    }
}
