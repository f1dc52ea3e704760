import QtQuick 2.12
import QtQuick.Controls 2.12
import "../Constants/Colors.js" as Colors

// A column of radio buttons, one of `options` (texts as shown), at
// currentIndex. Each button is named option0, option1... for the UI driver.
Column {
    id: list

    property var options: []
    property int currentIndex: 0

    spacing: 6
    Repeater {
        model: list.options
        RadioButton {
            objectName: "option" + index
            checked: index === list.currentIndex
            text: modelData
            font.family: "Roboto"
            font.pixelSize: 20
            onClicked: list.currentIndex = index
        }
    }
}
