// The start of the whole application as the user sees it: from the process
// start to the home screen on show, through the UI driver's socket; and a
// section switch of the side bar, from the tap to its frame drawn.
// Each start is a process of its own (build/bin/Kestrum) on a sandbox whose
// first start is done, on the display (an Xvfb of its own when there is
// none, as scripts/run does), so the figure includes the renderer's start.
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocalSocket>
#include <QProcess>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QThread>
#include <benchmark/benchmark.h>

#include <chrono>

namespace {

QString g_display; // an Xvfb of our own, when there was no display

struct Start {
    QProcess process;
    QLocalSocket socket;
};

QProcessEnvironment environmentFor(const QString &sandbox)
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("KESTRUM_SANDBOX"), sandbox);
    env.insert(QStringLiteral("KESTRUM_UI_DRIVER"), QStringLiteral("1"));
    if (!g_display.isEmpty())
        env.insert(QStringLiteral("DISPLAY"), g_display);
    return env;
}

// Sends one driver command; its answer's "ok".
bool command(QLocalSocket &socket, const QByteArray &line, int timeoutMs = 30000)
{
    socket.write(line + '\n');
    socket.flush();
    QElapsedTimer t;
    t.start();
    while (!socket.canReadLine() && t.elapsed() < timeoutMs)
        socket.waitForReadyRead(5);
    return QJsonDocument::fromJson(socket.readLine()).object().value(QStringLiteral("ok")).toBool();
}

// Sends one driver command; its answer's text as a number.
bool answer(QLocalSocket &socket, const QByteArray &line, double *value)
{
    socket.write(line + '\n');
    socket.flush();
    QElapsedTimer t;
    t.start();
    while (!socket.canReadLine() && t.elapsed() < 30000)
        socket.waitForReadyRead(5);
    const QJsonObject o = QJsonDocument::fromJson(socket.readLine()).object();
    bool isNumber = false;
    *value = o.value(QStringLiteral("text")).toString().toDouble(&isNumber);
    return o.value(QStringLiteral("ok")).toBool() && isNumber;
}

// Starts the application; true once the driver answers that `text` is on show.
bool startUntil(Start &s, const QString &sandbox, const QByteArray &text)
{
    s.process.setProcessEnvironment(environmentFor(sandbox));
    s.process.setStandardOutputFile(QProcess::nullDevice());
    s.process.setStandardErrorFile(QProcess::nullDevice());
    s.process.start(QStringLiteral(KESTRUM_BIN_DIR "/Kestrum"), QStringList());
    const QString path = sandbox + QStringLiteral("/run/ui.sock");
    QElapsedTimer t;
    t.start();
    while (t.elapsed() < 30000) {
        s.socket.connectToServer(path);
        if (s.socket.waitForConnected(50))
            return command(s.socket, "wait " + text + " 30");
        QThread::msleep(2);
    }
    return false;
}

void stop(Start &s)
{
    s.socket.disconnectFromServer();
    s.process.kill();
    s.process.waitForFinished(5000);
}

// A sandbox after its first start, marked as set up.
bool prepare(const QString &sandbox)
{
    {
        Start s;
        const bool ok = startUntil(s, sandbox, "Start Setup");
        stop(s);
        if (!ok)
            return false;
    }
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("bench"));
        db.setDatabaseName(sandbox + QStringLiteral("/var/KestrumDB"));
        if (!db.open())
            return false;
        QSqlQuery(db).exec(QStringLiteral("UPDATE setupTable SET isDataUpdated = 1"));
        db.close();
    }
    QSqlDatabase::removeDatabase(QStringLiteral("bench"));
    return true;
}

void BM_StartToHomeScreen(benchmark::State &state)
{
    QTemporaryDir sandbox;
    if (!prepare(sandbox.path())) {
        state.SkipWithError("the application did not come up");
        return;
    }
    for (auto _ : state) {
        Start s;
        const auto begin = std::chrono::steady_clock::now();
        const bool ok = startUntil(s, sandbox.path(), "Home");
        const auto end = std::chrono::steady_clock::now();
        stop(s);
        if (!ok) {
            state.SkipWithError("the home screen did not show");
            return;
        }
        state.SetIterationTime(std::chrono::duration<double>(end - begin).count());
    }
}
BENCHMARK(BM_StartToHomeScreen)->UseManualTime()->Iterations(3)->Unit(benchmark::kMillisecond);

// Home to Settings and back by the side bar: the time from each tap to the
// swap of the frame that shows the page (the driver's `frame`), no picture
// taken.
void BM_SectionSwitch(benchmark::State &state)
{
    QTemporaryDir sandbox;
    Start s;
    if (!prepare(sandbox.path()) || !startUntil(s, sandbox.path(), "Home")) {
        stop(s);
        state.SkipWithError("the application did not come up");
        return;
    }
    for (auto _ : state) {
        double there = -1;
        double back = -1;
        const bool ok = command(s.socket, "tap #settingsButton") && answer(s.socket, "frame", &there)
                        && command(s.socket, "expect Settings") && command(s.socket, "tap #homeButton")
                        && answer(s.socket, "frame", &back) && command(s.socket, "expect Home");
        if (!ok || there < 0 || back < 0) {
            state.SkipWithError("the switch did not show its page");
            break;
        }
        state.SetIterationTime((there + back) / 2 / 1000);
    }
    stop(s);
}
BENCHMARK(BM_SectionSwitch)->UseManualTime()->Iterations(20)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    QProcess xvfb;
    if (qEnvironmentVariableIsEmpty("DISPLAY")) {
        for (int n = 150; n < 250 && g_display.isEmpty(); ++n) {
            if (QFile::exists(QStringLiteral("/tmp/.X%1-lock").arg(n)))
                continue;
            xvfb.start(QStringLiteral("Xvfb"), {QStringLiteral(":%1").arg(n), QStringLiteral("-screen"), QStringLiteral("0"),
                                                QStringLiteral("640x480x24"), QStringLiteral("-nolisten"), QStringLiteral("tcp")});
            if (xvfb.waitForStarted(2000)) {
                g_display = QStringLiteral(":%1").arg(n);
                QThread::msleep(500);
            }
        }
    }
    benchmark::RunSpecifiedBenchmarks();
    xvfb.terminate();
    xvfb.waitForFinished(2000);
    return 0;
}
