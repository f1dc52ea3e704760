import QtQuick 2.12
import "../Background"
import "../Constants/Colors.js" as Colors
import "../Constants/Icons.js" as Icons

// "Sensor Calibrated", gone after 3 seconds: back home when the calibration
// was asked for there, else on to the run's checks.
PopupBackground {
    id: popup

    property bool fromHomeCalibrationButton: false

    title: qsTr("Sensor Calibrated") + ls.translatedText
    height: 52 + 20 + 56 + 20

    function dismissAfter3Sec() { timer.restart() }

    function finish() {
        if (mainWindow.currentPopup === popup)
            mainWindow.hidePopup()
        mainWindow.resetProcessIndex()
        if (fromHomeCalibrationButton) {
            titrationStack.pop(titration01)
            sideBar.resetBackButton()
        } else {
            offerChain.toPreCheck()
        }
    }

    Timer {
        id: timer
        interval: 3000
        onTriggered: popup.finish()
    }

    Row {
        width: parent.width
        spacing: 16
        Text {
            font.family: Icons.fontFamily
            font.pixelSize: 48
            color: Colors.greenColor
            text: Icons.done
        }
        Text {
            width: parent.width - 64
            anchors.verticalCenter: parent.verticalCenter
            wrapMode: Text.WordWrap
            font.family: "Roboto"
            font.pixelSize: 17
            color: Colors.deeptangaroaColor
            text: qsTr("The sensor has been successfully calibrated") + ls.translatedText
        }
    }
}
