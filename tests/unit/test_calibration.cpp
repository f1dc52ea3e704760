#include "meter/cmeasurementcontext.h"
#include "meter/cmeasurementise.h"
#include "meter/cmeasurementorp.h"
#include "meter/cmeasurementph.h"

#include <gtest/gtest.h>

#include <cmath>
#include <ostream>
#include <string>

namespace {

class Calibration : public ::testing::Test
{
protected:
    CMeasurementContext context;

    void sample(double mv, double celsius)
    {
        context.SetRawMv(mv);
        context.SetTemperatuteDegreC(celsius);
        context.UpdateMeasurement();
    }
    double read(double mv, double celsius = 25.0)
    {
        sample(mv, celsius);
        return context.GetMeasuredValue();
    }
    // Feeds a steady potential until the reading is stable (a bounded number
    // of samples, as the meter's one-second stream would).
    bool settle(double mv, double celsius)
    {
        for (int i = 0; i < 200; ++i) {
            sample(mv, celsius);
            if (context.IsStable())
                return true;
        }
        return false;
    }
    // One point as the meter screens take it: wait for stability, offer the
    // recognised value, optionally replace it, accept, go on.
    double takePoint(double mv, double celsius, double edited = NAN)
    {
        EXPECT_TRUE(settle(mv, celsius)) << mv << " mV never settled";
        const double offered = context.GetCalibrationValue(true);
        if (!std::isnan(edited))
            context.EditCalibrationValue(edited);
        context.AcceptCalibrationPoint(!std::isnan(edited));
        context.StartNextPoint();
        return offered;
    }
    void startPh(float resolution = 0.01f, int group = 0)
    {
        context.SetActiveKind(CMeasurementContext::KindPh);
        context.ConfigurePh(group, resolution, 7.0);
        context.StartCalibration();
    }
};

// ---- pH: an electrode of 97 % slope and +12 mV at pH 7 ----

// Potential of the electrode in a solution of pH p at a temperature:
// 12 + 0.97 * -59.16 * (T + 273.15) / 298.15 * (p - 7).
double electrodeMv(double ph, double celsius)
{
    return 12.0 + 0.97 * -59.16 * (celsius + 273.15) / 298.15 * (ph - 7.0);
}

struct ThreeBuffers
{
    double celsius;
    double truePh[3];       // published pH of 4.01, 7.00 and 10.01 at the temperature
    float offered[3];       // the table's value at two decimals
    // Worked by hand: segment slope = (mV[i+1] - mV[i]) / (value[i+1] -
    // value[i]) referred to 25 degrees, percent = slope / -0.5916, offset =
    // the segment's potential at value 7.
    double slopePercent[2];
    double offsetMv[2];
    double averagePercent;
};

// 25 degrees: 183.697, 12.000, -160.844 mV against 4.01, 7.00, 10.01:
// slopes -171.697/2.99 and -172.844/3.01 mV/pH.
// 10 degrees: 175.603, 8.730, -161.250 mV against 4.00, 7.06, 10.18.
// 40 degrees: 190.707, 13.808, -162.127 mV against 4.03, 6.97, 9.89.
const ThreeBuffers kThreeBuffers[] = {
    {25.0, {4.008, 7.000, 10.012}, {4.01f, 7.00f, 10.01f}, {97.065, 97.064}, {12.000, 12.000}, 97.065},
    {10.0, {3.998, 7.060, 10.179}, {4.00f, 7.06f, 10.18f}, {97.063, 96.969}, {12.002, 11.999}, 97.016},
    {40.0, {4.035, 6.970, 9.889}, {4.03f, 6.97f, 9.89f}, {96.835, 96.967}, {12.003, 12.001}, 96.901},
};

void PrintTo(const ThreeBuffers &b, std::ostream *os) { *os << b.celsius << " degrees"; }

class ThreePointPh : public Calibration, public ::testing::WithParamInterface<ThreeBuffers>
{
};

TEST_P(ThreePointPh, ReportsTheElectrodeAndThenReadsBuffersRight)
{
    const ThreeBuffers &b = GetParam();
    const float nominal[3] = {4.01f, 7.00f, 10.01f};
    startPh();
    // 7.00 first, then 10.01, then 4.01: the points end up in ascending order
    for (int k : {1, 2, 0}) {
        const double offered = takePoint(electrodeMv(b.truePh[k], b.celsius), b.celsius);
        EXPECT_FLOAT_EQ(static_cast<float>(offered), b.offered[k]) << "buffer " << nominal[k];
        EXPECT_FLOAT_EQ(context.GetRecognisedBuffer(), nominal[k]);
        EXPECT_EQ(context.GetStatus(), CMeasurementContext::StatusBusy);
    }
    ASSERT_EQ(context.GetCalPointCount(), 3);
    // still the ideal electrode until the finish
    EXPECT_NEAR(read(-59.16), 8.0, 1e-6);

    context.FinishCalibration();
    ASSERT_EQ(context.GetStatus(), CMeasurementContext::StatusOk);
    const CalibrationResult result = context.GetCalibrationResult();
    ASSERT_EQ(result.count, 3);
    for (int i = 0; i < 3; ++i) {
        EXPECT_FLOAT_EQ(result.points[i].buffer, nominal[i]);
        EXPECT_FLOAT_EQ(result.points[i].value, b.offered[i]);
        EXPECT_FLOAT_EQ(result.points[i].temperature, static_cast<float>(b.celsius));
        EXPECT_NEAR(result.points[i].mv, electrodeMv(b.truePh[i], b.celsius), 1e-3);
    }
    for (int i = 0; i < 2; ++i) {
        EXPECT_NEAR(result.points[i].slope, b.slopePercent[i], 0.005) << "segment " << i;
        EXPECT_NEAR(result.points[i].offset, b.offsetMv[i], 0.005) << "segment " << i;
    }
    EXPECT_FLOAT_EQ(result.points[2].slope, result.points[1].slope) << "the last point shows its neighbour's";
    EXPECT_NEAR(result.averageSlope, b.averagePercent, 0.005);

    // What the buffer table allows: each offered value is off the true pH by
    // at most its difference from the published value plus half a digit,
    // 0.002 + 0.005 here, over a span of about 3 pH per segment.
    const double phError = 0.007;
    EXPECT_NEAR(result.averageSlope, 97.0, 97.0 * 2 * phError / 2.9);
    EXPECT_NEAR(result.points[0].offset, 12.0, 57.4 * phError);

    // The calibrated meter reads the buffers, and the DIN ones between them.
    for (int k = 0; k < 3; ++k)
        EXPECT_NEAR(read(electrodeMv(b.truePh[k], b.celsius), b.celsius), b.truePh[k], 0.02) << b.truePh[k];
    for (double ph : {5.0, 6.865, 9.18, 12.0})
        EXPECT_NEAR(read(electrodeMv(ph, b.celsius), b.celsius), ph, 0.02) << ph;
}

INSTANTIATE_TEST_SUITE_P(Buffers, ThreePointPh, ::testing::ValuesIn(kThreeBuffers),
                         [](const ::testing::TestParamInfo<ThreeBuffers> &info) {
                             return "At" + std::to_string(static_cast<int>(info.param.celsius)) + "Degrees";
                         });

TEST_F(Calibration, TwoPointsAtTwentyFiveDegrees)
{
    startPh(0.001f);
    takePoint(177.0, 25.0, 4.01);
    takePoint(0.0, 25.0, 7.00);
    context.FinishCalibration();
    EXPECT_EQ(context.GetStatus(), CMeasurementContext::StatusOk);
    // -177 * 298.15 / (2.99 * 298.15)
    EXPECT_NEAR(context.phKind()->record().committed.slope[0], -59.197, 1e-3);
    EXPECT_NEAR(context.GetAverageSlope(), 100.06, 0.005);
    EXPECT_NEAR(context.GetPointSlope(0), 100.06, 0.005);
    EXPECT_NEAR(context.GetPointSlope(1), 100.06, 0.005);
}

TEST_F(Calibration, OnePointShiftsTheIdealElectrode)
{
    startPh(0.001f);
    takePoint(30.0, 40.0, 6.5);
    context.FinishCalibration();
    EXPECT_EQ(context.GetStatus(), CMeasurementContext::StatusOk);
    EXPECT_EQ(context.GetPointCount(), 1);
    EXPECT_NEAR(context.GetAverageSlope(), 100.0, 1e-4);
    // offset = mV - (value - 7) * -59.16 * (T + 273.15) / 298.15
    const double offset = 30.0 - (6.5 - 7.0) * -59.16 * 313.15 / 298.15;
    EXPECT_NEAR(context.GetPointOffset(0), offset, 1e-3);
    EXPECT_NEAR(context.GetPointSlope(0), 100.0, 1e-4);
    EXPECT_NEAR(read(30.0, 40.0), 6.5, 1e-3);
}

TEST_F(Calibration, PhPointsTooCloseOrRepeatedAreRefused)
{
    startPh(0.001f);
    takePoint(177.0, 25.0, 4.01);
    // 4.20 is within 0.2 pH of 4.01
    takePoint(166.0, 25.0, 4.20);
    EXPECT_EQ(context.GetStatus(), CMeasurementContext::StatusPhPointTooClose);
    EXPECT_EQ(context.GetCalPointCount(), 1);
    // 4.22 is not, and 12 mV lie between
    takePoint(165.0, 25.0, 4.22);
    EXPECT_EQ(context.GetStatus(), CMeasurementContext::StatusBusy);
    EXPECT_EQ(context.GetCalPointCount(), 2);
    // within 5 mV of 165 although 1 pH away
    takePoint(161.0, 25.0, 5.22);
    EXPECT_EQ(context.GetStatus(), CMeasurementContext::StatusPhPointTooClose);
    // the same buffer again is refused, and its first reading stays
    takePoint(178.5, 25.0, 4.01);
    EXPECT_EQ(context.GetStatus(), CMeasurementContext::StatusPhPointTooClose);
    EXPECT_EQ(context.GetCalPointCount(), 2);
    EXPECT_FLOAT_EQ(context.GetPointMv(0), 177.0f);
    EXPECT_FLOAT_EQ(context.GetPointValue(1), 4.22f);
}

TEST_F(Calibration, FivePointsAtMost)
{
    startPh(0.001f);
    for (int k = 0; k < 6; ++k)
        takePoint(120.0 - 48.0 * k, 25.0, 5.0 + 0.8 * k);
    EXPECT_EQ(context.GetStatus(), CMeasurementContext::StatusBusy) << "a sixth point cancels nothing";
    EXPECT_EQ(context.GetCalPointCount(), 5);
    EXPECT_FLOAT_EQ(context.GetPointValue(4), 8.2f);
    context.FinishCalibration();
    EXPECT_EQ(context.GetStatus(), CMeasurementContext::StatusOk);
    // 48 mV per 0.8 pH is 60 mV/pH
    EXPECT_NEAR(context.GetAverageSlope(), 60.0 / 0.5916, 1e-2);
}

TEST_F(Calibration, AverageSlopeOutsideEightyToOneHundredTwentyPercentIsRefused)
{
    struct Case
    {
        double percent;
        int status;
    };
    // 1 pH apart at 25 degrees, so the slope is the potential difference
    for (const Case c : {Case{75.0, 2}, Case{79.9, 2}, Case{80.0, 0}, Case{120.0, 0}, Case{120.1, 2}, Case{125.0, 2}}) {
        SCOPED_TRACE(c.percent);
        startPh(0.001f);
        takePoint(0.0, 25.0, 7.0);
        takePoint(-0.5916 * c.percent, 25.0, 8.0);
        EXPECT_EQ(context.GetCalPointCount(), 2);
        context.FinishCalibration();
        EXPECT_EQ(context.GetStatus(), c.status);
        if (c.status == 0) {
            EXPECT_NEAR(context.GetAverageSlope(), c.percent, 1e-3);
            continue;
        }
        // the meter then cancels: back to the ideal electrode
        context.CancelCalibration();
        EXPECT_EQ(context.GetStatus(), CMeasurementContext::StatusBusy);
        EXPECT_EQ(context.GetCalPointCount(), 0);
        EXPECT_NEAR(read(-59.16), 8.0, 1e-6);
    }
}

TEST_F(Calibration, UnrecognisedBufferTakesTheElectrodesPh)
{
    startPh(0.01f);
    // -100 mV is between the windows of 7.00 and 10.01: ideal 8.69
    const double offered = takePoint(-100.0, 25.0);
    EXPECT_FLOAT_EQ(static_cast<float>(offered), 8.69f);
    EXPECT_EQ(context.GetCalPointCount(), 1);
    EXPECT_FLOAT_EQ(context.GetPointBuffer(0), 0.0f);
    EXPECT_FLOAT_EQ(context.GetPointValue(0), 8.69f);
}

TEST_F(Calibration, OverrideTakesAnUnsettledReadingButNotOneOutOfRange)
{
    startPh(0.01f);
    sample(5.0, 25.0);
    ASSERT_FALSE(context.IsStable());
    float value = 0.0f;
    float mv = 0.0f;
    bool accepted = false;
    context.OverrideCalibrationPoint(value, mv, accepted);
    EXPECT_TRUE(accepted);
    EXPECT_FLOAT_EQ(value, 7.00f);
    EXPECT_FLOAT_EQ(mv, 5.0f);
    EXPECT_TRUE(context.IsOverridden());
    context.AcceptCalibrationPoint(false);
    EXPECT_EQ(context.GetCalPointCount(), 1);
    context.StartNextPoint();
    EXPECT_FALSE(context.IsOverridden());

    // pH above 20
    sample(-900.0, 25.0);
    ASSERT_TRUE(context.IsOutOfRange());
    value = mv = -1.0f;
    context.OverrideCalibrationPoint(value, mv, accepted);
    EXPECT_FALSE(accepted);
    EXPECT_FLOAT_EQ(value, -1.0f);
    EXPECT_FALSE(context.IsOverridden());
}

TEST_F(Calibration, AStoredCalibrationSurvivesAsItIsStored)
{
    // A finished calibration, row by row, loaded into a fresh engine as the
    // meter does after a restart, converts as the original did.
    startPh(0.001f);
    takePoint(electrodeMv(4.008, 25.0), 25.0);
    takePoint(electrodeMv(7.0, 25.0), 25.0);
    takePoint(electrodeMv(10.012, 25.0), 25.0);
    context.FinishCalibration();
    ASSERT_EQ(context.GetStatus(), 0);
    const CalibrationResult stored = context.GetCalibrationResult();

    CMeasurementContext next;
    next.SetActiveKind(CMeasurementContext::KindPh);
    next.ConfigurePh(0, 0.001f, 7.0);
    next.LoadCalibration(stored);
    EXPECT_NEAR(next.GetAverageSlope(), stored.averageSlope, 1e-3);
    for (double ph : {3.0, 4.008, 5.5, 7.0, 8.5, 10.012, 11.0}) {
        const double mv = electrodeMv(ph, 25.0);
        const double original = read(mv, 35.0);
        next.SetRawMv(mv);
        next.SetTemperatuteDegreC(35.0);
        next.UpdateMeasurement();
        EXPECT_NEAR(next.GetMeasuredValue(), original, 0.0011) << ph;
    }

    // a new calibration starts from the ideal electrode, the stored one is
    // back with the next load
    next.StartCalibration();
    EXPECT_EQ(next.phKind()->record().committedCount, 0);
    next.LoadCalibration(stored);
    EXPECT_EQ(next.phKind()->record().committedCount, 3);
    EXPECT_EQ(next.phKind()->record().workingCount, 3);
}

// ---- ion-selective electrode ----

class IseCalibration : public Calibration
{
protected:
    void startIse(const char *ion, int digits = 3)
    {
        context.SetActiveKind(CMeasurementContext::KindIse);
        context.ConfigureIse(digits, 1.0);
        context.SetIonName(QString::fromUtf8(ion));
        context.StartCalibration();
    }
};

TEST_F(IseCalibration, ThreeStandardsGiveTheElectrodesSlope)
{
    startIse("Calcium (Ca2+)");
    EXPECT_FLOAT_EQ(context.iseKind()->record().committed.slope[0], 29.58f) << "theoretical slope of a 2+ ion";
    // 28.5 mV per decade, 50 mV at 1 mg/L
    const double standards[3] = {100.0, 1.0, 10.0};
    for (double c : standards) {
        takePoint(50.0 + 28.5 * std::log10(c), 25.0, c);
        EXPECT_EQ(context.GetStatus(), CMeasurementContext::StatusBusy) << c;
    }
    context.FinishCalibration();
    ASSERT_EQ(context.GetStatus(), CMeasurementContext::StatusOk);
    ASSERT_EQ(context.GetPointCount(), 3);
    EXPECT_FLOAT_EQ(context.GetPointValue(0), 1.0f);
    EXPECT_FLOAT_EQ(context.GetPointValue(2), 100.0f);
    EXPECT_NEAR(context.GetPointSlope(0), 28.5, 1e-3);
    EXPECT_NEAR(context.GetPointSlope(1), 28.5, 1e-3);
    EXPECT_NEAR(context.GetPointOffset(0), 50.0, 1e-3);
    EXPECT_NEAR(context.GetAverageSlope(), 28.5, 1e-3);
    EXPECT_FLOAT_EQ(context.GetPointBuffer(0), 3.0f) << "the digits of the point";
    EXPECT_NEAR(read(50.0 + 28.5 * std::log10(50.0), 10.0), 50.0, 0.05);
}

TEST_F(IseCalibration, StandardsTooCloseAreRefused)
{
    startIse("Sodium (Na+)");
    takePoint(100.0, 25.0, 10.0);
    takePoint(104.0, 25.0, 12.5);
    EXPECT_EQ(context.GetStatus(), CMeasurementContext::StatusIsePointRefused) << "4 mV apart";
    takePoint(110.0, 25.0, 11.9);
    EXPECT_EQ(context.GetStatus(), CMeasurementContext::StatusIsePointRefused) << "19 % apart";
    takePoint(105.0, 25.0, 12.5);
    EXPECT_EQ(context.GetStatus(), CMeasurementContext::StatusBusy);
    EXPECT_EQ(context.iseKind()->record().workingCount, 2);
}

TEST_F(IseCalibration, WrongSignForTheIonDropsTheLastAddedPoint)
{
    // a fluoride electrode falls with concentration; this one rises
    startIse("Fluoride (F-)");
    takePoint(100.0, 25.0, 1.0);
    takePoint(150.0, 25.0, 10.0);
    takePoint(50.0, 25.0, 0.1);
    context.FinishCalibration();
    EXPECT_EQ(context.GetStatus(), CMeasurementContext::StatusIseWrongSlope);
    EXPECT_NEAR(context.GetAverageSlope(), 50.0, 1e-3);
    const IseCalRecord &record = context.iseKind()->record();
    ASSERT_EQ(record.committedCount, 2);
    EXPECT_FLOAT_EQ(record.committed.concentration[0], 1.0f);
    EXPECT_FLOAT_EQ(record.committed.concentration[1], 10.0f);
}

TEST_F(IseCalibration, MixedSlopesDropTheLastAddedPoint)
{
    startIse("Sodium (Na+)");
    takePoint(100.0, 25.0, 1.0);
    takePoint(157.0, 25.0, 10.0);
    takePoint(120.0, 25.0, 100.0);
    context.FinishCalibration();
    EXPECT_EQ(context.GetStatus(), CMeasurementContext::StatusIseWrongSlope);
    EXPECT_EQ(context.iseKind()->record().committedCount, 2);
    EXPECT_FLOAT_EQ(context.iseKind()->record().committed.concentration[1], 10.0f);
}

TEST_F(IseCalibration, AZeroStandardCannotBeComputed)
{
    startIse("Potassium (K+)");
    takePoint(20.0, 25.0, 0.0);
    takePoint(80.0, 25.0, 1.0);
    takePoint(140.0, 25.0, 10.0);
    context.FinishCalibration();
    EXPECT_EQ(context.GetStatus(), CMeasurementContext::StatusIsePointRefused);
    const IseCalRecord &record = context.iseKind()->record();
    ASSERT_EQ(record.committedCount, 2) << "the last added standard is dropped";
    EXPECT_FLOAT_EQ(record.committed.concentration[0], 0.0f);
    EXPECT_FLOAT_EQ(record.committed.concentration[1], 1.0f);
}

TEST_F(IseCalibration, OneStandardTakesTheTheoreticalSlope)
{
    startIse("Chloride (Cl-)");
    takePoint(120.0, 25.0, 35.5);
    context.FinishCalibration();
    EXPECT_EQ(context.GetStatus(), CMeasurementContext::StatusOk);
    EXPECT_NEAR(context.GetPointSlope(0), -59.16, 1e-4);
    EXPECT_NEAR(context.GetPointOffset(0), 120.0 + 59.16 * std::log10(35.5), 1e-3);
    EXPECT_NEAR(read(120.0 - 59.16), 355.0, 0.5);
}

// ---- redox ----

TEST_F(Calibration, RedoxShiftsThePotentialScale)
{
    context.SetActiveKind(CMeasurementContext::KindRedox);
    context.ConfigureOrp(0.1f, 7.0);
    context.SetOrpOffset(25.0);
    context.StartCalibration();
    EXPECT_NEAR(context.GetOrpOffset(), 0.0, 1e-9);
    ASSERT_TRUE(settle(230.0, 25.0));
    EXPECT_NEAR(context.GetCalibrationValue(true), 230.0, 1e-4);
    context.EditCalibrationValue(220.0);
    EXPECT_NEAR(context.GetCalibrationValue(true), 220.0, 1e-4) << "the typed value is offered";
    context.AcceptCalibrationPoint(true);
    EXPECT_EQ(context.GetStatus(), CMeasurementContext::StatusOk);
    EXPECT_NEAR(context.GetOrpOffset(), -10.0, 1e-4);
    EXPECT_FLOAT_EQ(context.GetEditedValue(), 0.0f);
    context.FinishCalibration();
    const CalibrationResult result = context.GetCalibrationResult();
    EXPECT_EQ(result.count, 1);
    EXPECT_FLOAT_EQ(result.points[0].mv, 230.0f);
    EXPECT_FLOAT_EQ(result.points[0].value, 220.0f);
    EXPECT_FLOAT_EQ(result.averageSlope, -10.0f);
    EXPECT_NEAR(read(400.0), 390.0, 1e-4);

    CMeasurementContext next;
    next.SetActiveKind(CMeasurementContext::KindRedox);
    next.LoadCalibration(result);
    EXPECT_NEAR(next.GetOrpOffset(), -10.0, 1e-4);
}

TEST_F(Calibration, RedoxOffsetBeyondTheScaleIsRefused)
{
    context.SetActiveKind(CMeasurementContext::KindRedox);
    context.ConfigureOrp(0.1f, 7.0);
    context.StartCalibration();
    ASSERT_TRUE(settle(-100.0, 25.0));
    context.GetCalibrationValue(true);
    context.EditCalibrationValue(1890.0);
    context.AcceptCalibrationPoint(true);
    EXPECT_EQ(context.GetStatus(), CMeasurementContext::StatusOk) << "1990 mV of offset";
    context.StartCalibration();
    ASSERT_TRUE(settle(-100.0, 25.0));
    context.EditCalibrationValue(1950.0);
    context.AcceptCalibrationPoint(true);
    EXPECT_EQ(context.GetStatus(), CMeasurementContext::StatusRedoxOffsetOutOfRange) << "2050 mV of offset";
    context.StartCalibration();
    ASSERT_TRUE(settle(100.0, 25.0));
    context.EditCalibrationValue(2001.0);
    context.AcceptCalibrationPoint(true);
    EXPECT_EQ(context.GetStatus(), CMeasurementContext::StatusRedoxOffsetOutOfRange) << "beyond the scale";
    context.CancelCalibration();
    EXPECT_NEAR(context.GetOrpOffset(), 0.0, 1e-9);
}

TEST_F(Calibration, NoActiveKindMeansNoCalibration)
{
    context.SetActiveKind(7);
    context.StartCalibration();
    EXPECT_DOUBLE_EQ(context.GetCalibrationValue(true), CMeasurementContext::kNoKind);
    context.AcceptCalibrationPoint(false);
    context.FinishCalibration();
    EXPECT_EQ(context.GetStatus(), 0);
    EXPECT_EQ(context.GetCalibrationResult().count, 0);
}

}
