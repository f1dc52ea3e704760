#pragma once

// An ion-selective electrode's calibration: a committed set, which the
// conversions read, and a working set, which a calibration in progress
// writes. Potential mV = offset + slope * log10(concentration).
struct IseCalSet
{
    float mv[6] = {};
    float concentration[6] = {};
    float temperature[6] = {};
    float slope[6] = {};   // mV per decade
    float offset[6] = {};
    int digits[6] = {};
};

struct IseCalRecord
{
    static constexpr int kMaxPoints = 6;
    static constexpr int kNameCapacity = 64;
    static constexpr float kNernstSlope = 59.16f;   // mV per decade for one charge at 25 degrees
    static constexpr float kMinSpacingMv = 5.0f;     // closer points are refused
    static constexpr float kMinSpacingPercent = 20.0f;
    static constexpr float kMaxAverage = 199.0f;     // mV per decade
    static constexpr float kNoSlope = 9999.0f;       // slope of a segment that cannot be computed

    // Results of the calibration steps, as the context reports them.
    enum Status { Ok = 0, InProgress = 1, WrongSlope = 6, PointTooClose = 10 };

    IseCalRecord();

    // Fills the working set from stored points and commits it. The count is
    // bounded to 0..6; the ion name is UTF-8 and cut to the capacity.
    void load(const float *mv, const float *concentration, const float *slope, const float *offset,
              const float *temperature, const char *ion, int count, float average);
    void commit();
    void setIonName(const char *utf8);

    // Both sets back to the ion's theoretical slope and zero offsets; no
    // working points, average 0.
    void startCalibration();
    // Adds a point of concentration c: refused (PointTooClose) within 5 mV or
    // 20 percent of a stored one. Slots are used in turn; a seventh point
    // starts again at the first. Returns InProgress or PointTooClose.
    int addPoint(float c, float mv, float celsius, int digits);
    // Sorts the points, computes the segments and the average slope, and
    // removes the last added point when the slopes are of mixed sign, of the
    // wrong sign for the ion or too large (WrongSlope), or when the lowest
    // concentration is 0 (PointTooClose). Does not commit.
    int finish();
    // Slope and offset of segment i: mV = offset + slope * log10(c).
    void computeSegment(int i);
    void sortWorking();
    // Removes the point whose concentration is the last one added.
    void removeLastAdded();

    // The charge of an ion as the ion list names it; 0 for a name not in it.
    static int chargeOf(const char *ionName);
    int charge() const { return chargeOf(ionName); }
    // 59.16 / charge, or the one-charge slope for an unknown ion.
    float theoreticalSlope() const;

    IseCalSet committed;
    IseCalSet working;
    int committedCount = 0;
    int workingCount = 0;
    float averageSlope = 0.0f;
    float lastConcentration = 0.0f;
    char ionName[kNameCapacity] = {};
};
