import QtQuick 2.12
import "WizardRows.js" as WizardRows

// "User Defined Process Control": the seven values of the dosing law of a
// standardisation (the titrant's) or a titration (the titration's).
WizardListPage {
    id: page
    objectName: "User Defined Process Control"
    header3Text: qsTr("User Defined Process Control") + ls.translatedText
    nextText: ""

    property bool isFromTitration: true
    readonly property var rowsInOrder: [
        ["Target ΔE", "deltaE", 1, " mV"], ["Minimum Dose ΔVmin", "deltaVmin", 3, " mL"],
        ["Maximum Dose ΔVmax", "deltaVmax", 3, " mL"], ["Stability Criteria dE/dt", "stablityCriteria", 3, " mV/min"],
        ["Minimum Response Time tmin", "tMin", 0, " sec"], ["Maximum Response Time tmax", "tMax", 0, " sec"],
        ["Threshold", "threshold", 0, " mV/mL"]]

    function source() { return isFromTitration ? titration : titrant }

    // pageFrom: 0 the titrant's values, 1 the titration's.
    function open(pageFrom) {
        refreshList(pageFrom)
        mainWindow.currentStack.push(page)
    }

    function refreshList(pageFrom) {
        isFromTitration = pageFrom === 1
        loadModelData()
    }

    function rowTitles() { return rowsInOrder.map(function (r) { return r[0] }) }

    function describe(title) {
        for (var i = 0; i < rowsInOrder.length; ++i) {
            var r = rowsInOrder[i]
            if (r[0] === title)
                return { selector: WizardRows.shown(source()[r[1]], r[2]) + r[3] }
        }
        return { selector: "" }
    }

    function rowOpened(title) {
        for (var i = 0; i < rowsInOrder.length; ++i) {
            if (rowsInOrder[i][0] === title)
                setPage(i)
        }
    }

    function setPage(index) {
        entryPage.openEntry(rowsInOrder[index][1], function () {
            page.loadModelData()
            if (page.isFromTitration)
                mainWindow.titrationChanged()
            else
                mainWindow.titrantChanged()
        }, source())
    }
}
