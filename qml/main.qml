import QtQuick 2.12
import QtQuick.Controls 2.12
import QtQuick.Controls.Material 2.12
import QtQuick.VirtualKeyboard 2.2

// The application window. The screens of the instrument come in later; this
// holds the window, its style and the virtual keyboard.
ApplicationWindow {
    id: root
    width: 640
    height: 480
    visible: true
    title: "Vantor Pro V400"
    Material.theme: Material.Light
    Material.accent: Material.Blue

    header: ToolBar {
        Label {
            anchors.centerIn: parent
            text: "Vantor Pro V400"
            font.pixelSize: 20
            color: "white"
        }
    }

    Label {
        anchors.centerIn: parent
        text: "Ready"
        font.pixelSize: 28
        visible: dm.databaseMessage === ""
    }

    // A database file that could not be used: the session stores nothing.
    Label {
        objectName: "databaseMessage"
        anchors.fill: parent
        anchors.margins: 24
        visible: dm.databaseMessage !== ""
        text: dm.databaseMessage
        wrapMode: Text.WordWrap
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        font.pixelSize: 20
        color: "#b00020"
    }

    InputPanel {
        id: inputPanel
        z: 99
        x: 0
        y: root.height
        width: root.width
        states: State {
            name: "visible"
            when: inputPanel.active
            PropertyChanges { target: inputPanel; y: root.height - inputPanel.height }
        }
    }
}
