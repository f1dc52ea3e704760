import QtQuick 2.12
import QtQuick.Controls 2.12
import "../Background"
import "../Buttons"
import "../Constants/Colors.js" as Colors

// The progress of a software update. It stays until the update ends: the
// window hides it when the update succeeded, and shows its close button
// when it failed.
PopupBackground {
    id: popup

    readonly property alias swUpdateCloseButton: closeButton

    title: qsTr("Software Updating") + ls.translatedText
    height: closeButton.visible ? 310 : 250
    onVisibleChanged: {
        if (visible)
            closeButton.visible = false
    }

    Column {
        width: parent.width
        spacing: 14
        Text {
            width: parent.width
            wrapMode: Text.WordWrap
            color: Colors.deeptangaroaColor
            font.family: "Roboto"
            font.pixelSize: 17
            text: qsTr("Do not power off titrator while software update is in progress.") + ls.translatedText
        }
        Text {
            objectName: "updateProgressStatus"
            width: parent.width
            wrapMode: Text.WordWrap
            maximumLineCount: 2
            elide: Text.ElideRight
            color: Colors.summerSkyColor
            font.family: "Roboto"
            font.pixelSize: 17
            font.weight: Font.Medium
            text: rm.versionStatusQml + ls.translatedText
        }
        ProgressBar {
            width: parent.width
            from: 0
            to: 100
            value: rm.versionProgressQml
        }
    }
    PopupButton {
        id: closeButton
        objectName: "swUpdateCloseButton"
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        visible: false
        text: qsTr("Close") + ls.translatedText
        onClicked: hidePopup()
    }
}
