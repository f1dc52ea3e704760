#pragma once

#include <cmath>
#include <limits>

// A volume or time computed in floating point, made an unsigned integer by
// truncation as the engine keeps them, after it has been brought into the
// range an unsigned can hold: NaN and anything below 0 give 0, anything above
// `upper` gives `upper`.
inline unsigned int toUnsignedVolume(double value, double upper = std::numeric_limits<unsigned int>::max())
{
    if (!(value > 0.0))
        return 0;
    if (value >= upper)
        return static_cast<unsigned int>(upper);
    return static_cast<unsigned int>(value);
}
