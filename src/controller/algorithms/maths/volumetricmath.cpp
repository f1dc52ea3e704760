#include "controller/algorithms/maths/volumetricmath.h"


#include <QtGlobal>

#include <Eigen/Dense>

#include <algorithm>
#include <cmath>

namespace {

// Least-squares polynomial over `Rows` consecutive points from `first`, with
// `Cols` coefficients. The fit is solved in a shifted and scaled volume,
// u = (x - x0) / h with x0 the first volume and h the widest distance from
// it, so that the matrix entries stay near 1 at any volume; the solution is
// then expanded back to powers of x. In powers of x directly, points 10 µL
// apart at 50 mL make a matrix that the decomposition finds rank deficient.
template <int Rows, int Cols>
Eigen::Matrix<double, Cols, 1> fitPoints(const VolumeSeries &store, int first)
{
    using Result = Eigen::Matrix<double, Cols, 1>;
    if (first < 0 || first > store.size() - Rows)
        return Result::Zero();

    double x[Rows];
    Eigen::Matrix<double, Rows, 1> y;
    for (int k = 0; k < Rows; ++k) {
        x[k] = store.volumeAt(first + k) / 1000.0;
        y(k) = store.dataAt(first + k);
    }

    const double x0 = x[0];
    double h = 0.0;
    for (int k = 1; k < Rows; ++k)
        h = std::max(h, std::abs(x[k] - x0));
    if (!(h > 0.0) || !qIsFinite(h))
        h = 1.0;

    Eigen::Matrix<double, Rows, Cols> a;
    for (int k = 0; k < Rows; ++k) {
        const double u = (x[k] - x0) / h;
        double power = 1.0;
        for (int j = 0; j < Cols; ++j) {
            a(k, j) = power;
            power *= u;
        }
    }
    const Result shifted = Eigen::FullPivHouseholderQR<Eigen::Matrix<double, Rows, Cols>>(a).solve(y);

    // sum_k s_k ((x - x0) / h)^k = sum_j x^j sum_{k >= j} s_k / h^k C(k, j) (-x0)^(k - j)
    Result c = Result::Zero();
    double hPower = 1.0;
    for (int k = 0; k < Cols; ++k) {
        const double b = shifted(k) / hPower;
        double binomial = 1.0;
        for (int j = k; j >= 0; --j) {
            // binomial = C(k, j), walking j down from k
            c(j) += b * binomial * std::pow(-x0, k - j);
            binomial = binomial * j / (k - j + 1);
        }
        hPower *= h;
    }
    return c;
}

// Most points one weighted fit takes; the rest of the window is left out.
constexpr int kMaxWindowPoints = 32;

// A weight that falls from 1 at the centre to 0 at distance 1, with a
// continuous derivative.
double biweight(double u)
{
    const double r = 1.0 - u * u;
    return r > 0.0 ? r * r : 0.0;
}

// The inflection nearest the centre (in units of halfWidth from it) of a
// polynomial of degree Degree weighted round the centre, and its value
// there; false with too few weighted points or a polynomial with no bend.
template <int Degree>
bool weightedInflection(const VolumeSeries &store, double centre, double halfWidth, double &u, double &value)
{
    constexpr int Cols = Degree + 1;
    using Rows = Eigen::Matrix<double, Eigen::Dynamic, Cols, Eigen::RowMajor, kMaxWindowPoints, Cols>;
    using Column = Eigen::Matrix<double, Eigen::Dynamic, 1, 0, kMaxWindowPoints, 1>;
    // The points of the window, found from the first one past its left edge.
    const int n = store.size();
    int lo = 0, hi = n;
    while (lo < hi) {
        const int mid = (lo + hi) / 2;
        if (store.volumeAt(mid) <= centre - halfWidth)
            lo = mid + 1;
        else
            hi = mid;
    }
    int count = 0;
    for (int k = lo; k < n && count < kMaxWindowPoints; ++k) {
        if (!(biweight((store.volumeAt(k) - centre) / halfWidth) > 0.0))
            break;
        ++count;
    }
    if (count < Cols + 1)
        return false;
    Rows a(count, Cols);
    Column y(count);
    for (int r = 0; r < count; ++r) {
        const double x = (store.volumeAt(lo + r) - centre) / halfWidth;
        const double w = std::sqrt(biweight(x));
        double power = w;
        for (int j = 0; j < Cols; ++j) {
            a(r, j) = power;
            power *= x;
        }
        y(r) = w * store.dataAt(lo + r);
    }
    const Eigen::Matrix<double, Cols, 1> c = a.colPivHouseholderQr().solve(y);
    // Newton on the second derivative from the centre.
    auto derivativeAt = [&](int order, double t) {
        double sum = 0.0;
        for (int j = order; j < Cols; ++j) {
            double f = 1.0;
            for (int m = 0; m < order; ++m)
                f *= double(j - m);
            sum += f * c(j) * std::pow(t, j - order);
        }
        return sum;
    };
    double t = 0.0;
    for (int iteration = 0; iteration < 30; ++iteration) {
        const double d3 = derivativeAt(3, t);
        if (!(std::abs(d3) > 0.0))
            return false;
        const double step = derivativeAt(2, t) / d3;
        t -= std::clamp(step, -0.5, 0.5);
        if (std::abs(step) < 1e-12)
            break;
    }
    u = t;
    value = derivativeAt(0, t);
    return std::isfinite(u) && std::isfinite(value);
}
} // namespace

bool VolumetricMath::inflectionNear(const VolumeSeries &store, double centre, double halfWidth, double reach,
                                    double &volume, double &value)
{
    if (!(halfWidth > 0.0) || !std::isfinite(centre))
        return false;
    const double start = centre;
    double c = centre;
    for (int iteration = 0; iteration < 50; ++iteration) {
        double u = 0.0, y = 0.0;
        if (!weightedInflection<3>(store, c, halfWidth, u, y))
            return false;
        // Never more than half the window at a time, so the centre walks
        // rather than jumps to a bend of the cubic far outside its points.
        const double next = c + std::clamp(u, -0.5, 0.5) * halfWidth;
        if (std::abs(next - start) > reach)
            return false;
        const bool settled = std::abs(next - c) < 1e-6;
        c = next;
        if (settled) {
            volume = c;
            value = y;
            return std::abs(u) <= 0.5;
        }
    }
    return false;
}

VolumetricMath::Line VolumetricMath::fit3(const VolumeSeries &store, int i)
{
    return fitPoints<3, 2>(store, i);
}

VolumetricMath::Cubic VolumetricMath::fit4(const VolumeSeries &store, int i)
{
    return fitPoints<4, 4>(store, i);
}

VolumetricMath::Cubic VolumetricMath::fit5(const VolumeSeries &store, int i)
{
    return fitPoints<5, 4>(store, i);
}

double VolumetricMath::lastSlope(const VolumeSeries &store)
{
    return fit3(store, store.size() - 3)(1) * 0.001;
}

bool VolumetricMath::volumeAtValue(const VolumeSeries &store, double target, double &volume)
{
    const int n = store.size();
    int i = 0;
    double s = 0.0;
    int start = -1;
    bool hit = false;
    for (i = 0; i <= n - 2; ++i) {
        const double d0 = store.dataAt(i);
        const double d1 = store.dataAt(i + 1);
        if ((d0 < target && target <= d1) || (d0 > target && target >= d1)) {
            hit = true;
            break;
        }
    }
    if (hit) {
        s = (store.dataAt(i + 1) - store.dataAt(i)) / (store.volumeAt(i + 1) - store.volumeAt(i));
        start = i - 1;
    } else {
        i = std::max(n - 2, 0);
    }
    if (start >= n - 3)
        start = n - 4;

    const Cubic c = fit4(store, start);
    const double v0 = store.volumeAt(i);
    const double v1 = store.volumeAt(i + 1);
    const double d0 = store.dataAt(i);

    double x = v0 / 1000.0 - 0.0001;
    double y = d0;
    while (((s > 0 && y < target) || (s < 0 && y > target)) && x * 1000.0 <= v1) {
        x += 0.0001;
        y = polyval(c, x);
    }

    volume = x * 1000.0;
    if (volume >= std::min(v0, v1) && volume <= std::max(v0, v1))
        return true;
    if (qIsFinite(s) && s != 0.0) {
        volume = (target - d0) / s + v0;
        return qIsFinite(volume);
    }
    return false;
}
