import QtQuick 2.12
import "../Background"
import "../Buttons"
import "../CustomComponent"
import "../Constants/Colors.js" as Colors
import "../Constants/Icons.js" as Icons

// The method list, the first page of the Methods section: a tap on a method
// makes it the current one and opens its pre-check; its edit mark opens it
// in the wizard's pages to be changed in place; "New Method" builds one
// while fewer than ten are stored.
MainContentBackground {
    id: page
    objectName: "Methods"
    header3Text: qsTr("Methods") + ls.translatedText

    property alias methodListView: methodListView

    function populateModel() {
        dm.getMethodsFromDB()
        methodButton1.visible = dm.methodCount < 10
    }

    function openMethod(id) {
        setup.currentMethodId = id
        setup.setSetupValues()
        dm.reInitializeMethodModel(id)
        methodPrecheck.changeHeaderButtonText()
        methodStack.push(methodPrecheck)
    }

    function newMethod() {
        methodStack.push(titration04)
        titration04.startNewMethod()
    }

    // A method with a password opens for changes after the password.
    function requestEdit(id, password) {
        if (password.length > 0)
            passwordVerificationPopUp.ask(id, password)
        else
            editMethod(id)
    }

    function editMethod(id) {
        setup.currentMethodId = id
        setup.setSetupValues()
        titration.reagentWeightType = ""
        methodStack.push(titration04)
        titration04.startEditing(id)
    }

    ListView {
        id: methodListView
        anchors.top: parent.top
        anchors.left: parent.left
        anchors.bottom: footer.top
        anchors.margins: 16
        width: parent.width - 32 - (scroller.needed ? 56 : 0)
        clip: true
        spacing: 8
        boundsBehavior: Flickable.StopAtBounds
        model: dm.methods

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
                anchors.right: editMark.left
                anchors.rightMargin: 8
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
            Rectangle {
                id: editMark
                objectName: "editMethod" + index
                anchors.right: parent.right
                width: 56
                height: parent.height
                color: editArea.pressed ? Colors.zirconColor : "transparent"
                Text {
                    anchors.centerIn: parent
                    font.family: Icons.fontFamily
                    font.pixelSize: 24
                    color: Colors.summerSkyColor
                    text: Icons.edit
                }
                MouseArea {
                    id: editArea
                    anchors.fill: parent
                    onClicked: page.requestEdit(modelData.id, modelData.methodPassword)
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
    Text {
        anchors.centerIn: parent
        visible: methodListView.count === 0
        text: qsTr("No methods saved") + ls.translatedText
        color: Colors.slateColor
        font.pixelSize: 17
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
    Component.onCompleted: methodButton1.visible = dm.methodCount < 10
}
