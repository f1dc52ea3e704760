#pragma once

#include "controller/simdatareader.h"

#include <QObject>
#include <QString>

#include <array>

class BuretteController;
class EngineDataInterface;
class LogManager;
class QTimer;
class TemporalDataStore;
class TitrationAlgorithmBase;
class VolumetricDataStore;
class SlaveLink;

// The engine of one titration or standardization run: builds the stores and
// the algorithm, pumps every slave sample through them, turns the doses the
// algorithm asks for into burette commands, writes the run's logs, hands the
// results to the data layer and tears everything down again. Free of QML;
// TitrationControllerBase adds what the screens call.
class TitrationController : public QObject
{
    Q_OBJECT
public:
    enum State {
        TITRATION_STATE_IDLE = 0,
        TITRATION_STATE_STARTUP = 1,
        TITRATION_STATE_RUNNING = 2,
        TITRATION_STATE_FINISHED = 3,
        TITRATION_STATE_REINITIALIZE = 4,
    };
    static constexpr int SimulationPeriodMs = 200;
    static constexpr int MaxLogFiles = 100;

    TitrationController(SlaveLink *msp, BuretteController *bc, QObject *parent = nullptr);
    ~TitrationController() override;

    int state() const { return m_state; }
    bool inSimulation() const { return m_inSimulation; }
    int sampleCount() const { return m_sampleCount; }
    qint64 sampleIntervalMs() const { return m_sampleIntervalMs; }
    TitrationAlgorithmBase *algorithm() const { return m_algorithm; }
    TemporalDataStore *temporalStore() const { return m_temporal; }
    VolumetricDataStore *volumetricStore() const { return m_volumetric; }
    SimDataReader &simDataReader() { return m_simData; }

    // What the last run did, kept after its objects are gone.
    struct RunRecord {
        QString reasonForEnd;
        std::array<double, 3> results{{0, 0, 0}};
        int doses = 0;
        int totalDispensedUl = 0;
        bool maxReached = false;
        qint64 durationMs = 0; // on the slave's clock, or the simulation's periods
    };
    const RunRecord &lastRun() const { return m_lastRun; }

    // The instrument's clock may run faster than real time (the virtual
    // instrument's --speed); the controller's own waits shrink by the factor.
    void setTimeScale(double factor);
    double timeScale() const { return m_timeScale; }

public slots:
    void execute(long timeStamp, double mvData);
    void simTimerUpdate();
    void volDataUpdated();
    void clearWaitDispense();
    void startTitration();
    void stopTitration();
    void reInitiateTitrationModel();

signals:
    void titrationCompletedSignal();
    void titrationNotification(bool maxReached);
    void signalNewGraphData(float disVol, float mV);

protected:
    // Looks once per run whether a simulation file is waiting.
    void latchSimulation();
    int scaledMs(qint64 ms) const;
    static EngineDataInterface *dm();

    SlaveLink *mspCont = nullptr;
    BuretteController *bc = nullptr;
    bool m_inSimulation = false;

private:
    void simulationStep();
    void finishRun();
    void writeSummary(const std::array<double, 3> &results);
    void writeParameterLog();
    void writeReasonForEnd();
    QString reasonText() const;
    void releaseRunObjects();

    TitrationAlgorithmBase *m_algorithm = nullptr;
    TemporalDataStore *m_temporal = nullptr;
    VolumetricDataStore *m_volumetric = nullptr;
    int m_sampleCount = 0;
    qint64 m_lastSampleMs = 0;
    qint64 m_sampleIntervalMs = 0;
    QTimer *m_simTimer = nullptr;
    int m_state = TITRATION_STATE_IDLE;
    bool m_waitDispense = false;
    LogManager *m_parameterLog = nullptr;
    SimDataReader m_simData;
    double m_timeScale = 1.0;
    long m_firstStamp = 0;
    long m_lastStamp = 0;
    RunRecord m_lastRun;
};
