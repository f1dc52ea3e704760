// Preset end-point runs inside the process: the algorithm, an ideal burette
// and the virtual instrument's acid-base beaker, on the manual clock. The
// volume found must lie where the chemistry crosses the preset value.
#include "algorithmdriver.h"
#include "beaker.h"

#include "controller/algorithms/temporaldatastore.h"
#include "controller/algorithms/titrationalgendpoint.h"
#include "controller/algorithms/volumetricdatastore.h"
#include "controller/enginedatastandin.h"
#include "system/clock.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>

namespace {

const double kNernst25 = 59.16; // mV per pH at 25 °C, as the stand-in converts

// A 0.1 mol/L sample made up to 50 mL, titrated with 0.1 mol/L.
AcidBaseBeaker::Params sample(std::vector<double> pKa, double sampleMl = 5.0)
{
    AcidBaseBeaker::Params p;
    p.volumeMl = 50.0;
    p.concentration = 0.1 * sampleMl / 50.0;
    p.titrantConcentration = 0.1;
    p.pKa = std::move(pKa);
    return p;
}

AcidBaseBeaker hydrochloricAcid()
{
    return AcidBaseBeaker(sample({-6.0}));
}

AcidBaseBeaker aceticAcid()
{
    return AcidBaseBeaker(sample({4.76}));
}

AcidBaseBeaker ammonia()
{
    AcidBaseBeaker::Params p = sample({9.25});
    p.acidCharge = 1;
    p.startsAsAcid = false;
    p.titrantIsBase = false;
    return AcidBaseBeaker(p);
}

AcidBaseBeaker phosphoricAcid()
{
    return AcidBaseBeaker(sample({2.15, 7.20, 12.35}));
}

// Volume (µL) at which the beaker's potential crosses target, between 0 and
// maxMl, on a curve that runs one way.
double crossingUl(const Beaker &beaker, double target, double fromMl, double toMl)
{
    const bool rising = beaker.potentialMv(toMl) > beaker.potentialMv(fromMl);
    double lo = fromMl, hi = toMl;
    for (int i = 0; i < 100; ++i) {
        const double mid = 0.5 * (lo + hi);
        const bool before = rising ? beaker.potentialMv(mid) < target : beaker.potentialMv(mid) > target;
        (before ? lo : hi) = mid;
    }
    return 500.0 * (lo + hi);
}

class EndPointRun : public ::testing::Test
{
protected:
    void SetUp() override
    {

        Clock::setSource(&clock);
        EngineData::set(&dm);
        dm.technique = 0;
        dm.maxVolmL = 20.f;
        dm.buretteSizeMl = 20.f;
        dm.preDose = 0.f;
    }
    void TearDown() override
    {
        Clock::setSource(nullptr);
        EngineData::set(nullptr);
    }

    AlgorithmDriver::Outcome titrate(const Beaker &beaker, double noiseMv = 0.0, double lagSeconds = 1.5)
    {
        TemporalDataStore temporal;
        VolumetricDataStore volumetric;
        TitrationAlgEndPoint algorithm(&temporal, &volumetric);
        AlgorithmDriver driver(clock, dm);
        driver.noiseMv = noiseMv;
        driver.lagSeconds = lagSeconds;
        const AlgorithmDriver::Outcome out =
            driver.run(algorithm, temporal, [&](double ml) { return beaker.potentialMv(ml); });
        lastPoints = volumetric.size();
        std::printf("results %.1f %.1f %.1f µL, dispensed %u µL, %d points, %.1f min, %s\n", out.results[0],
                    out.results[1], out.results[2], out.dispensed, lastPoints, out.minutes,
                    qPrintable(out.reason));
        EXPECT_TRUE(out.finished) << "the run must end";
        return out;
    }

    ManualClock clock;
    EngineDataStandIn dm;
    int lastPoints = 0;
};

TEST_F(EndPointRun, HydrochloricAcidToPh7)
{
    // At pH 7 the curve of a strong acid breaks by six pH within a few µL.
    // Routine's doses reach 400 µL on the flat part and one of them can jump
    // the whole break, leaving the crossing to be read from points 400 µL
    // apart; a chemist titrating to the equivalence of a strong acid takes
    // Careful, whose doses stay at 200 µL and below.
    dm.processCtrl = 2;
    dm.displayPh = true;
    dm.endpoint[0] = 7.0f;
    const AcidBaseBeaker hcl = hydrochloricAcid();
    const double truth = crossingUl(hcl, 0.0, 0.0, 10.0);
    ASSERT_NEAR(truth, 5000.0, 1.0) << "pH 7 is the equivalence point of a strong acid";

    const AlgorithmDriver::Outcome run = titrate(hcl);
    EXPECT_NEAR(run.results[0], truth, truth * 0.005);
    EXPECT_EQ(run.results[1], 0.0);
    EXPECT_EQ(run.reason, QStringLiteral("Passed below final endpoint: 0"));
    EXPECT_GT(run.dispensed, run.results[0]) << "the run goes past the end point, the result is read back";
    EXPECT_LT(run.dispensed, 5300u) << "and stops soon after it";
}

TEST_F(EndPointRun, HydrochloricAcidToPh7InTwoSampleSizes)
{
    dm.processCtrl = 2;
    dm.maxVolmL = 25.f;
    dm.endpoint[0] = 0.0f;
    const AcidBaseBeaker hcl(sample({-6.0}, 10.0));
    const double truth = crossingUl(hcl, 0.0, 0.0, 20.0);
    const AlgorithmDriver::Outcome run = titrate(hcl, 0.05);
    EXPECT_NEAR(run.results[0], truth, truth * 0.005);
}

TEST_F(EndPointRun, AceticAcidToPh7AndToItsEquivalence)
{
    dm.displayPh = true;
    const AcidBaseBeaker acetic = aceticAcid();
    for (float ph : {7.0f, 8.7f}) {
        dm.endpoint[0] = ph;
        const double truth = crossingUl(acetic, (7.0 - ph) * kNernst25, 0.0, 10.0);
        const AlgorithmDriver::Outcome run = titrate(acetic, 0.05);
        EXPECT_NEAR(run.results[0], truth, truth * 0.005) << "pH " << ph;
    }
}

TEST_F(EndPointRun, HydrochloricAcidToMillivolts)
{
    // pH 9 on the glass electrode: on the steep part past the equivalence.
    dm.endpoint[0] = -118.0f;
    const AcidBaseBeaker hcl = hydrochloricAcid();
    const double truth = crossingUl(hcl, -118.0, 0.0, 10.0);
    const AlgorithmDriver::Outcome run = titrate(hcl, 0.05);
    EXPECT_NEAR(run.results[0], truth, truth * 0.005);
    EXPECT_EQ(run.reason, QStringLiteral("Passed below final endpoint: -118"));
}

TEST_F(EndPointRun, HydrochloricAcidInTheBufferRegion)
{
    // A flat part of the curve: pH 2.5, a little over half way.
    dm.endpoint[0] = float((7.0 - 2.5) * kNernst25);
    const AcidBaseBeaker hcl = hydrochloricAcid();
    const double truth = crossingUl(hcl, dm.endpoint[0], 0.0, 4.99);
    const AlgorithmDriver::Outcome run = titrate(hcl);
    EXPECT_NEAR(run.results[0], truth, truth * 0.005);
}

TEST_F(EndPointRun, AmmoniaWithAcidIsAFallingCurve)
{
    dm.displayPh = true;
    dm.endpoint[0] = 4.5f;
    const AcidBaseBeaker nh3 = ammonia();
    const double truth = crossingUl(nh3, (7.0 - 4.5) * kNernst25, 0.0, 10.0);
    const AlgorithmDriver::Outcome run = titrate(nh3);
    EXPECT_NEAR(run.results[0], truth, truth * 0.005);
    EXPECT_EQ(run.reason, QStringLiteral("Passed above final endpoint: 147.894"));
}

TEST_F(EndPointRun, PhosphoricAcidTwoEndPointsInPh)
{
    dm.displayPh = true;
    dm.noOfEndpoints = 2;
    dm.endpoint[0] = 4.5f;
    dm.endpoint[1] = 9.5f;
    const AcidBaseBeaker h3po4 = phosphoricAcid();
    const double first = crossingUl(h3po4, (7.0 - 4.5) * kNernst25, 0.0, 7.5);
    const double second = crossingUl(h3po4, (7.0 - 9.5) * kNernst25, 7.5, 15.0);
    const AlgorithmDriver::Outcome run = titrate(h3po4, 0.05);
    EXPECT_NEAR(run.results[0], first, first * 0.005);
    EXPECT_NEAR(run.results[1], second, second * 0.005);
    EXPECT_EQ(run.results[2], 0.0);
    EXPECT_EQ(run.reason, QStringLiteral("Passed below final endpoint: -147.894"));
}

TEST_F(EndPointRun, PhosphoricAcidThreeEndPointsInMillivolts)
{
    dm.noOfEndpoints = 3;
    dm.endpoint[0] = float((7.0 - 4.5) * kNernst25);
    dm.endpoint[1] = 0.0f;
    dm.endpoint[2] = float((7.0 - 9.5) * kNernst25);
    const AcidBaseBeaker h3po4 = phosphoricAcid();
    const double truths[3] = {crossingUl(h3po4, dm.endpoint[0], 0.0, 7.5), crossingUl(h3po4, 0.0, 5.0, 10.0),
                              crossingUl(h3po4, dm.endpoint[2], 7.5, 15.0)};
    const AlgorithmDriver::Outcome run = titrate(h3po4);
    for (int i = 0; i < 3; ++i)
        EXPECT_NEAR(run.results[size_t(i)], truths[i], truths[i] * 0.005) << "end point " << i + 1;
}

TEST_F(EndPointRun, RoutineAndCarefulFindTheSameVolume)
{
    // In the buffer region, where the approach law slows the doses down.
    // (Quick's doses of up to 500 µL may pass the end point by one dose.)
    dm.displayPh = true;
    dm.endpoint[0] = 5.5f;
    const AcidBaseBeaker acetic = aceticAcid();
    const double truth = crossingUl(acetic, 1.5 * kNernst25, 0.0, 4.99);
    for (int control : {0, 2}) {
        dm.processCtrl = control;
        const AlgorithmDriver::Outcome run = titrate(acetic);
        EXPECT_NEAR(run.results[0], truth, truth * 0.005) << "process control " << control;
    }
}

// The dose never aims past the end point, and the volume is read where the
// settled readings cross it: within 0.2 % of the chemistry's crossing at
// every process control, on a rising and a falling curve, with 1 s lag and
// 0.05 mV noise. 20 mL of 0.05 mol/L benzoic acid (made up to 50 mL) with 0.1 mol/L
// NaOH to pH 8.20, close to its equivalence; 20 mL of 0.05 mol/L ammonia
// with 0.1 mol/L HCl to pH 5.80.
TEST_F(EndPointRun, PresetEndPointsWithinAFifthOfAPercent)
{
    AcidBaseBeaker::Params benzoic = sample({4.20}, 10.0);
    AcidBaseBeaker::Params nh3 = sample({9.25}, 10.0);
    nh3.acidCharge = 1;
    nh3.startsAsAcid = false;
    nh3.titrantIsBase = false;
    struct Case {
        const char *name;
        AcidBaseBeaker beaker;
        float pH;
    };
    const Case cases[] = {{"benzoic acid to pH 8.20", AcidBaseBeaker(benzoic), 8.20f},
                          {"ammonia to pH 5.80", AcidBaseBeaker(nh3), 5.80f}};
    dm.displayPh = true;
    std::printf("| sample | control | true mL | found mL | error %% | doses past |\n");
    for (const Case &c : cases) {
        dm.endpoint[0] = c.pH;
        const double truth = crossingUl(c.beaker, (7.0 - c.pH) * kNernst25, 0.0, 20.0);
        for (int control : {0, 1, 2}) {
            dm.processCtrl = control;
            const AlgorithmDriver::Outcome run = titrate(c.beaker, 0.05, 1.0);
            const double errorPct = (run.results[0] - truth) / truth * 100.0;
            std::printf("| %s | %d | %.3f | %.3f | %+.3f | %u uL |\n", c.name, control, truth / 1000.0,
                        run.results[0] / 1000.0, errorPct, unsigned(run.dispensed - unsigned(truth)));
            EXPECT_LT(std::abs(errorPct), 0.2) << c.name << ", process control " << control;
        }
    }
}

TEST_F(EndPointRun, UnreachedEndPointEndsAtTheVolumeLimitWithTheWholeVolume)
{
    dm.maxVolmL = 3.f;
    dm.endpoint[0] = 0.0f;
    const AlgorithmDriver::Outcome run = titrate(hydrochloricAcid());
    EXPECT_EQ(run.reason, QStringLiteral("Max volume reached: 3000"));
    EXPECT_EQ(run.dispensed, 3000u);
    EXPECT_EQ(run.results[0], 3000.0);
}

TEST_F(EndPointRun, EndPointAtTheFirstReadingWaitsForNineMillivolts)
{
    // The curve starts at the end point; only a movement of 9 mV tells its
    // direction, so the run goes on until then.
    const AcidBaseBeaker hcl = hydrochloricAcid();
    const double start = hcl.potentialMv(0.0);
    dm.endpoint[0] = float(start);
    const AlgorithmDriver::Outcome run = titrate(hcl);
    EXPECT_EQ(run.reason.left(29), QStringLiteral("Passed below final endpoint: "));
    EXPECT_LE(hcl.potentialMv(run.dispensed / 1000.0), start - 9.0);
}

TEST_F(EndPointRun, StepAimsAtAFifthOfTheDistance)
{
    // 200 mV from the end point the wanted step is 40 mV, not the 10 mV preset.
    const AcidBaseBeaker hcl = hydrochloricAcid();
    dm.endpoint[0] = float(hcl.potentialMv(0.0) - 200.0);
    TemporalDataStore temporal;
    VolumetricDataStore volumetric;
    TitrationAlgEndPoint algorithm(&temporal, &volumetric);
    AlgorithmDriver driver(clock, dm);
    driver.maxSamples = 20; // the first dose of the law
    const AlgorithmDriver::Outcome run =
        driver.run(algorithm, temporal, [&](double ml) { return hcl.potentialMv(ml); });
    EXPECT_EQ(run.dispensed, 10u) << "the first dose of the law is the first-dose preset";
    EXPECT_NEAR(algorithm.deltaE(), 40.0, 0.5);
}

TEST_F(EndPointRun, PhConversionUsesTheTemperatureAtTheStart)
{
    dm.displayPh = true;
    dm.endpoint[0] = 4.0f;
    TemporalDataStore temporal;
    VolumetricDataStore volumetric;
    TitrationAlgEndPoint algorithm(&temporal, &volumetric);
    dm.temperatureC = 40.f;
    algorithm.onStart();
    const double atStart = double(dm.phToMillivolts(4.0f));
    dm.temperatureC = 25.f;
    EXPECT_DOUBLE_EQ(algorithm.endPoints()[0], atStart);
    EXPECT_GT(atStart, 3.0 * kNernst25) << "three pH at 40 °C is more than at 25 °C";
}

} // namespace
