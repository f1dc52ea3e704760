#include "controller/slaveclock.h"

#include "controller/mspcontroller.h"

SlaveClock::SlaveClock(mspController *msp, QObject *parent)
    : QObject(parent)
    , m_start(QDateTime::currentDateTime())
{
    connect(msp, &mspController::mspNewDataSignal, this, &SlaveClock::onSample);
}

void SlaveClock::onSample(long timeStamp, double)
{
    if (m_seen && timeStamp > m_lastStamp)
        m_ms += timeStamp - m_lastStamp;
    m_seen = true;
    m_lastStamp = timeStamp;
    emit advanced(m_ms);
}
