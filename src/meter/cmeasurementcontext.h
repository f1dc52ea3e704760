#pragma once

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
