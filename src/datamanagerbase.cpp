#include "datamanagerbase.h"

#include "models/modelproperty.h"

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
#include <QRegularExpression>
#include <QSqlQuery>
#include <QSqlRecord>

#include <cmath>

const QString DataManagerBase::modeTitration = QStringLiteral("Titration");
const QString DataManagerBase::modeStandardization = QStringLiteral("Standardization");

namespace {

constexpr float kNoProbeCelsius = 125.0f;

struct Identity {
    const char *productType;
    const char *modelString;
    const char *modelNo;
};

// The first row is the default for an unknown product type.
constexpr Identity kIdentities[] = {
    {"All-in-one", "Vantor Pro V440 All-in-One", "V440"},
    {"pH", "Vantor Pro V410 pH", "V410"},
    {"Redox", "Vantor Pro V420 Redox", "V420"},
    {"ISE", "Vantor Pro V430 Ion", "V430"},
};

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

QString DataManagerBase::buildString()
{
    return QStringLiteral("V" KESTRUM_VERSION);
}

DataManagerBase::DataManagerBase(QObject *parent)
    : QObject(parent),
      m_ownContext(std::make_unique<CMeasurementContext>())
{
    m_MeasContext = m_ownContext.get();
    m_sysInfoModel = new SysInfoModel(this);
    m_sysInfoModel->setAppVersion(buildString());
    m_titratorModelNo = QStringLiteral("V400");
    connect(this, &DataManagerBase::freshDataAvailable, this, &DataManagerBase::qmlFreshDataAvailable);
    connect(this, &DataManagerBase::temperatureDataAvailable, this, &DataManagerBase::qmlTemperatureDataAvailable);
    makeLogFetches();
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
    m_methodModel = new MethodModel(this);
    m_setupModel = new SetupModel(this);
    DataLogSetting::setSource([this] { return m_setupModel->isDatalogFullNotifOn(); });

    m_temperatureCelcius = 25.0f;
    m_temperatureRawCelcius = 25.0f;
    m_slopeTarget = 0.25f;
    m_mspVersionString = tr("Unknown Version");
    m_mfgSerialNum = QStringLiteral("Unknown");

    titrationLogFile();
    rawTitrationLogFile();

    m_titrationQMLVersion = QStringLiteral("10.08.17.1");

    getLastUpdatedMethod();
    reInitializeMethodModel(currentMethodId());
    getMethodsFromDB();

    m_buildNumber = buildString();
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

QQmlListProperty<MethodModel> DataManagerBase::methods()
{
    return QQmlListProperty<MethodModel>(this, &m_methods);
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
    if (m_isStandardizedVal == on)
        return;
    m_isStandardizedVal = on;
    emit valueChanged();
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

void DataManagerBase::setMspVersion(const QString &version)
{
    m_mspVersionString = version;
    emit mspVersionUpdated();
}

QString DataManagerBase::getMspVersion() const
{
    return tr(m_mspVersionString.toUtf8().constData());
}

void DataManagerBase::setMfgSerialNum(const QString &serial)
{
    if (m_mfgSerialNum == serial)
        return;
    m_mfgSerialNum = serial;
    emit mfgSerialNumChanged();
}

// ---- Versions and identity ----

void DataManagerBase::setTitrationQMLVersion(const QString &v)
{
    m_titrationQMLVersion = v;
    emit valueChanged();
}

void DataManagerBase::setTitrationQMLCoreVersion(const QString &v)
{
    m_titrationQMLCoreVersion = v;
    emit valueChanged();
}

void DataManagerBase::setMspQmlVersion(const QString &v)
{
    m_mspQmlVersion = v;
    emit valueChanged();
}

void DataManagerBase::setBuildNumber(const QString &v)
{
    m_buildNumber = v;
    emit valueChanged();
}

QString DataManagerBase::appVersionNumber() const
{
    QString number = m_buildNumber;
    return number.remove(QRegularExpression(QStringLiteral("-g.*")));
}

void DataManagerBase::setTitratorModelString(const QString &v)
{
    if (m_titratorModelString == v)
        return;
    m_titratorModelString = v;
    emit titratorModelStringChanged();
}

void DataManagerBase::setTitratorModelNo(const QString &v)
{
    if (m_titratorModelNo == v)
        return;
    m_titratorModelNo = v;
    emit titratorModelNoChanged();
}

void DataManagerBase::updateProdType(const QString &prodType)
{
    const Identity *identity = &kIdentities[0];
    for (const Identity &candidate : kIdentities) {
        if (prodType == QLatin1String(candidate.productType))
            identity = &candidate;
    }
    m_sysInfoModel->setProductType(QLatin1String(identity->productType));
    setTitratorModelString(QLatin1String(identity->modelString));
    setTitratorModelNo(QLatin1String(identity->modelNo));
    // The report controller takes the model string, and the home screen the
    // last pH calibration, once those exist.
    meterRecords(); // made with the meter's stored row
}

void DataManagerBase::getLoadedMspVersion()
{
    m_mspQmlVersion = getMspVersion();
    emit valueChanged();
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

void DataManagerBase::sendToConsole(const QString &text)
{
    // Unread text is bounded: until the remote port reads it, only the
    // newest part is kept, so a run with nobody listening can't grow it.
    m_console += text;
    if (m_console.size() > consoleLimit)
        m_console.remove(0, m_console.size() - consoleLimit);
    m_consoleNew = true;
}

bool DataManagerBase::getConsoleMes(QString *text)
{
    if (!m_consoleNew)
        return false;
    if (text)
        text->append(m_console);
    m_console.clear();
    m_consoleNew = false;
    return true;
}

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
    return m_setupModel ? m_setupModel->currentMethodId() : MethodModel::scratchMethodId;
}

void DataManagerBase::getLastUpdatedMethod()
{
    QSqlQuery query;
    if (query.exec(QStringLiteral("SELECT *  FROM methodSetupTable order  by datetime(mupdatedAt) DESC limit 1"))
        && query.next())
        m_setupModel->setCurrentMethodId(query.value(QStringLiteral("id")).toInt());
}

void DataManagerBase::reInitializeMethodModel(int id)
{
    m_methodModel->updateMethodModel(id);
    emitSignalsToUI();
}

void DataManagerBase::emitSignalsToUI()
{
    getMethodsFromDB();
    emit m_methodModel->valueChanged();
    emit electrodeSetupModel()->valueChanged();
    emit titrantSetupModel()->valueChanged();
    emit titrationSetupModel()->valueChanged();
    emit valueChanged();
}

void DataManagerBase::getMethodsFromDB()
{
    QSqlQuery query;
    if (!query.exec(QStringLiteral(
            "SELECT *  FROM methodSetupTable WHERE id != 99999 order  by datetime(mcreatedAt) DESC")))
        return;
    QList<MethodModel *> list;
    while (query.next()) {
        auto *entry = new MethodModel(this, false);
        entry->setId(query.value(QStringLiteral("id")).toInt());
        entry->setMethodName(query.value(QStringLiteral("methodName")).toString());
        entry->setMethodPassword(query.value(QStringLiteral("methodPassword")).toString());
        list.append(entry);
    }
    // The old entries go once the screens have moved to the new list.
    QList<MethodModel *> old = m_methods;
    m_methods = list;
    setMethodCount(m_methods.size());
    emit valueChanged();
    releaseLater(old);
}

// ---- Standardisation ----

bool DataManagerBase::getStandardizedFetch(int methodId)
{
    setIsStandardizedVal(false);
    QSqlQuery run;
    run.prepare(QStringLiteral("SELECT * FROM titrationTable WHERE methodId = :id AND titrationType LIKE "
                               "'Standardization' order by datetime(mcreatedAt) DESC"));
    run.bindValue(QStringLiteral(":id"), methodId);
    if (!run.exec() || !run.next())
        return false;
    const QDateTime standardised = run.value(QStringLiteral("mupdatedAt")).toDateTime();
    run.finish();

    QSqlQuery titrant;
    titrant.prepare(QStringLiteral("SELECT mupdatedAt FROM titrantSetupTable WHERE methodId = :id"));
    titrant.bindValue(QStringLiteral(":id"), methodId);
    if (titrant.exec() && titrant.next())
        setIsStandardizedVal(standardised > titrant.value(0).toDateTime());
    else
        setIsStandardizedVal(true);
    return m_isStandardizedVal;
}

bool DataManagerBase::copyStandardization(int originalMethodId, int newMethodId)
{
    QSqlQuery run;
    run.prepare(QStringLiteral("SELECT * FROM titrationTable WHERE methodId = :id AND titrationType LIKE "
                               "'Standardization' order by datetime(mcreatedAt) DESC"));
    run.bindValue(QStringLiteral(":id"), originalMethodId);
    if (!run.exec()) {
        qDebug() << "copyStandardization: query failed for method" << originalMethodId;
        return false;
    }
    if (!run.next())
        return false;
    const QSqlRecord record = run.record();
    run.finish();

    QStringList columns;
    for (int i = 0; i < record.count(); ++i) {
        const QString name = record.fieldName(i);
        if (name != QLatin1String("id") && DbUtil::isPlainIdentifier(name))
            columns << name;
    }
    QStringList placeholders;
    for (int i = 0; i < columns.size(); ++i)
        placeholders << QStringLiteral("?");
    QSqlQuery insert;
    insert.prepare(QStringLiteral("INSERT INTO titrationTable (%1) VALUES (%2)")
                       .arg(columns.join(QStringLiteral(", ")), placeholders.join(QStringLiteral(", "))));
    for (const QString &name : columns) {
        if (name == QLatin1String("methodId"))
            insert.addBindValue(newMethodId);
        else if (name == QLatin1String("mupdatedAt"))
            insert.addBindValue(QDateTime::currentDateTime());
        else
            insert.addBindValue(record.value(name));
    }
    if (!DbUtil::exec(insert)) {
        qDebug() << "copyStandardization: insert failed for method" << newMethodId;
        return false;
    }
    return true;
}

bool DataManagerBase::resetSquenceIds(const QStringList &tables)
{
    return DbUtil::resetSquenceIds(tables);
}

// ---- Logs ----

bool DataManagerBase::checkDB()
{
    return LogTables::anyLogRow();
}

int DataManagerBase::logMethods(int log)
{
    if (log >= LogTables::Titration && log <= LogTables::Measurement)
        m_count = qMax(0, LogTables::rowCount(LogTables::Log(log)));
    return m_count;
}

void DataManagerBase::deleteTitrationLog()
{
    LogTables::deleteTitrationLog();
    stopLogFetch(QStringLiteral("TITRATION"));
}

void DataManagerBase::deleteTitrantLog()
{
    LogTables::deleteTitrantLog();
    stopLogFetch(QStringLiteral("STANDARDIZATION"));
}

void DataManagerBase::deleteCalibrationLog()
{
    LogTables::deleteCalibrationLog();
    stopLogFetch(QStringLiteral("CALIBRATION"));
}

void DataManagerBase::deleteMeasurementLog()
{
    LogTables::deleteMeasurementLog();
    stopLogFetch(QStringLiteral("MEASUREMENT"));
}

void DataManagerBase::makeLogFetches()
{
    m_titrationLogs = std::make_unique<LogListFetch<TitrationLogModel>>(
        [](const QSqlRecord &row) {
            auto *entry = new TitrationLogModel();
            entry->loadFromRecord(row);
            entry->setCount(entry->id());
            return entry;
        },
        [this] { emit titrationLogListChanged(); });
    m_standLogs = std::make_unique<LogListFetch<StandardisationLogModel>>(
        [](const QSqlRecord &row) {
            auto *entry = new StandardisationLogModel();
            entry->loadFromRecord(row);
            return entry;
        },
        [this] { emit standLogListChanged(); });
    m_calibrationLogs = std::make_unique<LogListFetch<CalibrationLogModel>>(
        [](const QSqlRecord &row) {
            auto *entry = new CalibrationLogModel();
            entry->loadFromRecord(row);
            entry->refreshSlope();
            return entry;
        },
        [this] { emit calibrationLogListChanged(); });
    m_measurementLogs = std::make_unique<LogListFetch<MeasurementLogModel>>(
        [this](const QSqlRecord &row) {
            auto *entry = new MeasurementLogModel();
            entry->loadFromRecord(row);
            entry->measurementModel()->setSno(res_length--);
            return entry;
        },
        [this] { emit measuresChanged(); });
}

void DataManagerBase::startLogFetch(const QString &process)
{
    if (process == QLatin1String("TITRATION")) {
        m_titrationLogs->start(TitrationLogModel::newestFirstSql());
    } else if (process == QLatin1String("STANDARDIZATION")) {
        m_standLogs->start(StandardisationLogModel::newestFirstSql());
    } else if (process == QLatin1String("CALIBRATION")) {
        m_calibrationLogs->start(CalibrationLogModel::newestFirstSql());
    } else if (process == QLatin1String("MEASUREMENT")) {
        res_length = 0;
        m_measurementLogs->start(MeasurementLogModel::newestFirstSql(), [this](QSqlQuery &query) {
            if (query.last())
                res_length = query.at() + 1;
            query.first();
            query.previous();
        });
    } else {
        qDebug() << "Error::::Invalid Process Type Selected";
    }
}

void DataManagerBase::getTitrationLogListFromDb()
{
    m_titrationLogs->tick();
}

void DataManagerBase::getStandardizationLogListFromDb()
{
    m_standLogs->tick();
}

void DataManagerBase::getcalibrationLogListFromDb()
{
    m_calibrationLogs->tick();
}

void DataManagerBase::getMeasurementLogListFromDb()
{
    m_measurementLogs->tick();
}

bool DataManagerBase::logFetchRunning(const QString &process) const
{
    if (process == QLatin1String("TITRATION"))
        return m_titrationLogs->running();
    if (process == QLatin1String("STANDARDIZATION"))
        return m_standLogs->running();
    if (process == QLatin1String("CALIBRATION"))
        return m_calibrationLogs->running();
    if (process == QLatin1String("MEASUREMENT"))
        return m_measurementLogs->running();
    return false;
}

void DataManagerBase::stopLogFetch(const QString &process)
{
    if (process == QLatin1String("TITRATION"))
        m_titrationLogs->stop();
    else if (process == QLatin1String("STANDARDIZATION"))
        m_standLogs->stop();
    else if (process == QLatin1String("CALIBRATION"))
        m_calibrationLogs->stop();
    else if (process == QLatin1String("MEASUREMENT"))
        m_measurementLogs->stop();
}

QQmlListProperty<TitrationLogModel> DataManagerBase::titrationLogList()
{
    return QQmlListProperty<TitrationLogModel>(this, &m_titrationLogs->list());
}

QQmlListProperty<StandardisationLogModel> DataManagerBase::standLogList()
{
    return QQmlListProperty<StandardisationLogModel>(this, &m_standLogs->list());
}

QQmlListProperty<CalibrationLogModel> DataManagerBase::calibratoinLogList()
{
    return QQmlListProperty<CalibrationLogModel>(this, &m_calibrationLogs->list());
}

QQmlListProperty<MeasurementLogModel> DataManagerBase::measures()
{
    return QQmlListProperty<MeasurementLogModel>(this, &m_measurementLogs->list());
}

void DataManagerBase::attachLogModel(TitrationLogModel *log)
{
    log->setCurrentMethod(m_methodModel);
    log->setStandardizedFetch([this](int methodId) { return getStandardizedFetch(methodId); });
}

void DataManagerBase::attachLogModel(StandardisationLogModel *log)
{
    log->setCurrentMethod(m_methodModel);
}

// ---- Cycle lists ----

bool DataManagerBase::fromLog(bool &flag)
{
    const bool was = flag;
    flag = false;
    return was;
}

QQmlListProperty<TitrationCycleModel> DataManagerBase::titrationcycles()
{
    if (fromLog(fromTitrationLog))
        return QQmlListProperty<TitrationCycleModel>(this, &m_storedCycles);
    m_titrationcycles = titrationModel() ? titrationModel()->titrationCycles() : QList<TitrationCycleModel *>();
    return QQmlListProperty<TitrationCycleModel>(this, &m_titrationcycles);
}

QQmlListProperty<MKATitrationCycleModel> DataManagerBase::mkaTitrationCycle()
{
    if (fromLog(fromMkaCycleLog))
        return QQmlListProperty<MKATitrationCycleModel>(this, &m_storedMkaCycles);
    m_mkaTitrationCycle = titrationModel() ? titrationModel()->mkaTitrationCycles() : QList<MKATitrationCycleModel *>();
    return QQmlListProperty<MKATitrationCycleModel>(this, &m_mkaTitrationCycle);
}

QQmlListProperty<MKAadditionModel> DataManagerBase::mkaAdditionCycle()
{
    if (fromLog(fromMkaAdditionLog))
        return QQmlListProperty<MKAadditionModel>(this, &m_storedMkaAdditions);
    m_mkaAdditionCycle = titrationModel() ? titrationModel()->mkaAdditionCycles() : QList<MKAadditionModel *>();
    return QQmlListProperty<MKAadditionModel>(this, &m_mkaAdditionCycle);
}

namespace {

// Rows of a run's table as objects, replacing (and freeing) the old ones.
template <class Entry>
void loadStored(QList<Entry *> &list, const QString &sql, int titrationId)
{
    for (Entry *old : qAsConst(list))
        old->deleteLater();
    list.clear();
    QSqlQuery query;
    query.prepare(sql);
    query.bindValue(QStringLiteral(":id"), titrationId);
    if (!DbUtil::exec(query))
        return;
    while (query.next())
        list.append(Entry::fromRecord(query.record()));
}

} // namespace

void DataManagerBase::getTitrationCycleLogFromDb(int titrationId)
{
    loadStored(m_storedCycles, QStringLiteral("SELECT * FROM titrationCycleTable where titrationId = :id ORDER BY cycleNo"),
               titrationId);
    fromTitrationLog = true;
}

void DataManagerBase::getMKAtitrationCycleFromDB(int titrationId)
{
    loadStored(m_storedMkaCycles,
               QStringLiteral("SELECT * FROM mkaTitrationCycleTable where titrationID = :id ORDER BY cycleNo"), titrationId);
    fromMkaCycleLog = true;
}

void DataManagerBase::getMKAadditionFromDB(int titrationId)
{
    loadStored(m_storedMkaAdditions,
               QStringLiteral("SELECT * FROM mkaAdditionTable where titrationID = :id order by cycleNo, datetime(mcreatedAt)"),
               titrationId);
    fromMkaAdditionLog = true;
}

void DataManagerBase::initializeTitration()
{
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

bool DataManagerBase::logMeasurement(MeasurementLogModel *log, bool isDataLogNotifOn)
{
    return meterRecords()->logMeasurement(log, isDataLogNotifOn);
}

QString DataManagerBase::databaseMessage() const
{
    return DatabaseStartup::message();
}
