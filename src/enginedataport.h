#pragma once

#include "interfaces/enginedatainterface.h"
#include "consolepipe.h"

#include <QObject>
#include <QString>

#include <array>
#include <memory>

class CMeasurementContext;
class ElectrodeSetupModel;
class MethodModel;
class ProductIdentity;
class RunCycleLists;
class SetupModel;
class TitrantSetupModel;
class TitrationModel;
class TitrationSetupModel;

// The engine's data port on the instrument: answers the run controller,
// burette, algorithms and slave controller from the current method (its
// titration part in "Titration" mode, its titrant part in "Standardization"
// mode), takes the readings and results of a run, and holds the live state
// the screens show while it runs (stirrer, rinse count, cancel flag).
// Installed as the engine's data layer for as long as it lives.
class EngineDataPort : public QObject, public EngineDataInterface
{
    Q_OBJECT

public:
    static constexpr int kNotInThisMode = -999;
    static const QString modeTitration;
    static const QString modeStandardization;

    EngineDataPort(ProductIdentity *identity, RunCycleLists *runCycles, QObject *parent = nullptr);
    ~EngineDataPort() override;

    // The current method (reloaded in place when another is chosen) and the
    // instrument settings; either may be absent before start-up is done.
    void setMethod(MethodModel *method) { m_method = method; }
    void setSetup(SetupModel *setup) { m_setup = setup; }

    // The meter lends its measurement engine for the conversions; until one
    // is set (or after nullptr), a private one with an uncalibrated electrode.
    void setMeasurementContext(CMeasurementContext *context);
    CMeasurementContext *measurementContext() const { return m_context; }

    // ---- Mode ----
    QString deviceMode() const override { return m_deviceMode; }
    void setDeviceMode(const QString &mode) override;
    bool blankTitrationMode() const override { return m_blankTitrationMode; }
    void setBlankTitrationMode(bool on);

    // ---- The engine's method parameters ----
    int getNoOfEndpoints() const override;
    float getEndpointValue_First() const override;
    float getEndpointValue_Second() const override;
    float getEndpointValue_Third() const override;
    int getTitrationTechnique() const override;
    int getTitrationProcessCtrl() const override;
    int getMKAProcessCtrl() const override;
    float getDeltaE() const override;
    float getDeltaVmin() const override;
    float getDeltaVmax() const override;
    float getStabilityCriteria() const override;
    float gettMin() const override;
    float gettMax() const override;
    float getThreshold() const override;
    float getPreDoseTitrantVolume() const override;
    int getTitratrationOrStandardardizationPreStir() const override;
    float getTitratrationOrStandardardizationMaxVolmL() const override;
    int getIndexOfStirSpeed() const override;
    int getElectrode() const override;
    float getEndPoint() const override;
    int getResolution() const override;
    float buretteSize() const override;
    QString displayUnits() const override;

    // "Very Slow" 1 ... "Very Fast" 5; anything else 0, no stirring.
    static int stirSpeedIndex(const QString &speed);
    // Decimals of a display resolution: 0 for a whole number, 1 to 3 for
    // 0.1 to 0.001, 2 for anything finer.
    static int resolutionDecimals(float resolution);

    // ---- Conversions ----
    float getScaledVal(float millivolts) override;
    float millivoltsToPH(float millivolts) override;
    float phToMillivolts(float ph) override;

    // ---- Readings and results in ----
    void setMillivolts(float mv) override;
    float millivolts() const { return m_millivolts; }
    // Above 125 °C there is no probe: the manual temperature serves.
    void setRawTemperatureCelcius(float celsius) override;
    float temperatureRawCelcius() const { return m_temperatureRawCelcius; }
    float temperature() const { return m_temperatureCelcius; }
    bool isTemperatureProbePresent() const { return m_temperatureProbePresent; }
    float probeTemp() const { return m_probeTemp; }
    void setProbeTemp(float celsius);
    void setMultipleEndPointVolumes(const std::array<double, 3> &volumesUl) override { m_resultArray = volumesUl; }
    std::array<double, 3> getResultArray() const override { return m_resultArray; }
    void setEpResult1(float value) override { m_epResult1 = value; }
    void setEpResult2(float value) override;
    float epResult1() const { return m_epResult1; }
    float epResult2() const { return m_epResult2; }
    void titrationCompleted() override;
    void setMspVersion(const QString &version) override;
    QString getMspVersion() const override;
    void setMfgSerialNum(const QString &serial) override;
    QString getMfgSerialNum() const override;

    // ---- Live state ----
    bool getDispenseInProgress() const override { return m_dispenseInProgress; }
    void setDispenseInProgress(bool on) override { m_dispenseInProgress = on; }
    bool getTitrationCancelled() const override { return m_titrationCancelled; }
    void setTitrationCancelled(bool on) override { m_titrationCancelled = on; }
    bool qmlStirrerState() const override { return m_qmlStirrerState; }
    void setQmlStirrerState(bool on) override;
    int qmlStirSpeed() const override { return m_qmlStirSpeed; }
    void setQmlStirSpeed(int speed) override;
    int rinseCycles() const override { return m_rinseCycles; }
    void setRinseCycles(int cycles) override;
    int lastStartRinseCycles() const override { return m_lastStartRinseCycles; }
    void setLastStartRinseCycles(int cycles) override { m_lastStartRinseCycles = cycles; }

    // ---- The run's records ----
    void beginRunRecords() override;
    float recordRunPoint(float volumeMl) override;
    TitrationRecordParameters titrationRecordParameters() const override;

    int displayBrightness() const override;
    void setTitrationCoreVersion(const QString &version) override;
    void notifyValueChanged() override { emit changed(); }

    // ---- Console pipe ----
    void sendToConsole(const QString &text) override { m_console.send(text); }
    bool getConsoleMes(QString *text) override { return m_console.take(text); }

    // ---- Multiple known addition ----
    float getTotalSolutionVolume() const override;
    float getMKAProcessCtrlConstant() const override;
    float getMKAProcessCtrlMeasurement() const override;
    float getMKAProcessCtrlPrecision() const override;
    float getMKAStandardConcentration() const override;
    float getMKABlank() const override;
    float getMKASampleBasis() const override;
    float mkaConvertResult(float molPerL) override;
    void getSigMKAPointsToUI(QVariant volume, QVariant mV, QVariant calConc, QVariant precision, QVariant drift,
                             QVariant slope, QVariant e0) override;
    void getMKATitrationCompleted(QVariant conc, QVariant slope, QVariant spike) override;

    // ---- The engine's cyclic logs ----
    LogManager *titrationLogFile() override;
    LogManager *rawTitrationLogFile() override;

signals:
    // Something the screens show changed (mode, stirrer, results).
    void changed();
    void rinseCyclesChanged();
    void probeTempChanged();
    // A reading arrived (setMillivolts), and a probe temperature.
    void freshDataAvailable();
    void temperatureDataAvailable(float celsius);
    void sigMKAPointsToUI(QString volume, QString mV, QString calConc, QString precision, QString drift, QString slope,
                          QString E0);
    void mkaTitrationCompleted(QString avgConc, QString slope, QString spike);

private:
    ElectrodeSetupModel *electrode() const;
    TitrantSetupModel *titrant() const;
    TitrationSetupModel *titration() const;
    TitrationModel *run() const;
    bool inTitration() const { return m_deviceMode == modeTitration; }
    bool inStandardization() const { return m_deviceMode == modeStandardization; }
    bool backTitration() const;
    // A blank of a direct titration runs "Careful" and without a pre-dose.
    bool directBlank() const;
    // The parameter of the mode in use: the titration part's value in
    // "Titration" mode, the titrant part's in "Standardization" mode;
    // -999 in any other mode and before a method is loaded.
    float byMode(float (*fromTitration)(const TitrationSetupModel &),
                 float (*fromTitrant)(const TitrantSetupModel &)) const;

    ProductIdentity *m_identity;
    RunCycleLists *m_runCycles;
    MethodModel *m_method = nullptr;
    SetupModel *m_setup = nullptr;
    std::unique_ptr<CMeasurementContext> m_ownContext;
    CMeasurementContext *m_context = nullptr;
    std::unique_ptr<LogManager> m_titrationLogFile;
    std::unique_ptr<LogManager> m_rawTitrationLogFile;
    ConsolePipe m_console;

    QString m_deviceMode;
    bool m_blankTitrationMode = false;
    std::array<double, 3> m_resultArray{{0.0, 0.0, 0.0}};
    float m_epResult1 = 0.0f;
    float m_epResult2 = 0.0f;
    bool m_titrationCancelled = false;
    bool m_dispenseInProgress = false;
    float m_millivolts = 0.0f;
    float m_temperatureCelcius = 25.0f;
    float m_temperatureRawCelcius = 25.0f;
    bool m_temperatureProbePresent = false;
    float m_probeTemp = 25.0f;
    int m_rinseCycles = 3;
    int m_lastStartRinseCycles = 3;
    int m_qmlStirSpeed = 3;
    bool m_qmlStirrerState = false;
};
