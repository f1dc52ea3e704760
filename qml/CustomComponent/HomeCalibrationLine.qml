import QtQuick 2.12
import "../Constants/Colors.js" as Colors
import "../Constants/Icons.js" as Icons

// Home's line on the electrode: when and with what average slope it was
// last calibrated (pH electrodes).
Row {
    id: line
    visible: dm.LastTitrationCalVisible
    spacing: 8

    function update() { dm.getLastCalibrationTimeForTitration() }

    Text {
        anchors.verticalCenter: parent.verticalCenter
        font.family: Icons.fontFamily
        font.pixelSize: 22
        color: Colors.greenColor
        text: Icons.done
    }
    Text {
        anchors.verticalCenter: parent.verticalCenter
        font.family: "Roboto"
        font.pixelSize: 16
        color: Colors.deeptangaroaColor
        text: qsTr("Calibrated") + ls.translatedText + "  " + displayValues.formattedDateTime(dm.LastTitrationCalibrationTime)
              + "  |  " + dm.LastTitrationCalAvg
    }
}
