#pragma once

#include "controller/algorithms/maths/volumeseries.h"

// The equivalence volume of an acid-base curve from a least-squares fit of
// the titration of one weak monoprotic acid or base around its break:
//   V = Veq b g / (1 + b g) + (V0 + V) a g,
// g = 10^(sign (E - Eref) / S) the titrant's ion (up to a factor) read with
// the electrode's slope S, b the break's sharpness (the smaller, the weaker
// the analyte and the further the curve's inflection lies before Veq), a
// the free titrant's ion and V0 the unknown starting volume. Linear in Veq,
// aV0 and a for a given b; b is searched on a grid of its logarithm and
// refined. Residuals are weighed in mV (the volume's residual times the
// model's slope), since it is the potential that carries the noise. The
// analyte's own ion (the hydroxide of a weak base) is left out: it matters
// only at the start of the curve, outside the points fitted, and a strong
// acid's curve, which it would describe, is not lopsided.
class LopsidedBreakFit
{
public:
    struct Result {
        double volume = 0.0;  // Veq, µL
        double sharpness = 0.0; // b
        double rmsMv = 0.0;   // of the potential's residuals
        int points = 0;       // in the fit
        int after = 0;        // of them past Veq
    };

    // Fits the points within `halfWidth` µL of `inflection` (µL). sign: +1
    // where the potential rises with the titrant, -1 where it falls;
    // slopeMv: the electrode's mV per decade. False when there are too few
    // points or the fit does not settle.
    static bool fit(const VolumeSeries &store, double inflection, double halfWidth, double sign, double slopeMv,
                    Result &result);
};
