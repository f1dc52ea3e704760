// Whole runs of the preset end-point and the known-addition techniques
// against the virtual instrument on a pseudo-terminal: its electrode in its
// beaker, the titrant or standard delivered by its burette, noise on, every
// clock twenty times faster than real time. The algorithm is driven as the
// run controller does it, and its time follows the slave's time stamps. The
// data manager serves the method stored in a fresh database.
#include "controller/algorithms/temporaldatastore.h"
#include "beaker.h"
#include "controller/algorithms/titrationalgendpoint.h"
#include "controller/algorithms/titrationalgmka.h"
#include "controller/algorithms/volumetricdatastore.h"
#include "controller/burettecontroller.h"
#include "controller/mspcontroller.h"
#include "datamanagerbase.h"
#include "models/methoddraft.h"
#include "system/clock.h"
#include "testdatabase.h"
#include "testsupport.h"
#include "virtualinstrumentprocess.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

constexpr double kSpeed = 20;

class TechniqueOnTheInstrument : public ::testing::Test
{
protected:
    void SetUp() override
    {
        TestDatabase::exec(QStringLiteral("PRAGMA synchronous=OFF"));
        Clock::setSource(&clock);
        dm = std::make_unique<DataManagerBase>();
        dm->DataManagerLegacyInit();
    }
    void TearDown() override
    {
        bc.reset();
        msp.reset();
        vi.stop();
        Clock::setSource(nullptr);
        dm.reset();
    }

    // The method stored and made current, as the method screens do.
    void useMethod(const MethodDraft &draft)
    {
        QString error;
        const int id = draft.save(QStringLiteral("On the slave"), &error);
        ASSERT_GT(id, 0) << error.toStdString();
        dm->setupModel()->setCurrentMethodId(id);
        dm->reInitializeMethodModel(id);
        dm->setDeviceMode(EngineDataPort::modeTitration);
    }

    void start(const QString &scenario)
    {
        ASSERT_TRUE(vi.start(scenario, kSpeed)) << vi.errorText().toStdString();
        msp = std::make_unique<mspController>(vi.device());
        msp->setPollInterval(int(250 / kSpeed));
        msp->setReadInterval(2);
        bc = std::make_unique<BuretteController>(msp.get());
        bc->setTickInterval(int(250 / kSpeed));
        ASSERT_TRUE(waitUntil(
            [&] {
                mspInfoRecord info;
                msp->msp->getInfo(info);
                return info.buretteSize == 20;
            },
            10000));
    }

    // The run controller's part: samples to the store, the algorithm asked
    // once per sample unless a dose is still on its way, doses to the burette.
    void titrate(TitrationAlgorithmBase &algorithm, TemporalDataStore &temporal)
    {
        int samples = 0;
        bool waitDispense = false;
        QObject::connect(bc.get(), &BuretteController::backendDispenseCompleted, &algorithm,
                         &TitrationAlgorithmBase::dispenseComplete);
        QObject::connect(bc.get(), &BuretteController::backendDispenseCompleted, &algorithm,
                         [&] { waitDispense = false; });
        QObject::connect(msp.get(), &mspController::mspNewDataSignal, &algorithm, [&](long stamp, double mv) {
            clock.set(stamp);
            temporal.addPoint(stamp, mv);
            if (++samples <= 3)
                return;
            if (samples == 4) {
                algorithm.onStart();
                return;
            }
            if (algorithm.isFinished())
                return;
            if (dm->engine()->getDispenseInProgress())
                waitDispense = false;
            if (!dm->engine()->getDispenseInProgress() && waitDispense)
                return;
            const unsigned int dose = algorithm.run();
            if (dose > 0) {
                bc->dispense_ul(int(dose));
                waitDispense = true;
            }
        });
        ASSERT_TRUE(waitUntil([&] { return algorithm.isFinished(); }, 180000)) << "the run must end";
        QObject::disconnect(msp.get(), nullptr, &algorithm, nullptr);
        QObject::disconnect(bc.get(), nullptr, &algorithm, nullptr);
    }

    TestDatabase db;
    std::unique_ptr<DataManagerBase> dm;
    ManualClock clock;
    VirtualInstrumentProcess vi;
    std::unique_ptr<mspController> msp;
    std::unique_ptr<BuretteController> bc;
};

TEST_F(TechniqueOnTheInstrument, SodiumSampleWithinTwoPercent)
{
    // 50 mL of sample, all of the beaker, and a 0.1 mol/L standard.
    MethodDraft draft;
    draft.electrodeType = QStringLiteral("ISE-MKA");
    draft.iseType = QStringLiteral("Sodium");
    draft.technique = QStringLiteral("Multiple Known Addition");
    draft.titrantMolPerL = 0.1f;
    draft.totalSolutionMl = 50.f;
    draft.sampleMl = 50.f;
    useMethod(draft);
    ASSERT_EQ(dm->engine()->getTitrationTechnique(), 3);
    ASSERT_EQ(dm->engine()->getElectrode(), 2);
    start(QStringLiteral(R"({"burette_mL":20,
        "electrode":{"E0_mV":250,"slope_pct":98,"tau_s":2.0,"noise_mV":0.05},
        "beaker":{"kind":"ise","volume_mL":50,"ion":{"charge":1,"conc_mol_L":0.001},
                  "titrant":{"conc_mol_L":0.1}}})"));
    TemporalDataStore temporal;
    VolumetricDataStore volumetric;
    TitrationAlgMKA algorithm(&temporal, &volumetric);
    titrate(algorithm, temporal);

    EXPECT_NEAR(algorithm.concentration(), 1e-3, 1e-3 * 0.02);
    EXPECT_NEAR(algorithm.parameters()[2], 0.98 * 59.16, 2.0);
    EXPECT_GE(algorithm.additionCount(), 3);
    EXPECT_EQ(algorithm.singularFits(), 0);
    // What the instrument delivered is what the algorithm asked for.
    EXPECT_EQ(bc->getTotalDispensed(), int(algorithm.dispensed()));
}

TEST_F(TechniqueOnTheInstrument, HydrochloricAcidToAPresetMillivoltValue)
{
    // 5 mL of 0.1 mol/L HCl in 50 mL with 0.1 mol/L NaOH, to -118 mV, about
    // pH 9 on the ideal electrode of the scenario.
    MethodDraft draft;
    draft.technique = QStringLiteral("Preset End Pt.");
    draft.endPointMv[0] = -118.f;
    useMethod(draft);
    ASSERT_EQ(dm->engine()->getTitrationTechnique(), 0);
    start(QStringLiteral(R"({"burette_mL":20,
        "electrode":{"E0_mV":0,"slope_pct":100,"tau_s":1.0,"noise_mV":0.05},
        "beaker":{"kind":"acid-base","volume_mL":50,
                  "analyte":{"pKa":-6,"conc_mol_L":0.01,"form":"acid"},
                  "titrant":{"kind":"strong-base","conc_mol_L":0.1}}})"));
    TemporalDataStore temporal;
    VolumetricDataStore volumetric;
    TitrationAlgEndPoint algorithm(&temporal, &volumetric);
    titrate(algorithm, temporal);

    AcidBaseBeaker::Params p;
    p.pKa = {-6.0};
    p.concentration = 0.01;
    const AcidBaseBeaker chemistry(p);
    double lo = 4.0, hi = 6.0;
    for (int i = 0; i < 60; ++i)
        (chemistry.potentialMv(0.5 * (lo + hi)) > -118.0 ? lo : hi) = 0.5 * (lo + hi);
    const double truth = 500.0 * (lo + hi);

    const std::array<double, 3> results = algorithm.getResults();
    EXPECT_NEAR(results[0], truth, truth * 0.005) << algorithm.reasonForEnd.toStdString();
    EXPECT_EQ(algorithm.reasonForEnd, QStringLiteral("Passed below final endpoint: -118"));
    EXPECT_EQ(bc->getTotalDispensed(), int(algorithm.dispensed()));
}

} // namespace
