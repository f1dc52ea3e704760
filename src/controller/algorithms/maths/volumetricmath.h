#pragma once

#include "controller/algorithms/maths/volumeseries.h"

#include <QObject>

#include <Eigen/Core>

#include <cmath>

// The small polynomial fits of a titration curve. Volumes go into the fits in
// mL (stored µL / 1000), the data as it is. Coefficients come constant first,
// in powers of the volume in mL. A fit whose points aren't all in the store
// answers zeros.
class VolumetricMath : public QObject
{
    Q_OBJECT
public:
    using Line = Eigen::Vector2d;
    using Cubic = Eigen::Vector4d;

    explicit VolumetricMath(QObject *parent = nullptr) : QObject(parent) {}

    // Straight line through points i to i + 2, least squares.
    static Line fit3(const VolumeSeries &store, int i);
    // Cubic through points i to i + 3.
    static Cubic fit4(const VolumeSeries &store, int i);
    // Cubic over points i to i + 4, least squares.
    static Cubic fit5(const VolumeSeries &store, int i);

    // dE/dV at the end of the curve in mV per µL, from the last three points.
    static double lastSlope(const VolumeSeries &store);

    // Sum of c[k] * x^k; 0.0 for no coefficients.
    template <typename Coefficients>
    static double polyval(const Coefficients &c, double x)
    {
        double sum = 0.0;
        for (int k = 0; k < int(c.size()); ++k)
            sum += c[k] * std::pow(x, k);
        return sum;
    }

    // Coefficients of the derivative, same length, the last one 0.0.
    template <typename Coefficients>
    static Coefficients derivative(const Coefficients &c)
    {
        Coefficients d = c;
        const int n = int(c.size());
        for (int k = 0; k + 1 < n; ++k)
            d[k] = c[k + 1] * (k + 1);
        if (n > 0)
            d[n - 1] = 0.0;
        return d;
    }

    // The inflection of the curve near a point: a cubic fitted by weighted
    // least squares around a centre, the weights falling smoothly to 0 at
    // `halfWidth` µL from it, and the centre moved to the cubic's inflection
    // until the two agree. Points enter and leave the fit with no weight, so
    // the volume found moves continuously with the data. False when the fit
    // has fewer than five points or does not settle within `reach` µL of
    // `centre`. volume in µL, value in mV.
    static bool inflectionNear(const VolumeSeries &store, double centre, double halfWidth, double reach,
                               double &volume, double &value);

    // The volume (µL) at which the curve first crosses target: a walk along
    // the cubic of the crossing pair in steps of 0.1 µL, or the straight line
    // between the pair when the cubic misses it. False when neither finds one.
    static bool volumeAtValue(const VolumeSeries &store, double target, double &volume);
};
