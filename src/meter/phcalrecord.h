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
    static constexpr float kIdealSlope = -59.16f;        // mV per pH at 25 degrees
    static constexpr float kMinAverage = 80.0f;          // percent of the ideal slope
    static constexpr float kMaxAverage = 120.0f;
    static constexpr float kMinSpacingMv = 5.0f;         // closer points are refused
    static constexpr float kMinSpacingPh = 0.2f;
    static constexpr float kFlatSegment = 1e20f;         // slope of two points at one value

    // Results of the calibration steps, as the context reports them.
    enum Status { Ok = 0, InProgress = 1, SlopeOutOfRange = 2, PointTooClose = 8 };

    PhCalRecord();

    // Fills both sets from stored points, slopes and average slope in mV per
    // pH at 25 degrees. The count is bounded to 0..5; with no points the
    // record describes the ideal electrode.
    void load(const float *mv, const float *slope, const float *offset, const float *temperature,
              const float *value, const float *buffer, int count, float averageSlope);
    void commit();

    // Empties the working set and both counts; the conversions then run on
    // the ideal electrode. Slope 0 of the committed set stays as working slope 0.
    void startCalibration();
    // Adds a point of the calibration in progress: a point repeating a stored
    // value replaces it; one within 5 mV or 0.2 pH of another is refused
    // (PointTooClose); one beyond five points is dropped. The set stays
    // sorted by ascending value. Returns InProgress or PointTooClose.
    int addPoint(float value, float mv, float celsius);
    // Computes the segments of the working set, the average slope, and
    // commits. Returns Ok, or SlopeOutOfRange when the average lies outside
    // 80 to 120 percent (the set is committed all the same).
    int finish(float iso);
    // Slope and offset of segment i, referred to 25 degrees.
    void computeSegment(int i, float iso);
    // Offset of segment i from its first point and its slope.
    void computeOffset(int i, float iso);
    void sortWorking();

    // Percent of the ideal slope, and back.
    static float percentOf(float slope) { return slope / kIdealSlope * 100.0f; }
    static float slopeOfPercent(float percent) { return percent / 100.0f * kIdealSlope; }

    PhCalSet committed;
    PhCalSet working;
    int committedCount = 0;
    int workingCount = 0;
    float mvAtPh7 = 0.0f;
    float averageSlopePercent = 100.0f;
};
