#include "databasestartup.h"
#include "datamigrator.h"
#include "models/dbutil.h"
#include "system/platform.h"
#include "testsupport.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <gtest/gtest.h>

#include <functional>
#include <unistd.h>

namespace {

QByteArray bytesOf(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<unreadable>");
}

bool writeBytes(const QString &path, const QByteArray &bytes)
{
    QFile f(path);
    return f.open(QIODevice::WriteOnly | QIODevice::Truncate) && f.write(bytes) == bytes.size();
}

// Builds a database file with SQL on a connection of its own.
bool makeDatabase(const QString &path, const QStringList &statements)
{
    bool ok = true;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("maker"));
        db.setDatabaseName(path);
        ok = db.open();
        for (const QString &s : statements)
            ok = ok && QSqlQuery(db).exec(s);
        db.close();
    }
    QSqlDatabase::removeDatabase(QStringLiteral("maker"));
    return ok;
}

int restartsRecorded()
{
    return Platform::recordedCommands().count(QStringLiteral("systemctl restart b2qt"));
}

class Startup : public ::testing::Test
{
protected:
    void SetUp() override
    {
        Platform::prepareSandbox();
        Platform::clearRecordedCommands();
        ASSERT_TRUE(writeBytes(DataMigrator::backupFilePath(), goodCopy));
    }
    void TearDown() override
    {
        QSqlDatabase::database(QLatin1String(QSqlDatabase::defaultConnection), false).close();
        QSqlDatabase::removeDatabase(QLatin1String(QSqlDatabase::defaultConnection));
    }
    QString file() const { return sandbox.path(QStringLiteral("/var/KestrumDB")); }

    TempSandbox sandbox;
    const QByteArray goodCopy = "{\"methodSetupTable\": {\"7\": {\"id\": 7, \"methodName\": \"Acidity\"}}}\n";
};

// A file of this version with a method and enough rows to fill a few pages.
bool makeGoodFile(const QString &path)
{
    QStringList sql{QStringLiteral("CREATE TABLE systemInfo (id integer primary key, dbVersion varchar(30), timestamp DATETIME)"),
                    QStringLiteral("INSERT INTO systemInfo (dbVersion, timestamp) VALUES ('1.8', '2024-01-01')"),
                    QStringLiteral("CREATE TABLE methodSetupTable (id integer primary key, methodName text)"),
                    QStringLiteral("INSERT INTO methodSetupTable VALUES (7, 'Acidity')"),
                    QStringLiteral("CREATE TABLE titrationLogTable (id integer primary key, note text)")};
    for (int i = 0; i < 200; ++i)
        sql << QStringLiteral("INSERT INTO titrationLogTable (note) VALUES ('%1')").arg(QString(100, QLatin1Char('a' + i % 26)));
    return makeDatabase(path, sql);
}

// A good file with its last page (a page of the log table) overwritten:
// the version row still reads.
bool corruptLastPage(const QString &path)
{
    if (!makeGoodFile(path))
        return false;
    QFile f(path);
    if (!f.open(QIODevice::ReadWrite) || f.size() < 3 * 4096)
        return false;
    f.seek(f.size() - 4096);
    return f.write(QByteArray(4096, '\x5a')) == 4096;
}

bool truncateHalf(const QString &path)
{
    return makeGoodFile(path) && QFile::resize(path, QFileInfo(path).size() / 2);
}

bool randomBytes(const QString &path)
{
    QByteArray bytes(8192, '\0');
    quint32 x = 20261125;
    for (char &c : bytes) {
        x = x * 1664525u + 1013904223u;
        c = char(x >> 24);
    }
    return writeBytes(path, bytes);
}

bool versioned(const QString &path, const QStringList &versionRows)
{
    return makeDatabase(path, QStringList{QStringLiteral("CREATE TABLE systemInfo (id integer primary key, dbVersion varchar(30), timestamp DATETIME)"),
                                          QStringLiteral("CREATE TABLE methodSetupTable (id integer primary key, methodName text)"),
                                          QStringLiteral("INSERT INTO methodSetupTable VALUES (7, 'Acidity')")}
                                  + versionRows);
}

struct DatabaseFile {
    const char *name;
    std::function<bool(const QString &)> make;
    const char *screen;  // a part of the screen's message; empty: the file is in use
    const char *console; // a part of what `vantor-cli method list` says
};

void PrintTo(const DatabaseFile &file, std::ostream *os)
{
    *os << file.name;
}

class DatabaseFiles : public Startup, public ::testing::WithParamInterface<DatabaseFile>
{
};

// What the application shows and the console says for each kind of file;
// wherever nothing may be written, the file stays byte for byte and its rows
// all stay; the backup copy is never replaced and nothing restarts.
TEST_P(DatabaseFiles, AreShownAndLeftAsTheyAre)
{
    const DatabaseFile &c = GetParam();
    if (QString::fromLatin1(c.name) == QLatin1String("NoReadPermission") && geteuid() == 0)
        GTEST_SKIP() << "root reads a file of mode 000";
    ASSERT_TRUE(c.make(file()));
    const bool unusable = *c.screen != '\0';
    const QByteArray fileBefore = QFileInfo(file()).isFile() ? bytesOf(file()) : QByteArray();

    // Two starts in the same boot: neither changes anything nor restarts.
    for (int start = 0; start < (unusable ? 2 : 1); ++start) {
        EXPECT_EQ(DatabaseStartup::open(file()), unusable ? DatabaseStartup::State::ReadOnly : DatabaseStartup::State::Ready);
        EXPECT_TRUE(DatabaseStartup::message().contains(QLatin1String(c.screen))) << DatabaseStartup::message().toStdString();
        EXPECT_EQ(DatabaseStartup::stores(), !unusable);
        // The session still has tables to stand on.
        EXPECT_TRUE(DbUtil::execText(QStringLiteral("CREATE TABLE IF NOT EXISTS probe (id integer primary key)")));
        TearDown();
    }
    int code = -1;
    const QString said = runVantorCli({QStringLiteral("method"), QStringLiteral("list"), QStringLiteral("--sandbox"), sandbox.root()}, &code);
    EXPECT_EQ(code, unusable ? 2 : 0) << said.toStdString();
    EXPECT_TRUE(said.contains(QLatin1String(c.console))) << said.toStdString();
    EXPECT_EQ(bytesOf(DataMigrator::backupFilePath()), goodCopy);
    if (unusable && QFileInfo(file()).isFile()) {
        EXPECT_EQ(bytesOf(file()), fileBefore);
    }
    EXPECT_EQ(restartsRecorded(), unusable ? 0 : 1);
}

INSTANTIATE_TEST_SUITE_P(
    Files, DatabaseFiles,
    ::testing::Values(
        DatabaseFile{"CorruptPageReadableVersion", corruptLastPage, "cannot be read: it is damaged", "it is damaged or not a database"},
        DatabaseFile{"Truncated", truncateHalf, "cannot be read: it is damaged", "it is damaged or not a database"},
        DatabaseFile{"ZeroBytes", [](const QString &p) { return writeBytes(p, QByteArray()); }, "", "0 of 10 methods"},
        DatabaseFile{"RandomBytes", randomBytes, "cannot be read: it is damaged", "it is damaged or not a database"},
        DatabaseFile{"NotSQLite", [](const QString &p) { return writeBytes(p, QByteArray(4096, 'x')); }, "cannot be read", "damaged"},
        DatabaseFile{"DamagedHeader",
                     [](const QString &p) { return writeBytes(p, QByteArray("SQLite format 3\0", 16) + QByteArray(4080, '\xff')); },
                     "cannot be read", "damaged"},
        DatabaseFile{"NewerVersion",
                     [](const QString &p) { return versioned(p, {QStringLiteral("INSERT INTO systemInfo (dbVersion, timestamp) VALUES ('2.0', '2024-01-01')")}); },
                     "belongs to a newer program (database version 2.0)", "belongs to a newer program (database version 2.0)"},
        DatabaseFile{"NoVersionRow", [](const QString &p) { return versioned(p, {}); }, "it belongs to a newer program, or to another one",
                     "carries no version this program knows"},
        DatabaseFile{"FolderInItsPlace", [](const QString &p) { return QDir().mkpath(p); }, "folder", "cannot open the database"},
        DatabaseFile{"NoReadPermission",
                     [](const QString &p) {
                         return makeDatabase(p, {QStringLiteral("CREATE TABLE t (id integer)")})
                             && QFile::setPermissions(p, QFileDevice::Permissions());
                     },
                     "cannot", "cannot"},
        DatabaseFile{"UnreadableVersionRow",
                     [](const QString &p) {
                         return makeDatabase(p, {QStringLiteral("CREATE TABLE systemInfo (id integer primary key, timestamp DATETIME)"),
                                                 QStringLiteral("INSERT INTO systemInfo (timestamp) VALUES ('2024-01-01')"),
                                                 QStringLiteral("CREATE TABLE methodSetupTable (id integer primary key, methodName text)"),
                                                 QStringLiteral("INSERT INTO methodSetupTable VALUES (7, 'Acidity')")});
                     },
                     "cannot be read", "damaged"}),
    [](const ::testing::TestParamInfo<DatabaseFile> &info) { return std::string(info.param.name); });

// A file that takes no writes (a read-only mount) is read, never written:
// the console says so, works on a copy and reports nothing stored.
TEST_F(Startup, AReadOnlyFileIsReadAndNeverWritten)
{
    ASSERT_TRUE(makeGoodFile(file()));
    ASSERT_EQ(DatabaseStartup::open(file()), DatabaseStartup::State::Ready); // brought to this program's tables
    TearDown();
    const QByteArray before = bytesOf(file());
    int code = -1;
    const QString said = runVantorCliReadOnly(file(), {QStringLiteral("method"), QStringLiteral("list"), QStringLiteral("--sandbox"), sandbox.root()}, &code);
    if (said.contains(QLatin1String("unshare:")))
        GTEST_SKIP() << "no mount namespace here: " << said.toStdString();
    EXPECT_EQ(code, 0) << said.toStdString();
    EXPECT_TRUE(said.contains(QStringLiteral("cannot be written"))) << said.toStdString();
    EXPECT_TRUE(said.contains(QStringLiteral("\tAcidity\t"))) << said.toStdString();
    EXPECT_EQ(bytesOf(file()), before);
}

// The staging tables of an install killed in the middle go at the next start.
TEST_F(Startup, AnInstallCutShortLeavesNoStagingTablesAfterTheNextStart)
{
    ASSERT_TRUE(makeGoodFile(file()));
    ASSERT_TRUE(makeDatabase(file(), {QStringLiteral("CREATE TABLE methodSetupTable_temp AS SELECT * FROM methodSetupTable"),
                                      QStringLiteral("CREATE TABLE titrationSetupTable_temp (id integer)")}));
    EXPECT_EQ(DatabaseStartup::open(file()), DatabaseStartup::State::Ready);
    EXPECT_EQ(DbUtil::scalar(QStringLiteral("SELECT count(*) FROM sqlite_master WHERE name LIKE '%_temp'")).toInt(), 0);
    EXPECT_EQ(DbUtil::scalar(QStringLiteral("SELECT methodName FROM methodSetupTable WHERE id = 7")).toString(), QStringLiteral("Acidity"));
}

TEST_F(Startup, AFileThatCannotBeSavedIsLeftAsFound)
{
    ASSERT_TRUE(makeDatabase(file(), {QStringLiteral("CREATE TABLE systemInfo (dbVersion text, timestamp DATETIME)"),
                                      QStringLiteral("INSERT INTO systemInfo VALUES ('1.7', '2024-01-01')"),
                                      QStringLiteral("CREATE TABLE methodSetupTable (id integer primary key, methodName text)"),
                                      QStringLiteral("INSERT INTO methodSetupTable VALUES (7, 'Acidity')")}));
    const QByteArray before = bytesOf(file());
    // The copy can't be written: a folder stands where it goes.
    QFile::remove(DataMigrator::backupFilePath());
    ASSERT_TRUE(QDir().mkpath(DataMigrator::backupFilePath()));
    EXPECT_EQ(DatabaseStartup::open(file()), DatabaseStartup::State::ReadOnly);
    EXPECT_TRUE(DatabaseStartup::message().contains(QLatin1String("backup could not be written")));
    EXPECT_EQ(bytesOf(file()), before);
    EXPECT_EQ(restartsRecorded(), 0);
}

TEST_F(Startup, AWipeRestartsTheServiceOncePerBoot)
{
    // An old file that can't be brought forward is copied, emptied, and the
    // service restarted; the same again in the same boot (a file that keeps
    // coming back) is not.
    const QStringList unknown{QStringLiteral("CREATE TABLE systemInfo (dbVersion text, timestamp DATETIME)"),
                              QStringLiteral("INSERT INTO systemInfo VALUES ('1.7', '2024-01-01')"),
                              QStringLiteral("CREATE TABLE methodSetupTable (id integer primary key, methodName text)"),
                              QStringLiteral("INSERT INTO methodSetupTable VALUES (7, 'Acidity')")};
    ASSERT_TRUE(makeDatabase(file(), unknown));
    EXPECT_EQ(DatabaseStartup::open(file()), DatabaseStartup::State::Ready);
    EXPECT_EQ(DataMigrator::dmPtr()->outcome(), DataMigrator::Outcome::Wiped);
    EXPECT_TRUE(bytesOf(DataMigrator::backupFilePath()).contains("Acidity"));
    EXPECT_EQ(restartsRecorded(), 1);

    TearDown();
    QFile::remove(file());
    ASSERT_TRUE(makeDatabase(file(), unknown));
    EXPECT_EQ(DatabaseStartup::open(file()), DatabaseStartup::State::Ready);
    EXPECT_EQ(restartsRecorded(), 1);

    // A brand-new file has nothing to copy: the last good copy stays.
    TearDown();
    QFile::remove(file());
    QFile::remove(DatabaseStartup::restartMarkerPath());
    ASSERT_TRUE(writeBytes(DataMigrator::backupFilePath(), goodCopy));
    EXPECT_EQ(DatabaseStartup::open(file()), DatabaseStartup::State::Ready);
    EXPECT_EQ(bytesOf(DataMigrator::backupFilePath()), goodCopy);
    EXPECT_EQ(restartsRecorded(), 2);
    EXPECT_TRUE(DatabaseStartup::message().isEmpty());
}

} // namespace
