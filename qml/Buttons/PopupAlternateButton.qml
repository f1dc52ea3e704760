import QtQuick 2.12
import "../Constants/Colors.js" as Colors

// The second button of popups: outlined, for the way back.
PopupButton {
    fillColor: Colors.whiteColor
    textColor: Colors.summerSkyColor
    border.color: Colors.summerSkyColor
    border.width: 2
}
