#include "models/logcapacity.h"

#include "models/dbutil.h"

#include <QDebug>
#include <QSqlQuery>
#include <QVariant>

const LogCapacityRule LogCapacity::titration{"titrationLogTable", 96, 100, 6};
const LogCapacityRule LogCapacity::standardisation{"standardisationLogTable", 96, 100, 5};
const LogCapacityRule LogCapacity::calibration{"calibrationLogTable", 46, 50, 8};
const LogCapacityRule LogCapacity::measurement{"measurementLogTable", 96, 100, 7};

namespace {
std::function<bool()> &settingSource()
{
    static std::function<bool()> source;
    return source;
}
} // namespace

int LogCapacity::count(const char *table)
{
    bool ok = false;
    const QVariant n = DbUtil::scalar(QStringLiteral("SELECT count(*) FROM %1").arg(QLatin1String(table)), &ok);
    return ok ? n.toInt() : -1;
}

bool LogCapacity::warningDue(const LogCapacityRule &rule, int n, bool isDataLogNotifOn)
{
    return isDataLogNotifOn && n >= rule.warnFrom;
}

void LogCapacity::trim(const LogCapacityRule &rule, int n, const std::function<bool()> &pruneOldest)
{
    // Normally one entry goes; more only when an earlier deletion failed.
    // Bounded, so a log that can't be counted or pruned ends the loop.
    for (int guard = 0; n > rule.capacity && guard < 1000; ++guard) {
        if (!pruneOldest()) {
            qDebug() << "Log" << rule.table << "not pruned; it keeps" << n << "entries";
            return;
        }
        n = count(rule.table);
    }
}

bool LogCapacity::deleteWhere(const char *table, const char *column, const QVariant &value)
{
    if (!DbUtil::tableExists(QLatin1String(table)))
        return true;
    QSqlQuery query;
    query.prepare(QStringLiteral("DELETE FROM %1 WHERE %2=:value").arg(QLatin1String(table), QLatin1String(column)));
    query.bindValue(QStringLiteral(":value"), value);
    return DbUtil::exec(query);
}

bool LogCapacity::deleteRun(const QVariant &titrationId, const QString &electrodeType)
{
    bool ok = deleteWhere("titrationTable", "id", titrationId);
    if (electrodeType == QLatin1String("ISE-MKA")) {
        ok = deleteWhere("mkaAdditionTable", "titrationID", titrationId) && ok;
        ok = deleteWhere("mkaTitrationCycleTable", "titrationID", titrationId) && ok;
    } else {
        ok = deleteWhere("titrationCycleTable", "titrationId", titrationId) && ok;
    }
    return ok;
}

bool DataLogSetting::isDatalogFullNotifOn()
{
    const std::function<bool()> &source = settingSource();
    return source ? source() : true;
}

void DataLogSetting::setSource(std::function<bool()> source)
{
    settingSource() = std::move(source);
}
