import QtQuick 2.12
import "../Background"
import "../Buttons"
import "../Popup"
import "../Constants/Colors.js" as Colors
import "MethodList.js" as MethodList

// The stored methods with check boxes: the reports of those checked go to
// the USB disk ("Export Selected", beside the method files the export has
// just written) or to the receipt printer ("Print Selected").
PopupBackground {
    id: popup
    title: (mode === "print" ? qsTr("Print Methods") : qsTr("Export Methods")) + ls.translatedText
    height: 400
    y: 20

    property string mode: "export"
    property var methodidArr: MethodList.emptySlots()
    property bool showError: false

    function open(state) {
        mode = state
        createArr()
        showError = false
        list.clearMarks()
        list.model = dm.methods
        mainWindow.showPopup(popup)
    }

    // One method's report to the disk or the printer; false when it was not made.
    function sendReport(id) {
        if (typeof reportController.methodTextReport !== "function") {
            console.log("Method report not available for method", id)
            return false
        }
        return false
    }

    function createArr() {
        methodidArr = MethodList.emptySlots()
    }

    function submit() {
        var ids = MethodList.chosen(methodidArr)
        if (ids.length === 0) {
            showError = true
            return
        }
        mainWindow.hidePopup()
        var steps = ids.map(function (id) {
            return function () { return popup.sendReport(id) }
        })
        exportinProgressPopUp.start(steps, function (written) {
            if (mode === "print") {
                exportImportErrorPopUp.changeText(18)
                mainWindow.showPopup(exportImportErrorPopUp)
            } else {
                exportImportErrorPopUp.changeText(17)
                mainWindow.showPopup(exportImportErrorPopUp)
            }
        })
    }

    CheckList {
        id: list
        namePrefix: "exportRow"
        anchors.top: parent.top
        anchors.bottom: error.top
        width: parent.width
        decide: function (id, checked) {
            var slots = popup.methodidArr.slice()
            var stands = MethodList.toggleInstall(slots, id, checked, MethodList.maxMethods)
            popup.methodidArr = slots
            if (stands)
                popup.showError = false
            return stands
        }
    }
    Text {
        id: error
        anchors.bottom: buttons.top
        anchors.bottomMargin: 6
        width: parent.width
        height: 20
        elide: Text.ElideRight
        color: Colors.orangepeelColor
        font.family: "Roboto"
        font.pixelSize: 14
        text: !popup.showError ? "" : (popup.mode === "print" ? qsTr("Please select at least one method to print")
                                                              : qsTr("Please select at least one method to export")) + ls.translatedText
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
            objectName: "exportSelected"
            text: (popup.mode === "print" ? qsTr("Print Selected") : qsTr("Export Selected")) + ls.translatedText
            onClicked: popup.submit()
        }
    }
}
