import QtQuick 2.12
import "../Background"
import "../Buttons"
import "../Constants/Colors.js" as Colors

// The start of a new titration setup: the three steps, then the method
// wizard, which builds the method in the scratch record.
MainContentBackground {
    id: page
    objectName: "New Titration Setup Process"
    header3Text: qsTr("New Titration Setup Process") + ls.translatedText

    // Opens the wizard on its first page; the wizard's pages take over from here.
    function startSetup() {
        titrationStack.push(titration04)
        titration04.startNewMethod()
    }

    Column {
        x: 40
        y: 30
        width: parent.width - 80
        spacing: 14
        Text {
            text: qsTr("There are 3 steps to setting up a titration:") + ls.translatedText
            color: Colors.deeptangaroaColor
            font.pixelSize: 18
        }
        Repeater {
            model: [qsTr("Setup Electrode"), qsTr("Setup Titrant"), qsTr("Setup Titration")]
            Text {
                text: (index + 1) + ".  " + modelData + ls.translatedText
                color: Colors.deeptangaroaColor
                font.pixelSize: 18
            }
        }
    }
    PopupButton {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 40
        width: 240
        text: qsTr("Start Setup") + ls.translatedText
        onClicked: page.startSetup()
    }
}
