// Whole equivalence-point runs inside the process: the algorithm, an ideal
// burette and a beaker whose potential comes from the charge balance of the
// acid and the titrant. The clock is manual, so a run of many minutes takes
// milliseconds.
#include "controller/algorithms/temporaldatastore.h"
#include "controller/algorithms/titrationalgmillivolt.h"
#include "controller/algorithms/volumetricdatastore.h"
#include "controller/enginedatastandin.h"
#include "system/clock.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <vector>

namespace {

// An acid (monoprotic strong, or with dissociation constants) in water,
// titrated with a strong base. Volumes in mL, concentrations in mol/L.
struct Beaker
{
    double sampleMl = 5.0;
    double waterMl = 45.0;
    double acidMolar = 0.1;
    double baseMolar = 0.1;
    bool strong = false;
    std::vector<double> ka;

    double ph(double baseMl) const
    {
        const double volume = sampleMl + waterMl + baseMl;
        const double sodium = baseMolar * baseMl / volume;
        const double acid = acidMolar * sampleMl / volume;
        // Charge balance h + Na = Kw/h + acid * (mean charge of the anion),
        // rising in h: bisection on log h.
        auto excess = [&](double h) {
            double meanCharge = 1.0;
            if (!strong) {
                double term = 1.0, sum = 1.0, weighted = 0.0;
                for (size_t i = 0; i < ka.size(); ++i) {
                    term *= ka[i] / h;
                    sum += term;
                    weighted += double(i + 1) * term;
                }
                meanCharge = weighted / sum;
            }
            return h + sodium - 1e-14 / h - acid * meanCharge;
        };
        double lo = -15.0, hi = 1.0;
        for (int k = 0; k < 80; ++k) {
            const double mid = 0.5 * (lo + hi);
            (excess(std::pow(10.0, mid)) > 0.0 ? hi : lo) = mid;
        }
        return -0.5 * (lo + hi);
    }

    // A glass electrode at 25 °C: 0 mV at pH 7.
    double millivolts(double baseMl) const { return (7.0 - ph(baseMl)) * 59.16; }
};

struct RunOutcome
{
    std::array<double, 3> results{{0, 0, 0}};
    QString reason;
    unsigned int dispensed = 0;
    int points = 0;
    qint64 minutes = 0;
};

// Drives the algorithm as the run controller does: one sample every 250 ms,
// the first three only to the temporal store, a dose to the burette, which
// reports it delivered after 100 µL/s.
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

    RunOutcome titrate(const Beaker &beaker, double electrodeLagSeconds = 1.5)
    {
        TemporalDataStore temporal;
        VolumetricDataStore volumetric;
        TitrationAlgMillivolt algorithm(&temporal, &volumetric);

        double delivered = 0.0; // µL in the beaker
        double electrode = beaker.millivolts(0.0);
        bool waitDispense = false;
        qint64 dispenseEnds = -1;
        int samples = 0;
        const double blend = 1.0 - std::exp(-0.25 / electrodeLagSeconds);

        for (int k = 0; k < 200000 && !algorithm.isFinished(); ++k) {
            clock.advance(250);
            const qint64 now = clock.monotonicMs();
            if (dm.dispenseInProgress && now >= dispenseEnds) {
                dm.dispenseInProgress = false;
                algorithm.dispenseComplete();
                waitDispense = false;
            }
            electrode += (beaker.millivolts(delivered / 1000.0) - electrode) * blend;
            temporal.addPoint(long(now), electrode);
            if (++samples <= 3)
                continue;
            if (samples == 4)
                algorithm.onStart();
            if (dm.dispenseInProgress)
                waitDispense = false;
            if (!dm.dispenseInProgress && waitDispense)
                continue;
            const unsigned int dose = algorithm.run();
            if (dose > 0) {
                delivered += dose;
                dm.dispenseInProgress = true;
                dispenseEnds = now + qint64(dose) * 10 + 250;
                waitDispense = true;
            }
        }
        EXPECT_TRUE(algorithm.isFinished()) << "the run must end";
        RunOutcome outcome;
        outcome.results = algorithm.getResults();
        outcome.reason = algorithm.reasonForEnd;
        outcome.dispensed = algorithm.dispensed();
        outcome.points = volumetric.size();
        outcome.minutes = clock.monotonicMs() / 60000;
        std::printf("results %.2f %.2f µL, %d points, %lld min, %s\n", outcome.results[0], outcome.results[1],
                    outcome.points, (long long)outcome.minutes, qPrintable(outcome.reason));
        return outcome;
    }

    ManualClock clock;
    EngineDataStandIn dm;
};

TEST_F(EquivalenceRun, HydrochloricAcid)
{
    Beaker hcl;
    hcl.strong = true;
    const RunOutcome run = titrate(hcl);
    EXPECT_NEAR(run.results[0], 5000.0, 25.0) << run.reason.toStdString();
    EXPECT_EQ(run.results[1], 0.0);
    EXPECT_EQ(run.reason, QStringLiteral("Reached final equivalence point at count: 1"));
    EXPECT_LT(run.dispensed, 6000u) << "stops soon after the end point";
    EXPECT_NEAR(dm.ep1, 0.0, 120.0) << "neutral at the end point, within two pH on a jump of eight";
}

TEST_F(EquivalenceRun, AceticAcid)
{
    Beaker acetic;
    acetic.ka = {1.75e-5};
    const RunOutcome run = titrate(acetic);
    EXPECT_NEAR(run.results[0], 5000.0, 25.0) << run.reason.toStdString();
    EXPECT_EQ(run.reason, QStringLiteral("Reached final equivalence point at count: 1"));
}

TEST_F(EquivalenceRun, AceticAcidInPh)
{
    dm.displayPh = true;
    Beaker acetic;
    acetic.ka = {1.75e-5};
    const RunOutcome run = titrate(acetic);
    EXPECT_NEAR(run.results[0], 5000.0, 25.0);
    // pH at the equivalence point of 0.01 mol/L acetate: 8.4
    EXPECT_NEAR(dm.ep1, 8.4, 0.6);
}

TEST_F(EquivalenceRun, PhosphoricAcidTwoEndPoints)
{
    dm.noOfEndpoints = 2;
    Beaker phosphoric;
    phosphoric.ka = {7.11e-3, 6.32e-8, 4.5e-13};
    const RunOutcome run = titrate(phosphoric);
    EXPECT_NEAR(run.results[0], 5000.0, 25.0) << run.reason.toStdString();
    EXPECT_NEAR(run.results[1], 10000.0, 50.0);
    EXPECT_EQ(run.results[2], 0.0);
    EXPECT_EQ(run.reason, QStringLiteral("Reached final equivalence point at count: 2"));
    EXPECT_GT(dm.ep1, dm.ep2) << "the second end point lies at the higher pH, the lower mV";
    EXPECT_NEAR(dm.ep1, phosphoric.millivolts(5.0), 15.0);
    EXPECT_NEAR(dm.ep2, phosphoric.millivolts(10.0), 15.0);
}

TEST_F(EquivalenceRun, CarefulAndQuickFindTheSameEndPoint)
{
    Beaker acetic;
    acetic.ka = {1.75e-5};
    for (int control : {1, 2}) {
        dm.processCtrl = control;
        const RunOutcome run = titrate(acetic);
        EXPECT_NEAR(run.results[0], 5000.0, 25.0) << "process control " << control;
    }
}

TEST_F(EquivalenceRun, NoEndPointEndsAtTheVolumeLimit)
{
    dm.maxVolmL = 3.f;
    Beaker acetic;
    acetic.ka = {1.75e-5};
    const RunOutcome run = titrate(acetic);
    EXPECT_EQ(run.reason, QStringLiteral("Reached max dispense vol: 3000"));
    EXPECT_EQ(run.dispensed, 3000u);
    EXPECT_TRUE(std::isfinite(run.results[0]));
    EXPECT_LE(run.results[0], 3000.0);
}

} // namespace
