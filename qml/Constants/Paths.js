.pragma library
// Image paths by role, relative to the QML folders one level below the root.

var iconsMisc = "../assets/Icons_Misc/"
var iconsButtons = "../assets/Icons_Buttons/"
var images = "../assets/Images/"

var startupScreen = "assets/Icons_Misc/StartUpScreen.svg" // from the root (startup.qml)
var logo = iconsMisc + "Logo.svg"
// The assembly steps of the first start, the project's own line drawings.
var assemblyShaft = images + "AssemblyShaft.svg"
var assemblyHolderHead = images + "AssemblyHolderHead.svg"
var assemblyBurette = images + "AssemblyBurette.svg"
var assemblyBottleHolder = images + "AssemblyBottleHolder.svg"
var assemblyTubing = images + "AssemblyTubing.svg"
var assemblyConnections = images + "AssemblyConnections.svg"
