#include "testsupport.h"

#include <QProcess>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QThread>

TempSandbox::TempSandbox()
    : m_previous(Platform::sandboxRoot())
{
    Platform::setSandboxRoot(m_dir.path());
    Platform::prepareSandbox();
    Platform::clearRecordedCommands();
}

TempSandbox::~TempSandbox()
{
    Platform::setSandboxRoot(m_previous);
}

bool waitUntil(const std::function<bool()> &pred, int timeoutMs)
{
    QElapsedTimer timer;
    timer.start();
    while (!pred()) {
        if (timer.elapsed() > timeoutMs)
            return pred();
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        QThread::msleep(1);
    }
    return true;
}

QString readTextFile(const QString &path)
{
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly | QIODevice::Text))
        return QString();
    return QString::fromUtf8(f.readAll());
}

bool writeTextFile(const QString &path, const QString &text)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile f(path);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Text))
        return false;
    return f.write(text.toUtf8()) >= 0;
}

namespace {

QString runProgram(const QString &program, const QStringList &args, int *exitCode, const QString &dir)
{
    QProcess p;
    if (!dir.isEmpty())
        p.setWorkingDirectory(dir);
    p.start(program, args);
    if (!p.waitForStarted(10000)) {
        *exitCode = -1;
        return QStringLiteral("%1: cannot be started").arg(program);
    }
    if (!p.waitForFinished(300000))
        p.kill();
    *exitCode = p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
    return QString::fromLocal8Bit(p.readAllStandardOutput() + p.readAllStandardError());
}

} // namespace

QString runVantorCli(const QStringList &args, int *exitCode, const QString &dir)
{
    return runProgram(QStringLiteral(KESTRUM_BIN_DIR "/vantor-cli"), args, exitCode, dir);
}

QString runVantorCliReadOnly(const QString &file, const QStringList &args, int *exitCode)
{
    const QString mountReadOnly = QStringLiteral(
        "mount --bind \"$1\" \"$1\" && mount -o remount,bind,ro \"$1\" || { echo 'unshare: no read-only mount'; exit 99; }; "
        "shift; exec \"$@\"");
    return runProgram(QStringLiteral("unshare"),
                      QStringList{QStringLiteral("-rm"), QStringLiteral("sh"), QStringLiteral("-c"), mountReadOnly,
                                  QStringLiteral("sh"), file, QStringLiteral(KESTRUM_BIN_DIR "/vantor-cli")} + args,
                      exitCode, QString());
}
