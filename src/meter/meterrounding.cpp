#include "meter/meterrounding.h"

#include <cstdint>

namespace MeterRounding {

float round(float x, int decimals, const float *table)
{
    if (decimals < 0)
        decimals = 0;
    if (decimals > 7)
        decimals = 7;
    const float scale = table[decimals];
    float y = x * scale;
    y += (x >= 0.0f) ? 0.5f : -0.5f;
    const auto whole = static_cast<std::int64_t>(y);
    return static_cast<float>(whole) / scale;
}

}
