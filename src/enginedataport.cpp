#include "enginedataport.h"

#include "meter/cmeasurementcontext.h"
#include "models/concentrationcalc.h"
#include "models/electrodesetupmodel.h"
#include "models/methodmodel.h"
#include "models/setupmodel.h"
#include "models/titrantsetupmodel.h"
#include "models/titrationcyclemodel.h"
#include "models/titrationmodel.h"
#include "models/titrationsetupmodel.h"
#include "productidentity.h"
#include "reports/logmanager.h"
#include "runcyclelists.h"

#include <QDebug>

#include <cmath>

const QString EngineDataPort::modeTitration = QStringLiteral("Titration");
const QString EngineDataPort::modeStandardization = QStringLiteral("Standardization");

namespace {

constexpr float kNoProbeCelsius = 125.0f;

std::unique_ptr<LogManager> cyclicLog(const char *dir, const char *basename)
{
    auto log = std::make_unique<LogManager>();
    log->setLogfileDir(QString::fromLatin1(dir));
    log->setLogfileBasename(QString::fromLatin1(basename));
    return log;
}

} // namespace

EngineDataPort::EngineDataPort(ProductIdentity *identity, RunCycleLists *runCycles, QObject *parent)
    : QObject(parent),
      m_identity(identity),
      m_runCycles(runCycles),
      m_ownContext(std::make_unique<CMeasurementContext>())
{
    m_context = m_ownContext.get();
    EngineData::set(this);
}

EngineDataPort::~EngineDataPort()
{
    if (EngineData::get() == this)
        EngineData::set(nullptr);
}

void EngineDataPort::setMeasurementContext(CMeasurementContext *context)
{
    m_context = context ? context : m_ownContext.get();
}

ElectrodeSetupModel *EngineDataPort::electrode() const
{
    return m_method ? m_method->electrodeSetupModel() : nullptr;
}

TitrantSetupModel *EngineDataPort::titrant() const
{
    return m_method ? m_method->titrantSetupModel() : nullptr;
}

TitrationSetupModel *EngineDataPort::titration() const
{
    return m_method ? m_method->titrationSetupModel() : nullptr;
}

TitrationModel *EngineDataPort::run() const
{
    return m_method ? m_method->titrationModel() : nullptr;
}

// ---- Mode ----

void EngineDataPort::setDeviceMode(const QString &mode)
{
    if (m_deviceMode == mode)
        return;
    m_deviceMode = mode;
    emit changed();
}

void EngineDataPort::setBlankTitrationMode(bool on)
{
    if (m_blankTitrationMode == on)
        return;
    m_blankTitrationMode = on;
    emit changed();
}

// ---- The engine's method parameters ----

float EngineDataPort::byMode(float (*fromTitration)(const TitrationSetupModel &),
                             float (*fromTitrant)(const TitrantSetupModel &)) const
{
    if (!m_method)
        return kNotInThisMode;
    if (inTitration())
        return fromTitration(*titration());
    if (inStandardization())
        return fromTitrant(*titrant());
    return kNotInThisMode;
}

bool EngineDataPort::backTitration() const
{
    return titration()->titrationType() == QLatin1String("Back Titration");
}

bool EngineDataPort::directBlank() const
{
    return inTitration() && m_method && m_blankTitrationMode && !backTitration();
}

int EngineDataPort::getNoOfEndpoints() const
{
    if (m_blankTitrationMode)
        return 1;
    return int(byMode([](const TitrationSetupModel &t) { return float(t.noOfEndPoints()); },
                      [](const TitrantSetupModel &t) { return float(t.noOfEndPoints()); }));
}

float EngineDataPort::getEndpointValue_First() const
{
    return byMode([](const TitrationSetupModel &t) { return t.endPointValues(); },
                  [](const TitrantSetupModel &t) { return t.endPointsValues(); });
}

float EngineDataPort::getEndpointValue_Second() const
{
    return byMode([](const TitrationSetupModel &t) { return t.endPointValues_Second(); },
                  [](const TitrantSetupModel &t) { return t.endPointsValueSecond(); });
}

float EngineDataPort::getEndpointValue_Third() const
{
    // The titrant part has two end points; its second stands for the third.
    return byMode([](const TitrationSetupModel &t) { return t.endPointValues_Third(); },
                  [](const TitrantSetupModel &t) { return t.endPointsValueSecond(); });
}

int EngineDataPort::getTitrationTechnique() const
{
    if (inTitration() && m_method && electrode()->electrodeType() == QLatin1String("ISE-MKA"))
        return TitrationSetupModel::titrationTechniqueMap.value(QStringLiteral("Multiple Known Addition"));
    return int(byMode(
        [](const TitrationSetupModel &t) {
            return float(TitrationSetupModel::titrationTechniqueMap.value(t.titrationTechnique()));
        },
        [](const TitrantSetupModel &t) {
            return float(TitrationSetupModel::titrationTechniqueMap.value(t.standTechnique()));
        }));
}

int EngineDataPort::getTitrationProcessCtrl() const
{
    if (directBlank())
        return TitrationSetupModel::titrationProcessCtrlMap.value(QStringLiteral("Careful"));
    return int(byMode(
        [](const TitrationSetupModel &t) {
            return float(TitrationSetupModel::titrationProcessCtrlMap.value(t.titrationProcessControl()));
        },
        [](const TitrantSetupModel &t) {
            return float(TitrationSetupModel::titrationProcessCtrlMap.value(t.standProcessControl()));
        }));
}

int EngineDataPort::getMKAProcessCtrl() const
{
    if (!m_method)
        return kNotInThisMode;
    return TitrationSetupModel::titrationProcessCtrlMap.value(titration()->mkaProcessControl());
}

float EngineDataPort::getDeltaE() const
{
    return byMode([](const TitrationSetupModel &t) { return t.deltaE(); },
                  [](const TitrantSetupModel &t) { return t.deltaE(); });
}

float EngineDataPort::getDeltaVmin() const
{
    return byMode([](const TitrationSetupModel &t) { return t.deltaVmin(); },
                  [](const TitrantSetupModel &t) { return t.deltaVmin(); });
}

float EngineDataPort::getDeltaVmax() const
{
    return byMode([](const TitrationSetupModel &t) { return t.deltaVmax(); },
                  [](const TitrantSetupModel &t) { return t.deltaVmax(); });
}

float EngineDataPort::getStabilityCriteria() const
{
    return byMode([](const TitrationSetupModel &t) { return t.stablityCriteria(); },
                  [](const TitrantSetupModel &t) { return t.stablityCriteria(); });
}

float EngineDataPort::gettMin() const
{
    return byMode([](const TitrationSetupModel &t) { return float(t.tMin()); },
                  [](const TitrantSetupModel &t) { return float(t.tMin()); });
}

float EngineDataPort::gettMax() const
{
    return byMode([](const TitrationSetupModel &t) { return float(t.tMax()); },
                  [](const TitrantSetupModel &t) { return float(t.tMax()); });
}

float EngineDataPort::getThreshold() const
{
    return byMode([](const TitrationSetupModel &t) { return float(t.threshold()); },
                  [](const TitrantSetupModel &t) { return float(t.threshold()); });
}

float EngineDataPort::getPreDoseTitrantVolume() const
{
    if (directBlank())
        return 0.0f;
    return byMode([](const TitrationSetupModel &t) { return t.preDoseTitrantVolume(); },
                  [](const TitrantSetupModel &t) { return t.preDoseTitrantVolume(); });
}

int EngineDataPort::getTitratrationOrStandardardizationPreStir() const
{
    if (!m_method)
        return 0;
    if (inTitration())
        return int(titration()->preStirDuration());
    if (inStandardization())
        return int(titrant()->preStirDuration());
    return 0;
}

float EngineDataPort::getTitratrationOrStandardardizationMaxVolmL() const
{
    if (!m_method)
        return 0.0f;
    if (inTitration())
        return titration()->maxTotalTitrantVolume();
    if (inStandardization())
        return titrant()->maxTotalVolume();
    return 0.0f;
}

int EngineDataPort::getIndexOfStirSpeed() const
{
    if (!m_method)
        return 0;
    return stirSpeedIndex(inTitration() ? titration()->stirSpeed() : titrant()->stirSpeed());
}

int EngineDataPort::stirSpeedIndex(const QString &speed)
{
    static const char *const names[] = {"Very Slow", "Slow", "Medium", "Fast", "Very Fast"};
    for (int i = 0; i < 5; ++i) {
        if (speed == QLatin1String(names[i]))
            return i + 1;
    }
    return 0;
}

int EngineDataPort::getElectrode() const
{
    return m_method ? electrode()->electrodeIndex() : kNotInThisMode;
}

float EngineDataPort::getEndPoint() const
{
    return m_method ? titrant()->endPointsValues() : float(kNotInThisMode);
}

int EngineDataPort::getResolution() const
{
    return m_method ? resolutionDecimals(electrode()->resolution()) : kNotInThisMode;
}

int EngineDataPort::resolutionDecimals(float resolution)
{
    if (!std::isfinite(resolution) || resolution <= 0.0f)
        return 2;
    if (std::fabs(resolution - std::round(resolution)) < 1e-6f)
        return 0;
    for (int decimals = 1; decimals <= 3; ++decimals) {
        if (std::fabs(resolution - std::pow(10.0f, float(-decimals))) < 1e-6f)
            return decimals;
    }
    return 2;
}

float EngineDataPort::buretteSize() const
{
    return m_setup ? float(m_setup->buretteSize()) : 20.0f;
}

QString EngineDataPort::displayUnits() const
{
    return m_method ? titration()->displayUnits() : QString();
}

// ---- Conversions ----

float EngineDataPort::getScaledVal(float millivolts)
{
    switch (getElectrode()) {
    case 0: // pH
        return displayUnits() == QLatin1String("pH") ? millivoltsToPH(millivolts) : millivolts;
    case 1:
    case 2:
    case 3:
        return millivolts;
    default:
        qDebug() << "EngineDataPort: no electrode to scale a reading for; it stays in mV";
        return millivolts;
    }
}

float EngineDataPort::millivoltsToPH(float millivolts)
{
    m_context->SetTemperatuteDegreC(m_temperatureCelcius);
    m_context->SetInsoPotentialPoint(7.0);
    m_context->SetRawMv(millivolts);
    m_context->UpdateMeasurement();
    return float(m_context->GetMeasuredValue());
}

float EngineDataPort::phToMillivolts(float ph)
{
    return float(m_context->Get_Mv_From_pH(ph, m_temperatureCelcius));
}

// ---- Readings and results in ----

void EngineDataPort::setMillivolts(float mv)
{
    m_millivolts = mv;
    emit freshDataAvailable();
}

void EngineDataPort::setRawTemperatureCelcius(float celsius)
{
    m_temperatureRawCelcius = celsius;
    if (celsius >= kNoProbeCelsius) {
        m_temperatureCelcius = m_setup ? m_setup->temperatureInput() : 25.0f;
        m_temperatureProbePresent = false;
        return;
    }
    m_temperatureCelcius = celsius + (m_setup ? m_setup->getTemperatureOffset() : 0.0f);
    m_temperatureProbePresent = true;
    setProbeTemp(celsius);
    emit temperatureDataAvailable(celsius);
}

void EngineDataPort::setProbeTemp(float celsius)
{
    m_probeTemp = celsius;
    emit probeTempChanged();
}

void EngineDataPort::setEpResult2(float value)
{
    m_epResult2 = value;
    if (TitrationModel *r = run())
        r->updateEndPointValues(m_epResult1, m_epResult2);
}

void EngineDataPort::titrationCompleted()
{
    if (!m_method)
        return;
    const double resultUl[3] = {m_resultArray[0], m_resultArray[1], m_resultArray[2]};
    m_method->titrationCompleted(resultUl, m_deviceMode, m_blankTitrationMode);
    emit changed();
}

void EngineDataPort::setMspVersion(const QString &version)
{
    m_identity->setMspVersion(version);
}

QString EngineDataPort::getMspVersion() const
{
    return m_identity->mspVersion();
}

void EngineDataPort::setMfgSerialNum(const QString &serial)
{
    m_identity->setMfgSerialNum(serial);
    // The settings' Files and Info page shows it as setup.mfgSerialNo.
    if (m_setup)
        m_setup->setMfgSerialNo(serial);
}

QString EngineDataPort::getMfgSerialNum() const
{
    return m_identity->mfgSerialNum();
}

void EngineDataPort::setTitrationCoreVersion(const QString &version)
{
    m_identity->setTitrationCoreVersion(version);
}

int EngineDataPort::displayBrightness() const
{
    // The brightness page's scratch level, which equals the stored one but
    // while the page is open: + and - reach the backlight at once.
    return m_setup ? m_setup->tempDisplayBrightness() : 3;
}

// ---- Live state ----

void EngineDataPort::setQmlStirrerState(bool on)
{
    if (m_qmlStirrerState == on)
        return;
    m_qmlStirrerState = on;
    emit changed();
}

void EngineDataPort::setQmlStirSpeed(int speed)
{
    if (m_qmlStirSpeed == speed)
        return;
    m_qmlStirSpeed = speed;
    emit changed();
}

void EngineDataPort::setRinseCycles(int cycles)
{
    if (m_rinseCycles == cycles)
        return;
    m_rinseCycles = cycles;
    emit rinseCyclesChanged();
}

// ---- The run's records ----

void EngineDataPort::beginRunRecords()
{
    if (ElectrodeSetupModel *e = electrode())
        e->setIsElectrodeChanged(false);
    if (TitrantSetupModel *t = titrant())
        t->setIsTitrantChanged(false);
    if (TitrationSetupModel *t = titration())
        t->setIsTitrationChanged(false);
    m_runCycles->showRun();
    // Made now: the cycle's stopwatch is its running time.
    if (TitrationModel *r = run())
        r->startCycle();
}

float EngineDataPort::recordRunPoint(float volumeMl)
{
    const float value = getScaledVal(m_millivolts);
    TitrationModel *r = run();
    if (!r)
        return value;
    r->setMethodId(m_method->id());
    // One cycle object for the whole point: the one the run's cycle number names.
    TitrationCycleModel *cycle = r->currentTitrationCycle();
    if (volumeMl == 0.0f)
        cycle->setInitialpH(QString::number(double(value)));
    cycle->setSampleId(titration()->sampleIDValue());
    cycle->setTitrationId(r->id());
    emit changed();
    cycle->addPoint(volumeMl, value, electrode()->resolution(), titration()->displayUnits());
    return value;
}

TitrationRecordParameters EngineDataPort::titrationRecordParameters() const
{
    TitrationRecordParameters p;
    if (const TitrationSetupModel *t = titration()) {
        p.technique = t->titrationTechnique();
        p.displayUnits = t->displayUnits();
        p.processControl = t->titrationProcessControl();
        p.preDoseMl = t->preDoseTitrantVolume();
        p.maxVolumeMl = t->maxTotalTitrantVolume();
        p.noOfEndPoints = t->noOfEndPoints();
    }
    return p;
}

// ---- Multiple known addition ----

float EngineDataPort::getTotalSolutionVolume() const
{
    const TitrationSetupModel *t = titration();
    return t ? t->totalSolutionVolume() : 0.0f;
}

float EngineDataPort::getMKAProcessCtrlConstant() const
{
    const TitrationSetupModel *t = titration();
    return t ? t->mkaProcessControlConstant() : 0.0f;
}

float EngineDataPort::getMKAProcessCtrlMeasurement() const
{
    const TitrationSetupModel *t = titration();
    return t ? t->mkaProcessControlMeasurement() : 0.0f;
}

float EngineDataPort::getMKAProcessCtrlPrecision() const
{
    const TitrationSetupModel *t = titration();
    return t ? t->mkaProcessControlPrecision() : 0.0f;
}

float EngineDataPort::getMKAStandardConcentration() const
{
    const TitrantSetupModel *t = titrant();
    return t ? t->titrantConcentrationMolar() : 0.0f;
}

float EngineDataPort::getMKABlank() const
{
    const TitrationSetupModel *t = titration();
    if (!t || t->blankRequired() != QLatin1String("Manual Entry"))
        return 0.0f;
    return t->blankRequiredValue();
}

float EngineDataPort::getMKASampleBasis() const
{
    // Without a method the sample is the default one: 1 mL, result in mol/L.
    const TitrationSetupModel *t = titration();
    return t ? t->mkaSampleBasis() : ConcentrationCalc::mkaSampleBasis(ConcentrationCalc::Sample(), 1.0f);
}

float EngineDataPort::mkaConvertResult(float molPerL)
{
    const TitrationSetupModel *t = titration();
    return t ? t->mkaConvertResult(molPerL) : ConcentrationCalc::mkaConvertResult(molPerL, ConcentrationCalc::Sample());
}

void EngineDataPort::getSigMKAPointsToUI(QVariant volume, QVariant mV, QVariant calConc, QVariant precision,
                                         QVariant drift, QVariant slope, QVariant e0)
{
    // The screens collect the additions and hand them to the run model.
    emit sigMKAPointsToUI(QString::number(volume.toDouble()), QString::number(mV.toDouble()),
                          QString::number(calConc.toDouble()), QString::number(precision.toDouble()),
                          QString::number(drift.toDouble()), QString::number(slope.toDouble()),
                          QString::number(e0.toDouble()));
}

void EngineDataPort::getMKATitrationCompleted(QVariant conc, QVariant slope, QVariant spike)
{
    emit mkaTitrationCompleted(QString::number(conc.toDouble()), QString::number(slope.toDouble()),
                               QString::number(spike.toDouble()));
}

// ---- The engine's cyclic logs ----

LogManager *EngineDataPort::titrationLogFile()
{
    if (!m_titrationLogFile)
        m_titrationLogFile = cyclicLog("logFiles/titrationLogs", "titration");
    return m_titrationLogFile.get();
}

LogManager *EngineDataPort::rawTitrationLogFile()
{
    if (!m_rawTitrationLogFile)
        m_rawTitrationLogFile = cyclicLog("logFiles/rawTitrationLogs", "rawTitration");
    return m_rawTitrationLogFile.get();
}
