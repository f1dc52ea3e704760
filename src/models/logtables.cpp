#include "models/logtables.h"

#include "models/calibrationcyclemodel.h"
#include "models/calibrationlogmodel.h"
#include "models/calibrationmodel.h"
#include "models/dbtransaction.h"
#include "models/dbutil.h"
#include "models/logsnapshot.h"
#include "models/measurementlogmodel.h"
#include "models/reportmodel.h"
#include "models/standardisationlogmodel.h"
#include "models/titrationcyclemodel.h"
#include "models/titrationlogmodel.h"
#include "models/titrationmodel.h"

#include <QSqlQuery>
#include <QVariantList>

namespace {

const QString kMkaAdditionTable = QStringLiteral("mkaAdditionTable");
const QString kMkaCycleTable = QStringLiteral("mkaTitrationCycleTable");

QString logTableOf(LogTables::Log log)
{
    switch (log) {
    case LogTables::Titration:
        return TitrationLogModel::tableName;
    case LogTables::Standardisation:
        return StandardisationLogModel::tableName;
    case LogTables::Calibration:
        return CalibrationLogModel::tableName;
    case LogTables::Measurement:
        return MeasurementLogModel::tableName;
    }
    return QString();
}

// Titration and standardisation reports go by the exact type, calibration
// and measurement reports by LIKE (any case).
bool deleteReports(const QString &reportType, bool like)
{
    if (!DbUtil::tableExists(ReportModel::tableName))
        return true;
    QSqlQuery q;
    q.prepare(like ? QStringLiteral("DELETE FROM reportSetupTable WHERE reportType LIKE :type")
                   : QStringLiteral("DELETE FROM reportSetupTable WHERE reportType = :type"));
    q.bindValue(QStringLiteral(":type"), reportType);
    return DbUtil::exec(q);
}

// The counters of those of the tables that exist.
bool resetCounters(const QStringList &tables)
{
    QStringList existing;
    for (const QString &t : tables) {
        if (DbUtil::tableExists(t))
            existing << t;
    }
    return existing.isEmpty() || DbUtil::resetSquenceIds(existing);
}

} // namespace

bool LogTables::anyLogRow()
{
    for (Log log : {Titration, Standardisation, Calibration, Measurement}) {
        if (rowCount(log) > 0)
            return true;
    }
    return false;
}

int LogTables::rowCount(Log log)
{
    const QString table = logTableOf(log);
    if (table.isEmpty() || !DbUtil::tableExists(table))
        return -1;
    bool ok = false;
    const int n = DbUtil::scalar(QStringLiteral("SELECT count(*) FROM %1").arg(table), &ok).toInt();
    return ok ? n : -1;
}

QList<int> LogTables::reportIds(Log log)
{
    QList<int> ids;
    const QString table = logTableOf(log);
    if (table.isEmpty() || !DbUtil::tableExists(table))
        return ids;
    const QString column = log == Calibration ? QStringLiteral("calibration_Id") : QStringLiteral("id");
    QSqlQuery q;
    if (!q.exec(LogSnapshot::newestFirstSql(table, column)))
        return ids;
    while (q.next())
        ids << q.value(0).toInt();
    return ids;
}

bool LogTables::emptyTable(const QString &table)
{
    if (!DbUtil::tableExists(table))
        return true;
    if (!DbUtil::execText(QStringLiteral("DELETE FROM %1").arg(table)))
        return false;
    if (!DbUtil::tableExists(QStringLiteral("sqlite_sequence")))
        return true;
    QSqlQuery q;
    q.prepare(QStringLiteral("DELETE FROM sqlite_sequence WHERE name = :name"));
    q.bindValue(QStringLiteral(":name"), table);
    return DbUtil::exec(q);
}

bool LogTables::deleteRunsOfLog(const QString &logTable, const QString &typeCondition, const QString &reportType)
{
    bool ok = true;
    if (DbUtil::tableExists(logTable) && DbUtil::tableExists(TitrationCycleModel::tableName)) {
        QVariantList runIds;
        QSqlQuery runs;
        ok = DbUtil::exec(runs, QStringLiteral("SELECT titration_Id, electrodeSetup_Type FROM %1").arg(logTable));
        while (ok && runs.next()) {
            if (runs.value(1).toString() != QLatin1String("ISE-MKA"))
                runIds << runs.value(0);
        }
        runs.finish();
        for (const QVariant &id : runIds) {
            QSqlQuery del;
            del.prepare(QStringLiteral("DELETE FROM titrationCycleTable WHERE titrationId = :titrationId"));
            del.bindValue(QStringLiteral(":titrationId"), id);
            ok = ok && DbUtil::exec(del);
        }
    }
    if (ok && DbUtil::tableExists(TitrationModel::tableName))
        ok = DbUtil::execText(QStringLiteral("DELETE FROM titrationTable WHERE %1").arg(typeCondition));
    return ok && deleteReports(reportType, false)
        && resetCounters({TitrationModel::tableName, TitrationCycleModel::tableName, ReportModel::tableName});
}

// Each whole-log deletion is one unit: a failure or a power loss leaves the
// log whole, never half emptied.
bool LogTables::deleteTitrationLog()
{
    DbTransaction unit;
    const bool ok = deleteRunsOfLog(TitrationLogModel::tableName,
                                    QStringLiteral("titrationType = 'Titration' OR titrationType = 'Direct Blank' OR "
                                                   "titrationType = 'Back Blank'"),
                                    QStringLiteral("Titration"))
        && emptyTable(TitrationLogModel::tableName) && emptyTable(kMkaAdditionTable) && emptyTable(kMkaCycleTable);
    return ok && unit.commit();
}

bool LogTables::deleteTitrantLog()
{
    DbTransaction unit;
    const bool ok = deleteRunsOfLog(StandardisationLogModel::tableName, QStringLiteral("titrationType = 'Standardization'"),
                                    QStringLiteral("Standardization"))
        && emptyTable(StandardisationLogModel::tableName);
    return ok && unit.commit();
}

bool LogTables::deleteCalibrationLog()
{
    DbTransaction unit;
    const bool ok = emptyTable(CalibrationLogModel::tableName) && emptyTable(CalibrationModel::tableName)
        && emptyTable(CalibrationCycleModel::tableName) && deleteReports(QStringLiteral("Calibration"), true)
        && resetCounters({ReportModel::tableName});
    return ok && unit.commit();
}

bool LogTables::deleteMeasurementLog()
{
    DbTransaction unit;
    const bool ok = emptyTable(MeasurementLogModel::tableName) && deleteReports(QStringLiteral("Measurement"), true)
        && resetCounters({ReportModel::tableName});
    return ok && unit.commit();
}
