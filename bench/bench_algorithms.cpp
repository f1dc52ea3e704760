// Cost of the titration techniques' own arithmetic: one Nernst fit of a
// known-addition run, and one step of an end-point run.
#include "controller/algorithms/maths/knownadditionfit.h"
#include "controller/algorithms/temporaldatastore.h"
#include "controller/algorithms/titrationalgendpoint.h"
#include "controller/algorithms/volumetricdatastore.h"
#include "controller/enginedatastandin.h"
#include "system/clock.h"
#include "system/platform.h"

#include <QTemporaryDir>
#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

namespace {

// The stores write their logs into a throw-away sandbox.
struct Sandbox
{
    Sandbox() { Platform::setSandboxRoot(dir.path()); }
    QTemporaryDir dir;
};

Eigen::VectorXd vec(double a, double b, double c)
{
    Eigen::VectorXd v(3);
    v << a, b, c;
    return v;
}

// The fit after the fifth addition (six points), from the one-point estimate
// of the first, as a run makes it.
void BM_KnownAdditionFit(benchmark::State &state)
{
    KnownAdditionFit::Model model;
    model.v0 = 50.0;
    model.cs = 0.1;
    const std::vector<double> x{0.0, 0.45, 0.95, 1.6, 2.5, 3.9};
    std::vector<double> y;
    const Eigen::VectorXd truth = vec(1.2e-3, 243.0, 57.4);
    for (double v : x)
        y.push_back(model(v, truth) + 0.03 * std::sin(v * 7.0));
    const Eigen::VectorXd lower = vec(1e-9, -1024, 50), upper = vec(2.0, 1024, 60);
    int iterations = 0;
    for (auto _ : state) {
        Eigen::VectorXd p = vec(1.6e-3, 230.0, 59.2);
        const KnownAdditionFit::Outcome out = KnownAdditionFit::fit(model, x, y, p, lower, upper);
        iterations = out.iterations;
        benchmark::DoNotOptimize(p.data());
    }
    state.counters["iterations"] = iterations;
}
BENCHMARK(BM_KnownAdditionFit);

// One run() of an end-point titration on a stable reading: the end test, a
// point to the curve, the step towards the end point and the dose law.
void BM_EndPointRunStep(benchmark::State &state)
{
    Sandbox sandbox;
    ManualClock clock;
    Clock::setSource(&clock);
    EngineDataStandIn dm;
    dm.technique = 0;
    dm.maxVolmL = 1e6f;
    dm.buretteSizeMl = 1e6f;
    dm.endpoint[0] = -300.f;
    EngineData::set(&dm);

    std::unique_ptr<TemporalDataStore> temporal;
    std::unique_ptr<VolumetricDataStore> volumetric;
    std::unique_ptr<TitrationAlgEndPoint> algorithm;
    long t = 0;
    auto start = [&] {
        algorithm.reset();
        temporal = std::make_unique<TemporalDataStore>();
        volumetric = std::make_unique<VolumetricDataStore>();
        algorithm = std::make_unique<TitrationAlgEndPoint>(temporal.get(), volumetric.get());
        for (int i = 0; i < 40; ++i)
            temporal->addPoint(t += 250, 100.0);
        clock.advance(10000);
        while (algorithm->phase() != TitrationAlgorithmBase::ALG_TITRATING)
            algorithm->run();
    };
    start();
    for (auto _ : state) {
        benchmark::DoNotOptimize(algorithm->run());
        if (volumetric->size() >= 2000) {
            state.PauseTiming();
            start();
            state.ResumeTiming();
        }
    }
    algorithm.reset();
    EngineData::set(nullptr);
    Clock::setSource(nullptr);
}
BENCHMARK(BM_EndPointRunStep);

} // namespace

BENCHMARK_MAIN();
