import QtQuick 2.12
import "RunMath.js" as RunMath

// Asks for the sample id of the run before it starts.
EntryPopup {
    id: popup
    title: qsTr("Manual Sample Id") + ls.translatedText
    numeric: false
    firstButtonText: qsTr("Save") + ls.translatedText
    secondButtonText: qsTr("Cancel") + ls.translatedText

    function ask() {
        textInputLastValue = titration.sampleIDValue
        mainWindow.showPopup(popup)
    }

    onSecondClicked: mainWindow.hidePopup()
    onFirstClicked: {
        var id = field.text.replace(/^\s+|\s+$/g, "")
        var message = RunMath.sampleIdError(id, mainWindow.formatNum)
        if (message !== "") {
            refuse(qsTr(message) + ls.translatedText)
            return
        }
        titration.sampleIDValue = id
        titration.setTitrationSetupValues(electrode.electrodeType)
        mainWindow.hidePopup()
        titrationPreCheck.afterSampleId()
    }
}
