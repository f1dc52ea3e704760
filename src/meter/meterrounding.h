#pragma once

// Decimal rounding of the meter, in single precision, shared by the
// measurement kinds and the calibration records.
namespace MeterRounding {

// Powers of ten by number of decimals; the last entry repeats 1000000.
constexpr float kTable[8] = {1.0f, 10.0f, 100.0f, 1000.0f, 10000.0f, 100000.0f, 1000000.0f, 1000000.0f};

// x rounded half away from zero to `decimals` places (0 to 7), scaled by
// the entry `decimals` of the table.
float round(float x, int decimals, const float *table = kTable);

}
