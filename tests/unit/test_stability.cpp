#include "meter/cmeasurementcontext.h"
#include "meter/cstabilityise.h"
#include "meter/cstabilityorp.h"
#include "meter/cstabilityph.h"

#include <gtest/gtest.h>

namespace {

struct Sample
{
    bool stable;
    double value;
    double mv;
};

Sample feed(CStability &detector, int index, double value, double mv)
{
    Sample s{false, 0.0, 0.0};
    s.stable = detector.Check(index, &s.value, &s.mv, value, mv);
    return s;
}

// Feeds a constant reading and returns the number of the call that first
// reported stable (0 when none did within `limit` calls).
int callsToStable(CStability &detector, int index, double value, double mv, int limit = 200)
{
    for (int call = 1; call <= limit; ++call) {
        if (feed(detector, index, value, mv).stable)
            return call;
    }
    return 0;
}

// ---- the counts: filling, settling, holding ----

TEST(StabilityCounts, FirstNineCallsShowTheLiveNumbers)
{
    CStabilityPH detector;
    for (int call = 1; call <= 9; ++call) {
        const double value = 7.0 + call * 0.001;
        const double mv = -0.5 * call;
        const Sample s = feed(detector, 2, value, mv);
        EXPECT_FALSE(s.stable) << "call " << call;
        EXPECT_DOUBLE_EQ(s.value, value);
        EXPECT_DOUBLE_EQ(s.mv, mv);
    }
}

TEST(StabilityCounts, SteadyInputIsStableOnThe38thCallOfANewDetector)
{
    CStabilityPH ph;
    EXPECT_EQ(callsToStable(ph, 2, 7.0, 0.0), 38);
    CStabilityORP orp;
    EXPECT_EQ(callsToStable(orp, 3, 250.0, 250.0), 38);
    CStabilityISE ise;
    EXPECT_EQ(callsToStable(ise, 3, 12.5, 120.0), 38);
}

TEST(StabilityCounts, AfterResetWithAWarmRingOnThe35thCall)
{
    CStabilityPH detector;
    ASSERT_EQ(callsToStable(detector, 2, 7.0, 0.0), 38);
    detector.Reset();
    EXPECT_FALSE(detector.isHeld());
    EXPECT_EQ(callsToStable(detector, 2, 7.0, 0.0), 35);
}

TEST(StabilityCounts, HeldValueAndMvAreThoseOfTheMomentOfStability)
{
    CStabilityPH detector;
    ASSERT_EQ(callsToStable(detector, 2, 7.0, 0.0), 38);
    // Within 0.015 pH of the held 7.0: the average moves to 7.001, the
    // screen keeps 7.0 and 0.0 mV.
    const Sample s = feed(detector, 2, 7.01, 0.0);
    EXPECT_TRUE(s.stable);
    EXPECT_DOUBLE_EQ(s.value, 7.0);
    EXPECT_DOUBLE_EQ(s.mv, 0.0);
}

// ---- the band around the held value ----

TEST(StabilityBand, NoiseWithinTheToleranceKeepsTheReadingHeld)
{
    CStabilityPH detector;
    ASSERT_EQ(callsToStable(detector, 2, 7.0, 0.0), 38);
    // Noise of +-0.01 pH and +-0.05 mV with a period of three samples:
    // averages stay within 0.001 pH and the drift far below 0.7 mV/min.
    const double dv[3] = {0.01, 0.0, -0.01};
    const double dmv[3] = {0.05, 0.0, -0.05};
    for (int i = 0; i < 300; ++i) {
        const Sample s = feed(detector, 2, 7.0 + dv[i % 3], dmv[i % 3]);
        ASSERT_TRUE(s.stable) << "sample " << i;
        ASSERT_DOUBLE_EQ(s.value, 7.0);
        ASSERT_DOUBLE_EQ(s.mv, 0.0);
    }
}

TEST(StabilityBand, LeavingTheBandReleasesToTheLiveValue)
{
    CStabilityPH detector;
    ASSERT_EQ(callsToStable(detector, 2, 7.0, 0.0), 38);
    // One sample of 7.1 moves the average to 7.01: still within 0.015.
    Sample s = feed(detector, 2, 7.1, 0.0);
    EXPECT_TRUE(s.stable);
    EXPECT_DOUBLE_EQ(s.value, 7.0);
    // The second moves it to 7.02: out of the band, the live value shows.
    s = feed(detector, 2, 7.1, 0.0);
    EXPECT_FALSE(s.stable);
    EXPECT_FALSE(detector.isHeld());
    EXPECT_DOUBLE_EQ(s.value, 7.1);
    // The history was cleared: the next nine calls fill the averages again.
    for (int call = 1; call <= 9; ++call)
        EXPECT_FALSE(feed(detector, 2, 7.1, 0.0).stable);
}

TEST(StabilityBand, DriftBreaksAHeldReading)
{
    CStabilityORP detector;
    ASSERT_EQ(callsToStable(detector, 3, 100.0, 100.0), 38);
    // Value constant, but the potential moves 0.1 mV per sample: 6 mV/min.
    bool released = false;
    for (int i = 1; i <= 20 && !released; ++i)
        released = !feed(detector, 3, 100.0, 100.0 + 0.1 * i).stable;
    EXPECT_TRUE(released);
    EXPECT_GT(detector.drift(), 0.5);
}

// ---- the settling step ----

TEST(StabilityStep, ExactlyTheToleranceStillCountsAsSmall)
{
    // ISE at 5000 has a tolerance of 2.0, exact in binary: a raw jump of
    // 20 moves the 10-sample average by exactly 2.0 on each of ten samples.
    CStabilityISE detector;
    for (int call = 1; call <= 20; ++call)
        ASSERT_FALSE(feed(detector, 3, 5000.0, 200.0).stable);
    int stableAt = 0;
    for (int call = 21; call <= 60 && stableAt == 0; ++call) {
        if (feed(detector, 3, 5020.0, 200.0).stable)
            stableAt = call;
    }
    EXPECT_EQ(stableAt, 38) << "steps of exactly 2.0 must not restart the count";
}

TEST(StabilityStep, AStepBeyondTheToleranceRestartsTheCount)
{
    CStabilityISE detector;
    for (int call = 1; call <= 20; ++call)
        ASSERT_FALSE(feed(detector, 3, 5000.0, 200.0).stable);
    // 5025 moves the average by 2.5 on each of the next ten samples; the
    // count restarts on each, last on call 30, so 26 passes (calls 31 to
    // 56) end on call 56.
    int stableAt = 0;
    for (int call = 21; call <= 100 && stableAt == 0; ++call) {
        if (feed(detector, 3, 5025.0, 200.0).stable)
            stableAt = call;
    }
    EXPECT_EQ(stableAt, 56);
}

TEST(StabilityStep, IseToleranceFollowsTheConcentration)
{
    // At 0.5 the tolerance is 0.003: a raw jump of 0.02 moves the average
    // by 0.002 (passes), 0.04 by 0.004 (restarts the count).
    CStabilityISE small;
    for (int call = 1; call <= 20; ++call)
        feed(small, 3, 0.5, 10.0);
    int at = 0;
    for (int call = 21; call <= 100 && at == 0; ++call)
        at = feed(small, 3, 0.52, 10.0).stable ? call : 0;
    EXPECT_EQ(at, 38);

    CStabilityISE larger;
    for (int call = 1; call <= 20; ++call)
        feed(larger, 3, 0.5, 10.0);
    at = 0;
    for (int call = 21; call <= 100 && at == 0; ++call)
        at = feed(larger, 3, 0.54, 10.0).stable ? call : 0;
    EXPECT_EQ(at, 56);

    // the bounds of the bands belong to the next band up
    EXPECT_FLOAT_EQ(CStabilityISE::tolerance(1.0), 0.02f);
    EXPECT_FLOAT_EQ(CStabilityISE::tolerance(1000.0), 2.0f);
}

TEST(StabilityStep, RedoxUsesTwoTenthsOfAMillivoltAtEveryIndex)
{
    for (int index = 0; index <= 3; ++index) {
        // A single raw jump of 1.9 moves the average by 0.19: passes.
        CStabilityORP passes;
        for (int call = 1; call <= 20; ++call)
            feed(passes, index, 100.0, 100.0);
        feed(passes, index, 101.9, 100.0);
        EXPECT_EQ(callsToStable(passes, index, 100.0, 100.0), 38 - 21) << "index " << index;

        // 2.1 moves it by 0.21: the count restarts on the jump and again
        // when the sample leaves the window ten calls later (call 31); the
        // passes are calls 32 to 57.
        CStabilityORP fails;
        for (int call = 1; call <= 20; ++call)
            feed(fails, index, 100.0, 100.0);
        feed(fails, index, 102.1, 100.0);
        EXPECT_EQ(callsToStable(fails, index, 100.0, 100.0), 57 - 21) << "index " << index;
    }
}

// ---- the drift test ----

TEST(StabilityDrift, ARampOfOneMillivoltPerMinute)
{
    // One sample per second: 1/60 mV per sample.
    auto rampCalls = [](int index) {
        CStabilityPH detector;
        for (int call = 1; call <= 300; ++call) {
            if (feed(detector, index, 7.0, call / 60.0).stable)
                return call;
        }
        return 0;
    };
    EXPECT_EQ(rampCalls(0), 38) << "limit 1.1 mV/min at index 0";
    EXPECT_EQ(rampCalls(1), 0) << "limit 0.9 mV/min";
    EXPECT_EQ(rampCalls(2), 0);
    EXPECT_EQ(rampCalls(3), 0);
}

TEST(StabilityDrift, LimitsByIndexAreStrict)
{
    // Ramps just below and above 0.5 mV/min at index 3.
    auto stableWithRamp = [](CStability &detector, int index, double perMinute) {
        for (int call = 1; call <= 200; ++call) {
            if (feed(detector, index, 7.0, call * perMinute / 60.0).stable)
                return true;
        }
        return false;
    };
    CStabilityPH below, above;
    EXPECT_TRUE(stableWithRamp(below, 3, 0.49));
    EXPECT_FALSE(stableWithRamp(above, 3, 0.51));
    EXPECT_NEAR(above.drift(), 0.51, 1e-3);
    // ISE: index 1 still allows 1.1 mV/min, index 2 only 0.9.
    CStabilityISE iseLoose, iseTight;
    EXPECT_TRUE(stableWithRamp(iseLoose, 1, 1.0));
    EXPECT_FALSE(stableWithRamp(iseTight, 2, 1.0));
}

TEST(StabilityDrift, AFailingDriftDelaysWithoutUndoingTheCount)
{
    // Steady until 8 passes have been counted (calls 13..20), then a burst
    // of potential: the drift fails for a while but the value steps are
    // small, so the count resumes at 8 once the drift is back.
    CStabilityPH detector;
    for (int call = 1; call <= 20; ++call)
        feed(detector, 2, 7.0, 0.0);
    ASSERT_EQ(detector.settleCount(), 8);
    feed(detector, 2, 7.0, 30.0);   // average mV jumps by 3: drift fails
    EXPECT_EQ(detector.settleCount(), 8);
}

// ---- a step and exponential settling through the context ----

TEST(StabilityStream, StepWithExponentialSettlingBecomesStableAfterTheCounts)
{
    CMeasurementContext context;
    context.SetActiveKind(CMeasurementContext::KindPh);
    context.ConfigurePh(0, 0.01f, 7.0);
    auto sample = [&context](double mv) {
        context.SetRawMv(mv);
        context.SetTemperatuteDegreC(25.0);
        context.UpdateMeasurement();
        return context.IsStable();
    };
    for (int i = 1; i <= 37; ++i)
        ASSERT_FALSE(sample(0.0)) << i;
    ASSERT_TRUE(sample(0.0));
    EXPECT_DOUBLE_EQ(context.GetMeasuredValue(), 7.0);

    // Step into pH 4 with an overshoot of 20 mV that falls tenfold per
    // second: 197, 179, 177.2, 177.02, ... The first sample breaks the hold;
    // the average refills on samples 2..11; the drift of the averaged mV
    // falls below 0.7 mV/min first on sample 15 (about 0.41; 4.1 on 14);
    // 26 passes from there end on sample 40.
    int stableAt = 0;
    double overshoot = 20.0;
    for (int k = 1; k <= 80 && stableAt == 0; ++k) {
        if (sample(177.0 + overshoot))
            stableAt = k;
        overshoot /= 10.0;
    }
    EXPECT_EQ(stableAt, 40);
    // 177 mV at 25 degrees on the ideal electrode: 7 - 177/59.16 = 4.0081.
    EXPECT_NEAR(context.GetMeasuredValue(), 4.01, 1e-6);
    EXPECT_NEAR(context.GetStableMv(), 177.0, 1e-4);
}

}
