import QtQuick 2.12
import "../Constants/Colors.js" as Colors
import "../Constants/Icons.js" as Icons

// A row of an export page: a label and options of which one is chosen.
Rectangle {
    id: row

    property string label: ""
    // The options' own (English) texts; shown translated.
    property var options: []
    property int current: 0
    readonly property string currentValue: options[current] || ""
    signal chosen(int index)

    width: parent ? parent.width : 510
    height: 44
    color: Colors.whiteColor

    function select(value) {
        var i = options.indexOf(value)
        if (i >= 0)
            current = i
    }

    Text {
        id: labelText
        anchors.left: parent.left
        anchors.leftMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        width: 130
        elide: Text.ElideRight
        color: Colors.deeptangaroaColor
        font.family: "Roboto"
        font.pixelSize: 16
        text: row.label
    }
    Row {
        anchors.left: labelText.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: 14
        Repeater {
            model: row.options
            Row {
                spacing: 4
                Text {
                    anchors.verticalCenter: parent.verticalCenter
                    font.family: Icons.fontFamily
                    font.pixelSize: 22
                    color: Colors.summerSkyColor
                    text: index === row.current ? Icons.radioOn : Icons.radioOff
                }
                Text {
                    anchors.verticalCenter: parent.verticalCenter
                    color: Colors.deeptangaroaColor
                    font.family: "Roboto"
                    font.pixelSize: 15
                    text: qsTr(modelData) + ls.translatedText
                    MouseArea {
                        anchors.fill: parent
                        anchors.margins: -8
                        anchors.leftMargin: -34
                        onClicked: {
                            row.current = index
                            row.chosen(index)
                        }
                    }
                }
            }
        }
    }
    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: 1
        color: Colors.lineColor
    }
}
