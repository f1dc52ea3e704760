#pragma once

#include <QString>
#include <QVariant>

#include <array>

class LogManager;

// The titration record's own words for the parameter log and the summary,
// whatever the mode of the run.
struct TitrationRecordParameters
{
    QString technique;          // "Equivalence Pt." ...
    QString displayUnits;       // "pH" or "mV"
    QString processControl;     // "Routine" ...
    float preDoseMl = 0.f;
    float maxVolumeMl = 0.f;
    int noOfEndPoints = 1;
};

// What the titration engine (run controller, burette, algorithms, slave
// controller) asks of the data layer. DataManagerBase serves it on the
// instrument; EngineDataStandIn serves it in tests that need no database.
// The engine reaches the one in use through EngineData::get().
//
// Getters answer from the titration setup in "Titration" mode and from the
// titrant setup in "Standardization" mode; in any other mode they answer -999.
class EngineDataInterface
{
public:
    virtual ~EngineDataInterface() = default;

    // Mode of the run.
    virtual QString deviceMode() const = 0;
    virtual void setDeviceMode(const QString &mode) = 0;
    virtual bool blankTitrationMode() const = 0;

    // Method parameters for the engine.
    virtual int getNoOfEndpoints() const = 0;
    virtual float getEndpointValue_First() const = 0;
    virtual float getEndpointValue_Second() const = 0;
    virtual float getEndpointValue_Third() const = 0;
    virtual int getTitrationTechnique() const = 0;   // 0 end point, 1 equivalence, 2 basic pH, 3 MKA
    virtual int getTitrationProcessCtrl() const = 0; // 0 Routine, 1 Quick, 2 Careful, 3 User Defined
    virtual int getMKAProcessCtrl() const = 0;
    virtual float getDeltaE() const = 0;
    virtual float getDeltaVmin() const = 0;
    virtual float getDeltaVmax() const = 0;
    virtual float getStabilityCriteria() const = 0;
    virtual float gettMin() const = 0;
    virtual float gettMax() const = 0;
    virtual float getThreshold() const = 0;
    virtual float getPreDoseTitrantVolume() const = 0;
    virtual int getTitratrationOrStandardardizationPreStir() const = 0;
    virtual float getTitratrationOrStandardardizationMaxVolmL() const = 0;
    virtual int getIndexOfStirSpeed() const = 0;
    virtual int getElectrode() const = 0;            // ElectrodeIndex: pH 0, redox 1, ion 2, ion2 3
    virtual float getEndPoint() const = 0;
    virtual int getResolution() const = 0;
    virtual float buretteSize() const = 0;           // mL
    virtual QString displayUnits() const = 0;        // of the titration setup: "pH" or "mV"

    // Conversions of the run's readings.
    virtual float getScaledVal(float millivolts) = 0;
    virtual float millivoltsToPH(float millivolts) = 0;
    virtual float phToMillivolts(float ph) = 0;

    // Results in, from the engine and meter.
    virtual void setMillivolts(float mv) = 0;
    virtual void setRawTemperatureCelcius(float celsius) = 0;
    virtual void setMultipleEndPointVolumes(const std::array<double, 3> &volumesUl) = 0;
    virtual std::array<double, 3> getResultArray() const = 0;
    virtual void setEpResult1(float value) = 0;
    virtual void setEpResult2(float value) = 0;
    virtual void titrationCompleted() = 0;
    virtual void setMspVersion(const QString &version) = 0;
    virtual QString getMspVersion() const = 0;
    virtual void setMfgSerialNum(const QString &serial) = 0;
    virtual QString getMfgSerialNum() const = 0;

    // Live state shared with the screens.
    virtual bool getDispenseInProgress() const = 0;
    virtual void setDispenseInProgress(bool on) = 0;
    virtual bool getTitrationCancelled() const = 0;
    virtual void setTitrationCancelled(bool on) = 0;
    virtual bool qmlStirrerState() const = 0;
    virtual void setQmlStirrerState(bool on) = 0;
    virtual int qmlStirSpeed() const = 0;
    virtual void setQmlStirSpeed(int speed) = 0;
    virtual int rinseCycles() const = 0;
    virtual void setLastStartRinseCycles(int cycles) = 0;

    // The run's records: before a run the method's changed flags are cleared
    // and a new cycle is appended to the run model; each settled point of
    // the curve is stored on that cycle. recordRunPoint answers the point's
    // value in display units (pH or mV) for the chart.
    virtual void beginRunRecords() = 0;
    virtual float recordRunPoint(float volumeMl) = 0;
    virtual TitrationRecordParameters titrationRecordParameters() const = 0;

    // Rinse count shown on the screen, and the count at the rinse's start.
    virtual void setRinseCycles(int cycles) = 0;
    virtual int lastStartRinseCycles() const = 0;

    // Instrument settings and identity.
    virtual int displayBrightness() const = 0;
    virtual void setTitrationCoreVersion(const QString &version) = 0;
    // The screens re-read the live state (the data layer's valueChanged()).
    virtual void notifyValueChanged() = 0;

    // The console text pipe.
    virtual void sendToConsole(const QString &text) = 0;
    virtual bool getConsoleMes(QString *text) = 0;

    // Multiple known addition: the sample and the standard of the method.
    virtual float getTotalSolutionVolume() const = 0;        // V0, mL
    virtual float getMKAProcessCtrlConstant() const = 0;     // ΔE of "User Defined", mV
    virtual float getMKAProcessCtrlMeasurement() const = 0;  // dE/dt of "User Defined", mV/min
    virtual float getMKAProcessCtrlPrecision() const = 0;    // required precision, percent
    virtual float getMKAStandardConcentration() const = 0;   // the standard, mol/L
    virtual float getMKABlank() const = 0;                   // mol/L; 0 unless entered by hand
    virtual float getMKASampleBasis() const = 0;
    // A concentration in mol/L in the method's result unit.
    virtual float mkaConvertResult(float molPerL) = 0;
    // Each addition of a known-addition run, and its end.
    virtual void getSigMKAPointsToUI(QVariant volume, QVariant mV, QVariant calConc, QVariant precision,
                                     QVariant drift, QVariant slope, QVariant e0) = 0;
    virtual void getMKATitrationCompleted(QVariant conc, QVariant slope, QVariant spike) = 0;

    // The engine's cyclic logs ("titration" and "rawTitration").
    virtual LogManager *titrationLogFile() = 0;
    virtual LogManager *rawTitrationLogFile() = 0;
};

class EngineData
{
public:
    // The data layer in use; a process-wide stand-in until one is installed.
    static EngineDataInterface *get();
    static void set(EngineDataInterface *data); // not owned; nullptr restores the stand-in
};
