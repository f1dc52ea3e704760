#pragma once

#include "system/clock.h"

#include <QObject>

class SlaveLink;

// A clock that follows the slave's own time stamps: each MG reply moves it to
// the reply's time. Installed when the instrument's clock runs faster than
// real time (the virtual instrument's --speed), so that the engine's
// stability timing counts the instrument's milliseconds, not the host's.
// It never goes back; a slave that restarts its count is followed from there.
class SlaveClock : public QObject, public ClockSource
{
    Q_OBJECT
public:
    explicit SlaveClock(SlaveLink *msp, QObject *parent = nullptr);

    qint64 monotonicMs() const override { return m_ms; }
    QDateTime now() const override { return m_start.addMSecs(m_ms); }

public slots:
    void onSample(long timeStamp, double data);

signals:
    // After each sample has moved the clock.
    void advanced(qint64 ms);

private:
    QDateTime m_start;
    qint64 m_ms = 0;
    long m_lastStamp = 0;
    bool m_seen = false;
};
