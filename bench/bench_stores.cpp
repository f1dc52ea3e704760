// Cost per point of the run's data stores, and of the fits that end a run.
#include "controller/algorithms/temporaldatastore.h"
#include "controller/algorithms/volumetricdatastore.h"
#include "controller/algorithms/maths/lopsidedbreakfit.h"
#include "controller/algorithms/maths/volumetricmath.h"
#include "system/platform.h"

#include <QTemporaryDir>
#include <benchmark/benchmark.h>

#include <cmath>
#include <memory>

namespace {

double curve(double v)
{
    return 100.0 * std::tanh((v - 5000.0) / 200.0) + 60.0 * std::tanh((v - 9000.0) / 200.0);
}

// The stores write their logs into a throw-away sandbox.
struct Sandbox
{
    Sandbox() { Platform::setSandboxRoot(dir.path()); }
    QTemporaryDir dir;
};

void BM_TemporalAddPoint(benchmark::State &state)
{
    Sandbox sandbox;
    auto store = std::make_unique<TemporalDataStore>();
    long t = 0;
    for (auto _ : state) {
        store->addPoint(t, 100.0 + std::sin(t * 0.001));
        t += 250;
        if (store->size() >= TemporalDataStore::kReservedPoints) {
            state.PauseTiming();
            store = std::make_unique<TemporalDataStore>();
            state.ResumeTiming();
        }
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_TemporalAddPoint);

// A point of a titration curve, peak search included.
void BM_VolumetricAddPoint(benchmark::State &state)
{
    Sandbox sandbox;
    auto store = std::make_unique<VolumetricDataStore>();
    store->setMinimumVolume(40.0);
    double v = 0.0;
    for (auto _ : state) {
        store->addPoint(v, curve(v));
        v += 10.0;
        if (store->size() >= 1200) {
            state.PauseTiming();
            store = std::make_unique<VolumetricDataStore>();
            store->setMinimumVolume(40.0);
            v = 0.0;
            state.ResumeTiming();
        }
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_VolumetricAddPoint);

// The end of an equivalence-point run: the fresh peak search over the whole
// curve, and per end point the cubic's inflection.
void BM_GetResultsFits(benchmark::State &state)
{
    Sandbox sandbox;
    VolumetricDataStore store;
    store.setMinimumVolume(40.0);
    for (double v = 0.0; v <= 12000.0; v += 10.0)
        store.addPoint(v, curve(v));
    for (auto _ : state) {
        store.finalizePeaks(3);
        double sum = 0.0;
        for (int i = 0; i < 2; ++i) {
            const VolumetricMath::Cubic c = VolumetricMath::fit5(store, store.peakIndex(i) - 3);
            const VolumetricMath::Cubic d = VolumetricMath::derivative(VolumetricMath::derivative(c));
            const double x = -d(0) / d(1);
            sum += VolumetricMath::polyval(c, x) + x;
        }
        benchmark::DoNotOptimize(sum);
    }
}
BENCHMARK(BM_GetResultsFits);

void BM_Fit5(benchmark::State &state)
{
    Sandbox sandbox;
    DataStoreBase store;
    for (double v = 0.0; v <= 100.0; v += 10.0)
        store.addPoint(0, 50000.0 + v, curve(5000.0 + v));
    for (auto _ : state)
        benchmark::DoNotOptimize(VolumetricMath::fit5(store, 3));
}
BENCHMARK(BM_Fit5);

void BM_VolumeAtValue(benchmark::State &state)
{
    Sandbox sandbox;
    DataStoreBase store;
    for (double v = 0.0; v <= 10000.0; v += 100.0)
        store.addPoint(0, v, curve(v));
    for (auto _ : state) {
        double volume = 0.0;
        benchmark::DoNotOptimize(VolumetricMath::volumeAtValue(store, 20.0, volume));
        benchmark::DoNotOptimize(volume);
    }
}
BENCHMARK(BM_VolumeAtValue);

// The fit of a lopsided break at the end of a run: a weak base (pKa 5.2,
// 0.02 mol/L in 50 mL) with 0.1 mol/L HCl, at 0.2 mL steps to 20 mL.
void BM_LopsidedBreakFit(benchmark::State &state)
{
    Sandbox sandbox;
    DataStoreBase store;
    for (double ml = 0.0; ml <= 20.0; ml += 0.2) {
        double lo = 0.0, hi = 14.0;
        for (int k = 0; k < 60; ++k) {
            const double ph = 0.5 * (lo + hi), h = std::pow(10.0, -ph);
            const double balance = h - std::pow(10.0, ph - 14.0) + 1.0 / (50.0 + ml) * (h / (h + 6.3e-6) - 0.1 * ml);
            (balance > 0.0 ? lo : hi) = ph;
        }
        store.addPoint(0, ml * 1000.0, -59.16 * (0.5 * (lo + hi) - 7.0));
    }
    double found = 0.0;
    for (auto _ : state) {
        LopsidedBreakFit::Result result;
        const bool fitted = LopsidedBreakFit::fit(store, 9986.0, 4000.0, 1.0, 59.16, result);
        found = fitted ? result.volume : 0.0;
        benchmark::ClobberMemory();
    }
    state.counters["equivalence_uL"] = found;
}
BENCHMARK(BM_LopsidedBreakFit);

} // namespace

BENCHMARK_MAIN();
