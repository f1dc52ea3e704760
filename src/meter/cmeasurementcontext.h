#pragma once

#include "meter/calibrationresult.h"

#include <QObject>
#include <QString>

class MeasurementBase;
class CMeasurementPH;
class CMeasurementOrp;
class CMeasurementIse;

// The measurement engine's facade: owns one object of each kind and forwards
// every request to the active one. A reading is always SetRawMv,
// SetTemperatuteDegreC, UpdateMeasurement, then the getters; none of these
// allocates.
class CMeasurementContext : public QObject
{
    Q_OBJECT
public:
    enum Kind { KindPh = 0, KindIse = 1, KindRedox = 2 };
    static constexpr double kNoKind = -100000.0;
    static constexpr int kMaxPoints = 5;

    explicit CMeasurementContext(QObject *parent = nullptr);
    ~CMeasurementContext() override;

    // A probe string as the meter knows it: every string that starts with
    // "ISE" ("ISE-Titration", "ISE-MKA") is "ISE"; the others stay as they are.
    static QString FoldProbe(const QString &probe);
    // The kind of a probe string ("pH", "Redox", "ISE..."), -1 for any other.
    static int KindOfProbe(const QString &probe);

    // 0 pH, 1 ISE, 2 Redox; any other value selects all kinds for the
    // setters and none for the getters.
    void SetActiveKind(int kind);
    int GetActiveKind() const { return m_activeKind; }

    void SetRawMv(double mv);
    void SetTemperatuteDegreC(double celsius);
    void SetInsoPotentialPoint(double iso);
    void SetDisplayResolutionInFloat(float resolution);
    void ConfigurePh(int bufferGroup, float resolution, double iso);
    void ConfigureIse(int digits, double sampleScale);
    void ConfigureOrp(float resolution, double iso);
    void SetOrpOffset(double offset);
    void SetIonName(const QString &ion);

    // Stored calibrations. pH slopes and the average slope in mV per pH at
    // 25 degrees; ISE slopes in mV per decade.
    void LoadPhCalibration(const float *mv, const float *slope, const float *offset, const float *temperature,
                           const float *value, const float *buffer, int count, float averageSlope);
    void LoadIseCalibration(const float *mv, const float *concentration, const float *slope, const float *offset,
                            const float *temperature, const QString &ion, int count, float averageSlope);

    void UpdateMeasurement();
    double GetMeasuredValue();
    double GetStableMv();
    bool IsStable() const;
    bool IsOutOfRange() const;
    int GetRangeFlag() const;
    void ResetStability();
    double Get_Mv_From_pH(float pH, float celsius);
    double GetAverageSlope() const;
    double GetOrpOffset() const;

    // ---- Electrode calibration of the active kind ----
    // A calibration runs: StartCalibration; for each point, once the reading
    // is stable, GetCalibrationValue (or OverrideCalibrationPoint at once),
    // optionally EditCalibrationValue, then AcceptCalibrationPoint and
    // StartNextPoint; at the end FinishCalibration. Until a successful
    // finish the pH conversions run on the ideal electrode.
    enum Status {
        StatusOk = 0,
        StatusBusy = 1,              // accept in progress, or cancelled
        StatusPhSlopeOutOfRange = 2,
        StatusIseWrongSlope = 6,
        StatusNoBuffer = 7,          // value taken from the electrode
        StatusPhPointTooClose = 8,
        StatusRedoxOffsetOutOfRange = 9,
        StatusIsePointRefused = 10,  // too close, or the calibration cannot be computed
        StatusBufferRecognised = 11
    };
    static constexpr float kRedoxMaxOffset = 2000.1f;
    static constexpr float kRedoxLimit = 2000.0f;

    void StartCalibration();
    void CancelCalibration();
    // The value to offer for the current reading: for pH the recognised
    // buffer at the temperature (or the electrode's own pH), for ISE the
    // measured concentration, for Redox the measured potential or the value
    // the user typed. Remembered as the last value with the stable mV.
    double GetCalibrationValue(bool stable);
    // Takes the current reading without waiting for stability; refused
    // (accepted false, nothing changes) while the reading is out of range.
    void OverrideCalibrationPoint(float &value, float &mv, bool &accepted);
    void EditCalibrationValue(double v);
    void StartNextPoint();
    // Adds the last value as a point; GetStatus() then tells whether it was
    // refused (8 pH, 10 ISE, 9 Redox).
    void AcceptCalibrationPoint(bool edited);
    // Computes slopes and offsets and commits; GetStatus() gives 0, or 2 for
    // a pH average slope outside 80 to 120 percent, or 6 or 10 for ISE.
    void FinishCalibration();
    // Points collected so far: the pH working count; ISE and Redox give 0.
    int GetCalPointCount() const;
    float GetLastValue() const { return m_lastValue; }
    float GetLastMv() const { return m_lastMv; }
    float GetRecognisedBuffer() const { return m_recognisedBuffer; }
    float GetEditedValue() const { return m_editedValue; }
    bool IsOverridden() const { return m_overridden; }

    // The finished calibration of the active kind, row by row as it is
    // stored; and a stored calibration loaded back into the given kind.
    CalibrationResult GetCalibrationResult() const;
    void LoadCalibration(const CalibrationResult &stored, const QString &ion = QString());

    // Results of the calibration steps and the finished points.
    int GetStatus() const { return m_status; }
    int GetPointCount() const { return m_pointCount; }
    float GetPointMv(int i) const { return pointAt(m_pointMv, i); }
    float GetPointValue(int i) const { return pointAt(m_pointValue, i); }
    float GetPointBuffer(int i) const { return pointAt(m_pointBuffer, i); }
    float GetPointTemperature(int i) const { return pointAt(m_pointTemperature, i); }
    float GetPointSlope(int i) const { return pointAt(m_pointSlope, i); }
    float GetPointOffset(int i) const { return pointAt(m_pointOffset, i); }

    CMeasurementPH *phKind() const;
    CMeasurementOrp *orpKind() const;
    CMeasurementIse *iseKind() const;
    // The active kind, or null when none is.
    MeasurementBase *activeKind() const;

private:
    void resetCalibration();
    void acceptPhPoint();
    void acceptIsePoint();
    void acceptRedoxPoint(bool edited);
    void finishPh();
    void finishIse();

    static float pointAt(const float *points, int i) { return (i >= 0 && i < kMaxPoints) ? points[i] : 0.0f; }

    MeasurementBase *m_kindPh;
    MeasurementBase *m_kindOrp;
    MeasurementBase *m_kindIse;
    int m_activeKind = KindPh;
    bool m_overridden = false;
    int m_status = 0;
    float m_editedValue = 0.0f;
    float m_recognisedBuffer = 0.0f;
    float m_lastMv = 0.0f;
    float m_lastValue = 0.0f;
    int m_pointCount = 0;
    float m_pointMv[kMaxPoints] = {};
    float m_pointValue[kMaxPoints] = {};
    float m_pointBuffer[kMaxPoints] = {};
    float m_pointTemperature[kMaxPoints] = {};
    float m_pointSlope[kMaxPoints] = {};
    float m_pointOffset[kMaxPoints] = {};
};
