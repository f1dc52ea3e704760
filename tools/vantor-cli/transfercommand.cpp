#include "transfercommand.h"

#include "models/databasecopy.h"
#include "models/methodbackup.h"
#include "models/methodmodel.h"
#include "sandboxsession.h"

#include <QDir>
#include <QTextStream>

namespace {

// Takes "--NAME VALUE" out of args; false when the value is missing.
bool takeOption(QStringList *args, const QString &name, QString *value)
{
    const int at = args->indexOf(name);
    if (at < 0)
        return true;
    if (at + 1 >= args->size())
        return false;
    *value = args->at(at + 1);
    args->erase(args->begin() + at, args->begin() + at + 2);
    return true;
}

void printMessages(const MethodBackup &backup, QTextStream &err)
{
    for (const QString &line : backup.messages())
        err << "  " << line << "\n";
}

} // namespace

QString TransferCommand::usage()
{
    return QStringLiteral("usage: vantor-cli method export --out DIR [--sandbox DIR]\n"
                          "       vantor-cli method import DIR [--sandbox DIR]\n"
                          "       vantor-cli backup --out FILE [--sandbox DIR]\n"
                          "  method export  one file per stored method into DIR, as the export to a USB disk\n"
                          "  method import  every method file of DIR, checked, installed under unique names\n"
                          "  backup         a copy of the database file, checked, as the copy to a USB disk\n");
}

bool TransferCommand::handles(const QString &command, const QStringList &args)
{
    if (command == QLatin1String("backup"))
        return true;
    return command == QLatin1String("method") && !args.isEmpty()
        && (args.first() == QLatin1String("export") || args.first() == QLatin1String("import"));
}

int TransferCommand::run(const QString &command, const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    QStringList args = arguments;
    QString sandbox;
    QString target;
    const QString action = command == QLatin1String("backup") ? command : args.value(0);
    if (command != QLatin1String("backup"))
        args.removeFirst();
    const bool parsed = takeOption(&args, QStringLiteral("--sandbox"), &sandbox)
        && takeOption(&args, QStringLiteral("--out"), &target);
    if (action == QLatin1String("import") && args.size() == 1)
        target = args.takeFirst();
    if (!parsed || target.isEmpty() || !args.isEmpty()) {
        err << "vantor-cli " << command << ": " << arguments.join(QLatin1Char(' ')) << ": not understood\n" << usage();
        return 2;
    }
    SandboxSession session(sandbox);
    if (!session.open(err))
        return 2;
    const MethodModel working; // the method tables, as the application's start makes them
    if (action == QLatin1String("backup")) {
        QString error;
        if (!DatabaseCopy::copy(DatabaseCopy::liveFile(), target, &error)) {
            err << "vantor-cli backup: " << error << "\n";
            return 2;
        }
        out << "Copied the database to " << target << "\n";
        return 0;
    }
    MethodModel list(nullptr, false);
    MethodBackup backup(&list);
    if (action == QLatin1String("export")) {
        const int written = QDir().mkpath(target) ? backup.exportMethods(QDir(target), QString()) : -1;
        printMessages(backup, err);
        if (written < 0)
            return 2;
        out << "Exported " << written << " methods to " << target << "\n";
        return 0;
    }
    const bool staged = backup.importMethods(QDir(target), QStringLiteral("_import"), false, true);
    const int installed = staged ? backup.installAll() : 0;
    printMessages(backup, err);
    out << "Installed " << installed << " of " << list.methodList().size() << " methods from " << target << "\n";
    return staged && installed == list.methodList().size() ? 0 : 2;
}
