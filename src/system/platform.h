#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

class QObject;
class QProcess;

// The one place that knows which profile the program runs in.
//
// Target profile: every fixed path and device node is used as written
// ("/var/KestrumDB", "/dev/ttymxc2") and system commands run for real.
// Host profile (the default build): every absolute path is rooted under a
// sandbox directory, and only harmless commands (cp, mkdir, find, chmod, ls)
// run; everything that changes the machine (reboot, service restart, clock,
// mount, network, flashing the slave) is recorded and answered with a
// simulated result, so a developer machine running as root stays safe.
class Platform
{
public:
    struct Result {
        bool started = false;   // the program could be started (or was simulated)
        bool simulated = false; // host profile: recorded, not run
        int exitCode = -1;
        QByteArray standardOutput;
        QByteArray standardError;
        bool ok() const { return started && exitCode == 0; }
    };

    static bool isTarget();
    // Whether the program may open sockets on a network: always on the target;
    // on a development host only inside a network namespace made for it (its
    // maker sets KESTRUM_NETNS=1, as tests/integration/in-netns.sh does), so
    // nothing a host build or its tests do reaches the machine's own network.
    static bool mayUseNetwork();

    // Maps a fixed target path ("/var/KestrumDB") to the path used here.
    static QString path(const QString &targetPath);
    // The sandbox root of the host profile ("" on the target).
    static QString sandboxRoot();
    // Host profile only: points the layer at another sandbox (tests do this).
    static void setSandboxRoot(const QString &root);
    // Host profile: creates the sandbox and the target's fixed folders in it
    // ("/var/Kestrum/log", "/dev", "/media/usb"...). Nothing on the target.
    static void prepareSandbox();

    // Runs a command with an argument list (never a shell string built from
    // data) and waits up to timeoutMs.
    static Result run(const QString &program, const QStringList &arguments, int timeoutMs);
    // Writes a text into a device file of the kernel (a sysfs attribute such
    // as "/sys/class/pwm/pwmchip0/pwm0/period") as one write, no shell. On a
    // host the file in the sandbox is written and the write is recorded as
    // "write PATH TEXT" beside the commands. False when the file can't be
    // written (logged).
    static bool writeDeviceFile(const QString &targetPath, const QByteArray &text);
    // Starts a command without waiting for it.
    static bool startDetached(const QString &program, const QStringList &arguments);

    // Host profile: the commands recorded instead of run, one line each, in
    // the order asked ("systemctl restart b2qt"). Also kept in the sandbox
    // file "/var/Kestrum/platform-commands.log".
    static QStringList recordedCommands();
    static void clearRecordedCommands();
    // Host profile: the answer a simulated program gives (default: exit 0, no output).
    static void setSimulatedResult(const QString &program, const Result &result);

    // A volume is mounted at mountPoint, valid, ready and writable. On the
    // target the system's mount table is read; on a host the mounts it
    // simulated: a simulated `mount DEVICE POINT` that answers 0 mounts the
    // folder POINT (and makes it writable, as the stick's own root is), a
    // simulated `umount POINT` takes it off or answers "not mounted".
    static bool isWritableMount(const QString &mountPoint);

    // The kernel's id of the current boot (read in both profiles: reading it
    // changes nothing). Empty when it can't be read.
    static QString bootId();

    // Whether the host profile would run this program for real.
    static bool runsForReal(const QString &program);

    // Starts a long command that reports by signals (the slave's flash tool,
    // the copy of update files) with an argument list; the caller connects
    // to the process and deletes it. Host profile: a program that would
    // change the machine is recorded; the executable of the same name in
    // standInFolder() runs in its place with the same arguments (tests put a
    // script there), or, without one, a process that just ends with the
    // simulated exit code.
    static QProcess *start(const QString &program, const QStringList &arguments, QObject *parent);
    // Host profile: "<sandbox>/host-stand-ins" ("" on the target).
    static QString standInFolder();

    // Where the application's program is installed ("/opt/Kestrum/bin/Kestrum").
    static QString programPath();
    // A file may replace the program: executable, and on the target an ELF
    // file for the machine this program was built for. `why` says what is wrong.
    static bool isProgramForThisBoard(const QString &file, QString *why);
    // The machine field of an ELF header (40 ARM, 183 AArch64, 62 x86-64),
    // -1 when the bytes are no ELF header.
    static int elfMachine(const QByteArray &head);
    // The ELF machine this program was built for.
    static int ownElfMachine();
};
