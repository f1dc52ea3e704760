#pragma once

#include "meter/cstability.h"

class CStabilityPH : public CStability
{
    Q_OBJECT
public:
    explicit CStabilityPH(QObject *parent = nullptr);

    bool Check(int resolutionIndex, double *value, double *mv, double rawValue, double rawMv) override;
    void Reset() override;

    static float driftLimit(int resolutionIndex);
    static float tolerance(int resolutionIndex);
};
