#pragma once

#include "interfaces/enginedatainterface.h"
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
class ElectrodeSetupModel;
class LogManager;
class SysInfoModel;
class TitrantSetupModel;
class TitrationSetupModel;

// The one object through which the engine, the meter and the screens reach
// persistent data. It owns the current method and the instrument identity,
// answers the engine's questions in terms of what is being run (the
// titration part of the method in "Titration" mode, the titrant part in
// "Standardization" mode) and takes the results of a run. Published to the
// screens as "dm".
class DataManagerBase : public QObject, public EngineDataInterface, public MeterDataInterface
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
    static constexpr int kNotInThisMode = -999;
    // The newest console text kept until it is read, in characters.
    static constexpr int consoleLimit = ConsolePipe::limit;
    static const QString modeTitration;
    static const QString modeStandardization;

    // The singleton: made on the first call, then initialised outside the
    // constructor, because what the initialisation creates reaches for
    // dmPtr() itself.
    static DataManagerBase *dmPtr();

    // Creates the instrument identity and installs itself as the engine's
    // data layer (until it is destroyed).
    explicit DataManagerBase(QObject *parent = nullptr);
    ~DataManagerBase() override;

    // The models, the log files, the versions, and the method last changed.
    void DataManagerLegacyInit();

    // The application's build string, as stored in `systemInfo`.
    static QString buildString() { return ProductIdentity::buildString(); }

    // ---- Models ----
    MethodModel *methodModel() const { return m_methodModel; }
    ElectrodeSetupModel *electrodeSetupModel() const override;
    TitrantSetupModel *titrantSetupModel() const;
    TitrationSetupModel *titrationSetupModel() const;
    SysInfoModel *sysInfoModel() const { return m_identity->sysInfo(); }
    ProductIdentity *identity() const { return m_identity; }
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
    const QList<MethodModel *> &methodList() const;
    int methodCount() const { return m_methodCount; }
    void setMethodCount(int count);

    // The meter's measurement engine, used for the mV and pH conversions.
    // Until one is set, a private one with an uncalibrated electrode serves.
    void setMeasurementContext(CMeasurementContext *context) override;
    CMeasurementContext *measurementContext() const override { return m_MeasContext; }

    // ---- Mode ----
    QString deviceMode() const override { return m_deviceMode; }
    void setDeviceMode(const QString &mode) override;
    bool blankTitrationMode() const override { return m_blankTitrationMode; }
    void setBlankTitrationMode(bool on);
    bool isCalibrationFromMeasurement() const { return m_isCalibrationFromMeasurement; }
    void setIsCalibrationFromMeasurement(bool on);
    bool isStandardizedVal() const { return m_standardisation->isStandardized(); }
    void setIsStandardizedVal(bool on);

    // ---- The engine's method parameters ----
    int getNoOfEndpoints() const override;
    float getEndpointValue_First() const override;
    float getEndpointValue_Second() const override;
    float getEndpointValue_Third() const override;
    int getTitrationTechnique() const override;
    int getTitrationProcessCtrl() const override;
    int getMKAProcessCtrl() const override;
    float getDeltaE() const override;
    float getDeltaVmin() const override;
    float getDeltaVmax() const override;
    float getStabilityCriteria() const override;
    float gettMin() const override;
    float gettMax() const override;
    float getThreshold() const override;
    float getPreDoseTitrantVolume() const override;
    int getTitratrationOrStandardardizationPreStir() const override;
    float getTitratrationOrStandardardizationMaxVolmL() const override;
    int getIndexOfStirSpeed() const override;
    int getElectrode() const override;
    float getEndPoint() const override;
    int getResolution() const override;
    float buretteSize() const override;
    QString displayUnits() const override;

    // "Very Slow" 1 ... "Very Fast" 5; anything else 0, no stirring.
    static int stirSpeedIndex(const QString &speed);
    // Decimals of a display resolution: 0 for a whole number, 1 to 3 for
    // 0.1 to 0.001, 2 for anything finer.
    static int resolutionDecimals(float resolution);

    // ---- Conversions ----
    float getScaledVal(float millivolts) override;
    float millivoltsToPH(float millivolts) override;
    float phToMillivolts(float ph) override;
    float getMeasuredMillivolt(float millivolts);
    float getTemperature() const override { return m_temperatureCelcius; }
    float getMillivolts() const { return m_millivolts; }

    // ---- Results in ----
    void setMillivolts(float mv) override;
    void setRawTemperatureCelcius(float celsius) override;
    float temperatureRawCelcius() const { return m_temperatureRawCelcius; }
    void setMultipleEndPointVolumes(const std::array<double, 3> &volumesUl) override;
    void setResultArray(const std::array<double, 3> &volumesUl) { setMultipleEndPointVolumes(volumesUl); }
    std::array<double, 3> getResultArray() const override { return m_resultArray; }
    void setEpResult1(float value) override;
    void setEpResult2(float value) override;
    float epResult1() const { return m_epResult1; }
    float epResult2() const { return m_epResult2; }
    void setMspVersion(const QString &version) override { m_identity->setMspVersion(version); }
    QString getMspVersion() const override { return m_identity->mspVersion(); }
    void setMfgSerialNum(const QString &serial) override { m_identity->setMfgSerialNum(serial); }
    QString getMfgSerialNum() const override { return m_identity->mfgSerialNum(); }

    // ---- Versions and identity ----
    QString titrationQMLVersion() const { return m_identity->titrationQMLVersion(); }
    void setTitrationQMLVersion(const QString &v) { m_identity->setTitrationQMLVersion(v); }
    QString titrationQMLCoreVersion() const { return m_identity->titrationQMLCoreVersion(); }
    void setTitrationQMLCoreVersion(const QString &v) { m_identity->setTitrationQMLCoreVersion(v); }
    QString getTitrationCoreVersion() const { return m_identity->titrationCoreVersion(); }
    void setTitrationCoreVersion(const QString &v) override { m_identity->setTitrationCoreVersion(v); }
    QString mspQmlVersion() const { return m_identity->mspQmlVersion(); }
    void setMspQmlVersion(const QString &v) { m_identity->setMspQmlVersion(v); }
    QString buildNumber() const { return m_identity->buildNumber(); }
    void setBuildNumber(const QString &v) { m_identity->setBuildNumber(v); }
    QString appVersionNumber() const { return m_identity->appVersionNumber(); }
    QString titratorModelString() const { return m_identity->titratorModelString(); }
    void setTitratorModelString(const QString &v) { m_identity->setTitratorModelString(v); }
    QString titratorModelNo() const { return m_identity->titratorModelNo(); }
    void setTitratorModelNo(const QString &v) { m_identity->setTitratorModelNo(v); }
    int productType() const { return 0; }
    QString databaseMessage() const;

    // ---- Live state ----
    bool getDispenseInProgress() const override { return m_dispenseInProgress; }
    void setDispenseInProgress(bool on) override { m_dispenseInProgress = on; }
    bool getTitrationCancelled() const override { return m_titrationCancelled; }
    void setTitrationCancelled(bool on) override { m_titrationCancelled = on; }
    bool qmlStirrerState() const override { return m_qmlStirrerState; }
    void setQmlStirrerState(bool on) override;
    int qmlStirSpeed() const override { return m_qmlStirSpeed; }
    void setQmlStirSpeed(int speed) override;
    int rinseCycles() const override { return m_rinseCycles; }
    void setRinseCycles(int cycles) override;
    int lastStartRinseCycles() const override { return m_lastStartRinseCycles; }
    void setLastStartRinseCycles(int cycles) override { m_lastStartRinseCycles = cycles; }
    float probeTemp() const { return m_probeTemp; }
    void setProbeTemp(float t);
    bool isTemperatureProbePresent() const { return m_temperatureProbePresent; }

    // ---- Console pipe ----
    void sendToConsole(const QString &text) override { m_console.send(text); }
    bool getConsoleMes(QString *text) override { return m_console.take(text); }

    // ---- The engine's cyclic logs ----
    LogManager *titrationLogFile() override;
    LogManager *rawTitrationLogFile() override;

public slots:
    void titrationCompleted() override;

    // The run's records, as the run controller asks for them.
    void beginRunRecords() override;
    float recordRunPoint(float volumeMl) override;
    TitrationRecordParameters titrationRecordParameters() const override;
    int displayBrightness() const override { return m_setupModel ? m_setupModel->displayBrightness() : 3; }
    void notifyValueChanged() override { emit valueChanged(); }

    // Multiple known addition: the method's sample and standard.
    float getTotalSolutionVolume() const override;
    float getMKAProcessCtrlConstant() const override;
    float getMKAProcessCtrlMeasurement() const override;
    float getMKAProcessCtrlPrecision() const override;
    float getMKAStandardConcentration() const override;
    float getMKABlank() const override;
    float getMKASampleBasis() const override;
    float mkaConvertResult(float molPerL) override;
    void getSigMKAPointsToUI(QVariant volume, QVariant mV, QVariant calConc, QVariant precision, QVariant drift,
                             QVariant slope, QVariant e0) override;
    void getMKATitrationCompleted(QVariant conc, QVariant slope, QVariant spike) override;
    void updateProdType(const QString &prodType);
    void getLoadedMspVersion();
    bool isProbePresent() const { return m_temperatureProbePresent; }
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

private slots:
    void qmlFreshDataAvailable();
    void qmlTemperatureDataAvailable(float celsius);

private:
    bool inTitration() const { return m_deviceMode == modeTitration; }
    bool inStandardization() const { return m_deviceMode == modeStandardization; }
    bool backTitration() const;
    // The engine's parameter of the mode in use: the titration part's value
    // in "Titration" mode, the titrant part's in "Standardization" mode.
    // Answers -999 in any other mode, and before the method is loaded.
    float byMode(float (*fromTitration)(const TitrationSetupModel &),
                 float (*fromTitrant)(const TitrantSetupModel &)) const;


    // The run's cycle in the run model: a new one at the start, the points
    // of the curve while it runs.
    void beginRunCycle();
    void addRunPoint(float volumeMl, float value);

    MethodModel *m_methodModel = nullptr;
    ProductIdentity *m_identity = nullptr;
    std::unique_ptr<CMeasurementContext> m_ownContext;
    CMeasurementContext *m_MeasContext = nullptr;
    std::unique_ptr<LogManager> m_titrationLogFile;
    std::unique_ptr<LogManager> m_rawTitrationLogFile;
    MethodLibrary *m_library = nullptr;
    SetupModel *m_setupModel = nullptr;
    MeasurementModel *m_measure = nullptr;

    LogLists *m_logLists = nullptr;
    RunCycleLists *m_runCycles = nullptr;
    StandardisationRecords *m_standardisation = nullptr;

    QString m_deviceMode;
    bool m_blankTitrationMode = false;
    bool m_isCalibrationFromMeasurement = false;
    std::array<double, 3> m_resultArray{{0.0, 0.0, 0.0}};
    float m_epResult1 = 0.0f;
    float m_epResult2 = 0.0f;
    bool m_titrationCancelled = false;
    bool m_dispenseInProgress = false;
    float m_millivolts = 0.0f;
    float m_temperatureCelcius = 25.0f;
    float m_temperatureRawCelcius = 25.0f;
    bool m_temperatureProbePresent = false;
    float m_probeTemp = 25.0f;
    float m_slopeTarget = 0.25f;
    int m_rinseCycles = 3;
    int m_lastStartRinseCycles = 3;
    int m_qmlStirSpeed = 3;
    bool m_qmlStirrerState = false;
    int m_methodCount = 0;


    ConsolePipe m_console;

    // ---- The meter's records: measurement state and electrode calibration ----
    Q_PROPERTY(MeasurementModel *measurementModel READ measurementModel NOTIFY valueChanged)
    Q_PROPERTY(CalibrationModel *calibrationModel READ calibrationModel NOTIFY valueChanged)
    Q_PROPERTY(CalibrationCycleModel *calibrationCycleModel READ calibrationCycleModel NOTIFY valueChanged)
    Q_PROPERTY(QQmlListProperty<CalibrationCycleModel> calibrationcycles READ calibrationcycles NOTIFY valueChanged)
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
    QQmlListProperty<CalibrationCycleModel> calibrationcycles();
    const QList<CalibrationCycleModel *> &calibrationCycleList() override;
    QDateTime lastTitrationCalibrationTime() const { return m_homeCalibration->time(); }
    QString lastTitrationCalAvg() const { return m_homeCalibration->averageText(); }
    bool lastTitrationCalVisible() const { return m_homeCalibration->visible(); }
    // One finished point of the calibration in hand, into memory.
    void updateCalibrationPoint(float fmV, float pH, float Buff, float Slope, float Offset, float Temp) override;

public slots:
    void initiateCalibrationModelFromTitration();
    void initiateCalibrationModelFromMeasure();
    void insertCalibrationValue();
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
    QList<CalibrationCycleModel *> m_calibrationcycles;
};
