.pragma library
// Image paths by role, relative to the QML folders one level below the root.

var iconsMisc = "../assets/Icons_Misc/"
var iconsButtons = "../assets/Icons_Buttons/"
var images = "../assets/Images/"

var startupScreen = "assets/Icons_Misc/StartUpScreen.svg" // from the root (startup.qml)
var logo = iconsMisc + "Logo.svg"
