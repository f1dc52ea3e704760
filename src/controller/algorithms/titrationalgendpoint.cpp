#include "controller/algorithms/titrationalgendpoint.h"

#include "controller/algorithms/maths/unsignedvolume.h"
#include "controller/algorithms/maths/volumetricmath.h"
#include "controller/algorithms/temporaldatastore.h"
#include "controller/algorithms/volumetricdatastore.h"
#include "interfaces/enginedatainterface.h"

#include <QDebug>

#include <algorithm>
#include <cmath>
#include <limits>

TitrationAlgEndPoint::TitrationAlgEndPoint(TemporalDataStore *temporal, VolumetricDataStore *volumetric,
                                           QObject *parent)
    : TitrationAlgorithmBase(temporal, volumetric, parent)
{
    m_endPoints = {{double(m_dm->getEndpointValue_First()), double(m_dm->getEndpointValue_Second()),
                    double(m_dm->getEndpointValue_Third())}};
    TitrationAlgEndPoint::setProcessControlParams();
}

void TitrationAlgEndPoint::setProcessControlParams()
{
    using Presets = ProcessControlPresets;
    // What the method says for "User Defined".
    Presets::setUserValue(m_presets.deltaE, m_electrode, m_dm->getDeltaE());
    Presets::setUserValue(m_presets.deltaVmax, m_electrode, toUnsignedVolume(m_dm->getDeltaVmax() * 1000.f));
    Presets::setUserValue(m_presets.deltaVmin, m_electrode, toUnsignedVolume(m_dm->getDeltaVmin() * 1000.f));
    Presets::setUserValue(m_presets.dEdt, m_electrode, m_dm->getStabilityCriteria() / 60.0f);
    Presets::setUserValue(m_presets.tMin, m_electrode, toUnsignedVolume(m_dm->gettMin() * 1000.f));
    Presets::setUserValue(m_presets.tMax, m_electrode, toUnsignedVolume(m_dm->gettMax() * 1000.f));

    m_firstDose = preset(m_presets.firstDose);
    m_deltaE = preset(m_presets.deltaE);
    m_deltaVmax = preset(m_presets.deltaVmax);
    m_deltaVmin = preset(m_presets.deltaVmin);
    m_stabilitySlope = preset(m_presets.dEdt);
    m_endPointBand = preset(m_presets.endPointBand);

    // The peak search plays no part in the end; it only keeps the curve.
    m_volumetric->setMinimumVolume(double(preDoseUl()) + 4.0 * m_firstDose);
}

void TitrationAlgEndPoint::onStart()
{
    // From here on the run works in mV, with the conversion of this moment.
    if (m_dm->displayUnits() != QLatin1String("pH"))
        return;
    for (double &e : m_endPoints)
        e = double(m_dm->phToMillivolts(float(e)));
    qDebug() << "end points in mV:" << m_endPoints[0] << m_endPoints[1] << m_endPoints[2];
}

double TitrationAlgEndPoint::currentTarget() const
{
    // Past the last of three end points the run aims on at the third.
    return m_endPoints[std::min<size_t>(m_endPointsFound, m_endPoints.size() - 1)];
}

unsigned int TitrationAlgEndPoint::nextDose()
{
    if (!isStable())
        return 0;
    addData();
    double reading = 0.0;
    m_temporal->lastFiltered(reading);
    const double step = std::max(std::abs(reading - currentTarget()) * kApproachFactor, double(preset(m_presets.deltaE)));
    m_deltaE = float(step);
    updateMaxSlope();
    unsigned int dose = doseForStep(step);

    // Never aim past the end point: the slope learnt so far can be far
    // below the slope ahead, so the dose is held to the distance left over
    // the curve's present slope, with a safety factor. The smallest dose
    // still moves the run on, over the end point by the band.
    // Where the slope grows from dose to dose a break lies ahead (the slope
    // of a curve running into an equivalence goes as one over the distance
    // to it), and no dose goes more than part of the way to it either.
    const double slope = presentSlope();
    double limit = std::numeric_limits<double>::infinity();
    if (slope > 0.0)
        limit = kAimFactor * std::abs(reading - currentTarget()) / slope;
    limit = std::min(limit, kAimFactor * distanceToBreak());
    if (double(dose) > limit && dose > m_deltaVmin) {
        dose = std::max(m_deltaVmin, toUnsignedVolume(limit));
        m_lastDose = dose;
    }
    return dose;
}

double TitrationAlgEndPoint::distanceToBreak() const
{
    // From the slopes of the last two segments: s ~ 1 / (Vb - v) puts the
    // break Vb at (m2 - m1) / (s2 / s1 - 1) past the last segment's middle.
    const int n = m_volumetric->size();
    if (n < 3)
        return std::numeric_limits<double>::infinity();
    const double v0 = m_volumetric->volumeAt(n - 3), v1 = m_volumetric->volumeAt(n - 2), v2 = m_volumetric->volumeAt(n - 1);
    if (!(v1 > v0 && v2 > v1))
        return std::numeric_limits<double>::infinity();
    const double s1 = std::abs(m_volumetric->dataAt(n - 2) - m_volumetric->dataAt(n - 3)) / (v1 - v0);
    const double s2 = std::abs(m_volumetric->dataAt(n - 1) - m_volumetric->dataAt(n - 2)) / (v2 - v1);
    if (!(s1 > 0.0) || !(s2 > s1) || !std::isfinite(s2))
        return std::numeric_limits<double>::infinity();
    const double ahead = 0.5 * (v2 - v0) / (s2 / s1 - 1.0) - 0.5 * (v2 - v1);
    return std::max(ahead, 0.0);
}

double TitrationAlgEndPoint::presentSlope() const
{
    // mV per µL between the last two settled readings; 0 if not known.
    const int n = m_volumetric->size();
    if (n < 2)
        return 0.0;
    const double dv = m_volumetric->volumeAt(n - 1) - m_volumetric->volumeAt(n - 2);
    const double slope = std::abs(m_volumetric->dataAt(n - 1) - m_volumetric->dataAt(n - 2)) / dv;
    return dv > 0.0 && std::isfinite(slope) ? slope : 0.0;
}

bool TitrationAlgEndPoint::crossingVolume(double target, double &volume) const
{
    // The first pair of settled readings on either side of the end point,
    // joined by a straight line: the last doses before it are small.
    const int n = m_volumetric->size();
    for (int i = 0; i + 1 < n; ++i) {
        const double a = m_volumetric->dataAt(i), b = m_volumetric->dataAt(i + 1);
        if ((a < target && target <= b) || (a > target && target >= b)) {
            const double va = m_volumetric->volumeAt(i), vb = m_volumetric->volumeAt(i + 1);
            volume = va + (target - a) / (b - a) * (vb - va);
            return std::isfinite(volume);
        }
    }
    return false;
}

bool TitrationAlgEndPoint::isEnded()
{
    const unsigned int maxVolume = maxVolumeUl();
    if (m_dispensed >= maxVolume) {
        reasonForEnd = QStringLiteral("Max volume reached: ") + QString::number(double(maxVolume), 'g', 6);
        return true;
    }
    const int n = m_volumetric->size();
    if (n < 4)
        return false;
    double firstVolume = 0.0;
    double first = 0.0;
    if (!m_volumetric->getVolumeAndData(0, firstVolume, first)) {
        qDebug() << "Error: no data at point 1 in volume data store!";
        return false;
    }
    const double last = m_volumetric->dataAt(n - 1);
    if (std::abs(last - first) < kDirectionGate)
        return false;

    const bool rising = last > first;
    const double target = currentTarget();
    const bool passed = rising ? last > target + m_endPointBand : last < target - m_endPointBand;
    if (!passed)
        return false;
    ++m_endPointsFound;
    qDebug() << "end point" << m_endPointsFound << "passed at" << m_dispensed << "uL," << last << "mV";
    if (m_endPointsFound < m_endPointsWanted)
        return false;
    reasonForEnd = (rising ? QStringLiteral("Passed above final endpoint: ")
                           : QStringLiteral("Passed below final endpoint: "))
                   + QString::number(target, 'g', 6);
    return true;
}

std::array<double, 3> TitrationAlgEndPoint::getResults()
{
    std::array<double, 3> results{{0.0, 0.0, 0.0}};
    for (int i = 0; i < std::min<int>(m_endPointsWanted, 3); ++i) {
        double volume = 0.0;
        if (!crossingVolume(m_endPoints[size_t(i)], volume))
            volume = double(m_dispensed);
        results[size_t(i)] = volume;
    }
    return results;
}
