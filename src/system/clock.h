#pragma once

#include <QDateTime>
#include <QtGlobal>

// The program's one source of wall-clock and monotonic time. Everything that
// depends on time asks here, so a test can install a manual clock and run a
// whole titration in milliseconds.
class ClockSource
{
public:
    virtual ~ClockSource() = default;
    virtual qint64 monotonicMs() const = 0;   // milliseconds, never goes back
    virtual QDateTime now() const = 0;        // local wall-clock time
};

class Clock
{
public:
    static qint64 monotonicMs();
    static QDateTime now();
    // Installs a source (not owned); nullptr restores the system clock.
    static void setSource(ClockSource *source);
    static ClockSource *source();
};

// A clock that moves only when told to: for tests and the accelerated tools.
class ManualClock : public ClockSource
{
public:
    explicit ManualClock(const QDateTime &start = QDateTime(QDate(2026, 1, 1), QTime(12, 0)))
        : m_start(start) {}
    qint64 monotonicMs() const override { return m_ms; }
    QDateTime now() const override { return m_start.addMSecs(m_ms); }
    void advance(qint64 ms) { m_ms += ms; }
    void set(qint64 ms) { m_ms = ms; }

private:
    QDateTime m_start;
    qint64 m_ms = 0;
};
