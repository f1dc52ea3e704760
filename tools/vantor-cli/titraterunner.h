#pragma once

#include "titrateoptions.h"

#include <QString>

#include <array>

class QTextStream;

// Runs one titration for "vantor-cli titrate" with the engine's own objects:
// slave link, burette, run controller and algorithm. With --runs, as many
// back to back in this process, the objects made afresh for each and the
// process's resources reported after each. A live run starts the
// virtual instrument in this process on a pseudo-terminal with the
// scenario's beaker and its clock `speed` times real time; a replay puts the
// curve where the simulation path plays it. The run's logs go to a sandbox.
class TitrateRunner
{
public:
    struct Outcome {
        bool completed = false;           // the run reached its end
        QString summary;                  // as the run log has it, "\n" line ends
        QString reasonForEnd;
        std::array<double, 3> results{{0, 0, 0}}; // µL
        int doses = 0;
        int totalDispensedUl = 0;
        double durationS = 0.0;           // on the instrument's (or the simulation's) clock
        double wallS = 0.0;
        bool knownAddition = false;       // a known-addition run reports by its own result
        std::array<double, 3> mkaResult{{0, 0, 0}}; // concentration, slope mV/decade, spike recovery %
    };

    explicit TitrateRunner(const TitrateOptions &options);

    // Exit status: 0 the run ended normally, 1 it did not (time-out), 2 a
    // file could not be read or the instrument not be started.
    int run(QTextStream &out, QTextStream &err);
    const Outcome &outcome() const { return m_outcome; }

private:
    int runInSandbox(QTextStream &err);
    void report(QTextStream &out) const;

    TitrateOptions m_options;
    Outcome m_outcome;
};
