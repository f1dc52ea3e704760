import QtQuick 2.12
import "../Background"
import "../Buttons"
import "../Constants/Colors.js" as Colors
import "../Constants/Icons.js" as Icons
import "MethodList.js" as MethodList

// "Edit Method | " + name: the six ways to change the selected method, and
// "Done Editing" on to its pre-check. Its parts open on the pages of the
// working method; copy and rename end on the name page.
MainContentBackground {
    id: page
    objectName: "Edit Method"
    header3Text: qsTr("Edit Method | ") + ls.translatedText + method.methodName

    // 1 while the name page makes a copy, 0 while it renames.
    property int flag: 0

    readonly property var entries: [
        QT_TR_NOOP("Edit Name and Password"), QT_TR_NOOP("Edit Electrode"), QT_TR_NOOP("Edit Titrant"),
        QT_TR_NOOP("Edit Titration"), QT_TR_NOOP("Copy Method"), QT_TR_NOOP("Delete Method")
    ]

    function open() {
        flag = 0
        methodStack.push(page)
    }

    function entryTapped(index) {
        switch (index) {
        case 0:
            flag = 0
            titration24.openRename()
            break
        case 1:
            dynamicLoader.loadElectrodeSetup()
            break
        case 2:
            dynamicLoader.loadTitrantSetup()
            break
        case 3:
            dynamicLoader.loadTitrationSetup()
            break
        case 4:
            if (dm.methodCount < MethodList.maxMethods) {
                flag = 1
                titration24.openCopy()
            } else {
                busy_popup.present("copyMethodError")
            }
            break
        case 5:
            mainWindow.showPopup(titration26)
            break
        }
    }

    function doneEditing() {
        titration21.populateModel()
        methodStack.pop(titration21)
        methodPrecheck.changeHeaderButtonText()
        methodStack.push(methodPrecheck)
    }

    Column {
        x: 20
        y: 12
        width: parent.width - 40
        spacing: 4
        Repeater {
            model: page.entries
            Rectangle {
                objectName: "editEntry" + index
                width: parent.width
                height: 46
                radius: 4
                color: entryArea.pressed ? Colors.zirconColor : Colors.whiteColor
                border.color: Colors.lineColor
                Text {
                    anchors.left: parent.left
                    anchors.leftMargin: 16
                    anchors.verticalCenter: parent.verticalCenter
                    color: index === 5 ? Colors.orangepeelColor : Colors.deeptangaroaColor
                    font.family: "Roboto"
                    font.pixelSize: 17
                    text: qsTr(modelData) + ls.translatedText
                }
                Text {
                    anchors.right: parent.right
                    anchors.rightMargin: 12
                    anchors.verticalCenter: parent.verticalCenter
                    font.family: Icons.fontFamily
                    font.pixelSize: 24
                    color: Colors.slateColor
                    text: Icons.chevronRight
                }
                MouseArea {
                    id: entryArea
                    anchors.fill: parent
                    onClicked: page.entryTapped(index)
                }
            }
        }
    }
    PopupButton {
        objectName: "doneEditing"
        anchors.right: parent.right
        anchors.rightMargin: 80
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 12
        text: qsTr("Done Editing") + ls.translatedText
        onClicked: page.doneEditing()
    }
}
