#pragma once

#include <Eigen/Core>

#include <vector>

// The Nernst response of an ion-selective electrode to a standard added to a
// sample, and a least-squares fit of it: a Gauss-Newton iteration held inside
// a box of limits. Volumes in mL, potentials in mV, concentrations in mol/L.
//
// E(x) = E0 + S * log10( max( (max(C, 0) * V0 + Cs * x) / (V0 + x), floor ) )
//
// The parameters are (C, E0, S), or (C, E0) while the slope is held fixed.
class KnownAdditionFit
{
public:
    struct Model {
        double v0 = 50.0;            // sample solution, mL
        double cs = 0.1;             // standard, mol/L
        double floor = 1e-9;         // least concentration the electrode sees
        double fixedSlope = 59.2;    // mV per decade, while slopeFixed
        bool slopeFixed = false;

        int parameterCount() const { return slopeFixed ? 2 : 3; }
        double operator()(double x, const Eigen::VectorXd &p) const;
    };

    struct Settings {
        double h = 1e-10;            // central difference step
        double tolerance = 1e-11;    // least change of the mean square error
        int iterationLimit = 100;
    };

    enum class Status {
        Converged,      // the mean square error stopped changing
        IterationLimit, // stopped after the last allowed iteration
        Singular,       // the normal matrix has no inverse: p is the last sound one
        NoData,         // fewer points than parameters, or sizes that differ
    };

    struct Outcome {
        Status status = Status::NoData;
        int iterations = 0;
        double mse = 0.0;
        double rSquared = 0.0;
    };

    // Fits p (sized to the model's parameter count) to the points, starting
    // from its value; p ends clamped into [lower, upper] in every case.
    static Outcome fit(const Model &model, const std::vector<double> &x, const std::vector<double> &y,
                       Eigen::VectorXd &p, const Eigen::VectorXd &lower, const Eigen::VectorXd &upper,
                       const Settings &settings);
    // The same with a weight for each point (1 / variance of its potential);
    // empty weights weigh all points alike.
    static Outcome fit(const Model &model, const std::vector<double> &x, const std::vector<double> &y,
                       const std::vector<double> &weights, Eigen::VectorXd &p, const Eigen::VectorXd &lower,
                       const Eigen::VectorXd &upper, const Settings &settings);
    // The same with the default settings.
    static Outcome fit(const Model &model, const std::vector<double> &x, const std::vector<double> &y,
                       Eigen::VectorXd &p, const Eigen::VectorXd &lower, const Eigen::VectorXd &upper);

    // Whether a normal matrix JᵀJ is too close to singular to invert: a
    // column without weight, or a rank below full once every column is
    // scaled to unit weight (so that C in mol/L and E0 in mV compare).
    static bool isSingular(const Eigen::MatrixXd &normal);

    static const char *statusName(Status status);
};
