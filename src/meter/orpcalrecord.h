#pragma once

// The redox electrode's calibration: a shift of the potential scale.
struct OrpCalRecord
{
    float offset = 0.0f;   // mV added to every reading
};
