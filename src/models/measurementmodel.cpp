#include "models/measurementmodel.h"

#include "models/dbutil.h"

#include <QDebug>

const QString MeasurementModel::tableName = QStringLiteral("MeasurementTable");
QStringList MeasurementModel::noMigrateList = DbUtil::versionRange(QStringLiteral("1.3"), QStringLiteral("1.7"));

bool MeasurementModel::migrate(QString fromVersion)
{
    qDebug() << "MeasurementModel";
    if (noMigrateList.contains(fromVersion)) {
        qDebug() << "Nothing to be done for " << fromVersion;
        return true;
    }
    bool result = true;
    if (fromVersion == QLatin1String("1.1")) {
        qDebug() << "Migrating schema from " << fromVersion;
        result = DbUtil::execText(QStringLiteral("ALTER TABLE MeasurementTable ADD COLUMN calLogId integer"))
            && DbUtil::execText(QStringLiteral("ALTER TABLE MeasurementTable ADD COLUMN calAvg float"))
            && DbUtil::execText(QStringLiteral("ALTER TABLE MeasurementTable ADD COLUMN calDateTime DATETIME"));
        qDebug() << "migration_succeeded: " << result;
        if (!result)
            return false;
        fromVersion = QStringLiteral("1.2");
    }
    if (fromVersion == QLatin1String("1.2")) {
        qDebug() << "Migrating schema from " << fromVersion;
        bool ok = false;
        const int rows = DbUtil::scalar(QStringLiteral("SELECT count(*) FROM MeasurementTable"), &ok).toInt();
        if (!ok)
            return false;
        if (rows > 1) {
            qDebug() << " --- MeasurementTable incorrect - deleting all rows --- ";
            return DbUtil::execText(QStringLiteral("DELETE FROM MeasurementTable"));
        }
        return true;
    }
    // Any other version: this table has nothing to do with it.
    return true;
}
