import QtQuick 2.12
import "../Popup"

// The offer at the end of a setup built from home: keep it as a method
// ("Save Method", the name popup) or go on to the run without saving.
MessagePopup {
    id: popup
    title: qsTr("Save Method") + ls.translatedText
    message: qsTr("Would you like to save this as a method?") + ls.translatedText + "\n\n"
             + qsTr("Saving as a method will still allow you to run the titration.") + ls.translatedText
    firstButtonText: qsTr("Yes, Save Method") + ls.translatedText
    secondButtonText: qsTr("No") + ls.translatedText

    // The road to the run after the offer, saved or not: the offers to
    // calibrate and standardise, then the pre-check.
    function goOn() {
        offerChain.start()
    }

    onFirstClicked: {
        if (dm.methodCount < 10) {
            mainWindow.transitionToPopup(titration08)
            titration08.reset()
        } else {
            mainWindow.hidePopup()
            mainWindow.showMessage(qsTr("Save Method") + ls.translatedText,
                                   qsTr("Method log is full, new method cannot be saved.") + ls.translatedText)
            goOn()
        }
    }
    onSecondClicked: {
        mainWindow.hidePopup()
        goOn()
    }
}
