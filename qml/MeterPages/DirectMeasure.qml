import QtQuick 2.12
import "../Background"

// The live reading of the meter.
MainContentBackground {
    objectName: "Measure"
    header3Text: qsTr("Direct Measure") + ls.translatedText

    function setMeasureReadModeDropdownOptions() {}
}
