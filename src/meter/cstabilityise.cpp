#include "meter/cstabilityise.h"

namespace {
constexpr float kDriftLimit[5] = {1.1f, 1.1f, 0.9f, 0.7f, 0.5f};   // mV per minute
}

CStabilityISE::CStabilityISE(QObject *parent) : CStability(parent) {}

float CStabilityISE::driftLimit(int digitsIndex)
{
    return kDriftLimit[digitsIndex < 0 ? 0 : (digitsIndex > 4 ? 4 : digitsIndex)];
}

float CStabilityISE::tolerance(double concentration)
{
    if (concentration < 1.0)
        return 0.003f;
    if (concentration < 10.0)
        return 0.02f;
    if (concentration < 100.0)
        return 0.09f;
    if (concentration < 1000.0)
        return 0.5f;
    return 2.0f;
}

bool CStabilityISE::Check(int digitsIndex, double *value, double *mv, double rawValue, double rawMv)
{
    return checkWith(driftLimit(digitsIndex), tolerance(rawValue), value, mv, rawValue, rawMv);
}

void CStabilityISE::Reset() { clearHistory(); }
