#pragma once

#include "controller/titrationcontroller.h"

#include <QTimer>
#include <QVariant>

class RunMeterInterface;

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
    TitrationControllerBase(mspController *msp, BuretteController *bc, RunMeterInterface *meter,
                            QObject *parent = nullptr);

    bool rinsing() const { return isRinse; }
    bool preStirring() const { return preStirTimer.isActive(); }
    bool homePollPending() const { return m_homePollPending; }

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
    void scheduleHomePoll();

    RunMeterInterface *m_mc = nullptr;
    bool isRinse = false;
    bool m_homePollPending = false;
    QTimer preStirTimer;
};
