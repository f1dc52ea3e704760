import QtQuick 2.12
import "../Background"
import "../Buttons"
import "../Constants/Colors.js" as Colors

// The end of a titrant standardisation: the cycles, the average titrant
// concentration and its RSD; "Next" writes the average to the method's
// titrant and to the standardisation's log entry.
MainContentBackground {
    id: page
    objectName: "Standardization Summary"
    header3Text: qsTr("Standardization Summary") + ls.translatedText

    property bool fromLog: false
    property alias fromStandardizationLog: page.fromLog
    property alias summaryFlickable: page

    function injectSummaryModel() {
        summary.rows.clear()
        summary.fromLog = fromLog
        summary.unit = titrant.resultUnits
        summary.endPoints = 1
        summary.initialTitle = electrode.electrodeType === "pH" ? "pH" : "mV"
        summary.averageLabel = qsTr("Avg Conc. (") + titrant.resultUnits + ")"
        var cycles = dm.titrationcycles
        for (var i = 0; i < cycles.length; ++i) {
            var c = cycles[i]
            summary.addRow(c.cycleNo, String(c.initialpH).substring(0, 4), [c.calCon], c.veqp.toFixed(3), c.id, c.inclInAvg !== 0)
        }
        if (!fromLog) {
            dm.initializeTitration()
            dm.reInitializeMethodModel(setup.currentMethodId)
        }
        summary.recalculate()
    }

    // The average becomes the titrant's concentration in the method.
    function averagetoDB() {
        if (fromLog)
            return
        titrant.updateMethodTable(method.id, summary.average)
        standardisationLogModel.updateStandardisationLog()
        dm.reInitializeMethodModel(method.id)
    }

    function next() {
        averagetoDB()
        // Asked for before a run from home: the offer goes on to the pre-check.
        if (mainWindow.currentStack === titrationStack && titrantStandardizationProcessStack.skipSetup) {
            dm.deviceMode = "Titration"
            mainWindow.showPopup(titration15)
            return
        }
        mainWindow.currentStack.pop(mainWindow.lastPageInCurrentStack)
        mainWindow.resetProcessIndex()
        dm.deviceMode = "Titration"
        dynamicLoader.loadSuccessPopUp(qsTr("Titrant Standardized") + ls.translatedText,
                                       qsTr("The titrant has been successfully standardized.") + ls.translatedText, "")
    }

    Text {
        id: info
        x: 20
        y: 12
        width: parent.width - 40
        elide: Text.ElideRight
        text: method.methodName + "   " + titration01.titrantShownName() + "   " + qsTr("Standard") + ": " + titrant.standAmount
        color: Colors.deeptangaroaColor
        font.pixelSize: 17
        font.weight: Font.Medium
    }

    SummaryScrollView {
        id: summary
        anchors.top: info.bottom
        anchors.topMargin: 10
        anchors.bottom: nextButton.top
        anchors.bottomMargin: 8
        x: 20
        width: parent.width - 40
        onFiguresChanged: {
            if (page.fromLog)
                return
            standardisationLogModel.AvgConc = averageText
            standardisationLogModel.RSD = rsdStored
            dm.storeRunReport(standardisationLogModel, "")
        }
    }

    PopupButton {
        id: nextButton
        objectName: "standardizationNextButton"
        anchors.left: parent.left
        anchors.leftMargin: 20
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 16
        width: 160
        text: qsTr("Next") + ls.translatedText
        onClicked: page.next()
    }
    Row {
        anchors.left: nextButton.right
        anchors.leftMargin: 12
        anchors.bottom: nextButton.bottom
        spacing: 12
        PopupAlternateButton {
            objectName: "summaryPrintButton"
            text: qsTr("Print") + ls.translatedText
            onClicked: exportSummaryScreen.loadModelData(1, standardisationLogModel.id, true)
        }
        PopupAlternateButton {
            objectName: "summaryExportButton"
            text: qsTr("Export") + ls.translatedText
            onClicked: exportSummaryScreen.loadModelData(1, standardisationLogModel.id, false)
        }
    }
}
