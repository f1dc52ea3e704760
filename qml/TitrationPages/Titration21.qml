import QtQuick 2.12
import "../Background"
import "../Buttons"
import "../CustomComponent"
import "../Constants/Colors.js" as Colors

// The method list, the first page of the Methods section: the stored
// methods (a tap opens one for changes through the wizard's pages) and the
// way to a new method while fewer than ten are stored.
MainContentBackground {
    id: page
    objectName: "Methods"
    header3Text: qsTr("Methods") + ls.translatedText

    property alias methodListView: methodListView

    function populateModel() {
        dm.getMethodsFromDB()
        methodListView.model = dm.methods
        methodButton1.visible = dm.methodCount < 10
    }

    function newMethod() {
        methodStack.push(titration04)
        titration04.startNewMethod()
    }

    function editMethod(index) {
        var entry = dm.methods.get(index)
        setup.currentMethodId = entry.id
        setup.setSetupValues()
        methodStack.push(titration04)
        titration04.startEditing(entry.id)
    }

    ListView {
        id: methodListView
        anchors.top: parent.top
        anchors.left: parent.left
        width: parent.width - (scroller.needed ? 60 : 0)
        anchors.bottom: footer.top
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        // Carries out the deletions pending in the list.
        function deleteSelected() {}
        delegate: Rectangle {
            width: methodListView.width
            height: 46
            color: area.pressed ? Colors.zirconColor : Colors.whiteColor
            Text {
                x: 20
                anchors.verticalCenter: parent.verticalCenter
                color: Colors.deeptangaroaColor
                font.family: "Roboto"
                font.pixelSize: 17
                text: modelData.methodName
            }
            Rectangle { anchors.bottom: parent.bottom; width: parent.width; height: 1; color: Colors.lineColor }
            MouseArea {
                id: area
                anchors.fill: parent
                onClicked: {
                    methodListView.currentIndex = index
                    page.editMethod(index)
                }
            }
        }
    }
    ScrollButtons {
        id: scroller
        target: methodListView
        namePrefix: "methods"
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
            id: methodButton1
            objectName: "newMethodButton"
            anchors.centerIn: parent
            anchors.horizontalCenterOffset: -30
            text: qsTr("New Method") + ls.translatedText
            onClicked: page.newMethod()
        }
    }
    Component.onCompleted: populateModel()
}
