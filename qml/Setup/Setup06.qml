import QtQuick 2.12
import "../Background"

// Step 5: the temperature unit.
SetupBackground {
    id: page

    function prepare() { units.currentIndex = setup.temperatureFormat_Index === 1 ? 1 : 0 }

    objectName: "Temperature Units"
    title: qsTr("Set Temperature Units") + ls.translatedText
    stepText: qsTr("Setup | Step 5 of 13") + ls.translatedText

    SetupChoiceList {
        id: units
        anchors.centerIn: parent
        options: ["°C", "°F"]
    }

    onBackClicked: setupStack.pop()
    onNextClicked: {
        setup.temperatureFormat_Index = units.currentIndex
        setup07.prepare()
        setupStack.push(setup07)
    }
}
