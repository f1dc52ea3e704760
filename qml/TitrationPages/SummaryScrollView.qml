import QtQuick 2.12
import QtQuick.Controls 2.12
import "../Constants/Colors.js" as Colors
import "RunMath.js" as RunMath

// The cycles of a run as a table with their "Incl. in Avg" boxes, and the
// averages and relative standard deviations of the included cycles, one
// per end point. Every change of a box is written to the cycle's row and
// the figures are worked out again.
Item {
    id: view

    property int endPoints: 1
    property string unit: ""
    property string initialTitle: "pH"
    property bool isMka: false
    property bool fromLog: false
    property string averageLabel: ""
    property string concTitle: qsTr("Conc. (") + unit + ")"
    property var average: 0
    property var average2: 0
    property var average3: 0
    property string average1Text: ""
    property string rsdText: ""
    property int cycleNumber: 0
    readonly property alias rows: rows
    // After each recalculation, with the texts to store.
    signal figuresChanged(string averageText, string rsdStored)

    function valuesOf(k) {
        var v = []
        for (var i = 0; i < rows.count; ++i)
            v.push(rows.get(i).conc.get(k).v)
        return v
    }
    function includedFlags() {
        var f = []
        for (var i = 0; i < rows.count; ++i)
            f.push(rows.get(i).incl)
        return f
    }

    function calculateAverage() {
        var flags = includedFlags()
        var means = []
        for (var k = 0; k < endPoints; ++k)
            means.push(RunMath.mean(valuesOf(k), flags))
        average = means[0] || 0
        average2 = means[1] || 0
        average3 = means[2] || 0
        average1Text = means.map(function (m) { return String(mainWindow.sigFigsDec(m, 4, 5)) }).join(" | ")
        cycleNumber = flags.filter(function (x) { return x }).length
    }

    function calculateRsd() {
        var flags = includedFlags()
        var texts = []
        for (var k = 0; k < endPoints; ++k)
            texts.push(RunMath.rsdText(valuesOf(k), flags))
        rsdText = texts.join("\n")
        var stored = texts.map(function (t) { return t === "0.0%" ? "0.00%" : t }).join(" | ")
        figuresChanged(average1Text, stored)
    }

    function recalculate() {
        calculateAverage()
        calculateRsd()
    }

    // One row: cycle number, initial reading, concentrations, volumes (or
    // for a known addition the slope and precision), id, included.
    function addRow(cycleNo, initial, concs, second, id, incl) {
        rows.append({ cycleNo: cycleNo, initial: initial, conc: concs.map(function (x) { return { v: x } }),
                      second: second, rowId: id, incl: incl })
    }

    ListModel { id: rows }

    Row {
        id: heading
        width: parent.width
        height: 30
        Repeater {
            model: view.isMka ? [qsTr("Cycle"), view.concTitle, qsTr("Slope"), qsTr("Prec. %"), qsTr("Incl. in Avg")]
                              : [qsTr("Cycle"), qsTr("Initial ") + view.initialTitle, view.concTitle, qsTr("Vol. (mL)"), qsTr("Incl. in Avg")]
            Text {
                width: (view.isMka ? [52, 146, 110, 100, 102] : [52, 100, 146, 110, 102])[index]
                height: 30
                verticalAlignment: Text.AlignVCenter
                elide: Text.ElideRight
                text: modelData
                color: Colors.slateColor
                font.pixelSize: 14
            }
        }
    }

    ListView {
        id: table
        anchors.top: heading.bottom
        anchors.bottom: figures.top
        anchors.bottomMargin: 6
        width: parent.width
        clip: true
        model: rows
        ScrollBar.vertical: ScrollBar {}
        delegate: Rectangle {
            width: table.width
            height: Math.max(32, 22 * view.endPoints + 10)
            color: index % 2 ? Colors.whiteSmokeColor : Colors.whiteColor
            Row {
                height: parent.height
                Text { width: 52; anchors.verticalCenter: parent.verticalCenter; text: cycleNo; font.pixelSize: 16; color: Colors.deeptangaroaColor }
                Text {
                    width: 100
                    anchors.verticalCenter: parent.verticalCenter
                    visible: !view.isMka
                    text: initial
                    font.pixelSize: 16
                    color: Colors.deeptangaroaColor
                }
                Text {
                    width: 146
                    anchors.verticalCenter: parent.verticalCenter
                    text: {
                        var t = []
                        for (var k = 0; k < Math.min(view.endPoints, conc.count); ++k)
                            t.push(mainWindow.sigFigsDec(conc.get(k).v, 4, 5))
                        return t.join("\n")
                    }
                    font.pixelSize: 16
                    color: Colors.deeptangaroaColor
                }
                Text { width: 110; anchors.verticalCenter: parent.verticalCenter; text: second; font.pixelSize: 16; color: Colors.deeptangaroaColor }
                Text {
                    width: 100
                    anchors.verticalCenter: parent.verticalCenter
                    visible: view.isMka
                    text: initial
                    font.pixelSize: 16
                    color: Colors.deeptangaroaColor
                }
                CheckBox {
                    objectName: "inclInAvg" + cycleNo
                    anchors.verticalCenter: parent.verticalCenter
                    height: 32
                    checked: incl
                    enabled: !view.fromLog
                    onToggled: {
                        rows.setProperty(index, "incl", checked)
                        if (view.isMka)
                            runtitration.updateInculeInAvgConditioninMKA(rowId, checked)
                        else
                            runtitration.updateInculeInAvgCondition(rowId, checked)
                        view.recalculate()
                    }
                }
            }
        }
    }

    Column {
        id: figures
        anchors.bottom: parent.bottom
        width: parent.width
        spacing: 2
        Row {
            spacing: 12
            Text { width: 170; text: view.averageLabel; color: Colors.slateColor; font.pixelSize: 16 }
            Text {
                objectName: "averageText"
                text: view.average1Text
                color: Colors.deeptangaroaColor
                font.pixelSize: 18
                font.weight: Font.Medium
            }
        }
        Row {
            spacing: 12
            Text { width: 170; text: qsTr("RSD") + ls.translatedText; color: Colors.slateColor; font.pixelSize: 16 }
            Text { objectName: "rsdText"; text: view.rsdText; color: Colors.deeptangaroaColor; font.pixelSize: 16 }
        }
        Text {
            text: qsTr("%1 of %2 cycles in the average").arg(view.cycleNumber).arg(rows.count) + ls.translatedText
            color: Colors.slateColor
            font.pixelSize: 14
        }
    }
}
