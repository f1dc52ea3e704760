import QtQuick 2.12
import QtQuick.Controls 2.12
import "../Background"
import "../Buttons"
import "../Constants/Colors.js" as Colors

// The warning before a factory reset, and the choice to keep the methods.
MainContentBackground {
    id: page
    objectName: "Factory Reset"
    header3Text: qsTr("Factory Reset") + ls.translatedText

    function prepare() { keepMethods.checked = false }

    Text {
        x: 24
        y: 20
        width: 500
        wrapMode: Text.WordWrap
        color: Colors.deeptangaroaColor
        font.family: "Roboto"
        font.pixelSize: 17
        lineHeight: 1.2
        text: qsTr("Resetting the unit to factory defaults will\n erase all settings, will delete any saved\n methods and any data in the logs.\n This action cannot be undone.\n") + ls.translatedText
    }
    CheckBox {
        id: keepMethods
        objectName: "keepMethodsBox"
        x: 18
        y: 200
        text: qsTr("Do not delete methods") + ls.translatedText
        font.family: "Roboto"
        font.pixelSize: 18
    }
    PopupButton {
        objectName: "startFactoryReset"
        x: 20
        y: 300
        text: qsTr("Start") + ls.translatedText
        onClicked: {
            diagnosticsFactoryReset01.isChecked = keepMethods.checked
            diagnosticsFactoryReset01.startTimer()
            settingsStack.push(diagnosticsFactoryReset01)
        }
    }
}
