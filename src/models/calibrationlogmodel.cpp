#include "models/calibrationlogmodel.h"

#include "models/calibrationmodel.h"
#include "models/dbtransaction.h"
#include "models/dbutil.h"
#include "models/logcapacity.h"
#include "models/loglayout.h"
#include "models/logsnapshot.h"
#include "models/migrationframe.h"
#include "system/clock.h"

#include <QDebug>
#include <QSet>
#include <QSqlQuery>

const QString CalibrationLogModel::tableName = QStringLiteral("calibrationLogTable");
QStringList CalibrationLogModel::noMigrateList = DbUtil::versionRange(QStringLiteral("1.4"), QStringLiteral("1.7"));
const QString CalibrationLogModel::listColumns = QStringLiteral(
    "id,electrodeSetup_Name,electrodeSetup_Type,methodId,methodName,calibration_Id,calibration_ElectrodeName,"
    "calibration_ElectrodeType,logCreatedAt");

const LogLayout &CalibrationLogModel::layout()
{
    return LogLayout::calibration();
}

CalibrationLogModel::CalibrationLogModel(QObject *parent)
    : QObject(parent)
{
    createTable();
}

bool CalibrationLogModel::createTable()
{
    return DbUtil::execText(layout().createSql(tableName));
}

bool CalibrationLogModel::migrate(const QString &fromVersion)
{
    return MigrationFrame::dropOnOldVersions("CalibrationLogModel", tableName, noMigrateList, "1.1", "1.3", fromVersion);
}

void CalibrationLogModel::setId(int id)
{
    if (m_id == id)
        return;
    m_id = id;
    emit valueChanged();
}

void CalibrationLogModel::saveLogValues(const QVariantMap &calibration)
{
    saveLogValues(DataLogSetting::isDatalogFullNotifOn(), calibration);
}

bool CalibrationLogModel::saveLogValues(bool isDataLogNotifOn, CalibrationModel *calibration)
{
    if (!calibration || !calibration->isStored()) {
        qDebug() << "calibrationLog: no stored calibration to log";
        return false;
    }
    QVariantMap row = LogLayout::rowOf(calibration, CalibrationModel::columnTable());
    row.insert(QStringLiteral("id"), calibration->id());
    row.insert(QStringLiteral("bufferGroup"), calibration->bufferGroup());
    row.insert(QStringLiteral("sampleId"), calibration->sampleId());
    setId(0);
    saveLogValues(isDataLogNotifOn, row);
    return id() > 0;
}

void CalibrationLogModel::saveLogValues(bool isDataLogNotifOn, const QVariantMap &calibration)
{
    createTable();
    LogSourceRows rows = LogSnapshot::methodRows(m_current);
    setCalibrationValues(calibration);
    setCalId(calibration.value(QStringLiteral("id")).toInt());
    setElectrodeName(calibration.value(QStringLiteral("electrodeName")).toString());
    setElectrodeType(calibration.value(QStringLiteral("electrodeType")).toString());
    rows.insert(LogBlock::Calibration, calibration);
    rows.insert(LogBlock::CalibrationPoint, calibrationCycleValues());

    const QDateTime now = Clock::now();
    setCreatedAt(now);
    setUpdatedAt(now);
    rows.insert(LogBlock::Own, {{QStringLiteral("logCreatedAt"), now}, {QStringLiteral("logUpdatedAt"), now}});
    const int id = LogSnapshot::insert(layout(), tableName, rows, "calibrationLog Save err");
    if (id > 0)
        setId(id);

    const LogCapacityRule &rule = LogCapacity::calibration;
    const int n = LogCapacity::count(rule.table);
    if (LogCapacity::warningDue(rule, n, isDataLogNotifOn))
        emit notificationSignal(rule.etype);
    LogCapacity::trim(rule, n, &CalibrationLogModel::pruneOldest);
}

// The calibrations the meter loads: the newest of each electrode type, and
// for "ISE" the newest of each ion.
QSet<int> CalibrationLogModel::calibrationsInUse(bool *ok)
{
    QSet<int> inUse;
    QSet<QString> seen;
    *ok = true;
    if (!DbUtil::tableExists(QStringLiteral("calibrationTable")))
        return inUse;
    const bool hasIon = DbUtil::columnNames(QStringLiteral("calibrationTable")).contains(QStringLiteral("iseType"));
    QSqlQuery all;
    if (!DbUtil::exec(all, QStringLiteral("SELECT id, electrodeType, %1 FROM calibrationTable "
                                          "ORDER BY datetime(mcreatedAt) DESC, id DESC")
                               .arg(hasIon ? QStringLiteral("iseType") : QStringLiteral("''")))) {
        *ok = false;
        return inUse;
    }
    while (all.next()) {
        const QString type = all.value(1).toString();
        const QString key = type == QLatin1String("ISE") ? type + QLatin1Char('\n') + all.value(2).toString() : type;
        if (!seen.contains(key)) {
            seen.insert(key);
            inUse.insert(all.value(0).toInt());
        }
    }
    return inUse;
}

bool CalibrationLogModel::pruneOldest()
{
    DbTransaction unit;
    QSqlQuery oldest;
    if (!DbUtil::exec(oldest, QStringLiteral("SELECT id,calibration_Id FROM calibrationLogTable order by id limit 1"))
        || !oldest.next())
        return false;
    const int id = oldest.value(0).toInt();
    const QVariant calibrationId = oldest.value(1);
    oldest.finish();
    bool ok = false;
    const QSet<int> inUse = calibrationsInUse(&ok);
    // The log entry and its report go; the calibration in use stays, with
    // its points, so the meter keeps what the electrode was calibrated to.
    ok = ok && LogSnapshot::deleteRow(tableName, id)
        && LogCapacity::deleteWhere("reportSetupTable", "calibrationId", calibrationId);
    if (ok && !inUse.contains(calibrationId.toInt()))
        ok = deleteCalibration(calibrationId);
    // A calibration kept earlier whose entry is gone goes once a newer one
    // of its kind is in use.
    QSqlQuery orphans;
    if (ok && DbUtil::tableExists(QStringLiteral("calibrationTable"))) {
        ok = DbUtil::exec(orphans, QStringLiteral("SELECT id FROM calibrationTable WHERE id NOT IN "
                                                  "(SELECT calibration_Id FROM calibrationLogTable WHERE calibration_Id IS NOT NULL)"));
        QList<int> gone;
        while (ok && orphans.next()) {
            if (!inUse.contains(orphans.value(0).toInt()))
                gone << orphans.value(0).toInt();
        }
        orphans.finish();
        for (int orphan : gone)
            ok = ok && deleteCalibration(orphan);
    }
    return ok && unit.commit();
}

bool CalibrationLogModel::deleteCalibration(const QVariant &calibrationId)
{
    return LogCapacity::deleteWhere("calibrationTable", "id", calibrationId)
        && LogCapacity::deleteWhere("calibrationCycleTable", "calibrationID", calibrationId.toString());
}

bool CalibrationLogModel::deleteRow(int id)
{
    return LogSnapshot::deleteRow(tableName, id);
}

void CalibrationLogModel::loadFromRecord(const QSqlRecord &row)
{
    setId(row.value(QStringLiteral("id")).toInt());
    setCalibrationValues(LogSnapshot::blockValues(layout(), row, LogBlock::Calibration));
    setCalibrationCycleValues(LogSnapshot::blockValues(layout(), row, LogBlock::CalibrationPoint));
    setCalId(row.value(QStringLiteral("calibration_Id")).toInt());
    setElectrodeName(row.value(QStringLiteral("calibration_ElectrodeName")).toString());
    setElectrodeType(row.value(QStringLiteral("calibration_ElectrodeType")).toString());
    setCreatedAt(row.value(QStringLiteral("logCreatedAt")).toDateTime());
    setUpdatedAt(row.value(QStringLiteral("logUpdatedAt")).toDateTime());
}

QString CalibrationLogModel::newestFirstSql()
{
    return LogSnapshot::newestFirstSql(tableName, listColumns);
}

QList<CalibrationLogModel *> CalibrationLogModel::newestFirst(QObject *parent)
{
    return LogSnapshot::newestFirst<CalibrationLogModel>(newestFirstSql(), parent, [](CalibrationLogModel *entry) { entry->refreshSlope(); });
}

void CalibrationLogModel::refreshSlope()
{
    QSqlQuery slope;
    const bool known = DbUtil::tableExists(QStringLiteral("calibrationTable"))
        && slope.prepare(QStringLiteral("Select avgSlope from calibrationTable where id=:calId"));
    slope.bindValue(QStringLiteral(":calId"), calId());
    if (known && DbUtil::exec(slope) && slope.next()) {
        QVariantMap values = calibrationValues();
        values.insert(QStringLiteral("avgSlope"), slope.value(0).toDouble());
        setCalibrationValues(values);
    }
}
