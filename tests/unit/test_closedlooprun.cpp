// Whole titrations inside the process: the end-point and equivalence-point
// algorithms, an ideal burette and the virtual instrument's beakers, on the
// manual clock, so that a run of many minutes takes milliseconds. The volume
// found must lie where the chemistry puts it.
#include "algorithmdriver.h"
#include "beaker.h"

#include "controller/algorithms/temporaldatastore.h"
#include "controller/algorithms/titrationalgendpoint.h"
#include "controller/algorithms/titrationalgmillivolt.h"
#include "controller/algorithms/volumetricdatastore.h"
#include "standinengine.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <memory>
#include <random>
#include <vector>

namespace {

const double kNernst25 = 59.16; // mV per pH at 25 °C, as the stand-in converts
enum Technique { EndPoint = 0, Equivalence = 1 };

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

AcidBaseBeaker::Params asBase(AcidBaseBeaker::Params p)
{
    p.acidCharge = 1;
    p.startsAsAcid = false;
    p.titrantIsBase = false;
    return p;
}

AcidBaseBeaker hydrochloricAcid()
{
    return AcidBaseBeaker(sample({-6.0}));
}

// 0.02 mol/L of a base whose acid has pKa 5.2, in 50 mL, with 0.1 mol/L HCl.
AcidBaseBeaker::Params weakBase()
{
    return asBase(sample({5.2}, 10.0));
}

// Volume (µL) at which the beaker's potential crosses target between fromMl
// and toMl, on a curve that runs one way there.
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

// Where the slope of the beaker's curve is greatest between fromMl and toMl
// (µL): a ternary search on central differences 0.5 µL wide.
double inflectionUl(const Beaker &beaker, double fromMl, double toMl)
{
    auto slope = [&](double ml) { return std::abs(beaker.potentialMv(ml + 0.00025) - beaker.potentialMv(ml - 0.00025)); };
    double lo = fromMl, hi = toMl;
    while (hi - lo > 1e-6) {
        const double a = lo + (hi - lo) / 3.0, b = hi - (hi - lo) / 3.0;
        (slope(a) < slope(b) ? lo : hi) = (slope(a) < slope(b) ? a : b);
    }
    return 500.0 * (lo + hi);
}

// A curve as an instrument measured it: points from firstUl to lastUl,
// each step `stepUl`, or, where dynamicMv is set, the step that moves the
// potential by that much, held to 3..34 µL; seeded normal noise; the
// beaker's curve moved by shiftUl to larger volumes.
struct Sampling {
    double firstUl;
    double lastUl;
    double stepUl;
    double dynamicMv;
    double noiseMv;
    unsigned seed;
    double shiftUl = 0.0;
};

std::vector<std::pair<double, double>> measured(const Beaker &beaker, const Sampling &s)
{
    std::mt19937 random(s.seed);
    std::normal_distribution<double> noise(0.0, s.noiseMv > 0.0 ? s.noiseMv : 1.0);
    std::vector<std::pair<double, double>> points;
    for (double v = s.firstUl; v <= s.lastUl + 1e-9;) {
        const double e = beaker.potentialMv(std::max(v - s.shiftUl, 0.0) / 1000.0);
        points.emplace_back(v, e + (s.noiseMv > 0.0 ? noise(random) : 0.0));
        double step = s.stepUl;
        if (s.dynamicMv > 0.0) {
            const double slope = std::abs(beaker.potentialMv(std::max(v - s.shiftUl, 0.0) / 1000.0 + 0.001) - e); // mV/µL
            step = std::clamp(s.dynamicMv / std::max(slope, 1e-9), 3.0, 34.0);
        }
        v += step;
    }
    return points;
}

class ClosedLoopRun : public StandInEngineTest
{
protected:
    // A measured curve played as the simulation path plays a file: each
    // point straight into the curve, until the algorithm ends the run or the
    // data run out; then the results.
    AlgorithmDriver::Outcome replay(const std::vector<std::pair<double, double>> &points)
    {
        TemporalDataStore temporal;
        VolumetricDataStore volumetric;
        TitrationAlgMillivolt algorithm(&temporal, &volumetric);
        for (const auto &p : points) {
            volumetric.addPoint(p.first, p.second);
            if (algorithm.isEnded())
                break;
        }
        AlgorithmDriver::Outcome out;
        out.results = algorithm.getResults();
        out.reason = algorithm.reasonForEnd;
        out.finished = true;
        return out;
    }

    AlgorithmDriver::Outcome titrate(const Beaker &beaker, double noiseMv = 0.0, double lagSeconds = 1.5)
    {
        TemporalDataStore temporal;
        VolumetricDataStore volumetric;
        std::unique_ptr<TitrationAlgorithmBase> algorithm;
        if (dm.technique == EndPoint)
            algorithm = std::make_unique<TitrationAlgEndPoint>(&temporal, &volumetric);
        else
            algorithm = std::make_unique<TitrationAlgMillivolt>(&temporal, &volumetric);
        AlgorithmDriver driver(clock, dm);
        driver.noiseMv = noiseMv;
        driver.lagSeconds = lagSeconds;
        const AlgorithmDriver::Outcome out =
            driver.run(*algorithm, temporal, [&](double ml) { return beaker.potentialMv(ml); });
        std::printf("results %.1f %.1f %.1f µL, dispensed %u µL, %d points, %.1f min, %s\n", out.results[0],
                    out.results[1], out.results[2], out.dispensed, volumetric.size(), out.minutes,
                    qPrintable(out.reason));
        EXPECT_TRUE(out.finished) << "the run must end";
        return out;
    }
};

// One row per titration: the sample, the method, where the chemistry puts
// each end point (µL), and how the run must say it ended.
struct Titration {
    const char *name;
    AcidBaseBeaker::Params beaker;
    Technique technique;
    int processCtrl;            // 0 Routine, 1 Quick, 2 Careful
    bool displayPh;
    std::vector<float> endPoints; // preset values in the display unit; equivalence: their count
    std::vector<double> truthUl;  // 0: the crossing of the preset value, found here
    double tolerancePct;
    double noiseMv;
    const char *reason;           // nullptr: not checked
};

double phMv(double ph)
{
    return (7.0 - ph) * kNernst25;
}

TEST_F(ClosedLoopRun, EachTitrationFindsTheChemistrysVolume)
{
    // At pH 7 the curve of a strong acid breaks by six pH within a few µL;
    // Routine's doses of 400 µL can jump the whole break, so a chemist takes
    // Careful for it. Quick's doses of up to 500 µL may pass a preset end
    // point by one dose; it is checked at the equivalence points.
    const std::vector<Titration> table = {
        {"HCl to pH 7, Careful", sample({-6.0}), EndPoint, 2, true, {7.0f}, {5000.0}, 0.5, 0.0,
         "Passed below final endpoint: 0"},
        {"HCl, twice the sample, to 0 mV", sample({-6.0}, 10.0), EndPoint, 2, false, {0.0f}, {0.0}, 0.5, 0.05, nullptr},
        {"acetic acid to pH 7", sample({4.76}), EndPoint, 0, true, {7.0f}, {0.0}, 0.5, 0.05, nullptr},
        {"acetic acid to pH 8.7, its equivalence", sample({4.76}), EndPoint, 0, true, {8.7f}, {0.0}, 0.5, 0.05, nullptr},
        {"HCl to -118 mV, past the equivalence", sample({-6.0}), EndPoint, 0, false, {-118.0f}, {0.0}, 0.5, 0.05,
         "Passed below final endpoint: -118"},
        {"HCl to pH 2.5, in the flat part", sample({-6.0}), EndPoint, 0, false, {float(phMv(2.5))}, {0.0}, 0.5, 0.0,
         nullptr},
        {"ammonia with acid to pH 4.5, falling", asBase(sample({9.25})), EndPoint, 0, true, {4.5f}, {0.0}, 0.5, 0.0,
         "Passed above final endpoint: 147.894"},
        {"phosphoric acid to pH 4.5 and 9.5", sample({2.15, 7.20, 12.35}), EndPoint, 0, true, {4.5f, 9.5f},
         {0.0, 0.0}, 0.5, 0.05, "Passed below final endpoint: -147.894"},
        {"phosphoric acid to three potentials", sample({2.15, 7.20, 12.35}), EndPoint, 0, false,
         {float(phMv(4.5)), 0.0f, float(phMv(9.5))}, {0.0, 0.0, 0.0}, 0.5, 0.0, nullptr},
        {"acetic acid to pH 5.5, Routine", sample({4.76}), EndPoint, 0, true, {5.5f}, {0.0}, 0.5, 0.0, nullptr},
        {"acetic acid to pH 5.5, Careful", sample({4.76}), EndPoint, 2, true, {5.5f}, {0.0}, 0.5, 0.0, nullptr},
        {"HCl to its equivalence", sample({-6.0}), Equivalence, 0, false, {0.f}, {5000.0}, 0.5, 0.0,
         "Reached final equivalence point at count: 1"},
        {"acetic acid to its equivalence, in pH", sample({4.76}), Equivalence, 0, true, {0.f}, {5000.0}, 0.5, 0.0,
         nullptr},
        {"acetic acid to its equivalence, Quick", sample({4.76}), Equivalence, 1, false, {0.f}, {5000.0}, 0.5, 0.0,
         nullptr},
        {"acetic acid to its equivalence, Careful", sample({4.76}), Equivalence, 2, false, {0.f}, {5000.0}, 0.5, 0.0,
         nullptr},
        {"phosphoric acid to two equivalences", sample({2.15, 7.20, 12.35}), Equivalence, 0, false, {0.f, 0.f},
         {5000.0, 10000.0}, 0.5, 0.0, "Reached final equivalence point at count: 2"},
    };
    for (const Titration &t : table) {
        SCOPED_TRACE(t.name);
        dm.technique = t.technique;
        dm.processCtrl = t.processCtrl;
        dm.displayPh = t.displayPh;
        dm.noOfEndpoints = int(t.endPoints.size());
        for (size_t i = 0; i < t.endPoints.size(); ++i)
            dm.endpoint[i] = t.endPoints[i];
        const AcidBaseBeaker beaker(t.beaker);
        const AlgorithmDriver::Outcome run = titrate(beaker, t.noiseMv);
        double from = 0.0;
        for (size_t i = 0; i < t.truthUl.size(); ++i) {
            double truth = t.truthUl[i];
            if (truth == 0.0) {
                // The preset value's crossing, on the part of the curve after the last end point.
                const double target = t.displayPh ? phMv(t.endPoints[i]) : t.endPoints[i];
                double to = from + 0.5;
                while (to < 20.0 && (beaker.potentialMv(to) - target) * (beaker.potentialMv(from) - target) > 0)
                    to += 0.5;
                truth = crossingUl(beaker, target, to - 0.5, to);
                from = truth / 1000.0 + 0.01;
            }
            EXPECT_NEAR(run.results[i], truth, truth * t.tolerancePct / 100.0) << "end point " << i + 1;
        }
        for (size_t i = t.truthUl.size(); i < 3; ++i)
            EXPECT_EQ(run.results[i], 0.0) << "no end point " << i + 1;
        if (t.reason) {
            EXPECT_EQ(run.reason, QString::fromUtf8(t.reason));
        }
    }
}

TEST_F(ClosedLoopRun, EquivalenceReadsThePotentialThere)
{
    dm.technique = Equivalence;
    const AlgorithmDriver::Outcome hcl = titrate(hydrochloricAcid());
    EXPECT_LT(hcl.dispensed, 6000u) << "stops soon after the end point";
    EXPECT_NEAR(dm.ep1, 0.0, 120.0) << "neutral at the end point, within two pH on a jump of eight";

    dm.displayPh = true;
    titrate(AcidBaseBeaker(sample({4.76})));
    EXPECT_NEAR(dm.ep1, 8.4, 0.6) << "pH at the equivalence point of 0.01 mol/L acetate";

    dm.displayPh = false;
    dm.noOfEndpoints = 2;
    const AcidBaseBeaker phosphoric(sample({2.15, 7.20, 12.35}));
    titrate(phosphoric);
    EXPECT_NEAR(dm.ep1, phosphoric.potentialMv(5.0), 15.0);
    EXPECT_NEAR(dm.ep2, phosphoric.potentialMv(10.0), 15.0);
}

// The dose never aims past the end point, and the volume is read where the
// settled readings cross it: within 0.2 % of the chemistry's crossing at
// every process control, on a rising and a falling curve, with 1 s lag and
// 0.05 mV noise. 20 mL of 0.05 mol/L benzoic acid (made up to 50 mL) with 0.1 mol/L
// NaOH to pH 8.20, close to its equivalence; 20 mL of 0.05 mol/L ammonia
// with 0.1 mol/L HCl to pH 5.80.
TEST_F(ClosedLoopRun, PresetEndPointsWithinAFifthOfAPercent)
{
    dm.technique = EndPoint;
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


TEST_F(ClosedLoopRun, UnreachedEndPointEndsAtTheVolumeLimitWithTheWholeVolume)
{
    dm.technique = EndPoint;
    dm.maxVolmL = 3.f;
    dm.endpoint[0] = 0.0f;
    const AlgorithmDriver::Outcome run = titrate(hydrochloricAcid());
    EXPECT_EQ(run.reason, QStringLiteral("Max volume reached: 3000"));
    EXPECT_EQ(run.dispensed, 3000u);
    EXPECT_EQ(run.results[0], 3000.0);
}


TEST_F(ClosedLoopRun, EndPointAtTheFirstReadingWaitsForNineMillivolts)
{
    dm.technique = EndPoint;
    // The curve starts at the end point; only a movement of 9 mV tells its
    // direction, so the run goes on until then.
    const AcidBaseBeaker hcl = hydrochloricAcid();
    const double start = hcl.potentialMv(0.0);
    dm.endpoint[0] = float(start);
    const AlgorithmDriver::Outcome run = titrate(hcl);
    EXPECT_EQ(run.reason.left(29), QStringLiteral("Passed below final endpoint: "));
    EXPECT_LE(hcl.potentialMv(run.dispensed / 1000.0), start - 9.0);
}


TEST_F(ClosedLoopRun, StepAimsAtAFifthOfTheDistance)
{
    dm.technique = EndPoint;
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


TEST_F(ClosedLoopRun, PhConversionUsesTheTemperatureAtTheStart)
{
    dm.technique = EndPoint;
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


// Curves whose slope is greatest at their very start: a weak base with a
// strong acid, a very weak acid with a strong base, a redox couple with no
// oxidised form to begin with. 0.02 mol/L of each in 50 mL against
// 0.1 mol/L, so the equivalence point lies at 10.00 mL; Routine, an electrode
// with 1 s lag and 0.05 mV noise; from the start and after a 1 mL pre-dose.
// The start of the curve is never taken for the equivalence point. The
// jumps of the weak base and the weak acid stay below Routine's slope
// threshold (0.07 and 0.04 of 0.2 mV/µL): the run goes to its limit; the
// fit of the titration around the break confirms it as the equivalence
// point and moves it from the inflection to the equivalence volume.
TEST_F(ClosedLoopRun, SteepStartsAreNotEquivalencePoints)
{
    dm.technique = Equivalence;
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
        {"weak base pKa 5.2 with HCl", std::make_shared<AcidBaseBeaker>(base), 0, false, 0.1},
        {"weak acid pKa 9.2 with NaOH", std::make_shared<AcidBaseBeaker>(weakAcid), 0, false, 0.1},
        {"iron(II) with cerium(IV)", std::make_shared<RedoxBeaker>(iron), 1, true, 0.5},
    };
    std::printf("| sample | pre-dose mL | found mL | error %% | end |\n");
    for (const Case &c : cases) {
        for (float preDose : {0.f, 1.f}) {
            dm.electrode = c.electrode;
            dm.preDose = preDose;
            const AlgorithmDriver::Outcome run = titrate(*c.beaker, 0.05, 1.0);
            const double errorPct = (run.results[0] - 10000.0) / 100.0;
            std::printf("| %s | %.0f | %.3f | %+.2f | %s |\n", c.name, double(preDose), run.results[0] / 1000.0,
                        errorPct, qPrintable(run.reason));
            EXPECT_LT(std::abs(errorPct), c.maxErrorPct) << c.name << ", pre-dose " << preDose << " mL: "
                                                         << run.reason.toStdString();
            EXPECT_EQ(run.reason, c.equivalenceFound
                                      ? QStringLiteral("Reached final equivalence point at count: 1")
                                      : QStringLiteral("Reached max dispense vol: 20000; equivalence point "
                                                       "confirmed by the fit of the curve"))
                << c.name;
        }
    }
}


// Where the slope only falls, there is nothing to report: the run ends at
// the volume limit and says that it found no equivalence point.
TEST_F(ClosedLoopRun, OnlyASteepStartEndsAtTheLimitWithNoEquivalencePoint)
{
    dm.technique = Equivalence;
    const AcidBaseBeaker::Params base = weakBase();
    dm.maxVolmL = 5.f; // half way to the equivalence point
    const AlgorithmDriver::Outcome run = titrate(AcidBaseBeaker(base), 0.05, 1.0);
    EXPECT_EQ(run.reason, QStringLiteral("Reached max dispense vol: 5000; no equivalence point found"));
    EXPECT_EQ(run.dispensed, 5000u);
    EXPECT_EQ(run.results[0], 0.0);
}

} // namespace

namespace {

// The end point follows the curve between the points: one smooth curve
// sampled at 15 offsets within its step moves the end point found with the
// offset, never back, and within a tenth of the step of the inflection.
TEST_F(ClosedLoopRun, EndPointMovesSmoothlyWithTheSampling)
{
    dm.technique = Equivalence;
    struct Curve {
        const char *name;
        AcidBaseBeaker::Params beaker;
        double stepUl;
    };
    const Curve curves[] = {
        {"weak acid pKa 7, 150 uL steps", sample({7.0}, 10.0), 150.0},
        {"weak acid pKa 8, 150 uL steps", sample({8.0}, 10.0), 150.0},
        {"weak acid pKa 7, 0.1 mL manual steps", sample({7.0}, 10.0), 100.0},
        {"weak acid pKa 8, 0.5 mL manual steps", sample({8.0}, 10.0), 500.0},
    };
    for (const Curve &c : curves) {
        const AcidBaseBeaker beaker(c.beaker);
        const double truth = inflectionUl(beaker, 9.0, 10.5);
        double previous = -1.0;
        for (int k = 0; k < 15; ++k) {
            const double offset = c.stepUl * k / 15.0;
            const AlgorithmDriver::Outcome run = replay(measured(beaker, {0.0, 15000.0, c.stepUl, 0.0, 0.0, 1, offset}));
            SCOPED_TRACE(testing::Message() << c.name << ", offset " << offset << " uL");
            EXPECT_NEAR(run.results[0], truth + offset, c.stepUl / 10.0);
            EXPECT_GE(run.results[0], previous);
            previous = run.results[0];
        }
    }
}

// A curve that starts past the minimum volume (the first measured point at
// 5 or 12 mL, 0.3 mV of noise): its first slopes are measured ones, and a
// curve with no break (the tail past the equivalence alone) has no end point.
TEST_F(ClosedLoopRun, CurvesStartingPastTheMinimumVolume)
{
    dm.technique = Equivalence;
    const AcidBaseBeaker acid(sample({7.0}, 10.0));
    const AlgorithmDriver::Outcome withBreak = replay(measured(acid, {5000.0, 14000.0, 150.0, 0.0, 0.3, 2}));
    EXPECT_NEAR(withBreak.results[0], inflectionUl(acid, 9.0, 10.5), 15.0);
    const AlgorithmDriver::Outcome tail = replay(measured(acid, {12000.0, 20000.0, 150.0, 0.0, 0.3, 2}));
    EXPECT_EQ(tail.results[0], 0.0);
    EXPECT_TRUE(tail.reason.endsWith(QLatin1String("; no equivalence point found"))) << tail.reason.toStdString();
    // A pyridine-like base replayed at 0.2 mL steps starts at its steepest;
    // its end point is its equivalence (10.00 mL, its inflection 9.986),
    // within 0.1 %.
    const AcidBaseBeaker base(weakBase());
    const AlgorithmDriver::Outcome pyridine = replay(measured(base, {0.0, 12000.0, 200.0, 0.0, 0.05, 1}));
    EXPECT_NEAR(pyridine.results[0], 10000.0, 10.0);
    // Curves cut off while still rising towards their break (at 10 mL) have
    // no end point yet, whatever their last slopes do.
    for (double lastUl : {9000.0, 9500.0, 9900.0}) {
        for (const Beaker *cut : {static_cast<const Beaker *>(&acid), static_cast<const Beaker *>(&base)}) {
            const AlgorithmDriver::Outcome run = replay(measured(*cut, {0.0, lastUl, 150.0, 0.0, 0.3, 3}));
            EXPECT_EQ(run.results[0], 0.0) << "cut at " << lastUl << " uL";
            EXPECT_TRUE(run.reason.endsWith(QLatin1String("; no equivalence point found"))) << run.reason.toStdString();
        }
    }
}

// Lopsided breaks end at the equivalence volume, not at their inflection:
// weak bases (pKa 4.5 to 5.5) and weak acids (pKa 4 to 8), 10 mL made up to
// 50 mL against 0.1 mol/L, Routine, 1 s lag, 0.05 mV noise, within 0.1 %.
TEST_F(ClosedLoopRun, LopsidedBreaksEndAtTheEquivalence)
{
    dm.technique = Equivalence;
    struct Case {
        AcidBaseBeaker::Params beaker;
        double truthUl;
    };
    const Case cases[] = {
        {asBase(sample({4.5}, 10.0)), 10000.0}, {asBase(sample({4.9}, 15.0)), 15000.0},
        {asBase(sample({5.5}, 10.0)), 10000.0}, {sample({4.0}, 10.0), 10000.0},
        {sample({6.0}, 10.0), 10000.0},         {sample({8.0}, 10.0), 10000.0},
    };
    for (const Case &c : cases) {
        const AlgorithmDriver::Outcome run = titrate(AcidBaseBeaker(c.beaker), 0.05, 1.0);
        std::printf("| pKa %.1f | %+.3f %% |\n", c.beaker.pKa[0], (run.results[0] - c.truthUl) / c.truthUl * 100.0);
        EXPECT_NEAR(run.results[0], c.truthUl, c.truthUl * 0.001)
            << "pKa " << c.beaker.pKa[0] << (c.beaker.titrantIsBase ? " acid" : " base");
        EXPECT_FALSE(run.reason.contains(QLatin1String("no equivalence point"))) << run.reason.toStdString();
    }
}

// Two breaks at dynamic 3-34 µL steps with 1 mV of noise, six seeds: both
// within 1 %, also when the data end just past the second break, before the
// run could confirm it (a noisy dip on the flank of the first break is no
// valley); asked for one, the first.
TEST_F(ClosedLoopRun, TwoBreaksOnANoisyCurve)
{
    dm.technique = Equivalence;
    const AcidBaseBeaker phosphoric(sample({2.15, 7.20, 12.35}, 10.0));
    for (double lastUl : {25000.0, 20100.0}) {
        for (unsigned seed : {1u, 2u, 3u, 4u, 5u, 6u}) {
            const auto points = measured(phosphoric, {0.0, lastUl, 0.0, 4.0, 1.0, seed});
            dm.noOfEndpoints = 2;
            const AlgorithmDriver::Outcome two = replay(points);
            dm.noOfEndpoints = 1;
            const AlgorithmDriver::Outcome one = replay(points);
            SCOPED_TRACE(testing::Message() << "to " << lastUl << " uL, seed " << seed << ": " << two.reason.toStdString());
            EXPECT_NEAR(two.results[0], 10000.0, 100.0);
            EXPECT_NEAR(two.results[1], 20000.0, 200.0);
            EXPECT_NEAR(one.results[0], 10000.0, 100.0);
        }
    }
}

} // namespace

