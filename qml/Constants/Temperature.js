.pragma library
// Temperature conversions of the screens (the misspelt names are the ones
// every page calls).

function celciousTfahrenhite(c) {
    return 1.8 * c + 32
}

function fahrenhiteTcelcious(f) {
    return (f - 32) * 0.5555555555555556
}

// A Celsius value in the unit of the setting: 0 Celsius, any other Fahrenheit.
function inUnit(celsius, temperatureFormatIndex) {
    return temperatureFormatIndex === 0 ? celsius : celciousTfahrenhite(celsius)
}

function unitText(temperatureFormatIndex) {
    return temperatureFormatIndex === 0 ? "°C" : "°F"
}
