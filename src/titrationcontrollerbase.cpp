#include "titrationcontrollerbase.h"

#include "controller/burettecontroller.h"
#include "interfaces/enginedatainterface.h"
#include "controller/mspcontroller.h"
#include "controller/slaveclock.h"
#include "interfaces/runmeterinterface.h"
#include "system/platform.h"

#include <QCoreApplication>
#include <QDebug>
#include <QPointF>

#include <cmath>

TitrationControllerBase *TitrationControllerBase::tcPtr()
{
    static TitrationControllerBase *instance = new TitrationControllerBase(
        mspController::mspcPtr(), BuretteController::bcPtr(), RunMeterInterface::instrumentMeter());
    return instance;
}

TitrationControllerBase::TitrationControllerBase(SlaveLink *msp, BuretteController *burette,
                                                 RunMeterInterface *meter, QObject *parent)
    : TitrationController(msp, burette, parent)
    , m_mc(meter ? meter : RunMeterInterface::standIn())
{
    connect(bc, &BuretteController::signal_flushComplete, this, &TitrationControllerBase::rinseCycleCompleted);
    connect(this, &TitrationController::signalNewGraphData, this, &TitrationControllerBase::qmlNewGraphData);
    // The data layer takes the results first, before the screens stop the run.
    connect(this, &TitrationController::titrationCompletedSignal, this, [] { dm()->titrationCompleted(); });
    preStirTimer.setSingleShot(true);
    connect(&preStirTimer, &QTimer::timeout, this, &TitrationController::startTitration);
    qmlSetDisplayBrightness();
}

void TitrationControllerBase::qmlStartTitration()
{
    EngineDataInterface *data = dm();
    m_mc->repointAtMethodProbe();
    data->beginRunRecords();
    data->setTitrationCancelled(false);
    latchSimulation();
    if (m_inSimulation) {
        startTitration();
        return;
    }
    SlaveLink *d = mspCont;
    if (!d->isBuretteAtLoad()) {
        d->setHomeBurette();
        d->queryBurette();
        d->setBuretteBusy();
    }
    // A poll still waiting from a cancelled start serves this start too.
    if (!m_homePollPending)
        waitForTitrationAtHome();
}

void TitrationControllerBase::setWaitClock(SlaveClock *clock)
{
    if (m_waitClock)
        disconnect(m_waitClock, nullptr, this, nullptr);
    m_waitClock = clock;
    if (clock)
        connect(clock, &SlaveClock::advanced, this, &TitrationControllerBase::onWaitClock);
}

void TitrationControllerBase::onWaitClock(qint64 ms)
{
    if (m_clockWait == WaitNone || ms < m_clockWaitUntil)
        return;
    const ClockWait done = m_clockWait;
    m_clockWait = WaitNone;
    if (done == WaitHomePoll) {
        m_homePollPending = false;
        waitForTitrationAtHome();
    } else {
        startTitration();
    }
}

void TitrationControllerBase::scheduleHomePoll()
{
    m_homePollPending = true;
    if (m_waitClock) {
        m_clockWait = WaitHomePoll;
        m_clockWaitUntil = m_waitClock->monotonicMs() + HOME_POLL_MS;
        return;
    }
    QTimer::singleShot(scaledMs(HOME_POLL_MS), this, [this] {
        m_homePollPending = false;
        waitForTitrationAtHome();
    });
}

void TitrationControllerBase::startPreStir(qint64 ms)
{
    if (m_waitClock) {
        m_clockWait = WaitPreStir;
        m_clockWaitUntil = m_waitClock->monotonicMs() + ms;
        return;
    }
    preStirTimer.start(scaledMs(ms));
}

void TitrationControllerBase::waitForTitrationAtHome()
{
    SlaveLink *d = mspCont;
    if (!d->isBuretteAtLoad()) {
        d->queryBurette();
        scheduleHomePoll();
        return;
    }
    EngineDataInterface *data = dm();
    if (data->getTitrationCancelled())
        return;
    const int speed = data->getIndexOfStirSpeed();
    data->setQmlStirSpeed(speed);
    data->setQmlStirrerState(true);
    mspCont->setStirSpeed(speed);
    const qint64 preStir = qint64(data->getTitratrationOrStandardardizationPreStir()) * MS_PER_SEC + MIN_PRESTIR_MS;
    startPreStir(preStir);
}

void TitrationControllerBase::qmlStopTitration()
{
    EngineDataInterface *data = dm();
    data->setQmlStirrerState(false);
    mspCont->stopStirrer();
    data->notifyValueChanged();
    data->setTitrationCancelled(true);
    preStirTimer.stop();
    if (m_clockWait == WaitPreStir)
        m_clockWait = WaitNone;
    stopTitration();
}

void TitrationControllerBase::qmlStartRinse()
{
    EngineDataInterface *data = dm();
    if (data->rinseCycles() <= 0) {
        qDebug() << "Rinse refused: no cycles to run";
        return;
    }
    data->setLastStartRinseCycles(data->rinseCycles());
    isRinse = true;
    bc->flush();
}

void TitrationControllerBase::rinseCycleCompleted()
{
    if (!isRinse)
        return;
    EngineDataInterface *data = dm();
    const int left = data->rinseCycles() - 1;
    data->setRinseCycles(left);
    if (left > 0) {
        bc->flush();
        return;
    }
    isRinse = false;
    data->setRinseCycles(data->lastStartRinseCycles());
    emit bc->qmlRinseCompleted();
}

void TitrationControllerBase::qmlStopRinse()
{
    isRinse = false;
    bc->stopRinse();
    EngineDataInterface *data = dm();
    data->setRinseCycles(data->lastStartRinseCycles());
}

void TitrationControllerBase::qmlStartDispense(float dispenseVolume_ml)
{
    if (!std::isfinite(dispenseVolume_ml) || dispenseVolume_ml <= 0.f || dispenseVolume_ml > 1000.f) {
        qDebug() << "Manual dose refused:" << dispenseVolume_ml << "mL";
        return;
    }
    bc->dispense_manual_ul(int(std::lround(double(dispenseVolume_ml) * uLtomL)));
}

void TitrationControllerBase::qmlStartDispense()
{
    bc->startManualContinuousDispense();
}

void TitrationControllerBase::qmlStopDispense()
{
    bc->stopManualDispense();
}

void TitrationControllerBase::qmlSetStirSpeed(int stirSpeed)
{
    if (stirSpeed < 0 || stirSpeed > 5) {
        qDebug() << "Stir speed refused:" << stirSpeed;
        return;
    }
    EngineDataInterface *data = dm();
    data->setQmlStirSpeed(stirSpeed);
    if (data->qmlStirrerState())
        mspCont->setStirSpeed(stirSpeed);
}

void TitrationControllerBase::qmlStartStirrer()
{
    EngineDataInterface *data = dm();
    data->setQmlStirrerState(true);
    mspCont->setStirSpeed(data->qmlStirSpeed());
}

void TitrationControllerBase::qmlStopStirrer()
{
    dm()->setQmlStirrerState(false);
    mspCont->stopStirrer();
}

void TitrationControllerBase::qmlNewGraphData(float dispVol, float mV)
{
    Q_UNUSED(mV) // the data layer already holds the reading
    dispVol /= float(uLtomL);
    EngineDataInterface *data = dm();
    const QString mode = data->deviceMode();
    if (mode != QLatin1String("Titration") && mode != QLatin1String("Standardization")) {
        qDebug() << "Device mode not Titration or Standardization.  Device Mode: " << mode;
        return;
    }
    const float scaled = data->recordRunPoint(dispVol);
    emit newPoint(QVariant(QPointF(double(dispVol), double(scaled))));
}

void TitrationControllerBase::qmlStartMeasure()
{
    dm()->setDeviceMode(QStringLiteral("Measurement"));
    m_mc->startMeasure();
}

void TitrationControllerBase::qmlStopMeasure()
{
    EngineDataInterface *data = dm();
    data->setDeviceMode(QString());
    data->setQmlStirrerState(false);
    mspCont->stopStirrer();
    m_mc->stopMeasure();
}

void TitrationControllerBase::restartApp()
{
    QCoreApplication::exit(-1);
    Platform::startDetached(QCoreApplication::applicationFilePath(), {});
}

void TitrationControllerBase::qmlSetDisplayBrightness()
{
    mspCont->setBacklight(dm()->displayBrightness());
}
