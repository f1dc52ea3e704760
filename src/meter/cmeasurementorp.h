#pragma once

#include "meter/measurementbase.h"
#include "meter/orpcalrecord.h"

// Relative redox potential: the raw mV shifted by the calibrated offset.
class CMeasurementOrp : public MeasurementBase
{
    Q_OBJECT
public:
    static constexpr float kLimitMv = 2000.0f;

    explicit CMeasurementOrp(QObject *parent = nullptr);

    void UpdateMeasurement() override;
    void SetRelativeOffset(float offset) override;
    float GetRelativeOffset() const override;
    double GetMeasuredValue() override;

    OrpCalRecord &record() { return m_record; }

private:
    OrpCalRecord m_record;
};
