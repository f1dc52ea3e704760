#pragma once

#include "controller/titrationcontroller.h"

#include <QTimer>
#include <QVariant>

class RunMeterInterface;
class SlaveClock;

// The run controller as the screens see it ("tc"): the start sequence of a
// run (meter, homing, stirrer, pre-stir), its stop, rinse, manual doses, the
// stirrer, the backlight, direct measurement and the chart's feed.
class TitrationControllerBase : public TitrationController
{
    Q_OBJECT
public:
    static constexpr int MS_PER_SEC = 1000;
    static constexpr int MIN_PRESTIR_MS = 2000;
    static constexpr int HOME_POLL_MS = 1000;
    static constexpr double uLtomL = 1000.0;

    static TitrationControllerBase *tcPtr();
    TitrationControllerBase(SlaveLink *msp, BuretteController *bc, RunMeterInterface *meter,
                            QObject *parent = nullptr);

    bool rinsing() const { return isRinse; }
    bool preStirring() const { return preStirTimer.isActive() || m_clockWait == WaitPreStir; }
    bool homePollPending() const { return m_homePollPending; }

    // The homing poll and the pre-stir wait count the instrument's time on
    // this clock instead of the host's timers. The console runner sets it
    // when the instrument runs faster than real time, so that the run starts
    // after the same number of samples however busy the host is.
    void setWaitClock(SlaveClock *clock);

public slots:
    void qmlStartTitration();
    void qmlStopTitration();
    void qmlStartRinse();
    void qmlStopRinse();
    void rinseCycleCompleted();
    void qmlStartDispense(float dispenseVolume_ml);
    void qmlStartDispense();
    void qmlStopDispense();
    void qmlSetStirSpeed(int stirSpeed);
    void qmlStartStirrer();
    void qmlStopStirrer();
    void qmlNewGraphData(float dispVol, float mV);
    void qmlStartMeasure();
    void qmlStopMeasure();
    void restartApp();
    void qmlSetDisplayBrightness();
    void waitForTitrationAtHome();

signals:
    void newPoint(QVariant point);
    void stop_titration(QVariant text);

private:
    enum ClockWait { WaitNone, WaitHomePoll, WaitPreStir };
    void scheduleHomePoll();
    void startPreStir(qint64 ms);
    void onWaitClock(qint64 ms);

    RunMeterInterface *m_mc = nullptr;
    bool isRinse = false;
    bool m_homePollPending = false;
    QTimer preStirTimer;
    SlaveClock *m_waitClock = nullptr;
    ClockWait m_clockWait = WaitNone;
    qint64 m_clockWaitUntil = 0;
};
