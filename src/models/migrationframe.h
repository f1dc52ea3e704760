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

    // A table of snapshots can't be reshaped: versions from `first` to
    // `last` drop it, and it comes back empty. With `mustExist`, a missing
    // table means there is nothing to migrate.
    static bool dropOnOldVersions(const char *modelName, const QString &table, const QStringList &noMigrateList,
                                  const char *first, const char *last, const QString &fromVersion,
                                  bool mustExist = false);
};
