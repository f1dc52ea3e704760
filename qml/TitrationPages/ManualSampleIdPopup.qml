import QtQuick 2.12
import "RunMath.js" as RunMath

// The sample id typed for one run, or in the Measure section for one saved
// reading: the same rules and messages in both.
EntryPopup {
    id: popup
    title: qsTr("Manual Sample Id") + ls.translatedText
    label: qsTr("Sample ID") + ls.translatedText
    placeholder: qsTr("Enter a sample ID") + ls.translatedText
    numeric: false
    firstButtonText: qsTr("Save") + ls.translatedText
    secondButtonText: qsTr("Cancel") + ls.translatedText

    // The Measure section saves the reading under the id.
    readonly property bool forMeasurement: mainWindow.currentStack === measureStack

    function ask() {
        textInputLastValue = forMeasurement ? "" : titration.sampleIDValue
        mainWindow.showPopup(popup)
        field.forceActiveFocus()
        Qt.inputMethod.show()
    }

    onSecondClicked: {
        Qt.inputMethod.hide()
        mainWindow.hidePopup()
    }
    onFirstClicked: {
        var id = field.text.replace(/^\s+|\s+$/g, "")
        var message = RunMath.sampleIdError(id, mainWindow.formatNum)
        if (message !== "") {
            refuse(qsTr(message) + ls.translatedText)
            return
        }
        Qt.inputMethod.hide()
        mainWindow.hidePopup()
        if (forMeasurement) {
            measurement.sampleId = "Manual"
            measure01.saveWithSampleId(id)
            return
        }
        titration.sampleIDValue = id
        titration.setTitrationSetupValues(electrode.electrodeType)
        titrationPreCheck.afterSampleId()
    }
}
