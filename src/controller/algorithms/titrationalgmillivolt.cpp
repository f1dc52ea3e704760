#include "controller/algorithms/titrationalgmillivolt.h"

#include "controller/algorithms/maths/lopsidedbreakfit.h"
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

// The fit of a lopsided break: the points within this part of the end
// point's volume either side; the electrode slopes (mV per pH) taken as
// given; the fit's largest rms error of the potential; the points needed on
// either side of the equivalence; and the shift from the inflection that
// counts as lopsided, up to the largest trusted, as parts of the volume.
const double kFitHalfWidth = 0.4;
const double kLowestPhSlope = 40.0;
const double kHighestPhSlope = 75.0;
const double kNernst25 = 59.16;
const double kMaxFitRmsMv = 1.0;
const int kMinPointsEachSide = 5;
const double kMinShift = 0.0002;
const double kMaxShift = 0.02;

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
    // whose slope reaches the threshold, as the search during the run asks,
    // and a lone break that the fit of the titration confirms (below). A
    // maximum that is neither is still reported, for the chemist to judge,
    // and the reason for the end says that it is no equivalence point.
    const int found = std::min(m_volumetric->finalizePeaks(m_endPointsWanted), int(m_endPointsWanted));
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
        volumes[i] = v;
        values[i] = value;
    }
    // One break of a pH curve: where it is lopsided, its end point is the
    // equivalence volume of the fitted titration, not the inflection; where
    // the fit is good, the break is an equivalence point below the slope
    // threshold too.
    const bool fitted = found == 1 && m_endPointsWanted == 1 && correctLopsidedBreak(volumes[0], values[0]);

    int confirmed = 0;
    for (int i = 0; i < found; ++i) {
        if (m_volumetric->peakSlope(i) >= double(m_volumetric->slopeThreshold()) || (i == 0 && fitted))
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
    if (fitted && m_volumetric->peakSlope(0) < double(m_volumetric->slopeThreshold()) && !m_reportedFit) {
        m_reportedFit = true;
        reasonForEnd += QStringLiteral("; equivalence point confirmed by the fit of the curve");
    }
    if (ph) {
        for (int i = 0; i < std::min<int>(found, 3); ++i)
            values[i] = m_dm->millivoltsToPH(float(values[i]));
    }
    m_dm->setEpResult1(float(values[0]));
    m_dm->setEpResult2(float(values[1]));
    return volumes;
}

bool TitrationAlgMillivolt::correctLopsidedBreak(double &volume, double &value) const
{
    if (m_electrode != 0 || m_volumetric->size() < 2 || !(volume > 0.0))
        return false;
    // The electrode's slope as the calibration converts; Nernst at 25 °C
    // where it gives none that a pH electrode could have.
    double slope = 100.0 / double(m_dm->millivoltsToPH(0.f) - m_dm->millivoltsToPH(100.f));
    if (!(slope > kLowestPhSlope && slope < kHighestPhSlope))
        slope = kNernst25;
    const double sign = m_volumetric->lastData() - m_volumetric->dataAt(0) > 0.0 ? 1.0 : -1.0;
    LopsidedBreakFit::Result fit;
    if (!LopsidedBreakFit::fit(*m_volumetric, volume, kFitHalfWidth * volume, sign, slope, fit))
        return false;
    // The break is confirmed where the fit describes the curve within the
    // noise of a reading, with points enough on either side of Veq, and
    // places Veq after the inflection, the lopsided direction, by no more
    // than the weakest titratable analyte would (a little before it counts
    // as at it). Veq replaces the inflection only where it lies measurably
    // after it: a curve that is not lopsided keeps its inflection.
    const double shift = fit.volume - volume;
    if (fit.rmsMv > kMaxFitRmsMv || fit.after < kMinPointsEachSide || fit.points - fit.after < kMinPointsEachSide
        || shift < -kMinShift * volume || shift > kMaxShift * volume)
        return false;
    if (shift < kMinShift * volume)
        return true;
    volume = fit.volume;
    // The reading there, between the points on either side.
    for (int i = 1; i < m_volumetric->size(); ++i) {
        const double v0 = m_volumetric->volumeAt(i - 1), v1 = m_volumetric->volumeAt(i);
        if (v0 <= volume && volume <= v1 && v1 > v0) {
            const double t = (volume - v0) / (v1 - v0);
            value = m_volumetric->dataAt(i - 1) + t * (m_volumetric->dataAt(i) - m_volumetric->dataAt(i - 1));
            break;
        }
    }
    return true;
}
