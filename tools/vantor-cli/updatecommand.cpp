#include "updatecommand.h"

#include "system/softwareupdater.h"
#include "system/updateversion.h"

#include <QDir>
#include <QTextStream>

QString UpdateCommand::usage()
{
    return QStringLiteral("usage: vantor-cli update FOLDER [--application BUILD] [--slave VERSION]\n"
                          "  Lists the update files in FOLDER (a USB disk's root) with their versions, and which\n"
                          "  the instrument would take: one line each \"KIND NAME VERSION newer|not newer\", then\n"
                          "  \"chosen: ...\". Files the instrument leaves out (too large, past the 200th) are not\n"
                          "  listed. Nothing is copied or installed.\n"
                          "  --application BUILD  the running program's build (default: this build, V" KESTRUM_VERSION ")\n"
                          "  --slave VERSION      the slave's firmware version (default 0.0: any firmware is newer)\n");
}

int UpdateCommand::run(const QStringList &args, QTextStream &out, QTextStream &err)
{
    QString folder;
    QString application = QStringLiteral("V" KESTRUM_VERSION);
    QString slave = QStringLiteral("0.0");
    for (int i = 0; i < args.size(); ++i) {
        const QString &a = args.at(i);
        if ((a == QLatin1String("--application") || a == QLatin1String("--slave")) && i + 1 < args.size()) {
            (a == QLatin1String("--slave") ? slave : application) = args.at(++i);
        } else if (!a.startsWith(QLatin1String("--")) && folder.isEmpty()) {
            folder = a;
        } else {
            err << "vantor-cli update: unknown option " << a << "\n" << usage();
            return 2;
        }
    }
    if (folder.isEmpty() || !QDir(folder).exists()) {
        err << "vantor-cli update: no folder " << folder << "\n" << usage();
        return 2;
    }
    // The files the instrument's check takes: oversized ones are left out there too.
    const QStringList names = SoftwareUpdater::updateFilesIn(QDir(folder));
    const QString running = UpdateVersion::applicationVersion(application);
    for (const QString &name : names) {
        const bool firmware = name.contains(QLatin1String("KestrumSlave"));
        const QString kind = firmware ? QStringLiteral("firmware")
            : name.contains(QLatin1String("Kestrum_V")) ? QStringLiteral("application")
                                                         : QStringLiteral("system");
        const QString version = firmware ? UpdateVersion::firmwareVersion(name) : UpdateVersion::applicationVersion(name);
        const bool newer = UpdateVersion::isNewer(version, firmware ? slave : running);
        out << kind << ' ' << name << ' ' << version << ' ' << (newer ? "newer" : "not newer") << "\n";
    }
    const UpdateVersion::Choice choice = UpdateVersion::choose(names, application, slave);
    QStringList chosen;
    if (!choice.firmware.isEmpty())
        chosen << QStringLiteral("firmware ") + choice.firmware;
    if (!choice.application.isEmpty())
        chosen << QStringLiteral("application ") + choice.application;
    if (!choice.systemImage.isEmpty())
        chosen << QStringLiteral("system image ") + choice.systemImage + QStringLiteral(" (at the next reboot, with the disk in)");
    out << "chosen: " << (chosen.isEmpty() ? QStringLiteral("nothing newer") : chosen.join(QStringLiteral(", "))) << "\n";
    return chosen.isEmpty() ? 1 : 0;
}
