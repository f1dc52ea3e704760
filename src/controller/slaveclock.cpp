#include "controller/slaveclock.h"

#include "interfaces/slavelink.h"

SlaveClock::SlaveClock(SlaveLink *msp, QObject *parent)
    : QObject(parent)
    , m_start(QDateTime::currentDateTime())
{
    connect(msp, &SlaveLink::mspNewDataSignal, this, &SlaveClock::onSample);
}

void SlaveClock::onSample(long timeStamp, double)
{
    if (m_seen && timeStamp > m_lastStamp)
        m_ms += timeStamp - m_lastStamp;
    m_seen = true;
    m_lastStamp = timeStamp;
    emit advanced(m_ms);
}
