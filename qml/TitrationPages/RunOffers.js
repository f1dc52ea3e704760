.pragma library

// The offers between a finished setup and its run, and the text of the
// run's time stamps.

// The next offer for a method `m` ({ electrodeType, displayUnits,
// lastCalibration, lastStandardization, concInputMode }) from `step` on:
// step 1 asks about the calibration first, step 2 only about the titrant.
// "calibrate", "standardize", or "" when the pre-check follows.
function nextOffer(m, step) {
    if (step <= 1 && m.electrodeType === "pH" && m.displayUnits !== "mV" && !m.lastCalibration)
        return "calibrate"
    if (!m.lastStandardization && m.concInputMode === "Standardization")
        return "standardize"
    return ""
}

// A stored run's stamp, "hh:mm AM | MM/dd/yyyy", as a Date; null for any
// other text.
function stampDate(stamp) {
    var m = /^(\d{1,2}):(\d{2}) ?([AP]M) \| (\d{2})\/(\d{2})\/(\d{4})$/i.exec(String(stamp).trim())
    if (!m)
        return null
    var hours = parseInt(m[1], 10) % 12 + (m[3].toUpperCase() === "PM" ? 12 : 0)
    var d = new Date(parseInt(m[6], 10), parseInt(m[4], 10) - 1, parseInt(m[5], 10), hours, parseInt(m[2], 10))
    if (d.getMonth() !== parseInt(m[4], 10) - 1 || parseInt(m[1], 10) > 12 || parseInt(m[2], 10) > 59)
        return null
    return d
}

// The titration may need more titrant than the burette holds.
function exceedsBurette(maxTotalTitrantVolume, buretteSize) {
    return Number(maxTotalTitrantVolume) > Number(buretteSize)
}
