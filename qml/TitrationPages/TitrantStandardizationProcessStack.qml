import QtQuick 2.12
import "../CustomComponent"

// The standardisation of the working method's titrant, pushed onto the
// section it is opened from: the titrant's setup page (with onlySetup the
// one that only saves; a known-addition electrode has its own), then the
// standardisation's pre-check (`titration14`), or that pre-check at once
// with skipSetup. Its pages are declared in the window, inside it.
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
            return mkaType ? titrantSetupMkaOnly : titrantSetupOnly
        return mkaType ? titrantSetupMkaDynamic : titrantSetupDynamic
    }
    function firstPage() { return skipSetup ? titration14 : chosenPage() }

    // Back to one page, the first by the flags.
    function initStack() {
        if (depth > 1)
            pop(null)
        var first = firstPage()
        if (depth === 0)
            push(first)
        else if (currentItem !== first)
            replace(first)
    }

    // The setup page takes the working method's values when the loader asks.
    function loadModel() {
        if (fromDynamicLoader !== true)
            return
        chosenPage().reInitializeUI()
        chosenPage().loadModelData()
        fromDynamicLoader = false
    }

    function setMultipleOptions(selectedIndex, title) { chosenPage().setMultipleOptions(selectedIndex, title) }
    function multipleOptionsCustomEntries(selectedIndex, option) { chosenPage().multipleOptionsCustomEntries(selectedIndex, option) }

    // From the setup page on to the standardisation's pre-check.
    function pushPreCheck() { push(titration14) }

    function popToSetup() { mainWindow.currentStack.pop(stack) }
}
