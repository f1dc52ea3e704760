import QtQuick 2.12
import "../Background"
import "../Constants/Colors.js" as Colors

// A log that holds no row.
MainContentBackground {
    objectName: "No Data"
    header3Text: qsTr("Data Logs") + ls.translatedText
    Text {
        anchors.centerIn: parent
        color: Colors.slateColor
        font.family: "Roboto"
        font.pixelSize: 18
        text: qsTr("There is no data to display") + ls.translatedText
    }
}
