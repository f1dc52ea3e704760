import QtQuick 2.12
import "../Background"
import "../Buttons"
import "../Constants/Colors.js" as Colors
import "SettingsRules.js" as SettingsRules

// Five steps of brightness as bars. - and + reach the backlight at once;
// Save keeps the level, leaving the page any other way restores the kept one.
MainContentBackground {
    id: page
    objectName: "Display Brightness"
    header3Text: qsTr("Display Brightness") + ls.translatedText

    property int index: 3

    function loadBrightnessLevel() {
        setup.tempDisplayBrightness = setup.displayBrightness
        index = setup.tempDisplayBrightness
    }
    function step(delta) {
        setup.tempDisplayBrightness = SettingsRules.stepBrightness(setup.tempDisplayBrightness, delta)
        index = setup.tempDisplayBrightness
        tc.qmlSetDisplayBrightness()
    }
    function save() {
        setup.displayBrightness = setup.tempDisplayBrightness
        setup.setSetupValues()
        tc.qmlSetDisplayBrightness()
        settingsStack.pop()
    }

    onVisibleChanged: {
        if (!visible && setup.tempDisplayBrightness !== setup.displayBrightness) {
            setup.tempDisplayBrightness = setup.displayBrightness
            tc.qmlSetDisplayBrightness()
        }
    }

    Row {
        anchors.horizontalCenter: parent.horizontalCenter
        y: 60
        spacing: 24
        PopupAlternateButton {
            objectName: "brightnessDown"
            width: 72
            anchors.verticalCenter: parent.verticalCenter
            text: "−"
            enabled: page.index > SettingsRules.brightnessMin
            onClicked: page.step(-1)
        }
        Row {
            spacing: 10
            anchors.verticalCenter: parent.verticalCenter
            Repeater {
                model: SettingsRules.brightnessMax
                Rectangle {
                    objectName: "brightnessBar" + (index + 1)
                    width: 28
                    height: 30 + index * 22
                    anchors.bottom: parent.bottom
                    radius: 3
                    color: index < page.index ? Colors.summerSkyColor : Colors.zirconColor
                }
            }
        }
        PopupAlternateButton {
            objectName: "brightnessUp"
            width: 72
            anchors.verticalCenter: parent.verticalCenter
            text: "+"
            enabled: page.index < SettingsRules.brightnessMax
            onClicked: page.step(1)
        }
    }
    Text {
        objectName: "brightnessLevel"
        anchors.horizontalCenter: parent.horizontalCenter
        y: 200
        font.family: "Roboto"
        font.pixelSize: 18
        color: Colors.deeptangaroaColor
        text: qsTr("Level %1 of %2").arg(page.index).arg(SettingsRules.brightnessMax) + ls.translatedText
    }
    PopupButton {
        objectName: "saveBrightness"
        x: 20
        y: 300
        text: qsTr("Save") + ls.translatedText
        onClicked: page.save()
    }
}
