// The virtual instrument: stands in for the slave microcontroller on a
// pseudo-terminal, with a beaker described by a scenario file.

#include "controlinput.h"
#include "pseudoterminal.h"
#include "scenario.h"
#include "slavesession.h"
#include "system/platform.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

#include <csignal>
#include <cstring>
#include <unistd.h>

namespace {

// The links this program made (the slave's line, with --remote-host the
// remote port's two ends, with --printer the printer's port) and where each
// points.
constexpr int kLinks = 4;
char g_link[kLinks][4096];
char g_target[kLinks][4096];

void rememberLink(int i, const QString &link, const QString &target)
{
    std::strncpy(g_link[i], QFile::encodeName(link).constData(), sizeof g_link[i] - 1);
    std::strncpy(g_target[i], QFile::encodeName(target).constData(), sizeof g_target[i] - 1);
}

// Takes the links away on the way out, those that are still ours.
void onTerminate(int)
{
    for (int i = 0; i < kLinks; ++i) {
        char buf[sizeof g_target[i]];
        const ssize_t n = g_link[i][0] ? ::readlink(g_link[i], buf, sizeof buf - 1) : -1;
        if (n > 0) {
            buf[n] = '\0';
            if (std::strcmp(buf, g_target[i]) == 0)
                ::unlink(g_link[i]);
        }
    }
    ::_exit(0);
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("virtual-instrument"));
    QTextStream err(stderr);

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Stands in for the instrument's slave microcontroller on a pseudo-terminal.\n"
        "Its clock advances 250 ms with every measurement poll (MG) answered.\n"
        "Standard input takes commands, one a line: beaker {JSON beaker object}."));
    parser.addHelpOption();
    const QCommandLineOption deviceOpt(QStringLiteral("device"),
        QStringLiteral("Where to put the link to the terminal (default: the sandbox's /dev/ttymxc2)."),
        QStringLiteral("PATH"), Platform::path(QStringLiteral("/dev/ttymxc2")));
    const QCommandLineOption scenarioOpt(QStringLiteral("scenario"),
        QStringLiteral("The beaker and the slave's settings (JSON)."), QStringLiteral("FILE"));
    const QCommandLineOption traceOpt(QStringLiteral("trace"),
        QStringLiteral("Write every command, reply and event with its time to FILE."), QStringLiteral("FILE"));
    // The instrument's pace is the link's: its clock advances with the polls.
    // The option stays for the scripts that pace the application with it.
    const QCommandLineOption speedOpt(QStringLiteral("speed"),
        QStringLiteral("Accepted for scripts; the clock follows the link's polls (250 ms each)."),
        QStringLiteral("FACTOR"), QStringLiteral("1"));
    const QCommandLineOption remoteOpt(QStringLiteral("remote-host"),
        QStringLiteral("Attach a lab PC to the remote port: the sandbox's /dev/ttyMFG appears, and PATH is the PC's "
                       "end of that line (for vantor-cli remote --port PATH). Standard input then also takes "
                       "\"remote detach\" and \"remote attach\"."),
        QStringLiteral("PATH"));
    const QCommandLineOption printerOpt(QStringLiteral("printer"),
        QStringLiteral("Plug in the receipt printer: the sandbox's /dev/ttyPOS appears, and every byte the "
                       "application sends to it is appended to FILE."),
        QStringLiteral("FILE"));
    parser.addOptions({deviceOpt, scenarioOpt, speedOpt, traceOpt, remoteOpt, printerOpt});
    parser.process(app);

    bool ok = false;
    const double speed = parser.value(speedOpt).toDouble(&ok);
    if (!ok || !(speed > 0) || speed > 10000) {
        err << "virtual-instrument: --speed must be a number above 0 and at most 10000\n";
        return 2;
    }

    Scenario scenario;
    QString error;
    const bool loaded = parser.isSet(scenarioOpt)
                            ? Scenario::load(parser.value(scenarioOpt), &scenario, &error)
                            : Scenario::parse("{}", &scenario, &error);
    if (!loaded) {
        err << "virtual-instrument: scenario: " << error << "\n";
        return 2;
    }

    VirtualSlave slave(scenario.config, std::move(scenario.beaker));
    const double celsius = scenario.config.temperatureC;
    const double e0Mv = scenario.e0Mv;
    const double slopePct = scenario.slopePct;
    // The remote port: the application's end at "/dev/ttyMFG", joined byte
    // for byte to the PC's end at --remote-host.
    PseudoTerminal remotePort;
    PseudoTerminal remoteHost;
    const QString remoteLink = Platform::path(QStringLiteral("/dev/ttyMFG"));
    auto attachRemote = [&]() -> QString {
        if (!remotePort.isOpen() && !remotePort.open(remoteLink))
            return remotePort.errorString();
        rememberLink(2, remoteLink, remotePort.slaveName());
        return QString();
    };
    ControlInput control([&](const QByteArray &command, const QByteArray &argument) -> QString {
        if (command == "remote" && remoteHost.isOpen() && (argument == "attach" || argument == "detach")) {
            if (argument == "attach")
                return attachRemote();
            remotePort.close();
            return QString();
        }
        if (command != "beaker")
            return QStringLiteral("unknown command \"%1\"").arg(QString::fromUtf8(command.left(32)));
        const QJsonDocument doc = QJsonDocument::fromJson(argument);
        if (!doc.isObject())
            return QStringLiteral("beaker takes one JSON object");
        QString why;
        auto beaker = Beaker::fromJson(doc.object(), celsius, e0Mv, slopePct, &why);
        if (!beaker)
            return why;
        slave.setBeaker(std::move(beaker));
        return QString();
    });
    PseudoTerminal pty;
    const QString link = parser.value(deviceOpt);
    if (!pty.open(link)) {
        err << "virtual-instrument: " << pty.errorString() << "\n";
        return 1;
    }
    rememberLink(0, link, pty.slaveName());
    if (parser.isSet(remoteOpt)) {
        QObject::connect(&remoteHost, &PseudoTerminal::received, &remotePort, &PseudoTerminal::write);
        QObject::connect(&remotePort, &PseudoTerminal::received, &remoteHost, &PseudoTerminal::write);
        QString why;
        if (!remoteHost.open(parser.value(remoteOpt)) || !(why = attachRemote()).isEmpty()) {
            err << "virtual-instrument: remote port: " << (why.isEmpty() ? remoteHost.errorString() : why) << "\n";
            return 1;
        }
        rememberLink(1, remoteHost.linkPath(), remoteHost.slaveName());
    }
    // The receipt printer: a terminal that keeps what it receives.
    PseudoTerminal printerPort;
    QFile paper(parser.value(printerOpt));
    if (parser.isSet(printerOpt)) {
        const QString printerLink = Platform::path(QStringLiteral("/dev/ttyPOS"));
        if (!paper.open(QIODevice::WriteOnly | QIODevice::Append) || !printerPort.open(printerLink)) {
            err << "virtual-instrument: printer: " << (paper.isOpen() ? printerPort.errorString() : paper.errorString()) << "\n";
            return 1;
        }
        QObject::connect(&printerPort, &PseudoTerminal::received, [&paper](const QByteArray &bytes) {
            paper.write(bytes);
            paper.flush();
        });
        rememberLink(3, printerLink, printerPort.slaveName());
    }
    std::signal(SIGTERM, onTerminate);
    std::signal(SIGINT, onTerminate);
    std::signal(SIGHUP, onTerminate);

    SlaveSession session(&pty, &slave);
    if (parser.isSet(traceOpt) && !session.setTraceFile(parser.value(traceOpt))) {
        err << "virtual-instrument: cannot write the trace " << parser.value(traceOpt) << "\n";
        return 1;
    }
    err << "virtual-instrument: " << link << " -> " << pty.slaveName() << "\n";
    err.flush();
    return app.exec();
}
