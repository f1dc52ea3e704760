#pragma once

#include "meter/isecalrecord.h"
#include "meter/measurementbase.h"

// Ion concentration from the potential through the committed calibration,
// reduced to the significant-digits setting (the resolution index of this
// kind). The conversion is not temperature compensated.
class CMeasurementIse : public MeasurementBase
{
    Q_OBJECT
public:
    static constexpr float kMinConcentration = 0.0001f;
    static constexpr float kMaxConcentration = 60000000.0f;
    static constexpr float kMaxDisplayed = 19999.0f;

    explicit CMeasurementIse(QObject *parent = nullptr);

    void UpdateMeasurement() override;
    // On this kind the isopotential point is the sample scale.
    void SetInsoPotentialPoint(double scale) override;

    // Concentration of a potential, reduced to `digits` significant digits;
    // writes the range flag of the result.
    float MvToConcentration(float mv, int digits, std::uint8_t &rangeFlag) const;
    // v kept to the significant digits of the setting `digits` (12345 with 3
    // becomes 12350).
    float SignificantDigits(float v, int digits) const;
    // The power of ten of v: 3 for 1234, -2 for 0.05, 0 for v <= 0.
    int Decade(float v) const;

    double GetSampleScale() const { return m_sampleScale; }
    IseCalRecord &record() { return m_record; }
    const IseCalRecord &record() const { return m_record; }

private:
    int segmentForMv(float mv) const;

    double m_sampleScale = 1.0;
    IseCalRecord m_record;
};
