#include "datamanagerbase.h"

#include "databasestartup.h"

#include "meter/cmeasurementcontext.h"
#include "meterrecords.h"
#include "models/calibrationcyclemodel.h"
#include "models/calibrationmodel.h"
#include "models/measurementmodel.h"
#include "models/dbutil.h"
#include "models/logcapacity.h"
#include "models/logtables.h"
#include "models/electrodesetupmodel.h"
#include "models/methodmodel.h"
#include "models/sysinfomodel.h"
#include "models/titrantsetupmodel.h"
#include "models/titrationsetupmodel.h"
#include "reports/logmanager.h"

#include <QDateTime>
#include <QDebug>
#include <QSqlQuery>
#include <QSqlRecord>

#include <cmath>

const QString DataManagerBase::modeTitration = QStringLiteral("Titration");
const QString DataManagerBase::modeStandardization = QStringLiteral("Standardization");

namespace {

constexpr float kNoProbeCelsius = 125.0f;

} // namespace

DataManagerBase *DataManagerBase::dmPtr()
{
    static DataManagerBase *instance = nullptr;
    if (!instance) {
        instance = new DataManagerBase();
        instance->DataManagerLegacyInit();
    }
    return instance;
}

DataManagerBase::DataManagerBase(QObject *parent)
    : QObject(parent),
      m_ownContext(std::make_unique<CMeasurementContext>())
{
    m_MeasContext = m_ownContext.get();
    m_identity = new ProductIdentity(this);
    connect(m_identity, &ProductIdentity::changed, this, &DataManagerBase::valueChanged);
    connect(m_identity, &ProductIdentity::mspVersionUpdated, this, &DataManagerBase::mspVersionUpdated);
    connect(m_identity, &ProductIdentity::modelStringChanged, this, &DataManagerBase::titratorModelStringChanged);
    connect(m_identity, &ProductIdentity::modelNoChanged, this, &DataManagerBase::titratorModelNoChanged);
    connect(m_identity, &ProductIdentity::serialChanged, this, &DataManagerBase::mfgSerialNumChanged);
    connect(this, &DataManagerBase::freshDataAvailable, this, &DataManagerBase::qmlFreshDataAvailable);
    connect(this, &DataManagerBase::temperatureDataAvailable, this, &DataManagerBase::qmlTemperatureDataAvailable);
    m_logLists = new LogLists(this);
    connect(m_logLists, &LogLists::titrationChanged, this, &DataManagerBase::titrationLogListChanged);
    connect(m_logLists, &LogLists::standardisationChanged, this, &DataManagerBase::standLogListChanged);
    connect(m_logLists, &LogLists::calibrationChanged, this, &DataManagerBase::calibrationLogListChanged);
    connect(m_logLists, &LogLists::measurementChanged, this, &DataManagerBase::measuresChanged);
    m_runCycles = new RunCycleLists([this] { return titrationModel(); }, this);
    m_standardisation = new StandardisationRecords(this);
    connect(m_standardisation, &StandardisationRecords::changed, this, &DataManagerBase::valueChanged);
    m_homeCalibration = new HomeCalibrationState(this);
    connect(m_homeCalibration, &HomeCalibrationState::changed, this, &DataManagerBase::lastCalibrationChanged);
    EngineData::set(this);
}

DataManagerBase::~DataManagerBase()
{
    if (EngineData::get() == this)
        EngineData::set(nullptr);
    if (m_setupModel)
        DataLogSetting::setSource(nullptr);
}

void DataManagerBase::DataManagerLegacyInit()
{
    m_library = new MethodLibrary(this);
    m_methodModel = m_library->current();
    m_setupModel = new SetupModel(this);
    m_library->setSetup(m_setupModel);
    connect(m_library, &MethodLibrary::changed, this, [this] {
        setMethodCount(m_library->count());
        emit valueChanged();
    });
    DataLogSetting::setSource([this] { return m_setupModel->isDatalogFullNotifOn(); });

    m_temperatureCelcius = 25.0f;
    m_temperatureRawCelcius = 25.0f;
    m_slopeTarget = 0.25f;

    titrationLogFile();
    rawTitrationLogFile();


    getLastUpdatedMethod();
    reInitializeMethodModel(currentMethodId());
    getMethodsFromDB();

}

ElectrodeSetupModel *DataManagerBase::electrodeSetupModel() const
{
    return m_methodModel ? m_methodModel->electrodeSetupModel() : nullptr;
}

TitrantSetupModel *DataManagerBase::titrantSetupModel() const
{
    return m_methodModel ? m_methodModel->titrantSetupModel() : nullptr;
}

TitrationSetupModel *DataManagerBase::titrationSetupModel() const
{
    return m_methodModel ? m_methodModel->titrationSetupModel() : nullptr;
}

ObjectListModel *DataManagerBase::methods() const
{
    return m_library ? m_library->view() : nullptr;
}

const QList<MethodModel *> &DataManagerBase::methodList() const
{
    static const QList<MethodModel *> none;
    return m_library ? m_library->methods() : none;
}

void DataManagerBase::setMethodCount(int count)
{
    if (m_methodCount == count)
        return;
    m_methodCount = count;
    emit valueChanged();
}

void DataManagerBase::setMeasurementContext(CMeasurementContext *context)
{
    m_MeasContext = context ? context : m_ownContext.get();
}

// ---- Mode ----

void DataManagerBase::setDeviceMode(const QString &mode)
{
    if (m_deviceMode == mode)
        return;
    m_deviceMode = mode;
    emit valueChanged();
}

void DataManagerBase::setBlankTitrationMode(bool on)
{
    if (m_blankTitrationMode == on)
        return;
    m_blankTitrationMode = on;
    emit valueChanged();
}

void DataManagerBase::setIsCalibrationFromMeasurement(bool on)
{
    if (m_isCalibrationFromMeasurement == on)
        return;
    m_isCalibrationFromMeasurement = on;
    emit valueChanged();
}

void DataManagerBase::setIsStandardizedVal(bool on)
{
    m_standardisation->setStandardized(on);
}

// ---- The engine's method parameters ----

float DataManagerBase::byMode(float (*fromTitration)(const TitrationSetupModel &),
                              float (*fromTitrant)(const TitrantSetupModel &)) const
{
    if (!m_methodModel)
        return kNotInThisMode;
    if (inTitration())
        return fromTitration(*titrationSetupModel());
    if (inStandardization())
        return fromTitrant(*titrantSetupModel());
    return kNotInThisMode;
}

bool DataManagerBase::backTitration() const
{
    return titrationSetupModel()->titrationType() == QLatin1String("Back Titration");
}

int DataManagerBase::getNoOfEndpoints() const
{
    if (m_blankTitrationMode)
        return 1;
    return int(byMode([](const TitrationSetupModel &t) { return float(t.noOfEndPoints()); },
                      [](const TitrantSetupModel &t) { return float(t.noOfEndPoints()); }));
}

float DataManagerBase::getEndpointValue_First() const
{
    return byMode([](const TitrationSetupModel &t) { return t.endPointValues(); },
                  [](const TitrantSetupModel &t) { return t.endPointsValues(); });
}

float DataManagerBase::getEndpointValue_Second() const
{
    return byMode([](const TitrationSetupModel &t) { return t.endPointValues_Second(); },
                  [](const TitrantSetupModel &t) { return t.endPointsValueSecond(); });
}

float DataManagerBase::getEndpointValue_Third() const
{
    // The titrant part has two end points; its second stands for the third.
    return byMode([](const TitrationSetupModel &t) { return t.endPointValues_Third(); },
                  [](const TitrantSetupModel &t) { return t.endPointsValueSecond(); });
}

int DataManagerBase::getTitrationTechnique() const
{
    if (inTitration() && m_methodModel
        && electrodeSetupModel()->electrodeType() == QLatin1String("ISE-MKA"))
        return TitrationSetupModel::titrationTechniqueMap.value(QStringLiteral("Multiple Known Addition"));
    return int(byMode(
        [](const TitrationSetupModel &t) {
            return float(TitrationSetupModel::titrationTechniqueMap.value(t.titrationTechnique()));
        },
        [](const TitrantSetupModel &t) {
            return float(TitrationSetupModel::titrationTechniqueMap.value(t.standTechnique()));
        }));
}

int DataManagerBase::getTitrationProcessCtrl() const
{
    if (inTitration() && m_methodModel && m_blankTitrationMode && !backTitration())
        return TitrationSetupModel::titrationProcessCtrlMap.value(QStringLiteral("Careful"));
    return int(byMode(
        [](const TitrationSetupModel &t) {
            return float(TitrationSetupModel::titrationProcessCtrlMap.value(t.titrationProcessControl()));
        },
        [](const TitrantSetupModel &t) {
            return float(TitrationSetupModel::titrationProcessCtrlMap.value(t.standProcessControl()));
        }));
}

int DataManagerBase::getMKAProcessCtrl() const
{
    if (!m_methodModel)
        return kNotInThisMode;
    return TitrationSetupModel::titrationProcessCtrlMap.value(titrationSetupModel()->mkaProcessControl());
}

float DataManagerBase::getDeltaE() const
{
    return byMode([](const TitrationSetupModel &t) { return t.deltaE(); },
                  [](const TitrantSetupModel &t) { return t.deltaE(); });
}

float DataManagerBase::getDeltaVmin() const
{
    return byMode([](const TitrationSetupModel &t) { return t.deltaVmin(); },
                  [](const TitrantSetupModel &t) { return t.deltaVmin(); });
}

float DataManagerBase::getDeltaVmax() const
{
    return byMode([](const TitrationSetupModel &t) { return t.deltaVmax(); },
                  [](const TitrantSetupModel &t) { return t.deltaVmax(); });
}

float DataManagerBase::getStabilityCriteria() const
{
    return byMode([](const TitrationSetupModel &t) { return t.stablityCriteria(); },
                  [](const TitrantSetupModel &t) { return t.stablityCriteria(); });
}

float DataManagerBase::gettMin() const
{
    return byMode([](const TitrationSetupModel &t) { return float(t.tMin()); },
                  [](const TitrantSetupModel &t) { return float(t.tMin()); });
}

float DataManagerBase::gettMax() const
{
    return byMode([](const TitrationSetupModel &t) { return float(t.tMax()); },
                  [](const TitrantSetupModel &t) { return float(t.tMax()); });
}

float DataManagerBase::getThreshold() const
{
    return byMode([](const TitrationSetupModel &t) { return float(t.threshold()); },
                  [](const TitrantSetupModel &t) { return float(t.threshold()); });
}

float DataManagerBase::getPreDoseTitrantVolume() const
{
    if (inTitration() && m_methodModel && m_blankTitrationMode && !backTitration())
        return 0.0f;
    return byMode([](const TitrationSetupModel &t) { return t.preDoseTitrantVolume(); },
                  [](const TitrantSetupModel &t) { return t.preDoseTitrantVolume(); });
}

int DataManagerBase::getTitratrationOrStandardardizationPreStir() const
{
    if (!m_methodModel)
        return 0;
    if (inTitration())
        return int(titrationSetupModel()->preStirDuration());
    if (inStandardization())
        return int(titrantSetupModel()->preStirDuration());
    return 0;
}

float DataManagerBase::getTitratrationOrStandardardizationMaxVolmL() const
{
    if (!m_methodModel)
        return 0.0f;
    if (inTitration())
        return titrationSetupModel()->maxTotalTitrantVolume();
    if (inStandardization())
        return titrantSetupModel()->maxTotalVolume();
    return 0.0f;
}

int DataManagerBase::getIndexOfStirSpeed() const
{
    if (!m_methodModel)
        return 0;
    return stirSpeedIndex(inTitration() ? titrationSetupModel()->stirSpeed() : titrantSetupModel()->stirSpeed());
}

int DataManagerBase::stirSpeedIndex(const QString &speed)
{
    static const char *const names[] = {"Very Slow", "Slow", "Medium", "Fast", "Very Fast"};
    for (int i = 0; i < 5; ++i) {
        if (speed == QLatin1String(names[i]))
            return i + 1;
    }
    return 0;
}

int DataManagerBase::getElectrode() const
{
    return m_methodModel ? electrodeSetupModel()->electrodeIndex() : kNotInThisMode;
}

float DataManagerBase::getEndPoint() const
{
    return m_methodModel ? titrantSetupModel()->endPointsValues() : float(kNotInThisMode);
}

int DataManagerBase::getResolution() const
{
    return m_methodModel ? resolutionDecimals(electrodeSetupModel()->resolution()) : kNotInThisMode;
}

int DataManagerBase::resolutionDecimals(float resolution)
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

float DataManagerBase::buretteSize() const
{
    return m_setupModel ? float(m_setupModel->buretteSize()) : 20.0f;
}

QString DataManagerBase::displayUnits() const
{
    return m_methodModel ? titrationSetupModel()->displayUnits() : QString();
}

// ---- Conversions ----

float DataManagerBase::getScaledVal(float millivolts)
{
    const int electrode = getElectrode();
    switch (electrode) {
    case 0: // pH
        return displayUnits() == QLatin1String("pH") ? millivoltsToPH(millivolts) : millivolts;
    case 1:
    case 2:
    case 3:
        return millivolts;
    default:
        qDebug() << "DataManagerBase::getScaledVal() ---  ERROR: Unhandled unit";
        return millivolts;
    }
}

float DataManagerBase::millivoltsToPH(float millivolts)
{
    m_MeasContext->SetTemperatuteDegreC(getTemperature());
    m_MeasContext->SetInsoPotentialPoint(7.0);
    m_MeasContext->SetRawMv(millivolts);
    m_MeasContext->UpdateMeasurement();
    return float(m_MeasContext->GetMeasuredValue());
}

float DataManagerBase::phToMillivolts(float ph)
{
    return float(m_MeasContext->Get_Mv_From_pH(ph, getTemperature()));
}

float DataManagerBase::getMeasuredMillivolt(float millivolts)
{
    m_MeasContext->SetTemperatuteDegreC(getTemperature());
    m_MeasContext->SetInsoPotentialPoint(7.0);
    m_MeasContext->SetDisplayResolutionInFloat(0.001f);
    m_MeasContext->SetRawMv(millivolts);
    m_MeasContext->UpdateMeasurement();
    return float(m_MeasContext->GetStableMv());
}

// ---- Results in ----

void DataManagerBase::setMillivolts(float mv)
{
    m_millivolts = mv;
    emit freshDataAvailable();
}

void DataManagerBase::setRawTemperatureCelcius(float celsius)
{
    m_temperatureRawCelcius = celsius;
    if (celsius >= kNoProbeCelsius) {
        m_temperatureCelcius = m_setupModel ? m_setupModel->temperatureInput() : 25.0f;
        m_temperatureProbePresent = false;
        return;
    }
    m_temperatureCelcius = celsius + (m_setupModel ? m_setupModel->getTemperatureOffset() : 0.0f);
    m_temperatureProbePresent = true;
    emit temperatureDataAvailable(celsius);
}

void DataManagerBase::qmlTemperatureDataAvailable(float celsius)
{
    setProbeTemp(celsius);
}

void DataManagerBase::qmlFreshDataAvailable()
{
    // The meter's records take temperature and probe state on freshDataAvailable.
    emit measurementValueChanged();
}

void DataManagerBase::setMultipleEndPointVolumes(const std::array<double, 3> &volumesUl)
{
    m_resultArray = volumesUl;
}

void DataManagerBase::setEpResult1(float value)
{
    m_epResult1 = value;
}

void DataManagerBase::setEpResult2(float value)
{
    m_epResult2 = value;
    if (TitrationModel *run = titrationModel())
        run->updateEndPointValues(m_epResult1, m_epResult2);
}

void DataManagerBase::titrationCompleted()
{
    if (!m_methodModel)
        return;
    const double resultUl[3] = {m_resultArray[0], m_resultArray[1], m_resultArray[2]};
    m_methodModel->titrationCompleted(resultUl, m_deviceMode, m_blankTitrationMode);
    emit valueChanged();
}

TitrationModel *DataManagerBase::titrationModel() const
{
    return m_methodModel ? m_methodModel->titrationModel() : nullptr;
}

void DataManagerBase::beginRunCycle()
{
    TitrationModel *run = titrationModel();
    if (!run)
        return;
    // Made now: the cycle's stopwatch is its running time.
    run->startCycle();
}

void DataManagerBase::addRunPoint(float volumeMl, float value)
{
    TitrationModel *run = titrationModel();
    if (!run)
        return;
    run->setMethodId(m_methodModel->id());
    // One cycle object for the whole point: the one the run's cycle number names.
    TitrationCycleModel *cycle = run->currentTitrationCycle();
    if (volumeMl == 0.0f)
        cycle->setInitialpH(QString::number(double(value)));
    cycle->setSampleId(titrationSetupModel()->sampleID());
    cycle->setTitrationId(run->id());
    emit valueChanged();
    cycle->addPoint(volumeMl, value, electrodeSetupModel()->resolution(), titrationSetupModel()->displayUnits());
}

void DataManagerBase::updateProdType(const QString &prodType)
{
    m_identity->setProductType(prodType);
    // The report controller takes the model string, and the home screen the
    // last pH calibration, once those exist.
    meterRecords(); // made with the meter's stored row
}

void DataManagerBase::getLoadedMspVersion()
{
    m_identity->showMspVersion();
}

// ---- Live state ----

void DataManagerBase::setQmlStirrerState(bool on)
{
    if (m_qmlStirrerState == on)
        return;
    m_qmlStirrerState = on;
    emit valueChanged();
}

void DataManagerBase::setQmlStirSpeed(int speed)
{
    if (m_qmlStirSpeed == speed)
        return;
    m_qmlStirSpeed = speed;
    emit valueChanged();
}

void DataManagerBase::setRinseCycles(int cycles)
{
    if (m_rinseCycles == cycles)
        return;
    m_rinseCycles = cycles;
    emit rinseCyclesChanged();
}

void DataManagerBase::setProbeTemp(float t)
{
    m_probeTemp = t;
    emit probeTempChanged();
}

// ---- Console pipe ----

// ---- The engine's cyclic logs ----

LogManager *DataManagerBase::titrationLogFile()
{
    if (!m_titrationLogFile) {
        m_titrationLogFile = std::make_unique<LogManager>();
        m_titrationLogFile->setLogfileDir(QStringLiteral("logFiles/titrationLogs"));
        m_titrationLogFile->setLogfileBasename(QStringLiteral("titration"));
    }
    return m_titrationLogFile.get();
}

LogManager *DataManagerBase::rawTitrationLogFile()
{
    if (!m_rawTitrationLogFile) {
        m_rawTitrationLogFile = std::make_unique<LogManager>();
        m_rawTitrationLogFile->setLogfileDir(QStringLiteral("logFiles/rawTitrationLogs"));
        m_rawTitrationLogFile->setLogfileBasename(QStringLiteral("rawTitration"));
    }
    return m_rawTitrationLogFile.get();
}

void DataManagerBase::exportLogs(const QString &dir)
{
    titrationLogFile()->exportLogs(dir);
    rawTitrationLogFile()->exportLogs(dir);
}

// ---- Methods ----

void DataManagerBase::beginRunRecords()
{
    if (ElectrodeSetupModel *e = electrodeSetupModel())
        e->setIsElectrodeChanged(false);
    if (TitrantSetupModel *t = titrantSetupModel())
        t->setIsTitrantChanged(false);
    if (TitrationSetupModel *t = titrationSetupModel())
        t->setIsTitrationChanged(false);
    m_runCycles->showRun();
    beginRunCycle();
}

float DataManagerBase::recordRunPoint(float volumeMl)
{
    const float value = getScaledVal(m_millivolts);
    addRunPoint(volumeMl, value);
    return value;
}

TitrationRecordParameters DataManagerBase::titrationRecordParameters() const
{
    TitrationRecordParameters p;
    if (const TitrationSetupModel *t = titrationSetupModel()) {
        p.technique = t->titrationTechnique();
        p.displayUnits = t->displayUnits();
        p.processControl = t->titrationProcessControl();
        p.preDoseMl = t->preDoseTitrantVolume();
        p.maxVolumeMl = t->maxTotalTitrantVolume();
        p.noOfEndPoints = t->noOfEndPoints();
    }
    return p;
}

float DataManagerBase::getTotalSolutionVolume() const
{
    const TitrationSetupModel *t = titrationSetupModel();
    return t ? t->totalSolutionVolume() : 0.0f;
}

float DataManagerBase::getMKAProcessCtrlConstant() const
{
    const TitrationSetupModel *t = titrationSetupModel();
    return t ? t->mkaProcessControlConstant() : 0.0f;
}

float DataManagerBase::getMKAProcessCtrlMeasurement() const
{
    const TitrationSetupModel *t = titrationSetupModel();
    return t ? t->mkaProcessControlMeasurement() : 0.0f;
}

float DataManagerBase::getMKAProcessCtrlPrecision() const
{
    const TitrationSetupModel *t = titrationSetupModel();
    return t ? t->mkaProcessControlPrecision() : 0.0f;
}

float DataManagerBase::getMKAStandardConcentration() const
{
    const TitrantSetupModel *t = titrantSetupModel();
    return t ? t->titrantConcentrationMolar() : 0.0f;
}

float DataManagerBase::getMKABlank() const
{
    const TitrationSetupModel *t = titrationSetupModel();
    if (!t || t->blankRequired() != QLatin1String("Manual Entry"))
        return 0.0f;
    return t->blankRequiredValue();
}

void DataManagerBase::getSigMKAPointsToUI(QVariant volume, QVariant mV, QVariant calConc, QVariant precision,
                                          QVariant drift, QVariant slope, QVariant e0)
{
    // The screens collect the additions and hand them to the run model.
    emit sigMKAPointsToUI(QString::number(volume.toDouble()), QString::number(mV.toDouble()),
                          QString::number(calConc.toDouble()), QString::number(precision.toDouble()),
                          QString::number(drift.toDouble()), QString::number(slope.toDouble()),
                          QString::number(e0.toDouble()));
}

void DataManagerBase::getMKATitrationCompleted(QVariant conc, QVariant slope, QVariant spike)
{
    emit mkaTitrationCompleted(QString::number(conc.toDouble()), QString::number(slope.toDouble()),
                               QString::number(spike.toDouble()));
}

float DataManagerBase::getMKASampleBasis() const
{
    // Without a method the sample is the default one: 1 mL, result in mol/L.
    const TitrationSetupModel *t = titrationSetupModel();
    return t ? t->mkaSampleBasis() : ConcentrationCalc::mkaSampleBasis(ConcentrationCalc::Sample(), 1.0f);
}

float DataManagerBase::mkaConvertResult(float molPerL)
{
    const TitrationSetupModel *t = titrationSetupModel();
    return t ? t->mkaConvertResult(molPerL) : ConcentrationCalc::mkaConvertResult(molPerL, ConcentrationCalc::Sample());
}

int DataManagerBase::currentMethodId() const
{
    return m_library ? m_library->currentMethodId() : MethodModel::scratchMethodId;
}

void DataManagerBase::getLastUpdatedMethod()
{
    m_library->selectLastUpdated();
}

void DataManagerBase::reInitializeMethodModel(int id)
{
    m_library->reload(id);
}

void DataManagerBase::getMethodsFromDB()
{
    m_library->loadList();
}

// ---- Standardisation ----

bool DataManagerBase::getStandardizedFetch(int methodId)
{
    return m_standardisation->fetch(methodId);
}

bool DataManagerBase::copyStandardization(int originalMethodId, int newMethodId)
{
    return StandardisationRecords::copy(originalMethodId, newMethodId);
}

bool DataManagerBase::resetSquenceIds(const QStringList &tables)
{
    return DbUtil::resetSquenceIds(tables);
}

// ---- Logs ----

bool DataManagerBase::checkDB()
{
    return m_logLists->anyRow();
}

int DataManagerBase::logMethods(int log)
{
    return m_logLists->rows(log);
}

void DataManagerBase::deleteTitrationLog()
{
    m_logLists->deleteLog(QStringLiteral("TITRATION"));
}

void DataManagerBase::deleteTitrantLog()
{
    m_logLists->deleteLog(QStringLiteral("STANDARDIZATION"));
}

void DataManagerBase::deleteCalibrationLog()
{
    m_logLists->deleteLog(QStringLiteral("CALIBRATION"));
}

void DataManagerBase::deleteMeasurementLog()
{
    m_logLists->deleteLog(QStringLiteral("MEASUREMENT"));
}

void DataManagerBase::startLogFetch(const QString &process)
{
    m_logLists->start(process);
}

void DataManagerBase::getTitrationLogListFromDb()
{
    m_logLists->tickTitration();
}

void DataManagerBase::getStandardizationLogListFromDb()
{
    m_logLists->tickStandardisation();
}

void DataManagerBase::getcalibrationLogListFromDb()
{
    m_logLists->tickCalibration();
}

void DataManagerBase::getMeasurementLogListFromDb()
{
    m_logLists->tickMeasurement();
}

void DataManagerBase::attachLogModel(TitrationLogModel *log)
{
    m_library->attach(log, [this](int methodId) { return getStandardizedFetch(methodId); });
}

void DataManagerBase::attachLogModel(StandardisationLogModel *log)
{
    m_library->attach(log);
}

// ---- Cycle lists ----

QQmlListProperty<TitrationCycleModel> DataManagerBase::titrationcycles()
{
    return m_runCycles->titrationCycles();
}

QQmlListProperty<MKATitrationCycleModel> DataManagerBase::mkaTitrationCycle()
{
    return m_runCycles->mkaCycles();
}

QQmlListProperty<MKAadditionModel> DataManagerBase::mkaAdditionCycle()
{
    return m_runCycles->mkaAdditions();
}

void DataManagerBase::getTitrationCycleLogFromDb(int titrationId)
{
    m_runCycles->loadStoredCycles(titrationId);
}

void DataManagerBase::getMKAtitrationCycleFromDB(int titrationId)
{
    m_runCycles->loadStoredMkaCycles(titrationId);
}

void DataManagerBase::getMKAadditionFromDB(int titrationId)
{
    m_runCycles->loadStoredMkaAdditions(titrationId);
}

void DataManagerBase::initializeTitration()
{
    m_runCycles->showRun();
    if (TitrationModel *run = titrationModel())
        run->clearTitrationCycles();
    emit valueChanged();
}

void DataManagerBase::getMeasureFromDB()
{
    auto *measure = new MeasurementModel(this);
    QSqlQuery query;
    if (DbUtil::tableExists(MeasurementModel::tableName)
        && DbUtil::exec(query, QStringLiteral("SELECT * FROM MeasurementTable ORDER BY datetime(mcreatedAT) DESC limit 1"))
        && query.next())
        measure->load(query.record());
    if (m_measure)
        m_measure->deleteLater();
    m_measure = measure;
    emit valueChanged();
}

// ---- The meter's records: measurement state and electrode calibration ----

MeterRecords *DataManagerBase::meterRecords()
{
    if (!m_meterRecords) {
        m_meterRecords = new MeterRecords(this);
        connect(m_meterRecords, &MeterRecords::changed, this, &DataManagerBase::valueChanged);
        connect(this, &DataManagerBase::freshDataAvailable, this, &DataManagerBase::meterFreshData);
    }
    return m_meterRecords;
}

MeasurementModel *DataManagerBase::measurementModel()
{
    return meterRecords()->measurementModel();
}

CalibrationModel *DataManagerBase::calibrationModel()
{
    return meterRecords()->calibrationModel();
}

CalibrationCycleModel *DataManagerBase::calibrationCycleModel()
{
    return meterRecords()->calibrationCycleModel();
}

const QList<CalibrationCycleModel *> &DataManagerBase::calibrationCycleList()
{
    return meterRecords()->cycles();
}

QQmlListProperty<CalibrationCycleModel> DataManagerBase::calibrationcycles()
{
    m_calibrationcycles = meterRecords()->cycles();
    return QQmlListProperty<CalibrationCycleModel>(this, &m_calibrationcycles);
}

void DataManagerBase::meterFreshData()
{
    MeasurementModel *m = meterRecords()->measurementModel();
    m->setIsATC(m_temperatureProbePresent);
    m->setTemp(getTemperature());
}

void DataManagerBase::updateCalibrationPoint(float fmV, float pH, float Buff, float Slope, float Offset, float Temp)
{
    meterRecords()->updateCalibrationPoint(fmV, pH, Buff, Slope, Offset, Temp, m_temperatureProbePresent);
}

void DataManagerBase::initiateCalibrationModelFromTitration()
{
    meterRecords()->initiateFromElectrode(electrodeSetupModel());
}

void DataManagerBase::initiateCalibrationModelFromMeasure()
{
    meterRecords()->initiateFromMeasure();
}

void DataManagerBase::insertCalibrationValue()
{
    meterRecords()->insertCalibrationValue(m_methodModel && m_methodModel->isChangeFromHome());
}

void DataManagerBase::getCalibrationCycles()
{
    emit valueChanged();
}

void DataManagerBase::getCalibrationCyclesFromDb(int calId)
{
    meterRecords()->getCalibrationCyclesFromDb(calId);
}

void DataManagerBase::loadLastCalibration(const QString &probeType, const QString &iseType)
{
    meterRecords()->loadLastCalibration(probeType, iseType);
}

void DataManagerBase::loadCalibrationPoints(int calId)
{
    meterRecords()->loadCalibrationPoints(calId);
}

void DataManagerBase::deleteCalibrationModelAndPoints()
{
    meterRecords()->deleteCalibrationModelAndPoints();
}

void DataManagerBase::insertATCCalibrationValues(float probeTemperature, float tempInputATC, float offset)
{
    meterRecords()->insertATCCalibrationValues(probeTemperature, tempInputATC, offset, m_temperatureProbePresent);
}

void DataManagerBase::getLastCalibrationTimeForTitration()
{
    const ElectrodeSetupModel *e = electrodeSetupModel();
    QString type = e ? e->electrodeType() : QString();
    if (type.isEmpty())
        type = measurementModel()->readMode();
    m_homeCalibration->refresh(m_setupModel, type);
}

bool DataManagerBase::logMeasurement(MeasurementLogModel *log, bool isDataLogNotifOn)
{
    return meterRecords()->logMeasurement(log, isDataLogNotifOn);
}

QString DataManagerBase::databaseMessage() const
{
    return DatabaseStartup::message();
}
