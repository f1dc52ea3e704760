#include "controller/algorithms/titrationalgmillivolt.h"

#include "controller/algorithms/maths/unsignedvolume.h"
#include "controller/algorithms/maths/volumetricmath.h"
#include "controller/algorithms/volumetricdatastore.h"
#include "interfaces/enginedatainterface.h"

#include <QDebug>

#include <algorithm>
#include <cmath>

TitrationAlgMillivolt::TitrationAlgMillivolt(TemporalDataStore *temporal, VolumetricDataStore *volumetric,
                                             QObject *parent)
    : TitrationAlgorithmBase(temporal, volumetric, parent)
{
    TitrationAlgMillivolt::setProcessControlParams();
}

void TitrationAlgMillivolt::setProcessControlParams()
{
    using Presets = ProcessControlPresets;
    // What the method says for "User Defined".
    Presets::setUserValue(m_presets.deltaE, m_electrode, m_dm->getDeltaE());
    Presets::setUserValue(m_presets.deltaVmax, m_electrode, toUnsignedVolume(m_dm->getDeltaVmax() * 1000.f));
    Presets::setUserValue(m_presets.deltaVmin, m_electrode, toUnsignedVolume(m_dm->getDeltaVmin() * 1000.f));
    Presets::setUserValue(m_presets.dEdt, m_electrode, m_dm->getStabilityCriteria() / 60.0f);
    Presets::setUserValue(m_presets.tMin, m_electrode, toUnsignedVolume(m_dm->gettMin() * 1000.f));
    Presets::setUserValue(m_presets.tMax, m_electrode, toUnsignedVolume(m_dm->gettMax() * 1000.f));
    Presets::setUserValue(m_presets.slopeThreshold, m_electrode, m_dm->getThreshold() / 1000.0f);

    m_firstDose = preset(m_presets.firstDose);
    m_deltaE = preset(m_presets.deltaE);
    m_deltaVmax = preset(m_presets.deltaVmax);
    m_deltaVmin = preset(m_presets.deltaVmin);
    m_stabilitySlope = preset(m_presets.dEdt);

    // Peaks count only past the pre-dose by 5 %, and past four first doses.
    const unsigned int preDose = preDoseUl();
    const unsigned int maxVolume = maxVolumeUl();
    const unsigned int pastPreDose = std::min(toUnsignedVolume(preDose * 1.05f), maxVolume);
    const unsigned int pastFirstDoses = preDose + 4 * m_firstDose;
    m_volumetric->setMinimumVolume(double(std::max(pastPreDose, pastFirstDoses)));
    m_volumetric->setSlopeThreshold(preset(m_presets.slopeThreshold));
}

unsigned int TitrationAlgMillivolt::nextDose()
{
    if (!isStable())
        return 0;
    addData();
    updateMaxSlope();
    return doseForStep(m_deltaE);
}

std::array<double, 3> TitrationAlgMillivolt::getResults()
{
    m_volumetric->finalizePeaks(m_endPointsWanted);

    std::array<double, 3> volumes{{0.0, 0.0, 0.0}};
    double values[3] = {0.0, 0.0, 0.0};
    const bool ph = m_dm->displayUnits() == QLatin1String("pH");
    for (int i = 0; i < std::min<int>(m_endPointsWanted, 3); ++i) {
        // The inflection of a cubic over three points before the peak to one
        // after it, trusted only within one volume step of the peak.
        const int index = m_volumetric->peakIndex(i);
        const VolumetricMath::Cubic c = VolumetricMath::fit5(*m_volumetric, index - 3);
        const VolumetricMath::Cubic d = VolumetricMath::derivative(VolumetricMath::derivative(c));
        const double x = -d(0) / d(1);
        double value = VolumetricMath::polyval(c, x);
        double v = x * 1000.0;

        const double p = m_volumetric->peakVolume(i);
        const double w = m_volumetric->peakVolumeStep(i);
        if (!std::isfinite(v) || v > p + w || v < p - w) {
            v = p;
            value = m_volumetric->peakData(i);
        }
        if (ph)
            value = m_dm->millivoltsToPH(float(value));
        volumes[i] = v;
        values[i] = value;
    }
    m_dm->setEpResult1(float(values[0]));
    m_dm->setEpResult2(float(values[1]));
    return volumes;
}
