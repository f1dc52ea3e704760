// The Nernst fit of known addition: ideal data in, the parameters out; the
// box, the fixed slope, and normal matrices that have no inverse.
#include "controller/algorithms/maths/knownadditionfit.h"

#include <Eigen/Dense>

#include <gtest/gtest.h>

#include <vector>

namespace {

using Status = KnownAdditionFit::Status;

struct Curve
{
    KnownAdditionFit::Model model;
    std::vector<double> x{0.0, 0.45, 0.95, 1.6, 2.5, 3.9};
    std::vector<double> y;

    Curve(double c, double e0, double s)
    {
        model.v0 = 50.0;
        model.cs = 0.1;
        Eigen::VectorXd p(3);
        p << c, e0, s;
        for (double v : x)
            y.push_back(model(v, p));
    }
};

Eigen::VectorXd vec(double a, double b, double c)
{
    Eigen::VectorXd v(3);
    v << a, b, c;
    return v;
}

Eigen::VectorXd vec(double a, double b)
{
    Eigen::VectorXd v(2);
    v << a, b;
    return v;
}

TEST(KnownAdditionFit, ModelFollowsNernstWithDilution)
{
    KnownAdditionFit::Model m;
    m.v0 = 50.0;
    m.cs = 0.1;
    const Eigen::VectorXd p = vec(1e-3, 250.0, 59.0);
    EXPECT_NEAR(m(0.0, p), 250.0 - 3.0 * 59.0, 1e-9);
    // 5 mL of 0.1 into 50 mL of 0.001: 0.55 mmol in 55 mL.
    EXPECT_NEAR(m(5.0, p), 250.0 + 59.0 * std::log10(0.01), 1e-9);
    // A concentration below 0 reads as 0, and the floor keeps the log finite.
    EXPECT_NEAR(m(0.0, vec(-1.0, 0.0, 59.0)), 59.0 * -9.0, 1e-9);
}

TEST(KnownAdditionFit, RecoversAllThreeFromIdealData)
{
    const Curve curve(1.2e-3, 243.0, 57.4);
    Eigen::VectorXd p = vec(1.6e-3, 230.0, 59.2); // a rough first estimate
    const auto out = KnownAdditionFit::fit(curve.model, curve.x, curve.y, p, vec(1e-9, -1024, 50),
                                           vec(2.0, 1024, 60));
    EXPECT_EQ(out.status, Status::Converged);
    EXPECT_NEAR(p[0], 1.2e-3, 1.2e-3 * 1e-4);
    EXPECT_NEAR(p[1], 243.0, 0.01);
    EXPECT_NEAR(p[2], 57.4, 0.01);
    EXPECT_LT(out.mse, 1e-8);
    EXPECT_NEAR(out.rSquared, 1.0, 1e-9);
}

TEST(KnownAdditionFit, RecoversAnAnionElectrode)
{
    const Curve curve(5e-4, -120.0, -58.1);
    Eigen::VectorXd p = vec(3e-4, -100.0, -59.2);
    const auto out = KnownAdditionFit::fit(curve.model, curve.x, curve.y, p, vec(1e-9, -1024, -60),
                                           vec(2.0, 1024, -50));
    EXPECT_NE(out.status, Status::Singular);
    EXPECT_NEAR(p[0], 5e-4, 5e-4 * 1e-4);
    EXPECT_NEAR(p[1], -120.0, 0.01);
    EXPECT_NEAR(p[2], -58.1, 0.01);
}

TEST(KnownAdditionFit, FixedSlopeFitsConcentrationAndE0)
{
    const Curve curve(2e-3, 300.0, 29.3);
    KnownAdditionFit::Model model = curve.model;
    model.slopeFixed = true;
    model.fixedSlope = 29.3;
    Eigen::VectorXd p = vec(1e-3, 280.0);
    const auto out = KnownAdditionFit::fit(model, curve.x, curve.y, p, vec(1e-9, -1024), vec(2.0, 1024));
    EXPECT_EQ(out.status, Status::Converged);
    EXPECT_NEAR(p[0], 2e-3, 2e-3 * 1e-4);
    EXPECT_NEAR(p[1], 300.0, 0.01);
}

TEST(KnownAdditionFit, SlopeBeyondItsLimitEndsOnTheLimit)
{
    const Curve curve(1e-3, 250.0, 66.0);
    Eigen::VectorXd p = vec(1e-3, 250.0, 59.2);
    const Eigen::VectorXd lower = vec(1e-9, -1024, 50), upper = vec(2.0, 1024, 60);
    KnownAdditionFit::fit(curve.model, curve.x, curve.y, p, lower, upper);
    EXPECT_EQ(p[2], 60.0);
    EXPECT_TRUE(((p.array() >= lower.array()) && (p.array() <= upper.array())).all());
}

TEST(KnownAdditionFit, StartOutsideTheBoxIsClampedFirst)
{
    const Curve curve(1e-3, 250.0, 58.0);
    Eigen::VectorXd p = vec(5.0, 2000.0, 10.0);
    KnownAdditionFit::fit(curve.model, curve.x, curve.y, p, vec(1e-9, -1024, 50), vec(2.0, 1024, 60));
    EXPECT_TRUE(p.allFinite());
    EXPECT_LE(p[0], 2.0);
    EXPECT_LE(p[1], 1024.0);
    EXPECT_GE(p[2], 50.0);
}

TEST(KnownAdditionFit, PointsAtOneVolumeAreSingular)
{
    // Three readings of the same solution say nothing about C apart from E0.
    KnownAdditionFit::Model model;
    const std::vector<double> x{1.0, 1.0, 1.0};
    const std::vector<double> y{100.0, 100.2, 99.9};
    Eigen::VectorXd p = vec(1e-3, 250.0, 59.2);
    const Eigen::VectorXd start = p;
    const auto out = KnownAdditionFit::fit(model, x, y, p, vec(1e-9, -1024, 50), vec(2.0, 1024, 60));
    EXPECT_EQ(out.status, Status::Singular);
    EXPECT_EQ(out.iterations, 0);
    EXPECT_EQ(p, start) << "no step from a matrix without an inverse";
}

TEST(KnownAdditionFit, StandardOfZeroIsSingular)
{
    // Without a standard only dilution moves the potential: C and E0 pull
    // in the same direction at every point.
    KnownAdditionFit::Model model;
    model.cs = 0.0;
    model.slopeFixed = true;
    const std::vector<double> x{0.0, 1.0, 2.0, 3.0};
    std::vector<double> y;
    for (double v : x)
        y.push_back(model(v, vec(1e-3, 250.0)));
    Eigen::VectorXd q = vec(2e-3, 240.0);
    const auto moved = KnownAdditionFit::fit(model, x, y, q, vec(1e-9, -1024), vec(2.0, 1024));
    EXPECT_EQ(moved.status, Status::Singular);
    EXPECT_TRUE(q.allFinite());
}

TEST(KnownAdditionFit, SampleAsStrongAsTheStandardIsSingular)
{
    // Adding what is already there changes nothing: slope and E0 can't be
    // told apart.
    const Curve curve(0.1, 250.0, 58.0);
    Eigen::VectorXd p = vec(0.1, 240.0, 55.0);
    const auto out = KnownAdditionFit::fit(curve.model, curve.x, curve.y, p, vec(1e-9, -1024, 50),
                                           vec(2.0, 1024, 60));
    EXPECT_EQ(out.status, Status::Singular);
    EXPECT_EQ(p, vec(0.1, 240.0, 55.0));
}

TEST(KnownAdditionFit, SingularityIsJudgedOnScaledColumns)
{
    // Columns in mol/L and in mV differ by many decades without being
    // dependent: that is not singular.
    Eigen::MatrixXd j(4, 3);
    j << 5e4, 1, -3.00, 4.5e4, 1, -2.90, 4.1e4, 1, -2.80, 3.6e4, 1, -2.65;
    EXPECT_FALSE(KnownAdditionFit::isSingular(j.transpose() * j));
    // A column that is a multiple of another is.
    j.col(0) = 2.5e4 * j.col(1);
    EXPECT_TRUE(KnownAdditionFit::isSingular(j.transpose() * j));
    // So is a column of zeros, and anything not finite.
    Eigen::MatrixXd z = Eigen::MatrixXd::Identity(3, 3);
    z(2, 2) = 0.0;
    EXPECT_TRUE(KnownAdditionFit::isSingular(z));
    z(2, 2) = std::nan("");
    EXPECT_TRUE(KnownAdditionFit::isSingular(z));
}

TEST(KnownAdditionFit, FewerPointsThanParametersIsNoFit)
{
    KnownAdditionFit::Model model;
    Eigen::VectorXd p = vec(3.0, 250.0, 59.2);
    const auto out = KnownAdditionFit::fit(model, {0.0, 1.0}, {100.0, 110.0}, p, vec(1e-9, -1024, 50),
                                           vec(2.0, 1024, 60));
    EXPECT_EQ(out.status, Status::NoData);
    EXPECT_EQ(p[0], 2.0) << "still clamped into the box";
}

TEST(KnownAdditionFit, StopsAtTheIterationLimit)
{
    const Curve curve(1e-3, 250.0, 58.0);
    KnownAdditionFit::Settings settings;
    settings.iterationLimit = 1;
    Eigen::VectorXd p = vec(0.01, 100.0, 55.0);
    const auto out = KnownAdditionFit::fit(curve.model, curve.x, curve.y, p, vec(1e-9, -1024, 50),
                                           vec(2.0, 1024, 60), settings);
    EXPECT_EQ(out.status, Status::IterationLimit);
    EXPECT_EQ(out.iterations, 1);
}

} // namespace
