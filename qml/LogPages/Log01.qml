import QtQuick 2.12
import "../Background"

// The first page of the Logs section: the four logs.
MainContentBackground {
    objectName: "Data Logs"
    header3Text: qsTr("Data Logs") + ls.translatedText

    // Shown when the database holds no log row.
    property alias noDataLogScreen: noDataLogScreen
    function eraseModelData() {}

    Item {
        id: noDataLogScreen
        anchors.fill: parent
        visible: false
    }
}
