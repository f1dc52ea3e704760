// Start-up of the back end, from the program's entry to the moment the user
// interface would be loaded: the database opened, its version checked by the
// migrator, the application object, the data manager with its models, and
// the slave and burette controllers.
// A singleton exists once per process, so each start is a process of its
// own: this program started again with --startup-child, on a sandbox whose
// database the first start has made. The user interface (QML engine, splash,
// main.qml) is not part of the figure.
#include "appconstants.h"
#include "controller/burettecontroller.h"
#include "controller/mspcontroller.h"
#include "datamanagerbase.h"
#include "datamigrator.h"
#include "system/platform.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QSqlDatabase>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdio>
#include <cstring>

namespace {

const char kChildFlag[] = "--startup-child";

void quiet(QtMsgType, const QMessageLogContext &, const QString &)
{
}

// The start as main() does it, up to the load of main.qml. Prints
// "ok <µs>" when the database was usable as found, "restart <µs>" when it
// had to be rebuilt first.
int startupChild(int argc, char **argv, const char *sandbox)
{
    QElapsedTimer timer;
    timer.start();
    qInstallMessageHandler(quiet);
    Platform::setSandboxRoot(QString::fromLocal8Bit(sandbox));

    Platform::prepareSandbox();
    QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"));
    db.setDatabaseName(Platform::path(QStringLiteral(DATABASE_FILE_NAME)));
    const bool opened = db.open();
    const bool usable = DataMigrator::dmPtr()->migrate();
    if (!usable)
        DataMigrator::dmPtr()->restartApp();

    QCoreApplication app(argc, argv);
    DataManagerBase *dm = DataManagerBase::dmPtr();
    mspController *msp = mspController::mspcPtr();
    BuretteController *bc = BuretteController::bcPtr();
    dm->setTitrationQMLCoreVersion(dm->getTitrationCoreVersion());
    const qint64 ns = timer.nsecsElapsed();

    if (!opened || !dm || !msp || !bc)
        return 2;
    std::printf("%s %lld\n", usable ? "ok" : "restart", (long long)(ns / 1000));
    return 0;
}

struct ChildResult
{
    bool ok = false;
    QString state;
    double seconds = 0.0; // from the entry of main() to the UI load
};

ChildResult runChild(const QString &sandbox)
{
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), {QLatin1String(kChildFlag), sandbox});
    ChildResult r;
    if (!child.waitForFinished(30000) || child.exitStatus() != QProcess::NormalExit || child.exitCode() != 0)
        return r;
    const QStringList words = QString::fromLocal8Bit(child.readAllStandardOutput()).split(QLatin1Char(' '));
    if (words.size() != 2)
        return r;
    r.state = words.at(0);
    r.seconds = words.at(1).trimmed().toDouble(&r.ok) / 1e6;
    return r;
}

// A sandbox whose database the first start has made, shared by the
// benchmarks of this program; "" when the child did not come up.
QString startedSandbox()
{
    static QTemporaryDir dir;
    static const bool ready = [] {
        if (!dir.isValid())
            return false;
        runChild(dir.path());
        const ChildResult second = runChild(dir.path());
        return second.ok && second.state == QLatin1String("ok");
    }();
    return ready ? dir.path() : QString();
}

// Inside the process: what the back end costs from main() on.
void BM_StartupBackEnd(benchmark::State &state)
{
    const QString sandbox = startedSandbox();
    if (sandbox.isEmpty()) {
        state.SkipWithError("the start-up child did not come up");
        return;
    }
    for (auto _ : state) {
        const ChildResult r = runChild(sandbox);
        if (!r.ok || r.state != QLatin1String("ok")) {
            state.SkipWithError("the start-up child failed");
            return;
        }
        state.SetIterationTime(r.seconds);
    }
}
BENCHMARK(BM_StartupBackEnd)->UseManualTime()->Unit(benchmark::kMillisecond);

// The whole process: loading the program and its libraries, the back end,
// and the exit.
void BM_StartupProcess(benchmark::State &state)
{
    const QString sandbox = startedSandbox();
    if (sandbox.isEmpty()) {
        state.SkipWithError("the start-up child did not come up");
        return;
    }
    for (auto _ : state) {
        const auto t0 = std::chrono::steady_clock::now();
        const ChildResult r = runChild(sandbox);
        const auto t1 = std::chrono::steady_clock::now();
        if (!r.ok) {
            state.SkipWithError("the start-up child failed");
            return;
        }
        state.SetIterationTime(std::chrono::duration<double>(t1 - t0).count());
    }
}
BENCHMARK(BM_StartupProcess)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    if (argc == 3 && std::strcmp(argv[1], kChildFlag) == 0)
        return startupChild(argc, argv, argv[2]);

    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
