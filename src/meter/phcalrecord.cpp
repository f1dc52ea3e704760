#include "meter/phcalrecord.h"

#include <cmath>
#include <utility>

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

void PhCalRecord::startCalibration()
{
    working = PhCalSet();
    working.slope[0] = committed.slope[0];
    workingCount = 0;
    committedCount = 0;
}

int PhCalRecord::addPoint(float value, float mv, float celsius)
{
    if (workingCount == 0) {
        working.mv[0] = mv;
        working.value[0] = value;
        working.temperature[0] = celsius;
        workingCount = 1;
    } else {
        // A buffer recognised a second time (the same value) is refused like
        // any point too close to another: it never replaces the first
        // reading under that buffer's label.
        for (int j = 0; j < workingCount; ++j) {
            if (std::fabs(mv - working.mv[j]) <= kMinSpacingMv || std::fabs(value - working.value[j]) <= kMinSpacingPh)
                return PointTooClose;
        }
        // The screens stop offering points at five; a sixth has no slot
        // and is dropped, the five stay.
        if (workingCount >= kMaxPoints)
            return InProgress;
        working.mv[workingCount] = mv;
        working.value[workingCount] = value;
        working.temperature[workingCount] = celsius;
        ++workingCount;
    }
    sortWorking();
    return InProgress;
}

void PhCalRecord::sortWorking()
{
    for (int i = 0; i < workingCount - 1; ++i) {
        for (int j = i + 1; j < workingCount; ++j) {
            if (working.value[j] < working.value[i]) {
                std::swap(working.value[i], working.value[j]);
                std::swap(working.mv[i], working.mv[j]);
                std::swap(working.temperature[i], working.temperature[j]);
                std::swap(working.buffer[i], working.buffer[j]);
            }
        }
    }
}

void PhCalRecord::computeSegment(int i, float iso)
{
    PhCalSet &w = working;
    const float a = (w.value[i] - iso) * (w.temperature[i] + 273.15f);
    const float b = (w.value[i + 1] - iso) * (w.temperature[i + 1] + 273.15f);
    if (a == b)
        w.slope[i] = kFlatSegment;
    else
        w.slope[i] = (w.mv[i + 1] - w.mv[i]) * 298.15f / (b - a);
    computeOffset(i, iso);
}

void PhCalRecord::computeOffset(int i, float iso)
{
    PhCalSet &w = working;
    w.offset[i] = w.mv[i] - (w.value[i] - iso) * w.slope[i] * (w.temperature[i] + 273.15f) / 298.15f;
    mvAtPh7 = w.offset[i] + (7.0f - iso) * w.slope[i];
}

int PhCalRecord::finish(float iso)
{
    if (workingCount <= 1) {
        workingCount = 1;
        working.slope[0] = kIdealSlope;
        computeOffset(0, iso);
    } else {
        sortWorking();
        for (int i = 0; i + 1 < workingCount; ++i)
            computeSegment(i, iso);
    }

    float average = 100.0f;
    if (workingCount >= 2) {
        float sum = 0.0f;
        for (int i = 0; i + 1 < workingCount; ++i)
            sum += working.slope[i];
        average = sum / static_cast<float>(workingCount - 1) / -0.5916f;
    }

    int status = Ok;
    if (std::fabs(average) < kMinAverage || std::fabs(average) > kMaxAverage)
        status = SlopeOutOfRange;
    else
        averageSlopePercent = average;
    commit();
    return status;
}
