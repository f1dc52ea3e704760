#pragma once

#include "interfaces/runmeterinterface.h"
#include "interfaces/meterdatainterface.h"

#include <QObject>
#include <QPointer>
#include <QString>

class CMeasurementContext;
class SlaveLink;

// The meter as the screens see it ("mc"): turns the slave's sample stream
// into the live value and stable flag of direct measurement, and into the
// points of an electrode calibration. Owns the one measurement engine, which
// it lends to the data manager for the run's conversions.
class MeterController : public QObject, public RunMeterInterface
{
    Q_OBJECT
public:
    enum MeterState { Idle = 0, Running = 1, Stopping = 2 };
    enum MeterMode { ModeMeasurement = 0, ModeCalibration = 1 };
    static constexpr double kOutOfRangeValue = 9999.0;
    static constexpr float kIdealPhSlope = -59.16f;

    // The singleton; the first call (at start-up) names the data layer.
    static MeterController *mcPtr(MeterDataInterface *dataLayer = nullptr);

    // The singleton uses the application's data manager and slave link;
    // tests give their own.
    MeterController(SlaveLink *msp, MeterDataInterface *dataManager, QObject *parent = nullptr);
    ~MeterController() override;

    CMeasurementContext *context() const { return m_context; }
    int meterState() const { return m_meterState; }
    int meterMode() const { return m_meterMode; }
    bool isConnected() const { return m_connected; }
    QString meterProbeType() const { return m_meterProbeType; }
    QString meterIseProbeType() const { return m_meterIseProbeType; }
    float resolution() const { return m_resolution; }
    int significantDigits() const { return m_significantDigits; }
    int bufferGroupIndex() const { return m_bufferGroupIndex; }

    // Configures the engine for a probe from the calibration in the data
    // manager's hands (or the ideal electrode).
    void reInitializeCalibration(const QString &probeType, const QString &iseType);

    // The run controller's requests.
    void repointAtMethodProbe() override;
    void startMeasure() override { qmlStartMeasure(); }
    void stopMeasure() override { qmlStopMeasure(); }

public slots:
    void qmlStartMeasure();
    void qmlStopMeasure();
    void qmlStartCalibration();
    void qmlStopCalibration();
    void qmlStartCalPoint();
    void qmlOverrideCalibration();
    void accptCalibration(bool userEditCalValue);
    void calEdit(float calvalue);
    void calDone();
    int getCalDonePoint() const { return m_calDonePoint; }
    bool isSlopeErrorOnAccept() const { return m_slopeError; }
    bool isMeasureOutOfRange() const;
    void startMeterConnection();
    void stopMeterConnection();
    void execute(long timeStamp, double mvData);
    void reInitiateMeterModel();
    void measEngProbeUpdate(QString newProbeType, QString newIseType, float newResolution, int newSignificantDigits);

signals:
    void qmlStableCalibration();
    void qmlUnStableCalibration();
    void showQmlSlopeError();
    void stopQmlCalibration();
    void meterErrorOccured(QString mes);

private:
    void startAcquisition(const QString &probe, const QString &iseType, float resolution, int digits,
                          const QString &bufferGroup);
    void measurementSample(bool stable);
    void calibrationSample(double mvData, bool stable);
    void configurePh();
    void configureRedox();
    void configureIse(const QString &iseType);
    void storePhPoints();
    void slopeError();

    int m_meterState = Idle;
    bool m_connected = false;
    // The data layer, while it lives.
    MeterDataInterface *data() const { return m_dataGuard ? m_dataManager : nullptr; }
    MeterDataInterface *m_dataManager = nullptr;
    QPointer<QObject> m_dataGuard;
    CMeasurementContext *m_context = nullptr;
    int m_meterMode = ModeMeasurement;
    int m_calDonePoint = 0;
    bool m_slopeError = false;
    float m_resolution = 0.01f;
    int m_bufferGroupIndex = 0;
    int m_significantDigits = 4;
    QString m_meterProbeType;
    QString m_meterIseProbeType;
    SlaveLink *m_msp = nullptr;
    bool m_probeLogged = false;
};
