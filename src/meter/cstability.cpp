#include "meter/cstability.h"

#include <cmath>

CStability::CStability(QObject *parent) : QObject(parent)
{
    // Sums of the sample times (one second apart, in minutes) and of their
    // squares, so the drift needs no more than three divisions.
    m_sumX[0] = 0.0f;
    m_sumXX[0] = 0.0f;
    for (int n = 1; n < 9; ++n) {
        const float x = static_cast<float>(n) / 60.0f;
        m_sumX[n] = m_sumX[n - 1] + x;
        m_sumXX[n] = m_sumXX[n - 1] + x * x;
    }
}

void CStability::Reset() {}

void CStability::clearHistory()
{
    m_mvAverage.Clear();
    m_valueAverage.Clear();
    m_stable = false;
    m_settleCount = 0;
}

bool CStability::driftWithin(float limit)
{
    m_ringCount += 1;
    if (m_ringCount == 8)
        m_ringCount = 4;
    if (m_ringCount < 4)
        return false;

    constexpr int n = 4;
    float sumY = 0.0f;
    float sumXY = 0.0f;
    const unsigned int oldest = m_ringCount % 4;
    for (int k = 0; k < n; ++k) {
        const float y = m_ring[(oldest + k) % 4];
        const float x = static_cast<float>(k + 1) / 60.0f;
        sumY += y;
        sumXY += x * y;
    }
    const float sx = m_sumX[n];
    const float sxx = m_sumXX[n];
    const float slope = (sumXY - sx * sumY / n) / (sxx - sx * sx / n);
    m_drift = std::fabs(slope);
    return m_drift < limit;
}

bool CStability::checkWith(float driftLimit, float tolerance, double *value, double *mv,
                           double rawValue, double rawMv)
{
    *value = rawValue;
    *mv = rawMv;

    m_mvAverage.window = kWindow;
    m_valueAverage.window = kWindow;
    const double mvMean = m_mvAverage.Add(static_cast<float>(rawMv));
    const double valueMean = m_valueAverage.Add(static_cast<float>(rawValue));
    if (!m_mvAverage.full) {
        m_stable = false;
        m_settleCount = 0;
        return false;
    }

    const float avgMv = static_cast<float>(mvMean);
    const float avgValue = static_cast<float>(valueMean);
    m_ring[m_ringCount % 4] = avgMv;
    m_prevValue = m_lastValue;
    m_lastValue = avgValue;
    const bool driftOk = driftWithin(driftLimit);

    if (m_stable) {
        if (driftOk && std::fabs(avgValue - m_heldValue) <= tolerance) {
            *value = m_heldValue;
            *mv = m_heldMv;
            return true;
        }
        Reset();
        return false;
    }

    if (!driftOk)
        return false;
    if (std::fabs(avgValue - m_prevValue) > tolerance) {
        m_settleCount = 0;
        return false;
    }
    const bool settled = m_settleCount > kSettleSteps;
    ++m_settleCount;
    if (!settled)
        return false;
    m_heldValue = avgValue;
    m_heldMv = avgMv;
    *value = m_heldValue;
    *mv = m_heldMv;
    m_stable = true;
    return true;
}
