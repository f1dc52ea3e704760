#include "methodcommand.h"

#include "models/electrodesetupmodel.h"
#include "models/importexport.h"
#include "models/methodfilevalidator.h"
#include "models/methodmodel.h"
#include "models/titrationsetupmodel.h"
#include "sandboxsession.h"

#include <QTextStream>

int MethodCommand::installFile(const QString &fileName, QString *error, QString *installedName)
{
    *error = MethodFileValidator(MethodFileValidator::storedBuretteMl()).checkFile(fileName);
    if (!error->isEmpty())
        return 0;
    ImportExport io(fileName);
    struct Staging {
        ImportExport &io;
        ~Staging() { io.dropTables(QStringLiteral("_temp")); }
    } staging{io};
    io.dropTables(QStringLiteral("_temp"));
    if (!io.importAll(ImportExport::Replace, QStringLiteral("_temp"))) {
        *error = QStringLiteral("could not be staged (see the log with --verbose)");
        return 0;
    }
    MethodModel staged(nullptr, false);
    if (!staged.loadMethodsFromDb(QStringLiteral("_temp"), true) || staged.methodList().size() != 1) {
        *error = staged.refusals().isEmpty() ? QStringLiteral("holds no method") : staged.refusals().first();
        return 0;
    }
    MethodModel *entry = staged.methodList().first();
    const int id = staged.install(entry, error);
    if (id <= 0)
        *error = QStringLiteral("its method could not be installed: %1").arg(*error);
    else if (installedName)
        *installedName = entry->methodName();
    return id;
}

QString MethodCommand::usage()
{
    return QStringLiteral("usage: vantor-cli method install FILE.json [--sandbox DIR]\n"
                          "       vantor-cli method list [--sandbox DIR]\n"
                          "  install  store the method of a method file (a method export) as the method\n"
                          "           library stores an import: checked, under a unique name\n"
                          "  list     the stored methods: id, name, electrode, technique\n"
                          "  --sandbox DIR  the instrument's folders and database (default: a temporary one)\n");
}

int MethodCommand::run(const QStringList &args, QTextStream &out, QTextStream &err)
{
    QStringList rest = args;
    QString sandbox;
    const int at = rest.indexOf(QStringLiteral("--sandbox"));
    if (at >= 0) {
        if (at + 1 >= rest.size() || rest.at(at + 1).trimmed().isEmpty()) {
            err << "vantor-cli method: --sandbox needs a folder\n" << usage();
            return 2;
        }
        sandbox = rest.at(at + 1);
        rest.erase(rest.begin() + at, rest.begin() + at + 2);
    }
    const QString action = rest.value(0);
    const bool install = action == QLatin1String("install") && rest.size() == 2;
    const bool listing = action == QLatin1String("list") && rest.size() == 1;
    if (!install && !listing) {
        err << "vantor-cli method: " << (rest.isEmpty() ? QStringLiteral("no action") : rest.join(QLatin1Char(' ')))
            << ": not understood\n" << usage();
        return 2;
    }
    SandboxSession session(sandbox);
    if (!session.open(err))
        return 2;
    if (install && !session.stores()) {
        err << "vantor-cli method: " << rest.at(1) << ": not installed: the database cannot be written\n";
        return 2;
    }
    // The method tables and the working method, as the application's start makes them.
    const MethodModel working;
    return install ? MethodCommand::install(rest.at(1), out, err) : list(out);
}

int MethodCommand::install(const QString &file, QTextStream &out, QTextStream &err)
{
    QString error;
    QString name;
    const int id = installFile(file, &error, &name);
    if (id <= 0) {
        err << "vantor-cli method: " << file << ": " << error << "\n";
        return 2;
    }
    out << "Installed \"" << name << "\" as method " << id << "\n";
    return 0;
}

int MethodCommand::list(QTextStream &out)
{
    MethodModel library(nullptr, false);
    library.loadMethodsFromDb(QString());
    for (const MethodModel *m : library.methodList()) {
        out << m->id() << "\t" << m->methodName() << "\t" << m->electrodeSetupModel()->electrodeType() << "\t"
            << m->titrationSetupModel()->titrationTechnique() << "\n";
    }
    out << library.methodList().size() << " of " << MethodModel::maxMethods << " methods\n";
    return 0;
}
