#include "models/titrationmodel.h"

#include "models/dbutil.h"
#include "models/migrationframe.h"

const QString TitrationModel::tableName = QStringLiteral("titrationTable");
QStringList TitrationModel::noMigrateList = DbUtil::versionRange(QStringLiteral("1.4"), QStringLiteral("1.7"));

bool TitrationModel::migrate(const QString &fromVersion)
{
    MigrationFrame frame;
    frame.modelName = QStringLiteral("TitrationModel");
    frame.noMigrateList = noMigrateList;
    frame.handledVersions = DbUtil::versionRange(QStringLiteral("1.1"), QStringLiteral("1.3"));
    frame.step = [](const QString &) { return DbUtil::execText(QStringLiteral("DROP TABLE %1").arg(tableName)); };
    return frame.run(fromVersion);
}
