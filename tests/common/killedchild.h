#pragma once

#include <QString>

#include <functional>

struct sqlite3;

// Crash tests: work done in a forked child process on its own connection to
// a database file, with a SQLite progress handler that sees every VM step
// of that connection and may end the child with SIGKILL at a chosen one.
class KilledChild
{
public:
    // Forks; the child opens `dbPath` on the default connection, calls
    // `onStep(handle)` on every VM step, runs `work` and exits with 0.
    // True when the child died of SIGKILL; false when it ended (any exit
    // status but 0 fails the calling test).
    static bool run(const QString &dbPath, const std::function<void(sqlite3 *)> &onStep,
                    const std::function<void()> &work);
};
