#pragma once

#include <QString>
#include <QStringList>

// Owner of `calibrationCycleTable`. Its rows are snapshots that can't be reshaped, so an
// older shape of the table is dropped and comes back empty.
class CalibrationCycleModel
{
public:
    static const QString tableName;
    static QStringList noMigrateList;
    static bool migrate(const QString &fromVersion);
};
