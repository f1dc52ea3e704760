#include "meter/buffertable.h"

#include <cmath>

namespace {

constexpr BufferRow kBufferRows[BufferTable::kRows] = {
    // USA
    {-382.4f, -262.4f, 12.46f, {12.46f, -0.0345f, 0.000225f, -0.00000068f}},
    {-238.1f, -118.1f, 10.01f, {10.32f, -0.014791f, 0.00010054f, 0.0f}},
    {-60.0f, 60.0f, 7.00f, {7.1114f, -0.0061992f, 0.000064773f, 0.0f}},
    {116.9f, 236.9f, 4.01f, {4.0f, -0.0003686f, 0.000030093f, 0.0f}},
    {254.8f, 374.8f, 1.68f, {1.6673f, 0.000073369f, 0.000014531f, 0.0f}},
    // DIN
    {-189.3f, -69.3f, 9.18f, {9.184f, -0.00858f, 0.0000797f, -0.0000004123f}},
    {-52.0f, 68.0f, 6.86f, {6.8649f, -0.00279f, 0.00007f, -0.000000375f}},
    {116.9f, 236.9f, 4.01f, {4.0f, -0.0003686f, 0.000030093f, 0.0f}},
    {254.8f, 374.8f, 1.68f, {1.6673f, 0.000073369f, 0.000014531f, 0.0f}},
};

bool near(float a, float b) { return std::fabs(a - b) < 0.0001f; }

}

const BufferRow *BufferTable::rows() { return kBufferRows; }

int BufferTable::groupIndex(const QString &bufferGroup)
{
    return bufferGroup == QLatin1String("USA") ? Usa : Din;
}

int BufferTable::match(int group, float mv)
{
    const int first = group == Usa ? 0 : kUsaRows;
    const int count = group == Usa ? kUsaRows : kDinRows;
    for (int i = first; i < first + count; ++i) {
        if (kBufferRows[i].lowerMv < mv && mv < kBufferRows[i].upperMv)
            return i;
    }
    return -1;
}

bool BufferTable::usesOffsetVariable(const BufferRow &row)
{
    const float c0 = row.c[0];
    return near(c0, 9.184f) || near(c0, 6.8649f) || near(c0, 12.46f);
}

float BufferTable::valueAt(const BufferRow &row, float celsius)
{
    const float t = usesOffsetVariable(row) ? celsius - 25.0f : celsius;
    return row.c[0] + row.c[1] * t + row.c[2] * t * t + row.c[3] * t * t * t;
}
