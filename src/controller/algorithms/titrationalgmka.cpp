#include "controller/algorithms/titrationalgmka.h"

#include "controller/algorithms/maths/unsignedvolume.h"
#include "controller/algorithms/temporaldatastore.h"
#include "controller/algorithms/volumetricdatastore.h"
#include "interfaces/enginedatainterface.h"

#include <QDebug>

#include <algorithm>
#include <cmath>

namespace {

const double kLowestConcentration = 1e-9; // mol/L
const double kHighestConcentration = 2.0; // mol/L
const double kE0Limit = 1024.0;           // mV
const int kLogFilesKept = 100;
// The spread of readings is never taken as below the meter's resolution
// of 0.1 mV.
const double kLeastVariance = 0.1 * 0.1 / 12.0; // mV²

// Equal within 1e-12 of the smaller magnitude.
bool nearlyEqual(double a, double b)
{
    return std::abs(a - b) * 1e12 <= std::min(std::abs(a), std::abs(b));
}

} // namespace

TitrationAlgMKA::TitrationAlgMKA(TemporalDataStore *temporal, VolumetricDataStore *volumetric, QObject *parent)
    : TitrationAlgorithmBase(temporal, volumetric, parent)
{
    TitrationAlgMKA::setProcessControlParams();

    m_totalVolume = m_dm->getTotalSolutionVolume();
    m_sampleBasis = m_dm->getMKASampleBasis();
    m_requiredPrecision = m_dm->getMKAProcessCtrlPrecision();
    m_standard = m_dm->getMKAStandardConcentration();
    m_blank = m_dm->getMKABlank();
    m_model.v0 = double(m_totalVolume);
    m_model.cs = double(m_standard);

    m_p = Eigen::VectorXd::Zero(3);
    m_lower = Eigen::VectorXd::Zero(3);
    m_upper = Eigen::VectorXd::Zero(3);
    setLimits();

    m_log.setLogfileDir(QStringLiteral("logFiles/mkaLogs"));
    m_log.setLogfileBasename(QStringLiteral("mkalog"));
    m_log.newCyclicFile(kLogFilesKept);
    m_log.write(QStringLiteral("I'm a log, look at me!\r\n"));
    m_log.write(QStringLiteral("Add, Vol., mV, E0, slope, Conc., Precision, Drift\r\n"));
}

TitrationAlgMKA::~TitrationAlgMKA() = default;

void TitrationAlgMKA::setProcessControlParams()
{
    using Presets = ProcessControlPresets;
    m_processControl = m_dm->getMKAProcessCtrl();
    m_electrode = m_dm->getElectrode();

    // What the method says for "User Defined".
    Presets::setUserValue(m_presets.mkaDeltaE, m_electrode, m_dm->getMKAProcessCtrlConstant());
    Presets::setUserValue(m_presets.mkaDEdt, m_electrode, m_dm->getMKAProcessCtrlMeasurement() / 60.0f);
    Presets::setUserValue(m_presets.mkaTMin, m_electrode, toUnsignedVolume(m_dm->gettMin() * 1000.f));
    Presets::setUserValue(m_presets.mkaTMax, m_electrode, toUnsignedVolume(m_dm->gettMax() * 1000.f));
    Presets::setUserValue(m_presets.mkaDeltaVmin, m_electrode, toUnsignedVolume(m_dm->getDeltaVmin() * 1000.f));
    Presets::setUserValue(m_presets.mkaDeltaVmax, m_electrode, toUnsignedVolume(m_dm->getDeltaVmax() * 1000.f));

    m_stabilitySlope = preset(m_presets.mkaDEdt);
    m_tMin = preset(m_presets.mkaTMin);
    m_tMax = preset(m_presets.mkaTMax);
    m_deltaE = preset(m_presets.mkaDeltaE);
    m_deltaVmax = preset(m_presets.mkaDeltaVmax);
    m_deltaVmin = preset(m_presets.mkaDeltaVmin);
    m_expectedSlope = preset(m_presets.mkaSlope);
    m_slopeHigh = preset(m_presets.mkaSlopeHigh);
    m_slopeLow = preset(m_presets.mkaSlopeLow);
}

bool TitrationAlgMKA::curveRising() const
{
    return m_y.size() < 2 || m_y.back() > m_y.front();
}

void TitrationAlgMKA::setLimits()
{
    const bool rising = curveRising();
    m_lower << kLowestConcentration, -kE0Limit, rising ? m_slopeLow : -m_slopeHigh;
    m_upper << kHighestConcentration, kE0Limit, rising ? m_slopeHigh : -m_slopeLow;
}

void TitrationAlgMKA::addData()
{
    // The potential of an addition is the mean of the readings of its stable
    // window; its weight in the fit is how well that mean is known.
    double sum = 0.0, squares = 0.0;
    int count = 0;
    long stamp = 0;
    double volume = 0.0, reading = 0.0;
    for (int k = std::max(m_windowStart, 0); m_windowStart >= 0 && k < m_temporal->size(); ++k) {
        if (!m_temporal->getPoint(k, stamp, volume, reading))
            break;
        sum += reading;
        squares += reading * reading;
        ++count;
    }
    double potential = 0.0;
    double variance = kLeastVariance;
    if (count >= 3) {
        potential = sum / count;
        variance = std::max((squares - sum * potential) / (count - 1), kLeastVariance) / count;
    } else {
        m_temporal->lastFiltered(potential);
    }
    m_volumetric->addPoint(double(m_dispensed), potential);
    m_x.push_back(m_dispensed / 1000.0);
    m_y.push_back(potential);
    m_w.push_back(1.0 / variance);
}

double TitrationAlgMKA::responseSinceLastPoint() const
{
    double reading = 0.0;
    m_temporal->lastFiltered(reading);
    return std::abs(reading - m_y.back());
}

unsigned int TitrationAlgMKA::topUpDose(double response) const
{
    // The volume since the last point, scaled to the part of ΔE still missing.
    const double sinceLast = double(m_dispensed) - m_volumetric->lastVolume();
    const double dose = (double(m_deltaE) - response) * sinceLast / response;
    return std::clamp(toUnsignedVolume(dose), m_deltaVmin, std::max(m_deltaVmin, m_deltaVmax));
}

unsigned int TitrationAlgMKA::stepDose() const
{
    // Aims the next addition at ΔE from the response to the last one.
    const int n = m_volumetric->size();
    const double volume = m_volumetric->volumeAt(n - 1) - m_volumetric->volumeAt(n - 2);
    const double response = std::abs(m_y[m_y.size() - 1] - m_y[m_y.size() - 2]);
    const double dose = double(m_deltaE) * volume / response;
    return std::clamp(toUnsignedVolume(dose), m_deltaVmin, std::max(m_deltaVmin, m_deltaVmax));
}

unsigned int TitrationAlgMKA::run()
{
    unsigned int dose = 0;
    switch (m_state) {
    case MKA_FIRST_READING:
        if (!settledWindowReady())
            break;
        m_additionCount = 0;
        addData();
        logPoint();
        m_state = MKA_FIRST_ADDITION;
        dose = kFirstDose;
        break;
    case MKA_FIRST_ADDITION:
        if (settledWindowReady())
            dose = firstAddition();
        break;
    case MKA_FIRST_ESTIMATE:
        if (settledWindowReady())
            dose = firstEstimate();
        break;
    case MKA_ADDITIONS:
        if (settledWindowReady())
            dose = furtherAddition();
        break;
    case MKA_DONE:
    default:
        break;
    }
    if (dose > 0)
        m_windowStart = -1; // the next addition settles anew
    m_dispensed += dose;
    return dose;
}

bool TitrationAlgMKA::settledWindowReady()
{
    // Stable first; then the readings of the stable window are gathered.
    if (m_windowStart < 0) {
        if (!isStable())
            return false;
        m_windowStart = m_temporal->size();
    }
    return m_temporal->size() - m_windowStart >= kWindowReadings;
}

unsigned int TitrationAlgMKA::firstAddition()
{
    const double d = responseSinceLastPoint();
    if (d < m_deltaE * 0.8f && m_extraDoses < kMaxTopUps) {
        ++m_extraDoses;
        return std::min(topUpDose(d), kFirstTopUpCap);
    }
    m_extraDoses = 0;
    m_state = MKA_FIRST_ESTIMATE;
    return 0;
}

unsigned int TitrationAlgMKA::firstEstimate()
{
    ++m_additionCount;
    addData();
    m_expectedSlope *= curveRising() ? 1.0 : -1.0;
    setLimits();

    // One known addition: the sample's concentration from the first step.
    const double v0 = double(m_totalVolume);
    const double a = v0 / (v0 + m_x[1]);
    const double q = std::pow(10.0, (m_y[1] - m_y[0]) / m_expectedSlope);
    double c = std::abs((1.0 - a) * double(m_standard) / (q - a));
    if (!std::isfinite(c))
        c = kHighestConcentration;
    m_p[0] = std::clamp(c, kLowestConcentration, kHighestConcentration);
    m_concentration = reportConcentration(m_p[0]);
    m_concentrations.push_back(m_concentration);
    m_p[2] = m_expectedSlope;
    m_p[1] = m_y[0] - m_expectedSlope * std::log10(m_p[0]);

    logPoint();
    m_state = MKA_ADDITIONS;
    return stepDose();
}

unsigned int TitrationAlgMKA::furtherAddition()
{
    const double d = responseSinceLastPoint();
    if (d < m_deltaE * 0.8f && m_extraDoses < kMaxTopUps && !isEnded()) {
        ++m_extraDoses;
        const unsigned int dose = topUpDose(d);
        qDebug() << "not quite yet" << d << dose;
        return dose;
    }
    m_model.slopeFixed = false;
    ++m_additionCount;
    m_extraDoses = 0;
    addData();

    fitPoints();
    m_concentration = reportConcentration(m_p[0]);
    m_concentrations.push_back(m_concentration);
    updatePrecision();
    logPoint();

    if (isEnded()) {
        m_state = MKA_DONE;
        m_finished = true;
        computeSpikeRecovery();
        reportCompletion();
        return 0;
    }
    return stepDose();
}

bool TitrationAlgMKA::runFit(Eigen::VectorXd &p, const Eigen::VectorXd &lower, const Eigen::VectorXd &upper)
{
    const Eigen::VectorXd start = p;
    m_lastFit = KnownAdditionFit::fit(m_model, m_x, m_y, m_w, p, lower, upper, m_settings);
    if (m_lastFit.status != KnownAdditionFit::Status::Singular)
        return true;
    // An iteration with no inverse tells nothing: keep the estimate it started from.
    p = start.cwiseMax(lower).cwiseMin(upper);
    ++m_singularFits;
    qDebug() << "known addition: singular fit of" << m_model.parameterCount() << "parameters at addition"
             << m_additionCount;
    m_log.write(QStringLiteral("Singular fit, %1 parameters, addition %2\r\n")
                    .arg(m_model.parameterCount())
                    .arg(m_additionCount));
    return false;
}

void TitrationAlgMKA::fitPoints()
{
    const bool fitted = runFit(m_p, m_lower, m_upper);
    const bool slopeAtLimit = nearlyEqual(m_p[2], m_lower[2]) || nearlyEqual(m_p[2], m_upper[2]);
    if (fitted && !slopeAtLimit)
        return;

    // The slope ran into its limit (or could not be fitted): hold it at the
    // expected value and fit C and E0 alone.
    m_model.slopeFixed = true;
    m_model.fixedSlope = m_expectedSlope;
    Eigen::VectorXd p = m_p.head(2);
    runFit(p, m_lower.head(2), m_upper.head(2));
    m_p.head(2) = p;
    m_p[2] = m_expectedSlope;
}

float TitrationAlgMKA::reportConcentration(double c)
{
    const double inSample = (c - double(m_blank)) * double(m_totalVolume) / double(m_sampleBasis);
    return m_dm->mkaConvertResult(float(inSample));
}

void TitrationAlgMKA::updatePrecision()
{
    const size_t n = m_concentrations.size();
    if (n < 3)
        return;
    const double mean = (m_concentrations[n - 1] + m_concentrations[n - 2] + m_concentrations[n - 3]) / 3.0;
    double squares = 0.0;
    for (size_t i = n - 3; i < n; ++i)
        squares += (m_concentrations[i] - mean) * (m_concentrations[i] - mean);
    m_precision = float(std::sqrt(squares / 3.0) * 100.0 / std::abs(m_concentrations.back()));
}

bool TitrationAlgMKA::isEnded()
{
    const unsigned int maxVolume = maxVolumeUl();
    if (m_dispensed >= maxVolume) {
        reasonForEnd = QStringLiteral("Reached max dispense vol: ") + QString::number(double(maxVolume), 'g', 6);
        return true;
    }
    if (m_additionCount >= kMaxAdditions)
        return true;
    return m_precision < m_requiredPrecision;
}

void TitrationAlgMKA::logPoint()
{
    const double volume = m_dispensed / 1000.0;
    const double drift = double(m_drift) * 60.0;
    qDebug() << "addition" << m_additionCount << "dispensed" << m_dispensed << "mV" << m_y.back();
    qDebug() << "E0 slope conc Precision:" << m_p[1] << m_p[2] << m_concentration << m_precision;
    emit sigMKAPointsToUI(volume, m_y.back(), m_concentration, double(m_precision), drift, m_p[2], m_p[1]);
    m_log.write(QStringLiteral("%1, %2, %3, %4, %5, %6, %7, %8\r\n")
                    .arg(m_additionCount)
                    .arg(volume)
                    .arg(m_y.back())
                    .arg(m_p[1])
                    .arg(m_p[2])
                    .arg(m_concentration)
                    .arg(double(m_precision))
                    .arg(drift));
}

void TitrationAlgMKA::computeSpikeRecovery()
{
    if (m_x.size() < 3)
        return;
    // The third point against what the fit says the standard should have added.
    const float v = float(m_x[2]);
    const float v0 = m_totalVolume;
    const float measured = std::pow(10.0f, (float(m_y[2]) - float(m_p[1])) / float(m_p[2]));
    const float recovery = (measured - float(m_p[0]) * v0 / (v + v0)) * 100.0f / (v * m_standard / (v + v0));
    qDebug() << "spike recovery" << recovery;
    // A standard of nothing or a fit without a slope recovers nothing that can be shown.
    m_spikeRecovery = std::isfinite(recovery) ? recovery : 0.f;
}

void TitrationAlgMKA::reportCompletion()
{
    emit sigMKACompleteToUI(m_concentration, m_p[2], double(m_spikeRecovery));
    m_log.write(QStringLiteral("Spike Recovery: %1\r\n").arg(double(m_spikeRecovery)));
}
