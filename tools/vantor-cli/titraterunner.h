#pragma once

#include "titrateoptions.h"

#include <QString>
#include <QStringList>

#include <array>

class DataManagerBase;
class QTextStream;
struct MethodDraft;
struct Scenario;

// Runs a titration for "vantor-cli titrate" with the instrument's own
// objects: the database in the sandbox with the method of the run, the data
// manager serving the engine from it, slave link, burette, run controller
// and algorithm. With --runs, as many back to back in this process, the
// method stored once and the other objects made afresh for each, and the
// process's resources reported after each. A live run starts the virtual
// instrument in this process on a pseudo-terminal with the scenario's beaker
// and its clock `speed` times real time; a replay puts the curve where the
// simulation path plays it. The run, its cycle and its log entry are stored
// in the sandbox's database.
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
        QStringList storedResults;        // per end point, as the data layer computed them
        QString resultUnit;
    };

    explicit TitrateRunner(const TitrateOptions &options);

    // Exit status: 0 the run ended normally, 1 it did not (time-out), 2 a
    // file could not be read, the database not be used, the method not be
    // found or the instrument not be started.
    int run(QTextStream &out, QTextStream &err);
    const Outcome &outcome() const { return m_outcome; }

private:
    int runInSandbox(QTextStream &err);
    int loadInput(Scenario &scenario, QTextStream &err);
    // The id of the method to run: the stored one named by --method, or one
    // built from the options and the scenario. 0 after a message.
    int methodOfRun(DataManagerBase &dm, const Scenario &scenario, QTextStream &err);
    MethodDraft draftOf(const Scenario &scenario) const;
    int runEngine(DataManagerBase &dm, Scenario &scenario, QTextStream &err);
    void storeRun(DataManagerBase &dm);
    void report(QTextStream &out) const;

    TitrateOptions m_options;
    Outcome m_outcome;
    int m_methodId = 0;   // the method of the runs, once stored or found
};
