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

bool MigrationFrame::dropOnOldVersions(const char *modelName, const QString &table, const QStringList &noMigrateList,
                                       const char *first, const char *last, const QString &fromVersion,
                                       bool mustExist)
{
    MigrationFrame frame;
    frame.modelName = QLatin1String(modelName);
    frame.noMigrateList = noMigrateList;
    frame.handledVersions = DbUtil::versionRange(QLatin1String(first), QLatin1String(last));
    if (mustExist)
        frame.tableThatMustExist = table;
    frame.step = [table](const QString &) { return DbUtil::execText(QStringLiteral("DROP TABLE %1").arg(table)); };
    return frame.run(fromVersion);
}
