#include "models/setupmodel.h"

#include "models/dbutil.h"
#include "models/migrationframe.h"
#include "system/clock.h"
#include "system/clocaletext.h"
#include "system/platform.h"

#include <QDebug>
#include <QSqlQuery>
#include <QSqlRecord>

const QString SetupModel::tableName = QStringLiteral("setupTable");
QStringList SetupModel::noMigrateList = DbUtil::versionRange(QStringLiteral("1.1"), QStringLiteral("1.7"));

namespace {
// Column 10, the reference of the temperature calibration, is written but
// never read back.
constexpr int temperatureInputAtcColumn = 10;
constexpr int firstNotificationColumn = 20;
constexpr int lastNotificationColumn = 26;
} // namespace

const ColumnTable &SetupModel::columnTable()
{
    static const ColumnTable table({
        {"id", "integer primary key", "id", ColumnSpec::AsIs},
        {"language", "varchar(30)", "language", ColumnSpec::AsIs},
        {"date", "DATETIME", "date", ColumnSpec::AsIs},
        {"dateFormat_Index", "varchar(30)", "dateFormat_Index", ColumnSpec::AsText},
        {"time", "varchar(30)", "time", ColumnSpec::AsIs},
        {"timeFormat_Index", "varchar(30)", "timeFormat_Index", ColumnSpec::AsText},
        {"temperatureFormat_Index", "varchar(30)", "temperatureFormat_Index", ColumnSpec::AsText},
        {"instrumentName", "varchar(30)", "instrumentName", ColumnSpec::AsIs},
        {"displaybrightness", "varchar(30)", "displayBrightness", ColumnSpec::AsText},
        {"temperatureInput", "float", "temperatureInput", ColumnSpec::AsNumber},
        {"temperatureInputAtc", "float", "temperatureInputAtc", ColumnSpec::AsNumber},
        {"temperatureOffset", "float", "temperatureOffset", ColumnSpec::AsNumber},
        {"screenSensitivity", "varchar(30)", "screenSensitivity", ColumnSpec::AsIs},
        {"screenSaverTime", "varchar(30)", "screenSaverTime", ColumnSpec::AsIs},
        {"buretteSize", "varchar(30)", "buretteSize", ColumnSpec::AsText},
        {"installationDate", "varchar(10)", "installationDate", ColumnSpec::AsIs},
        {"currentMethodId", "int", "currentMethodId", ColumnSpec::AsIs},
        {"isDataUpdated", "int", "isDataUpdated", ColumnSpec::AsIs},
        {"mcreatedAt", "DATETIME", "mcreatedAt", ColumnSpec::AsIs},
        {"mupdatedAt", "DATETIME", "mupdatedAt", ColumnSpec::AsIs},
        {"isTitrationCycleCompleteNotifOn", "int", "titrationCycleCompleteNotification", ColumnSpec::AsIs},
        {"isMaxTitrantVolNotifOn", "int", "maxTitrantVolumeNotification", ColumnSpec::AsIs},
        {"isDatalogFullNotifOn", "int", "isDatalogFullNotifOn", ColumnSpec::AsIs},
        {"isMaintainanceDueNotifOn", "int", "isMaintainanceDueNotifOn", ColumnSpec::AsIs},
        {"isPhCalibrationNotifOn", "int", "isPhCalibrationNotifOn", ColumnSpec::AsIs},
        {"isRedoxCalibrationNotifOn", "int", "isRedoxCalibrationNotifOn", ColumnSpec::AsIs},
        {"isIseCalibrationNotifOn", "int", "isIseCalibrationNotifOn", ColumnSpec::AsIs},
        {"phCalibrationDue", "int", "phCalibrationDue", ColumnSpec::AsIs},
        {"redoxCalibrationDue", "int", "redoxCalibrationDue", ColumnSpec::AsIs},
        {"iseCalibrationDue", "int", "iseCalibrationDue", ColumnSpec::AsIs},
        {"maintainanceDue", "int", "maintainanceDue", ColumnSpec::AsIs},
        {"maintainanceScheduledAt", "DATETIME", "maintainanceScheduledAt", ColumnSpec::AsIs},
    });
    return table;
}

SetupModel::SetupModel(QObject *parent)
    : QObject(parent)
{
    applyDefaults();
    connect(&m_dueTimer, &QTimer::timeout, this, &SetupModel::calibrationDueNotificationSlot);
    // A coarse timer may fire up to 5 % early, twice in one minute, and a
    // reminder would be given twice.
    m_dueTimer.setTimerType(Qt::PreciseTimer);
    m_dueTimer.start(dueCheckIntervalMs);
    load();
}

void SetupModel::applyDefaults()
{
    m_id = rowId;
    m_language.clear();
    m_date = QDateTime();
    m_dateFormat_Index = 0;
    m_time.clear();
    m_timeFormat_Index = 0;
    m_temperatureFormat_Index = 0;
    m_instrumentName.clear();
    m_displayBrightness = 3;
    m_tempDisplayBrightness = 3;
    m_temperatureInput = 25.0f;
    m_temperatureOffset = 0.0f;
    m_screenSensitivity.clear();
    m_screenSaverTime.clear();
    m_buretteSize = 20;
    m_installationDate.clear();
    m_currentMethodId = 99999;
    m_isDataUpdated = false;
    m_cycleCompleteNotification = true;
    m_maxVolumeNotification = true;
    m_isDatalogFullNotifOn = false;
    m_isMaintainanceDueNotifOn = false;
    m_isPhCalibrationNotifOn = false;
    m_isRedoxCalibrationNotifOn = false;
    m_isIseCalibrationNotifOn = false;
    m_phCalibrationDue = 24;
    m_redoxCalibrationDue = 24;
    m_iseCalibrationDue = 24;
    m_maintainanceDue = 0;
    m_maintainanceScheduledAt = QDateTime();
    m_isSetupLoaded = false;
}

bool SetupModel::migrate(const QString &fromVersion)
{
    MigrationFrame frame;
    frame.modelName = QStringLiteral("SetupModel");
    frame.noMigrateList = noMigrateList;
    return frame.run(fromVersion);
}

void SetupModel::load()
{
    DbUtil::execText(columnTable().createSql(tableName, true));
    QSqlQuery select;
    if (!DbUtil::exec(select, QStringLiteral("SELECT * FROM setupTable")))
        return;
    if (!select.next()) {
        select.finish();
        insertRow();
        return;
    }
    const QSqlRecord record = select.record();
    select.finish();
    m_loading = true;
    columnTable().loadByPosition(this, record, {temperatureInputAtcColumn});
    // A switch is on only for a stored 1.
    for (int i = firstNotificationColumn; i <= lastNotificationColumn; ++i)
        setProperty(columnTable().columns().at(i).property, record.value(i).toInt() == 1);
    m_loading = false;
    setTempDisplayBrightness(m_displayBrightness);
    setIsSetupLoaded(true);
    emit idChanged();
    getLastCalibrationTime();
}

bool SetupModel::insertRow()
{
    const QDateTime now = Clock::now();
    setMcreatedAt(now);
    setMupdatedAt(now);
    QSqlQuery insert;
    insert.prepare(columnTable().insertSql(tableName, QStringList()));
    columnTable().bindFrom(this, insert, columnTable().names());
    return DbUtil::exec(insert);
}

bool SetupModel::setSetupValues()
{
    QSqlQuery select;
    if (!DbUtil::exec(select, QStringLiteral("SELECT * FROM setupTable")))
        return false;
    const bool exists = select.next();
    select.finish();
    if (!exists)
        return insertRow();
    setMupdatedAt(Clock::now());
    QStringList columns = columnTable().names();
    columns.removeAll(QStringLiteral("id"));
    QStringList sets;
    for (const QString &c : columns)
        sets << QStringLiteral("%1=:%1").arg(c);
    QSqlQuery update;
    update.prepare(QStringLiteral("UPDATE setupTable SET %1 WHERE id=:oldId").arg(sets.join(QStringLiteral(", "))));
    columnTable().bindFrom(this, update, columns);
    update.bindValue(QStringLiteral(":oldId"), m_id);
    return DbUtil::exec(update);
}

void SetupModel::resetSetupValues()
{
    // The factory values are those a first start writes: the 12-hour form
    // (0), degrees Celsius (0) and 25 °C of manual temperature.
    m_id = rowId;
    m_language.clear();
    m_time.clear();
    m_instrumentName.clear();
    m_screenSensitivity.clear();
    m_screenSaverTime.clear();
    m_dateFormat_Index = 0;
    m_timeFormat_Index = 0;
    m_temperatureFormat_Index = 0;
    m_displayBrightness = 3;
    m_tempDisplayBrightness = 3;
    m_isSetupLoaded = false;
    m_temperatureInput = 25.0f;
    m_temperatureInputAtc = 0.0f;
    m_temperatureOffset = 0.0f;
    m_buretteSize = 20;
    emit valueChanged();
}

void SetupModel::setId(int id)
{
    if (m_id == id)
        return;
    m_id = id;
    emit idChanged();
}

void SetupModel::setTemperatureInput(float value)
{
    qDebug() << ">>>>>> setup set temperature input " << value;
    m_temperatureInput = value;
    emit valueChanged();
}

void SetupModel::setTemperatureInputAtc(float value)
{
    m_temperatureInputAtc = value;
    emit valueChanged();
}

void SetupModel::setTemperatureOffset(float offset)
{
    m_temperatureOffset = offset;
}

void SetupModel::setBuretteSize(int value)
{
    qDebug() << "Setting Burette Size";
    m_buretteSize = value;
}

void SetupModel::setTitrationCycleCompleteNotification(bool on)
{
    m_cycleCompleteNotification = on;
    if (!m_loading)
        setSetupValues();
}

void SetupModel::setMaxTitrantVolumeNotification(bool on)
{
    m_maxVolumeNotification = on;
    if (!m_loading)
        setSetupValues();
}

void SetupModel::setMfgSerialNo(const QString &serial)
{
    qDebug() << "serial no: " << serial;
    m_mfgSerialNo = serial;
    emit mfgSerialNoChanged();
}

bool SetupModel::updateColumn(const char *column, const QVariant &value)
{
    QSqlQuery update;
    update.prepare(QStringLiteral("UPDATE setupTable SET %1=:value WHERE id=:oldId").arg(QString::fromLatin1(column)));
    update.bindValue(QStringLiteral(":value"), value);
    update.bindValue(QStringLiteral(":oldId"), m_id);
    return DbUtil::exec(update);
}

void SetupModel::updatePhCalibrationDue(int hour)
{
    updateColumn("phCalibrationDue", hour);
    setPhCalibrationDue(hour);
}

void SetupModel::updateredoxCalibrationDue(int hour)
{
    updateColumn("redoxCalibrationDue", hour);
    setRedoxCalibrationDue(hour);
}

void SetupModel::updateiseCalibrationDue(int hour)
{
    updateColumn("iseCalibrationDue", hour);
    setIseCalibrationDue(hour);
}

void SetupModel::updateMaintainanceDue(int hour)
{
    updateColumn("maintainanceDue", hour);
    setMaintainanceDue(hour);
    updatemaintainanceScheduledAt();
}

void SetupModel::updatePhCalibrationNotifOn(bool value)
{
    updateColumn("isPhCalibrationNotifOn", value ? 1 : 0);
    setIsPhCalibrationNotifOn(value);
}

void SetupModel::updateRedoxCalibrationNotifOn(bool value)
{
    updateColumn("isRedoxCalibrationNotifOn", value ? 1 : 0);
    setIsRedoxCalibrationNotifOn(value);
}

void SetupModel::updateIseCalibrationNotifOn(bool value)
{
    updateColumn("isIseCalibrationNotifOn", value ? 1 : 0);
    setIsIseCalibrationNotifOn(value);
}

void SetupModel::updateDatalogFullNotifOn(bool value)
{
    updateColumn("isDatalogFullNotifOn", value ? 1 : 0);
    setIsDatalogFullNotifOn(value);
}

void SetupModel::updateMaintainanceNotifOn(bool value)
{
    updateColumn("isMaintainanceDueNotifOn", value ? 1 : 0);
    setIsMaintainanceDueNotifOn(value);
}

void SetupModel::updatemaintainanceScheduledAt()
{
    // A period under one month can't move the schedule on.
    if (m_maintainanceDue < 1 || !m_date.isValid()) {
        qDebug() << "SetupModel: no maintenance schedule for period" << m_maintainanceDue << "from" << m_date;
        return;
    }
    const QDateTime now = Clock::now();
    QDateTime scheduled = m_date;
    while (scheduled < now)
        scheduled = scheduled.addMonths(m_maintainanceDue);
    setMaintainanceScheduledAt(scheduled);
    updateColumn("maintainanceScheduledAt", scheduled.addMonths(m_maintainanceDue));
}

void SetupModel::getLastCalibrationTime()
{
    static const char *const kinds[3] = {"pH", "Redox", "ISE"};
    static const char *const labels[3] = {"SetupModel m_pHLastCalibrationTime: ",
                                          "SetupModel m_redoxLastCalibrationTime: ",
                                          "SetupModel m_iseLastCalibrationTime: "};
    // A file just migrated from an old version has no calibrations yet.
    if (!DbUtil::tableExists(QStringLiteral("calibrationTable")))
        return;
    for (int i = 0; i < 3; ++i) {
        QSqlQuery query;
        query.prepare(QStringLiteral("SELECT * FROM calibrationTable WHERE electrodeType=:electrodeType "
                                     "order by datetime(mcreatedAT) DESC"));
        query.bindValue(QStringLiteral(":electrodeType"), QString::fromLatin1(kinds[i]));
        if (DbUtil::exec(query) && query.next()) {
            m_lastTime[i] = query.value(QStringLiteral("mcreatedAt")).toDateTime();
            m_lastAvg[i] = query.value(QStringLiteral("avgSlope")).toFloat();
        }
        qDebug() << labels[i] << m_lastTime[i];
    }
    emit valueChanged();
}

QString SetupModel::clockText(const QDateTime &newDate, const QDateTime &newTime)
{
    return CLocaleText::dateTime(newDate, QStringLiteral("dd MMM yyyy")) + QLatin1Char(' ')
           + CLocaleText::dateTime(newTime, QStringLiteral("hh:mm:ss"));
}

QString SetupModel::clockText2(const QString &sysTime, const QDateTime &newTime)
{
    return CLocaleText::dateTime(newTime, QStringLiteral("dd MMM yyyy")) + QLatin1Char(' ') + sysTime;
}

void SetupModel::runClockCommand(const QString &program, const QStringList &arguments)
{
    constexpr int clockCommandTimeoutMs = 30000;
    const Platform::Result r = Platform::run(program, arguments, clockCommandTimeoutMs);
    qDebug() << "output   :" << r.standardOutput;
    if (!r.ok())
        qWarning() << "SetupModel:" << program << arguments << "failed:" << r.exitCode << r.standardError;
}

void SetupModel::setupSysDateTime(const QDateTime &newDate, const QDateTime &newTime)
{
    runClockCommand(QStringLiteral("date"), {QStringLiteral("-s"), clockText(newDate, newTime)});
}

void SetupModel::setupSysDateTime2(const QString &sysTime, const QDateTime &newTime)
{
    runClockCommand(QStringLiteral("date"), {QStringLiteral("-s"), clockText2(sysTime, newTime)});
}

void SetupModel::saveHardwareClock()
{
    runClockCommand(QStringLiteral("/sbin/hwclock"), {QStringLiteral("-w")});
}

bool SetupModel::isCalibrationDue(const QDateTime &last, const QDateTime &now, int hours)
{
    if (!last.isValid() || !now.isValid() || hours < 1)
        return false;
    const qint64 minutes = qAbs(last.secsTo(now)) / 60;
    return minutes % (qint64(hours) * 60) == 0;
}

void SetupModel::calibrationDueNotificationSlot()
{
    const QDateTime now = Clock::now();
    const int hours[3] = {m_phCalibrationDue, m_redoxCalibrationDue, m_iseCalibrationDue};
    const bool on[3] = {m_isPhCalibrationNotifOn, m_isRedoxCalibrationNotifOn, m_isIseCalibrationNotifOn};
    for (int kind = 0; kind < 3; ++kind) {
        if (on[kind] && isCalibrationDue(m_lastTime[kind], now, hours[kind])) {
            startBeep();
            emit notificationSignal(QVariant(kind + 1));
            return;
        }
    }
}

void SetupModel::startBeep()
{
    m_beeper.beep(notificationToneHz, notificationToneMs);
}

void SetupModel::startMaintainanceNotification()
{
    const QDateTime now = Clock::now();
    qDebug() << "maintainance Date " << m_maintainanceScheduledAt;
    qDebug() << "current Date " << now;
    if (!m_maintainanceScheduledAt.isValid() || m_maintainanceScheduledAt.date() != now.date())
        return;
    updatemaintainanceScheduledAt();
    startBeep();
    emit notificationSignal(QVariant(9));
}
