// A process killed at any step of a migration, of the wipe, or of a
// whole-log deletion leaves a file that opens and holds either the old data
// or the new, never a mixture, and a JSON copy that is either the previous
// one or complete.
#include "datamigrator.h"
#include "killedchild.h"
#include "logrecords.h"
#include "models/calibrationlogmodel.h"
#include "models/logtables.h"
#include "models/sysinfomodel.h"
#include "models/titrationlogmodel.h"
#include "testdatabase.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <gtest/gtest.h>

#include <csignal>
#include <functional>

namespace {

long g_steps = 0;
long g_killAt = 0;

// Runs `work` in a child process that dies at SQLite VM step killAt (0:
// never). Returns the number of steps the child got through when it
// finished, or -1 when it was killed.
long runInChild(const QString &dbPath, long killAt, const QString &stepsFile, const std::function<void()> &work)
{
    g_steps = 0;
    g_killAt = killAt;
    const bool killed = KilledChild::run(
        dbPath,
        [](sqlite3 *) {
            if (++g_steps == g_killAt)
                ::raise(SIGKILL);
        },
        [&] {
            work();
            writeTextFile(stepsFile, QString::number(g_steps));
        });
    return killed ? -1 : readTextFile(stepsFile).toLong();
}

long migrateInChild(const QString &dbPath, long killAt, const QString &stepsFile)
{
    return runInChild(dbPath, killAt, stepsFile, [] { DataMigrator::dmPtr()->migrate(); });
}

// The file as text. An emptied sqlite_sequence that VACUUM has not yet
// removed is SQLite's own bookkeeping, not data.
QString dumpOf(const TestDatabase &db)
{
    QString dump = db.dump();
    dump.remove(QStringLiteral("DELETE FROM sqlite_sequence;\n"));
    return dump;
}

QString integrity()
{
    QSqlQuery q(QStringLiteral("PRAGMA integrity_check"));
    return q.next() ? q.value(0).toString() : QStringLiteral("no answer");
}

class KilledMigration : public ::testing::TestWithParam<const char *>
{
};

TEST_P(KilledMigration, LeavesTheOldOrTheNewFileAndCopy)
{
    TestDatabase db;
    const QString script = readTextFile(QStringLiteral(KESTRUM_SOURCE_DIR "/tests/data/schema_1_1.sql"))
        + QString::fromLatin1(GetParam());
    const QString original = db.path() + QStringLiteral(".orig");
    const QString stepsFile = db.path() + QStringLiteral(".steps");
    const QString backup = DataMigrator::backupFilePath();
    const QByteArray previousCopy = "{\"previous\": {}}";
    ASSERT_TRUE(db.runScript(script));
    db.close();
    ASSERT_TRUE(QFile::copy(db.path(), original));

    // The two states a start may leave: as found, and fully done.
    const QString oldDump = dumpOf(db);
    ASSERT_TRUE(writeTextFile(backup, QString::fromLatin1(previousCopy)));
    const long total = migrateInChild(db.path(), 0, stepsFile);
    ASSERT_GT(total, 50);
    const QString newDump = dumpOf(db);
    const QByteArray newCopy = [&] { QFile f(backup); f.open(QIODevice::ReadOnly); return f.readAll(); }();
    ASSERT_NE(oldDump, newDump);

    QList<long> killPoints;
    for (int i = 1; i <= 24; ++i)
        killPoints << total * i / 25;
    for (int i = 0; i < 16; ++i)
        killPoints << 1 + static_cast<long>(QRandomGenerator::global()->bounded(static_cast<quint32>(total)));
    int killed = 0;
    for (long at : killPoints) {
        QFile::remove(db.path());
        QFile::remove(db.path() + QStringLiteral("-journal"));
        ASSERT_TRUE(QFile::copy(original, db.path()));
        ASSERT_TRUE(writeTextFile(backup, QString::fromLatin1(previousCopy)));
        if (migrateInChild(db.path(), at, stepsFile) < 0)
            ++killed;

        ASSERT_TRUE(db.open());
        EXPECT_EQ(integrity(), QStringLiteral("ok")) << "killed at step " << at;
        db.close();
        const QString dump = dumpOf(db);
        EXPECT_TRUE(dump == oldDump || dump == newDump) << "killed at step " << at << " of " << total << "\n"
                                                        << dump.left(2000).toStdString();
        QFile f(backup);
        ASSERT_TRUE(f.open(QIODevice::ReadOnly));
        const QByteArray copy = f.readAll();
        EXPECT_TRUE(copy == previousCopy || copy == newCopy) << "killed at step " << at;
        // The file is only emptied once its copy is complete.
        if (dump == newDump && newCopy != previousCopy) {
            EXPECT_EQ(copy, newCopy);
        }
    }
    EXPECT_GT(killed, 20);
    ASSERT_TRUE(db.open());
}

INSTANTIATE_TEST_SUITE_P(
    Files, KilledMigration,
    ::testing::Values(
        // An older version: migrated in place.
        "",
        // An older version whose step fails (its meter columns are there
        // already): copied to JSON and emptied.
        "ALTER TABLE MeasurementTable ADD COLUMN calLogId integer;"),
    [](const ::testing::TestParamInfo<const char *> &info) {
        return std::string(info.index == 0 ? "OlderVersion" : "FailedStep");
    });

// A full log with its runs, cycles, calibrations, points and reports.
void fillLogs()
{
    LogRecords::createTables();
    TitrationLogModel::createTable();
    CalibrationLogModel::createTable();
    for (int i = 0; i < 30; ++i) {
        const int run = LogRecords::addRun(QStringLiteral("Titration"), QStringLiteral("pH"), 2).value(QStringLiteral("id")).toInt();
        LogRecords::addReport(QStringLiteral("Titration"), "titrationId", run);
        TestDatabase::exec(QStringLiteral("INSERT INTO titrationLogTable (titration_Id, electrodeSetup_Type, logCreatedAt) "
                                          "VALUES (%1, 'pH', '2026-01-01T00:00:00')").arg(run));
        const int cal = LogRecords::addCalibration(QStringLiteral("pH"), 3).value(QStringLiteral("id")).toInt();
        LogRecords::addReport(QStringLiteral("Calibration"), "calibrationId", cal);
        TestDatabase::exec(QStringLiteral("INSERT INTO calibrationLogTable (calibration_Id, logCreatedAt) "
                                          "VALUES (%1, '2026-01-01T00:00:00')").arg(cal));
    }
}

class KilledLogDeletion : public ::testing::TestWithParam<int>
{
};

TEST_P(KilledLogDeletion, LeavesTheLogWholeOrEmpty)
{
    const auto work = [log = GetParam()] {
        if (log == LogTables::Titration)
            LogTables::deleteTitrationLog();
        else
            LogTables::deleteCalibrationLog();
    };
    TestDatabase db;
    fillLogs();
    db.close();
    const QString original = db.path() + QStringLiteral(".orig");
    const QString stepsFile = db.path() + QStringLiteral(".steps");
    ASSERT_TRUE(QFile::copy(db.path(), original));
    const QString whole = dumpOf(db);
    const long total = runInChild(db.path(), 0, stepsFile, work);
    ASSERT_GT(total, 50);
    const QString emptied = dumpOf(db);
    ASSERT_NE(whole, emptied);

    int killed = 0;
    for (int i = 1; i <= 20; ++i) {
        const long at = total * i / 21;
        QFile::remove(db.path());
        QFile::remove(db.path() + QStringLiteral("-journal"));
        ASSERT_TRUE(QFile::copy(original, db.path()));
        if (runInChild(db.path(), at, stepsFile, work) < 0)
            ++killed;
        ASSERT_TRUE(db.open());
        EXPECT_EQ(integrity(), QStringLiteral("ok")) << "killed at step " << at;
        db.close();
        const QString dump = dumpOf(db);
        EXPECT_TRUE(dump == whole || dump == emptied) << "killed at step " << at << " of " << total;
    }
    EXPECT_GT(killed, 15);
    ASSERT_TRUE(db.open());
}

INSTANTIATE_TEST_SUITE_P(Logs, KilledLogDeletion, ::testing::Values(int(LogTables::Titration), int(LogTables::Calibration)),
                         [](const ::testing::TestParamInfo<int> &info) {
                             return std::string(info.param == LogTables::Titration ? "Titration" : "Calibration");
                         });

} // namespace
