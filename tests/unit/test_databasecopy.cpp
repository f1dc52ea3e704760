// The database copied as a database file: sound, complete as committed,
// under its name only when whole.
#include "models/databasecopy.h"
#include "models/titrationlogmodel.h"
#include "testdatabase.h"
#include "testdatalayer.h"

#include <QDir>
#include <QFile>
#include <QSqlQuery>

#include <gtest/gtest.h>
#include <sqlite3.h>

namespace {

// Row counts of every table of a database file, through a connection of its own.
std::map<std::string, int> rowCounts(const QString &file, QString *integrity)
{
    std::map<std::string, int> counts;
    sqlite3 *db = nullptr;
    sqlite3_open_v2(QFile::encodeName(file).constData(), &db, SQLITE_OPEN_READONLY, nullptr);
    auto text = [db](const std::string &sql) {
        std::vector<std::string> values;
        sqlite3_stmt *s = nullptr;
        sqlite3_prepare_v2(db, sql.c_str(), -1, &s, nullptr);
        while (sqlite3_step(s) == SQLITE_ROW)
            values.emplace_back(reinterpret_cast<const char *>(sqlite3_column_text(s, 0)));
        sqlite3_finalize(s);
        return values;
    };
    *integrity = QString::fromStdString(text("PRAGMA integrity_check").at(0));
    for (const std::string &table : text("SELECT name FROM sqlite_master WHERE type='table'"))
        counts[table] = std::stoi(text("SELECT count(*) FROM \"" + table + "\"").at(0));
    sqlite3_close(db);
    return counts;
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
        QString integrity;
        const auto committed = rowCounts(db.path(), &integrity);
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
        EXPECT_EQ(rowCounts(c.target, &integrity), committed);
        EXPECT_EQ(integrity, "ok");
    }
}
