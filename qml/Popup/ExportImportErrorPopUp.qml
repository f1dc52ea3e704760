import QtQuick 2.12

// The numbered messages of exports, imports, reports and screenshots, with
// one "Close" button.
MessagePopup {
    id: popup

    readonly property var texts: [
        ["Error Message", "No Methods available for Export"],
        ["Error Message", "USB does not contain an Importation file"],
        ["Error Message", "There are no available Methods for Import"],
        ["Export", "Export Process Completed"],
        ["Import", "Import Process Completed"],
        ["Error Message", "USB Device not connected"],
        ["Report", "Titration Report is Generated"],
        ["Information", "Slope out of range"],
        ["Report", "Calibration Report Printing Completed"],
        ["Report", "Standardization Report is Generated"],
        ["Report", "Measurement Report Printing Completed"],
        ["Error Message", "Printer not connected"],
        ["Report", "Titration Report Printing Completed"],
        ["Report", "Standardization Report Printing Completed"],
        ["Report", "Report Printing Completed"],
        ["Report", "Calibration Report is Generated"],
        ["Report", "Measurement Report is Generated"],
        ["Report", "Methods have been exported to USB"],
        ["Report", "Method Report Printing Completed"],
        ["Screenshot", "Screenshot saved in USB"]
    ]

    firstButtonText: qsTr("Close") + ls.translatedText

    function changeText(condition) {
        var entry = texts[condition]
        if (!entry) {
            console.log("ExportImportErrorPopUp: no text", condition)
            return
        }
        title = qsTr(entry[0]) + ls.translatedText
        message = qsTr(entry[1]) + ls.translatedText
    }

    onFirstClicked: mainWindow.hidePopup()

    // The texts of the list, for the translation tools.
    function translatableTexts() {
        return [qsTr("Error Message"), qsTr("No Methods available for Export"), qsTr("USB does not contain an Importation file"),
                qsTr("There are no available Methods for Import"), qsTr("Export"), qsTr("Export Process Completed"),
                qsTr("Import"), qsTr("Import Process Completed"), qsTr("USB Device not connected"), qsTr("Report"),
                qsTr("Titration Report is Generated"), qsTr("Information"), qsTr("Slope out of range"),
                qsTr("Calibration Report Printing Completed"), qsTr("Standardization Report is Generated"),
                qsTr("Measurement Report Printing Completed"), qsTr("Printer not connected"),
                qsTr("Titration Report Printing Completed"), qsTr("Standardization Report Printing Completed"),
                qsTr("Report Printing Completed"), qsTr("Calibration Report is Generated"),
                qsTr("Measurement Report is Generated"), qsTr("Methods have been exported to USB"),
                qsTr("Method Report Printing Completed"), qsTr("Screenshot"), qsTr("Screenshot saved in USB")]
    }
}
