#pragma once

#include <QByteArray>
#include <QElapsedTimer>
#include <QFile>
#include <QObject>

class PseudoTerminal;
class QTimer;
class VirtualSlave;

// Joins a pseudo-terminal to the virtual slave: cuts the received bytes into
// command lines, keeps the slave's clock running at `speed` times real
// time, answers, and writes every command, reply and event with its time to
// the trace file when one is given.
class SlaveSession : public QObject
{
    Q_OBJECT
public:
    SlaveSession(PseudoTerminal *pty, VirtualSlave *slave, double speed, QObject *parent = nullptr);
    bool setTraceFile(const QString &fileName);

    // Longest command line; a longer one is dropped up to its line end.
    static constexpr int MaxLineBytes = 256;

private:
    void onReceived(const QByteArray &bytes);
    void tick();
    qint64 instrumentMs() const;
    void trace(char kind, const QByteArray &text);

    PseudoTerminal *m_pty;
    VirtualSlave *m_slave;
    double m_speed;
    QElapsedTimer m_real;
    QTimer *m_timer;
    QByteArray m_line;
    bool m_discarding = false;
    QFile m_trace;
};
