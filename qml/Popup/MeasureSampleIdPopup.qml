import QtQuick 2.12
import "../Constants/Colors.js" as Colors

// The sample id of a manual-id measurement, asked for at each Save.
MessagePopup {
    id: popup

    title: qsTr("Sample ID") + ls.translatedText
    message: qsTr("Enter the sample ID of this measurement.") + ls.translatedText
    firstButtonText: qsTr("Save") + ls.translatedText
    secondButtonText: qsTr("Cancel") + ls.translatedText
    // Above the keyboard while it is up: the field and the buttons stay in sight.
    readonly property bool keyboardUp: Qt.inputMethod.visible
    height: 52 + 20 + 24 + 12 + 44 + 24 + 48 + 20
    y: keyboardUp ? 0 : (mainWindow.height - height) / 2

    function open() {
        input.text = ""
        errorText.visible = false
        mainWindow.showPopup(popup)
        input.forceActiveFocus()
    }

    onSecondClicked: {
        Qt.inputMethod.hide()
        mainWindow.hidePopup()
    }
    onFirstClicked: {
        if (input.text.trim().length === 0) {
            errorText.visible = true
            return
        }
        var id = input.text.trim()
        Qt.inputMethod.hide()
        mainWindow.hidePopup()
        measurement.sampleId = "Manual"
        measure01.saveWithSampleId(id)
    }

    Rectangle {
        y: 36
        width: parent.width
        height: 44
        radius: 4
        border.color: input.activeFocus ? Colors.summerSkyColor : Colors.lineColor
        TextInput {
            id: input
            objectName: "sampleIdInput"
            anchors.fill: parent
            anchors.leftMargin: 10
            verticalAlignment: TextInput.AlignVCenter
            maximumLength: 30
            clip: true
            font.family: "Roboto"
            font.pixelSize: 17
            validator: RegExpValidator { regExp: mainWindow.formatNum }
        }
    }
    Text {
        id: errorText
        y: 84
        visible: false
        font.family: "Roboto"
        font.pixelSize: 14
        color: Colors.orangepeelColor
        text: qsTr("Value cannot be empty.") + ls.translatedText
    }
}
