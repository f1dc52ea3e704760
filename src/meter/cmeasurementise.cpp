#include "meter/cmeasurementise.h"

#include "meter/cstabilityise.h"

#include <cmath>

CMeasurementIse::CMeasurementIse(QObject *parent) : MeasurementBase(KindIse, new CStabilityISE, parent)
{
    m_iseCal = &m_record;
}

void CMeasurementIse::SetInsoPotentialPoint(double scale) { m_sampleScale = scale; }

int CMeasurementIse::segmentForMv(float mv) const
{
    const int n = m_record.committedCount;
    if (n <= 1)
        return 0;
    const float *pointMv = m_record.committed.mv;
    const bool ascending = pointMv[0] < pointMv[1];
    for (int j = 0; j <= n - 2; ++j) {
        const int s = n - 2 - j;
        if (ascending ? pointMv[s] <= mv : mv <= pointMv[s])
            return s;
    }
    return 0;
}

float CMeasurementIse::MvToConcentration(float mv, int digits, std::uint8_t &rangeFlag) const
{
    const int s = segmentForMv(mv);
    const float reference = 298.15f;
    const float x = (mv - m_record.committed.offset[s]) * reference / (m_record.committed.slope[s] * reference);
    float conc = std::exp(x * 2.302585f);
    if (conc < kMinConcentration)
        conc = 0.0f;
    else if (conc > kMaxConcentration)
        conc = kMaxConcentration;
    conc = SignificantDigits(conc, digits);
    if (conc < 0.0f)
        rangeFlag = UnderRange;
    else if (conc > kMaxDisplayed)
        rangeFlag = OverRange;
    else
        rangeFlag = InRange;
    return conc;
}

int CMeasurementIse::Decade(float v) const
{
    if (v <= 0.0f)
        return 0;
    if (v >= 1.0f) {
        int k = 0;
        for (double p = 10.0; p <= v; p *= 10.0)
            ++k;
        return k;
    }
    const float inverse = 1.0f / v;
    for (int m = 0; m + 1 < 8; ++m) {
        if (inverse <= m_roundTable[m + 1])
            return -(m + 1);
    }
    return -7;
}

float CMeasurementIse::SignificantDigits(float v, int d) const
{
    const float limit = MeterRounding::kTable[d < 0 ? 0 : (d > 7 ? 7 : d)];
    int c = 0;
    if (v < limit) {
        c = d - Decade(v);
        if (c > 4) {
            c = 4;
        } else {
            v = Round(v, c);
            c = v < limit ? d - Decade(v) : 0;
        }
    }
    v = Round(v, c);

    // At most d+1 significant figures stay, the last one rounded.
    if (Decade(v) >= d + 1) {
        const float top = static_cast<float>(std::pow(10.0, d + 1) - 1.0);
        int k = 0;
        while (v > top) {
            v /= 10.0f;
            ++k;
        }
        const float whole = std::trunc(v);
        const int dropped = static_cast<int>((v - whole) * 10.0f);
        v = whole + (dropped > 4 ? 1.0f : 0.0f);
        v *= m_roundTable[k > 7 ? 7 : k];
    }
    return v;
}

void CMeasurementIse::UpdateMeasurement()
{
    const float conc = MvToConcentration(static_cast<float>(m_rawMv), m_resolutionIndex, m_rangeFlag);
    finishUpdate(conc);
}
