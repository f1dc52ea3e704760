import QtQuick 2.12
import "../Background"
import "../Buttons"
import "../Constants/Colors.js" as Colors

// The start of each calibration point: what to do with the electrode, and
// Start.
MainContentBackground {
    id: page
    objectName: "Calibrate Electrode"

    function updateHeader() {
        var type = stack.calibrationType()
        objectName = type === "pH" ? "Calibrate Electrode" : type === "Redox" ? "Calibrate Redox" : "Calibrate ISE"
        if (type === "pH")
            header3Text = qsTr("Calibrate pH") + ls.translatedText
        else if (type === "Redox")
            header3Text = qsTr("Calibrate RmV") + ls.translatedText
        else
            header3Text = qsTr("Calibrate ") + (dm.calibrationModel ? dm.calibrationModel.iseType : measurement.iseType)
        var rinse = type === "pH" && (mainWindow.currentStack !== measureStack || !measurement.isATC)
        instruction.text = rinse ? qsTr("Rinse electrode, place into\n calibration solution and tap\n the Start button.") + ls.translatedText
                                 : qsTr("Make sure the electrode is in your\n calibration solution before pressing\n the start calibration button below.") + ls.translatedText
        pointsText.text = mc.getCalDonePoint() > 0 ? qsTr("Points calibrated: %1 of 5").arg(mc.getCalDonePoint()) + ls.translatedText : ""
    }

    function startPoint() {
        measure03.resetButtons()
        stack.resetmeasureByElectrodeType()
        measure03.updateHeader()
        tc.qmlStartStirrer()
        tc.qmlSetStirSpeed(dm.qmlStirSpeed)
        mc.qmlStartCalPoint()
        stack.processRunning = true
        stack.push(measure03)
    }

    onVisibleChanged: if (visible) updateHeader()

    Text {
        id: instruction
        anchors.horizontalCenter: parent.horizontalCenter
        y: 60
        horizontalAlignment: Text.AlignHCenter
        color: Colors.deeptangaroaColor
        font.family: "Roboto"
        font.pixelSize: 22
        lineHeight: 1.2
    }
    Text {
        id: pointsText
        anchors.horizontalCenter: parent.horizontalCenter
        y: 200
        color: Colors.slateColor
        font.family: "Roboto"
        font.pixelSize: 16
    }
    PopupButton {
        objectName: "calibrationStart"
        anchors.horizontalCenter: parent.horizontalCenter
        y: 250
        width: 200
        text: qsTr("Start") + ls.translatedText
        onClicked: page.startPoint()
    }
}
