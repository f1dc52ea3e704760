// Whole runs of the run controller with the real link, burette and
// algorithm against the virtual instrument on a pseudo-terminal, the
// instrument's clock fifty times real time, the engine's clock following
// the slave's time stamps. The data manager serves the engine from a method
// stored in a fresh database. Also the console runner as a user calls it.

#include "controller/algorithms/temporaldatastore.h"
#include "controller/algorithms/titrationalgorithmbase.h"
#include "controller/algorithms/volumetricdatastore.h"
#include "controller/burettecontroller.h"
#include "controller/mspcontroller.h"
#include "controller/slaveclock.h"
#include "beaker.h"
#include "datamanagerbase.h"
#include "datamigrator.h"
#include "models/methoddraft.h"
#include "reports/logmanager.h"
#include "system/clock.h"
#include "testdatabase.h"
#include "testdatalayer.h"
#include "models/importexport.h"
#include "testsupport.h"
#include "titrationcontrollerbase.h"
#include "virtualinstrumentprocess.h"

#include <QFile>
#include <QPointer>
#include <QTemporaryDir>
#include <QProcess>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <tuple>
#include <vector>

namespace {

constexpr double kSpeed = 50;

// 10 mL of 0.1 mol/L acetic acid made up to 50 mL, 0.1 mol/L NaOH, 20 mL burette.
const char *kAcetic = R"({"burette_mL":20,"seed":1,
  "electrode":{"E0_mV":0,"slope_pct":100,"tau_s":1.0,"noise_mV":0.05},
  "beaker":{"kind":"acid-base","volume_mL":50,
            "analyte":{"pKa":[4.76],"conc_mol_L":0.02,"form":"acid"},
            "titrant":{"kind":"strong-base","conc_mol_L":0.1}}})";

class TitrationRun : public ::testing::Test
{
protected:
    void SetUp() override
    {
        // The content of the file is not what these runs check.
        TestDatabase::exec(QStringLiteral("PRAGMA synchronous=OFF"));
        dm = startedDataManager();
    }
    void TearDown() override
    {
        tc.reset();
        Clock::setSource(nullptr);
        clock.reset();
        bc.reset();
        msp.reset();
        vi.stop();
        dm.reset();
    }

    // The method stored and made current as the method screens do, and the
    // run begun as the run screen does. By default 10 mL of sample by
    // equivalence point with 0.1 mol/L titrant, at most 20 mL.
    void useMethod(const MethodDraft &draft)
    {
        QString error;
        const int id = draft.save(QStringLiteral("Acetic acid"), &error);
        ASSERT_GT(id, 0) << error.toStdString();
        dm->setupModel()->setCurrentMethodId(id);
        dm->reInitializeMethodModel(id);
        dm->setDeviceMode(EngineDataPort::modeTitration);
        dm->titrationModel()->setCycleno(1);
        dm->titrationModel()->setTitrationType(QStringLiteral("Titration"));
    }

    void start(const MethodDraft &draft = MethodDraft(), const char *scenario = kAcetic)
    {
        useMethod(draft);
        ASSERT_TRUE(vi.start(QString::fromUtf8(scenario), kSpeed)) << vi.errorText().toStdString();
        msp = std::make_unique<mspController>(vi.device());
        msp->setPollInterval(int(250 / kSpeed));
        msp->setReadInterval(1);
        bc = std::make_unique<BuretteController>(msp.get());
        bc->setTickInterval(int(250 / kSpeed));
        clock = std::make_unique<SlaveClock>(msp.get());
        Clock::setSource(clock.get());
        tc = std::make_unique<TitrationControllerBase>(msp.get(), bc.get(), nullptr);
        tc->setTimeScale(kSpeed);
        // As the screens do: stop inside the completed signal.
        QObject::connect(tc.get(), &TitrationController::titrationCompletedSignal, tc.get(), [this] {
            reasonAtEnd = tc->algorithm() ? tc->algorithm()->reasonForEnd : QString();
            tc->qmlStopTitration();
        });
        ASSERT_TRUE(waitUntil([&] { return slaveSize() == 20 && Clock::monotonicMs() > 0; }, 10000));
    }

    int slaveSize() const
    {
        mspInfoRecord info;
        msp->msp->getInfo(info);
        return info.buretteSize;
    }

    // The stirrer speed the controller last sent, -1 if none.
    int lastStirCommand() const
    {
        int speed = -1;
        for (const QString &l : vi.traceLines('>')) {
            const QString cmd = l.section(QLatin1Char(' '), 2);
            if (cmd.startsWith(QLatin1String("SSS ")))
                speed = cmd.mid(4).toInt();
        }
        return speed;
    }

    bool runObjectsGone() const
    {
        return !tc->algorithm() && !tc->temporalStore() && !tc->volumetricStore();
    }

    // The stop left the burette on its way home with nothing counted, and it gets there.
    void expectBuretteReset()
    {
        EXPECT_EQ(bc->getTotalDispensed(), 0);
        EXPECT_TRUE(waitUntil([&] { return bc->state() == BuretteController::BURETTE_READY; }, 10000));
        EXPECT_TRUE(waitUntil([&] { return msp->msp->isBuretteAtLoad(); }, 10000));
    }

    TestDatabase db;
    std::unique_ptr<DataManagerBase> dm;
    VirtualInstrumentProcess vi;
    std::unique_ptr<mspController> msp;
    std::unique_ptr<BuretteController> bc;
    std::unique_ptr<SlaveClock> clock;
    std::unique_ptr<TitrationControllerBase> tc;
    QString reasonAtEnd;
};

TEST_F(TitrationRun, AceticAcidEndsWithinHalfAPercentOfTheTrueVolume)
{
    start();
    QSignalSpy completed(tc.get(), &TitrationController::titrationCompletedSignal);
    QSignalSpy notification(tc.get(), &TitrationController::titrationNotification);
    QSignalSpy points(tc.get(), &TitrationControllerBase::newPoint);
    tc->qmlStartTitration();
    ASSERT_EQ(dm->titrationModel()->titrationCyclesCount(), 1) << "the run's cycle is begun";
    ASSERT_TRUE(waitUntil([&] { return completed.count() == 1; }, 60000)) << "the run must end";

    const double found = dm->engine()->getResultArray()[0];
    EXPECT_NEAR(found, 10000.0, 50.0) << "within 0.5 % of 10.00 mL";
    // The data manager took the results: the cycle holds the volume and the
    // sample's concentration (10 mL of 0.1 mol/L acid).
    ASSERT_EQ(dm->titrationModel()->titrationCyclesCount(), 1);
    const TitrationCycleModel *cycle = dm->titrationModel()->titrationCycle(0);
    EXPECT_NEAR(cycle->veqp(), found / 1000.0, 1e-3);
    EXPECT_NEAR(cycle->calCon(), 0.1, 0.0005);
    EXPECT_EQ(reasonAtEnd, QStringLiteral("Reached final equivalence point at count: 1"));
    ASSERT_EQ(notification.count(), 1);
    EXPECT_FALSE(notification.at(0).at(0).toBool()) << "not stopped by the volume limit";
    EXPECT_TRUE(dm->engine()->getTitrationCancelled()) << "the normal end passes through the stop";
    EXPECT_GT(points.count(), 10);
    EXPECT_EQ(cycle->graphPoints().count(QLatin1Char('(')), points.count()) << "every point is on the curve";

    // The summary as the run log and the console have it.
    QFile logFile(dm->engine()->titrationLogFile()->currentFileName());
    ASSERT_TRUE(logFile.open(QIODevice::ReadOnly));
    const QString log = QString::fromUtf8(logFile.readAll()); // line ends as written
    EXPECT_TRUE(log.contains(QStringLiteral("\r\nTitration Summary\r\nTotal Vol Dispensed (ul):")));
    EXPECT_TRUE(log.contains(QStringLiteral("End Point 1 Volume Dispensed (ul):%1\r\n").arg(found, 0, 'g')));
    EXPECT_FALSE(log.contains(QStringLiteral("End Point 2")));
    EXPECT_TRUE(log.contains(QStringLiteral("-------------------- TITRATION END ------------------\r\n")));

    // What the instrument delivered is what the controller ordered.
    EXPECT_GT(tc->lastRun().totalDispensedUl, 10000);
    EXPECT_EQ(lastStirCommand(), 0);
    expectBuretteReset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(runObjectsGone());
    EXPECT_EQ(tc->state(), TitrationController::TITRATION_STATE_IDLE);
}

TEST_F(TitrationRun, CancelDuringTheHomingPollStartsNothing)
{
    start();
    tc->qmlStartTitration();
    ASSERT_TRUE(tc->homePollPending());
    tc->qmlStopTitration();
    // The poll goes on until the piston is home, then sees the cancel.
    ASSERT_TRUE(waitUntil([&] { return !tc->homePollPending(); }, 10000));
    EXPECT_FALSE(tc->preStirring());
    EXPECT_EQ(lastStirCommand(), 0) << "the stirrer was never started";
    EXPECT_FALSE(dm->qmlStirrerState());
    EXPECT_TRUE(runObjectsGone());
    expectBuretteReset();
}

TEST_F(TitrationRun, CancelDuringThePreStirStopsTheTimerAndTheStirrer)
{
    MethodDraft draft;
    draft.preStirS = 600; // 12 s at the instrument's speed: long enough on a busy host
    draft.stirSpeed = QStringLiteral("Fast");
    start(draft);
    tc->qmlStartTitration();
    ASSERT_TRUE(waitUntil([&] { return tc->preStirring(); }, 10000));
    EXPECT_TRUE(waitUntil([&] { return lastStirCommand() == 4; }, 5000)) << "the stirrer was not started";
    tc->qmlStopTitration();
    EXPECT_FALSE(tc->preStirring());
    EXPECT_TRUE(waitUntil([&] { return lastStirCommand() == 0; }, 5000));
    EXPECT_FALSE(dm->qmlStirrerState());
    EXPECT_TRUE(runObjectsGone());
    expectBuretteReset();
    EXPECT_EQ(tc->state(), TitrationController::TITRATION_STATE_IDLE);
}

TEST_F(TitrationRun, CancelDuringTheRunReleasesEverything)
{
    start();
    tc->qmlStartTitration();
    ASSERT_TRUE(waitUntil([&] { return tc->algorithm() && bc->getTotalDispensed() > 500; }, 30000));
    QPointer<QObject> algorithm = tc->algorithm();
    QPointer<QObject> temporal = tc->temporalStore();
    QPointer<QObject> volumetric = tc->volumetricStore();
    tc->qmlStopTitration();
    EXPECT_TRUE(runObjectsGone());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(algorithm.isNull());
    EXPECT_TRUE(temporal.isNull());
    EXPECT_TRUE(volumetric.isNull());
    EXPECT_TRUE(waitUntil([&] { return lastStirCommand() == 0; }, 5000));
    EXPECT_TRUE(dm->engine()->getTitrationCancelled());
    expectBuretteReset();
    // No sample reaches the controller after the stop.
    const int samples = tc->sampleCount();
    waitUntil([&] { return false; }, 100);
    EXPECT_EQ(tc->sampleCount(), samples);
}

// Whole runs of each technique through the console runner and the virtual
// instrument: what it prints against the scenario's chemistry.
struct CliRun {
    const char *name;
    const char *scenario;     // a file of the scenarios folder, or the scenario itself
    QStringList options;
    // Each figure the summary must show: a pattern with one number, its value, the tolerance.
    std::vector<std::tuple<const char *, double, double>> figures;
    const char *reason;       // a line the summary must hold, or nullptr
};

class VantorCliRun : public ::testing::TestWithParam<CliRun>
{
};

TEST_P(VantorCliRun, PrintsTheScenariosChemistry)
{
    const CliRun &c = GetParam();
    QTemporaryDir dir;
    QString scenario = QStringLiteral(KESTRUM_SOURCE_DIR "/tools/virtual-instrument/scenarios/%1")
                           .arg(QLatin1String(c.scenario));
    if (c.scenario[0] == '{') {
        scenario = dir.filePath(QStringLiteral("scenario.json"));
        QFile f(scenario);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(c.scenario);
    }
    int code = -1;
    const QString text = runVantorCli(QStringList{QStringLiteral("titrate"), QStringLiteral("--scenario"), scenario,
                                                  QStringLiteral("--speed"), QStringLiteral("50")}
                                          + c.options,
                                      &code);
    EXPECT_EQ(code, 0) << text.toStdString();
    EXPECT_TRUE(text.startsWith(QStringLiteral("Titration Summary\nTotal Vol Dispensed (ul):"))) << text.toStdString();
    for (const auto &[pattern, value, tolerance] : c.figures) {
        const QRegularExpressionMatch m = QRegularExpression(QString::fromUtf8(pattern)).match(text);
        ASSERT_TRUE(m.hasMatch()) << pattern << "\n" << text.toStdString();
        EXPECT_NEAR(m.captured(1).toDouble(), value, tolerance) << pattern;
    }
    if (c.reason) {
        EXPECT_TRUE(text.contains(QString::fromUtf8(c.reason))) << text.toStdString();
    }
    EXPECT_TRUE(text.contains(QRegularExpression(QStringLiteral("Duration \\(s\\): [0-9]+\\.[0-9]\n"))));
}

// 5 mL of 0.1 mol/L HCl in 50 mL with 0.1 mol/L NaOH reaches -118 mV (about
// pH 9 on the ideal electrode) at 5.005 mL, by the charge balance.
INSTANTIATE_TEST_SUITE_P(
    Techniques, VantorCliRun,
    ::testing::Values(
        // 10 mL of sample unless told otherwise: the acid's 0.1 mol/L.
        CliRun{"AceticAcidToItsEquivalencePoint", "acetic-acid-10ml.json",
               {QStringLiteral("--technique"), QStringLiteral("Equivalence Pt.")},
               {{"End Point 1 Volume Dispensed \\(ul\\):([0-9.]+)\n", 10000.0, 50.0},
                {"\nResult: ([0-9.e-]+) M\n", 0.1, 0.0005}},
               "Reason for end: Reached final equivalence point at count: 1\n"},
        // 0.001 mol/L sodium, a 0.1 mol/L standard, a 98 % electrode (57.98 mV/decade).
        CliRun{"SodiumByKnownAddition", "sodium-ise.json",
               {QStringLiteral("--technique"), QStringLiteral("Multiple Known Addition")},
               {{"Known addition concentration \\(mol/L\\): ([0-9.e-]+)\n", 0.001, 0.00002},
                {"Electrode slope \\(mV/decade\\): ([0-9.]+)\n", 57.98, 1.0},
                {"\nResult: ([0-9.e-]+) M\n", 0.001, 0.00002}},
               nullptr},
        CliRun{"HydrochloricAcidToAPresetPotential",
               R"({"burette_mL":20,"seed":1,"electrode":{"E0_mV":0,"slope_pct":100,"tau_s":1.0,"noise_mV":0.05},
                   "beaker":{"kind":"acid-base","volume_mL":50,"analyte":{"pKa":[-6],"conc_mol_L":0.01,"form":"acid"},
                             "titrant":{"kind":"strong-base","conc_mol_L":0.1}}})",
               {QStringLiteral("--technique"), QStringLiteral("Preset End Pt."), QStringLiteral("--endpoint-mv"),
                QStringLiteral("-118")},
               {{"End Point 1 Volume Dispensed \\(ul\\):([0-9.]+)\n", 5005.4, 25.0}},
               "Reason for end: Passed below final endpoint: -118\n"}),
    [](const ::testing::TestParamInfo<CliRun> &info) { return std::string(info.param.name); });

// One seed, one result: two known-addition runs of the same scenario, side
// by side so that each loads the machine for the other, print the same
// figures to the last digit. The instrument's time is counted in polls, not
// taken from the wall clock.
TEST(VantorCli, TheSameSeedGivesTheSameResultUnderLoad)
{
    const QStringList args{QStringLiteral("titrate"), QStringLiteral("--scenario"),
                           QStringLiteral(KESTRUM_SOURCE_DIR "/tools/virtual-instrument/scenarios/sodium-ise.json"),
                           QStringLiteral("--technique"), QStringLiteral("Multiple Known Addition"),
                           QStringLiteral("--speed"), QStringLiteral("100")};
    QProcess a, b;
    for (QProcess *p : {&a, &b})
        p->start(QStringLiteral(KESTRUM_BIN_DIR "/vantor-cli"), args);
    ASSERT_TRUE(a.waitForFinished(180000) && b.waitForFinished(180000));
    const QString first = QString::fromLocal8Bit(a.readAllStandardOutput());
    const QString second = QString::fromLocal8Bit(b.readAllStandardOutput());
    EXPECT_EQ(a.exitCode(), 0) << first.toStdString();
    EXPECT_TRUE(first.contains(QStringLiteral("Known addition concentration"))) << first.toStdString();
    EXPECT_EQ(first, second);
}

// The runner's own method is one, written over by each run: a sandbox takes
// any number of runs (the library holds ten methods). A relative sandbox is
// taken from the working directory.
TEST(VantorCli, ReusesItsOwnMethodAndTakesARelativeSandbox)
{
    QTemporaryDir work;
    const QString curve = work.filePath(QStringLiteral("curve.txt"));
    QString text;
    for (int ul = 0; ul <= 8000; ul += 100)
        text += QStringLiteral("%1, %2\n").arg(ul).arg(200.0 * std::tanh((ul - 5000) / 300.0), 0, 'f', 3);
    writeTextFile(curve, text);
    int code = -1;
    QString out = runVantorCli({QStringLiteral("titrate"), QStringLiteral("--scenario"),
                          QStringLiteral(KESTRUM_SOURCE_DIR "/tools/virtual-instrument/scenarios/acetic-acid-10ml.json"),
                          QStringLiteral("--sandbox"), QStringLiteral("box"), QStringLiteral("--timeout"),
                          QStringLiteral("120")},
                         &code, work.path());
    ASSERT_EQ(code, 0) << out.toStdString();
    for (int run = 0; run < 11; ++run) {
        out = runVantorCli({QStringLiteral("titrate"), QStringLiteral("--replay"), curve, QStringLiteral("--sandbox"),
                      QStringLiteral("box"), QStringLiteral("--sample-ml"), QString::number(run + 1)},
                     &code, work.path());
        ASSERT_EQ(code, 0) << "run " << run << ": " << out.toStdString();
    }
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("box"));
        db.setDatabaseName(work.filePath(QStringLiteral("box/var/KestrumDB")));
        ASSERT_TRUE(db.open());
        QSqlQuery q(db);
        ASSERT_TRUE(q.exec(QStringLiteral("SELECT m.methodName, t.sampleAmountValue FROM methodSetupTable m "
                                          "JOIN titrationSetupTable t ON t.methodId = m.id WHERE m.id != 99999")));
        ASSERT_TRUE(q.next());
        EXPECT_EQ(q.value(0).toString(), QStringLiteral("(vantor-cli)"));
        EXPECT_FLOAT_EQ(q.value(1).toFloat(), 11.f) << "the last run's options";
        EXPECT_FALSE(q.next()) << "one method for all the runs";
    }
    QSqlDatabase::removeDatabase(QStringLiteral("box"));
}

// A method stored in the sandbox's database beforehand (20 mL of sample)
// runs by name, and its run and log entry land in that file.
TEST(VantorCli, RunsAStoredMethodByNameAndStoresItsRun)
{
    TestDatabase db;
    // A new file gets its version row on the application's second start.
    DataMigrator::dmPtr()->migrate();
    ASSERT_TRUE(DataMigrator::dmPtr()->migrate());
    MethodDraft draft;
    draft.sampleMl = 20.f;
    QString error;
    const int id = draft.save(QStringLiteral("Acetic 20 mL"), &error);
    ASSERT_GT(id, 0) << error.toStdString();
    db.close();
    const QString root = Platform::sandboxRoot();
    const QString scenario = QStringLiteral(KESTRUM_SOURCE_DIR "/tools/virtual-instrument/scenarios/acetic-acid-10ml.json");

    int code = 0;
    QString text = runVantorCli({QStringLiteral("titrate"), QStringLiteral("--scenario"), scenario, QStringLiteral("--method"),
                           QStringLiteral("Acetic 21 mL"), QStringLiteral("--sandbox"), root},
                          &code);
    EXPECT_EQ(code, 2) << text.toStdString();
    EXPECT_TRUE(text.contains(QStringLiteral("no method \"Acetic 21 mL\""))) << text.toStdString();

    text = runVantorCli({QStringLiteral("titrate"), QStringLiteral("--scenario"), scenario, QStringLiteral("--method"),
                   QStringLiteral("Acetic 20 mL"), QStringLiteral("--sandbox"), root, QStringLiteral("--speed"),
                   QStringLiteral("50")},
                  &code);
    EXPECT_EQ(code, 0) << text.toStdString();
    const QRegularExpressionMatch r = QRegularExpression(QStringLiteral("\nResult: ([0-9.e-]+) M\n")).match(text);
    ASSERT_TRUE(r.hasMatch()) << text.toStdString();
    EXPECT_NEAR(r.captured(1).toDouble(), 0.05, 0.00025) << "1 mmol of acid in 20 mL";

    ASSERT_TRUE(db.open());
    QSqlQuery run;
    ASSERT_TRUE(run.exec(QStringLiteral("SELECT c.calCon FROM titrationTable t JOIN titrationCycleTable c "
                                        "ON c.titrationId = t.id WHERE t.methodId = %1").arg(id)));
    ASSERT_TRUE(run.next()) << "the run and its cycle are stored under the method";
    EXPECT_NEAR(run.value(0).toDouble(), r.captured(1).toDouble(), 1e-6);
    EXPECT_EQ(TestDatabase::rowCount(QStringLiteral("titrationLogTable"),
                                     QStringLiteral("methodName = 'Acetic 20 mL'")), 1);
    EXPECT_EQ(TestDatabase::rowCount(QStringLiteral("reportSetupTable"),
                                     QStringLiteral("reportType = 'Titration' AND titrationId = (SELECT id FROM titrationLogTable) "
                                                    "AND reportString LIKE '%\"Method Name\",\"Acetic 20 mL\"%'")), 1)
        << "the run's report row, as the summary stores it";
    EXPECT_EQ(TestDatabase::rowCount(QStringLiteral("methodSetupTable"), QStringLiteral("id != 99999")), 1)
        << "no method of the options was added";
}

// A method exported on one instrument (a method file: its rows of the four
// method tables and systemInfo) runs on another: vantor-cli installs it into
// a fresh database and the result follows the file's sample amount.
TEST(VantorCli, RunsTheMethodOfAMethodFile)
{
    QTemporaryDir out;
    const QString file = out.filePath(QStringLiteral("Acetic 25 mL.json"));
    {
        TestDatabase db;
        DataMigrator::dmPtr()->migrate();
        ASSERT_TRUE(DataMigrator::dmPtr()->migrate());
        MethodDraft draft;
        draft.sampleMl = 25.f;
        QString error;
        const int id = draft.save(QStringLiteral("Acetic 25 mL"), &error);
        ASSERT_GT(id, 0) << error.toStdString();
        ImportExport io(file);
        ASSERT_TRUE(io.exportQueries(
            {QStringLiteral("SELECT * FROM methodSetupTable WHERE id=%1").arg(id),
             QStringLiteral("SELECT * FROM electrodeSetupTable WHERE methodId=%1").arg(id),
             QStringLiteral("SELECT * FROM titrationSetupTable WHERE methodId=%1").arg(id),
             QStringLiteral("SELECT * FROM titrantSetupTable WHERE methodId=%1").arg(id),
             QStringLiteral("SELECT * FROM systemInfo")},
            {QStringLiteral("methodSetupTable"), QStringLiteral("electrodeSetupTable"),
             QStringLiteral("titrationSetupTable"), QStringLiteral("titrantSetupTable"), QStringLiteral("systemInfo")},
            QString()));
    }
    const QString scenario = QStringLiteral(KESTRUM_SOURCE_DIR "/tools/virtual-instrument/scenarios/acetic-acid-10ml.json");
    int code = 0;
    const QString text = runVantorCli({QStringLiteral("titrate"), QStringLiteral("--scenario"), scenario,
                                 QStringLiteral("--method"), file, QStringLiteral("--speed"), QStringLiteral("50")},
                                &code);
    EXPECT_EQ(code, 0) << text.toStdString();
    const QRegularExpressionMatch r = QRegularExpression(QStringLiteral("\nResult: ([0-9.e-]+) M\n")).match(text);
    ASSERT_TRUE(r.hasMatch()) << text.toStdString();
    EXPECT_NEAR(r.captured(1).toDouble(), 0.04, 0.0002) << "1 mmol of acid in 25 mL";

    // A file that is not a method file is refused with a message.
    const QString junk = out.filePath(QStringLiteral("junk.json"));
    writeTextFile(junk, QStringLiteral("[1,2,3]"));
    const QString refused = runVantorCli({QStringLiteral("titrate"), QStringLiteral("--scenario"), scenario,
                                    QStringLiteral("--method"), junk},
                                   &code);
    EXPECT_EQ(code, 2) << refused.toStdString();
    EXPECT_TRUE(refused.contains(QStringLiteral("method file"))) << refused.toStdString();
    EXPECT_FALSE(refused.contains(QStringLiteral("Titration Summary")));

    // "method install" puts the same file on an instrument twice as two
    // methods, the second under a name of its own; the junk file adds none.
    QTemporaryDir box;
    const QString sandbox = box.path();
    for (const QString &name : {QStringLiteral("Acetic 25 mL"), QStringLiteral("Acetic 25 mL~1")}) {
        const QString installed = runVantorCli({QStringLiteral("method"), QStringLiteral("install"), file,
                                                QStringLiteral("--sandbox"), sandbox}, &code);
        EXPECT_EQ(code, 0) << installed.toStdString();
        EXPECT_TRUE(installed.contains(QStringLiteral("Installed \"%1\" as method").arg(name))) << installed.toStdString();
    }
    runVantorCli({QStringLiteral("method"), QStringLiteral("install"), junk, QStringLiteral("--sandbox"), sandbox}, &code);
    EXPECT_EQ(code, 2);
    const QString listed = runVantorCli({QStringLiteral("method"), QStringLiteral("list"), QStringLiteral("--sandbox"), sandbox}, &code);
    EXPECT_EQ(code, 0);
    EXPECT_TRUE(listed.contains(QStringLiteral("\tAcetic 25 mL~1\tpH\tEquivalence Pt.\n"))) << listed.toStdString();
    EXPECT_TRUE(listed.endsWith(QStringLiteral("2 of 10 methods\n"))) << listed.toStdString();
}

// Other instruments' files replay as the same curve: semicolons with mL
// and pH (decimal commas), blank-separated columns (a decimal comma in the
// second), comma-separated µL and mV under a header with blanks in its
// names all give the same end point; a curve that stops before its break
// ends with "end of data".
TEST(VantorCli, ReplaysOtherInstrumentsFiles)
{
    QTemporaryDir work;
    const double nernst = Beaker::nernstSlope(25.0);
    QString semicolons = QStringLiteral("Volume (mL);pH\n"), blanks = QStringLiteral("ml   ph\n");
    QString plain = QStringLiteral("Volume (uL),E (mV)\n"), cut;
    for (int k = 0; k <= 120; ++k) {
        const double ul = 60.0 + 83.5 * k; // fractional µL
        const double ph = QString::number(7.0 + 3.0 * std::tanh((ul - 5020.0) / 250.0), 'f', 6).toDouble();
        const QString ml = QString::number(ul / 1000.0, 'f', 4);
        semicolons += QString(ml).replace(QLatin1Char('.'), QLatin1Char(',')) + QLatin1Char(';')
                      + QString::number(ph, 'f', 6).replace(QLatin1Char('.'), QLatin1Char(',')) + QLatin1Char('\n');
        blanks += ml + QStringLiteral("   ") + QString::number(ph, 'f', 6).replace(QLatin1Char('.'), QLatin1Char(','))
                  + QLatin1Char('\n');
        const QString row = QStringLiteral("%1, %2\n").arg(ul, 0, 'f', 1).arg((7.0 - ph) * nernst, 0, 'g', 17);
        plain += row;
        if (ul < 4000.0)
            cut += row;
    }
    const QStringList texts{plain, semicolons, blanks};
    std::vector<double> endPoints;
    for (int i = 0; i < texts.size(); ++i) {
        const QString file = work.filePath(QStringLiteral("curve-%1.txt").arg(i));
        writeTextFile(file, texts[i]);
        int code = -1;
        const QString out = runVantorCli({QStringLiteral("titrate"), QStringLiteral("--replay"), file}, &code);
        ASSERT_EQ(code, 0) << out.toStdString();
        const QRegularExpressionMatch m =
            QRegularExpression(QStringLiteral("End Point 1 Volume Dispensed \\(ul\\):([0-9.]+)\n")).match(out);
        ASSERT_TRUE(m.hasMatch()) << out.toStdString();
        EXPECT_NEAR(m.captured(1).toDouble(), 5020.0, 8.0) << out.toStdString();
        endPoints.push_back(m.captured(1).toDouble());
    }
    EXPECT_NEAR(endPoints[1], endPoints[0], 0.01) << "mL and pH, semicolons";
    EXPECT_NEAR(endPoints[2], endPoints[0], 0.01) << "blanks";

    const QString file = work.filePath(QStringLiteral("cut.txt"));
    writeTextFile(file, cut);
    int code = -1;
    const QString out = runVantorCli({QStringLiteral("titrate"), QStringLiteral("--replay"), file}, &code);
    EXPECT_EQ(code, 0) << out.toStdString();
    EXPECT_TRUE(out.contains(QStringLiteral("Reason for end: end of data; no equivalence point found")))
        << out.toStdString();
}

TEST(VantorCli, BadOptionsAndFilesAreRefusedWithAMessage)
{
    const QString scenario = QStringLiteral(KESTRUM_SOURCE_DIR "/tools/virtual-instrument/scenarios/acetic-acid-10ml.json");
    // Curves with nothing to titrate and a beaker of negative strength.
    QTemporaryDir files;
    const QString empty = files.filePath(QStringLiteral("empty.txt"));
    const QString junk = files.filePath(QStringLiteral("junk.txt"));
    const QString negative = files.filePath(QStringLiteral("negative.json"));
    writeTextFile(empty, QString());
    writeTextFile(junk, QStringLiteral("volume, mV\nfifty, 3\n1, nan\n2, 5\n"));
    writeTextFile(negative, QStringLiteral(R"({"beaker":{"analyte":{"conc_mol_L":-0.1}}})"));
    const QString halfSeed = files.filePath(QStringLiteral("seed.json"));
    writeTextFile(halfSeed, QStringLiteral(R"({"seed":2.5})"));
    const QList<QStringList> bad = {
        {QStringLiteral("titrate"), QStringLiteral("--scenario"), halfSeed},
        {QStringLiteral("titrate"), QStringLiteral("--scenario"), scenario, QStringLiteral("--sandbox"), QString()},
        {QStringLiteral("measure"), QStringLiteral("--scenario"), scenario, QStringLiteral("--sandbox"), QString()},
        {QStringLiteral("method"), QStringLiteral("list"), QStringLiteral("--sandbox"), QString()},
        {},
        {QStringLiteral("dance")},
        {QStringLiteral("titrate")},
        {QStringLiteral("titrate"), QStringLiteral("--scenario"), scenario, QStringLiteral("--replay"), scenario},
        {QStringLiteral("titrate"), QStringLiteral("--scenario"), scenario, QStringLiteral("--technique"), QStringLiteral("Titration")},
        {QStringLiteral("titrate"), QStringLiteral("--scenario"), scenario, QStringLiteral("--endpoints"), QStringLiteral("4")},
        {QStringLiteral("titrate"), QStringLiteral("--scenario"), scenario, QStringLiteral("--endpoint-mv"), QStringLiteral("1,x")},
        {QStringLiteral("titrate"), QStringLiteral("--scenario"), scenario, QStringLiteral("--process-control"), QStringLiteral("Slow")},
        {QStringLiteral("titrate"), QStringLiteral("--scenario"), scenario, QStringLiteral("--max-volume-ml"), QStringLiteral("-1")},
        {QStringLiteral("titrate"), QStringLiteral("--scenario"), scenario, QStringLiteral("--predose-ml"), QStringLiteral("30")},
        {QStringLiteral("titrate"), QStringLiteral("--scenario"), scenario, QStringLiteral("--speed"), QStringLiteral("nan")},
        {QStringLiteral("titrate"), QStringLiteral("--scenario"), scenario, QStringLiteral("--colour")},
        {QStringLiteral("titrate"), QStringLiteral("--scenario"), QStringLiteral("/nonexistent/scenario.json")},
        {QStringLiteral("titrate"), QStringLiteral("--replay"), QStringLiteral("/nonexistent/curve.txt")},
        {QStringLiteral("titrate"), QStringLiteral("--scenario"), scenario, QStringLiteral("--technique"),
         QStringLiteral("Multiple Known Addition")},
        {QStringLiteral("titrate"), QStringLiteral("--scenario"), scenario, QStringLiteral("--method"), QStringLiteral("A")},
        {QStringLiteral("titrate"), QStringLiteral("--scenario"), scenario, QStringLiteral("--method"), QStringLiteral("A"),
         QStringLiteral("--sandbox"), QStringLiteral("/tmp"), QStringLiteral("--endpoints"), QStringLiteral("2")},
        {QStringLiteral("titrate"), QStringLiteral("--scenario"), scenario, QStringLiteral("--sample-ml"), QStringLiteral("0")},
        {QStringLiteral("titrate"), QStringLiteral("--replay"), empty},
        {QStringLiteral("titrate"), QStringLiteral("--replay"), junk},
        {QStringLiteral("titrate"), QStringLiteral("--scenario"), negative},
    };
    for (const QStringList &args : bad) {
        int code = 0;
        const QString text = runVantorCli(args, &code);
        EXPECT_EQ(code, 2) << args.join(QLatin1Char(' ')).toStdString();
        EXPECT_FALSE(text.trimmed().isEmpty()) << args.join(QLatin1Char(' ')).toStdString();
        EXPECT_FALSE(text.contains(QStringLiteral("Titration Summary")));
    }
}

} // namespace
