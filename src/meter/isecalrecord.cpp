#include "meter/isecalrecord.h"

#include <cstring>

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
