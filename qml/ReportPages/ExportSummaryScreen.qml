import QtQuick 2.12
import QtQuick.Controls 2.12
import "../Background"
import "../Buttons"
import "../Constants/Colors.js" as Colors
import "ReportRequest.js" as ReportRequest

// Export or print of the entry a summary shows: the file type (export
// only) and the form, then the busy popup while the report controller
// writes and moves the files or prints.
PopupBackground {
    id: popup

    property string modeValue: ""
    property int logId: 0
    property bool printing: false
    property var request: null

    title: (printing ? qsTr("Print") : qsTr("Export")) + ls.translatedText
    height: 52 + 20 + options.height + 24 + 48 + 20

    // index: 0 titration, 1 standardisation, 2 calibration, 3 measurement.
    function loadModelData(index, id, print) {
        modeValue = ReportRequest.modeOf(index)
        logId = id
        printing = print === true
        csvRadio.checked = true
        shortRadio.checked = true
        mainWindow.showPopup(popup)
    }

    function start() {
        var r = ReportRequest.summaryRequest(modeValue, logId, csvRadio.checked ? "CSV" : "Report",
                                             shortRadio.checked ? "Short" : "Long", printing)
        mainWindow.hideSinglePopup(popup)
        if (!r) {
            mainWindow.showMessage(qsTr("Report") + ls.translatedText, qsTr("This entry has no stored report.") + ls.translatedText)
            return
        }
        if (r.needs === "printer" && !rm.printerIsReady) {
            exportImportErrorPopUp.changeText(11)
            mainWindow.showPopup(exportImportErrorPopUp)
            return
        }
        if (r.needs === "usb" && !rm.usbIsReady) {
            exportImportErrorPopUp.changeText(5)
            mainWindow.showPopup(exportImportErrorPopUp)
            return
        }
        request = r
        reportController.fileType = r.format
        reportController.isCSV = r.isCSV
        busy_popup.present(printing ? "printStart" : "exportStart")
        // The busy popup shows before the work holds the event loop.
        startTimer.start()
    }

    Timer {
        id: startTimer
        interval: 100
        onTriggered: reportController.exportReportFromSummary(popup.request.logId, popup.request.fileType,
                                                              popup.request.format, popup.request.reportFor)
    }

    Column {
        id: options
        width: parent.width
        spacing: 4
        Row {
            visible: !popup.printing
            height: 44
            spacing: 12
            Text {
                width: 110
                height: parent.height
                verticalAlignment: Text.AlignVCenter
                color: Colors.deeptangaroaColor
                font.family: "Roboto"
                font.pixelSize: 17
                text: qsTr("File Type") + ls.translatedText
            }
            RadioButton {
                id: csvRadio
                objectName: "reportCsvRadio"
                text: "CSV"
                font.family: "Roboto"
                font.pixelSize: 17
            }
            RadioButton {
                objectName: "reportPdfRadio"
                text: qsTr("Report") + ls.translatedText
                font.family: "Roboto"
                font.pixelSize: 17
            }
        }
        Row {
            height: 44
            spacing: 12
            Text {
                width: 110
                height: parent.height
                verticalAlignment: Text.AlignVCenter
                color: Colors.deeptangaroaColor
                font.family: "Roboto"
                font.pixelSize: 17
                text: qsTr("Format") + ls.translatedText
            }
            RadioButton {
                id: shortRadio
                objectName: "reportShortRadio"
                text: qsTr("Short") + ls.translatedText
                font.family: "Roboto"
                font.pixelSize: 17
            }
            RadioButton {
                objectName: "reportLongRadio"
                text: qsTr("Long") + ls.translatedText
                font.family: "Roboto"
                font.pixelSize: 17
            }
        }
    }
    Row {
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        spacing: 16
        PopupAlternateButton {
            text: qsTr("Cancel") + ls.translatedText
            onClicked: mainWindow.hideSinglePopup(popup)
        }
        PopupButton {
            objectName: "reportStartButton"
            text: (popup.printing ? qsTr("Print") : qsTr("Export")) + ls.translatedText
            onClicked: popup.start()
        }
    }
}
