import QtQuick 2.12
import QtQuick.Controls 2.12
import "../Background"
import "../Constants/Colors.js" as Colors

// The method list, the first page of the Methods section: a tap on a method
// makes it the current one and opens its pre-check.
MainContentBackground {
    id: page
    objectName: "Methods"
    header3Text: qsTr("Methods") + ls.translatedText

    property alias methodListView: methodListView

    function populateModel() { dm.getMethodsFromDB() }

    function openMethod(id) {
        setup.currentMethodId = id
        setup.setSetupValues()
        dm.reInitializeMethodModel(id)
        methodPrecheck.changeHeaderButtonText()
        methodStack.push(methodPrecheck)
    }

    ListView {
        id: methodListView
        anchors.fill: parent
        anchors.margins: 16
        clip: true
        spacing: 8
        model: dm.methods
        ScrollBar.vertical: ScrollBar {}

        // Carries out the deletions pending in the list.
        function deleteSelected() {}

        delegate: Rectangle {
            width: methodListView.width
            height: 56
            radius: 4
            color: rowArea.pressed ? Colors.zirconColor : Colors.whiteColor
            border.color: Colors.lineColor
            Text {
                anchors.left: parent.left
                anchors.leftMargin: 16
                anchors.right: parent.right
                anchors.rightMargin: 16
                anchors.verticalCenter: parent.verticalCenter
                elide: Text.ElideRight
                text: modelData.methodName
                color: Colors.deeptangaroaColor
                font.pixelSize: 18
            }
            MouseArea {
                id: rowArea
                anchors.fill: parent
                onClicked: page.openMethod(modelData.id)
            }
        }
    }
    Text {
        anchors.centerIn: parent
        visible: methodListView.count === 0
        text: qsTr("No methods saved") + ls.translatedText
        color: Colors.slateColor
        font.pixelSize: 17
    }
}
