#include "models/migrationframe.h"

#include "models/dbutil.h"

#include <QDebug>

bool MigrationFrame::run(const QString &fromVersion) const
{
    qDebug() << modelName;
    if (noMigrateList.contains(fromVersion)) {
        qDebug() << "Nothing to be done for " << fromVersion;
        return true;
    }
    if (!tableThatMustExist.isEmpty() && !DbUtil::tableExists(tableThatMustExist)) {
        qDebug() << "no table to migrate - tableExists: " << false;
        return true;
    }
    if (handledVersions.contains(fromVersion) && step) {
        qDebug() << "Migrating schema from " << fromVersion;
        return step(fromVersion);
    }
    qDebug() << "Migration failed for unknown version " << fromVersion;
    return false;
}
