// Whole multiple-known-addition runs inside the process: the algorithm, an
// ideal burette and the virtual instrument's ion-selective beaker (a sample
// of known concentration, the standard added by the burette, Nernst with
// dilution), on the manual clock.
#include "algorithmdriver.h"
#include "beaker.h"

#include "controller/algorithms/temporaldatastore.h"
#include "controller/algorithms/titrationalgmka.h"
#include "controller/algorithms/volumetricdatastore.h"
#include "standinengine.h"
#include "reports/logmanager.h"
#include "system/clock.h"
#include "testsupport.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace {

struct MkaOutcome
{
    AlgorithmDriver::Outcome run;
    int additions = 0;
    double concentration = 0.0;
    double slope = 0.0;
    double e0 = 0.0;
    float precision = 0.f;
    float spike = 0.f;
    int points = 0;        // sigMKAPointsToUI
    int completions = 0;   // sigMKACompleteToUI
    QList<QVariant> completion;
    QList<QList<QVariant>> pointSignals;
    int singularFits = 0;
    bool slopeFixed = false;
    QString logFile;
    std::vector<unsigned int> doses;
};

class KnownAdditionRun : public StandInEngineTest
{
protected:
    void SetUp() override
    {
        dm.technique = 3;
        dm.electrode = 2;
        dm.totalSolutionVolume = 50.f;
        dm.mkaStandard = 0.1f;
        dm.mkaSample.amount = 50.f; // the whole solution is sample: reports C itself
        ise.volumeMl = 50.0;
        ise.concentration = 1e-3;
        ise.titrantConcentration = 0.1;
        ise.e0Mv = 250.0;
        ise.slopePct = 98.0;
    }
    MkaOutcome titrate(double noiseMv = 0.05, unsigned seed = 20260101u)
    {
        const IseBeaker beaker(ise);
        TemporalDataStore temporal;
        VolumetricDataStore volumetric;
        TitrationAlgMKA algorithm(&temporal, &volumetric);
        QSignalSpy points(&algorithm, &TitrationAlgMKA::sigMKAPointsToUI);
        QSignalSpy complete(&algorithm, &TitrationAlgMKA::sigMKACompleteToUI);
        AlgorithmDriver driver(clock, dm);
        driver.noiseMv = noiseMv;
        driver.noiseSeed = seed;
        driver.lagSeconds = 2.0;

        MkaOutcome out;
        unsigned int seen = 0;
        driver.beforeSample = [&](double delivered) {
            if (delivered > seen) {
                out.doses.push_back(unsigned(delivered) - seen);
                seen = unsigned(delivered);
            }
        };
        out.run = driver.run(algorithm, temporal, [&](double ml) { return beaker.potentialMv(ml); });
        out.additions = algorithm.additionCount();
        out.concentration = algorithm.concentration();
        out.slope = algorithm.parameters()[2];
        out.e0 = algorithm.parameters()[1];
        out.precision = algorithm.precision();
        out.spike = algorithm.spikeRecovery();
        out.points = points.count();
        out.completions = complete.count();
        if (!complete.isEmpty())
            out.completion = complete.first();
        for (const QList<QVariant> &args : points)
            out.pointSignals.append(args);
        out.singularFits = algorithm.singularFits();
        out.slopeFixed = algorithm.slopeFixed();
        out.logFile = algorithm.logFileName();
        std::printf("C %.6g (true %.6g), S %.3f, E0 %.2f, precision %.3f %%, spike %.1f %%, %d additions, "
                    "%u µL, %.1f min, %d singular\n",
                    out.concentration, ise.concentration, out.slope, out.e0, double(out.precision),
                    double(out.spike), out.additions, out.run.dispensed, out.run.minutes, out.singularFits);
        EXPECT_TRUE(out.run.finished) << "the run must end";
        return out;
    }

    double trueSlope() const { return ise.slopePct / 100.0 * Beaker::nernstSlope(ise.celsius) / ise.charge; }

    TempSandbox sandbox;
    IseBeaker::Params ise;
};

TEST_F(KnownAdditionRun, SodiumSampleWithNoise)
{
    const MkaOutcome run = titrate();
    EXPECT_NEAR(run.concentration, 1e-3, 1e-3 * 0.02);
    EXPECT_NEAR(run.slope, trueSlope(), 1.5);
    EXPECT_NEAR(run.e0, 250.0, 5.0);
    ASSERT_EQ(run.completions, 1);
    EXPECT_DOUBLE_EQ(run.completion[0].toDouble(), run.concentration);
    EXPECT_DOUBLE_EQ(run.completion[1].toDouble(), run.slope);
    EXPECT_EQ(run.points, run.additions + 1) << "the first reading and one point per addition";
    EXPECT_NEAR(run.spike, 100.0, 5.0);
    ASSERT_FALSE(run.doses.empty());
    EXPECT_EQ(run.doses.front(), 50u) << "the first dose is always 50 µL";
    EXPECT_EQ(run.singularFits, 0);
    EXPECT_FALSE(run.slopeFixed) << "a slope inside its limits stays free";
}

TEST_F(KnownAdditionRun, IdealElectrodeGivesTheSampleExactly)
{
    const MkaOutcome run = titrate(0.0);
    EXPECT_NEAR(run.concentration, 1e-3, 1e-3 * 0.002);
    EXPECT_NEAR(run.slope, trueSlope(), 0.3);
    EXPECT_NEAR(run.spike, 100.0, 1.0);
}

TEST_F(KnownAdditionRun, ReportsInTheMethodsUnitAndBasis)
{
    // 10 mL of sample made up to 50 mL, result in mg/L of sodium.
    dm.mkaSample.amount = 10.f;
    dm.mkaSample.resultUnits = QStringLiteral("mg/L");
    dm.mkaSample.molecularWeight = 22.99f;
    const MkaOutcome run = titrate();
    const double expected = 1e-3 * 50.0 / 10.0 * 22.99 * 1000.0;
    EXPECT_NEAR(run.concentration, expected, expected * 0.02);
}

TEST_F(KnownAdditionRun, EndsAtFiveAdditionsWhateverThePrecision)
{
    dm.mkaPrecision = 0.f;
    const MkaOutcome run = titrate();
    EXPECT_EQ(run.additions, 5);
    EXPECT_EQ(run.completions, 1);
    EXPECT_EQ(run.points, 6);
}

TEST_F(KnownAdditionRun, EndsAtTheThirdFitWhenPreciseEnough)
{
    dm.mkaPrecision = 50.f;
    const MkaOutcome run = titrate();
    EXPECT_EQ(run.additions, 3);
    EXPECT_LT(run.precision, 50.f);
    // Precision is unknown until three concentrations exist.
    ASSERT_GE(run.pointSignals.size(), 3);
    EXPECT_FLOAT_EQ(run.pointSignals[1][3].toFloat(), 999.f);
    EXPECT_FLOAT_EQ(run.pointSignals[2][3].toFloat(), 999.f);
    EXPECT_LT(run.pointSignals[3][3].toFloat(), 50.f);
}

TEST_F(KnownAdditionRun, AnionElectrodeFallsAndSwapsTheSlopeLimits)
{
    ise.charge = -1;
    ise.e0Mv = -150.0;
    const MkaOutcome run = titrate();
    EXPECT_NEAR(run.concentration, 1e-3, 1e-3 * 0.02);
    EXPECT_LT(run.slope, -50.0);
    EXPECT_GT(run.slope, -60.0);
    EXPECT_NEAR(run.slope, trueSlope(), 1.5);
}

// Ten seeds of 0.05 mV noise on a monovalent and a divalent ion: the worst
// concentration and slope are within 0.5 %.
TEST_F(KnownAdditionRun, TenSeedsWithinHalfAPercent)
{
    dm.mkaPrecision = 0.f;
    for (int charge : {1, 2}) {
        dm.electrode = charge == 1 ? 2 : 3;
        ise.charge = charge;
        ise.concentration = charge == 1 ? 1e-3 : 5e-4;
        double worstC = 0.0, worstS = 0.0;
        for (unsigned seed = 1; seed <= 10; ++seed) {
            const MkaOutcome run = titrate(0.05, seed);
            worstC = std::max(worstC, std::abs(run.concentration / ise.concentration - 1.0) * 100.0);
            worstS = std::max(worstS, std::abs(run.slope / trueSlope() - 1.0) * 100.0);
        }
        std::printf("charge %d: worst concentration %.2f %%, slope %.2f %%\n", charge, worstC, worstS);
        EXPECT_LT(worstC, 0.5) << "charge " << charge;
        EXPECT_LT(worstS, 0.5) << "charge " << charge;
    }
}

TEST_F(KnownAdditionRun, SlopeOutsideItsLimitsIsHeldAtTheExpectedSlope)
{
    // An electrode of 110 %: 65 mV per decade, above the 60 allowed.
    ise.slopePct = 110.0;
    dm.mkaPrecision = 0.f;
    const MkaOutcome run = titrate(0.0);
    EXPECT_TRUE(run.slopeFixed);
    EXPECT_DOUBLE_EQ(run.slope, 59.2f);
    EXPECT_TRUE(std::isfinite(run.concentration));
    EXPECT_GT(run.concentration, 0.0);
}

TEST_F(KnownAdditionRun, StandardWithoutIonsIsDetectedAsASingularFit)
{
    // A standard of 0 mol/L: only dilution moves the potential, and C and
    // E0 can't be told apart. The fit says so instead of inventing numbers.
    ise.titrantConcentration = 0.0;
    dm.mkaStandard = 0.f;
    const MkaOutcome run = titrate(0.0);
    EXPECT_GT(run.singularFits, 0);
    for (const QList<QVariant> &args : run.pointSignals) {
        for (const QVariant &v : args)
            EXPECT_TRUE(std::isfinite(v.toDouble()));
    }
    ASSERT_EQ(run.completions, 1);
    for (const QVariant &v : run.completion)
        EXPECT_TRUE(std::isfinite(v.toDouble()));
    EXPECT_TRUE(readTextFile(run.logFile).contains(QStringLiteral("Singular fit")));
}

TEST_F(KnownAdditionRun, WeakFirstResponseIsToppedUp)
{
    // A sample half as strong as the standard: 50 µL barely moves the
    // reading, so the first addition is topped up, at most four times and
    // by at most 1000 µL each; later top-ups are held by ΔVmax alone.
    ise.concentration = 0.05;
    dm.mkaPrecision = 0.f;
    const MkaOutcome run = titrate(0.0);
    ASSERT_GE(run.doses.size(), 6u);
    EXPECT_EQ(run.doses[0], 50u);
    for (size_t i = 1; i <= 4; ++i)
        EXPECT_EQ(run.doses[i], 1000u) << "top-up " << i;
    EXPECT_NE(std::find(run.doses.begin() + 5, run.doses.end(), 2000u), run.doses.end())
        << "a later top-up of 2000 µL";
}

TEST_F(KnownAdditionRun, VolumeLimitEndsTheRun)
{
    dm.maxVolmL = 1.5f;
    dm.mkaPrecision = 0.f;
    const MkaOutcome run = titrate();
    EXPECT_EQ(run.run.reason, QStringLiteral("Reached max dispense vol: 1500"));
    EXPECT_LT(run.additions, 5);
    EXPECT_EQ(run.completions, 1);
}

TEST_F(KnownAdditionRun, LogHasAHeaderARowPerPointAndTheSpikeRecovery)
{
    const MkaOutcome run = titrate();
    EXPECT_TRUE(run.logFile.contains(QStringLiteral("logFiles/mkaLogs/mkalog")));
    // Rows end in CR LF; a text-mode read leaves LF.
    QStringList lines = readTextFile(run.logFile).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), 3 + run.points + 1);
    EXPECT_TRUE(lines[0].endsWith(QStringLiteral("Logfile started"))) << lines[0].toStdString();
    lines.removeFirst();
    EXPECT_EQ(lines[0], QStringLiteral("I'm a log, look at me!"));
    EXPECT_EQ(lines[1], QStringLiteral("Add, Vol., mV, E0, slope, Conc., Precision, Drift"));
    EXPECT_TRUE(lines[2].startsWith(QStringLiteral("0, 0, "))) << lines[2].toStdString();
    EXPECT_TRUE(lines[2].contains(QStringLiteral(", 0, 0, 0, 999, "))) << "no fit yet: " << lines[2].toStdString();
    EXPECT_EQ(lines.last(), QStringLiteral("Spike Recovery: %1").arg(double(run.spike)));
}

TEST_F(KnownAdditionRun, StepsAimAtTheWantedPotentialChange)
{
    dm.mkaPrecision = 0.f;
    const IseBeaker beaker(ise);
    const MkaOutcome run = titrate(0.0);
    // Each addition after the first estimate moves the reading by about ΔE
    // (10 mV for Routine), within the top-up threshold of 80 %.
    ASSERT_GE(run.pointSignals.size(), 4);
    for (int i = 2; i + 1 < run.pointSignals.size(); ++i) {
        const double step = run.pointSignals[i + 1][1].toDouble() - run.pointSignals[i][1].toDouble();
        EXPECT_GT(step, 8.0 * 0.95) << "addition " << i;
        EXPECT_LT(step, 25.0) << "addition " << i;
    }
}

} // namespace
