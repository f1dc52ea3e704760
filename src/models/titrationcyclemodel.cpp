#include "models/titrationcyclemodel.h"

#include "models/dbutil.h"
#include "models/migrationframe.h"

const QString TitrationCycleModel::tableName = QStringLiteral("titrationCycleTable");
QStringList TitrationCycleModel::noMigrateList = DbUtil::versionRange(QStringLiteral("1.4"), QStringLiteral("1.7"));

bool TitrationCycleModel::migrate(const QString &fromVersion)
{
    MigrationFrame frame;
    frame.modelName = QStringLiteral("TitrationCycleModel");
    frame.noMigrateList = noMigrateList;
    frame.handledVersions = DbUtil::versionRange(QStringLiteral("1.1"), QStringLiteral("1.3"));
    frame.tableThatMustExist = tableName;
    frame.step = [](const QString &) { return DbUtil::execText(QStringLiteral("DROP TABLE %1").arg(tableName)); };
    return frame.run(fromVersion);
}
