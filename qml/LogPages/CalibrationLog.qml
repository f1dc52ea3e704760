import QtQuick 2.12

// The calibration log: electrode and type; a tap shows the calibration's
// points as stored.
LogListPage {
    objectName: "Calibration Log"
    header3Text: qsTr("Calibration Log") + ls.translatedText
    logIndex: 3
    entries: dm.calibratoinLogList

    nameOf: function (e) { return e.electrodeName + " | " + qsTr(e.electrodeType) }

    onEntryTapped: {
        var e = entry
        dm.getCalibrationCyclesFromDb(e.calId)
        var points = dm.calibrationcycles
        var rows = []
        var slopes = []
        for (var i = 0; i < points.count; ++i) {
            var p = points.get(i)
            rows.push([String(p.cycleNo), Number(p.buffer).toFixed(2), Number(p.voltage).toFixed(1),
                       Number(p.slope).toFixed(1), Number(p.temperature).toFixed(1)])
            if (i > 0)
                slopes.push(p.slope)
        }
        var avg = slopes.length > 0 ? slopes.reduce(function (a, b) { return a + b }, 0) / slopes.length : NaN
        logEntrySummary.show(qsTr("Calibration Summary") + ls.translatedText, [
            [qsTr("No."), String(e.id)],
            [qsTr("Electrode"), e.electrodeName],
            [qsTr("Type"), qsTr(e.electrodeType)],
            [qsTr("Date/Time"), displayValues.formattedDateTime(e.createdAt)],
            [qsTr("Avg Slope (%)"), isNaN(avg) ? "" : avg.toFixed(1)]
        ], [qsTr("Point"), qsTr("Buffer"), qsTr("mV"), qsTr("Slope (%)"), qsTr("Temp")], rows,
        2, e.calId)
    }
}
