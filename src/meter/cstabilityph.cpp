#include "meter/cstabilityph.h"

namespace {
constexpr float kDriftLimit[4] = {1.1f, 0.9f, 0.7f, 0.5f};   // mV per minute
constexpr float kTolerance[4] = {0.99f, 0.15f, 0.015f, 0.004f};   // pH
int clampIndex(int i) { return i < 0 ? 0 : (i > 3 ? 3 : i); }
}

CStabilityPH::CStabilityPH(QObject *parent) : CStability(parent) {}

float CStabilityPH::driftLimit(int resolutionIndex) { return kDriftLimit[clampIndex(resolutionIndex)]; }

float CStabilityPH::tolerance(int resolutionIndex) { return kTolerance[clampIndex(resolutionIndex)]; }

bool CStabilityPH::Check(int resolutionIndex, double *value, double *mv, double rawValue, double rawMv)
{
    return checkWith(driftLimit(resolutionIndex), tolerance(resolutionIndex), value, mv, rawValue, rawMv);
}

void CStabilityPH::Reset() { clearHistory(); }
