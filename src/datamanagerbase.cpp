#include "datamanagerbase.h"

#include "meter/cmeasurementcontext.h"
#include "models/dbutil.h"
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
    EngineData::set(this);
}

DataManagerBase::~DataManagerBase()
{
    if (EngineData::get() == this)
        EngineData::set(nullptr);
}

void DataManagerBase::DataManagerLegacyInit()
{
    m_methodModel = new MethodModel(this);
    loadSetupValues();

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
    return m_setup.buretteSizeMl;
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
        m_temperatureCelcius = m_setup.temperatureInput;
        m_temperatureProbePresent = false;
        return;
    }
    m_temperatureCelcius = celsius + m_setup.temperatureOffset;
    m_temperatureProbePresent = true;
    emit temperatureDataAvailable(celsius);
}

void DataManagerBase::qmlTemperatureDataAvailable(float celsius)
{
    setProbeTemp(celsius);
}

void DataManagerBase::qmlFreshDataAvailable()
{
    // The meter's record (`MeasurementModel`) takes the probe state and
    // temperature here once it exists.
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
    bookEndPointReadings(m_epResult1, m_epResult2);
}

void DataManagerBase::titrationCompleted()
{
    std::array<double, 3> volumesMl;
    for (std::size_t i = 0; i < volumesMl.size(); ++i)
        volumesMl[i] = m_resultArray[i] / uLtomL;
    bookRunResult(volumesMl);
}

void DataManagerBase::bookRunResult(const std::array<double, 3> &volumesMl)
{
    // Booking the result (method model, run record and its cycles) comes
    // with the run record models.
    qDebug() << "DataManagerBase: run finished in" << m_deviceMode << (m_blankTitrationMode ? "(blank)" : "")
             << "end points mL" << volumesMl[0] << volumesMl[1] << volumesMl[2]
             << "- result booking not available yet";
}

void DataManagerBase::beginRunCycle()
{
    // The run record appends a new cycle here once it exists.
}

void DataManagerBase::addRunPoint(float volumeMl, float value)
{
    // The run record's current cycle takes the point once it exists.
    Q_UNUSED(volumeMl)
    Q_UNUSED(value)
}

void DataManagerBase::bookEndPointReadings(float ep1, float ep2)
{
    // The run record's current cycle takes the two readings once it exists.
    Q_UNUSED(ep1)
    Q_UNUSED(ep2)
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
    // The report controller takes the model string, the home screen the last
    // pH calibration, and the meter its stored row, once those exist.
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
    m_console += text;
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

void DataManagerBase::loadSetupValues()
{
    // The settings record (`SetupModel`) answers these once it exists; until
    // then they are read from its row as it stands.
    if (!DbUtil::tableExists(QStringLiteral("setupTable")))
        return;
    QSqlQuery query;
    if (!query.exec(QStringLiteral("SELECT * FROM setupTable ORDER BY id LIMIT 1")) || !query.next())
        return;
    const QSqlRecord r = query.record();
    auto number = [&r](const char *column, float fallback) {
        const int i = r.indexOf(QLatin1String(column));
        bool ok = false;
        const float v = i < 0 ? 0.0f : r.value(i).toFloat(&ok);
        return (ok && std::isfinite(v)) ? v : fallback;
    };
    m_setup.buretteSizeMl = number("buretteSize", m_setup.buretteSizeMl);
    m_setup.temperatureInput = number("temperatureInput", m_setup.temperatureInput);
    m_setup.temperatureOffset = number("temperatureOffset", m_setup.temperatureOffset);
    m_setup.currentMethodId = int(number("currentMethodId", float(m_setup.currentMethodId)));
    m_setup.displayBrightness = int(number("displaybrightness", float(m_setup.displayBrightness)));
}

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

ConcentrationCalc::Sample DataManagerBase::mkaSample() const
{
    ConcentrationCalc::Sample s;
    if (const TitrationSetupModel *t = titrationSetupModel()) {
        s.resultUnits = t->resultUnits();
        s.resultUnitsValue = t->resultUnitsValue();
        s.sampleAmount = t->sampleAmount();
        s.amount = t->sampleAmountValue();
        s.density = t->sampleDensity();
        s.molecularWeight = t->sampleMolecularWeight();
    }
    return s;
}

void DataManagerBase::getSigMKAPointsToUI(QVariant volume, QVariant mV, QVariant calConc, QVariant precision,
                                          QVariant drift, QVariant slope, QVariant e0)
{
    // The run record's known-addition rows take each addition once they exist.
    qDebug() << "MKA addition: volume" << volume.toDouble() << "mV" << mV.toDouble() << "conc" << calConc.toDouble()
             << "precision" << precision.toDouble() << "drift" << drift.toDouble() << "slope" << slope.toDouble()
             << "E0" << e0.toDouble();
}

void DataManagerBase::getMKATitrationCompleted(QVariant conc, QVariant slope, QVariant spike)
{
    qDebug() << "MKA complete: concentration" << conc.toDouble() << "slope" << slope.toDouble() << "spike"
             << spike.toDouble();
}

float DataManagerBase::getMKASampleBasis() const
{
    const TitrationSetupModel *t = titrationSetupModel();
    return ConcentrationCalc::mkaSampleBasis(mkaSample(), t ? t->servingSize() : 1.0f);
}

float DataManagerBase::mkaConvertResult(float molPerL)
{
    return ConcentrationCalc::mkaConvertResult(molPerL, mkaSample());
}

int DataManagerBase::currentMethodId() const
{
    return m_setup.currentMethodId;
}

void DataManagerBase::getLastUpdatedMethod()
{
    QSqlQuery query;
    if (query.exec(QStringLiteral("SELECT *  FROM methodSetupTable order  by datetime(mupdatedAt) DESC limit 1"))
        && query.next())
        m_setup.currentMethodId = query.value(QStringLiteral("id")).toInt();
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
    // The old entries stay alive: a screen may still hold one.
    QList<MethodModel *> list;
    while (query.next()) {
        auto *entry = new MethodModel(this, false);
        entry->setId(query.value(QStringLiteral("id")).toInt());
        entry->setMethodName(query.value(QStringLiteral("methodName")).toString());
        entry->setMethodPassword(query.value(QStringLiteral("methodPassword")).toString());
        list.append(entry);
    }
    m_methods = list;
    setMethodCount(m_methods.size());
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

void DataManagerBase::startLogFetch(const QString &process)
{
    static const QStringList processes{QStringLiteral("TITRATION"), QStringLiteral("STANDARDIZATION"),
                                       QStringLiteral("CALIBRATION"), QStringLiteral("MEASUREMENT")};
    if (!processes.contains(process)) {
        qDebug() << "Error::::Invalid Process Type Selected";
        return;
    }
    // The lists are built from the log record models, which come later.
    qDebug() << "DataManagerBase::startLogFetch" << process << "- log lists not available yet";
}

void DataManagerBase::stopLogFetch(const QString &process)
{
    // Runs the list's timer tick once on its exhausted query, which stops
    // the fetch; nothing runs until the log lists exist.
    Q_UNUSED(process)
}
