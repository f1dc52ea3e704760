import QtQuick 2.12
import "../Background"
import "../Buttons"

// The export of the one entry a summary shows: file type, where to, format.
MainContentBackground {
    id: page
    objectName: "Export Summary"
    header3Text: qsTr("Export") + ls.translatedText + " | " + qsTr(modeValue) + ls.translatedText

    property string modeValue: ""
    property int entryId: 0
    property int records: 0
    // The first failure the report output told during the steps.
    property var failure: null

    function open(mode, id) {
        modeValue = mode
        entryId = id
        fileType.current = 0
        exportTo.current = 0
        format.current = 0
        logStack.push(page)
    }

    function start() {
        if (!rm.usbIsReady) {
            exportImportErrorPopUp.changeText(5)
            mainWindow.showPopup(exportImportErrorPopUp)
            return
        }
        var csv = fileType.current === 0
        reportController.fileType = format.current === 0 ? "short" : "Long"
        reportController.isCSV = csv
        var kind = modeValue
        var type = csv ? "CSV" : (kind === "Direct Measure Log" ? "PDF" : "Report")
        records = 0
        failure = null
        exportinProgressPopUp.start([function () {
            reportController.exportReportFromSummary(page.entryId, type, reportController.fileType, kind)
            return page.records > 0
        }], function (written) {
            if (page.failure) {
                busy_popup.showPopupMultiInput(page.failure[0], 0, page.failure[1])
                return
            }
            if (written === 0) {
                busy_popup.showPopupMultiInput("noRecordFound", 0, "")
                return
            }
            mainWindow.showPopup(exportCompletePopUp)
        })
    }

    Connections {
        target: reportController
        ignoreUnknownSignals: true
        function onShowPopupMultiInput(popupState, logCount, fileName) {
            if (!page.visible)
                return
            if (popupState === "recordFound")
                page.records += logCount
            else if (popupState === "usbNotReady" || popupState === "fileNotCreated")
                page.failure = [popupState, fileName]
        }
    }

    Column {
        x: 20
        y: 8
        width: parent.width - 40
        RadioRow {
            id: fileType
            label: qsTr("File Type") + ls.translatedText
            options: ["CSV", "Report"]
        }
        RadioRow {
            id: exportTo
            label: qsTr("Export to") + ls.translatedText
            options: ["USB Drive", "Computer"]
        }
        RadioRow {
            id: format
            label: qsTr("Format") + ls.translatedText
            options: ["Short", "Long"]
        }
    }
    PopupButton {
        objectName: "startSummaryExport"
        anchors.right: parent.right
        anchors.rightMargin: 80
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 12
        text: qsTr("Export") + ls.translatedText
        onClicked: page.start()
    }
}
