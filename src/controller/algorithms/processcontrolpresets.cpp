#include "controller/algorithms/processcontrolpresets.h"

namespace {

template <typename T>
std::map<int, T> columns(T routine, T quick, T careful)
{
    return {{0, routine}, {1, quick}, {2, careful}};
}

template <typename T>
std::map<int, T> single(T value)
{
    return {{0, value}};
}

} // namespace

ProcessControlPresets::ProcessControlPresets()
{
    using U = unsigned int;
    defaultDose = {{0, columns<U>(100, 200, 50)}};
    dEdt = {{0, columns(0.133f, 0.167f, 0.083f)},
            {2, columns(0.133f, 0.167f, 0.083f)},
            {3, columns(0.0665f, 0.0835f, 0.0415f)}};
    tMin = {{0, columns<U>(2000, 2000, 2000)}};
    tMax = {{0, columns<U>(8000, 5000, 10000)}};
    settleTMin = {{0, columns<U>(3000, 3000, 3000)}};
    settleTMax = {{0, columns<U>(25000, 20000, 35000)}};
    curvatureLimit = {{0, columns(0.0002f, 0.0002f, 0.0002f)}};
    slopeThreshold = {{0, columns(0.2f, 0.2f, 0.2f)}};
    deltaE = {{0, columns(10.f, 15.f, 6.f)},
              {1, columns(10.f, 15.f, 6.f)},
              {2, columns(10.f, 15.f, 6.f)},
              {3, columns(5.f, 7.5f, 3.f)}};
    deltaVmax = {{0, columns<U>(400, 500, 200)},
                 {1, columns<U>(200, 300, 100)},
                 {2, columns<U>(400, 500, 200)}};
    deltaVmin = {{0, columns<U>(10, 20, 5)},
                 {1, columns<U>(15, 25, 5)}};
    firstDose = {{0, columns<U>(10, 25, 8)}};
    endPointBand = {{0, columns(1.f, 2.f, 0.5f)}};
    mkaDeltaE = {{2, columns(10.f, 6.f, 18.f)},
                 {3, columns(5.f, 3.f, 9.f)}};
    mkaDEdt = {{2, columns(0.05f, 0.0833f, 0.01667f)},
               {3, columns(0.025f, 0.04165f, 0.008335f)}};
    mkaTMin = {{0, columns<U>(15000, 10000, 20000)}};
    mkaTMax = {{0, columns<U>(90000, 60000, 120000)}};
    mkaDeltaVmax = {{0, columns<U>(2000, 4000, 2000)}};
    mkaDeltaVmin = {{0, columns<U>(50, 100, 50)}};
    mkaSlope = {{2, single(59.2f)}, {3, single(29.6f)}};
    mkaSlopeLow = {{2, single(50.f)}, {3, single(25.f)}};
    mkaSlopeHigh = {{2, single(60.f)}, {3, single(30.f)}};
}
