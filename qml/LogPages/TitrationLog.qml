import QtQuick 2.12
import "LogRows.js" as LogRows

// The titration log: a row's name by its method, sample id or setup, the
// average as stored; a tap shows the run as stored with its cycles.
LogListPage {
    objectName: "Titration Log"
    header3Text: qsTr("Titration Log") + ls.translatedText
    logIndex: 1
    showAverage: true
    entries: dm.titrationLogList

    function fieldsOf(e) {
        return {
            methodName: e.methodModel.methodName,
            titrationType: e.runValues.titrationType,
            sampleID: e.titrationSetupModel.sampleID,
            sampleIDValue: e.titrationSetupModel.sampleIDValue,
            electrodeType: e.electrodeSetupModel.electrodeType,
            iseType: e.electrodeSetupModel.iseType,
            setupType: e.titrationSetupModel.titrationType
        }
    }

    nameOf: function (e) { return LogRows.titrationName(fieldsOf(e), function (t) { return qsTr(t) }) }
    averageOf: function (e) { return LogRows.titrationAverage(e.AvgConc, e.runValues.titrationType) }

    onEntryTapped: {
        var e = entry
        var unit = e.titrationSetupModel.resultUnits
        dm.getTitrationCycleLogFromDb(e.runValues.id)
        var cycles = dm.titrationcycles
        var rows = []
        for (var i = 0; i < cycles.length; ++i) {
            var c = cycles[i]
            rows.push([String(c.cycleNo), mainWindow.sigFigsDec(c.calCon, 4, 5) + "", c.veqp.toFixed(3),
                       c.inclInAvg !== 0 ? qsTr("Yes") : qsTr("No")])
        }
        logEntrySummary.show(qsTr("Titration Summary") + ls.translatedText, [
            [qsTr("No."), String(e.id)],
            [qsTr("Name"), nameOf(e)],
            [qsTr("Method Name"), e.methodModel.methodName],
            [qsTr("Date/Time"), displayValues.formattedDateTime(e.createdAt)],
            [qsTr("Electrode"), e.electrodeSetupModel.electrodeName + " | " + qsTr(e.electrodeSetupModel.electrodeType)],
            [qsTr("Titrant"), e.titrantSetupModel.titrantName],
            [qsTr("Technique"), qsTr(e.titrationSetupModel.titrationTechnique)],
            [qsTr("Type"), qsTr(e.runValues.titrationType)],
            [qsTr("Avg Conc.") + " (" + unit + ")", averageOf(e)],
            [qsTr("RSD"), String(e.rsd).split("|").join(" ")]
        ], [qsTr("Cycle"), qsTr("Conc. (") + unit + ")", qsTr("Volume (mL)"), qsTr("In Avg")], rows,
        0, e.id)
    }
}
