import QtQuick 2.12
import "../Popup"

// "Delete Method": the selected method and its three parts go for good;
// the list's selection goes with it and the last changed method becomes
// the current one.
MessagePopup {
    id: popup
    title: qsTr("Delete Method") + ls.translatedText
    message: qsTr("Are you sure you want to delete this method?") + "\n" + qsTr("You will not be able to undo this action.") + ls.translatedText
    firstButtonText: qsTr("Delete") + ls.translatedText
    secondButtonText: qsTr("Cancel") + ls.translatedText

    onSecondClicked: mainWindow.hidePopup()
    onFirstClicked: {
        method.deleteRow(method.id)
        titration21.methodListView.currentIndex = -1
        dm.getLastUpdatedMethod()
        setup.setSetupValues()
        dm.reInitializeMethodModel(setup.currentMethodId)
        titration21.populateModel()
        mainWindow.hidePopup()
        methodStack.pop(titration21)
        dynamicLoader.loadSuccessPopUp(qsTr("Method Deleted") + ls.translatedText,
                                       qsTr("Your method has been deleted") + ls.translatedText, "")
    }
}
