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

    PhCalRecord &record() { return m_record; }
    const PhCalRecord &record() const { return m_record; }

private:
    int segmentForMv(float mv) const;

    double m_isoPotentialPoint = 7.0;
    std::uint8_t m_bufferGroup = 0;   // 0 USA, 1 DIN
    PhCalRecord m_record;
};
