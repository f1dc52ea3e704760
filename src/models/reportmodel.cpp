#include "models/reportmodel.h"

#include "models/dbtransaction.h"
#include "models/dbutil.h"
#include "models/migrationframe.h"

const QString ReportModel::tableName = QStringLiteral("reportSetupTable");
QStringList ReportModel::noMigrateList = {QStringLiteral("1.6"), QStringLiteral("1.7")};

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
