#pragma once

#include <QString>
#include <QStringList>

#include <vector>

class DataManagerBase;
class MeterController;
class QTextStream;
class VirtualSlave;
struct Scenario;

// "vantor-cli measure" and "vantor-cli calibrate": the meter of the
// instrument (MeterController on the engine's slave link) against the
// virtual instrument, started in this process with a scenario's electrode.
// measure waits for a stable reading, prints it and stores it in the
// measurement log; calibrate moves the electrode from buffer to buffer (or
// standard to standard) through the instrument's control, takes a point at
// each when the reading is stable, finishes the calibration and stores it
// as the calibration screens do.
class MeterRunner
{
public:
    enum Command { Measure, Calibrate };

    explicit MeterRunner(Command command);
    // False with a message for the user on a bad option.
    bool parse(const QStringList &arguments, QString *error);
    static QString usage(Command command);
    bool verbose() const { return m_verbose; }

    // 0 done, 1 a point or the calibration refused (or no stable reading in
    // time), 2 a file, the database or the instrument not usable.
    int run(QTextStream &out, QTextStream &err);

private:
    int measure(DataManagerBase &dm, MeterController &mc, QTextStream &out, QTextStream &err);
    int calibrate(DataManagerBase &dm, MeterController &mc, VirtualSlave &slave, const Scenario &scenario,
                  QTextStream &out, QTextStream &err);
    // Waits for the meter's stable signal; the instrument seconds it took,
    // or a negative number on a time-out.
    double waitStable(MeterController &mc);

    Command m_command;
    QString m_scenarioFile;
    QString m_mode = QStringLiteral("pH");
    std::vector<double> m_values;        // buffers (pH) or standards (mV, mol/L)
    QString m_group = QStringLiteral("USA");
    QString m_ion;                       // ISE: the ion of the scenario's electrode
    QString m_sandbox;
    double m_speed = 50.0;
    int m_timeoutS = 600;
    bool m_verbose = false;
};
