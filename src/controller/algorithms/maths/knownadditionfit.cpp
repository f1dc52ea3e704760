#include "controller/algorithms/maths/knownadditionfit.h"

#include <Eigen/Dense>

#include <QDebug>

#include <algorithm>
#include <cmath>

namespace {

// Relative pivot below which the scaled normal matrix counts as singular.
const double kRankThreshold = 1e-10;

void clampInto(Eigen::VectorXd &p, const Eigen::VectorXd &lower, const Eigen::VectorXd &upper)
{
    p = p.cwiseMax(lower).cwiseMin(upper);
}

} // namespace

double KnownAdditionFit::Model::operator()(double x, const Eigen::VectorXd &p) const
{
    const double c = std::max(p[0], 0.0);
    const double slope = slopeFixed ? fixedSlope : p[2];
    const double mixed = (c * v0 + cs * x) / (v0 + x);
    return p[1] + slope * std::log10(std::max(mixed, floor));
}

bool KnownAdditionFit::isSingular(const Eigen::MatrixXd &normal)
{
    const Eigen::VectorXd diagonal = normal.diagonal();
    for (int i = 0; i < diagonal.size(); ++i) {
        if (!(diagonal[i] > 0.0) || !std::isfinite(diagonal[i]))
            return true;
    }
    const Eigen::VectorXd scale = diagonal.cwiseSqrt().cwiseInverse();
    const Eigen::MatrixXd scaled = scale.asDiagonal() * normal * scale.asDiagonal();
    if (!scaled.allFinite())
        return true;
    Eigen::FullPivLU<Eigen::MatrixXd> lu(scaled);
    lu.setThreshold(kRankThreshold);
    return !lu.isInvertible();
}

KnownAdditionFit::Outcome KnownAdditionFit::fit(const Model &model, const std::vector<double> &x,
                                                const std::vector<double> &y, Eigen::VectorXd &p,
                                                const Eigen::VectorXd &lower, const Eigen::VectorXd &upper,
                                                const Settings &settings)
{
    return fit(model, x, y, std::vector<double>(), p, lower, upper, settings);
}

KnownAdditionFit::Outcome KnownAdditionFit::fit(const Model &model, const std::vector<double> &x,
                                                const std::vector<double> &y, const std::vector<double> &weights,
                                                Eigen::VectorXd &p, const Eigen::VectorXd &lower,
                                                const Eigen::VectorXd &upper, const Settings &settings)
{
    Outcome out;
    const int k = model.parameterCount();
    const int n = int(x.size());
    if (p.size() != k || lower.size() != k || upper.size() != k || int(y.size()) != n || n < k
        || (!weights.empty() && int(weights.size()) != n)) {
        qDebug() << "known addition fit: no fit of" << k << "parameters to" << n << "points";
        if (p.size() == lower.size() && p.size() == upper.size())
            clampInto(p, lower, upper);
        return out;
    }

    const Eigen::Map<const Eigen::VectorXd> xs(x.data(), n);
    const Eigen::Map<const Eigen::VectorXd> ys(y.data(), n);
    // Each residual counts by the square root of its weight, scaled so that
    // the mean weight is 1 and the mean square error keeps its meaning.
    Eigen::VectorXd root = Eigen::VectorXd::Ones(n);
    if (!weights.empty()) {
        const Eigen::Map<const Eigen::VectorXd> w(weights.data(), n);
        if ((w.array() > 0.0).all() && w.allFinite())
            root = (w / w.mean()).cwiseSqrt();
    }
    const double spread = (root.array() * (ys.array() - ys.mean())).square().sum();
    Eigen::VectorXd r(n);
    Eigen::MatrixXd jacobian(n, k);
    double lastMse = 0.0;
    out.status = Status::IterationLimit;

    for (;;) {
        clampInto(p, lower, upper);
        for (int i = 0; i < n; ++i)
            r[i] = root[i] * (ys[i] - model(xs[i], p));
        const double squares = r.squaredNorm();
        out.mse = squares / n;
        out.rSquared = 1.0 - squares / spread;

        if (std::abs(out.mse - lastMse) < settings.tolerance) {
            out.status = Status::Converged;
            break;
        }

        for (int j = 0; j < k; ++j) {
            Eigen::VectorXd up = p;
            Eigen::VectorXd down = p;
            up[j] += settings.h;
            down[j] -= settings.h;
            for (int i = 0; i < n; ++i)
                jacobian(i, j) = root[i] * (model(xs[i], up) - model(xs[i], down)) / (2.0 * settings.h);
        }

        const Eigen::MatrixXd normal = jacobian.transpose() * jacobian;
        if (isSingular(normal)) {
            qDebug() << "known addition fit: singular normal matrix at iteration" << out.iterations;
            out.status = Status::Singular;
            break;
        }
        const Eigen::VectorXd delta = normal.inverse() * (jacobian.transpose() * r);
        if (!delta.allFinite()) {
            qDebug() << "known addition fit: step without a finite value at iteration" << out.iterations;
            out.status = Status::Singular;
            break;
        }
        p += delta;

        if (++out.iterations >= settings.iterationLimit)
            break;
        lastMse = out.mse;
    }

    clampInto(p, lower, upper);
    qDebug() << "iteration complete " << out.iterations << out.mse << out.rSquared;
    for (int j = 0; j < k; ++j)
        qDebug() << "params " << j << p[j];
    return out;
}

KnownAdditionFit::Outcome KnownAdditionFit::fit(const Model &model, const std::vector<double> &x,
                                                const std::vector<double> &y, Eigen::VectorXd &p,
                                                const Eigen::VectorXd &lower, const Eigen::VectorXd &upper)
{
    return fit(model, x, y, p, lower, upper, Settings());
}

const char *KnownAdditionFit::statusName(Status status)
{
    switch (status) {
    case Status::Converged:
        return "converged";
    case Status::IterationLimit:
        return "iteration limit";
    case Status::Singular:
        return "singular";
    case Status::NoData:
        break;
    }
    return "no data";
}
