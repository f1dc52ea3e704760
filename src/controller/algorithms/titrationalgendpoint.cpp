#include "controller/algorithms/titrationalgendpoint.h"

#include "controller/algorithms/maths/unsignedvolume.h"
#include "controller/algorithms/maths/volumetricmath.h"
#include "controller/algorithms/temporaldatastore.h"
#include "controller/algorithms/volumetricdatastore.h"
#include "interfaces/enginedatainterface.h"

#include <QDebug>

#include <algorithm>
#include <cmath>

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
    return doseForStep(step);
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
        if (!VolumetricMath::volumeAtValue(*m_volumetric, m_endPoints[size_t(i)], volume))
            volume = double(m_dispensed);
        results[size_t(i)] = volume;
    }
    return results;
}
