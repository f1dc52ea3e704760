#pragma once

#include "meter/cstability.h"

class CStabilityISE : public CStability
{
    Q_OBJECT
public:
    explicit CStabilityISE(QObject *parent = nullptr);

    bool Check(int resolutionIndex, double *value, double *mv, double rawValue, double rawMv) override;
    void Reset() override;

    // Index is the significant-digits setting.
    static float driftLimit(int digitsIndex);
    // The step tolerance follows the concentration being read.
    static float tolerance(double concentration);
};
