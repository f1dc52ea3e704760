import QtQuick 2.12
import "../Constants/NumberFormat.js" as NumberFormat
import "../Constants/Temperature.js" as Temperature

// The measurement log: read mode and sensor; a tap shows the reading as
// stored (DirectMeasureDetailLog).
LogListPage {
    objectName: "Direct Measure Log"
    header3Text: qsTr("Measurement Log") + ls.translatedText
    logIndex: 4
    entries: dm.measures

    nameOf: function (e) {
        var m = e.measurementModel
        return m ? qsTr(m.readMode) + " | " + m.sensorName : ""
    }

    onEntryTapped: {
        var m = entry.measurementModel
        if (!m)
            return
        var rows = [
            [qsTr("No."), String(m.sno)],
            [qsTr("Read Mode"), qsTr(m.readMode) + (m.readMode === "ISE" ? " | " + m.iseType : "")],
            [qsTr("Date/Time"), displayValues.formattedDateTime(entry.createdAt)],
            [qsTr("Sensor"), m.sensorName],
            [qsTr("Sample ID"), m.sampleIdValue]
        ]
        if (m.readMode === "pH") {
            rows.push([qsTr("Value"), m.scaledValue.toFixed(NumberFormat.convertFloatResToInt(m.resolution)) + " " + m.directMeasurementUnit])
            rows.push([qsTr("Slope Value"), Number(m.calAvg).toFixed(1)])
        } else if (m.readMode === "Redox") {
            rows.push([qsTr("Value"), m.scaledValue.toFixed(1) + " " + m.directMeasurementUnit])
            rows.push([qsTr("Offset Value"), Number(m.calAvg).toFixed(1)])
        } else {
            rows.push([qsTr("Value"), String(mainWindow.sigFigs(m.scaledValue, m.significantDigits)) + " " + m.directMeasurementUnit])
        }
        rows.push([qsTr("mV"), m.mV.toFixed(1) + " mV"])
        rows.push([qsTr("Temperature"), Number(displayValues.getConvertedTemp(m.temp)).toFixed(1) + " " + Temperature.unitText(setup.temperatureFormat_Index) + (m.isATC ? " ATC" : " MAN")])
        logEntrySummary.show(qsTr("Measurement Detail") + ls.translatedText, rows, [], [],
                             3, entry.id)
    }
}
