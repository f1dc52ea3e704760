// Whole equivalence-point runs inside the process: the algorithm, an ideal
// burette and the virtual instrument's beakers, on the manual clock, so a
// run of many minutes takes milliseconds.
#include "algorithmdriver.h"
#include "beaker.h"

#include "controller/algorithms/temporaldatastore.h"
#include "controller/algorithms/titrationalgmillivolt.h"
#include "controller/algorithms/volumetricdatastore.h"
#include "controller/enginedatastandin.h"
#include "system/clock.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <memory>

namespace {

// 5 mL of a 0.1 mol/L acid made up to 50 mL, titrated with 0.1 mol/L NaOH:
// the equivalence point lies at 5.00 mL.
AcidBaseBeaker acid(std::vector<double> pKa)
{
    AcidBaseBeaker::Params p;
    p.volumeMl = 50.0;
    p.concentration = 0.01;
    p.pKa = std::move(pKa);
    return AcidBaseBeaker(p);
}

// 0.02 mol/L of a base whose acid has pKa 5.2, in 50 mL, with 0.1 mol/L HCl.
AcidBaseBeaker::Params weakBase()
{
    AcidBaseBeaker::Params p;
    p.concentration = 0.02;
    p.pKa = {5.2};
    p.acidCharge = 1;
    p.startsAsAcid = false;
    p.titrantIsBase = false;
    return p;
}

class EquivalenceRun : public ::testing::Test
{
protected:
    void SetUp() override
    {
        Clock::setSource(&clock);
        EngineData::set(&dm);
        dm.technique = 1;
        dm.maxVolmL = 20.f;
        dm.buretteSizeMl = 20.f;
        dm.preDose = 0.f;
    }
    void TearDown() override
    {
        Clock::setSource(nullptr);
        EngineData::set(nullptr);
    }

    AlgorithmDriver::Outcome titrate(const Beaker &beaker, double lagSeconds = 1.5, double noiseMv = 0.0)
    {
        TemporalDataStore temporal;
        VolumetricDataStore volumetric;
        TitrationAlgMillivolt algorithm(&temporal, &volumetric);
        AlgorithmDriver driver(clock, dm);
        driver.lagSeconds = lagSeconds;
        driver.noiseMv = noiseMv;
        const AlgorithmDriver::Outcome out =
            driver.run(algorithm, temporal, [&](double ml) { return beaker.potentialMv(ml); });
        EXPECT_TRUE(out.finished) << "the run must end";
        std::printf("results %.2f %.2f µL, %d points, %.1f min, %s\n", out.results[0], out.results[1],
                    volumetric.size(), out.minutes, qPrintable(out.reason));
        return out;
    }

    ManualClock clock;
    EngineDataStandIn dm;
};

TEST_F(EquivalenceRun, HydrochloricAcid)
{
    const AlgorithmDriver::Outcome run = titrate(acid({-6.0}));
    EXPECT_NEAR(run.results[0], 5000.0, 25.0) << run.reason.toStdString();
    EXPECT_EQ(run.results[1], 0.0);
    EXPECT_EQ(run.reason, QStringLiteral("Reached final equivalence point at count: 1"));
    EXPECT_LT(run.dispensed, 6000u) << "stops soon after the end point";
    EXPECT_NEAR(dm.ep1, 0.0, 120.0) << "neutral at the end point, within two pH on a jump of eight";
}

TEST_F(EquivalenceRun, AceticAcidInPh)
{
    dm.displayPh = true;
    const AlgorithmDriver::Outcome run = titrate(acid({4.76}));
    EXPECT_NEAR(run.results[0], 5000.0, 25.0);
    // pH at the equivalence point of 0.01 mol/L acetate: 8.4
    EXPECT_NEAR(dm.ep1, 8.4, 0.6);
}

TEST_F(EquivalenceRun, PhosphoricAcidTwoEndPoints)
{
    dm.noOfEndpoints = 2;
    const AcidBaseBeaker phosphoric = acid({2.15, 7.20, 12.35});
    const AlgorithmDriver::Outcome run = titrate(phosphoric);
    EXPECT_NEAR(run.results[0], 5000.0, 25.0) << run.reason.toStdString();
    EXPECT_NEAR(run.results[1], 10000.0, 50.0);
    EXPECT_EQ(run.results[2], 0.0);
    EXPECT_EQ(run.reason, QStringLiteral("Reached final equivalence point at count: 2"));
    EXPECT_GT(dm.ep1, dm.ep2) << "the second end point lies at the higher pH, the lower mV";
    EXPECT_NEAR(dm.ep1, phosphoric.potentialMv(5.0), 15.0);
    EXPECT_NEAR(dm.ep2, phosphoric.potentialMv(10.0), 15.0);
}

TEST_F(EquivalenceRun, EveryProcessControlFindsTheSameEndPoint)
{
    const AcidBaseBeaker acetic = acid({4.76});
    for (int control : {0, 1, 2}) {
        dm.processCtrl = control;
        const AlgorithmDriver::Outcome run = titrate(acetic);
        EXPECT_NEAR(run.results[0], 5000.0, 25.0) << "process control " << control;
    }
}

// Curves whose slope is greatest at their very start: a weak base with a
// strong acid, a very weak acid with a strong base, a redox couple with no
// oxidised form to begin with. 0.02 mol/L of each in 50 mL against
// 0.1 mol/L, so the equivalence point lies at 10.00 mL; Routine, an electrode
// with 1 s lag and 0.05 mV noise; from the start and after a 1 mL pre-dose.
// The start of the curve is never taken for the equivalence point. The
// jumps of the weak base and the weak acid stay below Routine's slope
// threshold (0.07 and 0.04 of 0.2 mV/µL): the run goes to its limit, says
// that it found no equivalence point, and reports the steepest point inside
// the curve, which is near the true one.
TEST_F(EquivalenceRun, SteepStartsAreNotEquivalencePoints)
{
    const AcidBaseBeaker::Params base = weakBase();
    AcidBaseBeaker::Params weakAcid;
    weakAcid.concentration = 0.02;
    weakAcid.pKa = {9.2};
    RedoxBeaker::Params iron;
    iron.analyteConcentration = 0.02;
    struct Case {
        const char *name;
        std::shared_ptr<Beaker> beaker;
        int electrode;
        bool equivalenceFound;
        double maxErrorPct; // of the true volume
    };
    const Case cases[] = {
        {"weak base pKa 5.2 with HCl", std::make_shared<AcidBaseBeaker>(base), 0, false, 1.0},
        {"weak acid pKa 9.2 with NaOH", std::make_shared<AcidBaseBeaker>(weakAcid), 0, false, 1.0},
        {"iron(II) with cerium(IV)", std::make_shared<RedoxBeaker>(iron), 1, true, 0.5},
    };
    std::printf("| sample | pre-dose mL | found mL | error %% | end |\n");
    for (const Case &c : cases) {
        for (float preDose : {0.f, 1.f}) {
            dm.electrode = c.electrode;
            dm.preDose = preDose;
            const AlgorithmDriver::Outcome run = titrate(*c.beaker, 1.0, 0.05);
            const double errorPct = (run.results[0] - 10000.0) / 100.0;
            std::printf("| %s | %.0f | %.3f | %+.2f | %s |\n", c.name, double(preDose), run.results[0] / 1000.0,
                        errorPct, qPrintable(run.reason));
            EXPECT_LT(std::abs(errorPct), c.maxErrorPct) << c.name << ", pre-dose " << preDose << " mL: "
                                                         << run.reason.toStdString();
            EXPECT_EQ(run.reason, c.equivalenceFound
                                      ? QStringLiteral("Reached final equivalence point at count: 1")
                                      : QStringLiteral("Reached max dispense vol: 20000; no equivalence point found, "
                                                       "the steepest point is reported"))
                << c.name;
        }
    }
}

// Where the slope only falls, there is nothing to report: the run ends at
// the volume limit and says that it found no equivalence point.
TEST_F(EquivalenceRun, OnlyASteepStartEndsAtTheLimitWithNoEquivalencePoint)
{
    const AcidBaseBeaker::Params base = weakBase();
    dm.maxVolmL = 5.f; // half way to the equivalence point
    const AlgorithmDriver::Outcome run = titrate(AcidBaseBeaker(base), 1.0, 0.05);
    EXPECT_EQ(run.reason, QStringLiteral("Reached max dispense vol: 5000; no equivalence point found"));
    EXPECT_EQ(run.dispensed, 5000u);
    EXPECT_EQ(run.results[0], 0.0);
}

} // namespace
