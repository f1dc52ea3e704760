#pragma once

#include "meter/movingaverage.h"

#include <QObject>

// Decides sample by sample when a reading has settled, and holds the value
// from that moment until the reading leaves it. A reading is stable after
// 26 consecutive small steps of the averaged value while the drift of the
// averaged mV stays below the limit of the resolution.
class CStability : public QObject
{
    Q_OBJECT
public:
    static constexpr int kWindow = 10;
    static constexpr int kSettleSteps = 24;   // more than this many steps before the hold

    explicit CStability(QObject *parent = nullptr);

    // value and mv are outputs: the raw inputs while unstable, the held
    // numbers while stable. Returns true on a stable sample.
    virtual bool Check(int resolutionIndex, double *value, double *mv, double rawValue, double rawMv) = 0;
    virtual void Reset();

    bool isHeld() const { return m_stable; }
    int settleCount() const { return m_settleCount; }
    double drift() const { return m_drift; }

protected:
    // The common criterion; the kinds supply their limit and tolerance.
    bool checkWith(float driftLimit, float tolerance, double *value, double *mv, double rawValue,
                   double rawMv);
    // Clears both averages, the verdict and the settling count.
    void clearHistory();

private:
    bool driftWithin(float limit);

    bool m_stable = false;
    unsigned int m_ringCount = 0;
    int m_settleCount = 0;
    float m_sumX[9];
    float m_sumXX[9];
    float m_lastValue = 0.0f;
    float m_prevValue = 0.0f;
    float m_ring[4] = {};
    double m_drift = 0.0;
    MovingAverage m_mvAverage;
    MovingAverage m_valueAverage;
    double m_heldMv = 0.0;
    double m_heldValue = 0.0;
};
