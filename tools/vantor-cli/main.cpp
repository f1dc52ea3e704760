// vantor-cli: the instrument's headless console, for method development,
// validation and service work.

#include "titrateoptions.h"
#include "titraterunner.h"

#include <QCoreApplication>
#include <QTextStream>

#include <cstdio>

namespace {

bool g_verbose = false;

// The engine talks a lot on qDebug; only warnings and worse unless --verbose.
void filterMessages(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type == QtDebugMsg && !g_verbose)
        return;
    std::fprintf(stderr, "%s\n", qPrintable(text));
}

QString mainUsage()
{
    return QStringLiteral("usage: vantor-cli COMMAND [options]\n"
                          "commands:\n"
                          "  titrate   run one titration against the virtual instrument, or replay a curve\n\n")
           + TitrateOptions::usage();
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("vantor-cli"));
    qInstallMessageHandler(filterMessages);
    QTextStream out(stdout);
    QTextStream err(stderr);

    QStringList args = app.arguments().mid(1);
    if (args.isEmpty() || args.first() == QLatin1String("--help") || args.first() == QLatin1String("-h")) {
        (args.isEmpty() ? err : out) << mainUsage();
        return args.isEmpty() ? 2 : 0;
    }
    const QString command = args.takeFirst();
    if (command != QLatin1String("titrate")) {
        err << "vantor-cli: unknown command \"" << command << "\"\n" << mainUsage();
        return 2;
    }
    if (args.contains(QStringLiteral("--help"))) {
        out << TitrateOptions::usage();
        return 0;
    }
    TitrateOptions options;
    QString error;
    if (!options.parse(args, &error)) {
        err << "vantor-cli titrate: " << error << "\n" << TitrateOptions::usage();
        return 2;
    }
    g_verbose = options.verbose;
    TitrateRunner runner(options);
    return runner.run(out, err);
}
