#include "system/platform.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QProcess>

namespace {

struct HostState {
    QString root;
    QStringList recorded;
    QHash<QString, Platform::Result> simulated;
};

HostState &host()
{
    static HostState state;
    if (state.root.isEmpty()) {
        // A development aid of the host profile only: lets a developer or an
        // end-to-end test run the application in another sandbox.
        const QByteArray env = qgetenv("KESTRUM_SANDBOX");
        state.root = QDir::cleanPath(QDir(env.isEmpty() ? QStringLiteral(KESTRUM_DEFAULT_SANDBOX)
                                                        : QString::fromLocal8Bit(env)).absolutePath());
    }
    return state;
}

QString commandLine(const QString &program, const QStringList &arguments)
{
    QStringList parts{program};
    parts += arguments;
    return parts.join(QLatin1Char(' '));
}

void record(const QString &line)
{
    HostState &state = host();
    state.recorded.append(line);
    const QString logPath = Platform::path(QStringLiteral("/var/Kestrum/platform-commands.log"));
    QDir().mkpath(QFileInfo(logPath).absolutePath());
    QFile log(logPath);
    if (log.open(QIODevice::Append | QIODevice::Text)) {
        log.write(QDateTime::currentDateTime().toString(Qt::ISODate).toUtf8() + ' ' + line.toUtf8() + '\n');
    }
    qDebug() << "Platform (host): not run, recorded:" << line;
}

} // namespace

bool Platform::isTarget()
{
#ifdef KESTRUM_TARGET_PROFILE
    return true;
#else
    return false;
#endif
}

bool Platform::mayUseNetwork()
{
    return isTarget() || qgetenv("KESTRUM_NETNS") == "1";
}

QString Platform::sandboxRoot()
{
    return isTarget() ? QString() : host().root;
}

void Platform::setSandboxRoot(const QString &root)
{
    if (isTarget()) {
        qWarning() << "Platform: the target profile has no sandbox";
        return;
    }
    // A relative root is taken from the working directory now, once: device
    // names below it must be absolute (a serial port named without a leading
    // "/" is looked for under /dev).
    host().root = root.isEmpty() ? root : QDir::cleanPath(QDir(root).absolutePath());
}

void Platform::prepareSandbox()
{
    if (isTarget())
        return;
    for (const char *dir : {"/var/Kestrum/log", "/dev", "/media/usb", "/opt/www", "/sys/class/pwm/pwmchip0"})
        QDir().mkpath(path(QString::fromLatin1(dir)));
}

QString Platform::path(const QString &targetPath)
{
    if (isTarget() || !targetPath.startsWith(QLatin1Char('/')))
        return targetPath;
    // Keep a trailing "/" of the target path: callers build names on it.
    return host().root + targetPath;
}

QString Platform::bootId()
{
    QFile file(QStringLiteral("/proc/sys/kernel/random/boot_id"));
    if (!file.open(QIODevice::ReadOnly))
        return QString();
    return QString::fromLatin1(file.read(64)).trimmed();
}

bool Platform::runsForReal(const QString &program)
{
    if (isTarget())
        return true;
    static const QStringList harmless{QStringLiteral("cp"), QStringLiteral("mkdir"), QStringLiteral("find"),
                                      QStringLiteral("chmod"), QStringLiteral("ls")};
    return harmless.contains(program);
}

Platform::Result Platform::run(const QString &program, const QStringList &arguments, int timeoutMs)
{
    if (!runsForReal(program)) {
        record(commandLine(program, arguments));
        Result result = host().simulated.value(program, Result{true, true, 0, {}, {}});
        result.started = true;
        result.simulated = true;
        return result;
    }
    Result result;
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForStarted(timeoutMs)) {
        qDebug() << "Platform: could not start" << commandLine(program, arguments) << process.errorString();
        return result;
    }
    result.started = true;
    if (!process.waitForFinished(timeoutMs)) {
        qDebug() << "Platform: timed out after" << timeoutMs << "ms:" << commandLine(program, arguments);
        process.kill();
        process.waitForFinished(1000);
    }
    result.exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    result.standardOutput = process.readAllStandardOutput();
    result.standardError = process.readAllStandardError();
    return result;
}

bool Platform::startDetached(const QString &program, const QStringList &arguments)
{
    if (!runsForReal(program) && program != QCoreApplication::applicationFilePath()) {
        record(commandLine(program, arguments));
        return true;
    }
    return QProcess::startDetached(program, arguments);
}

QStringList Platform::recordedCommands()
{
    return host().recorded;
}

void Platform::clearRecordedCommands()
{
    host().recorded.clear();
}

void Platform::setSimulatedResult(const QString &program, const Result &result)
{
    host().simulated.insert(program, result);
}
