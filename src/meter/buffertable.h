#pragma once

#include <QString>

// One calibration buffer: the window of electrode potentials in which it is
// recognised, the value shown for it, and its pH versus temperature as a
// cubic c0 + c1 t + c2 t^2 + c3 t^3.
struct BufferRow
{
    float lowerMv;
    float upperMv;
    float nominal;
    float c[4];
};

// The buffers the meter recognises during a pH calibration, in two groups:
// "USA" (12.46, 10.01, 7.00, 4.01, 1.68) and "DIN" (9.18, 6.86, 4.01, 1.68).
// Each window is 120 mV wide around the nominal pH on the ideal slope and
// makes no allowance for temperature.
class BufferTable
{
public:
    enum Group { Usa = 0, Din = 1 };
    static constexpr int kRows = 9;
    static constexpr int kUsaRows = 5;
    static constexpr int kDinRows = 4;

    // All rows: the USA group in rows 0 to 4, the DIN group in rows 5 to 8.
    static const BufferRow *rows();
    static const BufferRow *usaBufferTable() { return rows(); }
    static const BufferRow *dinBufferTable() { return rows() + kUsaRows; }

    // 0 for exactly "USA"; every other string, "usa" included, selects DIN.
    static int groupIndex(const QString &bufferGroup);

    // The row of the group whose window holds mv (both bounds excluded),
    // -1 when none does. Group 0 is USA, any other value DIN.
    static int match(int group, float mv);

    // True for the rows whose cubic is written in T - 25 rather than T: those
    // with c0 at 9.184, 6.8649 or 12.46.
    static bool usesOffsetVariable(const BufferRow &row);
    // The buffer's pH at a temperature in degrees Celsius, single precision.
    static float valueAt(const BufferRow &row, float celsius);
};
