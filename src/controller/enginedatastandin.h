#pragma once

#include "interfaces/enginedatainterface.h"
#include "models/concentrationcalc.h"

#include <memory>
#include <utility>
#include <vector>

// A plain-field data layer for the engine: every getter answers the field of
// the same name, every setter stores. Tests set the fields directly.
class EngineDataStandIn : public EngineDataInterface
{
public:
    EngineDataStandIn();
    ~EngineDataStandIn() override;

    QString mode = QStringLiteral("Titration");
    bool blank = false;
    int noOfEndpoints = 1;
    float endpoint[3] = {0.f, 0.f, 0.f};
    int technique = 1;
    int processCtrl = 0;
    int mkaProcessCtrl = 0;
    float deltaE = 0.f, deltaVmin = 0.f, deltaVmax = 0.f, stabilityCriteria = 0.f;
    float tMin = 0.f, tMax = 0.f, threshold = 0.f;
    float preDose = 0.f;
    int preStir = 0;
    float maxVolmL = 20.f;
    int stirSpeedIndex = 3;
    int electrode = 0;
    float endPoint = 0.f;
    int resolution = 2;
    float buretteSizeMl = 20.f;
    bool displayPh = false;      // display unit "pH" (else "mV"); getScaledVal answers pH for a pH electrode
    float temperatureC = 25.f;

    float millivolts = 0.f;
    float rawTemperature = 25.f;
    std::array<double, 3> results{{0, 0, 0}};
    float ep1 = 0.f, ep2 = 0.f;
    int completedCount = 0;
    QString mspVersion;
    QString mfgSerialNum;
    bool dispenseInProgress = false;
    bool cancelled = false;
    bool stirrerOn = false;
    int stirSpeed = 3;
    int rinse = 3;
    int lastStartRinse = 3;
    QString console;
    bool consoleNew = false;
    int runRecordsBegun = 0;
    std::vector<std::pair<float, float>> runPoints; // (mL, display value)
    int brightness = 80;
    QString coreVersion;
    int valueChangedCount = 0;

    // Multiple known addition.
    float totalSolutionVolume = 50.f;
    float mkaConstant = 18.f;
    float mkaMeasurement = 3.f;
    float mkaPrecision = 2.f;
    float mkaStandard = 0.1f;
    float mkaBlank = 0.f;
    ConcentrationCalc::Sample mkaSample;   // result unit and sample amount
    float servingSize = 1.f;

    QString deviceMode() const override { return mode; }
    void setDeviceMode(const QString &m) override { mode = m; }
    bool blankTitrationMode() const override { return blank; }
    int getNoOfEndpoints() const override { return noOfEndpoints; }
    float getEndpointValue_First() const override { return endpoint[0]; }
    float getEndpointValue_Second() const override { return endpoint[1]; }
    float getEndpointValue_Third() const override { return endpoint[2]; }
    int getTitrationTechnique() const override { return technique; }
    int getTitrationProcessCtrl() const override { return processCtrl; }
    int getMKAProcessCtrl() const override { return mkaProcessCtrl; }
    float getDeltaE() const override { return deltaE; }
    float getDeltaVmin() const override { return deltaVmin; }
    float getDeltaVmax() const override { return deltaVmax; }
    float getStabilityCriteria() const override { return stabilityCriteria; }
    float gettMin() const override { return tMin; }
    float gettMax() const override { return tMax; }
    float getThreshold() const override { return threshold; }
    float getPreDoseTitrantVolume() const override { return preDose; }
    int getTitratrationOrStandardardizationPreStir() const override { return preStir; }
    float getTitratrationOrStandardardizationMaxVolmL() const override { return maxVolmL; }
    int getIndexOfStirSpeed() const override { return stirSpeedIndex; }
    int getElectrode() const override { return electrode; }
    float getEndPoint() const override { return endPoint; }
    int getResolution() const override { return resolution; }
    float buretteSize() const override { return buretteSizeMl; }
    QString displayUnits() const override { return displayPh ? QStringLiteral("pH") : QStringLiteral("mV"); }

    float getScaledVal(float mv) override;
    float millivoltsToPH(float mv) override;
    float phToMillivolts(float ph) override;

    void setMillivolts(float mv) override { millivolts = mv; }
    void setRawTemperatureCelcius(float c) override { rawTemperature = c; }
    void setMultipleEndPointVolumes(const std::array<double, 3> &v) override { results = v; }
    std::array<double, 3> getResultArray() const override { return results; }
    void setEpResult1(float v) override { ep1 = v; }
    void setEpResult2(float v) override { ep2 = v; }
    void titrationCompleted() override { ++completedCount; }
    void setMspVersion(const QString &v) override { mspVersion = v; }
    QString getMspVersion() const override { return mspVersion; }
    void setMfgSerialNum(const QString &s) override { mfgSerialNum = s; }
    QString getMfgSerialNum() const override { return mfgSerialNum; }

    bool getDispenseInProgress() const override { return dispenseInProgress; }
    void setDispenseInProgress(bool on) override { dispenseInProgress = on; }
    bool getTitrationCancelled() const override { return cancelled; }
    void setTitrationCancelled(bool on) override { cancelled = on; }
    bool qmlStirrerState() const override { return stirrerOn; }
    void setQmlStirrerState(bool on) override { stirrerOn = on; }
    int qmlStirSpeed() const override { return stirSpeed; }
    void setQmlStirSpeed(int s) override { stirSpeed = s; }
    int rinseCycles() const override { return rinse; }
    void setLastStartRinseCycles(int c) override { lastStartRinse = c; }
    void setRinseCycles(int c) override { rinse = c; }
    int lastStartRinseCycles() const override { return lastStartRinse; }

    void beginRunRecords() override;
    float recordRunPoint(float volumeMl) override;
    // The record's words, from the fields above.
    TitrationRecordParameters titrationRecordParameters() const override;
    int displayBrightness() const override { return brightness; }
    void setTitrationCoreVersion(const QString &v) override { coreVersion = v; }
    void notifyValueChanged() override { ++valueChangedCount; }

    float getTotalSolutionVolume() const override { return totalSolutionVolume; }
    float getMKAProcessCtrlConstant() const override { return mkaConstant; }
    float getMKAProcessCtrlMeasurement() const override { return mkaMeasurement; }
    float getMKAProcessCtrlPrecision() const override { return mkaPrecision; }
    float getMKAStandardConcentration() const override { return mkaStandard; }
    float getMKABlank() const override { return mkaBlank; }
    float getMKASampleBasis() const override { return ConcentrationCalc::mkaSampleBasis(mkaSample, servingSize); }
    void getSigMKAPointsToUI(QVariant volume, QVariant mV, QVariant calConc, QVariant precision, QVariant drift,
                             QVariant slope, QVariant e0) override
    {
        mkaPoints.push_back({volume.toDouble(), mV.toDouble(), calConc.toDouble(), precision.toDouble(),
                             drift.toDouble(), slope.toDouble(), e0.toDouble()});
    }
    void getMKATitrationCompleted(QVariant conc, QVariant slope, QVariant spike) override
    {
        mkaResult = {conc.toDouble(), slope.toDouble(), spike.toDouble()};
        ++mkaCompletedCount;
    }
    std::vector<std::array<double, 7>> mkaPoints;
    std::array<double, 3> mkaResult{{0, 0, 0}};
    int mkaCompletedCount = 0;
    float mkaConvertResult(float molPerL) override { return ConcentrationCalc::mkaConvertResult(molPerL, mkaSample); }

    void sendToConsole(const QString &text) override;
    bool getConsoleMes(QString *text) override;

    LogManager *titrationLogFile() override;
    LogManager *rawTitrationLogFile() override;

private:
    std::unique_ptr<LogManager> m_titrationLog;
    std::unique_ptr<LogManager> m_rawTitrationLog;
};
