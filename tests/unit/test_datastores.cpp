#include "controller/algorithms/firfilter.h"
#include "controller/algorithms/temporaldatastore.h"
#include "controller/algorithms/volumetricdatastore.h"
#include "reports/logmanager.h"
#include "testsupport.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <gtest/gtest.h>

#include <cmath>
#include <functional>

namespace {

// The log's bytes as they are on disk, "\r\n" and all.
QString rawFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QString();
    return QString::fromLatin1(file.readAll());
}

// A logistic step of `height` mV centred at `centre` µL with width `width` µL.
double step(double v, double centre, double width, double height)
{
    return height * std::tanh((v - centre) / width);
}

void fillCurve(VolumetricDataStore &store, double from, double to, double spacing,
               const std::function<double(double)> &curve)
{
    for (double v = from; v <= to + 1e-9; v += spacing)
        store.addPoint(v, curve(v));
}

// ---- FirFilter ---------------------------------------------------------------

TEST(FirFilter, FirstCoefficientMeetsTheOldestSample)
{
    const double weights[2] = {0.75, 0.25};
    FirFilter filter(1, weights);
    // Ring starts at zero: the oldest sample is 0, the newest 4.
    EXPECT_DOUBLE_EQ(filter.step(4.0), 1.0);
    // Now oldest 4, newest 8.
    EXPECT_DOUBLE_EQ(filter.step(8.0), 0.75 * 4.0 + 0.25 * 8.0);
}

TEST(FirFilter, OrderThreeDelaysAPureTap)
{
    const double oldestOnly[4] = {1.0, 0.0, 0.0, 0.0};
    FirFilter filter(3, oldestOnly);
    filter.prime(-1.0);
    const double in[6] = {1, 2, 3, 4, 5, 6};
    const double out[6] = {-1, -1, -1, 1, 2, 3};
    for (int k = 0; k < 6; ++k)
        EXPECT_DOUBLE_EQ(filter.step(in[k]), out[k]) << "sample " << k;
}

TEST(FirFilter, PrimedFilterStartsAtTheValue)
{
    const double weights[4] = {0.1, 0.2, 0.3, 0.4};
    FirFilter filter(3, weights);
    filter.prime(50.0);
    EXPECT_NEAR(filter.step(50.0), 50.0, 1e-12);
}

// ---- DataStoreBase -------------------------------------------------------------

TEST(DataStoreBase, AbsentPointsReadAsMinusOne)
{
    DataStoreBase store;
    long t = 5;
    double v = 5.0, d = 5.0;
    EXPECT_FALSE(store.getLastPoint(t, v, d));
    EXPECT_EQ(t, -1);
    EXPECT_EQ(v, -1.0);
    EXPECT_EQ(d, -1.0);

    QSignalSpy spy(&store, &DataStoreBase::NewDataReceived);
    store.addPoint(10, 1.5, 2.5);
    store.addPoint(20, 3.5, 4.5);
    EXPECT_EQ(spy.count(), 2);
    EXPECT_EQ(store.size(), 2);
    ASSERT_TRUE(store.getPoint(1, t, v, d));
    EXPECT_EQ(t, 20);
    EXPECT_EQ(v, 3.5);
    EXPECT_EQ(d, 4.5);
    EXPECT_FALSE(store.getPoint(2, t, v, d));
    EXPECT_EQ(t, -1);
    EXPECT_FALSE(store.getPoint(-1, t, v, d));
    EXPECT_EQ(v, -1.0);
    EXPECT_EQ(store.volumeBackFromLast(1), 1.5);
    EXPECT_EQ(store.volumeBackFromLast(2), 0.0);
    // Walking back and forth through the cache gives the same points.
    for (int k : {0, 1, 0, 1, 1, 0})
        EXPECT_EQ(store.volumeAt(k), k == 0 ? 1.5 : 3.5);
}

// ---- TemporalDataStore ---------------------------------------------------------

TEST(TemporalDataStore, ZeroFirstSampleDoesNotPrime)
{
    TemporalDataStore store;
    double reading = 0.0;
    EXPECT_FALSE(store.lastFiltered(reading));
    EXPECT_EQ(reading, -1.0);

    store.addPoint(0, 0.0);
    ASSERT_TRUE(store.lastFiltered(reading));
    EXPECT_EQ(reading, 0.0);
    store.addPoint(250, 100.0); // primes: the whole ring is 100
    ASSERT_TRUE(store.lastFiltered(reading));
    EXPECT_NEAR(reading, 100.0, 1e-9);
    EXPECT_NEAR(store.lastFirstDerivative(), 100.0 / 250.0 * 1000.0, 1e-6);
    EXPECT_EQ(store.secondDerivative().size(), 2u) << "no second derivative before the third point";
    store.addPoint(500, 100.0);
    EXPECT_NEAR(store.lastFirstDerivative(), 0.0, 1e-9);
    EXPECT_NEAR(store.lastSecondDerivative(), -400.0 / 250.0 * 1000.0, 1e-6);
}

TEST(TemporalDataStore, RampGivesItsSlopeAfterTheFilterLatency)
{
    TemporalDataStore store;
    const double mvPerSecond = 2.0;
    for (int k = 0; k < 20; ++k) {
        const long t = 1000 + 250 * k;
        store.addPoint(t, 100.0 + mvPerSecond * (t - 1000) / 1000.0);
    }
    const auto &d1 = store.firstDerivative();
    const auto &d2 = store.secondDerivative();
    ASSERT_EQ(d1.size(), 20u);
    ASSERT_EQ(d2.size(), 20u);
    // The priming holds the ring at the first value: the filter takes four
    // samples to fill with the ramp, one more for each derivative.
    EXPECT_GT(std::abs(d1[2] - mvPerSecond), 0.1);
    for (int i = 4; i < 20; ++i)
        EXPECT_NEAR(d1[i], mvPerSecond, 1e-9) << i;
    for (int i = 5; i < 20; ++i)
        EXPECT_NEAR(d2[i], 0.0, 1e-9) << i;
    // The filter is linear phase: it lags the ramp by one and a half samples.
    EXPECT_NEAR(store.filtered().back(), 100.0 + mvPerSecond * (19 - 1.5) * 0.25, 1e-9);
}

TEST(TemporalDataStore, RepeatedTimeStampHoldsTheDerivatives)
{
    TemporalDataStore store;
    for (int k = 0; k < 8; ++k)
        store.addPoint(250 * k, 10.0 + k);
    const double d1 = store.lastFirstDerivative();
    const double d2 = store.lastSecondDerivative();
    store.addPoint(250 * 7, 30.0);
    EXPECT_TRUE(std::isfinite(store.lastFirstDerivative()));
    EXPECT_EQ(store.lastFirstDerivative(), d1);
    EXPECT_EQ(store.lastSecondDerivative(), d2);
    EXPECT_EQ(store.firstDerivative().size(), 9u);
    store.addPoint(250 * 8, 30.0);
    EXPECT_TRUE(std::isfinite(store.lastSecondDerivative()));
}

TEST(TemporalDataStore, WritesItsLog)
{
    {
        TemporalDataStore store;
        store.addPoint(250, 12.5);
        store.addPoint(500, 0.125);
    }
    const QString dir = LogManager::logRoot() + QStringLiteral("logFiles/temporalLogs/");
    const QStringList files = QDir(dir).entryList({QStringLiteral("tlog-*.txt")});
    ASSERT_FALSE(files.isEmpty());
    const QString text = rawFile(dir + files.last());
    EXPECT_TRUE(text.contains(QStringLiteral("I'm a log, look at me!\r\ntime, data, filtered\r\n"))) << text.toStdString();
    EXPECT_TRUE(text.contains(QStringLiteral("250, 12.5, 12.5\r\n"))) << text.toStdString();
    EXPECT_TRUE(text.contains(QStringLiteral("500, 0.125, ")));
}

// ---- VolumetricDataStore ---------------------------------------------------------

TEST(VolumetricDataStore, SlopeStartsAtTheThirdPointAndSearchAtTheFourth)
{
    VolumetricDataStore store;
    store.addPoint(0.0, 0.0);
    store.addPoint(100.0, 10.0);
    EXPECT_EQ(store.slope().size(), 2u);
    store.addPoint(200.0, 20.0);
    ASSERT_EQ(store.slope().size(), 3u);
    EXPECT_NEAR(store.slope()[2], 0.1, 1e-12) << "mV per µL";
    EXPECT_NEAR(store.filteredSlope()[2], 0.05, 1e-12) << "unprimed filter averages with 0";
    EXPECT_EQ(store.secondDerivative().size(), 3u);
    store.addPoint(300.0, 40.0);
    ASSERT_EQ(store.secondDerivative().size(), 4u);
    // slope over (100,10) (200,20) (300,40): 0.15 mV/µL
    EXPECT_NEAR(store.slope()[3], 0.15, 1e-12);
    EXPECT_NEAR(store.secondDerivative()[3], (0.15 - 0.1) / 100.0, 1e-12);
}

TEST(VolumetricDataStore, LogisticStepGivesItsInflection)
{
    VolumetricDataStore store;
    store.setMinimumVolume(40.0);
    fillCurve(store, 0.0, 8000.0, 50.0, [](double v) { return 200.0 + step(v, 5020.0, 300.0, 150.0); });
    ASSERT_EQ(store.peakCount(), 1);
    EXPECT_NEAR(store.peakVolume(0), 5020.0, 25.0);
    EXPECT_EQ(store.peakVolumeStep(0), 50.0);
    EXPECT_NEAR(store.peakData(0), 200.0 + step(store.volumeAt(store.peakIndex(0)), 5020.0, 300.0, 150.0), 1e-9);
    EXPECT_NEAR(store.peakSlope(0), 150.0 / 300.0, 0.01) << "the tanh's slope at its centre";
    EXPECT_EQ(store.peakVolume(2), 0.0);
    EXPECT_EQ(store.peakIndex(-1), 0);
}

TEST(VolumetricDataStore, TwoStepsGiveTwoPeaksInOrder)
{
    auto curve = [](double v) { return step(v, 3000.0, 200.0, 100.0) + step(v, 7000.0, 200.0, 60.0); };
    VolumetricDataStore store;
    store.setMinimumVolume(40.0);
    fillCurve(store, 0.0, 9000.0, 40.0, curve);
    ASSERT_EQ(store.peakCount(), 2);
    EXPECT_NEAR(store.peakVolume(0), 3000.0, 20.0);
    EXPECT_NEAR(store.peakVolume(1), 7000.0, 20.0);
    EXPECT_LT(store.peakIndex(0), store.peakIndex(1));
}

TEST(VolumetricDataStore, FallingCurveWorksLikeARisingOne)
{
    auto rising = [](double v) { return step(v, 3000.0, 200.0, 100.0) + step(v, 7000.0, 200.0, 60.0); };
    VolumetricDataStore up, down;
    up.setMinimumVolume(40.0);
    down.setMinimumVolume(40.0);
    fillCurve(up, 0.0, 9000.0, 40.0, rising);
    fillCurve(down, 0.0, 9000.0, 40.0, [&](double v) { return -rising(v); });
    ASSERT_EQ(down.peakCount(), 2);
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(down.peakIndex(i), up.peakIndex(i));
        EXPECT_EQ(down.peakVolume(i), up.peakVolume(i));
        EXPECT_NEAR(down.peakSlope(i), up.peakSlope(i), 1e-12);
    }
    EXPECT_LT(down.slope()[down.peakIndex(0)], 0.0);
}

TEST(VolumetricDataStore, ThirdStepWritesNothingPastTwoPeaks)
{
    auto curve = [](double v) {
        return step(v, 2000.0, 150.0, 80.0) + step(v, 5000.0, 150.0, 80.0) + step(v, 8000.0, 150.0, 80.0);
    };
    VolumetricDataStore store;
    store.setMinimumVolume(40.0);
    fillCurve(store, 0.0, 10000.0, 40.0, curve);
    EXPECT_EQ(store.peakCount(), 2);
    EXPECT_NEAR(store.peakVolume(0), 2000.0, 20.0);
    EXPECT_NEAR(store.peakVolume(1), 5000.0, 20.0);
    EXPECT_EQ(store.peakVolume(2), 0.0);
}

TEST(VolumetricDataStore, NoPeakAtOrBelowTheMinimumVolume)
{
    VolumetricDataStore store;
    store.setMinimumVolume(6000.0);
    store.setMinimumVolume(0.0); // ignored
    EXPECT_EQ(store.minimumVolume(), 6000.0);
    fillCurve(store, 0.0, 9000.0, 50.0, [](double v) { return step(v, 3000.0, 200.0, 100.0); });
    EXPECT_EQ(store.peakCount(), 0) << "the only step lies below the minimum volume";
}

TEST(VolumetricDataStore, FinalizeFindsTheSecondPeakAfterTheFirst)
{
    // The run stopped three points after the second step: too soon for the
    // online search to confirm it.
    auto curve = [](double v) { return step(v, 3000.0, 200.0, 100.0) + step(v, 6000.0, 200.0, 50.0); };
    VolumetricDataStore store;
    store.setMinimumVolume(40.0);
    fillCurve(store, 0.0, 6120.0, 40.0, curve);
    ASSERT_EQ(store.peakCount(), 1);
    store.finalizePeaks(2);
    EXPECT_NEAR(store.peakVolume(0), 3000.0, 20.0);
    EXPECT_NEAR(store.peakVolume(1), 6000.0, 60.0);
}

TEST(VolumetricDataStore, FinalizeFindsAnEarlierSmallerPeak)
{
    // The small first step is below the slope threshold for the online search.
    auto curve = [](double v) { return step(v, 2500.0, 300.0, 40.0) + step(v, 6000.0, 100.0, 150.0); };
    VolumetricDataStore store;
    store.setMinimumVolume(40.0);
    store.setSlopeThreshold(0.5f);
    fillCurve(store, 0.0, 8000.0, 40.0, curve);
    ASSERT_EQ(store.peakCount(), 1);
    EXPECT_NEAR(store.peakVolume(0), 6000.0, 20.0);
    store.finalizePeaks(2);
    EXPECT_NEAR(store.peakVolume(0), 2500.0, 20.0) << "the earlier peak is end point 1";
    EXPECT_NEAR(store.peakVolume(1), 6000.0, 20.0);
}

TEST(VolumetricDataStore, FinalizeTakesTheSteepestPointForOne)
{
    VolumetricDataStore store;
    store.setMinimumVolume(40.0);
    // Ends on the rise: no confirmed peak.
    fillCurve(store, 0.0, 5000.0, 50.0, [](double v) { return step(v, 5200.0, 300.0, 100.0); });
    ASSERT_EQ(store.peakCount(), 0);
    store.finalizePeaks(1);
    EXPECT_EQ(store.peakIndex(0), store.size() - 1);
    EXPECT_EQ(store.peakVolume(0), 4950.0);
}

TEST(VolumetricDataStore, FinalizeStopsWithNothingPastTheMinimumVolume)
{
    VolumetricDataStore store;
    store.setMinimumVolume(10000.0);
    fillCurve(store, 0.0, 5000.0, 50.0, [](double v) { return step(v, 2500.0, 300.0, 100.0); });
    store.finalizePeaks(2);
    EXPECT_EQ(store.peakIndex(0), 0);
    EXPECT_EQ(store.peakIndex(1), 0);
    EXPECT_EQ(store.peakVolume(0), 0.0);
}

// A curve that starts at its steepest (a weak base, a redox couple with no
// oxidised form): the slope only falls past the minimum volume, so its start
// is no peak, online or at the end; the step further on is.
TEST(VolumetricDataStore, TheSteepStartOfACurveIsNoPeak)
{
    auto start = [](double v) { return 300.0 * (1.0 - std::exp(-v / 150.0)); };
    VolumetricDataStore onlyStart;
    onlyStart.setMinimumVolume(40.0);
    fillCurve(onlyStart, 0.0, 4000.0, 40.0, start);
    EXPECT_EQ(onlyStart.peakCount(), 0);
    EXPECT_EQ(onlyStart.finalizePeaks(1), 0);
    EXPECT_EQ(onlyStart.peakIndex(0), 0) << "nothing is set";

    for (double end : {9000.0, 6120.0}) { // the run confirms the step, or stops on it
        VolumetricDataStore store;
        store.setMinimumVolume(40.0);
        fillCurve(store, 0.0, end, 40.0, [&](double v) { return start(v) + step(v, 6000.0, 200.0, 100.0); });
        EXPECT_EQ(store.finalizePeaks(1), 1) << end;
        EXPECT_NEAR(store.peakVolume(0), 6000.0, 60.0) << end;
    }
}

TEST(VolumetricDataStore, WritesItsLog)
{
    {
        VolumetricDataStore store;
        for (int k = 0; k < 4; ++k)
            store.addPoint(100.0 * k, 2.0 * k * k);
    }
    const QString dir = LogManager::logRoot() + QStringLiteral("logFiles/volumetricLogs/");
    const QStringList files = QDir(dir).entryList({QStringLiteral("vlog-*.txt")});
    ASSERT_FALSE(files.isEmpty());
    const QString text = rawFile(dir + files.last());
    EXPECT_TRUE(text.contains(QStringLiteral("Vol., Data, 1st_der, 2nd_der\r\n")));
    EXPECT_TRUE(text.contains(QStringLiteral("0, 0, 0, 0\r\n")));
    // slope over (100,2) (200,8) (300,18): 0.08 mV/µL; curvature (0.08-0.04)/100
    EXPECT_TRUE(text.contains(QStringLiteral("300, 18, 0.08, 0.0004\r\n"))) << text.toStdString();
}

} // namespace
