#include "controller/algorithms/maths/volumetricmath.h"


#include <QtGlobal>

#include <Eigen/Dense>

#include <algorithm>

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

} // namespace

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
