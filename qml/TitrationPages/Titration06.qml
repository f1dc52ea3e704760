import QtQuick 2.12
import "WizardRows.js" as WizardRows

// The titration page of the method wizard: technique, end points, direct
// or back titration, blanks, result unit with the values it needs, sample,
// volumes, process control, stirring and sample ids.
WizardListPage {
    id: page
    objectName: "Setup Titration"
    header3Text: qsTr("Setup Titration") + ls.translatedText
    nextText: mainWindow.currentStack === methodStack
              ? qsTr("Save") + ls.translatedText : qsTr("Next") + ls.translatedText

    property string electrodeType: electrode.electrodeType
    readonly property var endPointProps: ["endPointValues", "endPointValues_Second", "endPointValues_Third"]

    function unitIndex() {
        var i = WizardRows.resultUnits.indexOf(titration.resultUnits)
        return i < 0 ? 0 : i
    }
    function n(x, decimals) { return WizardRows.shown(x, decimals) }

    function rowTitles() {
        return WizardRows.titrationRows({ electrodeType: electrodeType, technique: titration.titrationTechnique,
                                          titrationType: titration.titrationType, blankRequired: titration.blankRequired,
                                          resultUnitsIndex: unitIndex(), sampleAmount: titration.sampleAmount,
                                          reagentAmount: titration.reagentAmount, sampleID: titration.sampleID })
    }

    // Other electrodes than pH show their end points in mV; "Display Units"
    // is a choice of a pH electrode with preset end points only.
    function setupTitrationMenu() {
        if (electrodeType !== "pH" && titration.displayUnits !== "mV")
            titration.displayUnits = "mV"
        titration.noOfEndPoints = WizardRows.endPointsFor(titration.titrationTechnique, titration.noOfEndPoints)
    }

    function endPointText() {
        var decimals = titration.displayUnits === "mV" ? 1 : 2
        var out = []
        for (var i = 0; i < Math.min(3, titration.noOfEndPoints); ++i)
            out.push(n(titration[endPointProps[i]], decimals))
        return out.join(", ") + " " + titration.displayUnits
    }

    function titrantConcentrationText() {
        if (titrant.concInputMode === "Manual Entry")
            return n(titrant.concInputMode_manualEntry, 5) + " " + titrant.concInputMode_Unit
        return n(titrant.nominalConc, 4) + " " + titrant.nominalConc_Unit
    }

    function sampleText() {
        if (titration.sampleAmount === "Fixed Weight")
            return qsTr(titration.sampleAmount) + " " + n(titration.fixedSampleWeightValue, 5) + " g"
        if (titration.sampleAmount === "Fixed Volume")
            return qsTr(titration.sampleAmount) + " " + n(titration.fixedSampleVolumeValue, 3) + " mL"
        return qsTr(titration.sampleAmount)
    }

    function choice(value, listName) {
        return { selector: qsTr(value), current: value, options: listElements.options(listName) }
    }

    function describe(title) {
        switch (title) {
        case "Titrant Name and Concentration":
            return { selector: titrant.titrantName === "User Defined" ? titrant.titrantName_userDefined : qsTr(titrant.titrantName),
                     value: titrantConcentrationText(), isInfo: true }
        case "Titration Technique": return choice(titration.titrationTechnique, "titrationTechniqueModel")
        case "Number of Endpoints":
            return { selector: String(titration.noOfEndPoints), options: WizardRows.endPointCounts(titration.titrationTechnique, false) }
        case "Display Units": return choice(titration.displayUnits, "displayUnitsModel")
        case "Endpoint Values": return { selector: endPointText() }
        case "Titration Type": return choice(titration.titrationType, "titrationTypeModel")
        case "Blank Required": return choice(titration.blankRequired, "blankRequiredModel")
        case "Fixed Blank Value": return { selector: n(titration.blankRequiredValue, 5) + " mmol" }
        case "Result Units":
            return { selector: qsTr(titration.resultUnits) + (unitIndex() === 23 ? " F=" + n(titration.resultUnitsValue, 4) : ""),
                     current: titration.resultUnits, options: listElements.options("resultUnitsModel") }
        case "Reaction Ratio": return { selector: n(titration.reactionRatio, 4) }
        case "Reagent Reaction Ratio": return { selector: n(titration.reagentReactionRatio, 5) }
        case "Titrant Reaction Ratio": return { selector: n(titration.titrantReactionRatio, 4) }
        case "Reagent Amount":
            var c = choice(titration.reagentAmount, "reagentAmountModel")
            if (titration.reagentAmount === "Manual Calc.")
                c.selector += " " + n(titration.reagentAmountValue, 3) + " mmol"
            return c
        case "Reagent Concentration": return { selector: n(titration.reagentConcentration, 4) + " M" }
        case "Reagent Volume": return { selector: n(titration.reagentVolume, 5) + " mL" }
        case "Reagent Molecular Wt": return { selector: n(titration.reagentMolecularWeight, 2) + " g/mol" }
        case "Reagent Purity": return { selector: n(titration.reagentPurity, 2) + " %" }
        case "Reagent Weight":
            var w = choice(titration.reagentWeightType, "reagentWeightModel")
            if (titration.reagentWeightType === "Fixed Weight")
                w.selector += " " + n(titration.reagentWeight, 5) + " g"
            return w
        case "Sample Mol. Wt.": return { selector: n(titration.sampleMolecularWeight, 2) + " g/mol" }
        case "Sample Amount":
            return { selector: sampleText(), current: titration.sampleAmount, options: listElements.options("amountModel") }
        case "Sample Density": return { selector: n(titration.sampleDensity, 3) + " g/mL" }
        case "Pre-dose Titrant Volume": return { selector: n(titration.preDoseTitrantVolume, 2) + " mL" }
        case "Max Total Titrant Volume": return { selector: n(titration.maxTotalTitrantVolume, 2) + " mL" }
        case "Titration Process Control": return choice(titration.titrationProcessControl, "processControlModel")
        case "Pre-stir Duration": return { selector: n(titration.preStirDuration, 0) + " sec" }
        case "Stir Speed": return choice(titration.stirSpeed, "stirSpeedModel")
        case "Sample ID": return choice(titration.sampleID, "sampleIdModel")
        case "Auto-Incremental Prefix": return { selector: titration.sampleIDValue }
        }
        return { selector: "" }
    }

    function refresh() {
        if (mainWindow.processIndex === 0 && mainWindow.currentDynamicContent)
            mainWindow.currentDynamicContent.loadModel()
        else
            page.loadModelData()
        mainWindow.titrationChanged()
    }

    function openEntry(key, after) {
        entryPage.openEntry(key, function (v) {
            if (after)
                after(v)
            page.refresh()
        })
    }

    function openEndPoints() {
        var count = Math.min(3, Math.max(1, titration.noOfEndPoints))
        var key = titration.displayUnits === "mV" ? "endPointmV" : "endPointpH"
        var keys = []
        for (var i = 0; i < count; ++i)
            keys.push(key)
        entryPage.open("Endpoint Values", keys, titration, endPointProps.slice(0, count), function () { page.refresh() })
    }

    // A new display unit puts the end points where that unit starts.
    function changeDisplayUnits(unit) {
        if (unit === titration.displayUnits)
            return
        var values = WizardRows.convertEndPoints(titration.displayUnits, unit,
                                                 [titration.endPointValues, titration.endPointValues_Second, titration.endPointValues_Third])
        for (var i = 0; i < 3; ++i)
            titration[endPointProps[i]] = values[i]
        titration.displayUnits = unit
    }

    function rowPicked(title, index, option) {
        switch (title) {
        case "Titration Technique":
            titration.titrationTechnique = option
            setupTitrationMenu()
            break
        case "Number of Endpoints": titration.noOfEndPoints = parseInt(option); break
        case "Display Units": changeDisplayUnits(option); break
        case "Titration Type": titration.titrationType = option; break
        case "Blank Required":
            titration.blankRequired = option
            if (option === "Fixed")
                openEntry("blankRequiredValue")
            break
        case "Result Units":
            titration.resultUnitsIndex = index
            titration.resultUnits = option
            if (index === 23)
                openEntry("resultUnitsValue", function () { titration.resultUnits = "F*Consumption mmol" })
            break
        case "Reagent Amount":
            titration.reagentAmount = option
            if (option === "Manual Calc.")
                openEntry("reagentAmountValue")
            break
        case "Reagent Weight":
            titration.reagentWeightType = option
            if (option === "Fixed Weight")
                openEntry("reagentWeight")
            break
        case "Sample Amount":
            titration.sampleAmount = option
            if (option === "Fixed Weight")
                openEntry("fixedSampleWeight")
            else if (option === "Fixed Volume")
                openEntry("fixedSampleVolume")
            break
        case "Titration Process Control":
            titration.titrationProcessControl = option
            if (option === "User Defined")
                userDefinedProcessControll.open(1)
            break
        case "Stir Speed": titration.stirSpeed = option; break
        case "Sample ID":
            titration.sampleID = option
            if (option === "Auto-Incremental")
                openPrefix()
            else if (option === "Manual")
                titration.sampleIDValue = ""
            break
        }
        mainWindow.titrationChanged()
    }

    function openPrefix() {
        entryPage.openName("sampleIdPrefix", titration.sampleIDValue, function (v) {
            titration.sampleIDValue = v[0]
            titration.sampleID = "Auto-Incremental"
            page.refresh()
        })
    }

    function rowOpened(title) {
        var keys = { "Fixed Blank Value": "blankRequiredValue", "Reaction Ratio": "reactionRatio",
                     "Reagent Reaction Ratio": "reagentReactionRatio", "Titrant Reaction Ratio": "titrantReactionRatio",
                     "Reagent Concentration": "reagentConcentration", "Reagent Volume": "reagentVolume",
                     "Reagent Molecular Wt": "reagentMolecularWeight", "Reagent Purity": "reagentPurity",
                     "Sample Mol. Wt.": "sampleMolecularWeight", "Sample Density": "sampleDensity",
                     "Pre-dose Titrant Volume": "titrationPreDose", "Max Total Titrant Volume": "titrationMaxVolume",
                     "Pre-stir Duration": "titrationPreStir" }
        if (title === "Endpoint Values")
            openEndPoints()
        else if (title === "Auto-Incremental Prefix")
            openPrefix()
        else if (keys[title])
            openEntry(keys[title])
    }

    function setSampleAmountValue() {
        if (titration.sampleAmount === "Fixed Volume")
            titration.sampleAmountValue = titration.fixedSampleVolumeValue
        else if (titration.sampleAmount === "Fixed Weight")
            titration.sampleAmountValue = titration.fixedSampleWeightValue
        else
            titration.sampleAmountValue = 1
        titration05.setCycleModelValue()
    }

    function nextAction() {
        setSampleAmountValue()
        wizardFlow.finish(false)
    }
}
