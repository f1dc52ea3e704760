#include "datamanagerbase.h"

#include "reportwriter.h"

#include "databasestartup.h"

#include "meterrecords.h"
#include "reportwriter.h"
#include "models/calibrationcyclemodel.h"
#include "models/calibrationmodel.h"
#include "models/measurementmodel.h"
#include "models/dbutil.h"
#include "models/logcapacity.h"
#include "models/logtables.h"
#include "models/electrodesetupmodel.h"
#include "models/methodmodel.h"
#include "models/runwithlog.h"
#include "models/sysinfomodel.h"
#include "models/standardisationlogmodel.h"
#include "models/titrantsetupmodel.h"
#include "models/titrationlogmodel.h"
#include "models/titrationsetupmodel.h"
#include "reports/logmanager.h"

#include <QDateTime>
#include <QDebug>
#include <QSqlQuery>
#include <QSqlRecord>


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
    : QObject(parent)
{
    m_identity = new ProductIdentity(this);
    connect(m_identity, &ProductIdentity::changed, this, &DataManagerBase::valueChanged);
    connect(m_identity, &ProductIdentity::mspVersionUpdated, this, &DataManagerBase::mspVersionUpdated);
    connect(m_identity, &ProductIdentity::modelStringChanged, this, &DataManagerBase::titratorModelStringChanged);
    connect(m_identity, &ProductIdentity::modelNoChanged, this, &DataManagerBase::titratorModelNoChanged);
    connect(m_identity, &ProductIdentity::serialChanged, this, &DataManagerBase::mfgSerialNumChanged);
    m_logLists = new LogLists(this);
    connect(m_logLists, &LogLists::titrationChanged, this, &DataManagerBase::titrationLogListChanged);
    connect(m_logLists, &LogLists::standardisationChanged, this, &DataManagerBase::standLogListChanged);
    connect(m_logLists, &LogLists::calibrationChanged, this, &DataManagerBase::calibrationLogListChanged);
    connect(m_logLists, &LogLists::measurementChanged, this, &DataManagerBase::measuresChanged);
    m_runCycles = new RunCycleLists([this] { return titrationModel(); }, this);
    m_standardisation = new StandardisationRecords(this);
    connect(m_standardisation, &StandardisationRecords::changed, this, &DataManagerBase::valueChanged);
    m_homeCalibration = new HomeCalibrationState(this);
    m_reports = new ReportWriter(
        [this] {
            ReportWriter::Settings s;
            s.buildNumber = m_identity->buildNumber();
            if (const SetupModel *setup = setupModel()) {
                s.instrumentName = setup->instrumentName();
                s.dateFormat = setup->dateFormat_Index();
                s.timeFormat = setup->timeFormat_Index();
                s.temperatureFormat = setup->temperatureFormat_Index();
            }
            return s;
        },
        [this](int methodId) { return m_standardisation->fetch(methodId); }, this);
    connect(m_homeCalibration, &HomeCalibrationState::changed, this, &DataManagerBase::lastCalibrationChanged);

    m_engine = new EngineDataPort(m_identity, m_runCycles, this);
    connect(m_engine, &EngineDataPort::changed, this, &DataManagerBase::valueChanged);
    connect(m_engine, &EngineDataPort::rinseCyclesChanged, this, &DataManagerBase::rinseCyclesChanged);
    connect(m_engine, &EngineDataPort::probeTempChanged, this, &DataManagerBase::probeTempChanged);
    connect(m_engine, &EngineDataPort::freshDataAvailable, this, &DataManagerBase::freshDataAvailable);
    connect(m_engine, &EngineDataPort::freshDataAvailable, this, &DataManagerBase::measurementValueChanged);
    connect(m_engine, &EngineDataPort::temperatureDataAvailable, this, &DataManagerBase::temperatureDataAvailable);
    connect(m_engine, &EngineDataPort::sigMKAPointsToUI, this, &DataManagerBase::sigMKAPointsToUI);
    connect(m_engine, &EngineDataPort::mkaTitrationCompleted, this, &DataManagerBase::mkaTitrationCompleted);
}

DataManagerBase::~DataManagerBase()
{
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
    m_engine->setMethod(m_methodModel);
    m_engine->setSetup(m_setupModel);
    m_engine->titrationLogFile();
    m_engine->rawTitrationLogFile();

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

TitrationModel *DataManagerBase::titrationModel() const
{
    return m_methodModel ? m_methodModel->titrationModel() : nullptr;
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

void DataManagerBase::exportLogs(const QString &dir)
{
    m_engine->titrationLogFile()->exportLogs(dir);
    m_engine->rawTitrationLogFile()->exportLogs(dir);
}

// ---- Methods ----

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

QVariantList DataManagerBase::logReportIds(int log) const
{
    QVariantList ids;
    if (log < LogTables::Titration || log > LogTables::Measurement)
        return ids;
    for (int id : LogTables::reportIds(LogTables::Log(log)))
        ids << id;
    return ids;
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

bool DataManagerBase::storeTitrationRun(QObject *log, bool isChangeFromHome, bool isDataLogNotifOn)
{
    auto *entry = qobject_cast<TitrationLogModel *>(log);
    return entry && titrationModel() && RunWithLog::storeTitration(titrationModel(), entry, isChangeFromHome, isDataLogNotifOn);
}

bool DataManagerBase::storeStandardisationRun(QObject *log, bool isChangeFromHome, bool isDataLogNotifOn)
{
    auto *entry = qobject_cast<StandardisationLogModel *>(log);
    return entry && titrationModel()
           && RunWithLog::storeStandardisation(titrationModel(), entry, isChangeFromHome, isDataLogNotifOn);
}

bool DataManagerBase::storeRunReport(QObject *log, const QString &sampleId)
{
    return m_reports->storeRunReport(log, sampleId);
}

bool DataManagerBase::storeMeterReport(const QString &reportType, int id)
{
    return m_reports->storeMeterReport(reportType, id);
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

ObjectListModel *DataManagerBase::calibrationcycles()
{
    return meterRecords()->cycleView();
}

void DataManagerBase::meterFreshData()
{
    MeasurementModel *m = meterRecords()->measurementModel();
    m->setIsATC(m_engine->isTemperatureProbePresent());
    m->setTemp(getTemperature());
}

void DataManagerBase::updateCalibrationPoint(float fmV, float pH, float Buff, float Slope, float Offset, float Temp)
{
    meterRecords()->updateCalibrationPoint(fmV, pH, Buff, Slope, Offset, Temp, m_engine->isTemperatureProbePresent());
}

void DataManagerBase::initiateCalibrationModelFromTitration()
{
    meterRecords()->initiateFromElectrode(electrodeSetupModel());
}

void DataManagerBase::initiateCalibrationModelFromMeasure()
{
    meterRecords()->initiateFromMeasure();
}

bool DataManagerBase::insertCalibrationValue()
{
    if (!meterRecords()->insertCalibrationValue(m_methodModel && m_methodModel->isChangeFromHome()))
        return false;
    if (m_methodModel) {
        const CalibrationModel *c = meterRecords()->calibrationModel();
        m_methodModel->recordCalibration(c->electrodeName(), c->mcreatedAt());
    }
    return true;
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
    meterRecords()->insertATCCalibrationValues(probeTemperature, tempInputATC, offset, m_engine->isTemperatureProbePresent());
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
