import QtQuick 2.12
import "../Background"
import "../Buttons"
import "../Popup"
import "../Constants/Colors.js" as Colors
import "MethodList.js" as MethodList

// The methods found on the USB disk, with as many check marks as the
// library has free places; a further mark clears itself.
PopupBackground {
    id: popup
    title: qsTr("Install Methods") + ls.translatedText
    height: 400
    y: 20

    property var a: MethodList.emptySlots()
    property int free: 0
    property bool showError: false

    function open() {
        a = MethodList.emptySlots()
        free = MethodList.freeSlots(dm.methodCount)
        showError = false
        list.clearMarks()
        list.model = method.methods
        mainWindow.showPopup(popup)
    }

    function installSelected() {
        var chosen = MethodList.chosen(a)
        if (chosen.length === 0) {
            showError = true
            return
        }
        mainWindow.hidePopup()
        installProgressPopUp.start(chosen)
    }

    Text {
        id: heading
        width: parent.width
        wrapMode: Text.WordWrap
        color: Colors.deeptangaroaColor
        font.family: "Roboto"
        font.pixelSize: 16
        text: qsTr("Select up to ") + ls.translatedText + popup.free + qsTr(" methods to install") + ls.translatedText
    }
    CheckList {
        id: list
        namePrefix: "installRow"
        anchors.top: heading.bottom
        anchors.topMargin: 8
        anchors.bottom: error.top
        width: parent.width
        decide: function (id, checked) {
            var slots = popup.a.slice()
            var stands = MethodList.toggleInstall(slots, id, checked, popup.free)
            popup.a = slots
            if (stands)
                popup.showError = false
            return stands
        }
    }
    Text {
        id: error
        anchors.bottom: buttons.top
        anchors.bottomMargin: 6
        height: 20
        color: Colors.orangepeelColor
        font.family: "Roboto"
        font.pixelSize: 14
        text: popup.showError ? qsTr("No method is selected") + ls.translatedText : ""
    }
    Row {
        id: buttons
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        spacing: 16
        PopupAlternateButton {
            text: qsTr("Cancel") + ls.translatedText
            onClicked: mainWindow.hidePopup()
        }
        PopupButton {
            objectName: "installSelected"
            text: qsTr("Install Selected") + ls.translatedText
            onClicked: popup.installSelected()
        }
    }
}
