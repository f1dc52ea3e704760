#include "models/measurementlogmodel.h"

#include "models/dbutil.h"
#include "models/migrationframe.h"

const QString MeasurementLogModel::tableName = QStringLiteral("measurementLogTable");
QStringList MeasurementLogModel::noMigrateList = DbUtil::versionRange(QStringLiteral("1.5"), QStringLiteral("1.7"));

bool MeasurementLogModel::migrate(const QString &fromVersion)
{
    MigrationFrame frame;
    frame.modelName = QStringLiteral("MeasurementLogModel");
    frame.noMigrateList = noMigrateList;
    frame.handledVersions = DbUtil::versionRange(QStringLiteral("1.1"), QStringLiteral("1.4"));
    frame.step = [](const QString &) { return DbUtil::execText(QStringLiteral("DROP TABLE %1").arg(tableName)); };
    return frame.run(fromVersion);
}
