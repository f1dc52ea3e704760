import QtQuick 2.12
import "../Background"
import "../CustomComponent"
import "../Constants/Colors.js" as Colors

// Step 13: the burette's size and the day it was put in.
SetupBackground {
    id: page

    readonly property var sizes: ["10 mL", "20 mL", "50 mL"]
    property string installationText: ""

    // The installation date as the settings show dates; today until one was chosen.
    function formatDate() {
        installationText = setup.installationDate === ""
                ? displayValues.formatDate(new Date())
                : displayValues.formatStringDate(setup.installationDate)
        sizeRow.currentIndex = Math.max(0, sizes.indexOf(setup.buretteSize + " mL"))
    }

    objectName: "Burette Size"
    title: qsTr("Burette Size Selection") + ls.translatedText
    stepText: qsTr("Setup | Step 13 of 13") + ls.translatedText

    Column {
        anchors.top: parent.top
        anchors.topMargin: 24
        width: parent.width
        spacing: 12
        ChoiceRow {
            id: sizeRow
            objectName: "buretteSize"
            label: qsTr("Burette Size") + ls.translatedText
            options: page.sizes
            onChosen: {
                setup.buretteSize = parseInt(text, 10)
                setup.setSetupValues()
            }
        }
        SettingRow {
            objectName: "installationDateRow"
            opensPage: true
            label: qsTr("Installation Date") + ls.translatedText
            value: page.installationText
            onClicked: {
                setUpBuretteSizeDatePage.prepare()
                setupStack.push(setUpBuretteSizeDatePage)
            }
        }
    }

    onBackClicked: setupStack.pop()
    onNextClicked: {
        if (setup.installationDate === "")
            setup.installationDate = String(Date.now())
        setupStack.push(setup10)
    }
}
