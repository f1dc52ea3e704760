import QtQuick 2.12
import "../Background"
import "../Buttons"
import "../Popup"
import "../Constants/Colors.js" as Colors
import "MethodList.js" as MethodList
import "MethodReport.js" as MethodReport

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

    // The first failure the report output told while the reports were made.
    property var failure: null

    // One method's report to the disk or the printer; false when the method
    // is not stored.
    function sendReport(id) {
        var parts = dm.library.partsOf(id)
        if (!parts.method)
            return false
        var m = parts.method
        var type = parts.electrode.electrodeType
        var display = parts.titration.displayUnits
        var custom = {
            methodEdited: displayValues.formattedDateTime(m.mupdatedAt),
            calibrationDate: m.lastCalibration || "",
            standardizeDate: m.lastStandardization || "",
            titrantDate: displayValues.formattedDateTime(parts.titrant.mupdatedAt),
            blankRequiredValue: parts.titration.blankRequired === "No" ? "" : String(parts.titration.blankRequiredValue),
            blank_Unit: parts.titration.blankRequired === "No" ? "" : "mmol"
        }
        reportController.methodTextReport(id,
                                          JSON.stringify(MethodReport.withUnits(parts.electrode, type, display)),
                                          JSON.stringify(MethodReport.withUnits(parts.titrant, type, display)),
                                          JSON.stringify(MethodReport.withUnits(parts.titration, type, display)),
                                          JSON.stringify({ instrumentName: setup.instrumentName }),
                                          JSON.stringify(custom),
                                          JSON.stringify(MethodReport.rows(function (t) { return qsTr(t) })),
                                          m.mupdatedAt, m.methodName)
        return failure === null
    }

    Connections {
        target: reportController
        ignoreUnknownSignals: true
        function onShowPopupMultiInput(popupState, logCount, fileName) {
            if (exportinProgressPopUp.visible && popup.failure === null
                    && (popupState === "usbNotReady" || popupState === "fileNotCreated"))
                popup.failure = [popupState, fileName]
        }
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
        failure = null
        var steps = ids.map(function (id) {
            return function () { return popup.sendReport(id) }
        })
        exportinProgressPopUp.start(steps, function (written) {
            if (popup.failure) {
                busy_popup.showPopupMultiInput(popup.failure[0], 0, popup.failure[1])
            } else if (mode === "print") {
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
