import QtQuick 2.12
import "../Background"
import "../CustomComponent"

// The diagnostics: the factory reset.
MainContentBackground {
    objectName: "Diagnostics"
    header3Text: qsTr("Diagnostics") + ls.translatedText

    Column {
        width: parent.width
        SettingRow {
            objectName: "factoryResetEntry"
            label: qsTr("Factory Reset") + ls.translatedText
            opensPage: true
            onClicked: {
                diagnosticsFactoryReset.prepare()
                settingsStack.push(diagnosticsFactoryReset)
            }
        }
    }
}
