#include "controller/algorithms/maths/lopsidedbreakfit.h"

#include <Eigen/Dense>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace {

using Coefficients = Eigen::Matrix<double, 3, 1>;

const int kMinPoints = 8;
// Points further than this many decades of g from the break are left out.
const double kMaxDecades = 6.0;
// The grid of log10 b, then a golden-section search round its best node.
const double kLowestLogB = -1.0;
const double kHighestLogB = 7.0;
const double kGridStep = 0.1;
// The weighted passes look again only this far either side of the last
// pass's best (the weights move b by far less than a decade).
const double kRefineDecades = 1.0;
// Golden-section steps: the bracket of 0.2 shrinks to about 1e-7 of a decade.
const int kGoldenSteps = 30;
// A point weighs at most this many times the median weight, so that the one
// or two points on the steepest part do not carry the whole fit.
const double kWeightCap = 25.0;

struct Curve {
    std::vector<double> v; // mL
    std::vector<double> g;
    std::vector<double> w;
};

// Terms of the model at a point for sharpness b: the row of the linear
// part, in the order Veq, aV0, a.
Coefficients row(double v, double g, double b)
{
    Coefficients r;
    const double bg = b * g;
    r << bg / (1.0 + bg), g, v * g;
    return r;
}

// Weighted least squares of the linear part; answers the weighted sum of
// squares of the volume's residuals (mL²). The three columns go into their
// 3x3 normal equations, scaled to a unit diagonal (g spans decades), so a
// solve allocates nothing and costs a pass over the points; the residuals
// are summed point by point, not from the normal equations, so that nothing
// cancels near the minimum.
double solve(const Curve &c, double b, Coefficients &x)
{
    const size_t n = c.v.size();
    Eigen::Matrix3d normal = Eigen::Matrix3d::Zero();
    Coefficients rhs = Coefficients::Zero();
    for (size_t i = 0; i < n; ++i) {
        const Coefficients r = row(c.v[i], c.g[i], b);
        normal.noalias() += c.w[i] * r * r.transpose();
        rhs += c.w[i] * c.v[i] * r;
    }
    Coefficients scale;
    for (int k = 0; k < 3; ++k)
        scale(k) = normal(k, k) > 0.0 ? 1.0 / std::sqrt(normal(k, k)) : 1.0;
    const Eigen::Matrix3d scaled = scale.asDiagonal() * normal * scale.asDiagonal();
    x = scale.cwiseProduct(scaled.colPivHouseholderQr().solve(scale.cwiseProduct(rhs)));
    double rss = 0.0;
    for (size_t i = 0; i < n; ++i) {
        const double r = row(c.v[i], c.g[i], b).dot(x) - c.v[i];
        rss += c.w[i] * r * r;
    }
    return std::isfinite(rss) ? rss : std::numeric_limits<double>::infinity();
}

// The model's volume residual (mL) and its slope |dE/dV| (mV per mL) at a point.
void residual(const Coefficients &x, double b, double v, double g, double slopeMv, double &r, double &dEdV)
{
    r = row(v, g, b).dot(x) - v;
    const double bg = b * g;
    const double dVdg = (x(0) * b / ((1.0 + bg) * (1.0 + bg)) + x(1) + x(2) * v) / (1.0 - x(2) * g);
    dEdV = std::abs(slopeMv / (std::log(10.0) * g * dVdg));
}

// The best log10 b within [lowest, highest]: grid, then golden section
// round the best node.
double searchSharpness(const Curve &c, double lowest, double highest)
{
    Coefficients x;
    double best = lowest, bestRss = std::numeric_limits<double>::infinity();
    for (double l = lowest; l <= highest + 1e-9; l += kGridStep) {
        const double rss = solve(c, std::pow(10.0, l), x);
        if (rss < bestRss) {
            bestRss = rss;
            best = l;
        }
    }
    const double ratio = (std::sqrt(5.0) - 1.0) / 2.0;
    double lo = best - kGridStep, hi = best + kGridStep;
    double p = hi - ratio * (hi - lo), q = lo + ratio * (hi - lo);
    double fp = solve(c, std::pow(10.0, p), x), fq = solve(c, std::pow(10.0, q), x);
    for (int i = 0; i < kGoldenSteps; ++i) {
        if (fp < fq) {
            hi = q;
            q = p;
            fq = fp;
            p = hi - ratio * (hi - lo);
            fp = solve(c, std::pow(10.0, p), x);
        } else {
            lo = p;
            p = q;
            fp = fq;
            q = lo + ratio * (hi - lo);
            fq = solve(c, std::pow(10.0, q), x);
        }
    }
    return 0.5 * (lo + hi);
}

} // namespace

bool LopsidedBreakFit::fit(const VolumeSeries &store, double inflection, double halfWidth, double sign,
                           double slopeMv, Result &result)
{
    if (!(slopeMv > 0.0) || !(halfWidth > 0.0) || store.size() < kMinPoints)
        return false;
    // The reference potential: the point nearest the inflection.
    int nearest = 0;
    for (int i = 1; i < store.size(); ++i) {
        if (std::abs(store.volumeAt(i) - inflection) < std::abs(store.volumeAt(nearest) - inflection))
            nearest = i;
    }
    const double reference = store.dataAt(nearest);
    Curve c;
    for (int i = 0; i < store.size(); ++i) {
        const double v = store.volumeAt(i);
        const double decades = sign * (store.dataAt(i) - reference) / slopeMv;
        if (std::abs(v - inflection) > halfWidth || !std::isfinite(decades) || std::abs(decades) > kMaxDecades)
            continue;
        c.v.push_back(v / 1000.0);
        c.g.push_back(std::pow(10.0, decades));
        c.w.push_back(1.0);
    }
    const int n = int(c.v.size());
    if (n < kMinPoints)
        return false;

    // First unweighted; then each point weighted by the model's slope there
    // squared, so that the residuals are those of the potential.
    double logB = searchSharpness(c, kLowestLogB, kHighestLogB);
    Coefficients x;
    for (int pass = 0; pass < 2; ++pass) {
        solve(c, std::pow(10.0, logB), x);
        std::vector<double> w(static_cast<size_t>(n), 0.0);
        for (int i = 0; i < n; ++i) {
            double r, dEdV;
            residual(x, std::pow(10.0, logB), c.v[size_t(i)], c.g[size_t(i)], slopeMv, r, dEdV);
            w[size_t(i)] = std::isfinite(dEdV) ? dEdV * dEdV : 0.0;
        }
        std::vector<double> sorted = w;
        std::nth_element(sorted.begin(), sorted.begin() + n / 2, sorted.end());
        const double cap = sorted[size_t(n / 2)] * kWeightCap;
        if (!(cap > 0.0))
            return false;
        for (int i = 0; i < n; ++i)
            c.w[size_t(i)] = std::min(w[size_t(i)], cap) / cap;
        logB = searchSharpness(c, std::max(kLowestLogB, logB - kRefineDecades),
                               std::min(kHighestLogB, logB + kRefineDecades));
    }
    const double b = std::pow(10.0, logB);
    solve(c, b, x);

    double sum = 0.0;
    int after = 0;
    for (int i = 0; i < n; ++i) {
        double r, dEdV;
        residual(x, b, c.v[size_t(i)], c.g[size_t(i)], slopeMv, r, dEdV);
        sum += std::isfinite(dEdV) ? r * dEdV * r * dEdV : 0.0;
        if (c.v[size_t(i)] > x(0))
            ++after;
    }
    result.volume = x(0) * 1000.0;
    result.sharpness = b;
    result.rmsMv = std::sqrt(sum / n);
    result.points = n;
    result.after = after;
    return std::isfinite(result.volume) && std::isfinite(result.rmsMv);
}
