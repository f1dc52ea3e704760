#pragma once

#include "controller/algorithms/titrationalgorithmbase.h"

// "Preset End Pt.": the user names the potential (or pH) of each end point.
// The doses aim at a step that shrinks with the distance to the next end
// point, the run goes past it by a small band, and the result is the volume
// at which the curve crossed the preset value. Up to three end points, passed
// in the order of the method, on a rising or a falling curve.
class TitrationAlgEndPoint : public TitrationAlgorithmBase
{
    Q_OBJECT
public:
    TitrationAlgEndPoint(TemporalDataStore *temporal, VolumetricDataStore *volumetric, QObject *parent = nullptr);

    bool isEnded() override;
    std::array<double, 3> getResults() override;
    void onStart() override;
    unsigned int nextDose() override;
    void setProcessControlParams() override;

    // Part of the remaining distance taken as the next potential step.
    static constexpr double kApproachFactor = 0.2;
    // The curve has to move this far (mV) before its direction is believed.
    static constexpr double kDirectionGate = 9.0;
    // Part of the distance left to the end point that a dose may cover at
    // the curve's present slope.
    static constexpr double kAimFactor = 0.5;

    float deltaE() const { return m_deltaE; }
    unsigned int deltaVmax() const { return m_deltaVmax; }
    unsigned int deltaVmin() const { return m_deltaVmin; }
    double endPointBand() const { return m_endPointBand; }
    int endPointsFound() const { return m_endPointsFound; }
    // The end points the run works on, mV once the run has started.
    const std::array<double, 3> &endPoints() const { return m_endPoints; }

private:
    double currentTarget() const;
    double presentSlope() const;
    double distanceToBreak() const;
    bool crossingVolume(double target, double &volume) const;

    float m_deltaE = 0.f;
    double m_endPointBand = 1.0;
    std::array<double, 3> m_endPoints{{0.0, 0.0, 0.0}};
};
