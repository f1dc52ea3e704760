import QtQuick 2.12
import "../Background"
import "../Buttons"
import "../Constants/Colors.js" as Colors
import "../Constants/NumberFormat.js" as NumberFormat
import "RunMath.js" as RunMath

// The end of a titration: the stored cycles, the average and RSD of those
// included (written to the run's log entry), and the way to the next run.
MainContentBackground {
    id: page
    objectName: "Titration Summary"
    header3Text: qsTr("Titration Summary") + ls.translatedText

    property bool fromLog: false
    property alias fromTitrationLog: page.fromLog
    readonly property bool isMka: electrode.electrodeType === "ISE-MKA"
    readonly property bool blankMode: dm.blankTitrationMode
    property alias summaryFlickable: summary
    // The sample id the run was made with (the method's counts on at Complete).
    property string sampleId: ""

    function resultUnit() {
        if (blankMode)
            return "mmol"
        return titration.resultUnits.indexOf("F*") === 0 ? "mmol" : titration.resultUnits
    }

    function blankText() {
        if (blankMode)
            return qsTr("Blank Run")
        if (titration.titrationType === "Back Titration")
            return mainWindow.sigFigsDec(titration.blankConcentration, 4, 4) + " mmol"
        return mainWindow.sigFigsDec(titration.blankRequiredValue, 4, 4) + " mmol"
    }

    function injectSummaryModel() {
        summary.rows.clear()
        summary.fromLog = fromLog
        summary.isMka = isMka
        summary.unit = resultUnit()
        summary.endPoints = isMka ? 1 : Math.max(1, titration.noOfEndPoints)
        summary.initialTitle = titration.displayUnits === "pH" && electrode.electrodeType === "pH" ? "pH" : "mV"
        summary.averageLabel = blankMode ? qsTr("Avg Blank(mmol)") : qsTr("Avg Conc. (") + resultUnit() + ")"
        summary.concTitle = blankMode ? qsTr("Blank Value(mmol)") : qsTr("Conc. (") + resultUnit() + ")"
        var decimals = NumberFormat.countDecimal(electrode.resolution)
        var i
        if (isMka) {
            var mka = dm.mkaTitrationCycle
            for (i = 0; i < mka.length; ++i) {
                var m = mka[i]
                summary.addRow(m.cycleno, Number(m.avgPrecision).toFixed(1), [m.avgCalconc],
                               Number(m.slope).toFixed(1), m.id, m.inclAvg === 1)
            }
        } else {
            var cycles = dm.titrationcycles
            for (i = 0; i < cycles.length; ++i) {
                var c = cycles[i]
                var initial = parseFloat(c.initialpH)
                var volumes = [c.veqp, c.veqp2, c.veqp3].slice(0, summary.endPoints).map(function (v) { return v.toFixed(3) })
                summary.addRow(c.cycleNo, isNaN(initial) ? "" : initial.toFixed(summary.initialTitle === "pH" ? decimals : 1),
                               [c.calCon, c.calCon2, c.calCon3], volumes.join("\n"), c.id, c.inclInAvg !== 0)
            }
        }
        if (!fromLog) {
            dm.initializeTitration()
            dm.reInitializeMethodModel(setup.currentMethodId)
        }
        summary.recalculate()
    }

    function repeatButtonAction() {
        mainWindow.currentStack.pop(mainWindow.lastPageInCurrentStack)
        mainWindow.resetProcessIndex()
    }

    Column {
        id: info
        x: 20
        y: 10
        width: parent.width - 40
        spacing: 2
        Text {
            width: parent.width
            elide: Text.ElideRight
            text: method.methodName + (titration.sampleID !== "None" && !page.blankMode ? "   " + qsTr("Sample Id") + ": " + page.sampleId : "")
            color: Colors.deeptangaroaColor
            font.pixelSize: 17
            font.weight: Font.Medium
        }
        Text {
            width: parent.width
            elide: Text.ElideRight
            text: qsTr("Titrant") + ": " + titration01.titrantShownName() + " " + titrationPreCheck.titrantConcText()
                  + (page.isMka ? "" : "   " + qsTr("Blank") + ": " + page.blankText())
            color: Colors.slateColor
            font.pixelSize: 14
        }
    }

    SummaryScrollView {
        id: summary
        anchors.top: info.bottom
        anchors.topMargin: 8
        anchors.bottom: buttons.top
        anchors.bottomMargin: 8
        x: 20
        width: parent.width - 40
        onFiguresChanged: {
            if (page.fromLog)
                return
            titrationLogModel.AvgConc = averageText
            titration.avgConc = averageText
            titration.setTitrationSetupValues(electrode.electrodeType)
            titrationLogModel.rsd = rsdStored
            titrationLogModel.updateLog()
            if (page.blankMode) {
                // The blank's average becomes the method's blank, which the
                // start of a back titration waits for.
                titration.updateMethodTable(method.id, summary.average)
                titrationLogModel.saveBlankConc(summary.average)
                dm.reInitializeMethodModel(method.id)
            }
            dm.storeRunReport(titrationLogModel, page.sampleId)
        }
    }

    Row {
        id: buttons
        anchors.left: parent.left
        anchors.leftMargin: 20
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 16
        spacing: 12
        PopupButton {
            objectName: "repeatButton"
            width: 200
            text: (page.blankMode ? qsTr("Next") : page.isMka ? qsTr("Repeat MKA") : qsTr("Repeat Titration")) + ls.translatedText
            onClicked: page.repeatButtonAction()
        }
        PopupAlternateButton {
            objectName: "summaryPrintButton"
            text: qsTr("Print") + ls.translatedText
            onClicked: exportSummaryScreen.loadModelData(0, titrationLogModel.id, true)
        }
        PopupAlternateButton {
            objectName: "summaryExportButton"
            text: qsTr("Export") + ls.translatedText
            onClicked: exportSummaryScreen.loadModelData(0, titrationLogModel.id, false)
        }
    }
}
