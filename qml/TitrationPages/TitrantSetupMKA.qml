import QtQuick 2.12
import "WizardRows.js" as WizardRows

// The titrant page of a known-addition method: the standard added to the
// sample, its id and concentration (with a molecular weight for mg/L).
WizardListPage {
    id: page
    objectName: "Setup Titrant"
    header3Text: qsTr("Setup Titrant") + ls.translatedText
    nextText: qsTr("Next: Setup Titration") + ls.translatedText

    function rowTitles() { return WizardRows.mkaTitrantRows(titrant.titrantConcentration) }

    function describe(title) {
        switch (title) {
        case "Titrant Name":
            return { selector: titrant.titrantName === "User Defined" ? titrant.titrantName_userDefined : qsTr(titrant.titrantName),
                     current: titrant.titrantName, options: listElements.options("titrantNameModelTwo") }
        case "Titrant ID": return { selector: titrant.titrantID }
        case "Titrant Concentration":
            return { selector: WizardRows.shown(titrant.titrantConcentrationValue, 5) + " " + titrant.titrantConcentration,
                     current: titrant.titrantConcentration, options: listElements.options("titrantConcentrationModel") }
        case "Titrant Molecular Weight":
            return { selector: WizardRows.shown(titrant.titrantMolecularWeight, 2) + " " + titrant.titrantMolecularWeight_Unit }
        }
        return { selector: "" }
    }

    function refresh() {
        page.loadModelData()
        mainWindow.titrantChanged()
    }

    function rowPicked(title, index, option) {
        if (title === "Titrant Name") {
            if (option === "User Defined")
                entryPage.openName("titrantName", titrant.titrantName_userDefined, function (v) {
                    titrant.titrantName = "User Defined"
                    titrant.titrantName_userDefined = v[0]
                    page.closeOptions()
                    page.refresh()
                })
            else
                titrant.titrantName = option
        } else if (title === "Titrant Concentration") {
            titrant.titrantConcentration = option
            entryPage.openEntry("titrantConcentrationMka", function () { page.refresh() })
        }
        mainWindow.titrantChanged()
    }

    function rowOpened(title) {
        if (title === "Titrant ID") {
            entryPage.openName("titrantID", titrant.titrantID, function (v) { titrant.titrantID = v[0]; page.refresh() })
        } else if (title === "Titrant Molecular Weight") {
            entryPage.openEntry("titrantMolecularWeight", function () {
                if (titrant.titrantMolecularWeight_Unit === "")
                    titrant.titrantMolecularWeight_Unit = "g/mol"
                page.refresh()
            })
        }
    }

    function setDefaultTitrantName() {
        if (titrant.titrantName === "NaOH")
            titrant.titrantName = "Ammonia (NH3)"
    }

    function nextAction() {
        titration05.setCycleModelValue()
        setDefaultTitrantName()
        titrant.setTitrantSetupValues(electrode.electrodeType, true)
        titrationSetupMka.loadModelData()
        mainWindow.currentStack.push(titrationSetupMka)
    }
}
