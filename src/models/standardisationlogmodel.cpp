#include "models/standardisationlogmodel.h"

#include "models/dbtransaction.h"
#include "models/dbutil.h"
#include "models/electrodesetupmodel.h"
#include "models/logcapacity.h"
#include "models/loglayout.h"
#include "models/logsnapshot.h"
#include "models/methodmodel.h"
#include "models/migrationframe.h"
#include "models/titrantsetupmodel.h"
#include "system/clock.h"

#include <QDebug>
#include <QSqlQuery>

const QString StandardisationLogModel::tableName = QStringLiteral("standardisationLogTable");
QStringList StandardisationLogModel::noMigrateList = DbUtil::versionRange(QStringLiteral("1.6"), QStringLiteral("1.7"));

const LogLayout &StandardisationLogModel::layout()
{
    return LogLayout::standardisation();
}

StandardisationLogModel::StandardisationLogModel(QObject *parent)
    : QObject(parent)
{
    m_method = new MethodModel(this, false);
    m_electrode = new ElectrodeSetupModel(this);
    m_titrant = new TitrantSetupModel(this);
    createTable();
}

bool StandardisationLogModel::createTable()
{
    return DbUtil::execText(layout().createSql(tableName));
}

bool StandardisationLogModel::migrate(const QString &fromVersion)
{
    return MigrationFrame::dropOnOldVersions("StandardisationLogModel", tableName, noMigrateList, "1.1", "1.5", fromVersion);
}

void StandardisationLogModel::setId(int id)
{
    if (m_id == id)
        return;
    m_id = id;
    emit valueChanged();
}

bool StandardisationLogModel::saveLogValues()
{
    return saveLogValues(DataLogSetting::isDatalogFullNotifOn());
}

bool StandardisationLogModel::saveLogValues(bool isDataLogNotifOn)
{
    createTable();
    LogSourceRows rows = LogSnapshot::methodRows(m_current);
    const QString electrodeType = rows.value(LogBlock::Electrode).value(QStringLiteral("electrodeType")).toString();
    setCalibrationValues(LogSnapshot::lastCalibration(electrodeType));
    setCalibrationCycleValues(QVariantMap());
    rows.insert(LogBlock::Calibration, calibrationValues());
    rows.insert(LogBlock::CalibrationPoint, calibrationCycleValues());
    setRunValues(LogSnapshot::runRow(m_current, runValues()));
    rows.insert(LogBlock::Run, runValues());

    const QDateTime now = Clock::now();
    setCreatedAt(now);
    setUpdatedAt(now);
    setAvgConc(QString());
    setRSD(QString());
    rows.insert(LogBlock::Own, {{QStringLiteral("AvgConc"), QString("")},
                                {QStringLiteral("RSD"), QString("")},
                                {QStringLiteral("logCreatedAt"), now},
                                {QStringLiteral("logUpdatedAt"), now}});
    const int id = LogSnapshot::insert(layout(), tableName, rows, "standardisationLog Save err");
    if (id > 0)
        setId(id);

    const LogCapacityRule &rule = LogCapacity::standardisation;
    const int n = LogCapacity::count(rule.table);
    if (LogCapacity::warningDue(rule, n, isDataLogNotifOn))
        emit notificationSignal(rule.etype);
    LogCapacity::trim(rule, n, &StandardisationLogModel::pruneOldest);
    return id > 0;
}

bool StandardisationLogModel::pruneOldest()
{
    DbTransaction unit;
    QSqlQuery oldest;
    if (!DbUtil::exec(oldest, QStringLiteral("SELECT id, titration_Id  FROM standardisationLogTable order by id limit 1"))
        || !oldest.next())
        return false;
    const int id = oldest.value(0).toInt();
    const QVariant titrationId = oldest.value(1);
    oldest.finish();
    const bool ok = LogSnapshot::deleteRow(tableName, id)
        && LogCapacity::deleteRun(titrationId, QString())
        && LogCapacity::deleteWhere("reportSetupTable", "standardizationId", id);
    return ok && unit.commit();
}

bool StandardisationLogModel::deleteRow(int id)
{
    return LogSnapshot::deleteRow(tableName, id);
}

bool StandardisationLogModel::updateStandardisationLog()
{
    QSqlQuery update;
    update.prepare(QStringLiteral("UPDATE  standardisationLogTable SET AvgConc=:AvgConc , RSD=:rsd WHERE id=:ID"));
    update.bindValue(QStringLiteral(":AvgConc"), AvgConc());
    update.bindValue(QStringLiteral(":rsd"), RSD());
    update.bindValue(QStringLiteral(":ID"), m_id);
    return DbUtil::exec(update);
}

void StandardisationLogModel::loadFromRecord(const QSqlRecord &row)
{
    const LogLayout &l = layout();
    setId(row.value(QStringLiteral("id")).toInt());
    LogSnapshot::loadParts(l, row, m_method, m_electrode, m_titrant, nullptr);
    setCalibrationValues(LogSnapshot::storedCalibration(l, row));
    setCalibrationCycleValues(LogSnapshot::blockValues(l, row, LogBlock::CalibrationPoint));
    setRunValues(LogSnapshot::blockValues(l, row, LogBlock::Run));
    setCreatedAt(row.value(QStringLiteral("logCreatedAt")).toDateTime());
    setUpdatedAt(row.value(QStringLiteral("logUpdatedAt")).toDateTime());
    setAvgConc(row.value(QStringLiteral("AvgConc")).toString());
    setRSD(row.value(QStringLiteral("RSD")).toString());
}

QString StandardisationLogModel::newestFirstSql()
{
    return LogSnapshot::newestFirstSql(tableName);
}

QList<StandardisationLogModel *> StandardisationLogModel::newestFirst(QObject *parent)
{
    return LogSnapshot::newestFirst<StandardisationLogModel>(newestFirstSql(), parent, [](StandardisationLogModel *) {});
}
