import QtQuick 2.12
import "WizardRows.js" as WizardRows

// The titrant page of the method wizard: name, id and how the concentration
// is known, typed in or found by standardisation against a standard.
WizardListPage {
    id: page
    objectName: "Setup Titrant"
    header3Text: qsTr("Setup Titrant") + ls.translatedText
    nextText: qsTr("Next: Setup Titration") + ls.translatedText

    property string electrodeType: electrode.electrodeType

    function rowTitles() {
        return WizardRows.titrantRows({ concInputMode: titrant.concInputMode, standTechnique: titrant.standTechnique,
                                        standAmount: titrant.standAmount })
    }

    function n(x, decimals) { return WizardRows.shown(x, decimals) }

    function describe(title) {
        switch (title) {
        case "Titrant Name":
            return { selector: titrant.titrantName === "User Defined" ? titrant.titrantName_userDefined : qsTr(titrant.titrantName),
                     current: titrant.titrantName, options: listElements.options("titrantNameModel"),
                     isCustom: titrant.titrantName === "User Defined" }
        case "Titrant ID": return { selector: titrant.titrantID }
        case "Conc. Input Mode":
            return { selector: qsTr(titrant.concInputMode), current: titrant.concInputMode,
                     options: listElements.options("concInputModeModel") }
        case "Titrant Concentration":
            return { selector: n(titrant.concInputMode_manualEntry, 5) + " " + titrant.concInputMode_Unit,
                     current: titrant.concInputMode_Unit, options: listElements.options("titrantResultUnitsModel") }
        case "Nominal Concentration":
            return { selector: n(titrant.nominalConc, 4) + " " + titrant.nominalConc_Unit, current: titrant.nominalConc_Unit,
                     options: listElements.options("titrantResultUnitsModel") }
        case "Standardize Tech.":
            return { selector: qsTr(titrant.standTechnique), current: titrant.standTechnique,
                     options: listElements.options("titrationTechniqueModel") }
        case "Number of Endpoints":
            return { selector: String(titrant.noOfEndPoints), options: WizardRows.endPointCounts(titrant.standTechnique, true) }
        case "Endpoint Values":
            return { selector: n(titrant.endPointsValues, 2) + " " + titrant.endPoint_Unit }
        case "Result Units":
            return { selector: titrant.resultUnits, options: listElements.options("titrantResultUnitsModel") }
        case "Standardize Reaction Ratio": return { selector: n(titrant.standReactionRatio, 4) }
        case "Standard Name":
            return { selector: titrant.standardName === "User Defined" ? titrant.standardName_userDefined : qsTr(titrant.standardName),
                     current: titrant.standardName, options: listElements.options("standardNameModel"),
                     isCustom: titrant.standardName === "User Defined" }
        case "Standard Amount":
            var fixed = titrant.standAmount === "Fixed Weight" ? " " + n(titrant.fixedStandAmountWeight, 5) + " g"
                      : titrant.standAmount === "Fixed Volume" ? " " + n(titrant.fixedStandAmountVolume, 5) + " mL" : ""
            return { selector: qsTr(titrant.standAmount) + fixed, current: titrant.standAmount,
                     options: listElements.options("amountModel") }
        case "Standard Molecular Wt": return { selector: n(titrant.standMolecularWeight, 2) + " g/mol" }
        case "Standard Purity": return { selector: n(titrant.standardPurity, 2) + " %" }
        case "Standard Concentration":
            return { selector: n(titrant.standConcentration, 5) + " " + titrant.standConcentration_Unit,
                     current: titrant.standConcentration_Unit, options: listElements.options("titrantResultUnitsModel") }
        case "Pre-dose Titrant Volume": return { selector: n(titrant.preDoseTitrantVolume, 2) + " mL" }
        case "Max Total Titrant Volume": return { selector: n(titrant.maxTotalVolume, 2) + " mL" }
        case "Stand. Process Control":
            return { selector: qsTr(titrant.standProcessControl), current: titrant.standProcessControl,
                     options: listElements.options("processControlModel") }
        case "Pre-stir Duration": return { selector: n(titrant.preStirDuration, 0) + " sec" }
        case "Stir Speed":
            return { selector: qsTr(titrant.stirSpeed), current: titrant.stirSpeed, options: listElements.options("stirSpeedModel") }
        }
        return { selector: "" }
    }

    function refresh() {
        if (mainWindow.processIndex === 1 && mainWindow.currentDynamicContent)
            mainWindow.currentDynamicContent.loadModel()
        else
            page.loadModelData()
        mainWindow.titrantChanged()
    }

    function openEntry(key, after) {
        entryPage.openEntry(key, function (v) {
            if (after)
                after(v)
            page.refresh()
        })
    }

    function rowPicked(title, index, option) {
        switch (title) {
        case "Titrant Name":
            if (option === "User Defined")
                entryPage.openName("titrantName", titrant.titrantName_userDefined, function (v) {
                    titrant.titrantName = "User Defined"
                    titrant.titrantName_userDefined = v[0]
                    page.closeOptions()
                    page.refresh()
                })
            else
                titrant.titrantName = option
            break
        case "Conc. Input Mode": titrant.concInputMode = option; break
        case "Titrant Concentration":
            openEntry("concInputMode" + option, function () { titrant.concInputMode_Unit = option })
            break
        case "Nominal Concentration":
            openEntry("nominalConc" + option, function () { titrant.nominalConc_Unit = option })
            break
        case "Standardize Tech.": titrant.standTechnique = option; break
        case "Number of Endpoints": titrant.noOfEndPoints = parseInt(option); break
        case "Result Units": titrant.resultUnits = option; break
        case "Standard Name":
            if (option === "User Defined")
                entryPage.openName("standardName", titrant.standardName_userDefined, function (v) {
                    titrant.standardName = "User Defined"
                    titrant.standardName_userDefined = v[0]
                    page.closeOptions()
                    page.refresh()
                })
            else
                titrant.standardName = option
            break
        case "Standard Amount":
            titrant.standAmount = option
            if (option === "Fixed Weight")
                openEntry("fixedStandAmountWeight", function () { titrant.standAmount_Unit = "grams" })
            else if (option === "Fixed Volume")
                openEntry("fixedStandAmountVolume", function () { titrant.standAmount_Unit = "mL" })
            break
        case "Standard Concentration":
            openEntry("standConcentration" + option, function () { titrant.standConcentration_Unit = option })
            break
        case "Stand. Process Control":
            titrant.standProcessControl = option
            if (option === "User Defined")
                userDefinedProcessControll.open(0)
            break
        case "Stir Speed": titrant.stirSpeed = option; break
        }
        mainWindow.titrantChanged()
    }

    function rowOpened(title) {
        switch (title) {
        case "Titrant ID":
            entryPage.openName("titrantID", titrant.titrantID, function (v) { titrant.titrantID = v[0]; page.refresh() })
            break
        case "Endpoint Values": openEntry(titrant.endPoint_Unit === "mV" ? "titrantEndPointmV" : "titrantEndPointpH"); break
        case "Standardize Reaction Ratio": openEntry("standReactionRatio"); break
        case "Standard Molecular Wt": openEntry("standMolecularWeight"); break
        case "Standard Purity": openEntry("standardPurity"); break
        case "Pre-dose Titrant Volume": openEntry("titrantPreDose"); break
        case "Max Total Titrant Volume": openEntry("titrantMaxVolume"); break
        case "Pre-stir Duration": openEntry("titrantPreStir"); break
        }
    }

    // The amounts of the run record from the method.
    function setCycleModelValue() {
        runtitration.standAmountValue = titrant.standAmount_Value
        runtitration.sampleAmountValue = titration.sampleAmountValue
        runtitration.reagentAmountValue = titration.reagentAmountValue
        if (!dm.isProbePresent())
            runtitration.temperature = setup.temperatureInput
    }

    function setStandAmountValue() {
        if (titrant.standAmount === "Fixed Volume")
            titrant.standAmount_Value = titrant.fixedStandAmountVolume
        else if (titrant.standAmount === "Fixed Weight")
            titrant.standAmount_Value = titrant.fixedStandAmountWeight
        else
            titrant.standAmount_Value = 0
    }

    function nextAction() {
        setCycleModelValue()
        setStandAmountValue()
        titrant.setTitrantSetupValues(electrode.electrodeType, true)
        if (titrant.concInputMode === "Manual Entry")
            method.titrantConcentration = titrant.concInputMode_manualEntry
        titration06.electrodeType = electrode.electrodeType
        titration06.setupTitrationMenu()
        titration06.loadModelData()
        mainWindow.currentStack.push(titration06)
    }
}
