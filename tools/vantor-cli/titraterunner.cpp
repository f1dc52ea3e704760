#include "titraterunner.h"

#include "reports/reportvalues.h"

#include "appconstants.h"
#include "beaker.h"
#include "controller/burettecontroller.h"
#include "controller/mspcontroller.h"
#include "controller/simdatareader.h"
#include "controller/slaveclock.h"
#include "methodcommand.h"
#include "processresources.h"
#include "replaycurve.h"
#include "sandboxsession.h"
#include "datamanagerbase.h"
#include "models/methoddraft.h"
#include "models/methodmodel.h"
#include "models/runwithlog.h"
#include "models/titrationlogmodel.h"
#include "models/titrationsetupmodel.h"
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
#include <QTextStream>
#include <QTimer>

#include <algorithm>
#include <cstdlib>
#include <memory>

namespace {

constexpr qint64 kMaxReplayBytes = 16 * 1024 * 1024;
constexpr int kMinReplayPoints = 4; // the first slope needs three, the peak search four
constexpr int kKnownAddition = 3;
// The runner's own method: a name that neither the name page nor a method
// file can give (brackets), so a plain run never writes over a user's method.
const char *const kOwnMethod = "(vantor-cli)";
const char *const kTechniqueNames[] = {"Preset End Pt.", "Equivalence Pt.", "Engineering Basic pH",
                                       "Multiple Known Addition"};
const char *const kControlNames[] = {"Routine", "Quick", "Careful", "User Defined"};

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

const IseBeaker *iseBeaker(const Scenario &scenario)
{
    return dynamic_cast<const IseBeaker *>(scenario.beaker.get());
}

} // namespace

TitrateRunner::TitrateRunner(const TitrateOptions &options)
    : m_options(options)
{
}

int TitrateRunner::run(QTextStream &out, QTextStream &err)
{
    int status = 2;
    bool allCompleted = true;
    bool stored = true;
    {
        SandboxSession sandbox(m_options.sandbox);
        if (sandbox.open(err)) {
            stored = sandbox.stores();
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
        }
    }
    if (status == 2)
        return status;
    if (!stored) {
        err << "vantor-cli: the run was not stored: the database cannot be written\n";
        return 2;
    }
    return allCompleted ? 0 : 1;
}

int TitrateRunner::loadInput(Scenario &scenario, QTextStream &err)
{
    if (!m_options.scenarioFile.isEmpty()) {
        QString error;
        if (!Scenario::load(m_options.scenarioFile, &scenario, &error)) {
            err << "vantor-cli: scenario " << m_options.scenarioFile << ": " << error << "\n";
            return 2;
        }
        return 0;
    }
    QFile curve(m_options.replayFile);
    if (!curve.open(QIODevice::ReadOnly) || curve.size() > kMaxReplayBytes) {
        err << "vantor-cli: cannot read the curve " << m_options.replayFile
            << (curve.size() > kMaxReplayBytes ? " (larger than 16 MiB)" : "") << "\n";
        return 2;
    }
    // A curve is points the engine can use; a file with fewer is refused
    // before the run rather than titrated to a made-up end. Other
    // instruments' separators and units become the lines the simulation
    // path plays.
    ReplayCurve replay;
    QString why;
    if (!replay.parse(curve.read(kMaxReplayBytes), m_options.temperatureC, &why)) {
        err << "vantor-cli: the curve " << m_options.replayFile << ": " << why << "\n";
        return 2;
    }
    const int points = int(replay.points().size());
    if (points < kMinReplayPoints) {
        err << "vantor-cli: the curve " << m_options.replayFile << " holds " << points
            << " points (volume and signal columns); at least " << kMinReplayPoints << " are needed\n";
        return 2;
    }
    const QByteArray bytes = replay.simulationText();
    const QString target = Platform::path(QStringLiteral("/var/Kestrum/log/simdata/data-1.txt"));
    QDir().mkpath(QFileInfo(target).absolutePath());
    QFile::remove(target);
    QFile copy(target);
    if (!copy.open(QIODevice::WriteOnly) || copy.write(bytes) < 0) {
        err << "vantor-cli: cannot place the curve at " << target << "\n";
        return 2;
    }
    return 0;
}

MethodDraft TitrateRunner::draftOf(const Scenario &scenario) const
{
    const TitrateOptions &o = m_options;
    MethodDraft d;
    d.technique = QLatin1String(kTechniqueNames[o.technique]);
    d.processControl = QLatin1String(kControlNames[o.processControl]);
    d.endPoints = o.endpoints;
    std::copy(o.endpointMv, o.endpointMv + 3, d.endPointMv);
    d.maxVolumeMl = o.maxVolumeMl;
    d.preDoseMl = o.preDoseMl;
    d.preStirS = o.preStirS;
    d.sampleMl = o.sampleMl;
    if (const auto *ab = dynamic_cast<const AcidBaseBeaker *>(scenario.beaker.get())) {
        d.titrantName = ab->params().titrantIsBase ? QStringLiteral("NaOH") : QStringLiteral("HCl");
        d.titrantMolPerL = float(ab->params().titrantConcentration);
    } else if (const auto *redox = dynamic_cast<const RedoxBeaker *>(scenario.beaker.get())) {
        d.electrodeType = QStringLiteral("Redox");
        d.titrantName = QStringLiteral("Oxidant");
        d.titrantMolPerL = float(redox->params().titrantConcentration);
    } else if (const IseBeaker *ise = iseBeaker(scenario)) {
        // A known-addition run: the sample is the beaker, the standard the
        // titrant, and the result is reported in mol/L of the sample.
        const IseBeaker::Params &p = ise->params();
        d.electrodeType = o.technique == kKnownAddition ? QStringLiteral("ISE-MKA") : QStringLiteral("ISE-Titration");
        d.iseType = QStringLiteral("%1 %2").arg(std::abs(p.charge) == 1 ? QStringLiteral("Monovalent")
                                                                         : QStringLiteral("Divalent"),
                                                p.charge > 0 ? QStringLiteral("Cation") : QStringLiteral("Anion"));
        d.titrantName = QStringLiteral("Standard");
        d.titrantMolPerL = float(p.titrantConcentration);
        d.totalSolutionMl = float(p.volumeMl);
        d.mkaPrecisionPct = o.mkaPrecisionPct;
        d.sampleMl = float(p.volumeMl);
    }
    return d;
}

int TitrateRunner::methodOfRun(DataManagerBase &dm, const Scenario &scenario, QTextStream &err)
{
    const QString database = Platform::path(QStringLiteral(DATABASE_FILE_NAME));
    int id = m_methodId;
    if (id > 0) {
        // Back-to-back runs use the method stored for the first.
    } else if (!m_options.methodFile.isEmpty()) {
        QString error;
        dm.setupModel()->setSetupValues(); // the burette the file's volumes are checked against
        id = MethodCommand::installFile(m_options.methodFile, &error);
        if (id <= 0)
            err << "vantor-cli: method file " << m_options.methodFile << ": " << error << "\n";
    } else if (!m_options.methodName.isEmpty()) {
        id = MethodDraft::findByName(m_options.methodName);
        if (id <= 0)
            err << "vantor-cli: no method \"" << m_options.methodName << "\" is stored in " << database << "\n";
    } else {
        // The runner's own method is one, written over with each run's
        // options, not a new one each time: the library holds ten.
        QString error;
        const MethodDraft draft = draftOf(scenario);
        const int own = MethodDraft::findByName(QLatin1String(kOwnMethod));
        id = own > 0 ? draft.replace(own, &error) : draft.save(QLatin1String(kOwnMethod), &error);
        if (id <= 0)
            err << "vantor-cli: the run's method cannot be stored in " << database << ": " << error << "\n";
    }
    if (id <= 0)
        return 0;
    m_methodId = id;
    // Made current as the method screens do, then loaded by the data manager.
    dm.setupModel()->setCurrentMethodId(id);
    dm.setupModel()->setSetupValues();
    dm.reInitializeMethodModel(id);
    return dm.methodModel()->id() == id ? id : 0;
}

int TitrateRunner::runInSandbox(QTextStream &err)
{
    Scenario scenario;
    if (loadInput(scenario, err) != 0)
        return 2;
    const bool live = !m_options.scenarioFile.isEmpty();
    if (live && m_options.methodName.isEmpty() && m_options.methodFile.isEmpty() && m_options.technique == kKnownAddition && !iseBeaker(scenario)) {
        err << "vantor-cli: \"Multiple Known Addition\" needs an ion-selective scenario (\"kind\":\"ise\")\n";
        return 2;
    }

    DataManagerBase dm;
    dm.DataManagerLegacyInit();
    if (live)
        dm.setupModel()->setBuretteSize(int(scenario.config.buretteMl));
    if (methodOfRun(dm, scenario, err) <= 0)
        return 2;
    dm.setDeviceMode(EngineDataPort::modeTitration);
    if (live && dm.engine()->getTitrationTechnique() == kKnownAddition && !iseBeaker(scenario)) {
        err << "vantor-cli: the method \"" << dm.methodModel()->methodName()
            << "\" adds a known standard and needs an ion-selective scenario (\"kind\":\"ise\")\n";
        return 2;
    }
    // The run as the run screen starts it.
    TitrationModel *run = dm.titrationModel();
    run->setCycleno(1);
    run->setTitrationType(EngineDataPort::modeTitration);
    run->setMethodName(dm.methodModel()->methodName());
    QObject::connect(&dm, &DataManagerBase::mkaTitrationCompleted, &dm,
                     [this](const QString &conc, const QString &slope, const QString &spike) {
                         m_outcome.knownAddition = true;
                         m_outcome.mkaResult = {conc.toDouble(), slope.toDouble(), spike.toDouble()};
                     });

    const int status = runEngine(dm, scenario, err);
    if (status == 0 && m_outcome.completed)
        storeRun(dm);
    return status;
}

int TitrateRunner::runEngine(DataManagerBase &dm, Scenario &scenario, QTextStream &err)
{
    const bool live = !m_options.scenarioFile.isEmpty();
    const double speed = m_options.speed;
    const QString device = Platform::path(QStringLiteral("/dev/ttymxc2"));

    std::unique_ptr<VirtualSlave> slave;
    std::unique_ptr<PseudoTerminal> pty;
    std::unique_ptr<SlaveSession> session;
    if (live) {
        slave = std::make_unique<VirtualSlave>(scenario.config, std::move(scenario.beaker));
        pty = std::make_unique<PseudoTerminal>();
        if (!pty->open(device)) {
            err << "vantor-cli: virtual instrument: " << pty->errorString() << "\n";
            return 2;
        }
        session = std::make_unique<SlaveSession>(pty.get(), slave.get());
    }

    mspController msp(device);
    msp.setPollInterval(std::max(1, int(250 / speed)));
    msp.setReadInterval(std::max(1, std::min(40, int(40 / speed))));
    BuretteController burette(&msp);
    burette.setTickInterval(std::max(1, int(250 / speed)));
    SlaveClock clock(&msp);
    TitrationControllerBase tc(&msp, &burette, nullptr);
    tc.setTimeScale(speed);
    if (live) {
        // Everything the run does is counted in the instrument's polls, so
        // the result does not depend on how busy the host is.
        Clock::setSource(&clock);
        burette.tickWithSamples();
        tc.setWaitClock(&clock);
    }

    QEventLoop loop;
    bool completed = false;
    // As the screens do: the data manager took the results, then stop inside the signal.
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
            if (!sampled && info.buretteSize == int(dm.engine()->buretteSize())) {
                sampled = true;
                loop.quit();
            }
        });
        loop.exec();
        if (!sampled) {
            err << "vantor-cli: the virtual instrument did not answer\n";
            Clock::setSource(nullptr);
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

    QFile log(dm.engine()->titrationLogFile()->currentFileName());
    if (log.open(QIODevice::ReadOnly))
        m_outcome.summary = summaryOf(QString::fromUtf8(log.read(1 << 20)));
    Clock::setSource(nullptr);
    return 0;
}

void TitrateRunner::storeRun(DataManagerBase &dm)
{
    const TitrationSetupModel *setup = dm.titrationSetupModel();
    m_outcome.resultUnit = setup->resultUnits();
    if (m_outcome.knownAddition) {
        // The known-addition records are the screens' to write; the result
        // is the one the data manager was handed.
        m_outcome.storedResults = QStringList{QString::number(m_outcome.mkaResult[0], 'g', 6)};
        return;
    }
    TitrationModel *run = dm.titrationModel();
    TitrationCycleModel *cycle = run->titrationCycle(0);
    if (!cycle)
        return;
    const float results[3] = {cycle->calCon(), cycle->calCon2(), cycle->calCon3()};
    const int found = int(std::count_if(m_outcome.results.begin(), m_outcome.results.end(), [](double v) { return v > 0; }));
    // A run that found no end point has no result to print ("none").
    for (int i = 0; i < found; ++i)
        m_outcome.storedResults << QString::number(double(results[i]), 'g', 6);

    // The summary screen's part: the run with its cycle, and the log entry.
    TitrationLogModel entry;
    dm.attachLogModel(&entry);
    if (!RunWithLog::storeTitration(run, &entry, false, false))
        return;
    // The average as the summary screen stores it: each end point's result
    // to four significant figures, joined by " | ".
    QStringList averages;
    for (int i = 0; i < found; ++i)
        averages << ReportValues::sigFigsDec(double(results[i]));
    entry.setAvgConc(averages.isEmpty() ? QStringLiteral("0") : averages.join(QStringLiteral(" | ")));
    entry.setRsd(QStringLiteral("0.00%"));
    entry.updateLog();
    dm.storeRunReport(&entry, QString());
    dm.initializeTitration();
}

void TitrateRunner::report(QTextStream &out) const
{
    out << m_outcome.summary;
    if (m_outcome.knownAddition) {
        out << "Known addition concentration (mol/L): " << QString::number(m_outcome.mkaResult[0], 'g', 6) << "\n";
        out << "Electrode slope (mV/decade): " << QString::number(m_outcome.mkaResult[1], 'f', 2) << "\n";
    }
    if (m_outcome.storedResults.isEmpty() && m_outcome.completed)
        out << "Result: none\n";
    for (int i = 0; i < m_outcome.storedResults.size(); ++i) {
        out << (i == 0 ? QStringLiteral("Result: ") : QStringLiteral("Result %1: ").arg(i + 1))
            << m_outcome.storedResults[i] << " " << m_outcome.resultUnit << "\n";
    }
    out << "Reason for end: " << (m_outcome.reasonForEnd.isEmpty() ? QStringLiteral("Unknown") : m_outcome.reasonForEnd)
        << "\n";
    out << "Doses: " << m_outcome.doses << "\n";
    out << "Duration (s): " << QString::number(m_outcome.durationS, 'f', 1) << "\n";
    out.flush();
}
