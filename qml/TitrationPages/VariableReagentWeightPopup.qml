import QtQuick 2.12

// Asks for the weight of the reagent of a back titration before the run;
// Cancel keeps the method's weight and goes on the same way.
EntryPopup {
    id: popup
    title: qsTr("Variable Weight") + ls.translatedText
    unit: qsTr("grams") + ls.translatedText
    firstButtonText: qsTr("Save") + ls.translatedText
    secondButtonText: qsTr("Cancel") + ls.translatedText

    function ask() {
        textInputLastValue = String(titration.reagentWeight)
        mainWindow.showPopup(popup)
    }

    onSecondClicked: {
        mainWindow.hidePopup()
        titrationPreCheck.afterReagent()
    }
    onFirstClicked: {
        var value = parseFloat(field.text)
        if (field.text === "" || !(value > 0)) {
            refuse(qsTr("Please enter a value") + ls.translatedText)
            return
        }
        titration.reagentWeight = value
        titration.setTitrationSetupValues(electrode.electrodeType)
        runtitration.reagentAmountValue = value
        mainWindow.hidePopup()
        titrationPreCheck.afterReagent()
    }
}
