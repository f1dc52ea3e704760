#include "killedchild.h"

#include <QSqlDatabase>
#include <QSqlDriver>
#include <QVariant>
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace {

const std::function<void(sqlite3 *)> *g_onStep = nullptr;
sqlite3 *g_handle = nullptr;

int step(void *)
{
    (*g_onStep)(g_handle);
    return 0;
}

} // namespace

bool KilledChild::run(const QString &dbPath, const std::function<void(sqlite3 *)> &onStep,
                      const std::function<void()> &work)
{
    const pid_t pid = ::fork();
    if (pid == 0) {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"));
        db.setDatabaseName(dbPath);
        const QVariant handle = db.open() ? db.driver()->handle() : QVariant();
        if (qstrcmp(handle.typeName(), "sqlite3*") != 0)
            ::_exit(3);
        g_handle = *static_cast<sqlite3 *const *>(handle.data());
        g_onStep = &onStep;
        sqlite3_progress_handler(g_handle, 1, &step, nullptr);
        work();
        ::_exit(0);
    }
    int status = 0;
    ::waitpid(pid, &status, 0);
    if (WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL)
        return true;
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "the child ended with status " << status;
    return false;
}
