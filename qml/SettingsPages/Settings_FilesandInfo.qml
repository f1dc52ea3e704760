import QtQuick 2.12
import "../Background"
import "../Buttons"
import "../CustomComponent"

// What the instrument is: serial and model number, the burette's
// installation date, and the software versions behind a button.
MainContentBackground {
    id: page
    objectName: "Files and Info"
    header3Text: qsTr("Files and Info") + ls.translatedText

    function loadModelData() {
        installationRow.value = setup.installationDate.length > 0 ? displayValues.formatStringDate(setup.installationDate)
                                                                  : qsTr("Not set") + ls.translatedText
    }

    Column {
        width: parent.width
        SettingRow {
            objectName: "serialRow"
            label: qsTr("Serial No.") + ls.translatedText
            value: setup.mfgSerialNo
        }
        SettingRow {
            objectName: "modelRow"
            label: qsTr("Model No.") + ls.translatedText
            value: dm.titratorModelNo
        }
        SettingRow {
            id: installationRow
            objectName: "installationRow"
            label: qsTr("Burette Installation Date") + ls.translatedText
        }
    }
    PopupButton {
        objectName: "softwareVersionsButton"
        x: 20
        y: 300
        text: qsTr("Software Versions") + ls.translatedText
        onClicked: {
            settingsFilesInfoFirmware.open()
            settingsStack.push(settingsFilesInfoFirmware)
        }
    }
}
