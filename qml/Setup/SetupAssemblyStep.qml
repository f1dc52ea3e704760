import QtQuick 2.12
import "../Background"

// Steps 7 to 12: one picture of putting the instrument together.
SetupBackground {
    id: page

    property alias picture: image.source
    property var nextPage: null

    Image {
        id: image
        anchors.fill: parent
        anchors.margins: 8
        fillMode: Image.PreserveAspectFit
        sourceSize.width: 440
        sourceSize.height: 240
    }

    onBackClicked: setupStack.pop()
    onNextClicked: {
        if (nextPage === setUpBuretteSize)
            setUpBuretteSize.formatDate()
        setupStack.push(nextPage)
    }
}
