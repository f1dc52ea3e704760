import QtQuick 2.12

// Shown by the update button when no USB disk is there: where the update
// files come from.
MessagePopup {
    title: qsTr("Software Update") + ls.translatedText
    message: qsTr("Visit") + " " + downloadAddress + " " + qsTr("to download software updates for your titrator and access the latest functions and features.") + ls.translatedText
    firstButtonText: qsTr("OK") + ls.translatedText
    onFirstClicked: hidePopup()

    readonly property string downloadAddress: "www.kestrum.com/software"
}
