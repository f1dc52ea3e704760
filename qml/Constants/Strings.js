.pragma library
// Fixed texts shared by several screens (shown through qsTr where they are used).

var stepLabel = "There are 3 steps to setting up a titration:"
var setupElectrode = "Setup Electrode"
var setupTitrant = "Setup Titrant"
var setupTitration = "Setup Titration"
var startSetup = "Start Setup"
