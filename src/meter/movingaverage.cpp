#include "meter/movingaverage.h"

double MovingAverage::Add(float x)
{
    if (window < 1 || window > kCapacity)
        window = kCapacity;
    samples[count % window] = x;
    ++count;
    // The count stays between one and two windows, so the ring position
    // carries on where it was.
    if (count >= 2 * window)
        count = window;
    if (count < window) {
        full = false;
        return x;
    }
    double sum = 0.0;
    for (int i = 0; i < window; ++i)
        sum += samples[i];
    full = true;
    return sum / window;
}

void MovingAverage::Clear()
{
    count = 0;
    full = false;
    for (double &s : samples)
        s = 0.0;
}
