#include "meter/cstabilityorp.h"

namespace {
constexpr float kDriftLimit[4] = {1.1f, 0.9f, 0.7f, 0.5f};   // mV per minute
}

CStabilityORP::CStabilityORP(QObject *parent) : CStability(parent) {}

float CStabilityORP::driftLimit(int resolutionIndex)
{
    return kDriftLimit[resolutionIndex < 0 ? 0 : (resolutionIndex > 3 ? 3 : resolutionIndex)];
}

bool CStabilityORP::Check(int resolutionIndex, double *value, double *mv, double rawValue, double rawMv)
{
    return checkWith(driftLimit(resolutionIndex), kTolerance, value, mv, rawValue, rawMv);
}

void CStabilityORP::Reset() { clearHistory(); }
