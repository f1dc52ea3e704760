import QtQuick 2.12

// The titrant (standardisation) log: the titrant and how its concentration
// is entered; a tap shows the standardisation as stored with its cycles.
LogListPage {
    objectName: "Titrant Log"
    header3Text: qsTr("Titrant Log") + ls.translatedText
    logIndex: 2
    showAverage: true
    entries: dm.standLogList

    function titrantNameOf(e) {
        var t = e.titrantSetupModel
        return t.titrantName === "User Defined" && t.titrantName_userDefined ? t.titrantName_userDefined : t.titrantName
    }

    nameOf: function (e) { return titrantNameOf(e) + " | " + qsTr(e.titrantSetupModel.concInputMode) }
    averageOf: function (e) { return String(e.AvgConc).split("|")[0] + " " + e.titrantSetupModel.resultUnits }

    onEntryTapped: {
        var e = entry
        dm.getTitrationCycleLogFromDb(e.runValues.id)
        var cycles = dm.titrationcycles
        var rows = []
        for (var i = 0; i < cycles.length; ++i) {
            var c = cycles[i]
            rows.push([String(c.cycleNo), mainWindow.sigFigsDec(c.calCon, 4, 5) + "", c.veqp.toFixed(3),
                       c.inclInAvg !== 0 ? qsTr("Yes") : qsTr("No")])
        }
        var unit = e.titrantSetupModel.resultUnits
        logEntrySummary.show(qsTr("Standardization Summary") + ls.translatedText, [
            [qsTr("No."), String(e.id)],
            [qsTr("Titrant"), titrantNameOf(e)],
            [qsTr("Method Name"), e.methodModel.methodName],
            [qsTr("Date/Time"), displayValues.formattedDateTime(e.createdAt)],
            [qsTr("Electrode"), e.electrodeSetupModel.electrodeName],
            [qsTr("Avg Conc.") + " (" + unit + ")", String(e.AvgConc).split("|")[0]],
            [qsTr("RSD"), String(e.RSD).split("|")[0]]
        ], [qsTr("Cycle"), qsTr("Conc. (") + unit + ")", qsTr("Volume (mL)"), qsTr("In Avg")], rows,
        1, e.id)
    }
}
