import QtQuick 2.12
import "WizardRows.js" as WizardRows

// The first page of the method wizard: the electrode (type, name,
// resolution, buffer group or ISE type). A new type starts the whole method
// anew from that type's defaults.
WizardListPage {
    id: page
    objectName: "Setup Electrode"
    header3Text: qsTr("Setup Electrode") + ls.translatedText
    nextText: qsTr("Next: Setup Titrant") + ls.translatedText

    function rowTitles() {
        return WizardRows.electrodeRows(electrode.electrodeType)
    }

    function describe(title) {
        switch (title) {
        case "Electrode Type":
            return { selector: qsTr(electrode.electrodeType), current: electrode.electrodeType,
                     options: listElements.options("electrodeTypeModel") }
        case "ISE Type":
            return { selector: qsTr(electrode.iseType), current: electrode.iseType, options: listElements.options("iseTypeModel") }
        case "Electrode Name":
            return { selector: electrode.electrodeName }
        case "Resolution":
            var r = electrode.resolution.toFixed(titrant.checkDecimal(electrode.resolution))
            return { selector: r, options: listElements.options("resolutionModel") }
        case "Buffer Group":
            return { selector: qsTr(electrode.bufferGroup), current: electrode.bufferGroup,
                     options: listElements.options("bufferGroupModel") }
        }
        return { selector: "" }
    }

    function rowPicked(title, index, option) {
        if (title === "Electrode Type") {
            if (option === electrode.electrodeType)
                return
            electrode.electrodeType = option
            electrode.resetElectrodeValues()
            titrant.resetTitrantValues(electrode.electrodeType)
            titration.resetTitrationValues()
            titration06.reInitializeUI()
            mainWindow.setEndPointUnits()
        } else if (title === "ISE Type") {
            electrode.iseType = option
        } else if (title === "Resolution") {
            electrode.resolution = parseFloat(option)
        } else if (title === "Buffer Group") {
            electrode.bufferGroup = option
        }
        mainWindow.electrodeChanged()
    }

    function rowOpened(title) {
        if (title === "Electrode Name") {
            entryPage.openName("electrodeName", electrode.electrodeName, function (v) {
                electrode.electrodeName = v[0]
                page.loadModelData()
                mainWindow.electrodeChanged()
            })
        }
    }

    // A new method: the working method 99999 from the defaults.
    function startNewMethod() {
        setup.currentMethodId = 99999
        method.id = setup.currentMethodId
        method.newTitration()
        method.isNewTitrationProcessStarted = true
        dm.reInitializeMethodModel(99999)
        method.blankConcentration = 0
        titration.reagentWeightType = ""
        wizardFlow.reInitializeWizard()
        loadModelData()
    }

    // "ISE-MKA" takes an ion titrant in place of the default "NaOH".
    function setMkaTitrantNameDefault() {
        if (electrode.electrodeType === "ISE-MKA" && titrant.titrantName === "NaOH")
            titrant.titrantName = "Ammonia (NH3)"
    }

    function nextAction() {
        electrode.setElectrodeSetupValues()
        setMkaTitrantNameDefault()
        mainWindow.setEndPointUnits()
        if (electrode.electrodeType === "ISE-MKA") {
            titrantSetupMka.loadModelData()
            mainWindow.currentStack.push(titrantSetupMka)
        } else {
            titration05.loadModelData()
            mainWindow.currentStack.push(titration05)
        }
    }
}
