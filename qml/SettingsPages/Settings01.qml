import QtQuick 2.12
import "../Background"
import "../CustomComponent"

// The first page of the Settings section: its four entries.
MainContentBackground {
    objectName: "Settings"
    header3Text: qsTr("Settings") + ls.translatedText

    Column {
        width: parent.width
        SettingRow {
            objectName: "diagnosticsEntry"
            label: qsTr("Diagnostics") + ls.translatedText
            opensPage: true
            onClicked: settingsStack.push(diagnosticsSettings)
        }
        SettingRow {
            objectName: "displayEntry"
            label: qsTr("Display") + ls.translatedText
            opensPage: true
            onClicked: {
                display01.loadModelData()
                settingsStack.push(display01)
            }
        }
        SettingRow {
            objectName: "filesInfoEntry"
            label: qsTr("Files and Info") + ls.translatedText
            opensPage: true
            onClicked: {
                settingsFilesandInfo.loadModelData()
                settingsStack.push(settingsFilesandInfo)
            }
        }
        SettingRow {
            objectName: "notificationsEntry"
            label: qsTr("Notifications") + ls.translatedText
            opensPage: true
            onClicked: {
                settingsNotifications.loadModelData()
                settingsStack.push(settingsNotifications)
            }
        }
    }
}
