#pragma once

#include <QObject>
#include <QString>

class QTimer;
class SlaveLink;

// Turns requests for volume into motions of the slave's piston burette and
// watches them to their end: titration doses (split around a refill when the
// cylinder cannot hold them), the flush cycle of a rinse, manual fixed and
// continuous doses, and the homing at a run's end. Runs on its own 250 ms
// timer whether or not a titration is on.
class BuretteController : public QObject
{
    Q_OBJECT
public:
    enum State {
        BURETTE_READY = 0,
        BURETTE_IDLE = 1,
        BURETTE_FLUSHING = 2,
        BURETTE_RINSE_STOPPING = 3,
        BURETTE_MANUAL_CONTINUOUS = 4,
        BURETTE_MANUAL_DOSE = 5,
        BURETTE_MANUAL_HOMING = 6,
        BURETTE_DOSE = 7,
        BURETTE_END_HOMING = 8,
        BURETTE_REFILLING = 9,
        BURETTE_LAST_PART = 10,
    };

    static BuretteController *bcPtr();
    explicit BuretteController(SlaveLink *msp, QObject *parent = nullptr);

    void dispense_ul(int volume);
    void dispense_manual_ul(int volume);
    void startManualContinuousDispense();
    void stopManualDispense();
    void stopRinse();
    void flush();
    void resetBurette();
    int getTotalDispensed() const { return m_total; }

    int state() const { return m_state; }
    int position() const { return m_position; }
    // Tests run the slave's clock faster and shorten the tick to match.
    void setTickInterval(int ms);
    // One tick per sample of the slave instead of the timer: both run every
    // 250 ms on the instrument, and this keeps them in step when the
    // instrument runs faster than real time on a busy host.
    void tickWithSamples();

public slots:
    void execute();

signals:
    void signal_flushComplete();
    void qmlDispenseCompleted();
    void qmlDispenseWait();
    void qmlRinseCompleted();
    void backendDispenseCompleted();
    // The slave did not take the burette's size after the bounded tries.
    void buretteErrorOccured(const QString &mes);

private:
    int capacityUl() const;
    void stopHomeAndWatch(int nextState);
    void moveAndWatch(void (*command)(SlaveLink *));
    bool flushStep();
    void sizeHandshake();
    bool doseFinished();

    int m_total = 0;       // µL of the run's doses
    int m_position = 0;    // µL delivered since the last refill
    int m_remainder = 0;   // µL held back until after the refill
    QTimer *m_timer = nullptr;
    int m_state = BURETTE_IDLE;
    SlaveLink *m_msp = nullptr;
    int m_flushState = 0;
    bool m_flushDone = false;
    int m_tickCount = 0;

    // The burette-size handshake backs off: after each unanswered try it
    // waits twice as many ticks (1, 2, 4, ...); after `kSizeTries` it says
    // once that the slave does not answer, and then tries only every
    // `kQuietTicks` (a minute at 250 ms). A new configured size, or the
    // slave at last holding it, starts it afresh.
    static constexpr int kSizeTries = 6;
    static constexpr int kQuietTicks = 240;
    int m_sizeTries = 0;
    int m_sizeWait = 0;
    int m_sizeAsked = -1; // the size the tries were for

};
