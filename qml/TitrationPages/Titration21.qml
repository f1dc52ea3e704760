import QtQuick 2.12
import "../Background"
import "../Buttons"
import "../CustomComponent"
import "../Constants/Colors.js" as Colors
import "MethodList.js" as MethodList

// The method list, the first page of the Methods section. A tap on a name
// opens the method's quick view, the edit mark its edit page (after its
// password, when it has one); a swipe to the left deletes it at the next
// step the user takes, unless undone. Import, export and print of methods
// go through the USB disk and the receipt printer; "New Method" builds one
// while fewer than ten are stored.
MainContentBackground {
    id: page
    objectName: "Methods"
    header3Text: qsTr("Methods") + ls.translatedText

    property alias methodListView: methodListView
    property alias methodButton1: methodButton1

    function populateModel() {
        dm.getMethodsFromDB()
        methodButton1.visible = dm.methodCount < MethodList.maxMethods
        if (methodListView.currentIndex >= methodListView.count)
            methodListView.currentIndex = -1
    }

    // The method on a row, made the current one.
    function makeCurrent(id) {
        setup.currentMethodId = id
        setup.setSetupValues()
        dm.reInitializeMethodModel(id)
    }

    function openMethod(id) {
        makeCurrent(id)
        methodPrecheck.changeHeaderButtonText()
        methodStack.push(methodPrecheck)
    }

    function newMethod() {
        methodListView.deleteSelected()
        if (dm.methodCount >= MethodList.maxMethods) {
            busy_popup.present("methodFull")
            return
        }
        methodStack.push(titration04)
        titration04.startNewMethod()
    }

    function showQuickView(index) {
        var row = methodListView.deleteSelectedBefore(index)
        if (row < 0)
            return
        methodListView.currentIndex = row
        makeCurrent(dm.methods.get(row).id)
        titration28.loadModelQuickView()
        mainWindow.showPopup(titration28)
    }

    function requestEdit(index) {
        var row = methodListView.deleteSelectedBefore(index)
        if (row < 0)
            return
        methodListView.currentIndex = row
        var entry = dm.methods.get(row)
        makeCurrent(entry.id)
        titration.reagentWeightType = ""
        if (entry.methodPassword.length > 0)
            passwordVerificationPopUp.ask(entry.id, entry.methodPassword)
        else
            editMethod()
    }

    // The edit page of the selected method.
    function editMethod() {
        titration22.open()
    }

    function importMethods() {
        methodListView.deleteSelected()
        if (!rm.usbIsReady) {
            exportImportErrorPopUp.changeText(5)
        } else if (!rm.methodImport()) {
            exportImportErrorPopUp.changeText(1)
        } else if (method.importedMethodCount === 0) {
            exportImportErrorPopUp.changeText(4)
        } else {
            installMethodsPopUp.open()
            return
        }
        mainWindow.showPopup(exportImportErrorPopUp)
    }

    function exportMethods() {
        methodListView.deleteSelected()
        if (!rm.usbIsReady) {
            exportImportErrorPopUp.changeText(5)
            mainWindow.showPopup(exportImportErrorPopUp)
            return
        }
        if (dm.methodCount === 0) {
            exportImportErrorPopUp.changeText(0)
            mainWindow.showPopup(exportImportErrorPopUp)
            return
        }
        // Every method as a method file; a failure has said why already.
        if (rm.methodExport() === 0)
            return
        reportController.isCSV = true
        selectExportMethodsPopup.open("export")
    }

    function printMethods() {
        methodListView.deleteSelected()
        if (!rm.printerIsReady) {
            exportImportErrorPopUp.changeText(11)
            mainWindow.showPopup(exportImportErrorPopUp)
            return
        }
        if (dm.methodCount === 0) {
            exportImportErrorPopUp.changeText(0)
            mainWindow.showPopup(exportImportErrorPopUp)
            return
        }
        reportController.isCSV = false
        reportController.fileType = "All"
        selectExportMethodsPopup.open("print")
    }

    ListView {
        id: methodListView
        objectName: "methodList"
        anchors.top: parent.top
        anchors.left: parent.left
        anchors.bottom: footer.top
        anchors.margins: 16
        width: parent.width - 32 - (scroller.needed ? 56 : 0)
        clip: true
        spacing: 8
        boundsBehavior: Flickable.StopAtBounds
        currentIndex: -1
        model: dm.methods
        // Rows swiped away and faded, not yet deleted.
        property var deletedMethods: []

        function markDeleted(index) {
            var d = deletedMethods.slice()
            if (d.indexOf(index) < 0)
                d.push(index)
            deletedMethods = d
        }

        // Carries out the deletions pending in the list; the selection
        // follows its method, or goes when its method went.
        function deleteSelected() {
            if (deletedMethods.length === 0)
                return
            var gone = deletedMethods
            var current = setup.currentMethodId
            var currentGone = false
            for (var i = 0; i < gone.length; ++i) {
                var entry = dm.methods.get(gone[i])
                if (!entry)
                    continue
                if (entry.id === current)
                    currentGone = true
                method.deleteRow(entry.id)
            }
            var selection = MethodList.selectionAfterDeletions(currentIndex, gone, count - gone.length)
            deletedMethods = []
            dm.getMethodsFromDB()
            currentIndex = selection
            if (currentGone) {
                dm.getLastUpdatedMethod()
                setup.setSetupValues()
                dm.reInitializeMethodModel(setup.currentMethodId)
            }
            methodButton1.visible = dm.methodCount < MethodList.maxMethods
        }

        // Deletes what is pending and answers where the row tapped as
        // `index` now stands (-1 for a row that is gone).
        function deleteSelectedBefore(index) {
            var row = MethodList.indexAfterDeletions(index, deletedMethods)
            deleteSelected()
            return row
        }

        delegate: MethodDelegate {
            width: methodListView.width
            rowIndex: index
            methodName: modelData ? modelData.methodName : ""
            locked: modelData ? modelData.methodPassword.length > 0 : false
            visible: methodListView.deletedMethods.indexOf(index) < 0
            height: visible ? 56 : 0
            onNameTapped: page.showQuickView(index)
            onEditTapped: page.requestEdit(index)
            onDeleted: methodListView.markDeleted(index)
        }
    }
    ScrollButtons {
        id: scroller
        target: methodListView
        namePrefix: "methods"
        visible: needed && dm.methodCount > 4
        anchors.right: parent.right
        anchors.rightMargin: 8
        anchors.top: parent.top
        anchors.topMargin: 12
    }
    Text {
        anchors.centerIn: parent
        visible: methodListView.count === 0
        text: qsTr("No methods saved") + ls.translatedText
        color: Colors.slateColor
        font.pixelSize: 17
    }
    Row {
        id: footer
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 12
        anchors.left: parent.left
        anchors.leftMargin: 14
        height: 48
        spacing: 8
        PopupAlternateButton {
            objectName: "importMethodsButton"
            width: 96
            text: qsTr("Import") + ls.translatedText
            onClicked: page.importMethods()
        }
        PopupAlternateButton {
            objectName: "exportMethodsButton"
            width: 96
            text: qsTr("Export") + ls.translatedText
            onClicked: page.exportMethods()
        }
        PopupAlternateButton {
            objectName: "printMethodsButton"
            width: 88
            text: qsTr("Print") + ls.translatedText
            onClicked: page.printMethods()
        }
        PopupButton {
            id: methodButton1
            objectName: "newMethodButton"
            width: 140
            text: qsTr("New Method") + ls.translatedText
            onClicked: page.newMethod()
        }
    }
    Component.onCompleted: methodButton1.visible = dm.methodCount < MethodList.maxMethods
}
