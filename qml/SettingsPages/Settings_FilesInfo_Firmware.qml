import QtQuick 2.12
import "../Background"
import "../Buttons"
import "../CustomComponent"

// The versions of the application and of the slave's firmware, and the
// network address. Its button is where the software update starts.
MainContentBackground {
    id: page
    objectName: "Software Versions"
    header3Text: qsTr("Software Versions") + ls.translatedText

    Column {
        width: parent.width
        SettingRow {
            objectName: "modelStringRow"
            label: qsTr("Model") + ls.translatedText
            value: dm.titratorModelString
        }
        SettingRow {
            objectName: "appVersionRow"
            label: qsTr("Application Version") + ls.translatedText
            value: dm.appVersionNumber
        }
        SettingRow {
            objectName: "firmwareVersionRow"
            label: qsTr("Firmware Version") + ls.translatedText
            value: dm.mspQmlVersion
        }
        SettingRow {
            objectName: "ipAddressRow"
            label: qsTr("IP Address") + ls.translatedText
            value: rm.ipAddress
        }
    }
    // SOFTWARE UPDATE ENTRY POINT: the update's own page and popups hang on
    // mainWindow.openSoftwareUpdate(); this page only offers the button.
    PopupButton {
        objectName: "softwareUpdateButton"
        x: 20
        y: 300
        text: qsTr("Software Update") + ls.translatedText
        onClicked: mainWindow.openSoftwareUpdate()
    }
}
