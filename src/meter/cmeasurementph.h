#pragma once

#include "meter/measurementbase.h"
#include "meter/phcalrecord.h"

// pH from the electrode potential, temperature compensated, through the
// segments of the committed calibration (the ideal electrode without one).
class CMeasurementPH : public MeasurementBase
{
    Q_OBJECT
public:
    static constexpr float kMinPh = -2.0f;
    static constexpr float kMaxPh = 20.0f;
    static constexpr int kRecognised = 11;
    static constexpr int kNotRecognised = 7;

    explicit CMeasurementPH(QObject *parent = nullptr);

    void UpdateMeasurement() override;
    void SetInsoPotentialPoint(double iso) override;
    void SetBufferGroup(int group) override;
    int GetCalPointCount() const override;
    double Get_Mv_From_pH(double pH, double celsius) override;
    int GetBufferGroup() const override;
    double GetInsoPotentialPoint() const override;

    // pH of a potential at a temperature, rounded to `decimals`; writes the
    // range flag of the result.
    float MvToPh(float mv, float celsius, int decimals, std::uint8_t &rangeFlag) const;

    // The pH to offer for a calibration point at `mv`: the buffer of the group
    // whose window holds the potential, at its value for the temperature, or
    // else the electrode's own pH. Status becomes 11 on a recognised buffer,
    // whose nominal value goes to `nominal` and to the record's working
    // buffer slot of the next point; 7 when none is recognised (the slot
    // becomes 0, `nominal` stays).
    float RecogniseBuffer(PhCalRecord &record, int bufferGroup, int &status, std::uint8_t &rangeFlag, float &nominal,
                          int resolutionIndex, float mv, float celsius, float iso) const;
    // RecogniseBuffer on this kind's record and settings with the stable mV;
    // the range flag of the kind takes the result's.
    float RecogniseCalibrationValue(int &status, float &nominal);

    PhCalRecord &record() { return m_record; }
    const PhCalRecord &record() const { return m_record; }

private:
    int segmentForMv(float mv) const;
    float convert(float mv, float celsius, float iso, int decimals, std::uint8_t &rangeFlag) const;

    double m_isoPotentialPoint = 7.0;
    std::uint8_t m_bufferGroup = 0;   // 0 USA, 1 DIN
    PhCalRecord m_record;
};
