import QtQuick 2.12
import "RunMath.js" as RunMath

// Asks for the weight (state "") or volume (state "volume") of the standard
// of a standardisation cycle, then starts it.
EntryPopup {
    id: popup
    property int cycleNo: 0

    title: (state === "volume" ? qsTr("Variable Standard Volume") : qsTr("Variable Standard Weight")) + ls.translatedText
    unit: state === "volume" ? "mL" : qsTr("grams") + ls.translatedText
    firstButtonText: qsTr("Save-Run") + ls.translatedText
    secondButtonText: qsTr("Cancel") + ls.translatedText
    states: State { name: "volume" }

    function ask(volume, cycle) {
        state = volume ? "volume" : ""
        cycleNo = cycle
        textInputLastValue = String(titrant.standAmount_Value)
        mainWindow.showPopup(popup)
    }

    onSecondClicked: {
        field.text = String(titrant.standAmount_Value)
        mainWindow.hidePopup()
    }
    onFirstClicked: {
        var message = RunMath.amountError(field.text)
        if (message !== "") {
            refuse(qsTr(message) + ls.translatedText)
            return
        }
        var value = parseFloat(field.text)
        titrant.standAmount_Unit = titrant.standAmount === "Variable Weight" ? "gram" : "mL"
        titrant.standAmount_Value = value
        titrant.setTitrantSetupValues(electrode.electrodeType, false)
        runtitration.standAmountValue = value
        mainWindow.hidePopup()
        if (cycleNo > 1)
            titrantStandardization.startCycle()
        else
            mainWindow.showFullscreenOn(titrantStandardization)
    }
}
