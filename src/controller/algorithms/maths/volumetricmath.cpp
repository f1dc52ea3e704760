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

// The inflection (in units of halfWidth from centre) and the cubic's value
// there; false with fewer than five weighted points or a cubic with no bend.
bool weightedInflection(const VolumeSeries &store, double centre, double halfWidth, double &u, double &value)
{
    using Rows = Eigen::Matrix<double, Eigen::Dynamic, 4, Eigen::RowMajor, kMaxWindowPoints, 4>;
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
    if (count < 5)
        return false;
    Rows a(count, 4);
    Column y(count);
    for (int r = 0; r < count; ++r) {
        const double x = (store.volumeAt(lo + r) - centre) / halfWidth;
        const double w = std::sqrt(biweight(x));
        a.row(r) << w, w * x, w * x * x, w * x * x * x;
        y(r) = w * store.dataAt(lo + r);
    }
    const Eigen::Vector4d c = a.colPivHouseholderQr().solve(y);
    // c0 + c1 u + c2 u² + c3 u³ bends where 2 c2 + 6 c3 u = 0.
    if (!(std::abs(c(3)) > 0.0))
        return false;
    u = -c(2) / (3.0 * c(3));
    value = c(0) + u * (c(1) + u * (c(2) + u * c(3)));
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
        if (!weightedInflection(store, c, halfWidth, u, y))
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

bool VolumetricMath::blendedInflection(const VolumeSeries &store, int centre, double &volume, double &value)
{
    const int n = store.size();
    double weights = 0.0, volumes = 0.0, values = 0.0;
    for (int j = std::max(centre - 2, 2); j <= std::min(centre + 2, n - 3); ++j) {
        const Cubic c = fit5(store, j - 2);
        const Cubic d = derivative(derivative(c));
        const double x = -d(0) / d(1);
        const double v = store.volumeAt(j);
        const double step = x * 1000.0 > v ? store.volumeAt(j + 1) - v : v - store.volumeAt(j - 1);
        const double w = 1.0 - std::abs(x * 1000.0 - v) / step;
        if (!std::isfinite(w) || !(w > 0.0))
            continue;
        weights += w;
        volumes += w * x * 1000.0;
        values += w * polyval(c, x);
    }
    if (!(weights > 0.0))
        return false;
    volume = volumes / weights;
    value = values / weights;
    return true;
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
