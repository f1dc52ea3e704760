import QtQuick 2.12
import QtQuick.Controls 2.12
import "../Buttons"
import "../Constants/Colors.js" as Colors
import "../Constants/Icons.js" as Icons

// The service page of versions, opened by a press and hold on a page
// header of a service instrument.
Rectangle {
    id: versionPopup

    anchors.fill: parent
    color: Colors.deeptangaroaColor
    visible: false

    MouseArea { anchors.fill: parent }

    Text {
        x: 24
        y: 16
        color: Colors.whiteColor
        font.family: "Roboto"
        font.pixelSize: 24
        font.weight: Font.Medium
        text: qsTr("Versions") + ls.translatedText
    }
    Item {
        id: closeButton
        objectName: "versionCloseButton"
        // left of the window's screenshot corner (x 600 on), which takes every tap there
        anchors.right: parent.right
        anchors.rightMargin: 48
        anchors.top: parent.top
        width: 56
        height: 56
        Text {
            anchors.centerIn: parent
            font.family: Icons.fontFamily
            font.pixelSize: 30
            color: Colors.whiteColor
            text: Icons.close
        }
        MouseArea {
            anchors.fill: parent
            onClicked: {
                versionPopup.visible = false
                rm.playWarning()
            }
        }
    }

    Column {
        x: 24
        y: 72
        spacing: 10
        Repeater {
            model: [
                [qsTr("IP") + ls.translatedText, rm.ipAddress],
                [qsTr("Build") + ls.translatedText, dm.buildNumber],
                [qsTr("QML Version") + ls.translatedText, dm.titrationQMLVersion],
                [qsTr("Core Version") + ls.translatedText, dm.titrationQMLCoreVersion],
                [qsTr("MSP Version") + ls.translatedText, dm.mspQmlVersion]
            ]
            delegate: Row {
                spacing: 24
                Text { width: 160; color: Colors.paleSkyColor; font.family: "Roboto"; font.pixelSize: 17; text: modelData[0] }
                Text { width: 400; color: Colors.whiteColor; font.family: "Roboto"; font.pixelSize: 17; elide: Text.ElideRight; text: String(modelData[1]) }
            }
        }
    }

    Column {
        x: 24
        y: 300
        spacing: 8
        width: parent.width - 48
        Text {
            color: Colors.whiteColor
            font.family: "Roboto"
            font.pixelSize: 15
            text: rm.versionStatusQml
        }
        ProgressBar {
            width: parent.width
            from: 0
            to: 100
            value: rm.versionProgressQml
        }
    }
    Row {
        anchors.right: parent.right
        anchors.rightMargin: 24
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 24
        spacing: 16
        PopupAlternateButton {
            text: qsTr("Generate All Reports") + ls.translatedText
            onClicked: {
                if (!rm.usbIsReady)
                    return
                rm.versionStatusQml = "Starting report exports"
                if (typeof dm.runReportsTest === "function")
                    dm.runReportsTest()
            }
        }
        PopupButton {
            text: qsTr("Update") + ls.translatedText
            onClicked: rm.updateSystem()
        }
    }
}
