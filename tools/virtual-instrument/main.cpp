// The virtual instrument: stands in for the slave microcontroller on a
// pseudo-terminal, with a beaker described by a scenario file.

#include "controlinput.h"
#include "pseudoterminal.h"
#include "scenario.h"
#include "slavesession.h"
#include "system/platform.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

#include <csignal>
#include <cstring>
#include <unistd.h>

namespace {

char g_link[4096];
char g_target[4096];

// Takes the link away on the way out, if it is still ours.
void onTerminate(int)
{
    char buf[sizeof g_target];
    const ssize_t n = ::readlink(g_link, buf, sizeof buf - 1);
    if (n > 0) {
        buf[n] = '\0';
        if (std::strcmp(buf, g_target) == 0)
            ::unlink(g_link);
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
    parser.addOptions({deviceOpt, scenarioOpt, speedOpt, traceOpt});
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
    ControlInput control([&](const QByteArray &command, const QByteArray &argument) -> QString {
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
    std::strncpy(g_link, QFile::encodeName(link).constData(), sizeof g_link - 1);
    std::strncpy(g_target, QFile::encodeName(pty.slaveName()).constData(), sizeof g_target - 1);
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
