import QtQuick 2.12
import "../Background"
import "../Buttons"
import "../Constants/Colors.js" as Colors
import "../Constants/Icons.js" as Icons

// A point taken: on to the next solution (up to five), or Done.
MainContentBackground {
    id: page
    objectName: "Calibrate pH(Calibration Point Successful screen)"
    state: "NonRedox"

    function updateHeader() {
        header3Text = measure02.header3Text
        state = stack.calibrationType() === "Redox" ? "Redox" : "NonRedox"
        // A redox calibration has one point; any other at most five.
        nextButton.visible = state === "NonRedox" && mc.getCalDonePoint() < 5
        countText.text = qsTr("Points calibrated: %1 of 5").arg(mc.getCalDonePoint()) + ls.translatedText
    }

    function next() {
        dm.deviceMode = "Calibration"
        if (mc.getCalDonePoint() < 5) {
            tc.qmlStopStirrer()
            measure03.resetButtons()
            stack.pop(stack.initialItem)
        }
    }

    function showSummary() {
        calibrationSummary.cid = dm.calibrationModel ? dm.calibrationModel.id : 0
        calibrationSummary.calibrationLogId = calibrationLogModel.id
        calibrationSummary.electrodeName = dm.calibrationModel ? dm.calibrationModel.electrodeName : ""
        calibrationSummary.electrodeType = stack.calibrationType()
        calibrationSummary.injectSummaryModel()
        dm.storeMeterReport("Calibration", calibrationSummary.cid)
        stack.push(calibrationSummary)
    }

    // Ends the calibration: an average slope out of limits is refused (the
    // shell shows why) and nothing is stored; otherwise the calibration, its
    // points and its log entry are stored (or the screen says they were not),
    // and a one-point calibration goes to its slope first.
    function done() {
        if (mainWindow.currentStack !== measureStack && mainWindow.currentStack !== methodStack && method.isNewTitrationProcessStarted)
            method.isChangeFromHome = true
        tc.qmlStopStirrer()
        mc.qmlStopCalibration()
        mc.calDone()
        if (mc.isSlopeErrorOnAccept()) {
            stack.processRunning = false
            measure03.resetButtons()
            stack.pop(stack.initialItem)
            return
        }
        if (dm.insertCalibrationValue())
            calibrationLogModel.saveLogValues(setup.isDatalogFullNotifOn, dm.calibrationModel)
        else
            mainWindow.showMessage(qsTr("Not Saved") + ls.translatedText,
                                   qsTr("The calibration could not be saved. Its figures are shown, and it is not kept after this session.") + ls.translatedText)
        stack.processRunning = false
        if (dm.calibrationcycles.length === 1 && stack.calibrationType() !== "Redox") {
            calibrationSlope.updateHeader()
            stack.push(calibrationSlope)
        } else {
            showSummary()
        }
    }

    states: [State { name: "Redox" }, State { name: "NonRedox" }]

    Column {
        anchors.horizontalCenter: parent.horizontalCenter
        y: 20
        spacing: 10
        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            font.family: Icons.fontFamily
            font.pixelSize: 56
            color: Colors.greenColor
            text: Icons.done
        }
        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            font.family: "Roboto"
            font.pixelSize: 22
            font.weight: Font.Medium
            color: Colors.deeptangaroaColor
            text: qsTr("Calibration point successful!") + ls.translatedText
        }
        Text {
            id: countText
            anchors.horizontalCenter: parent.horizontalCenter
            font.family: "Roboto"
            font.pixelSize: 15
            color: Colors.slateColor
        }
        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            horizontalAlignment: Text.AlignHCenter
            visible: nextButton.visible
            font.family: "Roboto"
            font.pixelSize: 17
            color: Colors.deeptangaroaColor
            text: qsTr("Tap the next button to calibrate\n with another solution") + ls.translatedText
        }
        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            visible: nextButton.visible
            font.family: "Roboto"
            font.pixelSize: 15
            color: Colors.slateColor
            text: qsTr("or") + ls.translatedText
        }
        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            horizontalAlignment: Text.AlignHCenter
            font.family: "Roboto"
            font.pixelSize: 17
            color: Colors.deeptangaroaColor
            text: qsTr("Tap the Done button to end the\n calibration of this module") + ls.translatedText
        }
    }
    Row {
        x: 20
        y: 300
        spacing: 16
        PopupAlternateButton {
            id: nextButton
            objectName: "calibrationNext"
            text: qsTr("Next") + ls.translatedText
            onClicked: page.next()
        }
        PopupButton {
            objectName: "calibrationDone"
            text: qsTr("Done") + ls.translatedText
            onClicked: page.done()
        }
    }
}
