import QtQuick 2.12
import "../Background"
import "../Buttons"
import "../CustomComponent"
import "../Constants/Colors.js" as Colors

// The standard's value of the point, as the user knows it.
MainContentBackground {
    id: page
    objectName: "Calibrate pH(Calibration Solution Standard Value Save screen)"
    header3Text: qsTr("Calibration Standard") + ls.translatedText

    property string valueText: ""

    function clear() {
        valueText = ""
        emptyText.visible = false
    }
    function updateHeader() {
        var type = stack.calibrationType()
        unitText.text = type === "pH" ? "pH" : type === "Redox" ? "mV" : (dm.calibrationModel ? dm.calibrationModel.directMeasureUnit : "")
    }
    function setValue(text) { valueText = text }

    function save() {
        if (valueText.length === 0) {
            field.border.color = Colors.orangepeelColor
            emptyText.visible = true
            restore.restart()
            return
        }
        measure04.updateHeader()
        mc.calEdit(calibrationCycleModel.calValueUser)
        stack.pop()
    }

    Timer {
        id: restore
        interval: 1500
        onTriggered: {
            field.border.color = Colors.lineColor
            emptyText.visible = false
        }
    }

    Column {
        x: 20
        y: 24
        width: 510
        spacing: 12
        Text {
            font.family: "Roboto"
            font.pixelSize: 18
            color: Colors.deeptangaroaColor
            text: qsTr("Calibration Solution Standard Value") + ls.translatedText
        }
        Rectangle {
            id: field
            objectName: "standardValueField"
            width: 300
            height: 56
            radius: 4
            border.width: 2
            border.color: Colors.lineColor
            Text {
                anchors.left: parent.left
                anchors.leftMargin: 12
                anchors.verticalCenter: parent.verticalCenter
                font.family: "Roboto"
                font.pixelSize: 24
                color: page.valueText.length > 0 ? Colors.deeptangaroaColor : Colors.slateColor
                text: page.valueText.length > 0 ? page.valueText : qsTr("Tap to enter") + ls.translatedText
            }
            Text {
                id: unitText
                anchors.right: parent.right
                anchors.rightMargin: 12
                anchors.verticalCenter: parent.verticalCenter
                font.family: "Roboto"
                font.pixelSize: 17
                color: Colors.slateColor
            }
            MouseArea {
                anchors.fill: parent
                onClicked: {
                    calibrationStandardValue.open(page.valueText)
                    stack.push(calibrationStandardValue)
                }
            }
        }
        Text {
            id: emptyText
            visible: false
            font.family: "Roboto"
            font.pixelSize: 15
            color: Colors.orangepeelColor
            text: qsTr("Value cannot be empty.") + ls.translatedText
        }
    }
    Row {
        x: 20
        y: 292
        spacing: 16
        PopupAlternateButton {
            text: qsTr("Cancel") + ls.translatedText
            onClicked: stack.pop()
        }
        PopupButton {
            objectName: "standardSave"
            text: qsTr("Save") + ls.translatedText
            onClicked: page.save()
        }
    }
}
