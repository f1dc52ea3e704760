#include "meter/cmeasurementorp.h"

#include "meter/cstabilityorp.h"

CMeasurementOrp::CMeasurementOrp(QObject *parent) : MeasurementBase(KindRedox, new CStabilityORP, parent)
{
    m_orpCal = &m_record;
}

void CMeasurementOrp::SetRelativeOffset(float offset) { m_record.offset = offset; }

float CMeasurementOrp::GetRelativeOffset() const { return m_record.offset; }

double CMeasurementOrp::GetMeasuredValue()
{
    m_measuredValue = noNegativeZero(m_measuredValue);
    return m_measuredValue;
}

void CMeasurementOrp::UpdateMeasurement()
{
    const float value = Round(static_cast<float>(m_rawMv) + m_record.offset, m_resolutionIndex);
    if (value > kLimitMv)
        m_rangeFlag = OverRange;
    else if (value < -kLimitMv)
        m_rangeFlag = UnderRange;
    else
        m_rangeFlag = InRange;
    finishUpdate(value);
}
