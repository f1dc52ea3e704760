import QtQuick 2.12
import QtQuick.Controls 2.12
import "../Background"
import "../Buttons"
import "../Constants/Colors.js" as Colors
import "SettingsRules.js" as SettingsRules

// The calibration reminder of each electrode type: its hours and its
// switch. Save checks all three hours first; one bad value refuses the
// page and nothing is written, switches included.
MainContentBackground {
    id: page
    objectName: "Calibration Due Alarm"
    header3Text: qsTr("Calibration Due Alarm") + ls.translatedText

    property string message: ""

    function loadModelData() {
        var hours = [setup.phCalibrationDue, setup.redoxCalibrationDue, setup.iseCalibrationDue]
        var on = [setup.isPhCalibrationNotifOn, setup.isRedoxCalibrationNotifOn, setup.isIseCalibrationNotifOn]
        for (var i = 0; i < 3; ++i) {
            rows.itemAt(i).hoursText = String(hours[i])
            rows.itemAt(i).on = on[i]
        }
        message = ""
    }
    function save() {
        var texts = []
        for (var i = 0; i < 3; ++i) {
            rows.itemAt(i).release()
            texts.push(rows.itemAt(i).hoursText)
        }
        if (!SettingsRules.allDueHoursValid(texts)) {
            message = qsTr("Enter Calibration due hours between 1 - 9999 hours") + ls.translatedText
            return
        }
        setup.updatePhCalibrationNotifOn(rows.itemAt(0).on)
        setup.updateRedoxCalibrationNotifOn(rows.itemAt(1).on)
        setup.updateIseCalibrationNotifOn(rows.itemAt(2).on)
        setup.updatePhCalibrationDue(parseInt(texts[0], 10))
        setup.updateredoxCalibrationDue(parseInt(texts[1], 10))
        setup.updateiseCalibrationDue(parseInt(texts[2], 10))
        settingsStack.pop()
    }

    MouseArea {
        anchors.fill: parent
        onClicked: {
            for (var i = 0; i < 3; ++i)
                rows.itemAt(i).release()
        }
    }
    Column {
        width: parent.width
        Repeater {
            id: rows
            model: [qsTr("pH Cal Due"), qsTr("Redox Cal Due"), qsTr("ISE Cal Due")]
            Rectangle {
                property alias hoursText: hoursInput.text
                property alias on: toggle.checked
                function release() { hoursInput.focus = false }

                width: parent.width
                height: 56
                color: Colors.whiteColor
                Text {
                    anchors.left: parent.left
                    anchors.leftMargin: 20
                    anchors.verticalCenter: parent.verticalCenter
                    width: 170
                    elide: Text.ElideRight
                    color: Colors.deeptangaroaColor
                    font.family: "Roboto"
                    font.pixelSize: 17
                    text: modelData + ls.translatedText
                }
                Rectangle {
                    x: 200
                    anchors.verticalCenter: parent.verticalCenter
                    width: 90
                    height: 40
                    radius: 4
                    border.width: 1
                    border.color: hoursInput.activeFocus ? Colors.summerSkyColor : Colors.lineColor
                    TextInput {
                        id: hoursInput
                        objectName: "dueHours" + index
                        anchors.fill: parent
                        anchors.leftMargin: 8
                        anchors.rightMargin: 8
                        verticalAlignment: TextInput.AlignVCenter
                        horizontalAlignment: TextInput.AlignRight
                        maximumLength: 5
                        inputMethodHints: Qt.ImhDigitsOnly
                        color: Colors.deeptangaroaColor
                        font.family: "Roboto"
                        font.pixelSize: 18
                        onTextEdited: page.message = ""
                        // A tap takes the whole value: the digits typed replace it.
                        onActiveFocusChanged: {
                            if (activeFocus) {
                                mainWindow.currentEdit = hoursInput
                                selectAll()
                            }
                        }
                    }
                }
                Text {
                    x: 300
                    anchors.verticalCenter: parent.verticalCenter
                    color: Colors.slateColor
                    font.family: "Roboto"
                    font.pixelSize: 16
                    text: qsTr("Hours") + ls.translatedText
                }
                Switch {
                    id: toggle
                    objectName: "dueSwitch" + index
                    anchors.right: parent.right
                    anchors.rightMargin: 12
                    anchors.verticalCenter: parent.verticalCenter
                }
                Rectangle {
                    anchors.bottom: parent.bottom
                    width: parent.width
                    height: 1
                    color: Colors.lineColor
                }
            }
        }
    }
    Text {
        objectName: "dueHoursMessage"
        x: 20
        y: 186
        width: 500
        wrapMode: Text.WordWrap
        font.family: "Roboto"
        font.pixelSize: 16
        color: Colors.orangepeelColor
        text: page.message
    }
    PopupButton {
        objectName: "saveCalibrationDue"
        x: 20
        y: 300
        text: qsTr("Save") + ls.translatedText
        onClicked: page.save()
    }
}
