#pragma once

#include <QString>
#include <QStringList>

// Owner of `setupTable`, the instrument settings. Its shape has held since
// the first schema version.
class SetupModel
{
public:
    static const QString tableName;
    static QStringList noMigrateList;
    static bool migrate(const QString &fromVersion);
};
