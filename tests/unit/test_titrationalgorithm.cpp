#include "controller/algorithms/processcontrolpresets.h"
#include "controller/algorithms/temporaldatastore.h"
#include "controller/algorithms/titrationalgmillivolt.h"
#include "controller/algorithms/volumetricdatastore.h"
#include "standinengine.h"
#include "system/clock.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <vector>

namespace {

// ---- Presets ---------------------------------------------------------------

using Presets = ProcessControlPresets;

struct PresetCase
{
    const char *what;
    std::function<double(const Presets &, int, int)> read;
    int electrode;
    int control;
    double expected;
};

template <typename T>
std::function<double(const Presets &, int, int)> row(Presets::Row<T> Presets::*member)
{
    return [member](const Presets &p, int e, int c) { return double(Presets::lookup(p.*member, e, c)); };
}

class PresetLookup : public ::testing::TestWithParam<PresetCase>
{
};

TEST_P(PresetLookup, Reads)
{
    const PresetCase &c = GetParam();
    Presets presets;
    EXPECT_FLOAT_EQ(float(c.read(presets, c.electrode, c.control)), float(c.expected)) << c.what;
}

INSTANTIATE_TEST_SUITE_P(
    Fallbacks, PresetLookup,
    ::testing::Values(
        PresetCase{"first dose Quick, Redox reads the pH row", row(&Presets::firstDose), 1, 1, 25},
        PresetCase{"tMax User Defined falls back to Routine", row(&Presets::tMax), 0, 3, 8000},
        PresetCase{"dVmax divalent reads the monovalent row", row(&Presets::deltaVmax), 3, 1, 500},
        PresetCase{"dVmin divalent reads the pH row", row(&Presets::deltaVmin), 3, 2, 5},
        PresetCase{"MKA slope, one column for all", row(&Presets::mkaSlope), 2, 2, 59.2}));

TEST(PresetLookupFailure, ThrowsOutOfRange)
{
    Presets presets;
    // An ion-only row has nothing for the pH electrode to fall back on.
    EXPECT_THROW(Presets::lookup(presets.mkaDeltaE, 0, 0), std::out_of_range);
    EXPECT_THROW(Presets::lookup(presets.mkaSlope, 1, 0), std::out_of_range);
    Presets::Row<float> empty;
    try {
        Presets::lookup(empty, 0, 0);
        ADD_FAILURE() << "an empty row must throw";
    } catch (const std::out_of_range &e) {
        EXPECT_STREQ(e.what(), "map::at");
    }
    // A row without a Routine column has no fallback for another control.
    Presets::Row<unsigned int> noRoutine = {{0, {{1, 5u}}}};
    EXPECT_EQ(Presets::lookup(noRoutine, 0, 1), 5u);
    EXPECT_THROW(Presets::lookup(noRoutine, 0, 2), std::out_of_range);
}

TEST(PresetUserValue, StoresUnderUserDefinedForTheResolvedElectrode)
{
    Presets presets;
    Presets::setUserValue(presets.deltaE, 0, 15.f);
    EXPECT_EQ(Presets::lookup(presets.deltaE, 0, 3), 15.f);
    EXPECT_EQ(Presets::lookup(presets.deltaE, 0, 0), 10.f) << "Routine untouched";
    EXPECT_EQ(Presets::lookup(presets.deltaE, 1, 3), 10.f) << "Redox has its own row";

    // Redox has no dE/dt row of its own: the value lands in the pH row.
    Presets::setUserValue(presets.dEdt, 1, 0.5f);
    EXPECT_EQ(Presets::lookup(presets.dEdt, 0, 3), 0.5f);
    // A divalent ion's dVmax lives in the monovalent row.
    Presets::setUserValue(presets.deltaVmax, 3, 700u);
    EXPECT_EQ(Presets::lookup(presets.deltaVmax, 2, 3), 700u);
    EXPECT_EQ(Presets::lookup(presets.deltaVmax, 0, 3), 400u);
}

// ---- The algorithm -----------------------------------------------------------

// Opens the dose law's state to the tests.
class Probe : public TitrationAlgMillivolt
{
public:
    using TitrationAlgMillivolt::TitrationAlgMillivolt;
    using TitrationAlgorithmBase::doseForStep;
    using TitrationAlgorithmBase::restartStabilityTimer;
    void set(double maxSlope, unsigned int lastDose, unsigned int dispensed, bool firstDose = false)
    {
        m_maxSlope = maxSlope;
        m_lastDose = lastDose;
        m_dispensed = dispensed;
        m_firstDoseFlag = firstDose;
    }
};

class Algorithm : public StandInEngineTest
{
protected:

    // Samples every 250 ms of a signal that drifts at `mvPerSecond`.
    void feed(int count, double mvPerSecond = 0.0)
    {
        for (int k = 0; k < count; ++k) {
            clock.advance(250);
            level += mvPerSecond * 0.25;
            temporal.addPoint(long(clock.monotonicMs()), level);
        }
    }
    // Calls run() once per new sample until it asks for a dose (or `limit`
    // samples pass); the dose is then delivered at once.
    unsigned int nextRunDose(TitrationAlgorithmBase &algorithm, int limit = 400)
    {
        for (int k = 0; k < limit; ++k) {
            feed(1);
            const unsigned int dose = algorithm.run();
            if (dose > 0) {
                algorithm.dispenseComplete();
                return dose;
            }
        }
        return 0;
    }

    TemporalDataStore temporal;
    VolumetricDataStore volumetric;
    double level = 100.0;
};

TEST_F(Algorithm, RoutineSettings)
{
    TitrationAlgMillivolt algorithm(&temporal, &volumetric);
    EXPECT_EQ(algorithm.firstDose(), 10u);
    EXPECT_EQ(algorithm.deltaE(), 10.f);
    EXPECT_EQ(algorithm.deltaVmax(), 400u);
    EXPECT_EQ(algorithm.deltaVmin(), 10u);
    EXPECT_EQ(algorithm.stabilitySlope(), 0.133f);
    EXPECT_EQ(algorithm.tMin(), 2000u);
    EXPECT_EQ(algorithm.tMax(), 8000u);
    EXPECT_EQ(volumetric.minimumVolume(), 40.0) << "four first doses";
    EXPECT_EQ(volumetric.slopeThreshold(), 0.2f);
    EXPECT_EQ(volumetric.curvatureLimit(), 0.0002f);
    EXPECT_EQ(algorithm.reasonForEnd, QStringLiteral("Unknown"));
    EXPECT_EQ(algorithm.phase(), TitrationAlgorithmBase::ALG_INITIAL_READING);
}

TEST_F(Algorithm, MinimumVolumePastThePreDose)
{
    dm.preDose = 10.f;
    {
        TitrationAlgMillivolt algorithm(&temporal, &volumetric);
        EXPECT_EQ(volumetric.minimumVolume(), 10500.0) << "5 % past the pre-dose, not 10040";
    }
    dm.preDose = 0.5f;
    VolumetricDataStore other;
    TitrationAlgMillivolt algorithm(&temporal, &other);
    EXPECT_EQ(other.minimumVolume(), 540.0) << "four first doses are more than 5 %";
}

TEST_F(Algorithm, UserDefinedReadsTheMethodAndRoutineElsewhere)
{
    dm.processCtrl = 3;
    dm.deltaE = 15.f;
    dm.deltaVmax = 0.3f;      // mL
    dm.deltaVmin = 0.007f;    // mL
    dm.stabilityCriteria = 6.f; // mV/min
    dm.tMin = 4.f;
    dm.tMax = 12.f;
    dm.threshold = 100.f;
    TitrationAlgMillivolt algorithm(&temporal, &volumetric);
    EXPECT_EQ(algorithm.deltaE(), 15.f);
    EXPECT_EQ(algorithm.deltaVmax(), 300u);
    EXPECT_EQ(algorithm.deltaVmin(), 7u);
    EXPECT_FLOAT_EQ(algorithm.stabilitySlope(), 0.1f);
    EXPECT_FLOAT_EQ(volumetric.slopeThreshold(), 0.1f);
    EXPECT_EQ(algorithm.firstDose(), 10u) << "the Routine first dose";
    EXPECT_EQ(Presets::lookup(algorithm.presets().settleTMin, 0, 3), 3000u);
    EXPECT_EQ(Presets::lookup(algorithm.presets().endPointBand, 0, 3), 1.f);
    EXPECT_EQ(Presets::lookup(algorithm.presets().tMin, 0, 3), 4000u);
    EXPECT_EQ(Presets::lookup(algorithm.presets().tMax, 0, 3), 12000u);
}

TEST_F(Algorithm, RedoxAndDivalentElectrodes)
{
    dm.electrode = 1;
    dm.processCtrl = 1;
    {
        TitrationAlgMillivolt redox(&temporal, &volumetric);
        EXPECT_EQ(redox.stabilitySlope(), 0.167f);
        EXPECT_EQ(redox.deltaVmax(), 300u);
        EXPECT_EQ(redox.deltaVmin(), 25u);
    }
    dm.electrode = 3;
    dm.processCtrl = 2;
    TitrationAlgMillivolt divalent(&temporal, &volumetric);
    EXPECT_EQ(divalent.stabilitySlope(), 0.0415f);
    EXPECT_EQ(divalent.deltaVmax(), 200u);
    EXPECT_EQ(divalent.deltaVmin(), 5u);
    EXPECT_EQ(divalent.deltaE(), 3.f);
}

TEST_F(Algorithm, StableAtTheEarliestAfterTMin)
{
    feed(12);
    TitrationAlgMillivolt algorithm(&temporal, &volumetric);
    clock.advance(2000);
    EXPECT_FALSE(algorithm.isStable()) << "tMin or less";
    clock.advance(1);
    EXPECT_TRUE(algorithm.isStable());
    dm.dispenseInProgress = true;
    clock.advance(20000);
    EXPECT_FALSE(algorithm.isStable()) << "never while dosing";
}

TEST_F(Algorithm, DriftWaitsForTMax)
{
    feed(12, 1.0);
    TitrationAlgMillivolt algorithm(&temporal, &volumetric);
    EXPECT_NEAR(temporal.lastFirstDerivative(), 1.0, 1e-9);
    clock.advance(8000);
    EXPECT_FALSE(algorithm.isStable());
    clock.advance(1);
    EXPECT_TRUE(algorithm.isStable()) << "time-out";
}

TEST_F(Algorithm, PhInitialReadingWaitsForTheTighterLimit)
{
    // 0.1 mV/s is quiet for a millivolt run (0.133) but not for pH (0.08333).
    feed(12, 0.1);
    {
        TitrationAlgMillivolt mv(&temporal, &volumetric);
        int samples = 0;
        while (mv.phase() == TitrationAlgorithmBase::ALG_INITIAL_READING && samples < 400) {
            feed(1, 0.1);
            mv.run();
            ++samples;
        }
        EXPECT_EQ(samples, 9) << "on at tMin";
    }
    dm.displayPh = true;
    TitrationAlgMillivolt ph(&temporal, &volumetric);
    int samples = 0;
    while (ph.phase() == TitrationAlgorithmBase::ALG_INITIAL_READING && samples < 400) {
        feed(1, 0.1);
        ph.run();
        ++samples;
    }
    EXPECT_EQ(samples, 101) << "on just after the settle tMax of 25 s";
    EXPECT_EQ(ph.stabilitySlope(), 0.133f) << "the preset limit from then on";
    EXPECT_EQ(ph.tMax(), 8000u);
}

TEST_F(Algorithm, PreDoseInChunksEachFromAStableReading)
{
    dm.preDose = 5.f;
    feed(12);
    TitrationAlgMillivolt algorithm(&temporal, &volumetric);
    std::vector<unsigned int> doses;
    for (int k = 0; k < 3; ++k)
        doses.push_back(nextRunDose(algorithm));
    EXPECT_EQ(doses, (std::vector<unsigned int>{2000, 2000, 1000}));
    ASSERT_EQ(volumetric.size(), 3);
    EXPECT_EQ(volumetric.volumeAt(0), 0.0);
    EXPECT_EQ(volumetric.volumeAt(2), 4000.0);
    EXPECT_EQ(algorithm.dispensed(), 5000u);

    feed(1);
    algorithm.run();
    EXPECT_EQ(algorithm.phase(), TitrationAlgorithmBase::ALG_PREDOSE_SETTLE);
    // The settle phase waits its own tMin of 3 s from the last dose.
    int samples = 0;
    while (algorithm.phase() == TitrationAlgorithmBase::ALG_PREDOSE_SETTLE && samples < 400) {
        feed(1);
        algorithm.run();
        ++samples;
    }
    EXPECT_EQ(algorithm.phase(), TitrationAlgorithmBase::ALG_INITIAL_DOSES);
    EXPECT_EQ(250 + samples * 250, 3250) << "first sample past the settle tMin after the last dose";
    EXPECT_EQ(algorithm.tMin(), 2000u);
    EXPECT_EQ(algorithm.tMax(), 8000u);
    feed(1);
    EXPECT_EQ(algorithm.run(), 0u);
    EXPECT_EQ(algorithm.phase(), TitrationAlgorithmBase::ALG_TITRATING);
}

TEST_F(Algorithm, NoPreDoseSkipsToTheDoseLaw)
{
    feed(12);
    TitrationAlgMillivolt algorithm(&temporal, &volumetric);
    while (algorithm.phase() == TitrationAlgorithmBase::ALG_INITIAL_READING) {
        feed(1);
        algorithm.run();
    }
    EXPECT_EQ(algorithm.phase(), TitrationAlgorithmBase::ALG_INITIAL_DOSES);
    feed(1);
    algorithm.run();
    EXPECT_EQ(algorithm.phase(), TitrationAlgorithmBase::ALG_TITRATING);
    EXPECT_EQ(nextRunDose(algorithm), 10u) << "the first dose";
    EXPECT_EQ(volumetric.size(), 1) << "a point from the stable reading before it";
    // On a flat curve the steepest-slope estimate halves at each step in
    // time: 1.0, 0.5, 0.25, ... mV/µL (plus the 1e-9 mV floor of dE, which
    // keeps each dose just under the round number).
    EXPECT_EQ(nextRunDose(algorithm), 39u) << "10 mV / 0.25 mV/µL";
    EXPECT_EQ(nextRunDose(algorithm), 79u);
    EXPECT_EQ(nextRunDose(algorithm), 159u);
    EXPECT_EQ(nextRunDose(algorithm), 319u);
    EXPECT_EQ(nextRunDose(algorithm), 400u) << "dVmax";
    EXPECT_EQ(algorithm.dispensed(), 1006u);
}

// The dose law with dE = 10 mV under Routine: dVmin 10, dVmax 400, tMax 8 s.
class DoseLaw : public Algorithm
{
protected:
    void SetUp() override
    {
        Algorithm::SetUp();
        feed(12);
    }
    unsigned int dose(Probe &probe, qint64 afterMs = 3000)
    {
        probe.restartStabilityTimer();
        clock.advance(afterMs);
        return probe.doseForStep(10.0);
    }
};

TEST_F(DoseLaw, FirstDoseReplacesTheLaw)
{
    Probe probe(&temporal, &volumetric);
    probe.set(0.001, 1, 0, true);
    EXPECT_EQ(dose(probe), 10u);
    EXPECT_EQ(dose(probe), 40u) << "then the law, four times the first dose";
}

TEST_F(DoseLaw, GrowthCap)
{
    Probe probe(&temporal, &volumetric);
    probe.set(0.01, 10, 0); // 10 mV / 0.01 mV/µL = 1000 µL
    EXPECT_EQ(dose(probe), 40u);
}

TEST_F(DoseLaw, ClampedToDeltaVminAndDeltaVmax)
{
    Probe probe(&temporal, &volumetric);
    probe.set(50.0, 10, 0); // 0.2 µL
    EXPECT_EQ(dose(probe), 10u);
    probe.set(0.01, 400, 0); // 1000 µL, cap 1600
    EXPECT_EQ(dose(probe), 400u);
    probe.set(0.04, 400, 0); // 250 µL
    EXPECT_EQ(dose(probe), 250u);
}

TEST_F(DoseLaw, RemainingVolumeCap)
{
    Probe probe(&temporal, &volumetric);
    probe.set(0.01, 400, 19950);
    EXPECT_EQ(dose(probe), 50u);
}

TEST_F(DoseLaw, TimeOutFactor)
{
    Probe probe(&temporal, &volumetric);
    // Drift 0.5 mV/s at time-out: f = 0.133 * 0.9 / 0.5 = 0.2394; 200 µL * f.
    feed(8, 0.5);
    ASSERT_NEAR(temporal.lastFirstDerivative(), 0.5, 1e-9);
    probe.set(0.05, 100, 0);
    EXPECT_EQ(dose(probe, 8001), 47u);
    // The same at 8000 ms is no time-out.
    probe.set(0.05, 100, 0);
    EXPECT_EQ(dose(probe, 8000), 200u);
}

TEST_F(DoseLaw, QuietTimeOutTakesTheCap)
{
    Probe probe(&temporal, &volumetric);
    ASSERT_EQ(temporal.lastFirstDerivative(), 0.0) << "drift exactly 0";
    probe.set(0.05, 100, 0);
    // 200 µL * 0.9f: the float 0.9 is a hair below 0.9, so 179.99999.
    EXPECT_EQ(dose(probe, 9000), 179u);
    feed(8, 0.05); // f = 2.394, above the cap
    probe.set(0.05, 100, 0);
    EXPECT_EQ(dose(probe, 9000), 179u);
}

TEST_F(DoseLaw, NeverLargerThanTheCylinder)
{
    dm.processCtrl = 3;
    dm.deltaE = 1e30f;
    dm.deltaVmax = 1e9f; // mL
    dm.maxVolmL = 100.f;
    Probe probe(&temporal, &volumetric);
    EXPECT_EQ(probe.deltaVmax(), std::numeric_limits<unsigned int>::max());
    probe.set(1e-12, std::numeric_limits<unsigned int>::max(), 0);
    EXPECT_EQ(dose(probe), 20000u) << "the 20 mL cylinder";
}

TEST_F(Algorithm, MaxSlopeRisesAtOnceAndFallsByHalves)
{
    TitrationAlgMillivolt algorithm(&temporal, &volumetric);
    EXPECT_EQ(algorithm.maxSlope(), 1.0);
    volumetric.addPoint(0.0, 0.0);
    algorithm.updateMaxSlope();
    EXPECT_EQ(algorithm.maxSlope(), (0.0 + 1.0) * 0.5) << "no slope from one point, in time";
    volumetric.addPoint(100.0, 300.0);
    algorithm.updateMaxSlope();
    EXPECT_EQ(algorithm.maxSlope(), 3.0);
    volumetric.addPoint(200.0, 310.0);
    algorithm.updateMaxSlope();
    EXPECT_DOUBLE_EQ(algorithm.maxSlope(), (0.1 + 3.0) * 0.5);
    clock.advance(8001); // a step ended by time-out keeps the estimate
    volumetric.addPoint(300.0, 311.0);
    algorithm.updateMaxSlope();
    EXPECT_DOUBLE_EQ(algorithm.maxSlope(), 1.55);
    algorithm.dispenseComplete();
    volumetric.addPoint(400.0, 312.0); // in time, but after one that wasn't
    algorithm.updateMaxSlope();
    EXPECT_DOUBLE_EQ(algorithm.maxSlope(), 1.55);
    volumetric.addPoint(500.0, 313.0);
    algorithm.updateMaxSlope();
    EXPECT_DOUBLE_EQ(algorithm.maxSlope(), (0.01 + 1.55) * 0.5);
    volumetric.addPoint(500.0, 400.0); // one volume twice: no slope to learn
    algorithm.updateMaxSlope();
    EXPECT_TRUE(std::isfinite(algorithm.maxSlope()));
}

TEST_F(Algorithm, EndsAtTheVolumeLimit)
{
    Probe probe(&temporal, &volumetric);
    EXPECT_FALSE(probe.isEnded());
    probe.set(1.0, 1, 20000);
    EXPECT_TRUE(probe.isEnded());
    EXPECT_EQ(probe.reasonForEnd, QStringLiteral("Reached max dispense vol: 20000"));
}

TEST_F(Algorithm, AStepBetweenTwoPointsEndsBetweenThem)
{
    dm.displayPh = true;
    dm.noOfEndpoints = 3;
    TitrationAlgMillivolt algorithm(&temporal, &volumetric);
    volumetric.setMinimumVolume(1.0);
    // The whole break lies between 200 and 300 µL.
    const double data[16] = {0.0, -1.0, -2.0, -202.0, -203.0, -204.0, -205.0, -206.0,
                             -207.0, -208.0, -209.0, -210.0, -211.0, -212.0, -213.0, -214.0};
    for (int k = 0; k < 16; ++k)
        volumetric.addPoint(100.0 * k, data[k]);
    const std::array<double, 3> results = algorithm.getResults();
    EXPECT_NEAR(results[0], 250.0, 1.0);
    EXPECT_NEAR(dm.ep1, dm.millivoltsToPH(-102.0f), 0.02) << "half way down the step, as pH";
    EXPECT_EQ(results[2], 0.0) << "no third end point";
}

TEST_F(Algorithm, InflectionOfTheCubicRefinesThePeak)
{
    TitrationAlgMillivolt algorithm(&temporal, &volumetric);
    // An odd cubic around 1530 µL: its inflection is exactly there.
    for (int k = 0; k < 40; ++k) {
        const double v = 100.0 * k;
        const double t = (v - 1530.0) / 1000.0;
        volumetric.addPoint(v, 50.0 + 400.0 * t - 60.0 * t * t * t);
    }
    const std::array<double, 3> results = algorithm.getResults();
    const double p = volumetric.peakVolume(0);
    EXPECT_NE(p, 1530.0);
    EXPECT_NEAR(results[0], 1530.0, 1e-6);
    EXPECT_NEAR(dm.ep1, 50.0, 1e-3);
}

} // namespace
