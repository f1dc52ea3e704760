#include "system/platform.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QProcess>
#include <QSet>
#include <QStorageInfo>

namespace {

struct HostState {
    QString root;
    QStringList recorded;
    QHash<QString, Platform::Result> simulated;
    QSet<QString> mounts;
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

// The mount table of the host profile: what the simulated mount and umount did.
void simulateMount(const QString &program, const QStringList &arguments, Platform::Result *result)
{
    QSet<QString> &mounts = host().mounts;
    if (program == QLatin1String("mount") && arguments.size() >= 2 && result->exitCode == 0) {
        const QString point = QDir::cleanPath(arguments.last());
        mounts.insert(point);
        QFile::setPermissions(point, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner
                                         | QFileDevice::ReadGroup | QFileDevice::ExeGroup | QFileDevice::ReadOther
                                         | QFileDevice::ExeOther);
    } else if (program == QLatin1String("umount") && arguments.size() == 1 && result->exitCode == 0) {
        if (!mounts.remove(QDir::cleanPath(arguments.first()))) {
            result->exitCode = 32;
            result->standardError = "umount: " + arguments.first().toUtf8() + ": not mounted.";
        }
    }
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
        log.write(QDateTime::currentDateTime().toString(Qt::ISODateWithMs).toUtf8() + ' ' + line.toUtf8() + '\n');
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
    // /dev/bus/usb/002 is the bus of the device port while no host computer is attached.
    for (const char *dir : {"/var/Kestrum/log", "/dev/bus/usb/002", "/media/usb", "/opt/www", "/sys/class/pwm/pwmchip0/pwm0"})
        QDir().mkpath(path(QString::fromLatin1(dir)));
}

QString Platform::path(const QString &targetPath)
{
    if (isTarget() || !targetPath.startsWith(QLatin1Char('/')))
        return targetPath;
    // Keep a trailing "/" of the target path: callers build names on it.
    return host().root + targetPath;
}

bool Platform::isWritableMount(const QString &mountPoint)
{
    const QString point = QDir::cleanPath(mountPoint);
    if (!isTarget())
        return host().mounts.contains(point) && QFileInfo(point).isDir();
    const auto volumes = QStorageInfo::mountedVolumes();
    for (const QStorageInfo &volume : volumes) {
        if (QDir::cleanPath(volume.rootPath()) == point && volume.isValid() && volume.isReady() && !volume.isReadOnly())
            return true;
    }
    return false;
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
        simulateMount(program, arguments, &result);
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

bool Platform::writeDeviceFile(const QString &targetPath, const QByteArray &text)
{
    QFile file(path(targetPath));
    // Unbuffered: a kernel attribute takes one write() of the whole text.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || file.write(text + '\n') != text.size() + 1) {
        qDebug() << "Platform: could not write" << text << "to" << targetPath << file.errorString();
        return false;
    }
    if (!isTarget())
        record(QStringLiteral("write %1 %2").arg(targetPath, QString::fromLatin1(text)));
    return true;
}

bool Platform::startDetached(const QString &program, const QStringList &arguments)
{
    if (!runsForReal(program) && program != QCoreApplication::applicationFilePath()) {
        record(commandLine(program, arguments));
        return true;
    }
    return QProcess::startDetached(program, arguments);
}

QProcess *Platform::start(const QString &program, const QStringList &arguments, QObject *parent)
{
    auto *process = new QProcess(parent);
    if (runsForReal(program)) {
        process->start(program, arguments);
        return process;
    }
    record(commandLine(program, arguments));
    const QString standIn = standInFolder() + QLatin1Char('/') + QFileInfo(program).fileName();
    if (QFileInfo(standIn).isExecutable()) {
        process->start(standIn, arguments);
    } else {
        const int exitCode = host().simulated.value(program, Result{true, true, 0, {}, {}}).exitCode;
        process->start(exitCode == 0 ? QStringLiteral("true") : QStringLiteral("false"), QStringList());
    }
    return process;
}

QString Platform::standInFolder()
{
    return isTarget() ? QString() : host().root + QStringLiteral("/host-stand-ins");
}

QString Platform::programPath()
{
    return path(QStringLiteral("/opt/Kestrum/bin/Kestrum"));
}

int Platform::elfMachine(const QByteArray &head)
{
    // e_ident: magic, class (1: 32 bits, 2: 64), data (1: little endian, 2: big); e_machine at 18.
    if (head.size() < 20 || !head.startsWith("\x7f" "ELF") || (head.at(4) != 1 && head.at(4) != 2))
        return -1;
    const auto lo = static_cast<unsigned char>(head.at(18));
    const auto hi = static_cast<unsigned char>(head.at(19));
    if (head.at(5) == 1)
        return lo | (hi << 8);
    if (head.at(5) == 2)
        return hi | (lo << 8);
    return -1;
}

int Platform::ownElfMachine()
{
#if defined(__aarch64__)
    return 183;
#elif defined(__arm__)
    return 40;
#elif defined(__x86_64__)
    return 62;
#elif defined(__i386__)
    return 3;
#else
    return -1;
#endif
}

bool Platform::isProgramForThisBoard(const QString &file, QString *why)
{
    const QFileInfo info(file);
    if (!info.isFile() || !info.isExecutable()) {
        *why = QStringLiteral("not an executable file");
        return false;
    }
    // A host sandbox takes any executable: its program is never started.
    if (!isTarget())
        return true;
    QFile f(file);
    if (!f.open(QIODevice::ReadOnly)) {
        *why = f.errorString();
        return false;
    }
    const int machine = elfMachine(f.read(64));
    if (machine != ownElfMachine()) {
        *why = machine < 0 ? QStringLiteral("not a program (no ELF header)")
                           : QStringLiteral("a program for another machine (ELF machine %1)").arg(machine);
        return false;
    }
    return true;
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
