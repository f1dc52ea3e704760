import QtQuick 2.12
import "../Buttons"
import "../Constants/Colors.js" as Colors
import "../Constants/Paths.js" as Paths
import "../Constants/Strings.js" as Strings

// The welcome page of the first start: the instrument's picture, then
// "Start Setup".
Rectangle {
    id: page

    objectName: "Welcome"
    width: 640
    height: 480
    color: Colors.lightelephantColor

    Image {
        id: picture
        anchors.horizontalCenter: parent.horizontalCenter
        y: 56
        width: 420
        height: 236
        fillMode: Image.PreserveAspectFit
        source: Paths.logo
        sourceSize.width: 420
    }
    Text {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.top: picture.bottom
        anchors.topMargin: 12
        color: Colors.paleSkyColor
        font.family: "Roboto"
        font.pixelSize: 18
        text: qsTr("Welcome to your new titrator") + ls.translatedText
    }
    PopupButton {
        id: setupButton
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 48
        visible: false
        text: qsTr(Strings.startSetup) + ls.translatedText
        onClicked: {
            setup02.prepare()
            setupStack.push(setup02)
        }
    }
    Timer {
        interval: 100
        running: true
        onTriggered: setupButton.visible = true
    }
}
