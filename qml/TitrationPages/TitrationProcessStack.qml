import QtQuick 2.12
import "../CustomComponent"

// A titration of the working method, pushed onto the section it is opened
// from: the titration's setup page (with onlySetup the one that only saves;
// a known-addition electrode has its own), then the run's pre-check inside
// the stack (`titrationPrecheckDynamic`). The run itself opens over it in
// the full-screen layer, so skipSetup changes nothing here.
// Its pages are declared in the window, inside it.
CustomStackView {
    id: stack
    objectName: "processStack"
    x: 0
    visible: false

    property bool onlySetup: false
    property bool skipSetup: false
    property bool mkaType: false
    property bool fromDynamicLoader: false

    function chosenPage() {
        if (onlySetup)
            return mkaType ? titrationSetupMkaOnly : titrationSetupOnly
        return mkaType ? titrationSetupMkaDynamic : titrationSetupDynamic
    }
    function firstPage() { return chosenPage() }

    function initStack() {
        if (depth > 1)
            pop(null)
        var first = firstPage()
        if (depth === 0)
            push(first)
        else if (currentItem !== first)
            replace(first)
    }

    function loadModel() {
        if (fromDynamicLoader !== true)
            return
        chosenPage().reInitializeUI()
        chosenPage().loadModelData()
        fromDynamicLoader = false
    }

    function setMultipleOptions(selectedIndex, title) { chosenPage().setMultipleOptions(selectedIndex, title) }
    function multipleOptionsCustomEntries(selectedIndex, option) { chosenPage().multipleOptionsCustomEntries(selectedIndex, option) }

    // From the setup page on to the run's pre-check.
    function pushPreCheck() {
        titrationPrecheckDynamic.changeHeaderButtonText()
        push(titrationPrecheckDynamic)
    }

    function popToSetup() { mainWindow.currentStack.pop(stack) }
}
