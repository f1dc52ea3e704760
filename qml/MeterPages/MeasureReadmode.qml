import QtQuick 2.12
import "../Background"

// The meter's read mode, the first page of the Measure section.
MainContentBackground {
    objectName: "Measure ReadMode"
    header3Text: qsTr("Measure") + ls.translatedText

    function loadStirButton() {}
    function stableMeasurement() {}
    function unStableMeasurement() {}
}
