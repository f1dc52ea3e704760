#include "controller/algorithms/titrationalgorithmbase.h"

#include "controller/algorithms/maths/unsignedvolume.h"
#include "controller/algorithms/temporaldatastore.h"
#include "controller/algorithms/volumetricdatastore.h"
#include "interfaces/enginedatainterface.h"
#include "system/clock.h"

#include <QDebug>

#include <algorithm>
#include <cmath>

namespace {
const unsigned int kLargestPreDoseStep = 2000; // µL
const float kPhInitialStability = 0.08333f;     // mV/s
}

TitrationAlgorithmBase::TitrationAlgorithmBase(TemporalDataStore *temporal, VolumetricDataStore *volumetric,
                                               QObject *parent)
    : QObject(parent)
    , m_temporal(temporal)
    , m_volumetric(volumetric)
    , m_dm(EngineData::get())
{
    TitrationAlgorithmBase::setProcessControlParams();
    restartStabilityTimer();
    m_endPointsWanted = quint8(std::clamp(m_dm->getNoOfEndpoints(), 0, 255));
}

TitrationAlgorithmBase::~TitrationAlgorithmBase() = default;

void TitrationAlgorithmBase::restartStabilityTimer()
{
    m_stabilityStart = Clock::monotonicMs();
}

qint64 TitrationAlgorithmBase::stabilityElapsed() const
{
    return Clock::monotonicMs() - m_stabilityStart;
}

unsigned int TitrationAlgorithmBase::preDoseUl() const
{
    return toUnsignedVolume(m_dm->getPreDoseTitrantVolume() * 1000.f);
}

unsigned int TitrationAlgorithmBase::maxVolumeUl() const
{
    return toUnsignedVolume(m_dm->getTitratrationOrStandardardizationMaxVolmL() * 1000.f);
}

void TitrationAlgorithmBase::setProcessControlParams()
{
    qDebug() << "default setProcessControlParams";
    m_processControl = m_dm->getTitrationProcessCtrl();
    m_electrode = m_dm->getElectrode();
    m_firstDose = preset(m_presets.defaultDose);
    m_stabilitySlope = preset(m_presets.dEdt);
    m_tMin = preset(m_presets.tMin);
    m_tMax = preset(m_presets.tMax);
    m_volumetric->setMinimumVolume(double(preDoseUl()) + m_firstDose);
    m_volumetric->setCurvatureLimit(preset(m_presets.curvatureLimit));
}

void TitrationAlgorithmBase::dispenseComplete()
{
    restartStabilityTimer();
    afterDispense();
}

void TitrationAlgorithmBase::afterDispense()
{
}

void TitrationAlgorithmBase::onStart()
{
}

unsigned int TitrationAlgorithmBase::initialDose()
{
    return 0;
}

bool TitrationAlgorithmBase::isFinished()
{
    return m_finished;
}

bool TitrationAlgorithmBase::isStable()
{
    if (m_dm->getDispenseInProgress())
        return false;
    const double first = m_temporal->lastFirstDerivative();
    m_drift = float(first);
    const qint64 elapsed = stabilityElapsed();
    if (elapsed <= qint64(m_tMin))
        return false;

    const float s = m_stabilitySlope;
    const double second = m_temporal->lastSecondDerivative();
    if (std::abs(first) < s && std::abs(second) < s * 4.0) {
        qDebug() << "Stability slope condition met.  Required:" << s << " currently: " << m_drift
                 << "current second derivative" << second << "Stability met at time:" << elapsed;
        return true;
    }
    if (elapsed <= qint64(m_tMax))
        return false;
    qDebug() << "Stability max wait time expired at:" << elapsed << "slope is" << m_drift << "Required" << s;
    return true;
}

void TitrationAlgorithmBase::updateMaxSlope()
{
    const int n = m_volumetric->size();
    double slope = 0.0;
    if (n >= 2) {
        const double dE = std::clamp(std::abs(m_volumetric->dataAt(n - 1) - m_volumetric->dataAt(n - 2)), 1e-9, 10000.0);
        slope = dE / (m_volumetric->volumeAt(n - 1) - m_volumetric->volumeAt(n - 2));
        // Two points at one volume tell nothing about the slope.
        if (!std::isfinite(slope))
            slope = 0.0;
    }
    const bool inTime = stabilityElapsed() <= qint64(m_tMax);
    if (slope > m_maxSlope)
        m_maxSlope = slope;
    else if (m_lastStepInTime && inTime)
        m_maxSlope = (slope + m_maxSlope) * 0.5;
    m_lastStepInTime = inTime;
}

void TitrationAlgorithmBase::addData()
{
    double reading = 0.0;
    m_temporal->lastFiltered(reading);
    m_volumetric->addPoint(double(m_dispensed), reading);
}

unsigned int TitrationAlgorithmBase::nextDose()
{
    if (!isStable())
        return 0;
    addData();
    return m_firstDose;
}

unsigned int TitrationAlgorithmBase::doseForStep(double dE)
{
    double dose = dE / m_maxSlope;

    if (stabilityElapsed() > qint64(m_tMax)) {
        // Ended by time-out: the further the drift from quiet, the smaller
        // the dose. A drift of 0 (or none known) gives the cap.
        double f = double(m_stabilitySlope * 0.9f) / std::abs(m_temporal->lastFirstDerivative());
        if (!(f <= double(0.9f)))
            f = 0.9f;
        dose *= f;
    }

    const double limit = double(m_lastDose) * m_doseGrowth;
    if (dose > limit)
        dose = limit;
    if (double(m_deltaVmin) > dose)
        dose = m_deltaVmin;

    // Nothing larger than the cylinder, nothing below zero, before it becomes
    // an unsigned volume.
    const double cylinder = double(m_dm->buretteSize()) * 1000.0;
    unsigned int out = cylinder > 0.0 ? toUnsignedVolume(dose, cylinder) : toUnsignedVolume(dose);
    out = std::clamp(out, m_deltaVmin, std::max(m_deltaVmin, m_deltaVmax));

    const unsigned int maxVolume = maxVolumeUl();
    if (m_dispensed >= maxVolume)
        out = 0;
    else if (m_dispensed + out > maxVolume)
        out = maxVolume - m_dispensed;

    if (m_firstDoseFlag) {
        m_firstDoseFlag = false;
        out = m_firstDose;
    }
    qDebug() << "output dose" << out;
    m_lastDose = out;
    return out;
}

bool TitrationAlgorithmBase::isEnded()
{
    const int found = m_volumetric->peakCount();
    m_endPointsFound = quint8(std::clamp(found, 0, 255));
    const unsigned int maxVolume = maxVolumeUl();
    if (m_dispensed >= maxVolume) {
        reasonForEnd = QStringLiteral("Reached max dispense vol: ") + QString::number(double(maxVolume), 'g', 6);
        return true;
    }
    if (found < m_endPointsWanted)
        return false;
    reasonForEnd = QStringLiteral("Reached final equivalence point at count: ") + QString::number(found);
    return true;
}

std::array<double, 3> TitrationAlgorithmBase::getResults()
{
    std::array<double, 3> results{{0.0, 0.0, 0.0}};
    for (int i = 0; i < std::min<int>(m_endPointsWanted, 3); ++i)
        results[i] = m_volumetric->peakVolume(i);
    return results;
}

unsigned int TitrationAlgorithmBase::run()
{
    unsigned int dose = 0;
    switch (m_phase) {
    case ALG_INITIAL_READING:
        if (m_dm->displayUnits() == QLatin1String("pH")) {
            m_stabilitySlope = kPhInitialStability;
            m_tMax = preset(m_presets.settleTMax);
        }
        if (!isStable())
            break;
        m_stabilitySlope = preset(m_presets.dEdt);
        m_tMax = preset(m_presets.tMax);
        qDebug() << "Initial pH complete at time:" << stabilityElapsed();
        m_phase = preDoseUl() == 0 ? ALG_INITIAL_DOSES : ALG_PREDOSE;
        break;

    case ALG_PREDOSE: {
        const unsigned int preDose = preDoseUl();
        if (m_dispensed >= preDose) {
            m_phase = ALG_PREDOSE_SETTLE;
            break;
        }
        if (isStable()) {
            addData();
            dose = std::min(preDose - m_dispensed, kLargestPreDoseStep);
        }
        break;
    }

    case ALG_PREDOSE_SETTLE:
        m_tMin = preset(m_presets.settleTMin);
        m_tMax = preset(m_presets.settleTMax);
        if (!isStable())
            break;
        m_tMin = preset(m_presets.tMin);
        m_tMax = preset(m_presets.tMax);
        restartStabilityTimer();
        m_phase = ALG_INITIAL_DOSES;
        break;

    case ALG_INITIAL_DOSES:
        dose = initialDose();
        if (dose == 0)
            m_phase = ALG_TITRATING;
        break;

    case ALG_TITRATING:
        if (isEnded())
            m_phase = ALG_FINAL_POINT;
        else
            dose = nextDose();
        break;

    case ALG_FINAL_POINT:
        if (isStable()) {
            addData();
            m_phase = ALG_DONE;
            m_finished = true;
        }
        break;

    case ALG_DONE:
    default:
        break;
    }
    m_dispensed += dose;
    return dose;
}
