import QtQuick 2.12
import QtQuick.Controls 2.12
import "../Background"
import "../Buttons"
import "../CustomComponent"
import "../Constants/Colors.js" as Colors
import "LogRows.js" as LogRows

// Export of logs to the USB disk (or, with printLog, printing them): which
// log, file type, where to, which entries (all, a set of numbers, the last
// days or a custom range) and how long. The work runs as steps, one a log,
// so that the progress shown is the export's own.
MainContentBackground {
    id: page
    objectName: printLog ? "Print Log" : "Export Log"
    header3Text: (printLog ? qsTr("Print Log") : qsTr("Export Log")) + ls.translatedText

    property bool printLog: false
    readonly property var logs: [QT_TRANSLATE_NOOP("TranslationListElements", "Titration Log"), QT_TRANSLATE_NOOP("TranslationListElements", "Titrant Log"), QT_TRANSLATE_NOOP("TranslationListElements", "Calibration Log"), QT_TRANSLATE_NOOP("TranslationListElements", "Direct Measure Log"), QT_TRANSLATE_NOOP("TranslationListElements", "All Logs")]
    readonly property var byOptions: exportOf.currentIndex === 4 ? [QT_TRANSLATE_NOOP("TranslationListElements", "All"), QT_TRANSLATE_NOOP("TranslationListElements", "Date Range")] : [QT_TRANSLATE_NOOP("TranslationListElements", "All"), QT_TRANSLATE_NOOP("TranslationListElements", "Data Set"), QT_TRANSLATE_NOOP("TranslationListElements", "Date Range")]
    readonly property string exportBy: byOptions[byRow.current] || "All"
    property string fromDate: ""
    property string toDate: ""
    property int records: 0
    // The first failure the report output told during the steps.
    property var failure: null

    function today() { return Qt.formatDate(new Date(), "yyyy-MM-dd") }

    function loadModelData(index) {
        exportOf.currentIndex = index
        fileType.current = 0
        exportTo.current = 0
        format.current = 0
        byRow.current = 0
        days.current = 0
        setFrom.text = ""
        setTo.text = ""
        fromDate = today()
        toDate = today()
    }

    // From the date page: the date its button set.
    property bool settingFrom: true
    function changeDates(date) {
        if (settingFrom)
            fromDate = date
        else
            toDate = date
    }

    function pickDate(from) {
        settingFrom = from
        exportDateRange.open(page, from, from ? fromDate : toDate)
    }

    function config() {
        return {
            exportOf: logs[exportOf.currentIndex],
            fileType: printLog ? "CSV" : fileType.currentValue,
            exportTo: printLog ? "USB Drive" : exportTo.currentValue,
            exportBy: exportBy,
            format: format.current === 0 ? "short" : "Long",
            setFrom: setFrom.text,
            setTo: setTo.text,
            lastDays: days.current < 3 ? ["10", "30", "60"][days.current] : "",
            fromDate: fromDate,
            toDate: toDate,
            ids: [dm.logReportIds(1), dm.logReportIds(2), dm.logReportIds(3), dm.logReportIds(4)]
        }
    }

    function start() {
        if (printLog ? rm.printerIsReady !== true : !rm.usbIsReady) {
            exportImportErrorPopUp.changeText(printLog ? 11 : 5)
            mainWindow.showPopup(exportImportErrorPopUp)
            return
        }
        if (exportBy === "Data Set" && (setFrom.text === "" || setTo.text === "")) {
            mainWindow.showMessage(qsTr("Data Set") + ls.translatedText,
                                   qsTr("Please enter the first and the last number") + ls.translatedText)
            return
        }
        reportController.isCSV = !printLog && fileType.current === 0
        reportController.fileType = format.current === 0 ? "short" : "Long"
        records = 0
        failure = null
        var requests = LogRows.requestsOf(config())
        var steps = requests.map(function (r) {
            return function () { return page.runRequest(r) }
        })
        exportinProgressPopUp.start(steps, function () { page.finished() })
    }

    // One request to the report output; true when it found rows.
    function runRequest(request) {
        var before = records
        reportController.exportInput(request)
        return records > before
    }

    // The outcome: a failure, no record, or the records found over the
    // completion message.
    function finished() {
        if (failure) {
            busy_popup.showPopupMultiInput(failure[0], 0, failure[1])
            return
        }
        if (records === 0) {
            busy_popup.showPopupMultiInput("noRecordFound", 0, "")
            return
        }
        if (printLog) {
            exportImportErrorPopUp.changeText(14)
            mainWindow.showPopup(exportImportErrorPopUp)
        } else {
            mainWindow.showPopup(exportCompletePopUp)
        }
        busy_popup.showPopupMultiInput("recordFound", records, "")
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
        id: form
        x: 20
        y: 8
        width: parent.width - 40
        spacing: 0
        ChoiceRow {
            id: exportOf
            objectName: "exportOf"
            label: (page.printLog ? qsTr("Print") : qsTr("Export")) + ls.translatedText
            options: page.logs.map(function (t) { return qsTr(t) + ls.translatedText })
            onChosen: byRow.current = 0
        }
        RadioRow {
            id: fileType
            visible: !page.printLog
            label: qsTr("File Type") + ls.translatedText
            options: [QT_TRANSLATE_NOOP("TranslationListElements", "CSV"), QT_TRANSLATE_NOOP("TranslationListElements", "Report")]
        }
        RadioRow {
            id: exportTo
            visible: !page.printLog
            label: qsTr("Export to") + ls.translatedText
            options: [QT_TRANSLATE_NOOP("TranslationListElements", "USB Drive"), QT_TRANSLATE_NOOP("TranslationListElements", "Computer")]
        }
        RadioRow {
            id: byRow
            label: qsTr("Export by") + ls.translatedText
            options: page.byOptions
        }
        Rectangle {
            visible: page.exportBy === "Data Set"
            width: parent.width
            height: 48
            Row {
                anchors.verticalCenter: parent.verticalCenter
                x: 16
                spacing: 10
                Text { anchors.verticalCenter: parent.verticalCenter; text: qsTr("No.") + ls.translatedText; font.pixelSize: 15; color: Colors.deeptangaroaColor }
                TextField {
                    id: setFrom
                    objectName: "setFrom"
                    width: 110
                    height: 40
                    inputMethodHints: Qt.ImhDigitsOnly
                    validator: RegExpValidator { regExp: /[0-9]{0,7}/ }
                }
                Text { anchors.verticalCenter: parent.verticalCenter; text: qsTr("to No.") + ls.translatedText; font.pixelSize: 15; color: Colors.deeptangaroaColor }
                TextField {
                    id: setTo
                    objectName: "setTo"
                    width: 110
                    height: 40
                    inputMethodHints: Qt.ImhDigitsOnly
                    validator: RegExpValidator { regExp: /[0-9]{0,7}/ }
                }
            }
        }
        RadioRow {
            id: days
            visible: page.exportBy === "Date Range"
            label: qsTr("Range") + ls.translatedText
            options: [QT_TRANSLATE_NOOP("TranslationListElements", "10 Days"), QT_TRANSLATE_NOOP("TranslationListElements", "30 Days"), QT_TRANSLATE_NOOP("TranslationListElements", "60 Days"), QT_TRANSLATE_NOOP("TranslationListElements", "Custom")]
        }
        Rectangle {
            visible: page.exportBy === "Date Range" && days.current === 3
            width: parent.width
            height: 48
            Row {
                anchors.verticalCenter: parent.verticalCenter
                x: 16
                spacing: 10
                Repeater {
                    model: [[QT_TR_NOOP("From"), true], [QT_TR_NOOP("To"), false]]
                    Rectangle {
                        objectName: modelData[1] ? "fromDate" : "toDate"
                        width: 230
                        height: 40
                        radius: 4
                        border.color: Colors.lineColor
                        color: dateArea.pressed ? Colors.zirconColor : Colors.whiteColor
                        Text {
                            anchors.centerIn: parent
                            font.pixelSize: 15
                            color: Colors.deeptangaroaColor
                            text: qsTr(modelData[0]) + ls.translatedText + "  "
                                  + displayValues.switchDateFormat(Date.fromLocaleString(Qt.locale("C"), modelData[1] ? page.fromDate : page.toDate, "yyyy-MM-dd"))
                        }
                        MouseArea {
                            id: dateArea
                            anchors.fill: parent
                            onClicked: page.pickDate(modelData[1])
                        }
                    }
                }
            }
        }
        RadioRow {
            id: format
            label: qsTr("Format") + ls.translatedText
            options: [QT_TRANSLATE_NOOP("TranslationListElements", "Short"), QT_TRANSLATE_NOOP("TranslationListElements", "Long")]
        }
    }
    PopupButton {
        objectName: "startExport"
        anchors.right: parent.right
        anchors.rightMargin: 80
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 12
        text: (page.printLog ? qsTr("Print") : qsTr("Export")) + ls.translatedText
        onClicked: page.start()
    }
}
