.pragma library
// Fixed texts shared by several screens (shown through qsTr where they are used).

var stepLabel = QT_TRANSLATE_NOOP("TranslationListElements", "There are 3 steps to setting up a titration:")
var setupElectrode = QT_TRANSLATE_NOOP("TranslationListElements", "Setup Electrode")
var setupTitrant = QT_TRANSLATE_NOOP("TranslationListElements", "Setup Titrant")
var setupTitration = QT_TRANSLATE_NOOP("TranslationListElements", "Setup Titration")
var startSetup = QT_TRANSLATE_NOOP("TranslationListElements", "Start Setup")
