import QtQuick 2.12
import "../Popup"

// After a calibration asked for before the run: the offer to standardise
// the titrant as well.
MessagePopup {
    title: qsTr("Sensor Calibrated") + ls.translatedText
    message: qsTr("The sensor has been successfully calibrated.") + ls.translatedText + "\n\n"
             + qsTr("Would you like to standardize the titrant?") + ls.translatedText
    firstButtonText: qsTr("Yes") + ls.translatedText
    secondButtonText: qsTr("No") + ls.translatedText

    onFirstClicked: offerChain.standardize()
    onSecondClicked: offerChain.declineStandardization()
}
