// The database copied as a database file: sound, complete as committed,
// under its name only when whole.
#include "models/databasecopy.h"
#include "logrecords.h"
#include "models/titrationlogmodel.h"
#include "testdatabase.h"
#include "testdatalayer.h"

#include <QDir>
#include <QFile>
#include <QSqlQuery>

#include <gtest/gtest.h>
#include <sqlite3.h>

namespace {

// Every table of a database file with its row count, through the sqlite3 shell.
QString rowCounts(const QString &file)
{
    QStringList counts;
    const QString tables = LogRecords::sqlite(file, QStringLiteral("SELECT name FROM sqlite_master WHERE type='table' ORDER BY name"));
    for (const QString &t : tables.split(QLatin1Char('\n'), Qt::SkipEmptyParts))
        counts << t + QLatin1Char('=') + LogRecords::sqlite(file, QStringLiteral("SELECT count(*) FROM \"%1\"").arg(t));
    return counts.join(QLatin1Char(' '));
}

} // namespace

TEST(DatabaseCopy, TheCopyIsSoundAndHoldsEveryCommittedRow)
{
    TestDatabase db;
    const auto dm = startedDataManager();
    ASSERT_TRUE(TitrationLogModel::createTable());
    for (int i = 0; i < 50; ++i)
        ASSERT_TRUE(TestDatabase::exec(QStringLiteral("INSERT INTO titrationLogTable DEFAULT VALUES")));
    const QString folder = Platform::path(QStringLiteral("/media/usb/VantorPro/database_backup"));
    ASSERT_TRUE(QDir().mkpath(folder));

    const struct {
        const char *name;
        bool entryBeingWritten;
        QString target;
        bool copied;
    } cases[] = {
        {"at rest", false, folder + "/KestrumDB", true},
        {"while a titration log entry is being written", true, folder + "/KestrumDB", true},
        {"into a folder that is not there", false, folder + "/gone/KestrumDB", false},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.name);
        QFile::remove(c.target);
        const QString committed = rowCounts(db.path());
        ASSERT_TRUE(committed.contains(QStringLiteral("titrationLogTable=5"))) << qPrintable(committed);
        sqlite3 *writer = nullptr;
        if (c.entryBeingWritten) {
            // Another connection is in the middle of writing a log entry.
            ASSERT_EQ(sqlite3_open(QFile::encodeName(db.path()).constData(), &writer), SQLITE_OK);
            ASSERT_EQ(sqlite3_exec(writer, "BEGIN IMMEDIATE; INSERT INTO titrationLogTable DEFAULT VALUES;",
                                   nullptr, nullptr, nullptr),
                      SQLITE_OK);
        }
        QString error;
        EXPECT_EQ(DatabaseCopy::copy(DatabaseCopy::liveFile(), c.target, &error), c.copied) << qPrintable(error);
        if (writer) {
            EXPECT_EQ(sqlite3_exec(writer, "COMMIT", nullptr, nullptr, nullptr), SQLITE_OK);
            sqlite3_close(writer);
        }
        EXPECT_FALSE(QFile::exists(c.target + ".part"));
        if (!c.copied) {
            EXPECT_FALSE(QFile::exists(c.target));
            EXPECT_FALSE(error.isEmpty());
            continue;
        }
        EXPECT_EQ(rowCounts(c.target).toStdString(), committed.toStdString());
        EXPECT_EQ(LogRecords::sqlite(c.target, QStringLiteral("PRAGMA integrity_check")), QStringLiteral("ok"));
    }
}
