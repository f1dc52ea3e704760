#include "models/measurementlogmodel.h"

#include "models/dbtransaction.h"
#include "models/dbutil.h"
#include "models/logcapacity.h"
#include "models/loglayout.h"
#include "models/logsnapshot.h"
#include "models/migrationframe.h"
#include "system/clock.h"

#include <QDebug>
#include <QSqlQuery>

const QString MeasurementLogModel::tableName = QStringLiteral("measurementLogTable");
QStringList MeasurementLogModel::noMigrateList = DbUtil::versionRange(QStringLiteral("1.5"), QStringLiteral("1.7"));

const LogLayout &MeasurementLogModel::layout()
{
    return LogLayout::measurement();
}

MeasurementLogModel::MeasurementLogModel(QObject *parent)
    : QObject(parent)
{
    m_measurement = new MeasurementModel(this);
    createTable();
}

void MeasurementLogModel::takeMeasurement(MeasurementModel *measurement)
{
    if (!measurement)
        return;
    QVariantMap values = LogLayout::rowOf(measurement, MeasurementModel::columnTable());
    values.insert(QStringLiteral("isAtc"), measurement->isATC());
    values.insert(QStringLiteral("stability"), measurement->stability());
    setMeasurementValues(values);
}

bool MeasurementLogModel::createTable()
{
    return DbUtil::execText(layout().createSql(tableName));
}

bool MeasurementLogModel::migrate(const QString &fromVersion)
{
    return MigrationFrame::dropOnOldVersions("MeasurementLogModel", tableName, noMigrateList, "1.1", "1.4", fromVersion);
}

void MeasurementLogModel::setId(int id)
{
    if (m_id == id)
        return;
    m_id = id;
    emit valueChanged();
}

bool MeasurementLogModel::saveLogValues()
{
    return saveLogValues(DataLogSetting::isDatalogFullNotifOn());
}

bool MeasurementLogModel::saveLogValues(bool isDataLogNotifOn)
{
    createTable();
    const QVariantMap &m = measurementValues();
    const bool stable = m.value(QStringLiteral("stability")).toBool();
    const QDateTime now = Clock::now();
    setCreatedAt(now);
    setUpdatedAt(now);
    LogSourceRows rows;
    rows.insert(LogBlock::Measurement, m);
    rows.insert(LogBlock::Own, {{QStringLiteral("isAtc"), m.value(QStringLiteral("isAtc")).toBool() ? 1 : 0},
                                {QStringLiteral("isAlarmActive"), stable ? 0 : 1},
                                {QStringLiteral("stabilizeState"), stable ? QStringLiteral("stabilized") : QStringLiteral("stabilizing")},
                                {QStringLiteral("logCreatedAt"), now},
                                {QStringLiteral("logUpdatedAt"), now}});
    const int id = LogSnapshot::insert(layout(), tableName, rows, "measurementLog Save err");
    if (id <= 0)
        return false; // not stored: never reported as saved
    setId(id);

    const LogCapacityRule &rule = LogCapacity::measurement;
    const int n = LogCapacity::count(rule.table);
    const bool warn = LogCapacity::warningDue(rule, n, isDataLogNotifOn);
    if (warn)
        emit notificationSignal(rule.etype);
    LogCapacity::trim(rule, n, &MeasurementLogModel::pruneOldest);
    if (!warn)
        emit logSaved();
    return true;
}

bool MeasurementLogModel::pruneOldest()
{
    DbTransaction unit;
    QSqlQuery oldest;
    if (!DbUtil::exec(oldest, QStringLiteral("SELECT id FROM measurementLogTable order by id limit 1")) || !oldest.next())
        return false;
    const int id = oldest.value(0).toInt();
    oldest.finish();
    const bool ok = LogSnapshot::deleteRow(tableName, id) && LogCapacity::deleteWhere("reportSetupTable", "measurementId", id);
    return ok && unit.commit();
}

bool MeasurementLogModel::deleteRow(int id)
{
    return LogSnapshot::deleteRow(tableName, id);
}

void MeasurementLogModel::loadFromRecord(const QSqlRecord &row)
{
    setId(row.value(QStringLiteral("id")).toInt());
    QVariantMap values;
    for (int i = 0; i < row.count(); ++i)
        values.insert(row.fieldName(i), row.value(i));
    setMeasurementValues(values);
    m_measurement->load(row);
    setCreatedAt(row.value(QStringLiteral("logCreatedAt")).toDateTime());
    setUpdatedAt(row.value(QStringLiteral("logUpdatedAt")).toDateTime());
}

QString MeasurementLogModel::newestFirstSql()
{
    return LogSnapshot::newestFirstSql(tableName);
}

QList<MeasurementLogModel *> MeasurementLogModel::newestFirst(QObject *parent)
{
    return LogSnapshot::newestFirst<MeasurementLogModel>(newestFirstSql(), parent, [](MeasurementLogModel *) {});
}
