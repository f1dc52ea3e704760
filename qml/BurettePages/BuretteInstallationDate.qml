import QtQuick 2.12
import "../Background"
import "../Buttons"
import "../Constants/Colors.js" as Colors
import "../MeterPages/MeterFormat.js" as MeterFormat

// The date the burette was installed: day, month and year stepped by the
// buttons, never after today.
MainContentBackground {
    id: page
    objectName: "Burette Installation Date"
    header3Text: qsTr("Installation Date") + ls.translatedText

    property bool fromBurette: true
    property date chosen: new Date()

    function loadUI() {
        var stored = Number(setup.installationDate)
        chosen = setup.installationDate.length > 0 && stored > 0 ? new Date(stored) : new Date()
        messageText.text = ""
    }
    // Moves one field; the day stays within its month.
    function step(field, delta) {
        var y = chosen.getFullYear(), m = chosen.getMonth(), d = chosen.getDate()
        if (field === 0)
            d += delta
        else if (field === 1)
            m += delta
        else
            y += delta
        var lastDay = new Date(y, m + 1, 0).getDate()
        if (field !== 0)
            d = Math.min(d, lastDay)
        chosen = new Date(y, m, d)
        messageText.text = ""
    }
    function save() {
        var verdict = MeterFormat.checkInstallationDate(chosen, new Date())
        if (verdict.length > 0) {
            messageText.text = qsTr(verdict) + ls.translatedText
            return
        }
        var day = new Date(chosen.getFullYear(), chosen.getMonth(), chosen.getDate())
        setup.installationDate = String(day.getTime())
        setup.setSetupValues()
        burette01.loadModelData()
        buretteStack.pop()
        dynamicLoader.loadSuccessPopUp(qsTr("Installation Date Saved") + ls.translatedText,
                                       qsTr("The burette installation date has been saved.") + ls.translatedText, "")
    }

    Row {
        x: 40
        y: 24
        spacing: 30
        Repeater {
            model: [qsTr("Day"), qsTr("Month"), qsTr("Year")]
            Column {
                spacing: 8
                Text {
                    anchors.horizontalCenter: parent.horizontalCenter
                    font.family: "Roboto"
                    font.pixelSize: 15
                    color: Colors.slateColor
                    text: modelData + ls.translatedText
                }
                PopupAlternateButton {
                    objectName: "dateUp" + index
                    width: 120
                    text: "+"
                    onClicked: page.step(index, 1)
                }
                Text {
                    width: 120
                    height: 48
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                    font.family: "Roboto"
                    font.pixelSize: 26
                    color: Colors.deeptangaroaColor
                    text: index === 0 ? page.chosen.getDate() : index === 1 ? Qt.formatDate(page.chosen, "MMM") : page.chosen.getFullYear()
                }
                PopupAlternateButton {
                    objectName: "dateDown" + index
                    width: 120
                    text: "−"
                    onClicked: page.step(index, -1)
                }
            }
        }
    }
    Text {
        id: messageText
        x: 40
        y: 250
        font.family: "Roboto"
        font.pixelSize: 15
        color: Colors.orangepeelColor
    }
    Row {
        x: 20
        y: 300
        spacing: 16
        PopupAlternateButton {
            text: qsTr("Cancel") + ls.translatedText
            onClicked: buretteStack.pop()
        }
        PopupButton {
            objectName: "saveDate"
            text: qsTr("Save Date") + ls.translatedText
            onClicked: page.save()
        }
    }
}
