import QtQuick 2.12
import "../Background"
import "../CustomComponent"

// The first page of the Settings section.
MainContentBackground {
    objectName: "Settings"
    header3Text: qsTr("Settings") + ls.translatedText

    Column {
        width: parent.width
        // The software versions and the update (its own page).
        SettingRow {
            objectName: "softwareVersionsEntry"
            label: qsTr("Software Versions") + ls.translatedText
            opensPage: true
            onClicked: {
                settingsFilesInfoFirmware.open()
                settingsStack.push(settingsFilesInfoFirmware)
            }
        }
    }
}
