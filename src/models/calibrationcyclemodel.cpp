#include "models/calibrationcyclemodel.h"

#include "models/dbutil.h"
#include "models/migrationframe.h"
#include "system/clock.h"

#include <QSqlQuery>
#include <QSqlRecord>

const QString CalibrationCycleModel::tableName = QStringLiteral("calibrationCycleTable");
QStringList CalibrationCycleModel::noMigrateList = DbUtil::versionRange(QStringLiteral("1.4"), QStringLiteral("1.7"));

const ColumnTable &CalibrationCycleModel::columnTable()
{
    static const ColumnTable table({
        {"id", "integer primary key AUTOINCREMENT", "id", ColumnSpec::AsIs},
        {"calibrationID", "varchar(30)", "calibrationID", ColumnSpec::AsText},
        {"timestamp", "varchar(30)", "timestamp", ColumnSpec::AsIs},
        {"voltage", "varchar(30)", "voltage", ColumnSpec::AsText},
        {"volume", "varchar(30)", "volume", ColumnSpec::AsText},
        {"slope", "varchar(30)", "slope", ColumnSpec::AsText},
        {"calValue", "varchar(30)", "calValue", ColumnSpec::AsText},
        {"temperature", "varchar(30)", "temperature", ColumnSpec::AsNumber},
        {"cycleNo", "int", "cycleNo", ColumnSpec::AsIs},
        {"offset", "float", "offset", ColumnSpec::AsNumber},
        {"temperatureMode", "varchar(10)", "temperatureMode", ColumnSpec::AsIs},
        {"resolution", "int", "resolution", ColumnSpec::AsIs},
        {"mcreatedAt", "DATETIME", "mcreatedAt", ColumnSpec::AsIs},
        {"mupdatedAt", "DATETIME", "mupdatedAt", ColumnSpec::AsIs},
        {"buffer", "float", "buffer", ColumnSpec::AsNumber},
    });
    return table;
}

CalibrationCycleModel::CalibrationCycleModel(QObject *parent)
    : QObject(parent)
{
}

bool CalibrationCycleModel::createTable()
{
    return DbUtil::execText(columnTable().createSql(tableName, true));
}

bool CalibrationCycleModel::migrate(const QString &fromVersion)
{
    return MigrationFrame::dropOnOldVersions("CalibrationCycleModel", tableName, noMigrateList, "1.1", "1.3", fromVersion, true);
}

CalibrationCycleModel *CalibrationCycleModel::fromRecord(const QSqlRecord &record, QObject *parent)
{
    auto *point = new CalibrationCycleModel(parent);
    columnTable().loadInto(point, record);
    return point;
}

bool CalibrationCycleModel::setcalibrationCycleValues(int id)
{
    const QDateTime now = Clock::now();
    setMcreatedAt(now);
    setMupdatedAt(now);
    setCalibrationID(id);
    const int newId = columnTable().insertRowWithNewId(this, tableName, {QStringLiteral("cycleNo")});
    if (newId < 0)
        return false;
    setId(newId);
    return true;
}

void CalibrationCycleModel::updateSlopeValue(float val)
{
    setSlope(val);
    QSqlQuery update;
    update.prepare(QStringLiteral("UPDATE calibrationCycleTable SET slope=:slope_value WHERE id=:id_value"));
    update.bindValue(QStringLiteral(":slope_value"), QString::number(val, 'g', 6));
    update.bindValue(QStringLiteral(":id_value"), m_id);
    DbUtil::exec(update);
}
