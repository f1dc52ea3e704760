#include "titraterunner.h"

#include "controller/burettecontroller.h"
#include "controller/enginedatastandin.h"
#include "controller/mspcontroller.h"
#include "controller/slaveclock.h"
#include "processresources.h"
#include "pseudoterminal.h"
#include "reports/logmanager.h"
#include "scenario.h"
#include "slavesession.h"
#include "system/clock.h"
#include "system/platform.h"
#include "titrationcontrollerbase.h"
#include "virtualslave.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTimer>

#include <algorithm>
#include <cstdlib>
#include <memory>

namespace {

constexpr qint64 kMaxReplayBytes = 16 * 1024 * 1024;

// The method of the run, as the data layer would answer it.
void configure(EngineDataStandIn &data, const TitrateOptions &o)
{
    data.mode = QStringLiteral("Titration");
    data.technique = o.technique;
    data.noOfEndpoints = o.endpoints;
    std::copy(o.endpointMv, o.endpointMv + 3, data.endpoint);
    data.processCtrl = o.processControl;
    data.maxVolmL = o.maxVolumeMl;
    data.preDose = o.preDoseMl;
    data.preStir = o.preStirS;
    data.electrode = 0;
    data.displayPh = false;
    // "User Defined" takes the routine values unless a method says otherwise.
    data.deltaE = 10.f;
    data.deltaVmin = 0.01f;
    data.deltaVmax = 0.4f;
    data.stabilityCriteria = 8.f;
    data.tMin = 2.f;
    data.tMax = 8.f;
    data.threshold = 200.f;
}

// The "Titration Summary" block of the run log, without the end banner.
QString summaryOf(const QString &log)
{
    const QString start = QStringLiteral("\r\nTitration Summary\r\n");
    const int at = log.lastIndexOf(start);
    if (at < 0)
        return QString();
    int end = log.indexOf(QStringLiteral("-------------------- TITRATION END"), at);
    if (end < 0)
        end = log.size();
    QString text = log.mid(at + 2, end - at - 2);
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    return text;
}

// The files of every cyclic log below the log root, the rings' index files
// not counted.
int logFileCount()
{
    int n = 0;
    QDirIterator it(LogManager::logRoot(), {QStringLiteral("*.txt")}, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        if (QFileInfo(it.next()).fileName() != QLatin1String("nextFileNum.txt"))
            ++n;
    }
    return n;
}

} // namespace

TitrateRunner::TitrateRunner(const TitrateOptions &options)
    : m_options(options)
{
}

int TitrateRunner::run(QTextStream &out, QTextStream &err)
{
    const QString previousRoot = Platform::sandboxRoot();
    QTemporaryDir temporary;
    const QString root = m_options.sandbox.isEmpty() ? temporary.path() : m_options.sandbox;
    if (!QDir().mkpath(root)) {
        err << "vantor-cli: cannot make the sandbox " << root << "\n";
        return 2;
    }
    Platform::setSandboxRoot(root);
    Platform::prepareSandbox();
    bool allCompleted = true;
    int status = 0;
    for (int run = 1; run <= m_options.runs; ++run) {
        m_outcome = Outcome();
        status = runInSandbox(err);
        if (status == 2)
            break;
        report(out);
        allCompleted = allCompleted && m_outcome.completed;
        if (m_options.runs > 1) {
            out << "Run " << run << " of " << m_options.runs << ": peak resident kB "
                << ProcessResources::peakResidentKb() << ", heap kB " << ProcessResources::heapInUseKb()
                << ", open files " << ProcessResources::openFileDescriptors() << ", log files "
                << logFileCount() << "\n";
            out.flush();
        }
    }
    Platform::setSandboxRoot(previousRoot);
    if (status == 2)
        return status;
    return allCompleted ? 0 : 1;
}

int TitrateRunner::runInSandbox(QTextStream &err)
{
    EngineDataStandIn data;
    configure(data, m_options);
    const bool live = !m_options.scenarioFile.isEmpty();
    const double speed = m_options.speed;
    const QString device = Platform::path(QStringLiteral("/dev/ttymxc2"));

    Scenario scenario;
    std::unique_ptr<VirtualSlave> slave;
    std::unique_ptr<PseudoTerminal> pty;
    std::unique_ptr<SlaveSession> session;
    if (live) {
        QString error;
        if (!Scenario::load(m_options.scenarioFile, &scenario, &error)) {
            err << "vantor-cli: scenario " << m_options.scenarioFile << ": " << error << "\n";
            return 2;
        }
        data.buretteSizeMl = float(scenario.config.buretteMl);
        if (const auto *ise = dynamic_cast<const IseBeaker *>(scenario.beaker.get())) {
            // A known-addition run: the sample is the beaker, the standard the titrant,
            // and the result is reported in mol/L of the sample.
            const IseBeaker::Params &p = ise->params();
            data.electrode = std::abs(p.charge) == 1 ? 2 : 3;
            data.totalSolutionVolume = float(p.volumeMl);
            data.mkaStandard = float(p.titrantConcentration);
            data.mkaSample.resultUnits = QStringLiteral("M");
            data.mkaSample.sampleAmount = QStringLiteral("Fixed Volume");
            data.mkaSample.amount = float(p.volumeMl);
        } else if (m_options.technique == 3) {
            err << "vantor-cli: \"Multiple Known Addition\" needs an ion-selective scenario (\"kind\":\"ise\")\n";
            return 2;
        }
        slave = std::make_unique<VirtualSlave>(scenario.config, std::move(scenario.beaker));
        pty = std::make_unique<PseudoTerminal>();
        if (!pty->open(device)) {
            err << "vantor-cli: virtual instrument: " << pty->errorString() << "\n";
            return 2;
        }
        session = std::make_unique<SlaveSession>(pty.get(), slave.get(), speed);
    } else {
        QFile curve(m_options.replayFile);
        if (!curve.open(QIODevice::ReadOnly) || curve.size() > kMaxReplayBytes) {
            err << "vantor-cli: cannot read the curve " << m_options.replayFile
                << (curve.size() > kMaxReplayBytes ? " (larger than 16 MiB)" : "") << "\n";
            return 2;
        }
        const QString target = Platform::path(QStringLiteral("/var/Kestrum/log/simdata/data-1.txt"));
        QDir().mkpath(QFileInfo(target).absolutePath());
        QFile::remove(target);
        QFile copy(target);
        if (!copy.open(QIODevice::WriteOnly) || copy.write(curve.readAll()) < 0) {
            err << "vantor-cli: cannot place the curve at " << target << "\n";
            return 2;
        }
    }

    EngineData::set(&data);
    {
        mspController msp(device);
        msp.setPollInterval(std::max(1, int(250 / speed)));
        msp.setReadInterval(std::max(1, std::min(40, int(40 / speed))));
        BuretteController burette(&msp);
        burette.setTickInterval(std::max(1, int(250 / speed)));
        SlaveClock clock(&msp);
        if (live)
            Clock::setSource(&clock);
        TitrationControllerBase tc(&msp, &burette, nullptr);
        tc.setTimeScale(speed);

        QEventLoop loop;
        bool completed = false;
        // As the screens do: take the results, then stop inside the signal.
        QObject::connect(&tc, &TitrationController::titrationCompletedSignal, &tc, [&] {
            completed = true;
            tc.qmlStopTitration();
            loop.quit();
        });
        QTimer limit;
        limit.setSingleShot(true);
        QObject::connect(&limit, &QTimer::timeout, &loop, &QEventLoop::quit);
        QElapsedTimer wall;
        wall.start();
        limit.start(m_options.timeoutS * 1000);

        if (live) {
            // The link is up when the slave answers and holds the configured burette.
            bool sampled = false;
            QObject::connect(&msp, &mspController::mspNewDataSignal, &loop, [&] {
                mspInfoRecord info;
                msp.msp->getInfo(info);
                if (!sampled && info.buretteSize == int(data.buretteSizeMl)) {
                    sampled = true;
                    loop.quit();
                }
            });
            loop.exec();
            if (!sampled) {
                err << "vantor-cli: the virtual instrument did not answer\n";
                Clock::setSource(nullptr);
                EngineData::set(nullptr);
                return 2;
            }
        }
        tc.qmlStartTitration();
        if (!completed)
            loop.exec();
        if (!completed) {
            err << "vantor-cli: the run did not end within " << m_options.timeoutS << " s\n";
            tc.qmlStopTitration();
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

        const TitrationController::RunRecord &r = tc.lastRun();
        m_outcome.completed = completed;
        m_outcome.reasonForEnd = r.reasonForEnd;
        m_outcome.results = r.results;
        m_outcome.doses = r.doses;
        m_outcome.totalDispensedUl = r.totalDispensedUl;
        m_outcome.durationS = double(r.durationMs) / 1000.0;
        m_outcome.wallS = double(wall.elapsed()) / 1000.0;

        m_outcome.knownAddition = data.mkaCompletedCount > 0;
        m_outcome.mkaResult = data.mkaResult;

        QFile log(data.titrationLogFile()->currentFileName());
        if (log.open(QIODevice::ReadOnly))
            m_outcome.summary = summaryOf(QString::fromUtf8(log.read(1 << 20)));
        Clock::setSource(nullptr);
    }
    EngineData::set(nullptr);
    return 0;
}

void TitrateRunner::report(QTextStream &out) const
{
    out << m_outcome.summary;
    if (m_outcome.knownAddition) {
        out << "Known addition concentration (mol/L): " << QString::number(m_outcome.mkaResult[0], 'g', 6) << "\n";
        out << "Electrode slope (mV/decade): " << QString::number(m_outcome.mkaResult[1], 'f', 2) << "\n";
    }
    out << "Reason for end: " << m_outcome.reasonForEnd << "\n";
    out << "Doses: " << m_outcome.doses << "\n";
    out << "Duration (s): " << QString::number(m_outcome.durationS, 'f', 1) << "\n";
    out.flush();
}
