#include "models/setupmodel.h"

#include "models/dbutil.h"
#include "models/migrationframe.h"

const QString SetupModel::tableName = QStringLiteral("setupTable");
QStringList SetupModel::noMigrateList = DbUtil::versionRange(QStringLiteral("1.1"), QStringLiteral("1.7"));

bool SetupModel::migrate(const QString &fromVersion)
{
    MigrationFrame frame;
    frame.modelName = QStringLiteral("SetupModel");
    frame.noMigrateList = noMigrateList;
    return frame.run(fromVersion);
}
