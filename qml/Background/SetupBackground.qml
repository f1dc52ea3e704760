import QtQuick 2.12
import "../Constants/Colors.js" as Colors
import "../Buttons"

// The frame of the first-start pages: title, step, content, Back and Next.
Rectangle {
    id: page

    property string title: ""
    property string stepText: ""
    property bool backVisible: true
    property bool nextVisible: true
    property string nextText: qsTr("Next") + ls.translatedText
    property string backText: qsTr("Back") + ls.translatedText
    default property alias content: contentArea.data
    signal backClicked()
    signal nextClicked()

    width: 640
    height: 480
    color: Colors.whiteSmokeColor

    Rectangle {
        id: header
        width: parent.width
        height: 64
        color: Colors.deeptangaroaColor
        Text {
            anchors.left: parent.left
            anchors.leftMargin: 24
            anchors.top: parent.top
            anchors.topMargin: 8
            color: Colors.paleSkyColor
            font.family: "Roboto"
            font.pixelSize: 13
            text: page.stepText
        }
        // A long title (two lines, or a longer language) takes a smaller size.
        Text {
            anchors.left: parent.left
            anchors.leftMargin: 24
            anchors.right: parent.right
            anchors.rightMargin: 24
            anchors.top: parent.top
            anchors.topMargin: 24
            anchors.bottom: parent.bottom
            anchors.bottomMargin: 2
            verticalAlignment: Text.AlignVCenter
            wrapMode: Text.WordWrap
            maximumLineCount: 2
            lineHeight: 0.9
            fontSizeMode: Text.Fit
            minimumPixelSize: 12
            color: Colors.whiteColor
            font.family: "Roboto"
            font.pixelSize: 22
            font.weight: Font.Medium
            text: page.title.replace(/\s*\n\s*/g, " ")
        }
    }

    Item {
        id: contentArea
        anchors.top: header.bottom
        anchors.bottom: buttonRow.top
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.margins: 16
    }

    Row {
        id: buttonRow
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 16
        anchors.right: parent.right
        anchors.rightMargin: 24
        spacing: 16
        PopupAlternateButton {
            objectName: "setupBack"
            visible: page.backVisible
            text: page.backText
            onClicked: page.backClicked()
        }
        PopupButton {
            objectName: "setupNext"
            visible: page.nextVisible
            text: page.nextText
            onClicked: page.nextClicked()
        }
    }
}
