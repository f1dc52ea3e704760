import QtQuick 2.12
import "../Background"

// The burette's actions, the first page of the Burette section.
MainContentBackground {
    objectName: "Burette"
    header3Text: qsTr("Burette") + ls.translatedText

    function loadModelData() {}
    function dispenseCompleted() {}
    function dispenseWait() {}
    function rinseCompleted() {}
}
