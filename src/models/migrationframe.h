#pragma once

#include <QString>
#include <QStringList>

#include <functional>

// The common shape of every model's schema migration: versions with nothing
// to do, versions the model knows how to bring forward, and the failure for
// any other version.
struct MigrationFrame
{
    QString modelName;
    QStringList noMigrateList;
    QStringList handledVersions;
    std::function<bool(const QString &fromVersion)> step;
    // When set, a missing table of this name means there is nothing to migrate.
    QString tableThatMustExist;

    bool run(const QString &fromVersion) const;
};
