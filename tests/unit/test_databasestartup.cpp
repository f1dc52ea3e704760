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

struct UnusableFile {
    const char *name;
    std::function<bool(const QString &)> make;
    const char *why; // a word of the message
};

void PrintTo(const UnusableFile &file, std::ostream *os)
{
    *os << file.name;
}

class UnusableDatabase : public Startup, public ::testing::WithParamInterface<UnusableFile>
{
};

TEST_P(UnusableDatabase, RunsWithoutStoringAndLeavesFileAndBackupAlone)
{
    if (QString::fromLatin1(GetParam().name) == QLatin1String("NoReadPermission") && geteuid() == 0)
        GTEST_SKIP() << "root reads a file of mode 000";
    ASSERT_TRUE(GetParam().make(file()));
    const QByteArray fileBefore = QFileInfo(file()).isFile() ? bytesOf(file()) : QByteArray();

    // Two starts in the same boot: neither changes anything nor restarts.
    for (int start = 0; start < 2; ++start) {
        EXPECT_EQ(DatabaseStartup::open(file()), DatabaseStartup::State::ReadOnly);
        EXPECT_TRUE(DatabaseStartup::message().contains(QLatin1String(GetParam().why))) << DatabaseStartup::message().toStdString();
        // The session still has tables to stand on, in memory.
        EXPECT_TRUE(DbUtil::execText(QStringLiteral("CREATE TABLE IF NOT EXISTS probe (id integer primary key)")));
    }
    EXPECT_EQ(bytesOf(DataMigrator::backupFilePath()), goodCopy);
    if (QFileInfo(file()).isFile()) {
        EXPECT_EQ(bytesOf(file()), fileBefore);
    }
    EXPECT_EQ(restartsRecorded(), 0);
}

INSTANTIATE_TEST_SUITE_P(
    Files, UnusableDatabase,
    ::testing::Values(
        UnusableFile{"NotSQLite", [](const QString &p) { return writeBytes(p, QByteArray(4096, 'x')); }, "cannot be read"},
        UnusableFile{"DamagedSQLite",
                     [](const QString &p) { return writeBytes(p, QByteArray("SQLite format 3\0", 16) + QByteArray(4080, '\xff')); },
                     "cannot be read"},
        UnusableFile{"FolderInItsPlace", [](const QString &p) { return QDir().mkpath(p); }, "folder"},
        UnusableFile{"NoReadPermission",
                     [](const QString &p) {
                         return makeDatabase(p, {QStringLiteral("CREATE TABLE t (id integer)")})
                             && QFile::setPermissions(p, QFileDevice::Permissions());
                     },
                     "cannot"},
        UnusableFile{"UnreadableVersionRow",
                     [](const QString &p) {
                         return makeDatabase(p, {QStringLiteral("CREATE TABLE systemInfo (id integer primary key, timestamp DATETIME)"),
                                                 QStringLiteral("INSERT INTO systemInfo (timestamp) VALUES ('2024-01-01')"),
                                                 QStringLiteral("CREATE TABLE methodSetupTable (id integer primary key, methodName text)"),
                                                 QStringLiteral("INSERT INTO methodSetupTable VALUES (7, 'Acidity')")});
                     },
                     "cannot be read"}),
    [](const ::testing::TestParamInfo<UnusableFile> &info) { return std::string(info.param.name); });

TEST_F(Startup, AFileThatCannotBeSavedIsLeftAsFound)
{
    ASSERT_TRUE(makeDatabase(file(), {QStringLiteral("CREATE TABLE systemInfo (dbVersion text, timestamp DATETIME)"),
                                      QStringLiteral("INSERT INTO systemInfo VALUES ('2.0', '2024-01-01')"),
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
    // A file of an unknown version is copied, emptied, and the service restarted;
    // the same again in the same boot (a file that keeps coming back) is not.
    const QStringList unknown{QStringLiteral("CREATE TABLE systemInfo (dbVersion text, timestamp DATETIME)"),
                              QStringLiteral("INSERT INTO systemInfo VALUES ('2.0', '2024-01-01')"),
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
