#pragma once

#include "controller/algorithms/titrationalgorithmbase.h"

// "Equivalence Pt." and "Engineering Basic pH": titrates until the curve has
// shown its inflection points, with doses that shrink as the curve steepens,
// and reports the volume and the reading at each, refined by a cubic.
class TitrationAlgMillivolt : public TitrationAlgorithmBase
{
    Q_OBJECT
public:
    TitrationAlgMillivolt(TemporalDataStore *temporal, VolumetricDataStore *volumetric, QObject *parent = nullptr);

    std::array<double, 3> getResults() override;
    unsigned int nextDose() override;
    void setProcessControlParams() override;

    float deltaE() const { return m_deltaE; }
    unsigned int deltaVmax() const { return m_deltaVmax; }
    unsigned int deltaVmin() const { return m_deltaVmin; }

private:
    // Fits the titration of a weak acid or base round a lone break of a pH
    // curve (end point in µL, its reading in mV). Answers whether the fit
    // confirms the break as an equivalence point; moves the end point from
    // the inflection to the fit's equivalence where the curve is lopsided.
    bool correctLopsidedBreak(double &volume, double &value) const;

    float m_deltaE = 0.f;
    bool m_reportedMissing = false;
    bool m_reportedFit = false;
};
