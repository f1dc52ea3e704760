import QtQuick 2.12
import "../Background"

// The method list, the first page of the Methods section.
MainContentBackground {
    objectName: "Methods"
    header3Text: qsTr("Methods") + ls.translatedText

    property alias methodListView: methodListView
    function populateModel() {}

    Item {
        id: methodListView
        // Carries out the deletions pending in the list.
        function deleteSelected() {}
    }
}
