#include "models/databasecopy.h"

#include <QFile>
#include <QFileInfo>
#include <QSqlDatabase>

#include <cstdio>
#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

namespace {

// Both connections close whatever happens.
struct Connection {
    sqlite3 *db = nullptr;
    ~Connection() { sqlite3_close(db); }
};

bool fail(QString *error, const QString &what, sqlite3 *db = nullptr)
{
    *error = db ? QStringLiteral("%1: %2").arg(what, QString::fromUtf8(sqlite3_errmsg(db))) : what;
    return false;
}

bool isSound(sqlite3 *db)
{
    sqlite3_stmt *check = nullptr;
    if (sqlite3_prepare_v2(db, "PRAGMA integrity_check", -1, &check, nullptr) != SQLITE_OK)
        return false;
    const bool ok = sqlite3_step(check) == SQLITE_ROW
        && QByteArray(reinterpret_cast<const char *>(sqlite3_column_text(check, 0))) == "ok";
    sqlite3_finalize(check);
    return ok;
}

bool syncFile(const QString &path)
{
    const int fd = ::open(QFile::encodeName(path).constData(), O_RDONLY);
    if (fd < 0)
        return false;
    const bool ok = ::fsync(fd) == 0;
    ::close(fd);
    return ok;
}

} // namespace

QString DatabaseCopy::liveFile()
{
    const QString name = QSqlDatabase::database().databaseName();
    return name == QLatin1String(":memory:") || !QFileInfo(name).isFile() ? QString() : name;
}

bool DatabaseCopy::copy(const QString &source, const QString &target, QString *error)
{
    if (source.isEmpty() || !QFileInfo(source).isFile())
        return fail(error, QStringLiteral("there is no database file to copy"));
    const QString temporary = target + QStringLiteral(".part");
    QFile::remove(temporary);
    bool copied = false;
    {
        Connection from;
        Connection to;
        if (sqlite3_open_v2(QFile::encodeName(source).constData(), &from.db, SQLITE_OPEN_READONLY, nullptr) != SQLITE_OK)
            return fail(error, QStringLiteral("cannot open the database"), from.db);
        if (sqlite3_open_v2(QFile::encodeName(temporary).constData(), &to.db,
                            SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr) != SQLITE_OK) {
            fail(error, QStringLiteral("cannot write the copy"), to.db);
            QFile::remove(temporary);
            return false;
        }
        sqlite3_backup *backup = sqlite3_backup_init(to.db, "main", from.db, "main");
        if (!backup) {
            fail(error, QStringLiteral("cannot start the copy"), to.db);
        } else {
            int rc = SQLITE_OK;
            // A writer's commit holds the file for a moment: wait for it, boundedly.
            for (int attempt = 0; attempt <= busyRetries; ++attempt) {
                rc = sqlite3_backup_step(backup, -1);
                if (rc != SQLITE_BUSY && rc != SQLITE_LOCKED)
                    break;
                sqlite3_sleep(busyWaitMs);
            }
            const int finished = sqlite3_backup_finish(backup);
            copied = rc == SQLITE_DONE && finished == SQLITE_OK;
            if (!copied)
                fail(error, QStringLiteral("the copy did not complete (%1)").arg(QString::fromUtf8(sqlite3_errstr(rc))));
            else if (!(copied = isSound(to.db)))
                fail(error, QStringLiteral("the copy does not pass its integrity check"));
        }
    }
    if (copied && !syncFile(temporary))
        copied = fail(error, QStringLiteral("the copy could not be flushed to the disk"));
    if (copied && std::rename(QFile::encodeName(temporary).constData(), QFile::encodeName(target).constData()) != 0)
        copied = fail(error, QStringLiteral("the copy could not be given its name"));
    if (!copied)
        QFile::remove(temporary);
    return copied;
}
