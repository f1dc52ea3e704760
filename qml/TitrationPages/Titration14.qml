import QtQuick 2.12
import "../Background"
import "../Buttons"
import "../Constants/Colors.js" as Colors

// The pre-check of a titrant standardisation.
MainContentBackground {
    id: page
    objectName: "Standardize Titrant Pre-Check"
    header3Text: qsTr("Standardize Titrant | Pre-Check") + ls.translatedText

    function standardize() {
        dm.deviceMode = "Standardization"
        if (titrant.standAmount === "Variable Weight" || titrant.standAmount === "Variable Volume")
            variableStandardAmountPopup.ask(titrant.standAmount === "Variable Volume", 0)
        else
            mainWindow.showFullscreenOn(titrantStandardization)
    }

    Column {
        x: 20
        y: 16
        width: parent.width - 40
        spacing: 10
        Text {
            width: parent.width
            elide: Text.ElideRight
            // A known-addition method's standard solution has the concentration
            // entered with it, in the unit chosen there; no nominal figure.
            text: electrode.electrodeType === "ISE-MKA"
                  ? titration01.titrantShownName() + "  " + mainWindow.sigFigsDec(titrant.titrantConcentrationValue, 4, 5)
                    + " " + titrant.titrantConcentration
                  : titration01.titrantShownName() + "  " + qsTr("nominal") + ls.translatedText + " "
                    + mainWindow.sigFigsDec(titrant.nominalConc, 4, 5) + " " + titrant.nominalConc_Unit
            color: Colors.deeptangaroaColor
            font.pixelSize: 18
        }
        Text {
            visible: electrode.electrodeType !== "ISE-MKA"
            // The amount with the five decimals it is entered with, at most.
            text: qsTr("Standard") + ls.translatedText + ": " + qsTr(titrant.standAmount) + ls.translatedText
                  + (titrant.standAmount.indexOf("Fixed") === 0
                     ? " " + Number(titrant.standAmount_Value.toFixed(5)) + " " + titrant.standAmount_Unit : "")
            color: Colors.slateColor
            font.pixelSize: 16
        }
        Text {
            width: parent.width
            wrapMode: Text.WordWrap
            text: qsTr("Make sure the electrode is in the sample solution before pressing the standardize titrant button below.") + ls.translatedText
            color: Colors.slateColor
            font.pixelSize: 14
        }
    }
    PopupButton {
        anchors.left: parent.left
        anchors.leftMargin: 20
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 20
        width: 180
        text: qsTr("Standardize") + ls.translatedText
        onClicked: page.standardize()
    }
}
