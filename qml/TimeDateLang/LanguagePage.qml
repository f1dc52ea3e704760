import QtQuick 2.12
import "DateTimeMath.js" as DateTimeMath

// The language picker: one wheel of the ten languages, each in its own
// words, with wrapping arrows. selectedLanguage is the name the settings keep.
PickerTumbler {
    id: languagePage

    readonly property var languageModel: DateTimeMath.languages
    readonly property string selectedLanguage: languageModel[currentIndex] || languageModel[0]

    // The wheel goes to a kept name; English for any other.
    function setCurrentLanguage(language) {
        currentIndex = DateTimeMath.languageIndex(language)
    }

    objectName: "languagePicker"
    wheelWidth: 260
    fontSize: 24
    model: languageModel
}
