#include "models/mkatitrationcyclemodel.h"

#include "models/dbutil.h"
#include "models/titrationcyclemodel.h"
#include "system/clock.h"
#include "system/clocaletext.h"

#include <QDebug>
#include <QSqlQuery>
#include <QSqlRecord>

const QString MKATitrationCycleModel::tableName = QStringLiteral("mkaTitrationCycleTable");

const ColumnTable &MKATitrationCycleModel::columnTable()
{
    static const ColumnTable table({
        {"id", "integer primary key AUTOINCREMENT", "id", ColumnSpec::AsIs},
        {"cycleNo", "integer", "cycleno", ColumnSpec::AsIs},
        {"titrationID", "integer", "titrationID", ColumnSpec::AsIs},
        {"avgCalconc", "float", "avgCalconc", ColumnSpec::AsNumber},
        {"avgVolume", "float", "avgVolume", ColumnSpec::AsNumber},
        {"sampleAmountValue", "float", "sampleAmountValue", ColumnSpec::AsNumber},
        {"temperature", "float", "temperature", ColumnSpec::AsNumber},
        {"runningDuration", "varchar(20)", "runningDurationText", ColumnSpec::AsIs},
        {"avgmVvalue", "float", "avgmVvalue", ColumnSpec::AsNumber},
        {"avgPrecision", "float", "avgPrecision", ColumnSpec::AsNumber},
        {"spikeRecovery", "float", "spikeRecovery", ColumnSpec::AsNumber},
        {"slope", "float", "slope", ColumnSpec::AsNumber},
        {"mcreatedAt", "DATETIME", "mcreatedAt", ColumnSpec::AsIs},
        {"mupdatedAt", "DATETIME", "mupdatedAt", ColumnSpec::AsIs},
        {"lastRuntime", "varchar(50)", "lastRunTime", ColumnSpec::AsIs},
        {"inclAvg", "int", "inclAvg", ColumnSpec::AsIs},
    });
    return table;
}

MKATitrationCycleModel::MKATitrationCycleModel(QObject *parent)
    : QObject(parent)
{
    m_inclAvg = 1;
}

bool MKATitrationCycleModel::createTable()
{
    return DbUtil::execText(columnTable().createSql(tableName, true));
}

MKATitrationCycleModel *MKATitrationCycleModel::fromJson(const QJsonObject &o, QObject *parent)
{
    if (!o.contains(QStringLiteral("cycleno"))) {
        qDebug() << "MKATitrationCycleModel: a cycle without a cycle number is dropped";
        return nullptr;
    }
    auto *cycle = new MKATitrationCycleModel(parent);
    auto number = [&o](const char *key) { return static_cast<float>(o.value(QLatin1String(key)).toDouble()); };
    cycle->setCycleno(o.value(QStringLiteral("cycleno")).toInt());
    cycle->setAvgCalconc(number("avgCalconc"));
    cycle->setAvgPrecision(number("avgPrecision"));
    cycle->setAvgVolume(number("avgVolume"));
    cycle->setAvgmVvalue(number("avgmVvalue"));
    cycle->setInclAvg(o.value(QStringLiteral("inclAvg")).toVariant().toInt());
    cycle->setLastRunTime(o.value(QStringLiteral("lastRunTime")).toString());
    cycle->setMcreatedAt(QDateTime::fromString(o.value(QStringLiteral("mcreatedAt")).toString(), Qt::ISODate));
    cycle->setMupdatedAt(QDateTime::fromString(o.value(QStringLiteral("mupdatedAt")).toString(), Qt::ISODate));
    cycle->setRunningDuration(QTime::fromString(o.value(QStringLiteral("runningDuration")).toString(),
                                                TitrationCycleModel::durationFormat));
    cycle->setSampleAmountValue(number("sampleAmountValue"));
    cycle->setSlope(number("slope"));
    cycle->setSpikeRecovery(number("spikeRecovery"));
    cycle->setTemperature(number("temperature"));
    return cycle;
}

MKATitrationCycleModel *MKATitrationCycleModel::fromRecord(const QSqlRecord &record, QObject *parent)
{
    auto *cycle = new MKATitrationCycleModel(parent);
    columnTable().loadInto(cycle, record);
    cycle->setRunningDuration(QTime::fromString(record.value(QStringLiteral("runningDuration")).toString(),
                                                TitrationCycleModel::durationFormat));
    return cycle;
}

QString MKATitrationCycleModel::runningDurationText() const
{
    return m_runningDuration.isValid() ? CLocaleText::time(m_runningDuration, TitrationCycleModel::durationFormat)
                                       : QString();
}

bool MKATitrationCycleModel::setMKATitrationCycleValues(int id, const QDateTime &createdAt)
{
    const QDateTime now = Clock::now();
    setMcreatedAt(now);
    setMupdatedAt(now);
    setLastRunTime(CLocaleText::upperDateTime(createdAt, QStringLiteral("MM/dd/yyyy | hh:mm a")));
    setTitrationID(id);
    const int newId = columnTable().insertRowWithNewId(this, tableName);
    if (newId < 0)
        return false;
    setId(newId);
    return true;
}
