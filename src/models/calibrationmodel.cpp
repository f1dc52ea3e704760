#include "models/calibrationmodel.h"

#include "models/calibrationcyclemodel.h"
#include "models/dbtransaction.h"
#include "models/dbutil.h"
#include "models/migrationframe.h"
#include "system/clock.h"

#include <QDebug>
#include <QSqlQuery>
#include <QSqlRecord>

#include <cstdlib>

const QString CalibrationModel::tableName = QStringLiteral("calibrationTable");
QStringList CalibrationModel::noMigrateList = DbUtil::versionRange(QStringLiteral("1.4"), QStringLiteral("1.7"));

const ColumnTable &CalibrationModel::columnTable()
{
    static const ColumnTable table({
        {"id", "integer primary key AUTOINCREMENT", "id", ColumnSpec::AsIs},
        {"electrodeSetupId", "varchar(30)", "", ColumnSpec::AsIs},
        {"electrodeName", "varchar(30)", "electrodeName", ColumnSpec::AsIs},
        {"electrodeType", "varchar(30)", "electrodeType", ColumnSpec::AsIs},
        {"bufferGroup", "varchar(30)", "", ColumnSpec::AsIs},
        {"resolution", "varchar(30)", "resolution", ColumnSpec::AsText},
        {"iseType", "varchar(30)", "iseType", ColumnSpec::AsIs},
        {"significantDigits", "varchar(30)", "significantDigits", ColumnSpec::AsText},
        {"directMeasureUnit", "varchar(30)", "directMeasureUnit", ColumnSpec::AsIs},
        {"methodId", "varchar(30)", "", ColumnSpec::AsIs},
        {"calNo", "varchar(30)", "calNo", ColumnSpec::AsText},
        {"sampleId", "varchar(30)", "", ColumnSpec::AsIs},
        {"stirSpeed", "varchar(30)", "stirSpeed", ColumnSpec::AsText},
        {"mcreatedAt", "DATETIME", "mcreatedAt", ColumnSpec::AsIs},
        {"mupdatedAt", "DATETIME", "mupdatedAt", ColumnSpec::AsIs},
        {"avgSlope", "DOUBLE", "avgSlope", ColumnSpec::AsIs},
    });
    return table;
}

CalibrationModel::CalibrationModel(QObject *parent)
    : QObject(parent)
    , m_id(std::rand() % 10 + 1)
    , m_bufferGroup(QStringLiteral("USA"))
{
    m_electrodeType = QStringLiteral("pH");
    m_resolution = 0.001f;
    m_significantDigits = 1;
    createTables();
}

bool CalibrationModel::createTables()
{
    const bool calibrations = DbUtil::execText(columnTable().createSql(tableName, true));
    const bool points = CalibrationCycleModel::createTable();
    return calibrations && points;
}

bool CalibrationModel::migrate(const QString &fromVersion)
{
    return MigrationFrame::dropOnOldVersions("CalibrationModel", tableName, noMigrateList, "1.1", "1.3", fromVersion);
}

void CalibrationModel::load(const QSqlRecord &record)
{
    columnTable().loadInto(this, record);
    m_id = record.value(QStringLiteral("id")).toInt();
    m_stored = true;
    m_bufferGroup = record.value(QStringLiteral("bufferGroup")).toString();
    m_sampleId = record.value(QStringLiteral("sampleId")).toString();
    emit valueChanged();
}

bool CalibrationModel::setCalibrationValues(bool isChangeFromHome, const QList<CalibrationCycleModel *> &cycles,
                                            const QString &action)
{
    Q_UNUSED(isChangeFromHome)
    Q_UNUSED(action)
    if (!writeCalibration(cycles)) {
        qDebug() << "CalibrationModel: the calibration was not stored, nor any of its points";
        return false;
    }
    return true;
}

bool CalibrationModel::writeCalibration(const QList<CalibrationCycleModel *> &cycles)
{
    DbTransaction unit;
    const QDateTime now = Clock::now();
    setMcreatedAt(now);
    setMupdatedAt(now);
    const QStringList columns{QStringLiteral("electrodeName"), QStringLiteral("electrodeType"),
                              QStringLiteral("bufferGroup"),   QStringLiteral("resolution"),
                              QStringLiteral("iseType"),       QStringLiteral("significantDigits"),
                              QStringLiteral("directMeasureUnit"), QStringLiteral("calNo"),
                              QStringLiteral("sampleId"),      QStringLiteral("stirSpeed"),
                              QStringLiteral("mcreatedAt"),    QStringLiteral("mupdatedAt"),
                              QStringLiteral("avgSlope")};
    QSqlQuery insert;
    insert.prepare(columnTable().insertSql(tableName, columns));
    for (const QString &c : columns) {
        const ColumnSpec *spec = columnTable().find(c);
        if (spec && spec->property[0] != '\0')
            insert.bindValue(QLatin1Char(':') + c, columnTable().boundValue(this, *spec));
    }
    insert.bindValue(QStringLiteral(":bufferGroup"), m_bufferGroup);
    insert.bindValue(QStringLiteral(":sampleId"), m_sampleId);
    if (!DbUtil::exec(insert))
        return false;
    m_id = insert.lastInsertId().toInt();
    qDebug() << "CalibrationModel: calibration stored with id" << m_id;
    emit valueChanged();
    for (CalibrationCycleModel *point : cycles) {
        if (!point->setcalibrationCycleValues(m_id))
            return false;
    }
    m_stored = unit.commit();
    return m_stored;
}

void CalibrationModel::updateAvgSlopeValue(float val)
{
    setAvgSlope(val);
    QSqlQuery update;
    update.prepare(QStringLiteral("UPDATE calibrationTable SET avgSlope=:slope_value WHERE id=:id_value"));
    update.bindValue(QStringLiteral(":slope_value"), static_cast<double>(val));
    update.bindValue(QStringLiteral(":id_value"), m_id);
    DbUtil::exec(update);
}
