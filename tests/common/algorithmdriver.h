#pragma once

#include <QString>

#include <array>
#include <functional>

class TitrationAlgorithmBase;
class TemporalDataStore;
class EngineDataStandIn;
class ManualClock;

// Drives a titration algorithm as the run controller does, against a
// potential given by chemistry: one sample every 250 ms into the temporal
// store, the first three only stored, onStart() on the fourth, then run();
// a dose is "delivered" at 100 µL/s, after which dispenseComplete() is called.
// The electrode follows the beaker with a first-order lag and, if asked, a
// fixed-seed noise. Time is the manual clock's.
class AlgorithmDriver
{
public:
    struct Outcome {
        bool finished = false;
        std::array<double, 3> results{{0.0, 0.0, 0.0}};
        QString reason;
        unsigned int dispensed = 0;
        double minutes = 0.0;
        int samples = 0;
    };

    AlgorithmDriver(ManualClock &clock, EngineDataStandIn &dm);

    double lagSeconds = 1.5;
    double noiseMv = 0.0;
    unsigned noiseSeed = 20260101u;
    int maxSamples = 200000;
    // Called before each sample with the µL delivered so far (for changes during a run).
    std::function<void(double deliveredUl)> beforeSample;

    // Runs until the algorithm is finished or maxSamples have passed.
    // potentialMv takes the mL of titrant in the beaker.
    Outcome run(TitrationAlgorithmBase &algorithm, TemporalDataStore &temporal,
                const std::function<double(double)> &potentialMv);

private:
    ManualClock &m_clock;
    EngineDataStandIn &m_dm;
};
