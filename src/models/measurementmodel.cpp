#include "models/measurementmodel.h"

#include "models/dbutil.h"
#include "system/clock.h"

#include <QDebug>
#include <QSqlQuery>
#include <QSqlRecord>

#include <cstdlib>

const QString MeasurementModel::tableName = QStringLiteral("MeasurementTable");
QStringList MeasurementModel::noMigrateList = DbUtil::versionRange(QStringLiteral("1.3"), QStringLiteral("1.7"));

const ColumnTable &MeasurementModel::columnTable()
{
    static const ColumnTable table({
        {"id", "integer primary key", "id", ColumnSpec::AsIs},
        {"readMode", "varchar(30)", "readMode", ColumnSpec::AsIs},
        {"iseType", "varchar(30)", "iseType", ColumnSpec::AsIs},
        {"bufferGroup", "varchar(30)", "bufferGroup", ColumnSpec::AsIs},
        {"resolution", "float", "resolution", ColumnSpec::AsNumber},
        {"stirSpeed", "varchar(30)", "stirSpeed", ColumnSpec::AsIs},
        {"sampleId", "varchar(30)", "sampleId", ColumnSpec::AsIs},
        {"sampleIdValue", "varchar(30)", "sampleIdValue", ColumnSpec::AsIs},
        {"significantDigit", "int", "significantDigits", ColumnSpec::AsIs},
        {"directMeasurementUnit", "varchar(30)", "directMeasurementUnit", ColumnSpec::AsIs},
        {"scaledValue", "float", "scaledValue", ColumnSpec::AsNumber},
        {"mv", "float", "mV", ColumnSpec::AsNumber},
        {"sensorName", "varchar(30)", "sensorName", ColumnSpec::AsIs},
        {"temperature", "varchar(30)", "temp", ColumnSpec::AsText},
        {"calibrationTime", "varchar(30)", "", ColumnSpec::AsIs},
        {"isAtc", "int", "isATC", ColumnSpec::AsIs},
        {"methodId", "int", "", ColumnSpec::AsIs},
        {"mcreatedAt", "DATETIME", "mcreatedAt", ColumnSpec::AsIs},
        {"mupdatedAt", "DATETIME", "mupdatedAt", ColumnSpec::AsIs},
        {"calLogId", "integer", "calLogId", ColumnSpec::AsIs},
        {"calAvg", "float", "calAvg", ColumnSpec::AsNumber},
        {"calDateTime", "DATETIME", "calDateTime", ColumnSpec::AsIs},
    });
    return table;
}

MeasurementModel::MeasurementModel(QObject *parent)
    : QObject(parent)
{
    m_id = std::rand() % 5001 + 10000;
    m_readMode = QStringLiteral("pH");
    m_bufferGroup = QStringLiteral("USA");
    m_resolution = 0.001f;
    m_stirSpeed = QStringLiteral("Medium");
    m_sampleId = QStringLiteral("None");
    m_significantDigits = 4;
    m_directMeasurementUnit = QStringLiteral("pH");
}

bool MeasurementModel::migrate(QString fromVersion)
{
    qDebug() << "MeasurementModel";
    if (noMigrateList.contains(fromVersion)) {
        qDebug() << "Nothing to be done for " << fromVersion;
        return true;
    }
    bool result = true;
    if (fromVersion == QLatin1String("1.1")) {
        qDebug() << "Migrating schema from " << fromVersion;
        result = DbUtil::execText(QStringLiteral("ALTER TABLE MeasurementTable ADD COLUMN calLogId integer"))
            && DbUtil::execText(QStringLiteral("ALTER TABLE MeasurementTable ADD COLUMN calAvg float"))
            && DbUtil::execText(QStringLiteral("ALTER TABLE MeasurementTable ADD COLUMN calDateTime DATETIME"));
        qDebug() << "migration_succeeded: " << result;
        if (!result)
            return false;
        fromVersion = QStringLiteral("1.2");
    }
    if (fromVersion == QLatin1String("1.2")) {
        qDebug() << "Migrating schema from " << fromVersion;
        bool ok = false;
        const int rows = DbUtil::scalar(QStringLiteral("SELECT count(*) FROM MeasurementTable"), &ok).toInt();
        if (!ok)
            return false;
        if (rows > 1) {
            qDebug() << " --- MeasurementTable incorrect - deleting all rows --- ";
            return DbUtil::execText(QStringLiteral("DELETE FROM MeasurementTable"));
        }
        return true;
    }
    // Any other version: this table has nothing to do with it.
    return true;
}

void MeasurementModel::setSampleIdValue(const QString &value)
{
    qDebug() << "Sample Id Value       " << value;
    m_sampleIdValue = value;
    emit sampleIdValueChanged();
}

void MeasurementModel::load(const QSqlRecord &record)
{
    columnTable().loadInto(this, record);
    setIsATC(record.value(QStringLiteral("isAtc")).toInt() == 1);
}

void MeasurementModel::createMeasurementTableAndLoadModel()
{
    DbUtil::execText(columnTable().createSql(tableName, true));
    QSqlQuery select;
    if (!DbUtil::exec(select, QStringLiteral("SELECT * FROM MeasurementTable ORDER BY datetime(mcreatedAT) DESC limit 1")))
        return;
    if (select.next()) {
        load(select.record());
        if (m_sampleId == QLatin1String("Auto-Incremental")) {
            setSampleIDAutoInc(m_sampleIdValue);
            setSampleIDManual(QString());
        } else if (m_sampleId == QLatin1String("Manual")) {
            setSampleIDManual(m_sampleIdValue);
            setSampleIDAutoInc(QString());
        } else {
            setSampleIDAutoInc(QString());
            setSampleIDManual(QString());
        }
        if ((m_readMode == QLatin1String("pH") || m_readMode == QLatin1String("Redox")) && !m_iseType.isEmpty()) {
            setIseType(QString());
            qDebug() << " - MeasurementTable - Cleaning up iseType";
        }
        return;
    }
    select.finish();
    qDebug() << " --- MeasurementTable - CREATING DEFAULT ---- ";
    setReadMode(QStringLiteral("pH"));
    setIseType(QString());
    setDirectMeasurementUnit(QStringLiteral("pH"));
    const QDateTime now = Clock::now();
    setMcreatedAt(now);
    setMupdatedAt(now);
    setId(std::rand() % 5001 + 10000);
    QStringList columns = columnTable().names();
    columns.removeAll(QStringLiteral("calibrationTime"));
    columns.removeAll(QStringLiteral("methodId"));
    QSqlQuery insert;
    insert.prepare(columnTable().insertSql(tableName, columns));
    columnTable().bindFrom(this, insert, columns);
    DbUtil::exec(insert);
}

bool MeasurementModel::setMeasurementValues(MeasurementModel *measurement)
{
    if (!measurement)
        return false;
    measurement->setMupdatedAt(Clock::now());
    const QStringList columns{
        QStringLiteral("readMode"),   QStringLiteral("iseType"),       QStringLiteral("bufferGroup"),
        QStringLiteral("resolution"), QStringLiteral("stirSpeed"),     QStringLiteral("sampleId"),
        QStringLiteral("sampleIdValue"), QStringLiteral("significantDigit"), QStringLiteral("directMeasurementUnit"),
        QStringLiteral("scaledValue"), QStringLiteral("sensorName"),   QStringLiteral("temperature"),
        QStringLiteral("mv"),         QStringLiteral("isAtc"),         QStringLiteral("mupdatedAt"),
        QStringLiteral("calLogId"),   QStringLiteral("calAvg"),        QStringLiteral("calDateTime")};
    QStringList sets;
    for (const QString &c : columns)
        sets << QStringLiteral("%1=:%1").arg(c);
    QSqlQuery update;
    update.prepare(QStringLiteral("UPDATE MeasurementTable SET %1").arg(sets.join(QStringLiteral(", "))));
    columnTable().bindFrom(measurement, update, columns);
    return DbUtil::exec(update);
}
