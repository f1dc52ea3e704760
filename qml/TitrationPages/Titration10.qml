import QtQuick 2.12
import "../Popup"

// "Calibrate Sensor": the first offer before the run of a pH setup whose
// electrode has no calibration of the method's.
MessagePopup {
    title: qsTr("Calibrate Sensor") + ls.translatedText
    message: qsTr("Would you like to calibrate\nthe sensor?") + ls.translatedText + "\n\n"
             + qsTr("Calibrating the sensor is strongly encouraged to provide an accurate reading.") + ls.translatedText
    firstButtonText: qsTr("Yes") + ls.translatedText
    secondButtonText: qsTr("No") + ls.translatedText

    onFirstClicked: {
        calibrationSuccessPopop.fromHomeCalibrationButton = false
        offerChain.calibrate(electrode.electrodeName)
    }
    onSecondClicked: offerChain.offerFrom(2)
}
