import QtQuick 2.12
import "../Background"

// Step 1 of the first start: the language.
SetupBackground {
    objectName: "Language"
    title: qsTr("Select Language") + ls.translatedText
    stepText: qsTr("Setup | Step 1 of 13") + ls.translatedText
    backVisible: false
    // Next comes with the language list.
    nextVisible: false
}
