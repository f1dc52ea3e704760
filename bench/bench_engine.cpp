// Cost of the titration engine's decision per slave sample: one run() step of
// an equivalence-point run, the temporal store's sample together with it, and
// the fits of getResults() at the end of a run. The runs are simulated with a
// manual clock, an ideal burette and an electrode that follows a two-jump
// curve with a lag, as the run controller drives them.
#include "controller/algorithms/temporaldatastore.h"
#include "controller/algorithms/titrationalgmillivolt.h"
#include "controller/algorithms/volumetricdatastore.h"
#include "controller/enginedatastandin.h"
#include "system/clock.h"
#include "system/platform.h"

#include <QTemporaryDir>
#include <QtGlobal>
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <ctime>
#include <memory>

namespace {

// Two equivalence points, at 5 and at 9 mL, in mV against µL delivered.
double curve(double ul)
{
    return 40.0 - 120.0 * std::tanh((ul - 5000.0) / 120.0) - 90.0 * std::tanh((ul - 9000.0) / 120.0);
}

// One simulated run at a time; next() feeds one sample and, when told to,
// runs the algorithm on it. A finished run is replaced by a fresh one.
class SimulatedRun
{
public:
    SimulatedRun()
    {
        Platform::setSandboxRoot(m_dir.path());
        Clock::setSource(&m_clock);
        EngineData::set(&m_dm);
        m_dm.technique = 1;
        m_dm.noOfEndpoints = 2;
        m_dm.maxVolmL = 20.f;
        m_dm.buretteSizeMl = 20.f;
        restart();
    }
    ~SimulatedRun()
    {
        m_algorithm.reset();
        Clock::setSource(nullptr);
        EngineData::set(nullptr);
    }

    void restart()
    {
        m_algorithm.reset();
        m_temporal = std::make_unique<TemporalDataStore>();
        m_volumetric = std::make_unique<VolumetricDataStore>();
        m_algorithm = std::make_unique<TitrationAlgMillivolt>(m_temporal.get(), m_volumetric.get());
        m_delivered = 0.0;
        m_electrode = curve(0.0);
        m_samples = 0;
        m_dm.dispenseInProgress = false;
        ++m_runs;
    }

    // Before the sample: the clock, the burette and the electrode move on.
    void advance()
    {
        if (m_algorithm->isFinished())
            restart();
        m_clock.advance(250);
        const qint64 now = m_clock.monotonicMs();
        if (m_dm.dispenseInProgress && now >= m_dispenseEnds) {
            m_dm.dispenseInProgress = false;
            m_algorithm->dispenseComplete();
        }
        m_electrode += (curve(m_delivered) - m_electrode) * 0.15;
        ++m_samples;
    }

    // The sample as the run controller hands it on: into the temporal store
    // and, from the fourth on, to the algorithm.
    void addSample() { m_temporal->addPoint(long(m_clock.monotonicMs()), m_electrode); }
    bool algorithmRuns() const { return m_samples > 3; }
    void onStartIfFirst()
    {
        if (m_samples == 4)
            m_algorithm->onStart();
    }
    unsigned int step() { return m_algorithm->run(); }

    void dispense(unsigned int dose)
    {
        if (dose == 0)
            return;
        m_delivered += dose;
        m_dm.dispenseInProgress = true;
        m_dispenseEnds = m_clock.monotonicMs() + qint64(dose) * 10 + 250;
    }

    // Runs to the end of the run in progress.
    void finish()
    {
        for (int k = 0; k < 400000 && !m_algorithm->isFinished(); ++k) {
            advance();
            addSample();
            if (!algorithmRuns())
                continue;
            onStartIfFirst();
            dispense(step());
        }
    }

    TitrationAlgMillivolt &algorithm() { return *m_algorithm; }
    int runs() const { return m_runs; }

private:
    QTemporaryDir m_dir;
    ManualClock m_clock;
    EngineDataStandIn m_dm;
    std::unique_ptr<TemporalDataStore> m_temporal;
    std::unique_ptr<VolumetricDataStore> m_volumetric;
    std::unique_ptr<TitrationAlgMillivolt> m_algorithm;
    double m_delivered = 0.0;
    double m_electrode = 0.0;
    qint64 m_dispenseEnds = 0;
    int m_samples = 0;
    int m_runs = 0;
};

using Steady = std::chrono::steady_clock;

double seconds(Steady::time_point a, Steady::time_point b)
{
    return std::chrono::duration<double>(b - a).count();
}

// The CPU time of this thread: the slowest step is judged by the work it
// did, not by the moments the scheduler gave the core to another process.
double threadCpuSeconds()
{
    timespec t{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
    return double(t.tv_sec) + double(t.tv_nsec) * 1e-9;
}

// The algorithm's step alone, averaged over whole runs (waiting, dosing and
// end samples in their natural mix); the slowest step (in CPU time) is a
// counter.
void BM_AlgorithmRunStep(benchmark::State &state)
{
    SimulatedRun run;
    double slowest = 0.0;
    for (auto _ : state) {
        do {
            run.advance();
            run.addSample();
        } while (!run.algorithmRuns());
        run.onStartIfFirst();
        const double c0 = threadCpuSeconds();
        const auto t0 = Steady::now();
        const unsigned int dose = run.step();
        state.SetIterationTime(seconds(t0, Steady::now()));
        slowest = std::max(slowest, threadCpuSeconds() - c0);
        run.dispense(dose);
    }
    state.counters["slowest_cpu_us"] = slowest * 1e6;
    state.counters["runs"] = run.runs();
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_AlgorithmRunStep)->UseManualTime();

// What a slave sample costs the engine: the temporal store's point with its
// filter and derivatives, then the algorithm's step.
void BM_EngineSample(benchmark::State &state)
{
    SimulatedRun run;
    double slowest = 0.0;
    for (auto _ : state) {
        run.advance();
        const double c0 = threadCpuSeconds();
        const auto t0 = Steady::now();
        run.addSample();
        unsigned int dose = 0;
        if (run.algorithmRuns()) {
            run.onStartIfFirst();
            dose = run.step();
        }
        state.SetIterationTime(seconds(t0, Steady::now()));
        slowest = std::max(slowest, threadCpuSeconds() - c0);
        run.dispense(dose);
    }
    state.counters["slowest_cpu_us"] = slowest * 1e6;
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_EngineSample)->UseManualTime();

// The end of a finished two-end-point run: the fresh peak search over the
// whole curve and the cubic at each end point.
void BM_AlgorithmGetResults(benchmark::State &state)
{
    SimulatedRun run;
    run.finish();
    const std::array<double, 3> check = run.algorithm().getResults();
    if (std::abs(check[0] - 5000.0) > 50.0 || std::abs(check[1] - 9000.0) > 50.0) {
        state.SkipWithError("the simulated run did not find its two end points");
        return;
    }
    for (auto _ : state)
        benchmark::DoNotOptimize(run.algorithm().getResults());
}
BENCHMARK(BM_AlgorithmGetResults);

void quiet(QtMsgType, const QMessageLogContext &, const QString &)
{
}

} // namespace

int main(int argc, char **argv)
{
    // The engine's debug lines are formatted but not printed.
    qInstallMessageHandler(quiet);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
