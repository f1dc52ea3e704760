#pragma once

#include "meter/meterrounding.h"

#include <QObject>
#include <cstdint>

class CStability;
struct IseCalRecord;
struct OrpCalRecord;
struct PhCalRecord;

// One kind of measurement: turns the raw mV and the temperature into the
// value to display, through the kind's calibration record and its stability
// detector. All storage is fixed inside the object; a reading allocates
// nothing.
class MeasurementBase : public QObject
{
    Q_OBJECT
public:
    static constexpr double kOutOfRange = 9999.0;
    enum Kind { KindPh = 0, KindIse = 1, KindRedox = 2 };
    enum Range : std::uint8_t { InRange = 0, OverRange = 1, UnderRange = 2 };

    ~MeasurementBase() override;

    virtual void UpdateMeasurement() = 0;
    virtual void ClearMeasurement();
    virtual void SetInsoPotentialPoint(double iso);
    virtual void SetBufferGroup(int group);
    virtual void SetRelativeOffset(float offset);
    virtual int GetCalPointCount() const;
    virtual double Get_Mv_From_pH(double pH, double celsius);
    virtual float GetRelativeOffset() const;
    virtual double GetMeasuredValue();
    virtual int GetBufferGroup() const;
    virtual double GetInsoPotentialPoint() const;

    // The stable mV; a small negative value reads as 0.000001 so the screen
    // never shows "-0.0".
    double GetStableMv();
    void SetDisplayResolutionInFloat(float resolution);
    // Accepts 0 to 4; anything else is ignored.
    void SetResolutionIndex(int index);
    int GetResolutionIndex() const { return m_resolutionIndex; }

    void SetRawMv(double mv) { m_rawMv = mv; }
    void SetTemperatureDegreeC(double celsius) { m_temperature = celsius; }
    double GetRawMv() const { return m_rawMv; }
    double GetTemperature() const { return m_temperature; }
    int GetKindTag() const { return m_kindTag; }

    bool IsStable() const { return m_stable; }
    bool IsOverRange() const { return m_rangeFlag == OverRange; }
    bool IsUnderRange() const { return m_rangeFlag == UnderRange; }
    bool IsOutOfRange() const { return m_rangeFlag != InRange; }
    std::uint8_t GetRangeFlag() const { return m_rangeFlag; }
    // The detector's reset; the verdict goes false.
    void ResetStability();
    CStability *stability() const { return m_stability; }

    float Round(float x, int decimals) const;

    PhCalRecord *phCal() const { return m_phCal; }
    OrpCalRecord *orpCal() const { return m_orpCal; }
    IseCalRecord *iseCal() const { return m_iseCal; }

protected:
    // Takes ownership of the detector.
    MeasurementBase(int kindTag, CStability *stability, QObject *parent);

    // Runs the detector on the converted value, then applies the sentinel
    // of an out-of-range reading.
    void finishUpdate(double value);
    // Replaces a negative value of magnitude at most 0.04999 by 0.000001.
    static double noNegativeZero(double v);

    double m_rawMv = 0.0;
    double m_temperature = 25.0;
    int m_resolutionIndex = 3;
    int m_kindTag;
    double m_measuredValue = 0.0;
    double m_stableMv = 0.0;
    bool m_stable = false;
    CStability *m_stability;
    std::uint8_t m_rangeFlag = InRange;
    int m_calPointCount = 0;
    IseCalRecord *m_iseCal = nullptr;
    OrpCalRecord *m_orpCal = nullptr;
    PhCalRecord *m_phCal = nullptr;
    float m_roundTable[8];
};
