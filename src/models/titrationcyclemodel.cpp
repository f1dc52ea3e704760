#include "models/titrationcyclemodel.h"

#include "models/dbutil.h"
#include "models/migrationframe.h"
#include "system/clock.h"
#include "system/clocaletext.h"

#include <QDebug>
#include <QSqlQuery>
#include <QSqlRecord>

const QString TitrationCycleModel::tableName = QStringLiteral("titrationCycleTable");
QStringList TitrationCycleModel::noMigrateList = DbUtil::versionRange(QStringLiteral("1.4"), QStringLiteral("1.7"));
const QString TitrationCycleModel::durationFormat = QStringLiteral("hh:mm:ss");

const ColumnTable &TitrationCycleModel::columnTable()
{
    static const ColumnTable table({
        {"id", "integer primary key AUTOINCREMENT", "id", ColumnSpec::AsIs},
        {"cycleNo", "integer", "cycleNo", ColumnSpec::AsIs},
        {"sampleId", "varchar(30)", "sampleId", ColumnSpec::AsIs},
        {"calcon", "varchar(50)", "calCon", ColumnSpec::AsNumber},
        {"calcon2", "varchar(50)", "calCon2", ColumnSpec::AsNumber},
        {"calcon3", "varchar(50)", "calCon3", ColumnSpec::AsNumber},
        {"veqp", "varchar(50)", "veqp", ColumnSpec::AsNumber},
        {"veqp2", "varchar(50)", "veqp2", ColumnSpec::AsNumber},
        {"veqp3", "varchar(50)", "veqp3", ColumnSpec::AsNumber},
        {"initialpH", "varchar(30)", "initialpH", ColumnSpec::AsIs},
        {"inclInAvg", "BOOLEAN NOT NULL CHECK (inclInAvg IN (0,1))", "inclInAvg", ColumnSpec::AsIs},
        {"titrationId", "integer", "titrationId", ColumnSpec::AsIs},
        {"graphPoints", "varchar(400)", "graphPoints", ColumnSpec::AsIs},
        {"mcreatedAt", "DATETIME", "mcreatedAt", ColumnSpec::AsIs},
        {"mupdatedAt", "DATETIME", "mupdatedAt", ColumnSpec::AsIs},
        {"lastRunTime", "varchar(30)", "lastRunTime", ColumnSpec::AsIs},
        {"sampleAmountValue", "float", "sampleAmountValue", ColumnSpec::AsNumber},
        {"reagentAmountValue", "float", "reagentAmountValue", ColumnSpec::AsNumber},
        {"standAmountValue", "float", "standAmountValue", ColumnSpec::AsNumber},
        {"temperature", "float", "temperature", ColumnSpec::AsNumber},
        {"runningDuration", "varchar(10)", "runningDurationText", ColumnSpec::AsIs},
        {"cycleImage", "BLOB", "cycleImage", ColumnSpec::AsIs},
        {"epValue1", "float", "epValue1", ColumnSpec::AsNumber},
        {"epValue2", "float", "epValue2", ColumnSpec::AsNumber},
    });
    return table;
}

TitrationCycleModel::TitrationCycleModel(QObject *parent)
    : QObject(parent)
    , m_startMs(Clock::monotonicMs())
{
    m_inclInAvg = 1;
}

bool TitrationCycleModel::createTable()
{
    return DbUtil::execText(columnTable().createSql(tableName, true));
}

bool TitrationCycleModel::migrate(const QString &fromVersion)
{
    return MigrationFrame::dropOnOldVersions("TitrationCycleModel", tableName, noMigrateList, "1.1", "1.3", fromVersion, true);
}

TitrationCycleModel *TitrationCycleModel::fromRecord(const QSqlRecord &record, QObject *parent)
{
    auto *cycle = new TitrationCycleModel(parent);
    columnTable().loadInto(cycle, record);
    // The two that don't go through text.
    cycle->setRunningDuration(QTime::fromString(record.value(QStringLiteral("runningDuration")).toString(), durationFormat));
    cycle->setCycleImage(record.value(QStringLiteral("cycleImage")).toByteArray());
    return cycle;
}

QString TitrationCycleModel::runningDurationText() const
{
    return m_runningDuration.isValid() ? CLocaleText::time(m_runningDuration, durationFormat) : QString();
}

qint64 TitrationCycleModel::elapsedMs() const
{
    return Clock::monotonicMs() - m_startMs;
}

void TitrationCycleModel::stopTheClock()
{
    const qint64 ms = elapsedMs();
    const qint64 hours = ms / 3600000;
    const qint64 minutes = (ms % 3600000) / 60000;
    const qint64 seconds = (ms % 60000) / 1000;
    const QString text = QStringLiteral("%1:%2:%3").arg(hours).arg(minutes).arg(seconds);
    setRunningDuration(QTime::fromString(text, QStringLiteral("h:m:s")));
}

void TitrationCycleModel::addTitrationCompletion(float result, float volume)
{
    stopTheClock();
    setCalCon(result);
    setVeqp(volume);
    emit veqpChanged();
    emit calConChanged();
}

void TitrationCycleModel::addTitrationCompletion(const float results[3], const float volumes[3])
{
    stopTheClock();
    setCalCon(results[0]);
    setCalCon2(results[1]);
    setCalCon3(results[2]);
    setVeqp(volumes[0]);
    setVeqp2(volumes[1]);
    setVeqp3(volumes[2]);
    emit veqpChanged();
    emit calConChanged();
}

void TitrationCycleModel::addPoint(float x, float y, float resolution, const QString &displayUnits)
{
    int decimals = 1;
    if (displayUnits == QLatin1String("pH")) {
        if (QString::number(resolution, 'f', 1) == QLatin1String("0.1"))
            decimals = 1;
        else if (QString::number(resolution, 'f', 2) == QLatin1String("0.01"))
            decimals = 2;
        else
            decimals = 3;
    }
    QString point = QStringLiteral("(%1|%2)").arg(QString::number(x, 'f', 3), QString::number(y, 'f', decimals));
    if (!m_graphPoints.isEmpty())
        point.prepend(QLatin1Char(','));
    m_graphPoints += point;
    emit valueChanged();
}

bool TitrationCycleModel::setTitrationCycleValues(int id, const QDateTime &createdAt)
{
    const QDateTime now = Clock::now();
    setMcreatedAt(now);
    setMupdatedAt(now);
    setLastRunTime(CLocaleText::upperDateTime(createdAt, QStringLiteral("MM/dd/yyyy | hh:mm a")));
    setTitrationId(id);
    const int newId = columnTable().insertRowWithNewId(this, tableName);
    if (newId < 0)
        return false;
    setId(newId);
    return true;
}
