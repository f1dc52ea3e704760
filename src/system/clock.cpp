#include "system/clock.h"

#include <QElapsedTimer>

namespace {

class SystemClock : public ClockSource
{
public:
    SystemClock() { m_timer.start(); }
    qint64 monotonicMs() const override { return m_timer.elapsed(); }
    QDateTime now() const override { return QDateTime::currentDateTime(); }

private:
    QElapsedTimer m_timer;
};

SystemClock &systemClock()
{
    static SystemClock system;
    return system;
}

ClockSource *&current()
{
    static ClockSource *source = &systemClock();
    return source;
}

} // namespace

qint64 Clock::monotonicMs() { return current()->monotonicMs(); }
QDateTime Clock::now() { return current()->now(); }
ClockSource *Clock::source() { return current(); }

void Clock::setSource(ClockSource *source)
{
    current() = source ? source : &systemClock();
}
