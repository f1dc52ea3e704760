#include "controller/algorithms/firfilter.h"

FirFilter::FirFilter(quint8 order, const double *coefficients)
    : m_order(order > kMaxOrder ? quint8(kMaxOrder) : order)
{
    for (int j = 0; j <= m_order; ++j)
        m_coefficients[j] = coefficients[j];
}

void FirFilter::prime(double x)
{
    for (int j = 0; j <= m_order; ++j)
        m_ring[j] = x;
}

double FirFilter::step(double x)
{
    const int taps = m_order + 1;
    m_ring[m_write] = x;
    const int read = (m_write + 1) % taps;
    double out = 0.0;
    for (int j = 0; j < taps; ++j)
        out += m_coefficients[j] * m_ring[(read + j) % taps];
    m_write = quint8(read);
    return out;
}
