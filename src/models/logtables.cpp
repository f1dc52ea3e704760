#include "models/logtables.h"

#include "models/calibrationcyclemodel.h"
#include "models/calibrationlogmodel.h"
#include "models/calibrationmodel.h"
#include "models/dbutil.h"
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
void deleteReports(const QString &reportType, bool like)
{
    QSqlQuery q;
    q.prepare(like ? QStringLiteral("DELETE FROM reportSetupTable WHERE reportType LIKE :type")
                   : QStringLiteral("DELETE FROM reportSetupTable WHERE reportType = :type"));
    q.bindValue(QStringLiteral(":type"), reportType);
    DbUtil::exec(q);
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

void LogTables::emptyTable(const QString &table)
{
    if (!DbUtil::tableExists(table))
        return;
    DbUtil::execText(QStringLiteral("DELETE FROM %1").arg(table));
    QSqlQuery q;
    q.prepare(QStringLiteral("DELETE FROM sqlite_sequence WHERE name = :name"));
    q.bindValue(QStringLiteral(":name"), table);
    if (DbUtil::tableExists(QStringLiteral("sqlite_sequence")))
        DbUtil::exec(q);
}

void LogTables::deleteRunsOfLog(const QString &logTable, const QString &typeCondition, const QString &reportType)
{
    if (DbUtil::tableExists(logTable) && DbUtil::tableExists(TitrationCycleModel::tableName)) {
        QVariantList runIds;
        QSqlQuery runs;
        if (runs.exec(QStringLiteral("SELECT titration_Id, electrodeSetup_Type FROM %1").arg(logTable))) {
            while (runs.next()) {
                if (runs.value(1).toString() != QLatin1String("ISE-MKA"))
                    runIds << runs.value(0);
            }
        }
        runs.finish();
        for (const QVariant &id : runIds) {
            QSqlQuery del;
            del.prepare(QStringLiteral("DELETE FROM titrationCycleTable WHERE titrationId = :titrationId"));
            del.bindValue(QStringLiteral(":titrationId"), id);
            DbUtil::exec(del);
        }
    }
    if (DbUtil::tableExists(TitrationModel::tableName))
        DbUtil::execText(QStringLiteral("DELETE FROM titrationTable WHERE %1").arg(typeCondition));
    if (DbUtil::tableExists(ReportModel::tableName))
        deleteReports(reportType, false);
    DbUtil::resetSquenceIds({TitrationModel::tableName, TitrationCycleModel::tableName, ReportModel::tableName});
}

void LogTables::deleteTitrationLog()
{
    deleteRunsOfLog(TitrationLogModel::tableName,
                    QStringLiteral("titrationType = 'Titration' OR titrationType = 'Direct Blank' OR "
                                   "titrationType = 'Back Blank'"),
                    QStringLiteral("Titration"));
    emptyTable(TitrationLogModel::tableName);
    emptyTable(kMkaAdditionTable);
    emptyTable(kMkaCycleTable);
}

void LogTables::deleteTitrantLog()
{
    deleteRunsOfLog(StandardisationLogModel::tableName, QStringLiteral("titrationType = 'Standardization'"),
                    QStringLiteral("Standardization"));
    emptyTable(StandardisationLogModel::tableName);
}

void LogTables::deleteCalibrationLog()
{
    emptyTable(CalibrationLogModel::tableName);
    emptyTable(CalibrationModel::tableName);
    emptyTable(CalibrationCycleModel::tableName);
    if (DbUtil::tableExists(ReportModel::tableName))
        deleteReports(QStringLiteral("Calibration"), true);
    DbUtil::resetSquenceIds({ReportModel::tableName});
}

void LogTables::deleteMeasurementLog()
{
    emptyTable(MeasurementLogModel::tableName);
    if (DbUtil::tableExists(ReportModel::tableName))
        deleteReports(QStringLiteral("Measurement"), true);
    DbUtil::resetSquenceIds({ReportModel::tableName});
}
