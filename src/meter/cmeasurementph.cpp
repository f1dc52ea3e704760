#include "meter/cmeasurementph.h"

#include "meter/buffertable.h"
#include "meter/cstabilityph.h"

CMeasurementPH::CMeasurementPH(QObject *parent) : MeasurementBase(KindPh, new CStabilityPH, parent)
{
    m_phCal = &m_record;
}

void CMeasurementPH::SetInsoPotentialPoint(double iso) { m_isoPotentialPoint = iso; }

void CMeasurementPH::SetBufferGroup(int group) { m_bufferGroup = static_cast<std::uint8_t>(group); }

int CMeasurementPH::GetCalPointCount() const { return m_record.workingCount; }

int CMeasurementPH::GetBufferGroup() const { return m_bufferGroup; }

double CMeasurementPH::GetInsoPotentialPoint() const { return m_isoPotentialPoint; }

int CMeasurementPH::segmentForMv(float mv) const
{
    const int n = m_record.committedCount;
    if (n < 3)
        return 0;
    // Points are in ascending pH, so their potentials descend.
    const float *pointMv = m_record.committed.mv;
    if (mv >= pointMv[1])
        return 0;
    for (int i = 1;; ++i) {
        if (i >= n - 1)
            return n - 2;
        if (pointMv[i + 1] <= mv)
            return i;
    }
}

float CMeasurementPH::MvToPh(float mv, float celsius, int decimals, std::uint8_t &rangeFlag) const
{
    return convert(mv, celsius, static_cast<float>(m_isoPotentialPoint), decimals, rangeFlag);
}

float CMeasurementPH::convert(float mv, float celsius, float iso, int decimals, std::uint8_t &rangeFlag) const
{
    float slope = PhCalRecord::kIdealSlope;
    float offset = 0.0f;
    if (m_record.committedCount > 0) {
        const int s = segmentForMv(mv);
        slope = m_record.committed.slope[s];
        offset = m_record.committed.offset[s];
    }
    const float factor = static_cast<float>(static_cast<double>(298.15f) / (celsius + 273.15));
    const float ph = Round(iso + ((mv - offset) / slope) * factor, decimals);
    if (ph < kMinPh)
        rangeFlag = UnderRange;
    else if (ph > kMaxPh)
        rangeFlag = OverRange;
    else
        rangeFlag = InRange;
    return ph;
}

void CMeasurementPH::UpdateMeasurement()
{
    const float ph = MvToPh(static_cast<float>(m_rawMv), static_cast<float>(m_temperature), m_resolutionIndex,
                            m_rangeFlag);
    finishUpdate(ph);
}

double CMeasurementPH::Get_Mv_From_pH(double pH, double celsius)
{
    const int n = m_record.committedCount;
    const float ph = static_cast<float>(pH);
    const float t = static_cast<float>(celsius);
    if (n == 0)
        return -(54.2f + 0.1984f * t) * (ph - 7.0f);

    const float *pointPh = m_record.committed.value;
    int s = -1;
    for (int i = 1; i < n; ++i) {
        if (pointPh[i - 1] <= ph && ph <= pointPh[i]) {
            s = i - 1;
            break;
        }
    }
    if (s < 0)
        s = (n > 2 && ph > pointPh[0] && ph >= pointPh[n - 1]) ? n - 2 : 0;
    const float mv = m_record.committed.offset[s]
                     + m_record.committed.slope[s] * ((t + 273.15f) / 298.15f) * (ph - 7.0f);
    return Round(mv, 1);
}

float CMeasurementPH::RecogniseBuffer(PhCalRecord &record, int bufferGroup, int &status, std::uint8_t &rangeFlag,
                                      float &nominal, int resolutionIndex, float mv, float celsius,
                                      float iso) const
{
    status = 0;
    const int slot = record.workingCount;
    const bool slotFree = slot >= 0 && slot < PhCalRecord::kMaxPoints;
    const int row = BufferTable::match(bufferGroup, mv);
    if (row < 0) {
        const float ph = convert(mv, celsius, iso, resolutionIndex, rangeFlag);
        status = kNotRecognised;
        if (slotFree)
            record.working.buffer[slot] = 0.0f;
        return ph;
    }
    const BufferRow &buffer = BufferTable::rows()[row];
    const float v = BufferTable::valueAt(buffer, celsius);
    status = kRecognised;
    nominal = buffer.nominal;
    if (slotFree)
        record.working.buffer[slot] = buffer.nominal;
    const float ph = Round(v, resolutionIndex);
    rangeFlag = (ph < kMinPh || ph > kMaxPh) ? OverRange : InRange;
    return ph;
}

float CMeasurementPH::RecogniseCalibrationValue(int &status, float &nominal)
{
    const float mv = static_cast<float>(GetStableMv());
    return RecogniseBuffer(m_record, m_bufferGroup, status, m_rangeFlag, nominal, m_resolutionIndex, mv,
                           static_cast<float>(m_temperature), static_cast<float>(m_isoPotentialPoint));
}
