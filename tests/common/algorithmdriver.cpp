#include "algorithmdriver.h"

#include "controller/algorithms/temporaldatastore.h"
#include "controller/algorithms/titrationalgorithmbase.h"
#include "controller/enginedatastandin.h"
#include "system/clock.h"

#include <cmath>
#include <random>

AlgorithmDriver::AlgorithmDriver(ManualClock &clock, EngineDataStandIn &dm)
    : m_clock(clock)
    , m_dm(dm)
{
}

AlgorithmDriver::Outcome AlgorithmDriver::run(TitrationAlgorithmBase &algorithm, TemporalDataStore &temporal,
                                              const std::function<double(double)> &potentialMv)
{
    std::mt19937 random(noiseSeed);
    std::normal_distribution<double> noise(0.0, 1.0);
    const double blend = 1.0 - std::exp(-0.25 / lagSeconds);
    const qint64 start = m_clock.monotonicMs();

    double delivered = 0.0; // µL in the beaker
    double electrode = potentialMv(0.0);
    bool waitDispense = false;
    qint64 dispenseEnds = -1;
    Outcome outcome;
    m_dm.dispenseInProgress = false;

    for (int k = 0; k < maxSamples; ++k) {
        m_clock.advance(250);
        const qint64 now = m_clock.monotonicMs();
        if (m_dm.dispenseInProgress && now >= dispenseEnds) {
            m_dm.dispenseInProgress = false;
            algorithm.dispenseComplete();
        }
        if (beforeSample)
            beforeSample(delivered);
        electrode += (potentialMv(delivered / 1000.0) - electrode) * blend;
        temporal.addPoint(long(now), electrode + noiseMv * noise(random));
        ++outcome.samples;
        if (outcome.samples <= 3)
            continue;
        if (outcome.samples == 4) {
            algorithm.onStart();
            continue;
        }
        if (algorithm.isFinished()) {
            outcome.finished = true;
            break;
        }
        if (m_dm.dispenseInProgress)
            waitDispense = false;
        if (!m_dm.dispenseInProgress && waitDispense)
            continue;
        const unsigned int dose = algorithm.run();
        if (dose > 0) {
            delivered += dose;
            m_dm.dispenseInProgress = true;
            dispenseEnds = now + qint64(dose) * 10 + 250;
            waitDispense = true;
        }
    }
    outcome.results = algorithm.getResults();
    outcome.reason = algorithm.reasonForEnd;
    outcome.dispensed = algorithm.dispensed();
    outcome.minutes = (m_clock.monotonicMs() - start) / 60000.0;
    return outcome;
}
