import QtQuick 2.12
import "../Background"
import "../Buttons"
import "../CustomComponent"
import "../Constants/Colors.js" as Colors

// "Software Versions": the model, the program's and the slave's versions,
// the network address, and the software update's button and status. The
// button's text and what it does follow the update's state (rm).
MainContentBackground {
    id: page
    objectName: "Software Versions"
    header3Text: qsTr("Software Versions") + ls.translatedText

    // What a section's entry calls before pushing the page.
    function open() {
        dm.getLoadedMspVersion()
        rm.refreshIpAddress()
    }

    function updateButtonAction() {
        if (rm.updateInProgress)
            return
        if (rm.systemUpdateAvail || rm.mspUpdateAvail) {
            // The popup first: an update that ends at once (a failure, or the
            // program installed) finds it on show and closes or keeps it.
            showPopup(softwareProgressPopUp)
            rm.updateSoftware()
        } else if (rm.usbIsReady) {
            rm.checkUsbForUpdate()
        } else {
            qmlShowSoftwareUpdateWarning()
        }
    }

    Column {
        width: parent.width
        SettingRow {
            objectName: "modelStringRow"
            label: qsTr("Model") + ls.translatedText
            value: dm.titratorModelString
        }
        SettingRow {
            objectName: "appVersionRow"
            label: qsTr("Application Version") + ls.translatedText
            value: dm.appVersionNumber
        }
        SettingRow {
            objectName: "firmwareVersionRow"
            label: qsTr("Firmware Version") + ls.translatedText
            value: dm.mspQmlVersion
        }
        SettingRow {
            objectName: "ipAddressRow"
            label: qsTr("IP Address") + ls.translatedText
            value: rm.ipAddress.length > 0 ? rm.ipAddress.split(",").join(", ") : qsTr("Not connected") + ls.translatedText
        }
    }

    // The names come from the disk: shown as plain text, cut to the line.
    Text {
        objectName: "updateFiles"
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: statusText.top
        anchors.leftMargin: 20
        anchors.rightMargin: 20
        anchors.bottomMargin: 6
        visible: rm.updateFiles.length > 0
        textFormat: Text.PlainText
        elide: Text.ElideRight
        color: Colors.slateColor
        font.family: "Roboto"
        font.pixelSize: 15
        text: qsTr("Found: %1").arg(rm.updateFiles) + ls.translatedText
    }
    Text {
        id: statusText
        objectName: "updateStatus"
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: updateButton.top
        anchors.margins: 20
        wrapMode: Text.WordWrap
        maximumLineCount: 2
        elide: Text.ElideRight
        color: Colors.deeptangaroaColor
        font.family: "Roboto"
        font.pixelSize: 17
        text: rm.versionStatusQml + ls.translatedText
    }
    PopupButton {
        id: updateButton
        objectName: "updateButton"
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 24
        width: 260
        enabled: !rm.updateInProgress
        text: rm.updateButtonStatus + ls.translatedText
        onClicked: page.updateButtonAction()
    }
}
