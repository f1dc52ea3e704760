#pragma once

#include "interfaces/meterdatainterface.h"
#include "models/calibrationcyclemodel.h"
#include "models/calibrationlogmodel.h"
#include "models/concentrationcalc.h"
#include "models/measurementlogmodel.h"
#include "models/measurementmodel.h"
#include "models/methodmodel.h"
#include "models/mkaadditionmodel.h"
#include "models/mkatitrationcyclemodel.h"
#include "models/setupmodel.h"
#include "models/standardisationlogmodel.h"
#include "models/titrationcyclemodel.h"
#include "models/titrationlogmodel.h"
#include "models/titrationmodel.h"
#include "consolepipe.h"
#include "enginedataport.h"
#include "homecalibrationstate.h"
#include "loglists.h"
#include "methodlibrary.h"
#include "productidentity.h"
#include "runcyclelists.h"
#include "standardisationrecords.h"

#include <QList>
#include <QObject>
#include <QQmlListProperty>
#include <QString>
#include <QStringList>

#include <array>
#include <memory>

class CMeasurementContext;
class CalibrationCycleModel;
class CalibrationModel;
class MeasurementLogModel;
class MeasurementModel;
class MeterRecords;
class ReportWriter;
class ElectrodeSetupModel;
class LogManager;
class SysInfoModel;
class TitrantSetupModel;
class TitrationSetupModel;

// The screens' one object ("dm"): a facade over the services that own the
// data — the engine's data port (mode, method parameters, live run state),
// the method library, the log lists, the run's cycle lists, standardisation,
// the meter's records, product identity. It serves the meter's data
// interface by forwarding, and owns the current method and the settings.
class DataManagerBase : public QObject, public MeterDataInterface
{
    Q_OBJECT
    Q_PROPERTY(QString deviceMode READ deviceMode WRITE setDeviceMode NOTIFY valueChanged)
    Q_PROPERTY(bool blankTitrationMode READ blankTitrationMode WRITE setBlankTitrationMode NOTIFY valueChanged)
    Q_PROPERTY(bool isCalibrationFromMeasurement READ isCalibrationFromMeasurement WRITE setIsCalibrationFromMeasurement NOTIFY valueChanged)
    Q_PROPERTY(bool isStandardizedVal READ isStandardizedVal WRITE setIsStandardizedVal NOTIFY valueChanged)
    Q_PROPERTY(MethodModel *methodModel READ methodModel NOTIFY valueChanged)
    Q_PROPERTY(TitrationModel *titrationModel READ titrationModel NOTIFY valueChanged)
    Q_PROPERTY(SetupModel *setupModel READ setupModel CONSTANT)
    Q_PROPERTY(MeasurementModel *measure READ measure NOTIFY valueChanged)
    Q_PROPERTY(QQmlListProperty<TitrationCycleModel> titrationcycles READ titrationcycles)
    Q_PROPERTY(QQmlListProperty<MKATitrationCycleModel> mkaTitrationCycle READ mkaTitrationCycle)
    Q_PROPERTY(QQmlListProperty<MKAadditionModel> mkaAdditionCycle READ mkaAdditionCycle)
    // The log lists as view models (role "modelData"), filled a row at a time.
    Q_PROPERTY(ObjectListModel *titrationLogList READ titrationLogList NOTIFY titrationLogListChanged)
    Q_PROPERTY(ObjectListModel *standLogList READ standLogList NOTIFY standLogListChanged)
    Q_PROPERTY(ObjectListModel *calibratoinLogList READ calibratoinLogList NOTIFY calibrationLogListChanged)
    Q_PROPERTY(ObjectListModel *measures READ measures NOTIFY measuresChanged)
    Q_PROPERTY(ObjectListModel *methods READ methods NOTIFY valueChanged)
    // The method library: the screens save a new method through it.
    Q_PROPERTY(MethodLibrary *library READ library CONSTANT)
    Q_PROPERTY(int methodCount READ methodCount WRITE setMethodCount NOTIFY valueChanged)
    Q_PROPERTY(QString titrationQMLVersion READ titrationQMLVersion WRITE setTitrationQMLVersion NOTIFY valueChanged)
    Q_PROPERTY(QString titrationQMLCoreVersion READ titrationQMLCoreVersion WRITE setTitrationQMLCoreVersion NOTIFY valueChanged)
    Q_PROPERTY(QString mspQmlVersion READ mspQmlVersion WRITE setMspQmlVersion NOTIFY valueChanged)
    Q_PROPERTY(QString buildNumber READ buildNumber WRITE setBuildNumber NOTIFY valueChanged)
    Q_PROPERTY(QString appVersionNumber READ appVersionNumber CONSTANT)
    Q_PROPERTY(QString titratorModelString READ titratorModelString WRITE setTitratorModelString NOTIFY titratorModelStringChanged)
    Q_PROPERTY(QString titratorModelNo READ titratorModelNo WRITE setTitratorModelNo NOTIFY titratorModelNoChanged)
    Q_PROPERTY(QString mfgSerialNum READ getMfgSerialNum WRITE setMfgSerialNum NOTIFY mfgSerialNumChanged)
    Q_PROPERTY(int productType READ productType CONSTANT)
    Q_PROPERTY(float probeTemp READ probeTemp WRITE setProbeTemp NOTIFY probeTempChanged)
    Q_PROPERTY(int rinseCycles READ rinseCycles WRITE setRinseCycles NOTIFY rinseCyclesChanged)
    Q_PROPERTY(int qmlStirSpeed READ qmlStirSpeed WRITE setQmlStirSpeed NOTIFY valueChanged)
    Q_PROPERTY(bool qmlStirrerState READ qmlStirrerState WRITE setQmlStirrerState NOTIFY valueChanged)
    // Empty while the database file is in use; otherwise why the session
    // stores nothing (the file could not be opened, read or migrated).
    Q_PROPERTY(QString databaseMessage READ databaseMessage CONSTANT)

public:
    static constexpr double uLtomL = 1000.0;
    // The newest console text kept until it is read, in characters.
    static constexpr int consoleLimit = ConsolePipe::limit;

    // The singleton: made on the first call, then initialised outside the
    // constructor, because what the initialisation creates reaches for
    // dmPtr() itself.
    static DataManagerBase *dmPtr();

    // Creates the instrument identity and the engine's data port, which
    // installs itself as the engine's data layer (until it is destroyed).
    explicit DataManagerBase(QObject *parent = nullptr);
    ~DataManagerBase() override;

    // The models, the log files, the versions, and the method last changed.
    void DataManagerLegacyInit();

    // The application's build string, as stored in `systemInfo`.
    static QString buildString() { return ProductIdentity::buildString(); }

    // What the engine reads and writes: method parameters by mode, readings,
    // results, the run's live state.
    EngineDataPort *engine() const { return m_engine; }

    // ---- Models ----
    MethodModel *methodModel() const { return m_methodModel; }
    ElectrodeSetupModel *electrodeSetupModel() const override;
    TitrantSetupModel *titrantSetupModel() const;
    TitrationSetupModel *titrationSetupModel() const;
    SysInfoModel *sysInfoModel() const { return m_identity->sysInfo(); }
    ProductIdentity *identity() const { return m_identity; }
    ReportWriter *reports() const { return m_reports; }
    // The run in progress of the current method, with its cycles.
    TitrationModel *titrationModel() const;
    SetupModel *setupModel() const { return m_setupModel; }
    MeasurementModel *measure() const { return m_measure; }
    // The cycles of the run in progress, or after getTitrationCycleLogFromDb()
    // the cycles of that stored run until the screens return to the run.
    QQmlListProperty<TitrationCycleModel> titrationcycles();
    QQmlListProperty<MKATitrationCycleModel> mkaTitrationCycle();
    QQmlListProperty<MKAadditionModel> mkaAdditionCycle();
    ObjectListModel *titrationLogList() const { return m_logLists->titrationView(); }
    ObjectListModel *standLogList() const { return m_logLists->standardisationView(); }
    ObjectListModel *calibratoinLogList() const { return m_logLists->calibrationView(); }
    ObjectListModel *measures() const { return m_logLists->measurementView(); }
    LogLists *logLists() const { return m_logLists; }
    const QList<TitrationLogModel *> &titrationLogEntries() const { return m_logLists->titrationEntries(); }
    const QList<StandardisationLogModel *> &standardisationLogEntries() const { return m_logLists->standardisationEntries(); }
    const QList<CalibrationLogModel *> &calibrationLogEntries() const { return m_logLists->calibrationEntries(); }
    const QList<MeasurementLogModel *> &measurementLogEntries() const { return m_logLists->measurementEntries(); }
    bool logFetchRunning(const QString &process) const { return m_logLists->running(process); }
    // A log model of the screens saves the current method's run and asks
    // here whether a method counts as standardised.
    void attachLogModel(TitrationLogModel *log);
    void attachLogModel(StandardisationLogModel *log);
    ObjectListModel *methods() const;
    MethodLibrary *library() const { return m_library; }
    const QList<MethodModel *> &methodList() const;
    int methodCount() const { return m_methodCount; }
    void setMethodCount(int count);

    // The meter's measurement engine, used for the mV and pH conversions.
    // Until one is set, a private one with an uncalibrated electrode serves.
    void setMeasurementContext(CMeasurementContext *context) override { m_engine->setMeasurementContext(context); }
    CMeasurementContext *measurementContext() const override { return m_engine->measurementContext(); }

    // ---- Mode and live run state (the engine's data port) ----
    QString deviceMode() const override { return m_engine->deviceMode(); }
    void setDeviceMode(const QString &mode) { m_engine->setDeviceMode(mode); }
    bool blankTitrationMode() const { return m_engine->blankTitrationMode(); }
    void setBlankTitrationMode(bool on) { m_engine->setBlankTitrationMode(on); }
    bool isCalibrationFromMeasurement() const { return m_isCalibrationFromMeasurement; }
    void setIsCalibrationFromMeasurement(bool on);
    bool isStandardizedVal() const { return m_standardisation->isStandardized(); }
    void setIsStandardizedVal(bool on);
    float getTemperature() const override { return m_engine->temperature(); }
    void setMillivolts(float mv) override { m_engine->setMillivolts(mv); }
    bool qmlStirrerState() const { return m_engine->qmlStirrerState(); }
    void setQmlStirrerState(bool on) { m_engine->setQmlStirrerState(on); }
    int qmlStirSpeed() const { return m_engine->qmlStirSpeed(); }
    void setQmlStirSpeed(int speed) { m_engine->setQmlStirSpeed(speed); }
    int rinseCycles() const { return m_engine->rinseCycles(); }
    void setRinseCycles(int cycles) { m_engine->setRinseCycles(cycles); }
    float probeTemp() const { return m_engine->probeTemp(); }
    void setProbeTemp(float t) { m_engine->setProbeTemp(t); }

    // ---- Versions and identity ----
    QString titrationQMLVersion() const { return m_identity->titrationQMLVersion(); }
    void setTitrationQMLVersion(const QString &v) { m_identity->setTitrationQMLVersion(v); }
    QString titrationQMLCoreVersion() const { return m_identity->titrationQMLCoreVersion(); }
    void setTitrationQMLCoreVersion(const QString &v) { m_identity->setTitrationQMLCoreVersion(v); }
    QString getTitrationCoreVersion() const { return m_identity->titrationCoreVersion(); }
    void setTitrationCoreVersion(const QString &v) { m_identity->setTitrationCoreVersion(v); }
    QString mspQmlVersion() const { return m_identity->mspQmlVersion(); }
    void setMspQmlVersion(const QString &v) { m_identity->setMspQmlVersion(v); }
    QString buildNumber() const { return m_identity->buildNumber(); }
    void setBuildNumber(const QString &v) { m_identity->setBuildNumber(v); }
    QString appVersionNumber() const { return m_identity->appVersionNumber(); }
    QString titratorModelString() const { return m_identity->titratorModelString(); }
    void setTitratorModelString(const QString &v) { m_identity->setTitratorModelString(v); }
    QString titratorModelNo() const { return m_identity->titratorModelNo(); }
    void setTitratorModelNo(const QString &v) { m_identity->setTitratorModelNo(v); }
    QString getMfgSerialNum() const { return m_identity->mfgSerialNum(); }
    void setMfgSerialNum(const QString &v) { m_identity->setMfgSerialNum(v); }
    int productType() const { return 0; }
    QString databaseMessage() const;

public slots:
    void updateProdType(const QString &prodType);
    void getLoadedMspVersion();
    bool isProbePresent() const { return m_engine->isTemperatureProbePresent(); }
    void exportLogs(const QString &dir);

    // Methods and their lists.
    void getMethodsFromDB();
    void reInitializeMethodModel(int id);
    void getLastUpdatedMethod();
    int currentMethodId() const;

    // Standardisation state of a method, and its copy to a new method.
    bool getStandardizedFetch(int methodId);
    bool copyStandardization(int originalMethodId, int newMethodId);
    bool resetSquenceIds(const QStringList &tables);

    // The four logs: whether any holds a row, the rows of one (1 titration,
    // 2 standardisation, 3 calibration, 4 measurement; another number gives
    // the last count), and their deletion with what they lean on.
    bool checkDB();
    int logMethods(int log);
    void deleteTitrationLog();
    void deleteTitrantLog();
    void deleteCalibrationLog();
    void deleteMeasurementLog();
    // Loads a log list for the screens, one row per event-loop turn:
    // "TITRATION", "STANDARDIZATION", "CALIBRATION" or "MEASUREMENT".
    void startLogFetch(const QString &process);
    // The report numbers of a log (1 titration, 2 standardisation, 3
    // calibration, 4 measurement), newest first, read from the database: an
    // export or print does not wait for the log's list on the screen.
    QVariantList logReportIds(int log) const;
    // The timer ticks of the four log lists: one row each.
    void getTitrationLogListFromDb();
    void getStandardizationLogListFromDb();
    void getcalibrationLogListFromDb();
    void getMeasurementLogListFromDb();

    // The stored cycles of a run, for the log screens.
    void getTitrationCycleLogFromDb(int titrationId);
    void getMKAtitrationCycleFromDB(int titrationId);
    void getMKAadditionFromDB(int titrationId);
    // The summary screens have read the cycles: the run starts empty.
    void initializeTitration();
    // Complete on the run screen: the run with its cycles (or known-addition
    // cycles and additions) and its log entry, as one unit; false leaves the
    // run in memory to be stored again.
    // `log` is the screens' titration (or standardisation) log model.
    bool storeTitrationRun(QObject *log, bool isChangeFromHome, bool isDataLogNotifOn);
    bool storeStandardisationRun(QObject *log, bool isChangeFromHome, bool isDataLogNotifOn);
    // The report row of a stored run (its titration or standardisation log
    // model, with the summary's figures; the sample id the run was made
    // with), written again on each recalculation; and of a stored
    // calibration ("Calibration", its id) or reading ("Measurement", its log id).
    bool storeRunReport(QObject *log, const QString &sampleId);
    bool storeMeterReport(const QString &reportType, int id);
    // The meter's last stored row, as a new `measure`.
    void getMeasureFromDB();

signals:
    void valueChanged();
    void freshDataAvailable();
    void temperatureDataAvailable(float celsius);
    void measurementValueChanged();
    void mspVersionUpdated();
    void exportQueryError(QVariant text, QVariant iserr);
    void titratorModelStringChanged();
    void titratorModelNoChanged();
    void mfgSerialNumChanged();
    void probeTempChanged();
    void rinseCyclesChanged();
    void titrationLogListChanged();
    void standLogListChanged();
    void calibrationLogListChanged();
    void measuresChanged();
    void lastCalibrationChanged();
    void sigMKAPointsToUI(QString volume, QString mV, QString calConc, QString precision, QString drift, QString slope,
                          QString E0);
    void mkaTitrationCompleted(QString avgConc, QString slope, QString spike);

private:
    EngineDataPort *m_engine = nullptr;
    MethodModel *m_methodModel = nullptr;
    ProductIdentity *m_identity = nullptr;
    MethodLibrary *m_library = nullptr;
    SetupModel *m_setupModel = nullptr;
    MeasurementModel *m_measure = nullptr;
    LogLists *m_logLists = nullptr;
    RunCycleLists *m_runCycles = nullptr;
    StandardisationRecords *m_standardisation = nullptr;
    ReportWriter *m_reports = nullptr;
    bool m_isCalibrationFromMeasurement = false;
    int m_methodCount = 0;

    // ---- The meter's records: measurement state and electrode calibration ----
    Q_PROPERTY(MeasurementModel *measurementModel READ measurementModel NOTIFY valueChanged)
    Q_PROPERTY(CalibrationModel *calibrationModel READ calibrationModel NOTIFY valueChanged)
    Q_PROPERTY(CalibrationCycleModel *calibrationCycleModel READ calibrationCycleModel NOTIFY valueChanged)
    // The points of the calibration in hand, as a view model (role "modelData").
    Q_PROPERTY(ObjectListModel *calibrationcycles READ calibrationcycles NOTIFY valueChanged)
    // Home's line on the calibration (HomeCalibrationState).
    Q_PROPERTY(QDateTime LastTitrationCalibrationTime READ lastTitrationCalibrationTime NOTIFY lastCalibrationChanged)
    Q_PROPERTY(QString LastTitrationCalAvg READ lastTitrationCalAvg NOTIFY lastCalibrationChanged)
    Q_PROPERTY(bool LastTitrationCalVisible READ lastTitrationCalVisible NOTIFY lastCalibrationChanged)

public:
    // Made on first use, with the meter state row loaded.
    MeterRecords *meterRecords() override;
    MeasurementModel *measurementModel() override;
    CalibrationModel *calibrationModel() override;
    CalibrationCycleModel *calibrationCycleModel() override;
    ObjectListModel *calibrationcycles();
    const QList<CalibrationCycleModel *> &calibrationCycleList() override;
    QDateTime lastTitrationCalibrationTime() const { return m_homeCalibration->time(); }
    QString lastTitrationCalAvg() const { return m_homeCalibration->averageText(); }
    bool lastTitrationCalVisible() const { return m_homeCalibration->visible(); }
    // One finished point of the calibration in hand, into memory.
    void updateCalibrationPoint(float fmV, float pH, float Buff, float Slope, float Offset, float Temp) override;

public slots:
    void initiateCalibrationModelFromTitration();
    void initiateCalibrationModelFromMeasure();
    // Stores the calibration in hand with its points; false when it was
    // not stored (the screens say so, its figures stay on show).
    bool insertCalibrationValue();
    void getCalibrationCycles();
    void getCalibrationCyclesFromDb(int calId);
    void loadLastCalibration(const QString &probeType, const QString &iseType) override;
    void loadCalibrationPoints(int calId);
    void deleteCalibrationModelAndPoints();
    void insertATCCalibrationValues(float probeTemperature, float tempInputATC, float offset);
    // Home's calibration line, for the method's electrode (the meter's read
    // mode while no method is in use).
    void getLastCalibrationTimeForTitration();
    // The current reading into the measurement log and the meter state row.
    bool logMeasurement(MeasurementLogModel *log, bool isDataLogNotifOn);

private:
    void meterFreshData();

    MeterRecords *m_meterRecords = nullptr;
    HomeCalibrationState *m_homeCalibration = nullptr;
};
