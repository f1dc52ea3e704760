#include "models/reportmodel.h"

#include "models/dbtransaction.h"
#include "models/dbutil.h"
#include "models/migrationframe.h"

const QString ReportModel::tableName = QStringLiteral("reportSetupTable");
QStringList ReportModel::noMigrateList = {QStringLiteral("1.6"), QStringLiteral("1.7")};

const ColumnTable &ReportModel::columnTable()
{
    static const ColumnTable table({
        {"id", "integer primary key AUTOINCREMENT", "id", ColumnSpec::AsIs},
        {"reportType", "varchar(20)", "reportType", ColumnSpec::AsIs},
        {"titrationId", "integer", "titrationId", ColumnSpec::AsIs},
        {"reportString", "varchar(20000)", "reportString", ColumnSpec::AsIs},
        {"cycleImage1", "BLOB", "cycleImage1", ColumnSpec::AsIs},
        {"cycleImage2", "BLOB", "cycleImage2", ColumnSpec::AsIs},
        {"cycleImage3", "BLOB", "cycleImage3", ColumnSpec::AsIs},
        {"cycleImage4", "BLOB", "cycleImage4", ColumnSpec::AsIs},
        {"cycleImage5", "BLOB", "cycleImage5", ColumnSpec::AsIs},
        {"logTimeStamp", "DATETIME", "logTimeStamp", ColumnSpec::AsIs},
        {"graphString", "varchar(2000)", "graphString", ColumnSpec::AsIs},
        {"mcreatedAt", "DATETIME", "mcreatedAt", ColumnSpec::AsIs},
        {"mupdatedAt", "DATETIME", "mupdatedAt", ColumnSpec::AsIs},
        {"measurementId", "integer", "measurementId", ColumnSpec::AsIs},
        {"calibrationId", "integer", "calibrationId", ColumnSpec::AsIs},
        {"dateFormat", "integer", "dateFormat", ColumnSpec::AsIs},
        {"timeFormat", "integer", "timeFormat", ColumnSpec::AsIs},
        {"standardizationId", "integer", "standardizationId", ColumnSpec::AsIs},
    });
    return table;
}

ReportModel::ReportModel(QObject *parent)
    : QObject(parent)
{
    createTable();
}

bool ReportModel::createTable()
{
    return DbUtil::execText(columnTable().createSql(tableName, true));
}

bool ReportModel::migrate(const QString &fromVersion)
{
    MigrationFrame frame;
    frame.modelName = QStringLiteral("ReportModel");
    frame.noMigrateList = noMigrateList;
    frame.handledVersions = DbUtil::versionRange(QStringLiteral("1.1"), QStringLiteral("1.5"));
    frame.step = [](const QString &from) {
        if (DbUtil::versionRange(QStringLiteral("1.1"), QStringLiteral("1.3")).contains(from))
            return DbUtil::execText(QStringLiteral("DROP TABLE reportSetupTable"));
        // The runs these reports point to were dropped in the same step.
        DbTransaction unit;
        const bool ok = DbUtil::execText(QStringLiteral("ALTER TABLE reportSetupTable ADD COLUMN standardizationId integer"))
            && DbUtil::execText(QStringLiteral("DELETE FROM reportSetupTable WHERE reportType='Titration'"))
            && DbUtil::execText(QStringLiteral("DELETE FROM reportSetupTable WHERE reportType='Standardization'"));
        return ok && unit.commit();
    };
    return frame.run(fromVersion);
}
