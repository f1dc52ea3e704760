#include "meter/cmeasurementcontext.h"
#include "meter/cmeasurementise.h"
#include "meter/cmeasurementorp.h"
#include "meter/cmeasurementph.h"

#include <gtest/gtest.h>

namespace {

class Meter : public ::testing::Test
{
protected:
    CMeasurementContext context;

    // One reading in the order the meter controller uses.
    double read(double mv, double celsius = 25.0)
    {
        context.SetRawMv(mv);
        context.SetTemperatuteDegreC(celsius);
        context.UpdateMeasurement();
        return context.GetMeasuredValue();
    }
    void usePh(float resolution = 0.001f)
    {
        context.SetActiveKind(CMeasurementContext::KindPh);
        context.ConfigurePh(0, resolution, 7.0);
    }
    void useIse(int digits = 3, const char *ion = "Sodium (Na+)")
    {
        context.SetActiveKind(CMeasurementContext::KindIse);
        context.ConfigureIse(digits, 1.0);
        context.SetIonName(QString::fromUtf8(ion));
    }
    void useRedox()
    {
        context.SetActiveKind(CMeasurementContext::KindRedox);
        context.ConfigureOrp(0.001f, 7.0);
    }
};

// ---- pH on the ideal electrode ----

TEST_F(Meter, NernstSlopeAtZeroTwentyFiveAndFiftyDegrees)
{
    usePh();
    // mV per pH unit: 54.20 at 0, 59.16 at 25, 64.12 at 50 degrees.
    EXPECT_NEAR(context.Get_Mv_From_pH(8.0f, 0.0f), -54.20, 1e-3);
    EXPECT_NEAR(context.Get_Mv_From_pH(8.0f, 25.0f), -59.16, 1e-3);
    EXPECT_NEAR(context.Get_Mv_From_pH(8.0f, 50.0f), -64.12, 1e-3);
    EXPECT_NEAR(context.Get_Mv_From_pH(4.0f, 25.0f), 177.48, 1e-3);
    // and back: one slope's worth of potential is one pH unit at each temperature
    EXPECT_NEAR(read(-54.20, 0.0), 8.000, 1e-6);
    EXPECT_NEAR(read(-59.16, 25.0), 8.000, 1e-6);
    EXPECT_NEAR(read(-64.12, 50.0), 8.000, 1e-6);
    EXPECT_NEAR(read(2 * 64.12, 50.0), 5.000, 1e-6);
}

TEST_F(Meter, BuffersFourSevenTenAtTwentyFiveDegrees)
{
    usePh(0.01f);
    EXPECT_NEAR(read(177.48), 4.00, 1e-6);
    EXPECT_NEAR(read(0.0), 7.00, 1e-6);
    EXPECT_NEAR(read(-177.48), 10.00, 1e-6);
    EXPECT_EQ(context.GetRangeFlag(), 0);
    EXPECT_FALSE(context.IsStable()) << "three samples are no settled reading";
}

TEST_F(Meter, ResolutionSelectsTheDecimals)
{
    // 176.7532 mV at 25 degrees is pH 4.0123.
    usePh(0.1f);
    EXPECT_NEAR(read(176.7532), 4.0, 1e-6);
    usePh(0.01f);
    EXPECT_NEAR(read(176.7532), 4.01, 1e-6);
    usePh(0.001f);
    EXPECT_NEAR(read(176.7532), 4.012, 1e-6);
    usePh(1.0f);
    EXPECT_NEAR(read(176.7532), 4.0, 1e-6);
    // 0.05 is no resolution of the meter: whole numbers
    usePh(0.05f);
    EXPECT_NEAR(read(176.7532), 4.0, 1e-6);
    EXPECT_EQ(context.phKind()->GetResolutionIndex(), 0);
    // 0.00105 is within tolerance of 0.001
    usePh(0.00105f);
    EXPECT_EQ(context.phKind()->GetResolutionIndex(), 3);
}

TEST_F(Meter, RoundingIsHalfAwayFromZero)
{
    const MeasurementBase &kind = *context.phKind();
    EXPECT_FLOAT_EQ(kind.Round(2.5f, 0), 3.0f);
    EXPECT_FLOAT_EQ(kind.Round(-2.5f, 0), -3.0f);
    EXPECT_FLOAT_EQ(kind.Round(0.125f, 2), 0.13f);
    EXPECT_FLOAT_EQ(kind.Round(-0.125f, 2), -0.13f);
    EXPECT_FLOAT_EQ(kind.Round(1.2344f, 3), 1.234f);
}

TEST_F(Meter, PhOutOfRangeShowsTheSentinelAndIsNeverStable)
{
    usePh(0.001f);
    // pH 20.000 at 25 degrees, (20 - 7) * -59.16 mV, is still in range
    EXPECT_NEAR(read(-769.08), 20.000, 1e-4);
    EXPECT_EQ(context.GetRangeFlag(), 0);
    // pH 20.001: (20.001 - 7) * -59.16 mV
    EXPECT_DOUBLE_EQ(read(-769.13916), 9999.0);
    EXPECT_EQ(context.GetRangeFlag(), 1);
    EXPECT_TRUE(context.IsOutOfRange());
    EXPECT_TRUE(context.phKind()->IsOverRange());
    for (int i = 0; i < 60; ++i)
        read(-769.13916);
    EXPECT_FALSE(context.IsStable());
    EXPECT_DOUBLE_EQ(context.GetMeasuredValue(), 9999.0);

    // pH -2.5: 9.5 * 59.16 = 562.02 mV
    EXPECT_DOUBLE_EQ(read(562.02), 9999.0);
    EXPECT_EQ(context.GetRangeFlag(), 2);
    EXPECT_TRUE(context.phKind()->IsUnderRange());
}

TEST_F(Meter, SmallNegativeStableMvReadsAsZero)
{
    usePh();
    read(-0.03);
    EXPECT_DOUBLE_EQ(context.GetStableMv(), 0.000001);
    read(-0.06);
    EXPECT_NEAR(context.GetStableMv(), -0.06, 1e-9);
}

// ---- pH through a loaded calibration ----

class CalibratedPh : public Meter
{
protected:
    void SetUp() override
    {
        usePh();
        // Points 4.01, 7.00, 10.01; segment 0 is -59.2 mV/pH through 0 mV,
        // segment 1 is -58.0 mV/pH through 5 mV.
        const float mv[5] = {177.0f, 0.0f, -178.0f};
        const float slope[5] = {-59.2f, -58.0f, 0.0f};
        const float offset[5] = {0.0f, 5.0f, 0.0f};
        const float temperature[5] = {25.0f, 25.0f, 25.0f};
        const float value[5] = {4.01f, 7.00f, 10.01f};
        const float buffer[5] = {4.01f, 7.00f, 10.01f};
        context.LoadPhCalibration(mv, slope, offset, temperature, value, buffer, 3, -59.16f);
    }
};

TEST_F(CalibratedPh, EachPotentialUsesItsSegment)
{
    // +100 mV lies above the middle point: segment 0, 7 - 100/59.2
    EXPECT_NEAR(read(100.0), 5.311, 1e-6);
    // -100 mV lies below: segment 1, 7 + 105/58
    EXPECT_NEAR(read(-100.0), 8.810, 1e-6);
    // -250 mV is below the last point: still segment 1, 7 + 255/58
    EXPECT_NEAR(read(-250.0), 11.397, 1e-6);
    // at 50 degrees the same potential is less pH: 1.810345 * 298.15/323.15
    EXPECT_NEAR(read(-100.0, 50.0), 8.670, 1e-6);
    EXPECT_NEAR(context.GetAverageSlope(), 100.0, 1e-4);
}

TEST_F(CalibratedPh, PhToMillivoltsUsesTheSegmentOfTheBracket)
{
    EXPECT_NEAR(context.Get_Mv_From_pH(9.0f, 25.0f), -111.0, 1e-4);    // 5 - 58 * 2
    EXPECT_NEAR(context.Get_Mv_From_pH(5.0f, 25.0f), 118.4, 1e-4);     // -59.2 * -2
    EXPECT_NEAR(context.Get_Mv_From_pH(12.0f, 25.0f), -285.0, 1e-4);   // above all: last segment
    EXPECT_NEAR(context.Get_Mv_From_pH(2.0f, 25.0f), 296.0, 1e-4);     // below all: first segment
    // 50 degrees: 5 - 58 * (323.15 / 298.15) * 2 = -120.7266, one decimal
    EXPECT_NEAR(context.Get_Mv_From_pH(9.0f, 50.0f), -120.7, 1e-4);
}

// ---- redox ----

TEST_F(Meter, RedoxIsTheShiftedPotential)
{
    useRedox();
    EXPECT_NEAR(read(230.0), 230.0, 1e-6);
    context.SetOrpOffset(-10.0);
    EXPECT_NEAR(read(230.0), 220.0, 1e-6);
    EXPECT_NEAR(read(230.0, 80.0), 220.0, 1e-6) << "no temperature term";
    EXPECT_NEAR(context.GetOrpOffset(), -10.0, 1e-6);
    usePh();
    EXPECT_DOUBLE_EQ(context.GetOrpOffset(), 0.0);
}

TEST_F(Meter, RedoxRangeAndNegativeZero)
{
    useRedox();
    EXPECT_DOUBLE_EQ(read(2000.5), 9999.0);
    EXPECT_EQ(context.GetRangeFlag(), 1);
    EXPECT_NEAR(read(2000.0), 2000.0, 1e-3);
    EXPECT_EQ(context.GetRangeFlag(), 0);
    EXPECT_DOUBLE_EQ(read(-2000.5), 9999.0);
    EXPECT_EQ(context.GetRangeFlag(), 2);
    EXPECT_DOUBLE_EQ(read(-0.03), 0.000001);
    EXPECT_NEAR(read(-0.05), -0.05, 1e-6);
}

// ---- ion concentration ----

TEST_F(Meter, IonConcentrationForChargeOne)
{
    useIse(3, "Sodium (Na+)");
    EXPECT_EQ(context.iseKind()->record().charge(), 1);
    // 1 at 100 mV and 10 at 159.16 mV: 59.16 mV per decade through 100 mV
    const float mv[6] = {100.0f, 159.16f};
    const float conc[6] = {1.0f, 10.0f};
    const float slope[6] = {59.16f, 59.16f};
    const float offset[6] = {100.0f, 100.0f};
    const float temperature[6] = {25.0f, 25.0f};
    context.LoadIseCalibration(mv, conc, slope, offset, temperature, QStringLiteral("Sodium (Na+)"), 2, 59.16f);
    EXPECT_NEAR(read(218.32), 100.0, 1e-4);
    EXPECT_NEAR(read(159.16), 10.0, 1e-5);
    // 10^-0.5 = 0.316228: below 1 the setting 3 gives 3 + 1 = 4 decimals
    EXPECT_NEAR(read(70.42), 0.3162, 1e-6);
    EXPECT_NEAR(context.GetAverageSlope(), 59.16, 1e-4);
}

TEST_F(Meter, IonConcentrationForChargeTwo)
{
    useIse(3, "Calcium (Ca2+)");
    EXPECT_EQ(context.iseKind()->record().charge(), 2);
    // 29.58 mV per decade through 50 mV
    const float mv[6] = {50.0f, 109.16f};
    const float conc[6] = {1.0f, 100.0f};
    const float slope[6] = {29.58f, 29.58f};
    const float offset[6] = {50.0f, 50.0f};
    const float temperature[6] = {25.0f, 25.0f};
    context.LoadIseCalibration(mv, conc, slope, offset, temperature, QStringLiteral("Calcium (Ca2+)"), 2, 29.58f);
    EXPECT_NEAR(read(79.58), 10.0, 1e-5);
    EXPECT_NEAR(read(94.37), 31.62, 1e-4);   // 10^1.5
    context.ConfigureIse(2, 1.0);
    EXPECT_NEAR(read(94.37), 31.6, 1e-4);
}

TEST_F(Meter, IseIsNotTemperatureCompensated)
{
    useIse(3);
    const double at10 = read(59.16 * 1.5, 10.0);
    const double at40 = read(59.16 * 1.5, 40.0);
    EXPECT_DOUBLE_EQ(at10, at40);
    EXPECT_NEAR(at10, 31.62, 1e-4);
}

TEST_F(Meter, IseLimits)
{
    useIse(3);
    // 25000 on the ideal slope: above 19999
    EXPECT_DOUBLE_EQ(read(59.16 * 4.39794), 9999.0);
    EXPECT_EQ(context.GetRangeFlag(), 1);
    // far below 0.0001: zero, in range
    EXPECT_DOUBLE_EQ(read(-300.0), 0.0);
    EXPECT_EQ(context.GetRangeFlag(), 0);
    // 19000 is shown
    EXPECT_NEAR(read(59.16 * 4.278754), 19000.0, 1e-3);
    EXPECT_EQ(context.GetRangeFlag(), 0);
}

TEST(SignificantDigits, KeepsTheSettingPlusOne)
{
    CMeasurementIse kind;
    EXPECT_FLOAT_EQ(kind.SignificantDigits(12345.0f, 3), 12350.0f);
    EXPECT_FLOAT_EQ(kind.SignificantDigits(12344.0f, 3), 12340.0f);
    EXPECT_FLOAT_EQ(kind.SignificantDigits(123.456f, 3), 123.5f);
    EXPECT_FLOAT_EQ(kind.SignificantDigits(1.23456f, 3), 1.235f);
    EXPECT_FLOAT_EQ(kind.SignificantDigits(0.012345f, 3), 0.0123f);   // at most four decimals
    EXPECT_FLOAT_EQ(kind.SignificantDigits(9999.6f, 3), 10000.0f);
    EXPECT_FLOAT_EQ(kind.SignificantDigits(0.99996f, 3), 1.0f);
    EXPECT_FLOAT_EQ(kind.SignificantDigits(456.78f, 2), 457.0f);
    EXPECT_FLOAT_EQ(kind.SignificantDigits(4567.8f, 2), 4570.0f);
    EXPECT_FLOAT_EQ(kind.SignificantDigits(0.5f, 2), 0.5f);
}

TEST(SignificantDigits, DecadeOfAValue)
{
    CMeasurementIse kind;
    EXPECT_EQ(kind.Decade(1234.0f), 3);
    EXPECT_EQ(kind.Decade(1000.0f), 3);
    EXPECT_EQ(kind.Decade(999.0f), 2);
    EXPECT_EQ(kind.Decade(1.0f), 0);
    EXPECT_EQ(kind.Decade(0.5f), -1);
    EXPECT_EQ(kind.Decade(0.1f), -1);
    EXPECT_EQ(kind.Decade(0.05f), -2);
    EXPECT_EQ(kind.Decade(0.0f), 0);
    EXPECT_EQ(kind.Decade(-5.0f), 0);
}

// ---- the context ----

TEST_F(Meter, NoActiveKindAnswersTheSentinel)
{
    usePh();
    read(0.0);
    context.SetActiveKind(7);
    EXPECT_DOUBLE_EQ(context.GetMeasuredValue(), -100000.0);
    EXPECT_DOUBLE_EQ(context.GetStableMv(), -100000.0);
    EXPECT_DOUBLE_EQ(context.Get_Mv_From_pH(4.0f, 25.0f), -100000.0);
    EXPECT_FALSE(context.IsStable());
    EXPECT_FALSE(context.IsOutOfRange());
    EXPECT_EQ(context.GetRangeFlag(), -1);
    EXPECT_DOUBLE_EQ(context.GetAverageSlope(), 0.0);
    context.SetActiveKind(CMeasurementContext::KindIse);
    EXPECT_DOUBLE_EQ(context.Get_Mv_From_pH(4.0f, 25.0f), 0.0);
}

TEST_F(Meter, WithNoKindEveryKindIsUpdated)
{
    context.SetActiveKind(-1);
    context.ConfigurePh(0, 0.01f, 7.0);
    context.ConfigureOrp(0.1f, 7.0);
    context.ConfigureIse(3, 1.0);
    read(59.16);
    context.SetActiveKind(CMeasurementContext::KindPh);
    EXPECT_NEAR(context.GetMeasuredValue(), 6.0, 1e-6);
    context.SetActiveKind(CMeasurementContext::KindRedox);
    EXPECT_NEAR(context.GetMeasuredValue(), 59.2, 1e-4);
    context.SetActiveKind(CMeasurementContext::KindIse);
    EXPECT_NEAR(context.GetMeasuredValue(), 10.0, 1e-5);
}

TEST_F(Meter, ResolutionWithNoKindGoesToPhAndIseWhileRedoxTakesATenth)
{
    context.SetActiveKind(3);
    context.SetDisplayResolutionInFloat(0.01f);
    EXPECT_EQ(context.phKind()->GetResolutionIndex(), 2);
    EXPECT_EQ(context.iseKind()->GetResolutionIndex(), 2);
    EXPECT_EQ(context.orpKind()->GetResolutionIndex(), 1);
    context.SetActiveKind(CMeasurementContext::KindRedox);
    context.SetDisplayResolutionInFloat(0.001f);
    EXPECT_EQ(context.orpKind()->GetResolutionIndex(), 3);
    EXPECT_EQ(context.phKind()->GetResolutionIndex(), 2);
}

TEST_F(Meter, ASwitchOfKindNeedsNoNewSample)
{
    usePh();
    context.SetRawMv(118.32);
    context.SetTemperatuteDegreC(25.0);
    context.SetActiveKind(CMeasurementContext::KindIse);
    context.UpdateMeasurement();
    EXPECT_NEAR(context.GetMeasuredValue(), 100.0, 1e-3);   // 10^(118.32/59.16)
}

TEST_F(Meter, ResetStabilityOfTheActiveKindOnly)
{
    context.SetActiveKind(-1);
    for (int i = 0; i < 38; ++i)
        read(0.0);
    context.SetActiveKind(CMeasurementContext::KindPh);
    ASSERT_TRUE(context.IsStable());
    context.SetActiveKind(CMeasurementContext::KindRedox);
    ASSERT_TRUE(context.IsStable());
    context.ResetStability();
    EXPECT_FALSE(context.IsStable());
    context.SetActiveKind(CMeasurementContext::KindPh);
    EXPECT_TRUE(context.IsStable());
    context.SetActiveKind(9);
    context.ResetStability();
    context.SetActiveKind(CMeasurementContext::KindIse);
    EXPECT_FALSE(context.IsStable());
}

TEST(ProbeStrings, IseVariantsFoldIntoOneKind)
{
    EXPECT_EQ(CMeasurementContext::FoldProbe(QStringLiteral("ISE-Titration")), QStringLiteral("ISE"));
    EXPECT_EQ(CMeasurementContext::FoldProbe(QStringLiteral("ISE-MKA")), QStringLiteral("ISE"));
    EXPECT_EQ(CMeasurementContext::FoldProbe(QStringLiteral("ISE")), QStringLiteral("ISE"));
    EXPECT_EQ(CMeasurementContext::FoldProbe(QStringLiteral("pH")), QStringLiteral("pH"));
    EXPECT_EQ(CMeasurementContext::FoldProbe(QStringLiteral("ise-MKA")), QStringLiteral("ise-MKA"));
    EXPECT_EQ(CMeasurementContext::KindOfProbe(QStringLiteral("ISE-MKA")), CMeasurementContext::KindIse);
    EXPECT_EQ(CMeasurementContext::KindOfProbe(QStringLiteral("ISE-Titration")), CMeasurementContext::KindIse);
    EXPECT_EQ(CMeasurementContext::KindOfProbe(QStringLiteral("pH")), CMeasurementContext::KindPh);
    EXPECT_EQ(CMeasurementContext::KindOfProbe(QStringLiteral("Redox")), CMeasurementContext::KindRedox);
    EXPECT_EQ(CMeasurementContext::KindOfProbe(QStringLiteral("ATC")), -1);
    EXPECT_EQ(CMeasurementContext::KindOfProbe(QStringLiteral("ph")), -1);
}

TEST_F(Meter, IonNameIsTakenOnlyWhileIseIsActive)
{
    usePh();
    context.SetIonName(QStringLiteral("Fluoride (F-)"));
    EXPECT_STREQ(context.iseKind()->record().ionName, "");
    useIse(3, "Fluoride (F-)");
    EXPECT_STREQ(context.iseKind()->record().ionName, "Fluoride (F-)");
    EXPECT_EQ(context.iseKind()->record().charge(), -1);
    EXPECT_FLOAT_EQ(context.iseKind()->record().theoreticalSlope(), -59.16f);
}

TEST_F(Meter, BadCalibrationCountsAreBounded)
{
    usePh();
    const float points[5] = {0.0f, 0.0f, 0.0f, 0.0f, 0.0f};
    const float slopes[5] = {-59.16f, -59.16f, -59.16f, -59.16f, -59.16f};
    context.LoadPhCalibration(points, slopes, points, points, points, points, 42, -59.16f);
    EXPECT_EQ(context.phKind()->record().committedCount, 5);
    context.LoadPhCalibration(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, 3, -59.16f);
    EXPECT_EQ(context.phKind()->record().committedCount, 0);
    EXPECT_NEAR(read(-59.16), 8.0, 1e-6) << "no points: the ideal electrode";
}

}
