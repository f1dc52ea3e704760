#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

// Runs build/bin/virtual-instrument for a test: writes the scenario, starts
// the program with its link in the test's sandbox, and waits until the link
// is there. The trace file is kept for the test to read.
class VirtualInstrumentProcess
{
public:
    VirtualInstrumentProcess();
    ~VirtualInstrumentProcess();

    // Starts with a scenario given as JSON text; false if it did not come up.
    // The instrument's time runs with the link's polls (250 ms a poll), so a
    // test that polls `speed` times faster runs it that much faster.
    bool start(const QString &scenarioJson, double speed, const QStringList &extra = {});
    // Ends it (and waits); the link goes with it.
    void stop();
    bool isRunning() const;

    // Sends one control line ("beaker {...}") and waits for its answer:
    // "" for "ok", else the error text (or "no answer").
    QString command(const QString &line);

    // The link the application opens: the sandbox's "/dev/ttymxc2".
    QString device() const;
    QString traceText() const;
    QString errorText();
    // Trace lines of one kind: '>' commands, '<' replies, '*' events.
    QStringList traceLines(char kind) const;

private:
    QProcess m_process;
    QTemporaryDir m_dir;
    QString m_errors;
};
