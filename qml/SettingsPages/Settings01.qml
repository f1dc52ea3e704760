import QtQuick 2.12
import "../Background"

// The first page of the Settings section.
MainContentBackground {
    objectName: "Settings"
    header3Text: qsTr("Settings") + ls.translatedText

}
