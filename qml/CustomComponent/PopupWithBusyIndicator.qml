import QtQuick 2.12
import QtQuick.Controls 2.12
import "../Background"
import "../Buttons"
import "../Constants/Colors.js" as Colors

// The long-running work of exports, prints and restarts: a veil with a
// panel that turns while work goes on and shows the outcome after.
Rectangle {
    id: busy

    property string header: ""
    property string message: ""
    property bool working: false
    property string buttonText: qsTr("Close") + ls.translatedText
    signal dismissPopup(string popupState)
    signal closed(string closedState)

    anchors.fill: parent
    color: Qt.rgba(0.12, 0.18, 0.21, 0.96)
    visible: state !== "" && state !== "nullState"

    onDismissPopup: state = popupState

    function showPopupMultiInput(popupState, logCount, fileName) {
        state = popupState
        if (popupState === "recordFound")
            message = logCount + qsTr(" Record Found") + ls.translatedText
        else if (popupState === "fileCreated")
            message = fileName + qsTr(" File Created") + ls.translatedText
        else if (popupState === "fileNotCreated")
            message = fileName + qsTr(" File Not Created") + ls.translatedText
        else if (popupState === "reportsMoved")
            message = logCount + qsTr(" Reports Moved To ") + ls.translatedText + fileName
    }

    function present(popupState) {
        state = popupState
    }

    MouseArea { anchors.fill: parent }

    PopupBackground {
        id: panel
        visible: true
        title: busy.header
        height: 52 + 20 + Math.max(busy.working ? indicator.height : 0, messageText.implicitHeight)
                + (busy.working ? 0 : 24 + closeButton.height) + 20

        BusyIndicator {
            id: indicator
            visible: busy.working
            running: busy.working
            width: 48
            height: 48
        }
        Text {
            id: messageText
            anchors.left: busy.working ? indicator.right : parent.left
            anchors.leftMargin: busy.working ? 16 : 0
            anchors.right: parent.right
            anchors.verticalCenter: busy.working ? indicator.verticalCenter : undefined
            wrapMode: Text.WordWrap
            color: Colors.deeptangaroaColor
            font.family: "Roboto"
            font.pixelSize: 17
            text: busy.message
        }
        PopupButton {
            id: closeButton
            visible: !busy.working
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            text: busy.buttonText
            onClicked: {
                var closing = busy.state
                busy.state = "nullState"
                busy.closed(closing)
            }
        }
    }

    states: [
        State { name: "nullState" },
        State { name: "exportStart"; PropertyChanges { target: busy; header: qsTr("Export") + ls.translatedText; message: qsTr("Exporting to USB...") + ls.translatedText; working: true } },
        State { name: "exportCompleted"; PropertyChanges { target: busy; header: qsTr("Export") + ls.translatedText; message: qsTr("Export Process Completed") + ls.translatedText } },
        State { name: "printStart"; PropertyChanges { target: busy; header: qsTr("Print") + ls.translatedText; message: qsTr("Printing...") + ls.translatedText; working: true } },
        State { name: "printCompleted"; PropertyChanges { target: busy; header: qsTr("Print") + ls.translatedText; message: qsTr("Report Printing Completed") + ls.translatedText } },
        State { name: "recordFound"; PropertyChanges { target: busy; header: qsTr("Records") + ls.translatedText } },
        State { name: "noRecordFound"; PropertyChanges { target: busy; header: qsTr("Records") + ls.translatedText; message: qsTr("No Record Found") + ls.translatedText } },
        State { name: "fileCreated"; PropertyChanges { target: busy; header: qsTr("Report Creation") + ls.translatedText } },
        State { name: "fileNotCreated"; PropertyChanges { target: busy; header: qsTr("Report Creation") + ls.translatedText } },
        State { name: "reportsMoved"; PropertyChanges { target: busy; header: qsTr("Report Moved") + ls.translatedText } },
        State { name: "printerNotReady"; PropertyChanges { target: busy; header: qsTr("Error") + ls.translatedText; message: qsTr("Printer not connected") + ls.translatedText } },
        State { name: "usbNotReady"; PropertyChanges { target: busy; header: qsTr("Error") + ls.translatedText; message: qsTr("USB is not ready") + ls.translatedText } },
        State { name: "methodFull"; PropertyChanges { target: busy; header: qsTr("Error") + ls.translatedText; message: qsTr("Method log is full, new method cannot be saved.") + ls.translatedText; buttonText: qsTr("Continue") + ls.translatedText } },
        State { name: "copyMethodError"; PropertyChanges { target: busy; header: qsTr("Error") + ls.translatedText; message: qsTr("Method log is full, new method cannot be saved.") + ls.translatedText } },
        State { name: "factoryReset"; PropertyChanges { target: busy; header: qsTr("Factory Reset") + ls.translatedText; message: qsTr("Restarting Application...") + ls.translatedText; working: true } },
        State { name: "restarting"; PropertyChanges { target: busy; header: qsTr("Restart") + ls.translatedText; message: qsTr("Restarting Application...") + ls.translatedText; working: true } }
    ]
}
