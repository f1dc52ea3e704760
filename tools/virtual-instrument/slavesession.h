#pragma once

#include <QByteArray>
#include <QFile>
#include <QObject>

class PseudoTerminal;
class VirtualSlave;

// Joins a pseudo-terminal to the virtual slave: cuts the received bytes into
// command lines, answers, and writes every command, reply and event with its
// time to the trace file when one is given. The slave's clock advances by
// one poll period with every "MG" answered, so the instrument and the link
// stay in step however fast the link polls and however late the process
// gets the processor: the pace of the link (its poll interval) sets how fast
// the instrument's time runs against the wall clock, nothing else.
class SlaveSession : public QObject
{
    Q_OBJECT
public:
    SlaveSession(PseudoTerminal *pty, VirtualSlave *slave, QObject *parent = nullptr);
    bool setTraceFile(const QString &fileName);

    // Longest command line; a longer one is dropped up to its line end.
    static constexpr int MaxLineBytes = 256;
    // Instrument time per measurement poll, ms: the application polls "MG"
    // every 250 ms.
    static constexpr qint64 PollPeriodMs = 250;

private:
    void onReceived(const QByteArray &bytes);
    void trace(char kind, const QByteArray &text);

    PseudoTerminal *m_pty;
    VirtualSlave *m_slave;
    QByteArray m_line;
    bool m_discarding = false;
    QFile m_trace;
};
