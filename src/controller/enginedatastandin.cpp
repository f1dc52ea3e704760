#include "controller/enginedatastandin.h"

#include "reports/logmanager.h"

namespace {

// Nernst slope in mV per pH at a temperature in °C.
float nernstSlope(float celsius)
{
    return 0.198416f * (celsius + 273.15f);
}

EngineDataInterface *&installed()
{
    static EngineDataInterface *data = nullptr;
    return data;
}

} // namespace

EngineDataInterface *EngineData::get()
{
    if (!installed()) {
        static EngineDataStandIn standIn;
        return &standIn;
    }
    return installed();
}

void EngineData::set(EngineDataInterface *data)
{
    installed() = data;
}

EngineDataStandIn::EngineDataStandIn() = default;
EngineDataStandIn::~EngineDataStandIn() = default;

float EngineDataStandIn::getScaledVal(float mv)
{
    return (electrode == 0 && displayPh) ? millivoltsToPH(mv) : mv;
}

float EngineDataStandIn::millivoltsToPH(float mv)
{
    return 7.f - mv / nernstSlope(temperatureC);
}

float EngineDataStandIn::phToMillivolts(float ph)
{
    return (7.f - ph) * nernstSlope(temperatureC);
}

void EngineDataStandIn::beginRunRecords()
{
    ++runRecordsBegun;
    runPoints.clear();
}

float EngineDataStandIn::recordRunPoint(float volumeMl)
{
    const float value = getScaledVal(millivolts);
    runPoints.emplace_back(volumeMl, value);
    return value;
}

TitrationRecordParameters EngineDataStandIn::titrationRecordParameters() const
{
    static const char *const techniques[] = {"Preset End Pt.", "Equivalence Pt.", "Engineering Basic pH",
                                             "Multiple Known Addition"};
    static const char *const controls[] = {"Routine", "Quick", "Careful", "User Defined"};
    TitrationRecordParameters p;
    p.technique = (technique >= 0 && technique < 4) ? QLatin1String(techniques[technique]) : QString();
    p.processControl = (processCtrl >= 0 && processCtrl < 4) ? QLatin1String(controls[processCtrl]) : QString();
    p.displayUnits = displayUnits();
    p.preDoseMl = preDose;
    p.maxVolumeMl = maxVolmL;
    p.noOfEndPoints = noOfEndpoints;
    return p;
}

void EngineDataStandIn::sendToConsole(const QString &text)
{
    console += text;
    consoleNew = true;
}

bool EngineDataStandIn::getConsoleMes(QString *text)
{
    if (!consoleNew)
        return false;
    text->append(console);
    console.clear();
    consoleNew = false;
    return true;
}

LogManager *EngineDataStandIn::titrationLogFile()
{
    if (!m_titrationLog) {
        m_titrationLog = std::make_unique<LogManager>();
        m_titrationLog->setLogfileDir(QStringLiteral("logFiles/titrationLogs"));
        m_titrationLog->setLogfileBasename(QStringLiteral("titration"));
    }
    return m_titrationLog.get();
}

LogManager *EngineDataStandIn::rawTitrationLogFile()
{
    if (!m_rawTitrationLog) {
        m_rawTitrationLog = std::make_unique<LogManager>();
        m_rawTitrationLog->setLogfileDir(QStringLiteral("logFiles/rawTitrationLogs"));
        m_rawTitrationLog->setLogfileBasename(QStringLiteral("rawTitration"));
    }
    return m_rawTitrationLog.get();
}
