import QtQuick 2.12
import "../Background"
import "../Constants/Colors.js" as Colors
import "../Constants/Icons.js" as Icons

// The first page of the Logs section: the four logs. A log without rows
// opens "There is no data to display"; with no row in any log that text
// covers the whole page.
MainContentBackground {
    id: page
    objectName: "Data Logs"
    header3Text: qsTr("Data Logs") + ls.translatedText

    property alias noDataLogScreen: noDataLogScreen
    property int logIndex: 0

    // The log pages read the lists of dm; a fetch fills them anew.
    function eraseModelData() {}

    function openLog(index) {
        logIndex = index
        var pages = [titrationLog, titrantLog, calibrationLog, measureLog]
        if (dm.logMethods(index) > 0)
            logStack.push(pages[index - 1])
        else
            logStack.push(nodataLogScreen)
    }

    Grid {
        anchors.centerIn: parent
        columns: 2
        spacing: 20
        Repeater {
            model: [QT_TR_NOOP("Titration Log"), QT_TR_NOOP("Titrant Log"),
                    QT_TR_NOOP("Calibration Log"), QT_TR_NOOP("Measurement Log")]
            Rectangle {
                objectName: "logButton" + (index + 1)
                width: 220
                height: 120
                radius: 6
                color: area.pressed ? Colors.zirconColor : Colors.whiteColor
                border.color: Colors.lineColor
                Column {
                    anchors.centerIn: parent
                    spacing: 8
                    Text {
                        anchors.horizontalCenter: parent.horizontalCenter
                        font.family: Icons.fontFamily
                        font.pixelSize: 36
                        color: Colors.summerSkyColor
                        text: Icons.logs
                    }
                    Text {
                        anchors.horizontalCenter: parent.horizontalCenter
                        color: Colors.deeptangaroaColor
                        font.family: "Roboto"
                        font.pixelSize: 18
                        text: qsTr(modelData) + ls.translatedText
                    }
                }
                MouseArea {
                    id: area
                    anchors.fill: parent
                    onClicked: page.openLog(index + 1)
                }
            }
        }
    }
    Rectangle {
        id: noDataLogScreen
        anchors.fill: parent
        visible: false
        color: Colors.whiteSmokeColor
        MouseArea { anchors.fill: parent }
        Text {
            anchors.centerIn: parent
            color: Colors.slateColor
            font.family: "Roboto"
            font.pixelSize: 18
            text: qsTr("There is no data to display") + ls.translatedText
        }
    }
}
