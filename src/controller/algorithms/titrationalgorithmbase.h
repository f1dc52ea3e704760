#pragma once

#include "controller/algorithms/processcontrolpresets.h"

#include <QObject>
#include <QString>

#include <array>

class EngineDataInterface;
class TemporalDataStore;
class VolumetricDataStore;

// Decides sample by sample whether to wait, how much titrant to ask for and
// when to stop. The controller calls run() once per slave sample and
// dispenses what it returns (µL). Every step is gated on a stable reading:
// a quiet signal after at least tMin, or at the latest the time-out tMax.
// What differs between techniques (dose law, end, results) is overridden.
class TitrationAlgorithmBase : public QObject
{
    Q_OBJECT
public:
    enum Phase {
        ALG_INITIAL_READING = 0,
        ALG_PREDOSE = 1,
        ALG_PREDOSE_SETTLE = 2,
        ALG_INITIAL_DOSES = 3,
        ALG_TITRATING = 4,
        ALG_FINAL_POINT = 5,
        ALG_DONE = 6,
    };

    // The stores are the run's, not owned. Time comes from Clock.
    TitrationAlgorithmBase(TemporalDataStore *temporal, VolumetricDataStore *volumetric, QObject *parent = nullptr);
    ~TitrationAlgorithmBase() override;

    QString reasonForEnd = QStringLiteral("Unknown");

    virtual unsigned int run();
    virtual bool isEnded();
    virtual bool isFinished();
    virtual std::array<double, 3> getResults();
    virtual void onStart();
    virtual void updateMaxSlope();
    virtual void addData();
    virtual bool isStable();
    virtual unsigned int initialDose();
    virtual unsigned int nextDose();
    virtual void setProcessControlParams();
    virtual void afterDispense();

    // Read-outs of the state, for the controller's logs and for tests.
    int phase() const { return m_phase; }
    unsigned int dispensed() const { return m_dispensed; }
    double maxSlope() const { return m_maxSlope; }
    float stabilitySlope() const { return m_stabilitySlope; }
    unsigned int tMin() const { return m_tMin; }
    unsigned int tMax() const { return m_tMax; }
    unsigned int firstDose() const { return m_firstDose; }
    int processControlIndex() const { return m_processControl; }
    int electrodeIndex() const { return m_electrode; }
    int endPointsWanted() const { return m_endPointsWanted; }
    const ProcessControlPresets &presets() const { return m_presets; }
    qint64 stabilityElapsed() const;

public slots:
    // The burette has delivered the dose: the settling starts now.
    void dispenseComplete();

protected:
    template <typename T>
    T preset(const ProcessControlPresets::Row<T> &row) const
    {
        return ProcessControlPresets::lookup(row, m_electrode, m_processControl);
    }
    void restartStabilityTimer();
    unsigned int preDoseUl() const;
    unsigned int maxVolumeUl() const;
    // Steps 2 to 8 of the dose law: the dose for a wanted potential step dE,
    // from the steepest slope seen, cut after a time-out, limited in growth,
    // held to ΔVmin..ΔVmax and to what is left of the maximum volume.
    unsigned int doseForStep(double dE);

    ProcessControlPresets m_presets;
    TemporalDataStore *m_temporal;
    VolumetricDataStore *m_volumetric;
    EngineDataInterface *m_dm;
    double m_maxSlope = 1.0;
    bool m_lastStepInTime = true;
    double m_doseGrowth = 4.0;
    float m_drift = 0.f;
    qint64 m_stabilityStart = 0;
    int m_processControl = 0;
    int m_electrode = 0;
    unsigned int m_dispensed = 0;
    float m_stabilitySlope = 0.f;
    unsigned int m_firstDose = 0;
    unsigned int m_tMin = 0;
    unsigned int m_tMax = 0;
    quint8 m_endPointsWanted = 0;
    quint8 m_endPointsFound = 0;
    bool m_finished = false;
    int m_phase = ALG_INITIAL_READING;

    // The dose law's own state and limits (set by the techniques that use it).
    unsigned int m_deltaVmax = 0;
    unsigned int m_deltaVmin = 0;
    unsigned int m_lastDose = 1;
    bool m_firstDoseFlag = true;
};
