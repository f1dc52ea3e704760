import QtQuick 2.12
import "../Background"
import "../Buttons"
import "../CustomComponent"
import "../Constants/Colors.js" as Colors

// One log entry's summary with the figures as they were stored: the method
// and setup of the run (or the calibration, the reading) and its cycles.
// Print and Export offer the entry's report; Done goes back to the log.
MainContentBackground {
    id: page
    objectName: "Log Summary"

    // [label, value] pairs, then the table of cycles: a heading and rows.
    property var pairs: []
    property var cycleHeading: []
    property var cycleRows: []
    // The kind of entry (0 titration, 1 standardisation, 2 calibration,
    // 3 measurement) and the id its report row is stored under.
    property int kind: 0
    property int entryId: 0

    // The tip of the page on show follows the kind of entry.
    readonly property var tipKeys: ["Titration Summary", "Standardization Summary", "Calibration Summary",
                                    "Direct Measure Log Summary"]

    function show(title, values, heading, rows, entryKind, id) {
        objectName = tipKeys[entryKind] || "Log Summary"
        header3Text = title
        pairs = values
        cycleHeading = heading
        cycleRows = rows
        kind = entryKind
        entryId = id
        flick.contentY = 0
        logStack.push(page)
    }

    Flickable {
        id: flick
        x: 20
        anchors.top: parent.top
        anchors.topMargin: 10
        width: parent.width - 40 - (scroller.needed ? 52 : 0)
        anchors.bottom: done.top
        anchors.bottomMargin: 8
        contentHeight: content.height
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        Column {
            id: content
            width: flick.width
            spacing: 4
            Repeater {
                model: page.pairs
                Row {
                    spacing: 10
                    Text {
                        width: 190
                        color: Colors.slateColor
                        font.family: "Roboto"
                        font.pixelSize: 15
                        text: modelData[0]
                    }
                    Text {
                        width: content.width - 200
                        elide: Text.ElideRight
                        color: Colors.deeptangaroaColor
                        font.family: "Roboto"
                        font.pixelSize: 15
                        text: modelData[1]
                    }
                }
            }
            Item { width: 1; height: 8; visible: page.cycleRows.length > 0 }
            Repeater {
                model: page.cycleRows.length > 0 ? [page.cycleHeading].concat(page.cycleRows) : []
                Row {
                    readonly property bool isHeading: index === 0
                    Repeater {
                        model: modelData
                        Text {
                            width: content.width / Math.max(1, page.cycleHeading.length)
                            elide: Text.ElideRight
                            color: isHeading ? Colors.slateColor : Colors.deeptangaroaColor
                            font.family: "Roboto"
                            font.pixelSize: 14
                            font.weight: isHeading ? Font.Medium : Font.Normal
                            text: modelData
                        }
                    }
                }
            }
        }
    }
    ScrollButtons {
        id: scroller
        target: flick
        namePrefix: "summary"
        anchors.right: parent.right
        anchors.rightMargin: 8
        anchors.top: flick.top
    }
    Row {
        id: done
        anchors.right: parent.right
        anchors.rightMargin: 80
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 12
        spacing: 14
        PopupAlternateButton {
            objectName: "summaryPrint"
            text: qsTr("Print") + ls.translatedText
            onClicked: exportSummaryScreen.loadModelData(page.kind, page.entryId, true)
        }
        PopupAlternateButton {
            objectName: "summaryExport"
            text: qsTr("Export") + ls.translatedText
            onClicked: exportSummaryScreen.loadModelData(page.kind, page.entryId, false)
        }
        PopupButton {
            objectName: "summaryDone"
            text: qsTr("Done") + ls.translatedText
            onClicked: logStack.pop()
        }
    }
}
