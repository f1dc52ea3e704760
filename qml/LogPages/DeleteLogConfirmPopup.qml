import QtQuick 2.12
import "../Popup"

// "Delete Data Confirm": a whole log goes with its runs (or calibrations)
// and their report rows.
MessagePopup {
    id: popup
    title: qsTr("Delete Data Confirm") + ls.translatedText
    message: qsTr("Are you sure you want to delete the entire log? This action cannot be undone.") + ls.translatedText
    firstButtonText: qsTr("Delete") + ls.translatedText
    secondButtonText: qsTr("Cancel") + ls.translatedText

    // 1 titration, 2 titrant, 3 calibration, 4 measurement.
    property int logIndex: 1

    onSecondClicked: mainWindow.hidePopup()
    onFirstClicked: {
        if (logIndex === 1)
            dm.deleteTitrationLog()
        else if (logIndex === 2)
            dm.deleteTitrantLog()
        else if (logIndex === 3)
            dm.deleteCalibrationLog()
        else if (logIndex === 4)
            dm.deleteMeasurementLog()
        mainWindow.hideSinglePopup(popup)
        logStack.pop()
        log01.noDataLogScreen.visible = !dm.checkDB()
    }
}
