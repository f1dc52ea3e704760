// Back-to-back runs stored with their log entries while the titration log is
// full (each run drops the oldest entry), and methods saved and deleted in
// between, in a child process killed with SIGKILL at spread SQLite steps,
// most of them inside a transaction or a method save. After each kill the file is sound, no
// method lacks one of its three parts, and no run lacks its log entry.
#include "datamanagerbase.h"
#include "models/methoddraft.h"
#include "models/runwithlog.h"
#include "models/titrationlogmodel.h"
#include "models/titrationmodel.h"
#include "killedchild.h"
#include "testdatabase.h"

#include <QFile>
#include <QSqlQuery>
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr int kKills = 20;
constexpr int kRunsPerChild = 3;

long g_steps = 0;
long g_killAt = 0;
// Which step the kill is due at: a step of all the work (at once, or at the
// first step after it inside a transaction), or a step of the method saves.
enum class KillWhen { AtOnce, InTransaction, InMethodSave };
KillWhen g_when = KillWhen::AtOnce;
bool g_inMethodSave = false;
long g_saveSteps = 0;
const char *g_markFile = nullptr;

// Dies when the kill is due; notes whether a transaction was open.
void countOrKill(sqlite3 *db)
{
    ++g_steps;
    g_saveSteps += g_inMethodSave ? 1 : 0;
    const long step = g_when == KillWhen::InMethodSave ? (g_inMethodSave ? g_saveSteps : 0) : g_steps;
    if (g_killAt <= 0 || step < g_killAt)
        return;
    const bool inTransaction = sqlite3_get_autocommit(db) == 0;
    if (g_when == KillWhen::InTransaction && !inTransaction)
        return;
    const int fd = ::open(g_markFile, O_WRONLY | O_CREAT | O_TRUNC, 0600);
    if (fd >= 0) {
        (void)!::write(fd, inTransaction ? "T" : "A", 1);
        ::close(fd);
    }
    ::raise(SIGKILL);
}

// What the summary path of a run does, `runs` times, each run after the save
// of a new method and the deletion of the one saved before.
void storeRuns(int runs)
{
    DataManagerBase dm;
    dm.DataManagerLegacyInit();
    const int methodId = MethodDraft::findByName(QStringLiteral("Acidity"));
    dm.reInitializeMethodModel(methodId);
    int churn = 0;
    for (int i = 0; i < runs; ++i) {
        QString error;
        if (churn > 0)
            dm.methodModel()->deleteRow(churn);
        g_inMethodSave = true;
        churn = MethodDraft().save(QStringLiteral("Churn"), &error);
        g_inMethodSave = false;
        TitrationModel *run = dm.titrationModel();
        run->setCycleno(1);
        run->setTitrationType(QStringLiteral("Titration"));
        run->setMethodName(dm.methodModel()->methodName());
        run->setMethodId(methodId);
        const float results[3] = {0.1f, 0.0f, 0.0f};
        const float volumes[3] = {10.0f, 0.0f, 0.0f};
        run->updateTitrationCompletion(results, volumes);
        TitrationLogModel log;
        dm.attachLogModel(&log);
        RunWithLog::storeTitration(run, &log, false, true);
        dm.initializeTitration();
    }
}

// The runs in a child process on its own connection; the steps it got
// through (of all the work, or of the method saves), or -1 when it was killed.
long runInChild(const QString &dbPath, long killAt, KillWhen when, const QString &stepsFile)
{
    const QByteArray mark = (dbPath + QStringLiteral(".mark")).toLocal8Bit();
    g_steps = 0;
    g_saveSteps = 0;
    g_killAt = killAt;
    g_when = when;
    g_markFile = mark.constData();
    const bool killed = KilledChild::run(dbPath, &countOrKill, [&] {
        storeRuns(kRunsPerChild);
        writeTextFile(stepsFile, QStringLiteral("%1 %2").arg(g_steps).arg(g_saveSteps));
    });
    if (killed)
        return -1;
    return readTextFile(stepsFile).section(QLatin1Char(' '), when == KillWhen::InMethodSave ? 1 : 0, 0).toLong();
}

long count(const QString &sql)
{
    QSqlQuery q;
    return q.exec(sql) && q.next() ? q.value(0).toLongLong() : -1;
}

TEST(KilledRuns, LeaveEveryMethodWholeAndEveryRunWithItsLogEntry)
{
    TestDatabase db;
    {
        QString error;
        ASSERT_GT(MethodDraft().save(QStringLiteral("Acidity"), &error), 0) << error.toStdString();
        // A full log: from here on every run drops the oldest entry.
        DataManagerBase dm;
        dm.DataManagerLegacyInit();
        dm.reInitializeMethodModel(MethodDraft::findByName(QStringLiteral("Acidity")));
        for (int i = 0; i < 100; ++i) {
            TitrationModel *run = dm.titrationModel();
            run->setCycleno(1);
            run->setTitrationType(QStringLiteral("Titration"));
            run->setMethodId(dm.methodModel()->id());
            const float v[3] = {10.0f, 0.0f, 0.0f};
            run->updateTitrationCompletion(v, v);
            TitrationLogModel log;
            dm.attachLogModel(&log);
            ASSERT_TRUE(RunWithLog::storeTitration(run, &log, false, false));
            dm.initializeTitration();
        }
    }
    ASSERT_EQ(count(QStringLiteral("SELECT count(*) FROM titrationLogTable")), 100);
    db.close();
    const QString original = db.path() + QStringLiteral(".orig");
    const QString stepsFile = db.path() + QStringLiteral(".steps");
    const QString mark = db.path() + QStringLiteral(".mark");
    ASSERT_TRUE(QFile::copy(db.path(), original));

    const long total = runInChild(db.path(), 0, KillWhen::AtOnce, stepsFile);
    const long saveTotal = readTextFile(stepsFile).section(QLatin1Char(' '), 1, 1).toLong();
    ASSERT_GT(total, 1000);
    ASSERT_GT(saveTotal, 100);
    ASSERT_TRUE(db.open());
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM titrationLogTable")), 100) << "pruning keeps the log full";
    db.close();

    int killed = 0;
    int insideTransactions = 0;
    for (int k = 0; k < kKills; ++k) {
        QFile::remove(db.path());
        QFile::remove(db.path() + QStringLiteral("-journal"));
        QFile::remove(mark);
        ASSERT_TRUE(QFile::copy(original, db.path()));
        // Spread over the whole work; two kills in three wait for a
        // transaction or for the next method save.
        const KillWhen when = KillWhen(k % 3);
        const long at = 1 + (when == KillWhen::InMethodSave ? saveTotal : total) * (2 * k + 1) / (2 * kKills);
        if (runInChild(db.path(), at, when, stepsFile) < 0)
            ++killed;
        insideTransactions += readTextFile(mark) == QLatin1String("T") ? 1 : 0;

        ASSERT_TRUE(db.open());
        QSqlQuery integrity(QStringLiteral("PRAGMA integrity_check"));
        ASSERT_TRUE(integrity.next());
        EXPECT_EQ(integrity.value(0).toString(), QStringLiteral("ok")) << "killed at step " << at;
        for (const char *part : {"electrodeSetupTable", "titrantSetupTable", "titrationSetupTable"}) {
            EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM methodSetupTable m WHERE "
                                           "(SELECT count(*) FROM %1 p WHERE p.methodId = m.id) != 1").arg(QLatin1String(part))),
                      0)
                << "a method without its " << part << ", killed at step " << at;
            EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM %1 p WHERE p.methodId NOT IN "
                                           "(SELECT id FROM methodSetupTable)").arg(QLatin1String(part))),
                      0)
                << "a " << part << " row without its method, killed at step " << at;
        }
        EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM titrationTable t WHERE NOT EXISTS "
                                       "(SELECT 1 FROM titrationLogTable l WHERE l.titration_Id = t.id)")),
                  0)
            << "a run without its log entry, killed at step " << at;
        EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM titrationLogTable l WHERE NOT EXISTS "
                                       "(SELECT 1 FROM titrationTable t WHERE t.id = l.titration_Id)")),
                  0)
            << "a log entry without its run, killed at step " << at;
        EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM titrationCycleTable c WHERE c.titrationId NOT IN "
                                       "(SELECT id FROM titrationTable)")),
                  0)
            << "a cycle without its run, killed at step " << at;
        EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM titrationLogTable")), 100) << "killed at step " << at;
        db.close();
    }
    EXPECT_EQ(killed, kKills);
    EXPECT_GE(insideTransactions, kKills / 2) << "kills that landed inside a transaction";
    ASSERT_TRUE(db.open());
}

} // namespace
