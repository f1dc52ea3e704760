import QtQuick 2.12
import QtQuick.Controls 2.12
import "../Constants/Colors.js" as Colors

// The closed cycles of the run on show: a row per cycle with its results;
// the newest row is open, a tap opens or closes a row.
ListView {
    id: list

    property string concUnit: ""
    property int endPointsCount: 1
    property bool blankMode: false
    signal volumeGenerated(real veqp)

    clip: true
    spacing: 4
    model: ListModel { id: rows }
    ScrollBar.vertical: ScrollBar {}

    function shortUnit(unit) {
        return unit === "F*Consumption mmol" ? "F*Cons. mmol" : unit
    }

    function collapseAll() {
        for (var i = 0; i < rows.count; ++i)
            rows.setProperty(i, "expanded", false)
    }

    function addRow(row) {
        collapseAll()
        rows.append(row)
        currentIndex = rows.count - 1
        positionViewAtEnd()
    }

    // One closed cycle of dm.titrationcycles.
    function addCycle(cycle) {
        var unit = blankMode ? "mmol" : shortUnit(concUnit)
        var lines = []
        var concs = [cycle.calCon, cycle.calCon2, cycle.calCon3]
        var volumes = [cycle.veqp, cycle.veqp2, cycle.veqp3]
        for (var i = 0; i < endPointsCount; ++i) {
            var label = blankMode && i === 0 ? qsTr("Blank") : qsTr("Conc. %1").arg(i + 1)
            lines.push({ label: label, value: mainWindow.sigFigsDec(concs[i], 4, 5) + " " + unit })
        }
        for (var j = 0; j < endPointsCount; ++j)
            lines.push({ label: qsTr("Volume %1").arg(j + 1), value: volumes[j].toFixed(3) + " mL" })
        addRow({ cycleNo: cycle.cycleNo, lines: lines, expanded: true })
        volumeGenerated(cycle.veqp)
    }

    // One closed cycle of a known-addition run.
    function addMkaCycle(cycle) {
        addRow({ cycleNo: cycle.cycleno, expanded: true, lines: [
                     { label: qsTr("Conc. 1"), value: mainWindow.sigFigsDec(cycle.avgCalconc, 4, 5) + " " + shortUnit(concUnit) },
                     { label: qsTr("Slope 1"), value: Number(cycle.slope).toFixed(1) + " mV/dec" } ] })
    }

    function clearList() { rows.clear() }

    delegate: Rectangle {
        width: list.width
        height: 32 + (expanded ? lines.count : Math.min(1, lines.count)) * 24 + 6
        radius: 4
        color: list.currentIndex === index ? "#e8f4fc" : Colors.whiteColor
        border.color: Colors.lineColor
        Column {
            x: 10
            y: 6
            width: parent.width - 20
            Text {
                height: 26
                text: qsTr("Cycle No ") + ls.translatedText + cycleNo
                color: Colors.deeptangaroaColor
                font.pixelSize: 16
                font.weight: Font.Medium
            }
            Repeater {
                model: lines
                Item {
                    width: parent.width
                    height: 24
                    visible: expanded || index === 0
                    Text { text: label; color: Colors.slateColor; font.pixelSize: 14 }
                    Text {
                        anchors.right: parent.right
                        text: value
                        color: Colors.deeptangaroaColor
                        font.pixelSize: 15
                    }
                }
            }
        }
        MouseArea {
            anchors.fill: parent
            onClicked: {
                list.currentIndex = index
                rows.setProperty(index, "expanded", !expanded)
            }
        }
    }
}
