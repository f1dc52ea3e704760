#pragma once

// A finished calibration as the meter stores it and loads it again: one row
// per point. pH slopes are in percent of the ideal slope, ISE slopes in mV per
// decade; a redox calibration is one point whose offset is the shift of the
// potential scale. For ISE the buffer column carries the point's digits.
struct CalibrationPointRow
{
    float mv = 0.0f;
    float value = 0.0f;   // pH, concentration, or the redox target in mV
    float buffer = 0.0f;
    float slope = 0.0f;
    float offset = 0.0f;
    float temperature = 25.0f;
};

struct CalibrationResult
{
    static constexpr int kMaxPoints = 5;

    int kind = -1;        // 0 pH, 1 ISE, 2 Redox
    int status = 0;       // of the finish
    int count = 0;
    CalibrationPointRow points[kMaxPoints];
    // pH: percent; ISE: mV per decade; Redox: the offset in mV.
    float averageSlope = 0.0f;
};
