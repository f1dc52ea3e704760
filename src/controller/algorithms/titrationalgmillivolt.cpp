#include "controller/algorithms/titrationalgmillivolt.h"

#include "controller/algorithms/maths/unsignedvolume.h"
#include "controller/algorithms/maths/volumetricmath.h"
#include "controller/algorithms/volumetricdatastore.h"
#include "interfaces/enginedatainterface.h"

#include <QDebug>

#include <algorithm>
#include <cmath>

namespace {

// Half-width of the weights of the end-point fit, in the curve's steps at
// the peak: five or six points carry weight on even steps.
const double kWindowSteps = 3.0;

} // namespace

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
    // Found: maxima inside the curve. Equivalence points among them: those
    // whose slope reaches the threshold, as the search during the run asks.
    // A maximum below it is still reported, for the chemist to judge, and
    // the reason for the end says that it is no equivalence point.
    const int found = std::min(m_volumetric->finalizePeaks(m_endPointsWanted), int(m_endPointsWanted));
    int confirmed = 0;
    for (int i = 0; i < found; ++i) {
        if (m_volumetric->peakSlope(i) >= double(m_volumetric->slopeThreshold()))
            ++confirmed;
    }
    if (confirmed < m_endPointsWanted && !m_reportedMissing) {
        // Said once, however often the results are asked for.
        m_reportedMissing = true;
        reasonForEnd += confirmed == 0 ? QStringLiteral("; no equivalence point found")
                                       : QStringLiteral("; equivalence points found: %1 of %2").arg(confirmed).arg(m_endPointsWanted);
        if (found > confirmed)
            reasonForEnd += QStringLiteral(", the steepest point is reported");
    }

    std::array<double, 3> volumes{{0.0, 0.0, 0.0}};
    double values[3] = {0.0, 0.0, 0.0};
    const bool ph = m_dm->displayUnits() == QLatin1String("pH");
    // An end point that was not found is reported as 0, never as the start
    // of the curve.
    for (int i = 0; i < std::min<int>(found, 3); ++i) {
        // The inflection of a cubic weighted round the peak, found where the
        // centre of the weights and the bend of the cubic agree, so that it
        // follows the curve between the points; trusted only within one
        // volume step of the peak. Without it, the cubic over three points
        // before the peak to one after it.
        const int index = m_volumetric->peakIndex(i);
        const double p = m_volumetric->peakVolume(i);
        const double w = m_volumetric->peakVolumeStep(i);
        const double spacing = index >= 2 ? (m_volumetric->volumeAt(index) - m_volumetric->volumeAt(index - 2)) / 2.0 : w;
        double v = 0.0, value = 0.0;
        if (!VolumetricMath::inflectionNear(*m_volumetric, p, kWindowSteps * spacing, w, v, value)) {
            const VolumetricMath::Cubic c = VolumetricMath::fit5(*m_volumetric, index - 3);
            const VolumetricMath::Cubic d = VolumetricMath::derivative(VolumetricMath::derivative(c));
            const double x = -d(0) / d(1);
            value = VolumetricMath::polyval(c, x);
            v = x * 1000.0;
        }
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
