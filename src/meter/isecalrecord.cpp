#include "meter/isecalrecord.h"

#include <cmath>
#include <cstring>
#include <utility>

namespace {

struct IonCharge
{
    const char *name;
    int charge;
};

constexpr IonCharge kIons[] = {
    {"Ammonia (NH3)", 1},        {"Ammonium (NH4+)", 1},      {"Bromide (Br-)", -1},
    {"Cadmium (Cd2+)", 2},       {"Calcium (Ca2+)", 2},       {"Carbon Dioxide (CO2)", 1},
    {"Chloride (Cl-)", -1},      {"Chlorine (Cl2)", 2},       {"Copper (Cu2+)", 2},
    {"Cyanide (CN-)", -1},       {"Fluoride (F-)", -1},       {"Fluoroborate (BF4-)", -1},
    {"Divalent Cation (X2+)", 2}, {"Iodide (I-)", -1},        {"Lead (Pb2+)", 2},
    {"Nitrate (NO3-)", -1},      {"Potassium (K+)", 1},       {"Silver (Ag+)", 1},
    {"Sodium (Na+)", 1},         {"Sulfide (S2-)", -2},       {"Surfactant", 1},
    {"Thiocyanate (SCN-)", -1},  {"Monovalent Anion (X-)", -1}, {"Monovalent Cation (X+)", 1},
    {"Divalent Anion (X2-)", -2},
};

}

IseCalRecord::IseCalRecord()
{
    for (int i = 0; i < kMaxPoints; ++i) {
        committed.slope[i] = working.slope[i] = kNernstSlope;
        committed.temperature[i] = working.temperature[i] = 25.0f;
    }
}

void IseCalRecord::load(const float *mv, const float *concentration, const float *slope, const float *offset,
                        const float *temperature, const char *ion, int count, float average)
{
    if (count < 0)
        count = 0;
    if (count > kMaxPoints)
        count = kMaxPoints;
    for (int i = 0; i < count; ++i) {
        working.mv[i] = mv[i];
        working.concentration[i] = concentration[i];
        working.slope[i] = slope[i];
        working.offset[i] = offset[i];
        working.temperature[i] = temperature[i];
    }
    workingCount = count;
    setIonName(ion);
    averageSlope = average;
    commit();
}

void IseCalRecord::commit()
{
    committed = working;
    committedCount = workingCount;
}

void IseCalRecord::setIonName(const char *utf8)
{
    if (!utf8) {
        ionName[0] = '\0';
        return;
    }
    std::strncpy(ionName, utf8, kNameCapacity - 1);
    ionName[kNameCapacity - 1] = '\0';
}

int IseCalRecord::chargeOf(const char *name)
{
    if (!name)
        return 0;
    for (const IonCharge &ion : kIons) {
        if (std::strcmp(ion.name, name) == 0)
            return ion.charge;
    }
    return 0;
}

float IseCalRecord::theoreticalSlope() const
{
    const int z = charge();
    return z == 0 ? kNernstSlope : kNernstSlope / static_cast<float>(z);
}

void IseCalRecord::startCalibration()
{
    const float slope = theoreticalSlope();
    for (int i = 0; i < kMaxPoints; ++i) {
        committed.slope[i] = working.slope[i] = slope;
        committed.offset[i] = working.offset[i] = 0.0f;
    }
    workingCount = 0;
    averageSlope = 0.0f;
}

int IseCalRecord::addPoint(float c, float mv, float celsius, int digits)
{
    for (int j = 0; j < workingCount && j < kMaxPoints; ++j) {
        if (std::fabs(mv - working.mv[j]) < kMinSpacingMv
            || std::fabs(c - working.concentration[j]) < working.concentration[j] / 100.0f * kMinSpacingPercent)
            return PointTooClose;
    }
    const int slot = workingCount % kMaxPoints;
    working.concentration[slot] = c;
    working.mv[slot] = mv;
    working.temperature[slot] = celsius;
    working.digits[slot] = digits;
    lastConcentration = c;
    workingCount = workingCount >= kMaxPoints ? 1 : workingCount + 1;
    return InProgress;
}

void IseCalRecord::sortWorking()
{
    for (int i = 0; i < workingCount - 1; ++i) {
        for (int j = i + 1; j < workingCount; ++j) {
            if (working.concentration[j] < working.concentration[i]) {
                std::swap(working.concentration[i], working.concentration[j]);
                std::swap(working.mv[i], working.mv[j]);
                std::swap(working.temperature[i], working.temperature[j]);
                std::swap(working.digits[i], working.digits[j]);
            }
        }
    }
}

void IseCalRecord::computeSegment(int i)
{
    IseCalSet &w = working;
    const float c0 = w.concentration[i];
    const float c1 = w.concentration[i + 1];
    const float log0 = c0 > 0.0f ? std::log10(c0) : 0.0f;
    const float log1 = c1 > 0.0f ? std::log10(c1) : 0.0f;
    if (c0 == 0.0f || log0 == log1)
        w.slope[i] = kNoSlope;
    else
        w.slope[i] = (w.mv[i] - w.mv[i + 1]) * 298.15f / (298.15f * log0 - 298.15f * log1);
    w.offset[i] = w.mv[i] - (c0 == 0.0f ? 1e38f : w.slope[i] * log0);
}

void IseCalRecord::removeLastAdded()
{
    const int n = workingCount < kMaxPoints ? workingCount : kMaxPoints;
    for (int k = 0; k < n; ++k) {
        if (working.concentration[k] != lastConcentration)
            continue;
        for (int m = k; m + 1 < n; ++m) {
            working.concentration[m] = working.concentration[m + 1];
            working.mv[m] = working.mv[m + 1];
            working.temperature[m] = working.temperature[m + 1];
        }
        working.concentration[n - 1] = 0.0f;
        working.mv[n - 1] = 0.0f;
        working.temperature[n - 1] = 0.0f;
        --workingCount;
        return;
    }
}

int IseCalRecord::finish()
{
    const int z = charge();
    if (workingCount < 2) {
        if (working.concentration[0] != 0.0f) {
            workingCount = 1;
            working.slope[0] = theoreticalSlope();
            const float c = working.concentration[0];
            working.offset[0] = working.mv[0] - working.slope[0] * std::log10(c);
        }
    } else {
        sortWorking();
        for (int i = 0; i + 1 < workingCount; ++i)
            computeSegment(i);
        if (working.concentration[0] == 0.0f) {
            removeLastAdded();
            return PointTooClose;
        }
        if (workingCount >= 3) {
            for (int i = 1; i + 1 < workingCount; ++i) {
                if ((working.slope[i] < 0.0f) != (working.slope[0] < 0.0f)) {
                    removeLastAdded();
                    return WrongSlope;
                }
            }
        }
    }

    float average = working.slope[0];
    if (workingCount >= 3) {
        float sum = 0.0f;
        for (int i = 0; i + 1 < workingCount; ++i)
            sum += working.slope[i];
        average = sum / static_cast<float>(workingCount - 1);
    }
    averageSlope = average;
    if (static_cast<float>(z) * average < 0.0f || std::fabs(average) > kMaxAverage) {
        removeLastAdded();
        return WrongSlope;
    }
    return Ok;
}
