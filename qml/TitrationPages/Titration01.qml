import QtQuick 2.12
import "../Background"
import "../CustomComponent"

// The home screen: the way to a titration with the current method.
MainContentBackground {
    objectName: "Home"
    header3Text: qsTr("Home") + ls.translatedText

    // Refreshes the screen after a change of method or setup.
    function updateUI() { homeCalibrationLine.update() }

    HomeCalibrationLine { id: homeCalibrationLine; x: 20; y: 16 }
    Component.onCompleted: updateUI()
}
