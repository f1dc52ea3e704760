// vantor-cli: the instrument's headless console, for method development,
// validation and service work.

#include "discovercommand.h"
#include "meterrunner.h"
#include "methodcommand.h"
#include "remoteportcommand.h"
#include "reportcommand.h"
#include "titrateoptions.h"
#include "titraterunner.h"
#include "transfercommand.h"
#include "uiscript.h"
#include "updatecommand.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QTextStream>

#include <cstdio>
#include <exception>
#include <memory>
#include <cstring>

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
                          "  titrate   run one titration against the virtual instrument, or replay a curve\n"
                          "  measure   read the electrode of a scenario until the reading is stable\n"
                          "  calibrate calibrate the electrode of a scenario with buffers or standards\n"
                          "  method    install a method file, list, export or import the stored methods\n"
                          "  backup    copy the database file\n"
                          "  ui        run a UI driver script against the running application\n"
                          "  discover  list the instruments that answer on the network\n"
                          "  remote    send commands to an instrument's remote port\n"
                          "  report    export the stored reports of a log as PDF or CSV files\n"
                          "  update    list what a USB disk's update files would offer\n\n")
           + TitrateOptions::usage() + QStringLiteral("\n") + MethodCommand::usage() + QStringLiteral("\n")
           + TransferCommand::usage() + QStringLiteral("\n") + UiScript::usage() + QStringLiteral("\n")
           + DiscoverCommand::usage() + QStringLiteral("\n") + RemotePortCommand::usage() + QStringLiteral("\n")
           + ReportCommand::usage() + QStringLiteral("\n") + UpdateCommand::usage();
}

} // namespace

int main(int argc, char *argv[])
{
    // Reports are painted (fonts, images, PDF): that needs the GUI library,
    // on its screenless platform unless another is asked for.
    const bool paints = argc > 1 && std::strcmp(argv[1], "report") == 0;
    if (paints && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    std::unique_ptr<QCoreApplication> application(paints ? new QGuiApplication(argc, argv) : new QCoreApplication(argc, argv));
    QCoreApplication &app = *application;
    QCoreApplication::setApplicationName(QStringLiteral("vantor-cli"));
    qInstallMessageHandler(filterMessages);
    QTextStream out(stdout);
    QTextStream err(stderr);
    out.setCodec("UTF-8");
    err.setCodec("UTF-8");

    QStringList args = app.arguments().mid(1);
    if (args.isEmpty() || args.first() == QLatin1String("--help") || args.first() == QLatin1String("-h")) {
        (args.isEmpty() ? err : out) << mainUsage();
        return args.isEmpty() ? 2 : 0;
    }
    const QString command = args.takeFirst();
    if (command == QLatin1String("measure") || command == QLatin1String("calibrate")) {
        const MeterRunner::Command which = command == QLatin1String("measure") ? MeterRunner::Measure : MeterRunner::Calibrate;
        if (args.contains(QStringLiteral("--help"))) {
            out << MeterRunner::usage(which);
            return 0;
        }
        MeterRunner meter(which);
        QString error;
        if (!meter.parse(args, &error)) {
            err << "vantor-cli " << command << ": " << error << "\n" << MeterRunner::usage(which);
            return 2;
        }
        g_verbose = meter.verbose();
        return meter.run(out, err);
    }
    if (TransferCommand::handles(command, args)) {
        if (args.contains(QStringLiteral("--help"))) {
            out << TransferCommand::usage();
            return 0;
        }
        return TransferCommand::run(command, args, out, err);
    }
    if (command == QLatin1String("method")) {
        if (args.contains(QStringLiteral("--help"))) {
            out << MethodCommand::usage();
            return 0;
        }
        return MethodCommand::run(args, out, err);
    }
    if (command == QLatin1String("discover") || command == QLatin1String("remote")) {
        const bool discover = command == QLatin1String("discover");
        if (args.contains(QStringLiteral("--help"))) {
            out << (discover ? DiscoverCommand::usage() : RemotePortCommand::usage());
            return 0;
        }
        return discover ? DiscoverCommand::run(args, out, err) : RemotePortCommand::run(args, out, err);
    }
    if (command == QLatin1String("report")) {
        if (args.contains(QStringLiteral("--help"))) {
            out << ReportCommand::usage();
            return 0;
        }
        return ReportCommand::run(args, out, err);
    }
    if (command == QLatin1String("update")) {
        if (args.contains(QStringLiteral("--help"))) {
            out << UpdateCommand::usage();
            return 0;
        }
        return UpdateCommand::run(args, out, err);
    }
    if (command == QLatin1String("ui")) {
        if (args.contains(QStringLiteral("--help"))) {
            out << UiScript::usage();
            return 0;
        }
        UiScript::Options uiOptions;
        QString uiError;
        if (!UiScript::parse(args, &uiOptions, &uiError)) {
            err << "vantor-cli ui: " << uiError << "\n" << UiScript::usage();
            return 2;
        }
        UiScript script(uiOptions);
        return script.run(out, err);
    }
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
    try {
        return runner.run(out, err);
    } catch (const std::exception &e) {
        // A method the engine has no presets for (an electrode the
        // technique does not serve) ends here, not in a crash.
        err << "vantor-cli titrate: the run could not go on: " << e.what() << "\n";
        return 3;
    }
}
