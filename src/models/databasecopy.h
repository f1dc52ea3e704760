#pragma once

#include <QString>

// A copy of the live database file as another database file, taken with
// SQLite's online backup from a connection of its own: the copy is the last
// committed state, whatever another connection is writing at the time. It
// is written under a temporary name, checked, and only then renamed to its
// name, so a file of that name is always a complete, sound database.
class DatabaseCopy
{
public:
    // How long a copy waits for a writer to finish its commit.
    static constexpr int busyRetries = 200;
    static constexpr int busyWaitMs = 25;

    // Copies `source` to `target`. False, with *error, when anything failed;
    // then no file of the target's name was written or replaced.
    static bool copy(const QString &source, const QString &target, QString *error);
    // The file the application's database connection uses ("" in memory).
    static QString liveFile();
};
