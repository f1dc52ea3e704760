#include "controller/burettecontroller.h"

#include "interfaces/enginedatainterface.h"
#include "controller/mspcontroller.h"

#include <QDebug>
#include <QTimer>

namespace {

void home(SlaveLink *c) { c->setHomeBurette(); }
void toEnd(SlaveLink *c) { c->setEndBurette(); }

} // namespace

BuretteController *BuretteController::bcPtr()
{
    static BuretteController *instance = new BuretteController(mspController::mspcPtr());
    return instance;
}

BuretteController::BuretteController(SlaveLink *msp, QObject *parent)
    : QObject(parent)
    , m_timer(new QTimer(this))
    , m_msp(msp)
{
    EngineData::get()->setDispenseInProgress(false);
    connect(m_timer, &QTimer::timeout, this, &BuretteController::execute);
    m_timer->start(250);
}

void BuretteController::setTickInterval(int ms)
{
    m_timer->setInterval(ms);
}

void BuretteController::tickWithSamples()
{
    m_timer->stop();
    connect(m_msp, &SlaveLink::mspNewDataSignal, this, &BuretteController::execute, Qt::UniqueConnection);
}

int BuretteController::capacityUl() const
{
    return int(EngineData::get()->buretteSize()) * 1000;
}

// Sends a motion, asks for the busy flag and counts the burette busy until
// the slave's answer says otherwise.
void BuretteController::moveAndWatch(void (*command)(SlaveLink *))
{
    command(m_msp);
    m_msp->queryBurette();
    m_msp->setBuretteBusy();
}

void BuretteController::stopHomeAndWatch(int nextState)
{
    m_msp->stopAndHomeBurette();
    m_msp->queryBurette();
    m_msp->setBuretteBusy();
    m_state = nextState;
}

void BuretteController::dispense_ul(int volume)
{
    m_tickCount = 0;
    m_remainder = 0;
    const int capacity = capacityUl();
    int part = volume;
    EngineDataInterface *dm = EngineData::get();
    if (m_position + volume > capacity) {
        part = capacity - m_position;
        m_remainder = m_position + volume - capacity;
        if (part > 0) {
            m_msp->dispense(part);
            m_state = BURETTE_LAST_PART;
        } else {
            // The cylinder is already empty: no dose of nothing, refill first.
            part = 0;
            stopHomeAndWatch(BURETTE_REFILLING);
            qDebug() << "Reset!";
        }
    } else {
        m_state = BURETTE_DOSE;
        m_msp->dispense(part);
    }
    dm->setDispenseInProgress(true);
    dm->sendToConsole(QStringLiteral("Dispensing(ul): %1\r\n").arg(part));
    m_total += part;
    m_position += part;
}

void BuretteController::dispense_manual_ul(int volume)
{
    m_state = BURETTE_MANUAL_DOSE;
    m_tickCount = 0;
    m_msp->dispense(qMin(capacityUl(), volume));
    EngineData::get()->setDispenseInProgress(true);
    qDebug() << "Dispensing: " << volume;
}

void BuretteController::startManualContinuousDispense()
{
    m_state = BURETTE_MANUAL_CONTINUOUS;
    m_msp->setEndBurette();
    qDebug() << "Manual(continuous) Dispense Started";
}

void BuretteController::stopManualDispense()
{
    stopHomeAndWatch(BURETTE_MANUAL_HOMING);
    qDebug() << "Manual Dispense Stopped";
}

void BuretteController::stopRinse()
{
    stopHomeAndWatch(BURETTE_RINSE_STOPPING);
    qDebug() << "Rinse Stopped";
}

void BuretteController::flush()
{
    m_state = BURETTE_FLUSHING;
    m_flushState = 0;
}

void BuretteController::resetBurette()
{
    stopHomeAndWatch(BURETTE_END_HOMING);
    m_total = 0;
    m_position = 0;
}

void BuretteController::sizeHandshake()
{
    mspInfoRecord info;
    m_msp->getInfo(info);
    const int configured = int(EngineData::get()->buretteSize());
    if (configured == info.buretteSize) {
        m_sizeTries = 0;
        m_sizeWait = 0;
        m_sizeAsked = -1;
        return;
    }
    if (configured != m_sizeAsked) {
        m_sizeTries = 0;
        m_sizeWait = 0;
        m_sizeAsked = configured;
    }
    if (m_sizeWait > 0) {
        --m_sizeWait;
        return;
    }
    if (m_sizeTries == kSizeTries) {
        // Said once; from now on a try now and then, for a slave that
        // comes back, never a stream of them.
        ++m_sizeTries;
        m_sizeWait = kQuietTicks;
        const char *noAnswer = QT_TR_NOOP("The slave does not answer: the burette size (%1 mL) could not be set after %2 tries.");
        qDebug().noquote() << "BuretteController:" << QString::fromLatin1(noAnswer).arg(configured).arg(kSizeTries);
        emit buretteErrorOccured(tr(noAnswer).arg(configured).arg(kSizeTries));
        return;
    }
    m_msp->setBuretteSize(configured);
    m_msp->getBuretteSize();
    if (m_sizeTries > kSizeTries) {
        m_sizeWait = kQuietTicks;
        return;
    }
    m_sizeWait = 1 << m_sizeTries; // 1, 2, 4, ... ticks before the next try
    ++m_sizeTries;
}

// The first look at the dispense status falls at least one tick after the dose.
bool BuretteController::doseFinished()
{
    const bool done = m_msp->isDispenseDone() && m_tickCount >= 1;
    ++m_tickCount;
    return done;
}

bool BuretteController::flushStep()
{
    SlaveLink *d = m_msp;
    switch (m_flushState) {
    case 0:
        m_flushDone = false;
        if (d->isBuretteAtLoad()) {
            moveAndWatch(toEnd);
            m_flushState = 2;
        } else {
            moveAndWatch(home);
            m_flushState = 1;
        }
        break;
    case 1:
    case 2:
        if (d->isBuretteBusy()) {
            d->queryBurette();
        } else if (m_flushState == 1) {
            moveAndWatch(toEnd);
            m_flushState = 2;
        } else {
            moveAndWatch(home);
            m_flushState = 3;
        }
        break;
    case 3:
        if (d->isBuretteBusy()) {
            d->queryBurette();
        } else {
            m_flushState = 0;
            m_flushDone = true;
        }
        break;
    default:
        qDebug() << "Flush: UNKNOWN_STATE ERROR!";
        m_flushState = 0;
        m_flushDone = true;
        break;
    }
    return m_flushDone;
}

void BuretteController::execute()
{
    EngineDataInterface *dm = EngineData::get();
    SlaveLink *d = m_msp;
    switch (m_state) {
    case BURETTE_READY:
    case BURETTE_IDLE:
        sizeHandshake();
        dm->setDispenseInProgress(false);
        break;
    case BURETTE_FLUSHING:
        if (flushStep()) {
            m_state = BURETTE_READY;
            emit signal_flushComplete();
        }
        break;
    case BURETTE_RINSE_STOPPING:
        if (d->isBuretteBusy()) {
            d->queryBurette();
        } else {
            m_state = BURETTE_IDLE;
            emit qmlRinseCompleted();
        }
        break;
    case BURETTE_MANUAL_CONTINUOUS:
        break;
    case BURETTE_MANUAL_DOSE:
        if (doseFinished()) {
            dm->setDispenseInProgress(false);
            moveAndWatch(home);
            m_state = BURETTE_MANUAL_HOMING;
            emit qmlDispenseWait();
        }
        break;
    case BURETTE_MANUAL_HOMING:
        if (d->isBuretteBusy()) {
            d->queryBurette();
        } else {
            m_state = BURETTE_READY;
            emit qmlDispenseCompleted();
        }
        break;
    case BURETTE_DOSE:
        if (doseFinished()) {
            qDebug() << "Dispensing Complete";
            m_state = BURETTE_IDLE;
            dm->setDispenseInProgress(false);
            emit backendDispenseCompleted();
        }
        break;
    case BURETTE_END_HOMING:
        if (d->isBuretteBusy()) {
            d->queryBurette();
        } else {
            m_state = BURETTE_READY;
            qDebug() << "End Titration Home Complete";
        }
        break;
    case BURETTE_REFILLING:
        if (d->isBuretteBusy()) {
            d->queryBurette();
        } else {
            // A remainder larger than a full cylinder goes out a cylinder
            // at a time, with a refill after each.
            m_tickCount = 0;
            qDebug() << "Reset Complete";
            const int part = qMin(m_remainder, capacityUl());
            m_remainder -= part;
            m_state = m_remainder > 0 ? BURETTE_LAST_PART : BURETTE_DOSE;
            m_position = part;
            d->dispense(part);
            m_total += part;
        }
        break;
    case BURETTE_LAST_PART:
        if (doseFinished()) {
            stopHomeAndWatch(BURETTE_REFILLING);
            qDebug() << "Reset!";
        }
        break;
    default:
        qDebug() << "ERROR: Unknown State!  Halting!";
        break;
    }
}
