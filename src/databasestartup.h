#pragma once

#include <QString>

// Opens the database file at start-up and brings it to this version, before
// any model exists. A file that can't be used is never changed: the session
// then runs on an empty database in memory, nothing it does is stored, and
// `message()` says why, for the log and the screen. A wipe restarts the
// service at most once per boot, so a file that keeps failing can't make the
// instrument restart in a loop.
class DatabaseStartup
{
public:
    enum class State { Ready, ReadOnly };

    // Opens `fileName` on the default connection and migrates it. Returns the
    // state the session runs in.
    static State open(const QString &fileName);

    // Empty when the file is in use; otherwise what the screen shows.
    static QString message();
    // Whether what this session does reaches the file (false on a file that
    // is read only, or when the session runs in memory).
    static bool stores();
    // Why the last `DataMigrator::migrate` could not use `fileName`, in the
    // words of the screen and the console; empty when it could.
    static QString reasonFor(const QString &fileName);

    // The marker of a restart asked for in this boot.
    static QString restartMarkerPath();

private:
    static bool restartOncePerBoot();
    static State runReadOnly(const QString &why);
    static State readFileOnly(const QString &why);
};
