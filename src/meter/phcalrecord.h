#pragma once

// The pH electrode's calibration: a committed set, which the conversions
// read, and a working set, which a calibration in progress writes.
struct PhCalSet
{
    float mv[5] = {};            // electrode potential of the point, mV
    float value[5] = {};         // pH of the buffer at the point's temperature
    float buffer[5] = {};        // nominal value of the recognised buffer, 0 when none
    float temperature[5] = {};   // degrees Celsius
    float slope[5] = {};         // segment i (points i, i+1), mV per pH at 25 degrees
    float offset[5] = {};        // segment i's potential at pH 7, mV at 25 degrees
};

struct PhCalRecord
{
    static constexpr int kMaxPoints = 5;

    PhCalRecord();

    // Fills both sets from stored points, slopes and average slope in mV per
    // pH at 25 degrees. The count is bounded to 0..5; with no points the
    // record describes the ideal electrode.
    void load(const float *mv, const float *slope, const float *offset, const float *temperature,
              const float *value, const float *buffer, int count, float averageSlope);
    void commit();

    PhCalSet committed;
    PhCalSet working;
    int committedCount = 0;
    int workingCount = 0;
    float mvAtPh7 = 0.0f;
    float averageSlopePercent = 100.0f;

    static constexpr float kIdealSlope = -59.16f;   // mV per pH at 25 degrees
};
