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

    IseCalRecord();

    // Fills the working set from stored points and commits it. The count is
    // bounded to 0..6; the ion name is UTF-8 and cut to the capacity.
    void load(const float *mv, const float *concentration, const float *slope, const float *offset,
              const float *temperature, const char *ion, int count, float average);
    void commit();
    void setIonName(const char *utf8);

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
