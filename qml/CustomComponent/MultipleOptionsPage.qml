import QtQuick 2.12
import "../Background"
import "../Buttons"
import "../Constants/Colors.js" as Colors
import "../Constants/Icons.js" as Icons

// The one radio list of the interface: a title, the options (English texts
// shown through qsTr) and "Save". Save pops the page and hands the choice to
// the page that opened it (its setMultipleOptions(selectedIndex, title)).
MainContentBackground {
    id: page
    // The tip is the row's whose options these are.
    objectName: englishHeader3

    property int selectedIndex: -1
    property string englishHeader3: ""
    property var originPage: null
    property var options: []
    signal optionSelected(int index, string englishHeader3)
    signal saveButtonPressed(int selectedIndex, string englishHeader3)

    header3Text: qsTr(englishHeader3) + ls.translatedText

    function setMultipleOptions(index, model, name, originPageObject) {
        englishHeader3 = name
        options = model
        selectedIndex = index
        originPage = originPageObject
        list.forceLayout()
        list.positionViewAtIndex(Math.max(0, index), ListView.Contain)
    }

    ListView {
        id: list
        anchors.top: parent.top
        anchors.left: parent.left
        width: parent.width - (scroller.needed ? 60 : 0)
        anchors.bottom: footer.top
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        model: page.options
        delegate: Rectangle {
            objectName: "option" + index
            width: list.width
            height: 46
            color: area.pressed ? Colors.zirconColor : Colors.whiteColor
            Text {
                id: radio
                x: 20
                anchors.verticalCenter: parent.verticalCenter
                font.family: Icons.fontFamily
                font.pixelSize: 22
                color: Colors.summerSkyColor
                text: index === page.selectedIndex ? Icons.radioOn : Icons.radioOff
            }
            Text {
                anchors.left: radio.right
                anchors.leftMargin: 14
                anchors.right: parent.right
                anchors.rightMargin: 12
                anchors.verticalCenter: parent.verticalCenter
                elide: Text.ElideRight
                color: Colors.deeptangaroaColor
                font.family: "Roboto"
                font.pixelSize: 16
                text: qsTr(modelData) + ls.translatedText
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
                    page.selectedIndex = index
                    page.optionSelected(index, page.englishHeader3)
                    // An option with a page of its own opens it at once.
                    if (page.originPage && page.originPage.multipleOptionsCustomEntries)
                        page.originPage.multipleOptionsCustomEntries(index, page.englishHeader3)
                }
            }
        }
    }
    ScrollButtons {
        id: scroller
        target: list
        namePrefix: "options"
        anchors.right: parent.right
        anchors.rightMargin: 8
        anchors.top: parent.top
        anchors.topMargin: 12
    }
    Item {
        id: footer
        anchors.bottom: parent.bottom
        width: parent.width
        height: 72
        PopupButton {
            objectName: "optionsSave"
            anchors.centerIn: parent
            anchors.horizontalCenterOffset: -30
            enabled: page.selectedIndex >= 0
            text: qsTr("Save") + ls.translatedText
            onClicked: {
                var origin = page.originPage
                page.saveButtonPressed(page.selectedIndex, page.englishHeader3)
                mainWindow.currentStack.pop()
                if (origin)
                    origin.setMultipleOptions(page.selectedIndex, page.englishHeader3)
            }
        }
    }
}
