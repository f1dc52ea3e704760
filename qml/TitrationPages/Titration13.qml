import QtQuick 2.12
import "../Buttons"
import "../Popup"

// "Standardize the Titrant": the offer before the run of a titrant whose
// concentration is found by a standardisation that has not been run.
// "Manually Enter" takes the concentration as typed instead.
MessagePopup {
    id: popup
    // Room for three buttons.
    width: 520
    title: qsTr("Standardize the Titrant") + ls.translatedText
    message: qsTr("Would you like to\nstandardize the titrant?") + ls.translatedText + "\n\n"
             + qsTr("Standardizing the titrant is strongly encouraged to provide an accurate reading.") + ls.translatedText
    firstButtonText: qsTr("Yes") + ls.translatedText
    secondButtonText: qsTr("No") + ls.translatedText

    onFirstClicked: offerChain.standardize()
    onSecondClicked: offerChain.declineStandardization()

    PopupAlternateButton {
        objectName: "manuallyEnterButton"
        anchors.left: parent.left
        anchors.bottom: parent.bottom
        text: qsTr("Manually Enter") + ls.translatedText
        onClicked: offerChain.enterConcentration()
    }
}
