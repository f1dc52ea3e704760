import QtQuick 2.12
import "../Constants/Colors.js" as Colors
import "../Constants/Icons.js" as Icons

// The frame of every page of the sections: the header with the instrument's
// name and the clock, the page title, and the content below. A press and
// hold on the header opens the version page on the service instruments.
Rectangle {
    id: page

    property string header3Text: ""
    // Whether the page has a tip (its objectName is the key into the tips):
    // the info mark shows exactly where a tip is there to show.
    property bool hasInfo: tips.has(objectName)
    default property alias content: contentArea.data
    readonly property alias contentArea: contentArea
    readonly property int contentHeight: contentArea.height

    width: 550
    height: 480
    color: Colors.whiteSmokeColor

    Rectangle {
        id: header
        width: parent.width
        height: 40
        color: Colors.lightelephantColor

        Text {
            id: instrumentLabel
            anchors.left: parent.left
            anchors.leftMargin: 16
            anchors.verticalCenter: parent.verticalCenter
            width: parent.width / 2 - 24
            elide: Text.ElideRight
            color: Colors.whiteColor
            font.family: "Roboto"
            font.pixelSize: 15
            font.weight: Font.Medium
            text: setup.instrumentName
        }
        Text {
            id: clockLabel
            anchors.right: parent.right
            anchors.rightMargin: 16
            anchors.verticalCenter: parent.verticalCenter
            color: Colors.paleSkyColor
            font.family: "Roboto"
            font.pixelSize: 14
        }
        MouseArea {
            anchors.fill: parent
            onPressAndHold: mainWindow.openVersionPage()
        }
    }

    Rectangle {
        id: titleBar
        anchors.top: header.bottom
        width: parent.width
        height: 48
        color: Colors.whiteColor

        Text {
            anchors.left: parent.left
            anchors.leftMargin: 20
            anchors.right: parent.right
            anchors.rightMargin: 20
            anchors.verticalCenter: parent.verticalCenter
            elide: Text.ElideRight
            color: Colors.deeptangaroaColor
            font.family: "Roboto"
            font.pixelSize: 21
            font.weight: Font.Medium
            text: page.header3Text
        }
        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: 1
            color: Colors.lineColor
        }
    }

    Item {
        id: contentArea
        anchors.top: titleBar.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
    }

    // The mark of the tip corner; the tap itself is taken by the window.
    Text {
        visible: page.hasInfo
        anchors.right: parent.right
        anchors.rightMargin: 22
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 24
        font.family: Icons.fontFamily
        font.pixelSize: 30
        color: Colors.summerSkyColor
        text: Icons.info
    }

    Timer {
        interval: 1000
        repeat: true
        running: page.visible
        triggeredOnStart: true
        onTriggered: {
            var now = new Date()
            clockLabel.text = displayValues.formatTimeWithSeconds(now) + " | " + displayValues.formatDate(now)
            if (instrumentLabel.text !== setup.instrumentName)
                instrumentLabel.text = setup.instrumentName
        }
    }
}
