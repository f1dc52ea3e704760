.pragma library

// The offers between a finished setup and its run.

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

// The titration may need more titrant than the burette holds.
function exceedsBurette(maxTotalTitrantVolume, buretteSize) {
    return Number(maxTotalTitrantVolume) > Number(buretteSize)
}
