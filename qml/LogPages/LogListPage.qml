import QtQuick 2.12
import "../Background"
import "../Buttons"
import "../CustomComponent"
import "../Constants/Colors.js" as Colors
import "../Constants/Icons.js" as Icons

// One log, newest first: number, name, date and time (and the average of a
// titration), with print, delete and export below. The variants say what a
// row shows and what a tap on it opens.
MainContentBackground {
    id: page

    // 1 titration, 2 titrant, 3 calibration, 4 measurement.
    property int logIndex: 1
    property var entries: null
    property bool showAverage: false
    // function(entry) -> text
    property var nameOf: function (entry) { return "" }
    property var averageOf: function (entry) { return "" }
    property var dateOf: function (entry) { return entry.createdAt }
    signal entryTapped(var entry)

    readonly property int nameWidth: list.width - 60 - 150 - (showAverage ? 130 : 0)

    Row {
        id: heading
        x: 20
        y: 10
        height: 28
        Repeater {
            model: page.showAverage ? [[QT_TR_NOOP("No."), 60], [QT_TR_NOOP("Name"), page.nameWidth],
                                       [QT_TR_NOOP("Date/Time"), 150], [QT_TR_NOOP("Avg"), 130]]
                                    : [[QT_TR_NOOP("No."), 60], [QT_TR_NOOP("Name"), page.nameWidth],
                                       [QT_TR_NOOP("Date/Time"), 150]]
            Text {
                width: modelData[1]
                leftPadding: 8
                color: Colors.slateColor
                font.family: "Roboto"
                font.pixelSize: 14
                font.weight: Font.Medium
                text: qsTr(modelData[0]) + ls.translatedText
            }
        }
    }
    ListView {
        id: list
        objectName: "logList"
        x: 20
        anchors.top: heading.bottom
        anchors.bottom: tools.top
        anchors.bottomMargin: 8
        width: parent.width - 40 - (scroller.needed ? 52 : 0)
        clip: true
        spacing: 4
        boundsBehavior: Flickable.StopAtBounds
        model: page.entries
        delegate: Rectangle {
            objectName: "logRow" + index
            width: list.width
            height: 48
            radius: 4
            color: rowArea.pressed ? Colors.zirconColor : Colors.whiteColor
            border.color: Colors.lineColor
            Row {
                anchors.verticalCenter: parent.verticalCenter
                Text {
                    width: 60
                    leftPadding: 8
                    color: Colors.deeptangaroaColor
                    font.family: "Roboto"
                    font.pixelSize: 15
                    text: modelData ? modelData.id : ""
                }
                Text {
                    width: page.nameWidth
                    leftPadding: 8
                    elide: Text.ElideRight
                    color: Colors.deeptangaroaColor
                    font.family: "Roboto"
                    font.pixelSize: 15
                    text: modelData ? page.nameOf(modelData) : ""
                }
                Text {
                    width: 150
                    leftPadding: 8
                    color: Colors.deeptangaroaColor
                    font.family: "Roboto"
                    font.pixelSize: 14
                    text: modelData ? displayValues.formattedDateTime(page.dateOf(modelData)) : ""
                }
                Text {
                    visible: page.showAverage
                    width: 130
                    leftPadding: 8
                    elide: Text.ElideRight
                    color: Colors.deeptangaroaColor
                    font.family: "Roboto"
                    font.pixelSize: 14
                    text: modelData && page.showAverage ? page.averageOf(modelData) : ""
                }
            }
            MouseArea {
                id: rowArea
                anchors.fill: parent
                onClicked: page.entryTapped(modelData)
            }
        }
    }
    ScrollButtons {
        id: scroller
        target: list
        namePrefix: "log"
        anchors.right: parent.right
        anchors.rightMargin: 8
        anchors.top: list.top
    }
    Row {
        id: tools
        anchors.right: parent.right
        anchors.rightMargin: 80
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 12
        spacing: 14
        Repeater {
            model: [["printLog", Icons.print], ["deleteLog", Icons.bin]]
            Rectangle {
                objectName: modelData[0]
                width: 48
                height: 48
                radius: 24
                color: iconArea.pressed ? Colors.zirconColor : Colors.whiteColor
                border.color: Colors.lineColor
                Text {
                    anchors.centerIn: parent
                    font.family: Icons.fontFamily
                    font.pixelSize: 26
                    color: index === 1 ? Colors.orangepeelColor : Colors.summerSkyColor
                    text: modelData[1]
                }
                MouseArea {
                    id: iconArea
                    anchors.fill: parent
                    onClicked: index === 0 ? page.openPrint() : page.askDelete()
                }
            }
        }
        PopupButton {
            objectName: "exportLog"
            text: qsTr("Export") + ls.translatedText
            onClicked: {
                exportLogScreen.loadModelData(page.logIndex - 1)
                logStack.push(exportLogScreen)
            }
        }
    }

    function openPrint() {
        printLogScreen.loadModelData(logIndex - 1)
        logStack.push(printLogScreen)
    }

    function askDelete() {
        deleteConfirmPopUp.logIndex = logIndex
        mainWindow.showPopup(deleteConfirmPopUp)
    }
}
