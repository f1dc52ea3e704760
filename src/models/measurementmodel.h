#pragma once

#include <QString>
#include <QStringList>

// Owner of `MeasurementTable`, the one row of meter settings.
class MeasurementModel
{
public:
    static const QString tableName;
    static QStringList noMigrateList;
    // Takes the version by value: a file of 1.1 is first brought to 1.2 and
    // then goes through the step of 1.2.
    static bool migrate(QString fromVersion);
};
