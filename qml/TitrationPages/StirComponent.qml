import QtQuick 2.12
import "../Constants/Colors.js" as Colors

// The stirrer on the run screen: a tap switches it on or off, a press and
// hold opens the speed list. The speed goes to the method's part in use.
Rectangle {
    id: stir

    property bool standardization: false
    readonly property var speedNames: ["Very Slow", "Slow", "Medium", "Fast", "Very Fast"]

    width: 150
    height: 48
    radius: 4
    color: area.pressed ? Colors.pressedColor : (dm.qmlStirrerState ? Colors.summerSkyColor : Colors.lightelephantColor)

    function pickSpeed(n) {
        dm.qmlStirSpeed = n + 1
        tc.qmlSetStirSpeed(dm.qmlStirSpeed)
        var name = n >= 0 && n < 5 ? speedNames[n] : "No Stirring"
        if (standardization)
            titrant.stirSpeed = name
        else
            titration.stirSpeed = name
        speedList.visible = false
    }
    function closeList() { speedList.visible = false }

    Text {
        anchors.centerIn: parent
        color: Colors.whiteColor
        font.pixelSize: 15
        font.weight: Font.Medium
        text: (dm.qmlStirrerState ? qsTr("Stirrer On") : qsTr("Stirrer Off")) + ls.translatedText
    }
    MouseArea {
        id: area
        anchors.fill: parent
        onClicked: {
            dm.qmlStirrerState = !dm.qmlStirrerState
            if (dm.qmlStirrerState)
                tc.qmlStartStirrer()
            else
                tc.qmlStopStirrer()
        }
        onPressAndHold: speedList.visible = true
    }

    Rectangle {
        id: speedList
        objectName: "stirSpeedList"
        visible: false
        width: stir.width
        height: column.height + 8
        anchors.bottom: parent.top
        anchors.bottomMargin: 4
        radius: 4
        color: Colors.whiteColor
        border.color: Colors.lineColor
        Column {
            id: column
            y: 4
            width: parent.width
            Repeater {
                model: stir.speedNames
                Rectangle {
                    width: column.width
                    height: 40
                    color: speedArea.pressed ? Colors.zirconColor : "transparent"
                    Text {
                        anchors.centerIn: parent
                        text: qsTr(modelData) + ls.translatedText
                        color: dm.qmlStirSpeed === index + 1 ? Colors.summerSkyColor : Colors.deeptangaroaColor
                        font.pixelSize: 15
                    }
                    MouseArea { id: speedArea; anchors.fill: parent; onClicked: stir.pickSpeed(index) }
                }
            }
        }
    }
}
