import QtQuick 2.12
import "../Constants/Colors.js" as Colors
import "../Constants/Icons.js" as Icons

// One row of a method page: the title, the current value and a mark of what
// a tap does. A row with a list of options asks for a choice (a combo for
// four or fewer, the radio page for more), an info row only shows, any
// other row opens its entry page.
Rectangle {
    id: row

    property string title: ""
    property string selector: ""
    // A value after the selector that stays whole: the selector gives way.
    property string selectorValue: ""
    property bool isDropdown: false
    property bool isInfo: false
    property int optionCount: 0
    signal buttonPressed()
    signal dropdownRequested()
    signal multipleOptionsSelected()

    width: parent ? parent.width : 500
    height: 46
    color: area.pressed && !isInfo ? Colors.zirconColor : Colors.whiteColor

    Text {
        id: titleLabel
        anchors.left: parent.left
        anchors.leftMargin: 20
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(implicitWidth, parent.width * 0.52)
        elide: Text.ElideRight
        color: Colors.deeptangaroaColor
        font.family: "Roboto"
        font.pixelSize: 16
        text: qsTr(row.title) + ls.translatedText
    }
    Text {
        id: valueLabel
        anchors.left: titleLabel.right
        anchors.leftMargin: 12
        anchors.right: valueTail.left
        anchors.rightMargin: valueTail.width > 0 ? 6 : 0
        anchors.verticalCenter: parent.verticalCenter
        horizontalAlignment: Text.AlignRight
        elide: Text.ElideRight
        color: row.isInfo ? Colors.slateColor : Colors.summerSkyColor
        font.family: "Roboto"
        font.pixelSize: 15
        text: row.selector
    }
    Text {
        id: valueTail
        anchors.right: mark.left
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        width: row.selectorValue === "" ? 0 : implicitWidth
        color: valueLabel.color
        font: valueLabel.font
        text: row.selectorValue
    }
    Text {
        id: mark
        anchors.right: parent.right
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        width: row.isInfo ? 0 : 20
        font.family: Icons.fontFamily
        font.pixelSize: 20
        color: Colors.slateColor
        text: row.isInfo ? "" : Icons.chevronRight
    }
    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: 1
        color: Colors.lineColor
    }
    MouseArea {
        id: area
        anchors.fill: parent
        onClicked: {
            if (row.isInfo)
                return
            if (row.isDropdown && row.optionCount > 4)
                row.multipleOptionsSelected()
            else if (row.isDropdown)
                row.dropdownRequested()
            else
                row.buttonPressed()
        }
    }
}
