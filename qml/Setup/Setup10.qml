import QtQuick 2.12
import "../Background"
import "../Constants/Colors.js" as Colors
import "../Constants/Icons.js" as Icons

// The end of the first start. Finish keeps the settings as done before home
// shows, so the setup never comes back.
SetupBackground {
    id: page

    objectName: "Setup Complete"
    title: qsTr("Setup Complete!") + ls.translatedText
    stepText: ""
    backVisible: false
    nextText: qsTr("Finish") + ls.translatedText

    Column {
        anchors.centerIn: parent
        spacing: 16
        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            font.family: Icons.fontFamily
            font.pixelSize: 72
            color: Colors.greenColor
            text: Icons.done
        }
        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            color: Colors.deeptangaroaColor
            font.family: "Roboto"
            font.pixelSize: 22
            text: qsTr("Setup Complete!") + ls.translatedText
        }
        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            color: Colors.slateColor
            font.family: "Roboto"
            font.pixelSize: 18
            text: qsTr("You may now start your first titration.") + ls.translatedText
        }
    }

    onNextClicked: {
        setup.isDataUpdated = true
        setup.setSetupValues()
        mainWindow.finishFirstStart()
    }
}
