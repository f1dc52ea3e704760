import QtQuick 2.12
import "../Background"
import "../CustomComponent"
import "SettingsRules.js" as SettingsRules

// The reminders: calibration due and maintenance due open their pages; the
// three switches store at once.
MainContentBackground {
    id: page
    objectName: "Notifications"
    header3Text: qsTr("Notifications") + ls.translatedText

    function loadModelData() {
        var shown = SettingsRules.maintenanceShown(setup.maintainanceScheduledAt, setup.date)
        maintenanceRow.value = shown ? displayValues.formatDate(shown) : ""
        cycleRow.checked = setup.titrationCycleCompleteNotification
        volumeRow.checked = setup.maxTitrantVolumeNotification
        logFullRow.checked = setup.isDatalogFullNotifOn
    }

    Column {
        width: parent.width
        SettingRow {
            objectName: "calibrationDueRow"
            label: qsTr("Calibration Due") + ls.translatedText
            opensPage: true
            onClicked: {
                notifCalibrationDue.loadModelData()
                settingsStack.push(notifCalibrationDue)
            }
        }
        SettingRow {
            id: maintenanceRow
            objectName: "maintenanceDueRow"
            label: qsTr("Maintenance Due") + ls.translatedText
            opensPage: true
            onClicked: {
                notifMaintenanceDue.loadModelData()
                settingsStack.push(notifMaintenanceDue)
            }
        }
        SwitchRow {
            id: cycleRow
            objectName: "cycleCompleteRow"
            label: qsTr("Titration Cycle Complete") + ls.translatedText
            onToggled: setup.titrationCycleCompleteNotification = on
        }
        SwitchRow {
            id: volumeRow
            objectName: "maxVolumeRow"
            label: qsTr("Maximum Titrant Volume") + ls.translatedText
            onToggled: setup.maxTitrantVolumeNotification = on
        }
        SwitchRow {
            id: logFullRow
            objectName: "logFullRow"
            label: qsTr("Data Log Full") + ls.translatedText
            onToggled: setup.updateDatalogFullNotifOn(on)
        }
    }
}
