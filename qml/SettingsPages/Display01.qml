import QtQuick 2.12
import "../Background"

// The display settings: brightness, name, date, time, language, temperature.
MainContentBackground {
    objectName: "Display"
    header3Text: qsTr("Display") + ls.translatedText

    function loadModelData() {}
    function reIntializeUI() {}
}
