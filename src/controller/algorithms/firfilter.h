#pragma once

#include <QtGlobal>

#include <array>

// A finite impulse response filter on doubles over a ring of order + 1
// samples. Coefficient 0 meets the oldest sample, the last coefficient the
// newest. Fixed storage: stepping never allocates.
class FirFilter
{
public:
    static constexpr int kMaxOrder = 7;

    // Orders above kMaxOrder are cut to it; the coefficients array holds
    // order + 1 values.
    FirFilter(quint8 order, const double *coefficients);

    // Fills the whole ring with x, so the output starts at x.
    void prime(double x);
    double step(double x);
    quint8 order() const { return m_order; }

private:
    quint8 m_order;
    quint8 m_write = 0;
    std::array<double, kMaxOrder + 1> m_ring{};
    std::array<double, kMaxOrder + 1> m_coefficients{};
};
