#include "models/titrationlogmodel.h"

#include "models/dbutil.h"
#include "models/migrationframe.h"

const QString TitrationLogModel::tableName = QStringLiteral("titrationLogTable");
QStringList TitrationLogModel::noMigrateList = DbUtil::versionRange(QStringLiteral("1.6"), QStringLiteral("1.7"));

bool TitrationLogModel::migrate(const QString &fromVersion)
{
    MigrationFrame frame;
    frame.modelName = QStringLiteral("TitrationLogModel");
    frame.noMigrateList = noMigrateList;
    frame.handledVersions = DbUtil::versionRange(QStringLiteral("1.1"), QStringLiteral("1.5"));
    frame.step = [](const QString &) { return DbUtil::execText(QStringLiteral("DROP TABLE %1").arg(tableName)); };
    return frame.run(fromVersion);
}
