#include "controller/algorithms/datastorebase.h"
#include "controller/algorithms/maths/volumetricmath.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace {

// Curve points given with volumes in mL, stored in µL as the engine keeps them.
void fill(DataStoreBase &store, const std::vector<double> &mL, double (*curve)(double))
{
    for (double x : mL)
        store.addPoint(0, x * 1000.0, curve(x));
}

double cubic(double x) { return 1.0 + 2.0 * x - 3.0 * x * x + 0.5 * x * x * x; }

TEST(VolumetricMath, Fit3IsTheLeastSquaresLineInMillilitres)
{
    DataStoreBase line;
    fill(line, {0.0, 1.0, 2.0}, [](double x) { return 5.0 + 10.0 * x; });
    const VolumetricMath::Line c = VolumetricMath::fit3(line, 0);
    EXPECT_NEAR(c(0), 5.0, 1e-12);
    EXPECT_NEAR(c(1), 10.0, 1e-12);
    EXPECT_NEAR(VolumetricMath::lastSlope(line), 0.01, 1e-15) << "mV per µL";

    DataStoreBase tent;
    fill(tent, {1.0, 2.0, 3.0}, [](double x) { return x == 2.0 ? 1.0 : 0.0; });
    const VolumetricMath::Line d = VolumetricMath::fit3(tent, 0);
    EXPECT_NEAR(d(0), 1.0 / 3.0, 1e-12);
    EXPECT_NEAR(d(1), 0.0, 1e-12);
}

TEST(VolumetricMath, FitsOutsideTheirRangeAreZero)
{
    DataStoreBase store;
    fill(store, {0.0, 0.1, 0.2, 0.3, 0.4}, cubic);
    EXPECT_TRUE(VolumetricMath::fit3(store, -1).isZero());
    EXPECT_TRUE(VolumetricMath::fit3(store, 3).isZero());
    EXPECT_FALSE(VolumetricMath::fit3(store, 2).isZero());
    EXPECT_TRUE(VolumetricMath::fit4(store, 2).isZero());
    EXPECT_FALSE(VolumetricMath::fit4(store, 1).isZero());
    EXPECT_TRUE(VolumetricMath::fit5(store, 1).isZero());
    EXPECT_TRUE(VolumetricMath::fit5(store, -1).isZero());
    EXPECT_FALSE(VolumetricMath::fit5(store, 0).isZero());
    DataStoreBase empty;
    EXPECT_EQ(VolumetricMath::lastSlope(empty), 0.0);
}

TEST(VolumetricMath, Fit4PassesThroughACubic)
{
    DataStoreBase store;
    fill(store, {0.1, 0.3, 0.7, 1.2}, cubic);
    const VolumetricMath::Cubic c = VolumetricMath::fit4(store, 0);
    const double expected[4] = {1.0, 2.0, -3.0, 0.5};
    for (int k = 0; k < 4; ++k)
        EXPECT_NEAR(c(k), expected[k], 1e-9) << k;
}

TEST(VolumetricMath, Fit5IgnoresWhatNoCubicCanFollow)
{
    // (1, -4, 6, -4, 1) is the fourth difference: orthogonal to every cubic on
    // equally spaced points, so the least-squares cubic is the clean one.
    DataStoreBase store;
    const double bump[5] = {1, -4, 6, -4, 1};
    for (int k = 0; k < 5; ++k)
        store.addPoint(0, 1000.0 * k, cubic(k) + 0.3 * bump[k]);
    const VolumetricMath::Cubic c = VolumetricMath::fit5(store, 0);
    const double expected[4] = {1.0, 2.0, -3.0, 0.5};
    for (int k = 0; k < 4; ++k)
        EXPECT_NEAR(c(k), expected[k], 1e-9) << k;
}

TEST(VolumetricMath, PolyvalAndDerivative)
{
    EXPECT_EQ(VolumetricMath::polyval(std::vector<double>(), 3.0), 0.0);
    const std::vector<double> c = {1.0, 2.0, 3.0, 4.0};
    EXPECT_DOUBLE_EQ(VolumetricMath::polyval(c, 2.0), 1.0 + 4.0 + 12.0 + 32.0);
    EXPECT_EQ(VolumetricMath::derivative(c), (std::vector<double>{2.0, 6.0, 12.0, 0.0}));
    const VolumetricMath::Cubic e(1.0, 2.0, 3.0, 4.0);
    EXPECT_EQ(VolumetricMath::derivative(VolumetricMath::derivative(e)), VolumetricMath::Cubic(6.0, 24.0, 0.0, 0.0));
    EXPECT_TRUE(VolumetricMath::derivative(std::vector<double>()).empty());
}

// The inflection of a cubic fitted over five points 10 µL apart, as the
// equivalence-point result takes it, at volumes from 0.5 to 100 mL.
class FarFromZero : public ::testing::TestWithParam<double>
{
};

TEST_P(FarFromZero, InflectionAndValuesStaySound)
{
    const double start = GetParam(); // mL
    const double spacing = 0.010;
    const double inflection = start + 2.3 * spacing;
    DataStoreBase store;
    for (int k = 0; k < 5; ++k) {
        const double x = start + k * spacing;
        const double t = (x - inflection) / spacing;
        store.addPoint(0, x * 1000.0, 300.0 + 100.0 * t - 4.0 * t * t * t);
    }
    const VolumetricMath::Cubic c = VolumetricMath::fit5(store, 0);
    const VolumetricMath::Cubic d = VolumetricMath::derivative(VolumetricMath::derivative(c));
    const double x = -d(0) / d(1);
    EXPECT_NEAR(x * 1000.0, inflection * 1000.0, 1e-3) << "µL";
    // Values come back through powers of x near 100 mL, whose terms reach
    // 1e12 mV here: a few thousandths of a mV are lost, a fiftieth of the
    // meter's resolution.
    for (int k = 0; k < 5; ++k)
        EXPECT_NEAR(VolumetricMath::polyval(c, store.volumeAt(k) / 1000.0), store.dataAt(k), 0.01) << k;
    EXPECT_NEAR(VolumetricMath::polyval(c, x), 300.0, 0.01);
}

INSTANTIATE_TEST_SUITE_P(Volumes, FarFromZero, ::testing::Values(0.5, 5.0, 20.0, 50.0, 100.0));

TEST(VolumeAtValue, FindsTheCrossingOfACubicWithinATenthOfAMicrolitre)
{
    DataStoreBase store;
    for (int k = 0; k <= 10; ++k)
        store.addPoint(0, 500.0 * k, cubic(0.5 * k));
    const double crossing = 2.3456; // mL, inside the pair (2.0, 2.5)
    double volume = 0.0;
    ASSERT_TRUE(VolumetricMath::volumeAtValue(store, cubic(crossing), volume));
    EXPECT_GE(volume, crossing * 1000.0 - 1e-6);
    EXPECT_LE(volume, crossing * 1000.0 + 0.1);
}

TEST(VolumeAtValue, FallingCurve)
{
    DataStoreBase store;
    for (int k = 0; k <= 10; ++k)
        store.addPoint(0, 500.0 * k, -cubic(0.5 * k));
    const double crossing = 3.1234;
    double volume = 0.0;
    ASSERT_TRUE(VolumetricMath::volumeAtValue(store, -cubic(crossing), volume));
    EXPECT_NEAR(volume, crossing * 1000.0 + 0.05, 0.05 + 1e-6);
}

TEST(VolumeAtValue, SaysSoWhenThereIsNoCrossing)
{
    DataStoreBase store;
    for (int k = 0; k <= 10; ++k)
        store.addPoint(0, 500.0 * k, cubic(0.5 * k));
    double volume = 0.0;
    EXPECT_FALSE(VolumetricMath::volumeAtValue(store, 1000.0, volume));
    DataStoreBase empty;
    EXPECT_FALSE(VolumetricMath::volumeAtValue(empty, 1.0, volume));
}

TEST(VolumeAtValue, FirstPairFallsBackToTheStraightLine)
{
    // A crossing in the first pair has no point before it for the cubic.
    DataStoreBase store;
    const double data[6] = {10.0, 30.0, 40.0, 45.0, 47.0, 48.0};
    for (int k = 0; k < 6; ++k)
        store.addPoint(0, 100.0 * k, data[k]);
    double volume = 0.0;
    ASSERT_TRUE(VolumetricMath::volumeAtValue(store, 20.0, volume));
    EXPECT_DOUBLE_EQ(volume, 50.0);
}

} // namespace
