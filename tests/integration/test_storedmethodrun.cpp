// A stored method run end to end: the method is made in a fresh database, the
// data manager answers the engine from it, the run controller titrates
// against the virtual instrument on a pseudo-terminal (clock fifty times real
// time), and the run, its cycle and its log entry are read back from the
// SQLite file as the log screens would find them. The titrant is first
// standardised against a known acid, and the titration then uses the
// concentration the standardisation found.

#include "controller/burettecontroller.h"
#include "controller/mspcontroller.h"
#include "controller/slaveclock.h"
#include "datamanagerbase.h"
#include "models/electrodesetupmodel.h"
#include "models/titrantsetupmodel.h"
#include "models/titrationsetupmodel.h"
#include "system/clock.h"
#include "testdatabase.h"
#include "testsupport.h"
#include "titrationcontrollerbase.h"
#include "virtualinstrumentprocess.h"

#include <QSignalSpy>
#include <QSqlQuery>
#include <QSqlRecord>
#include <gtest/gtest.h>

#include <memory>

namespace {

constexpr double kSpeed = 50;

// 10 mL of 0.1 mol/L acetic acid made up to 50 mL; the sodium hydroxide in
// the burette is 0.105 mol/L, though its bottle says 0.1.
const char *kScenario = R"({"burette_mL":20,"seed":3,
  "electrode":{"E0_mV":0,"slope_pct":100,"tau_s":1.0,"noise_mV":0.05},
  "beaker":{"kind":"acid-base","volume_mL":50,
            "analyte":{"pKa":[4.76],"conc_mol_L":0.02,"form":"acid"},
            "titrant":{"kind":"strong-base","conc_mol_L":0.105}}})";
const char *kFreshBeaker = R"(beaker {"kind":"acid-base","volume_mL":50,
  "analyte":{"pKa":[4.76],"conc_mol_L":0.02,"form":"acid"},
  "titrant":{"kind":"strong-base","conc_mol_L":0.105}})";

constexpr double kTrueTitrant = 0.105;          // mol/L
constexpr double kTrueVolumeMl = 10.0 * 0.1 / kTrueTitrant;
constexpr double kTrueSample = 0.1;             // mol/L

QVariant cell(const QString &sql)
{
    QSqlQuery q;
    if (!q.exec(sql) || !q.next())
        return QVariant();
    return q.value(0);
}

class StoredMethodRun : public ::testing::Test
{
protected:
    void SetUp() override
    {
        // The content of the file is checked here, not its durability.
        TestDatabase::exec(QStringLiteral("PRAGMA synchronous=OFF"));
        dm = std::make_unique<DataManagerBase>();
        dm->DataManagerLegacyInit();
        titrationLog = std::make_unique<TitrationLogModel>();
        standLog = std::make_unique<StandardisationLogModel>();
        dm->attachLogModel(titrationLog.get());
        dm->attachLogModel(standLog.get());
    }
    void TearDown() override
    {
        tc.reset();
        Clock::setSource(nullptr);
        clock.reset();
        bc.reset();
        msp.reset();
        vi.stop();
        titrationLog.reset();
        standLog.reset();
        dm.reset();
    }

    // What the method screens store: acetic acid by equivalence point, mV on
    // the chart, the titrant standardised against 10 mL of 0.1 mol/L acid.
    int saveMethod()
    {
        MethodModel m;
        ElectrodeSetupModel *e = m.electrodeSetupModel();
        e->setElectrodeType(QStringLiteral("pH"));
        e->setResolution(0.01f);
        TitrantSetupModel *t = m.titrantSetupModel();
        t->setTitrantName(QStringLiteral("NaOH"));
        t->setConcInputMode(QStringLiteral("Standardization"));
        t->setNominalConc(0.1f);
        t->setNominalConc_Unit(QStringLiteral("M"));
        t->setResultUnits(QStringLiteral("M"));
        t->setTitrantConcentrationValue(0.1f);
        t->setStandTechnique(QStringLiteral("Equivalence Pt."));
        t->setStandProcessControl(QStringLiteral("Routine"));
        t->setNoOfEndPoints(1);
        t->setStandAmount(QStringLiteral("Fixed Volume"));
        t->setStandAmount_Value(10.0f);
        t->setStandConcentration(0.1f);
        t->setStandReactionRatio(1.0f);
        t->setPreDoseTitrantVolume(0.0f);
        t->setMaxTotalVolume(20.0f);
        t->setPreStirDuration(0.0f);
        t->setStirSpeed(QStringLiteral("Medium"));
        TitrationSetupModel *s = m.titrationSetupModel();
        s->setTitrationTechnique(QStringLiteral("Equivalence Pt."));
        s->setTitrationProcessControl(QStringLiteral("Routine"));
        s->setTitrationType(QStringLiteral("Direct Titration"));
        s->setNoOfEndPoints(1);
        s->setDisplayUnits(QStringLiteral("mV"));
        s->setSampleAmount(QStringLiteral("Fixed Volume"));
        s->setSampleAmountValue(10.0f);
        s->setResultUnits(QStringLiteral("M"));
        s->setReactionRatio(1.0f);
        s->setBlankRequired(QStringLiteral("None"));
        s->setPreDoseTitrantVolume(0.0f);
        s->setMaxTotalTitrantVolume(20.0f);
        s->setPreStirDuration(0.0f);
        s->setStirSpeed(QStringLiteral("Medium"));
        m.saveMethodValues(QStringLiteral("Acetic acid"), QString());
        EXPECT_EQ(m.success(), 1);
        return m.id();
    }

    void startInstrument()
    {
        ASSERT_TRUE(vi.start(QString::fromUtf8(kScenario), kSpeed)) << vi.errorText().toStdString();
        msp = std::make_unique<mspController>(vi.device());
        msp->setPollInterval(int(250 / kSpeed));
        msp->setReadInterval(1);
        bc = std::make_unique<BuretteController>(msp.get());
        bc->setTickInterval(int(250 / kSpeed));
        clock = std::make_unique<SlaveClock>(msp.get());
        Clock::setSource(clock.get());
        tc = std::make_unique<TitrationControllerBase>(msp.get(), bc.get(), nullptr);
        tc->setTimeScale(kSpeed);
        // As the screens do: stop inside the completed signal, after the
        // data manager took the results.
        QObject::connect(tc.get(), &TitrationController::titrationCompletedSignal, tc.get(),
                         [this] { tc->qmlStopTitration(); });
        ASSERT_TRUE(waitUntil(
            [&] {
                mspInfoRecord info;
                msp->msp->getInfo(info);
                return info.buretteSize == 20 && Clock::monotonicMs() > 0;
            },
            10000));
    }

    // One cycle as the run screen starts it; the summary screen then writes
    // the run. Returns the cycle.
    TitrationCycleModel *runCycle(const QString &mode, const QString &runType)
    {
        dm->setDeviceMode(mode);
        TitrationModel *run = dm->titrationModel();
        run->setCycleno(1);
        run->setTitrationType(runType);
        run->setMethodName(dm->methodModel()->methodName());
        QSignalSpy completed(tc.get(), &TitrationController::titrationCompletedSignal);
        tc->qmlStartTitration();
        if (!waitUntil([&] { return completed.count() == 1; }, 90000))
            return nullptr;
        EXPECT_TRUE(waitUntil([&] { return bc->state() == BuretteController::BURETTE_READY; }, 10000));
        EXPECT_TRUE(waitUntil([&] { return msp->msp->isBuretteAtLoad(); }, 10000));
        return run->titrationCyclesCount() == 1 ? run->titrationCycle(0) : nullptr;
    }

    std::unique_ptr<DataManagerBase> dm;
    std::unique_ptr<TitrationLogModel> titrationLog;
    std::unique_ptr<StandardisationLogModel> standLog;
    TestDatabase db;
    VirtualInstrumentProcess vi;
    std::unique_ptr<mspController> msp;
    std::unique_ptr<BuretteController> bc;
    std::unique_ptr<SlaveClock> clock;
    std::unique_ptr<TitrationControllerBase> tc;
};

} // namespace

TEST_F(StoredMethodRun, StandardisationThenTitrationOfAStoredMethodLandInTheFile)
{
    const int methodId = saveMethod();
    ASSERT_GT(methodId, 0);
    dm->setupModel()->setCurrentMethodId(methodId);
    dm->reInitializeMethodModel(methodId);
    ASSERT_EQ(dm->methodModel()->id(), methodId);
    startInstrument();

    // ---- The standardisation: the titrant's concentration is found. ----
    TitrationCycleModel *stdCycle = runCycle(QStringLiteral("Standardization"), QStringLiteral("Standardization"));
    ASSERT_NE(stdCycle, nullptr) << "the standardisation must end";
    EXPECT_NEAR(stdCycle->veqp(), kTrueVolumeMl, kTrueVolumeMl * 0.005);
    EXPECT_NEAR(stdCycle->calCon(), kTrueTitrant, kTrueTitrant * 0.005);
    EXPECT_GT(stdCycle->graphPoints().count(QLatin1Char('|')), 10) << "the curve is on the cycle";
    ASSERT_TRUE(dm->titrationModel()->setTitrationValues(false));
    const int stdRunId = dm->titrationModel()->id();
    standLog->saveLogValues(false);
    standLog->setAvgConc(QString::number(double(stdCycle->calCon()), 'g', 6));
    ASSERT_TRUE(standLog->updateStandardisationLog());
    dm->initializeTitration();
    dm->reInitializeMethodModel(methodId);

    const double storedTitrant =
        cell(QStringLiteral("SELECT titrantConcentration_Value FROM titrantSetupTable WHERE methodId=%1").arg(methodId))
            .toDouble();
    EXPECT_NEAR(storedTitrant, kTrueTitrant, kTrueTitrant * 0.005) << "the titrant now holds what was found";
    EXPECT_TRUE(dm->getStandardizedFetch(methodId));

    // ---- The titration of a fresh sample with the standardised titrant. ----
    ASSERT_EQ(vi.command(QString::fromUtf8(kFreshBeaker).simplified()), QString()) << "a fresh sample";
    TitrationCycleModel *cycle = runCycle(QStringLiteral("Titration"), QStringLiteral("Titration"));
    ASSERT_NE(cycle, nullptr) << "the titration must end";
    EXPECT_NEAR(cycle->calCon(), kTrueSample, kTrueSample * 0.005);
    ASSERT_TRUE(dm->titrationModel()->setTitrationValues(false));
    const int runId = dm->titrationModel()->id();
    titrationLog->saveLogValues(false);
    titrationLog->setAvgConc(QString::number(double(cycle->calCon()), 'g', 6));
    titrationLog->setRsd(QStringLiteral("0.00%"));
    ASSERT_TRUE(titrationLog->updateLog());
    dm->initializeTitration();

    // ---- What the file holds. ----
    ASSERT_TRUE(db.reopen());
    EXPECT_EQ(cell(QStringLiteral("SELECT count(*) FROM titrationTable WHERE methodId=%1").arg(methodId)).toInt(), 2);
    EXPECT_EQ(cell(QStringLiteral("SELECT titrationType FROM titrationTable WHERE id=%1").arg(stdRunId)).toString(),
              QStringLiteral("Standardization"));
    EXPECT_EQ(cell(QStringLiteral("SELECT titrationType FROM titrationTable WHERE id=%1").arg(runId)).toString(),
              QStringLiteral("Titration"));

    QSqlQuery cycles;
    ASSERT_TRUE(cycles.exec(QStringLiteral("SELECT cycleNo, calCon, veqp, graphPoints FROM titrationCycleTable "
                                           "WHERE titrationId=%1").arg(runId)));
    ASSERT_TRUE(cycles.next()) << "the titration's cycle is stored";
    EXPECT_EQ(cycles.value(0).toInt(), 1);
    EXPECT_NEAR(cycles.value(1).toDouble(), kTrueSample, kTrueSample * 0.005);
    EXPECT_NEAR(cycles.value(2).toDouble(), kTrueVolumeMl, kTrueVolumeMl * 0.005);
    EXPECT_TRUE(cycles.value(3).toString().startsWith(QStringLiteral("(0.000|")));
    EXPECT_FALSE(cycles.next()) << "one cycle";
    EXPECT_EQ(cell(QStringLiteral("SELECT count(*) FROM titrationCycleTable WHERE titrationId=%1").arg(stdRunId)).toInt(), 1);

    QSqlQuery log;
    ASSERT_TRUE(log.exec(QStringLiteral("SELECT AvgConc, titration_Id, methodName, titration_titrationType, "
                                        "standardizationId FROM titrationLogTable")));
    ASSERT_TRUE(log.next()) << "the titration log has its entry";
    EXPECT_NEAR(log.value(0).toDouble(), kTrueSample, kTrueSample * 0.005);
    EXPECT_EQ(log.value(1).toInt(), runId);
    EXPECT_EQ(log.value(2).toString(), QStringLiteral("Acetic acid"));
    EXPECT_EQ(log.value(3).toString(), QStringLiteral("Titration"));
    EXPECT_EQ(log.value(4).toInt(), standLog->id()) << "the entry names the standardisation it relied on";
    EXPECT_FALSE(log.next());
    EXPECT_EQ(cell(QStringLiteral("SELECT titration_Id FROM standardisationLogTable")).toInt(), stdRunId);
    EXPECT_NEAR(cell(QStringLiteral("SELECT AvgConc FROM standardisationLogTable")).toDouble(), kTrueTitrant,
                kTrueTitrant * 0.005);

    // The log screen's list, one row per tick.
    dm->startLogFetch(QStringLiteral("TITRATION"));
    ASSERT_TRUE(waitUntil([&] { return !dm->logFetchRunning(QStringLiteral("TITRATION")); }, 5000));
    ASSERT_EQ(dm->titrationLogEntries().size(), 1);
    EXPECT_EQ(dm->titrationLogEntries().first()->AvgConc(), titrationLog->AvgConc());
    EXPECT_EQ(dm->titrationLogEntries().first()->runValues().value(QStringLiteral("id")).toInt(), runId);
}
