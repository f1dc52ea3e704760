import QtQuick 2.12
import "WizardRows.js" as WizardRows

// The titration page of a known-addition method: result unit and the
// sample values it needs, the beaker's total volume, blank, process control
// and precision, stirring and sample ids.
WizardListPage {
    id: page
    objectName: "MKA-Setup Titration"
    header3Text: qsTr("MKA-Setup Titration") + ls.translatedText
    nextText: mainWindow.currentStack === methodStack
              ? qsTr("Save") + ls.translatedText : qsTr("Run Titration") + ls.translatedText

    readonly property var processKeys: ({ "Constant Increment": "mkaConstant", "Measurement Stability": "mkaMeasurement",
                                          "Tmin": "mkaTmin", "Tmax": "mkaTmax", "dVmin": "mkaDVmin", "dVmax": "mkaDVmax" })

    function unitIndex() { return WizardRows.mkaResultUnits.indexOf(titration.resultUnits) }
    function n(x, decimals) { return WizardRows.shown(x, decimals) }

    function rowTitles() {
        return WizardRows.mkaTitrationRows({ resultUnits: titration.resultUnits, sampleAmount: titration.sampleAmount,
                                             servingUnit: titration.servingUnit, processControl: titration.mkaProcessControl,
                                             sampleID: titration.sampleID })
    }

    function sampleText() {
        switch (titration.sampleAmount) {
        case "Fixed Weight": return qsTr(titration.sampleAmount) + " " + n(titration.fixedSampleWeightValue, 3) + " g"
        case "Fixed Volume": return qsTr(titration.sampleAmount) + " " + n(titration.fixedSampleVolumeValue, 3) + " mL"
        case "Serving No.": return qsTr(titration.sampleAmount) + " " + n(titration.sampleAmountValue, 3)
        }
        return qsTr(titration.sampleAmount)
    }

    function choice(value, options) { return { selector: qsTr(value), current: value, options: options } }

    function describe(title) {
        switch (title) {
        case "Titrant Name and Concentration":
            var name = titrant.titrantName === "User Defined" ? titrant.titrantName_userDefined : qsTr(titrant.titrantName)
            return { selector: name, value: n(titrant.titrantConcentrationValue, 5) + " " + titrant.titrantConcentration, isInfo: true }
        case "Result Units": return choice(titration.resultUnits, listElements.options("resultUnitsModelTwo"))
        case "Serving Size": return { selector: n(titration.servingSize, 3) + " " + titration.servingUnit,
                                      current: titration.servingUnit, options: ["g", "mL"] }
        case "Sample Mol. Wt.": return { selector: n(titration.sampleMolecularWeight, 2) + " g/mol" }
        case "Sample Amount":
            return { selector: sampleText(), current: titration.sampleAmount,
                     options: WizardRows.mkaSampleAmounts(titration.resultUnits, titration.servingUnit) }
        case "Sample Density": return { selector: n(titration.sampleDensity, 3) + " g/mL" }
        case "Total Solution Volume": return { selector: n(titration.totalSolutionVolume, 3) + " mL" }
        case "Max Total Titrant Volume": return { selector: n(titration.maxTotalTitrantVolume, 2) + " mL" }
        case "Blank Conc. Required": return choice(titration.blankRequired, listElements.options("mkaBlankRequiredModel"))
        case "MKA Process Control": return choice(titration.mkaProcessControl, listElements.options("processControlModel"))
        case "Constant Increment": return { selector: n(titration.mkaProcessControlConstant, 1) + " mV" }
        case "Measurement Stability": return { selector: n(titration.mkaProcessControlMeasurement, 1) + " mV/min" }
        case "Tmin": return { selector: titration.tMin + " sec" }
        case "Tmax": return { selector: titration.tMax + " sec" }
        case "dVmin": return { selector: n(titration.deltaVmin, 3) + " mL" }
        case "dVmax": return { selector: n(titration.deltaVmax, 3) + " mL" }
        case "Precision Level": return { selector: n(titration.mkaProcessControlPrecision, 1) + " %" }
        case "Pre-stir Duration": return { selector: n(titration.preStirDuration, 0) + " sec" }
        case "Stir Speed": return choice(titration.stirSpeed, listElements.options("stirSpeedModel"))
        case "Sample ID": return choice(titration.sampleID, listElements.options("sampleIdModel"))
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

    // The sample kind kept legal for the unit and the serving.
    function checkSampleAmount() {
        titration.sampleAmount = WizardRows.checkSampleAmount(titration.resultUnits, titration.servingUnit, titration.sampleAmount)
    }

    function openSampleAmount(kind) {
        if (kind === "Fixed Weight")
            openEntry("fixedSampleWeight")
        else if (kind === "Fixed Volume")
            openEntry("fixedSampleVolume")
        else if (kind === "Serving No.")
            openEntry("servingNo")
    }

    function rowPicked(title, index, option) {
        switch (title) {
        case "Result Units":
            titration.resultUnitsIndex = index
            titration.resultUnits = option
            checkSampleAmount()
            break
        case "Serving Size":
            titration.servingUnit = option
            checkSampleAmount()
            openEntry("servingSize" + option)
            break
        case "Sample Amount":
            titration.sampleAmount = option
            openSampleAmount(option)
            break
        case "Blank Conc. Required": titration.blankRequired = option; break
        case "MKA Process Control": titration.mkaProcessControl = option; break
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
        var keys = { "Sample Mol. Wt.": "sampleMolecularWeight", "Sample Density": "sampleDensity",
                     "Total Solution Volume": "totalSolutionVolume", "Max Total Titrant Volume": "titrationMaxVolume",
                     "Precision Level": "precisionLevel", "Pre-stir Duration": "titrationPreStir" }
        if (processKeys[title])
            openEntry(processKeys[title])
        else if (title === "Auto-Incremental Prefix")
            openPrefix()
        else if (keys[title])
            openEntry(keys[title])
    }

    function setSampleAmountValue() {
        if (titration.sampleAmount === "Fixed Volume")
            titration.sampleAmountValue = Number(titration.fixedSampleVolumeValue.toFixed(3))
        else if (titration.sampleAmount === "Fixed Weight")
            titration.sampleAmountValue = Number(titration.fixedSampleWeightValue.toFixed(3))
        else if (titration.sampleAmount !== "Serving No.")
            titration.sampleAmountValue = 1
    }

    function nextAction() {
        titration05.setCycleModelValue()
        setSampleAmountValue()
        wizardFlow.finish(true)
    }
}
