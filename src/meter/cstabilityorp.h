#pragma once

#include "meter/cstability.h"

class CStabilityORP : public CStability
{
    Q_OBJECT
public:
    explicit CStabilityORP(QObject *parent = nullptr);

    bool Check(int resolutionIndex, double *value, double *mv, double rawValue, double rawMv) override;
    void Reset() override;

    static float driftLimit(int resolutionIndex);
    static constexpr float kTolerance = 0.2f;   // mV, whatever the display resolution
};
