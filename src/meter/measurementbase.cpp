#include "meter/measurementbase.h"

#include "meter/cstability.h"

#include <cmath>

MeasurementBase::MeasurementBase(int kindTag, CStability *stability, QObject *parent)
    : QObject(parent), m_kindTag(kindTag), m_stability(stability)
{
    for (int i = 0; i < 8; ++i)
        m_roundTable[i] = MeterRounding::kTable[i];
}

MeasurementBase::~MeasurementBase() { delete m_stability; }

void MeasurementBase::ClearMeasurement() {}
void MeasurementBase::SetInsoPotentialPoint(double) {}
void MeasurementBase::SetBufferGroup(int) {}
void MeasurementBase::SetRelativeOffset(float) {}
int MeasurementBase::GetCalPointCount() const { return 0; }
double MeasurementBase::Get_Mv_From_pH(double, double) { return 0.0; }
float MeasurementBase::GetRelativeOffset() const { return 0.0f; }
double MeasurementBase::GetMeasuredValue() { return m_measuredValue; }
int MeasurementBase::GetBufferGroup() const { return 0; }
double MeasurementBase::GetInsoPotentialPoint() const { return 0.0; }

double MeasurementBase::noNegativeZero(double v)
{
    if (v < 0.0 && std::fabs(v) <= 0.04999)
        return 0.000001;
    return v;
}

double MeasurementBase::GetStableMv()
{
    m_stableMv = noNegativeZero(m_stableMv);
    return m_stableMv;
}

void MeasurementBase::SetDisplayResolutionInFloat(float r)
{
    constexpr float tolerance = 0.0001f;
    if (std::fabs(r - 0.001f) < tolerance)
        m_resolutionIndex = 3;
    else if (std::fabs(r - 0.01f) < tolerance)
        m_resolutionIndex = 2;
    else if (std::fabs(r - 0.1f) < tolerance)
        m_resolutionIndex = 1;
    else
        m_resolutionIndex = 0;
}

void MeasurementBase::SetResolutionIndex(int index)
{
    if (index >= 0 && index <= 4)
        m_resolutionIndex = index;
}

void MeasurementBase::ResetStability()
{
    m_stability->Reset();
    m_stable = false;
}

float MeasurementBase::Round(float x, int decimals) const
{
    return MeterRounding::round(x, decimals, m_roundTable);
}

void MeasurementBase::finishUpdate(double value)
{
    m_stable = m_stability->Check(m_resolutionIndex, &m_measuredValue, &m_stableMv, value, m_rawMv);
    if (m_rangeFlag != InRange) {
        m_stable = false;
        m_measuredValue = kOutOfRange;
    }
}
