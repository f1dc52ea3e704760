import QtQuick 2.12
import QtQuick.Controls 2.12
import "../Background"
import "../Buttons"
import "../Constants/Colors.js" as Colors
import "SettingsRules.js" as SettingsRules

// The maintenance reminder: its period and its switch. Save keeps both and
// moves the next date on from the date of the first start.
MainContentBackground {
    id: page
    objectName: "Maintenance Due"
    header3Text: qsTr("Maintenance Due") + ls.translatedText

    property int periodIndex: 0

    function loadModelData() {
        periodIndex = SettingsRules.maintenanceIndex(setup.maintainanceDue)
        switchDelegate.checked = setup.isMaintainanceDueNotifOn
    }
    function save() {
        setup.updateMaintainanceNotifOn(switchDelegate.checked)
        setup.updateMaintainanceDue(SettingsRules.maintenanceMonths[periodIndex])
        settingsNotifications.loadModelData()
        settingsStack.pop()
    }

    Column {
        x: 20
        y: 8
        spacing: 2
        Repeater {
            model: [qsTr("1 Month"), qsTr("3 Months"), qsTr("6 Months"), qsTr("12 Months")]
            RadioButton {
                objectName: "period" + index
                checked: index === page.periodIndex
                text: modelData + ls.translatedText
                font.family: "Roboto"
                font.pixelSize: 18
                onClicked: page.periodIndex = index
            }
        }
    }
    Row {
        x: 20
        y: 220
        spacing: 16
        Text {
            anchors.verticalCenter: parent.verticalCenter
            color: Colors.deeptangaroaColor
            font.family: "Roboto"
            font.pixelSize: 17
            text: qsTr("Reminder") + ls.translatedText
        }
        Switch {
            id: switchDelegate
            objectName: "maintenanceSwitch"
        }
    }
    PopupButton {
        objectName: "saveMaintenance"
        x: 20
        y: 300
        text: qsTr("Save") + ls.translatedText
        onClicked: page.save()
    }
}
