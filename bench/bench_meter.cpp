// Cost of one sample through the measurement engine, per kind, and of the
// stability detector alone.
#include "meter/cmeasurementcontext.h"
#include "meter/cstabilityph.h"

#include <benchmark/benchmark.h>

namespace {

void runKind(benchmark::State &state, int kind)
{
    CMeasurementContext context;
    const float mv[5] = {177.0f, 0.0f, -178.0f};
    const float slope[5] = {-59.2f, -58.0f};
    const float offset[5] = {0.0f, 5.0f};
    const float temperature[5] = {25.0f, 25.0f, 25.0f};
    const float value[5] = {4.01f, 7.0f, 10.01f};
    context.LoadPhCalibration(mv, slope, offset, temperature, value, value, 3, -59.16f);
    context.ConfigurePh(0, 0.01f, 7.0);
    context.ConfigureIse(3, 1.0);
    context.ConfigureOrp(0.1f, 7.0);
    context.SetActiveKind(kind);
    int i = 0;
    for (auto _ : state) {
        // A slowly wandering potential, so the detector both settles and breaks.
        context.SetRawMv(120.0 + (i % 64) * 0.05);
        context.SetTemperatuteDegreC(25.0);
        context.UpdateMeasurement();
        benchmark::DoNotOptimize(context.GetMeasuredValue());
        benchmark::DoNotOptimize(context.GetStableMv());
        benchmark::DoNotOptimize(context.IsStable());
        ++i;
    }
    state.SetItemsProcessed(state.iterations());
}

void BM_SamplePh(benchmark::State &state) { runKind(state, CMeasurementContext::KindPh); }
void BM_SampleIse(benchmark::State &state) { runKind(state, CMeasurementContext::KindIse); }
void BM_SampleRedox(benchmark::State &state) { runKind(state, CMeasurementContext::KindRedox); }
void BM_SampleAllKinds(benchmark::State &state) { runKind(state, -1); }

void BM_StabilityCheck(benchmark::State &state)
{
    CStabilityPH detector;
    double value = 0.0;
    double mv = 0.0;
    int i = 0;
    for (auto _ : state) {
        const double raw = 7.0 + (i % 16) * 0.0005;
        benchmark::DoNotOptimize(detector.Check(2, &value, &mv, raw, -2.0 + (i % 16) * 0.01));
        benchmark::DoNotOptimize(value);
        ++i;
    }
    state.SetItemsProcessed(state.iterations());
}

}

BENCHMARK(BM_SamplePh);
BENCHMARK(BM_SampleIse);
BENCHMARK(BM_SampleRedox);
BENCHMARK(BM_SampleAllKinds);
BENCHMARK(BM_StabilityCheck);

BENCHMARK_MAIN();
