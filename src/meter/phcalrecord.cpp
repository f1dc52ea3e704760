#include "meter/phcalrecord.h"

PhCalRecord::PhCalRecord()
{
    for (int i = 0; i < kMaxPoints; ++i) {
        committed.temperature[i] = working.temperature[i] = 25.0f;
        committed.slope[i] = working.slope[i] = 1.0f;
    }
}

void PhCalRecord::load(const float *mv, const float *slope, const float *offset, const float *temperature,
                       const float *value, const float *buffer, int count, float averageSlope)
{
    if (count < 0)
        count = 0;
    if (count > kMaxPoints)
        count = kMaxPoints;
    for (int i = 0; i < count; ++i) {
        working.mv[i] = mv[i];
        working.slope[i] = slope[i];
        working.offset[i] = offset[i];
        working.temperature[i] = temperature[i];
        working.value[i] = value[i];
        working.buffer[i] = buffer[i];
    }
    workingCount = count;
    if (count == 0)
        working.slope[0] = kIdealSlope;
    averageSlopePercent = averageSlope / kIdealSlope * 100.0f;
    commit();
}

void PhCalRecord::commit()
{
    committed = working;
    committedCount = workingCount;
}
