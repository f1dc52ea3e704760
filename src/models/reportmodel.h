#pragma once

#include <QString>
#include <QStringList>

// Owner of `reportSetupTable`, the stored report texts and images.
class ReportModel
{
public:
    static const QString tableName;
    static QStringList noMigrateList;
    static bool migrate(const QString &fromVersion);
};
