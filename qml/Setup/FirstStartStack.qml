import QtQuick 2.12
import QtQuick.Controls 2.12
import "../Constants/Paths.js" as Paths

// The first start's welcome and thirteen steps: made only on an instrument
// whose first start is not done (main.qml's loader), and let go once home
// shows, so that a start of a set-up instrument does not build them.
StackView {
    id: setupStack
    anchors.fill: parent
    initialItem: halvorn01
    pushEnter: Transition {}
    pushExit: Transition {}
    popEnter: Transition {}
    popExit: Transition {}
    Halvorn01 { id: halvorn01; visible: false }
    Setup02 { id: setup02; visible: false }
    Setup03 { id: setup03; visible: false }
    Setup04 { id: setup04; visible: false }
    Setup05 { id: setup05; visible: false }
    Setup06 { id: setup06; visible: false }
    Setup07 { id: setup07; visible: false }
    SetupAssemblyStep {
        id: setup08
        visible: false
        objectName: "Assembly 1"
        title: qsTr("1. Attach the Electrode Holder Shaft") + ls.translatedText
        stepText: qsTr("Setup | Step 7 of 13") + ls.translatedText
        picture: Paths.assemblyShaft
        nextPage: setupTBD01
    }
    SetupAssemblyStep {
        id: setupTBD01
        visible: false
        objectName: "Assembly 2"
        title: qsTr("2. Adjust the Electrode Holder Head and Insert Electrodes") + ls.translatedText
        stepText: qsTr("Setup | Step 8 of 13") + ls.translatedText
        picture: Paths.assemblyHolderHead
        nextPage: setupTBD02
    }
    SetupAssemblyStep {
        id: setupTBD02
        visible: false
        objectName: "Assembly 3"
        title: qsTr("3. Install the Burette and Cover") + ls.translatedText
        stepText: qsTr("Setup | Step 9 of 13") + ls.translatedText
        picture: Paths.assemblyBurette
        nextPage: setupTBD03
    }
    SetupAssemblyStep {
        id: setupTBD03
        visible: false
        objectName: "Assembly 4"
        title: qsTr("4. Connect the Reagent Bottle Holder") + ls.translatedText
        stepText: qsTr("Setup | Step 10 of 13") + ls.translatedText
        picture: Paths.assemblyBottleHolder
        nextPage: setupTBD04
    }
    SetupAssemblyStep {
        id: setupTBD04
        visible: false
        objectName: "Assembly 5"
        title: qsTr("5. Connect the Color-Coded Tubing to the valve \n ports and components.") + ls.translatedText
        stepText: qsTr("Setup | Step 11 of 13") + ls.translatedText
        picture: Paths.assemblyTubing
        nextPage: setupTBD05
    }
    SetupAssemblyStep {
        id: setupTBD05
        visible: false
        objectName: "Assembly 6"
        title: qsTr("6. Connect the Electrodes and Power Supply to \n the labeled inputs") + ls.translatedText
        stepText: qsTr("Setup | Step 12 of 13") + ls.translatedText
        picture: Paths.assemblyConnections
        nextPage: setUpBuretteSize
    }
    Setup_BuretteSize { id: setUpBuretteSize; visible: false }
    SetupBuretteSizeDatePage { id: setUpBuretteSizeDatePage; visible: false }
    Setup10 { id: setup10; visible: false }
}
