#include "meter/buffertable.h"
#include "meter/cmeasurementcontext.h"
#include "meter/cmeasurementph.h"

#include "testsupport.h"

#include <QDir>
#include <QString>
#include <gtest/gtest.h>

#include <cmath>

namespace {

// ---- recognition ----

class Recognition : public ::testing::Test
{
protected:
    CMeasurementPH ph;
    PhCalRecord record;
    int status = -1;
    std::uint8_t range = 9;
    float nominal = -1.0f;

    float recognise(int group, float mv, float celsius = 25.0f, int decimals = 2)
    {
        return ph.RecogniseBuffer(record, group, status, range, nominal, decimals, mv, celsius, 7.0f);
    }
};

TEST_F(Recognition, ZeroMillivoltsAtTwentyFiveDegreesIsTheSevenBuffer)
{
    // 7.1114 - 0.15498 + 0.04048 = 6.9969
    EXPECT_FLOAT_EQ(recognise(BufferTable::groupIndex("USA"), 0.0f, 25.0f, 3), 6.997f);
    EXPECT_FLOAT_EQ(recognise(BufferTable::groupIndex("USA"), 0.0f), 7.00f);
    EXPECT_EQ(status, CMeasurementPH::kRecognised);
    EXPECT_FLOAT_EQ(nominal, 7.00f);
    EXPECT_FLOAT_EQ(record.working.buffer[0], 7.00f) << "the nominal goes to the slot of the next point";
    EXPECT_EQ(range, 0);
}

TEST_F(Recognition, WindowBoundsBelongToNoBuffer)
{
    recognise(0, 0.0f);
    ASSERT_FLOAT_EQ(nominal, 7.00f);
    // 60.0 mV is the upper bound of the 7.00 window: the electrode's own pH,
    // 7 - 60 / 59.16 on the ideal slope.
    EXPECT_FLOAT_EQ(recognise(0, 60.0f), 5.99f);
    EXPECT_EQ(status, CMeasurementPH::kNotRecognised);
    EXPECT_FLOAT_EQ(record.working.buffer[0], 0.0f);
    EXPECT_FLOAT_EQ(nominal, 7.00f) << "an unrecognised reading leaves the nominal as it was";
    recognise(0, 59.9f);
    EXPECT_EQ(status, CMeasurementPH::kRecognised);
    recognise(0, -60.0f);
    EXPECT_EQ(status, CMeasurementPH::kNotRecognised);
    // between the windows of 10.01 and 7.00
    recognise(0, -100.0f);
    EXPECT_EQ(status, CMeasurementPH::kNotRecognised);
}

TEST_F(Recognition, GroupsHaveTheirOwnRows)
{
    EXPECT_EQ(BufferTable::groupIndex("USA"), 0);
    EXPECT_EQ(BufferTable::groupIndex("DIN"), 1);
    EXPECT_EQ(BufferTable::groupIndex("usa"), 1) << "only the exact string selects USA";
    EXPECT_EQ(BufferTable::groupIndex(""), 1);

    // 0 mV: 7.00 for USA, 6.86 for the lower-case string
    EXPECT_FLOAT_EQ(recognise(BufferTable::groupIndex("usa"), 0.0f), 6.86f);
    EXPECT_FLOAT_EQ(nominal, 6.86f);
    EXPECT_FLOAT_EQ(recognise(BufferTable::groupIndex("USA"), 0.0f), 7.00f);

    // +120 mV in DIN is 4.01 (row 7)
    EXPECT_EQ(BufferTable::match(1, 120.0f), 7);
    EXPECT_FLOAT_EQ(recognise(1, 120.0f), 4.01f);
    // DIN has no 10.01 and no 12.46
    EXPECT_EQ(BufferTable::match(1, -178.0f), 5) << "9.18 window";
    EXPECT_EQ(BufferTable::match(1, -220.0f), -1);
    EXPECT_EQ(BufferTable::match(1, -320.0f), -1);
    EXPECT_EQ(BufferTable::match(0, -320.0f), 0);
    EXPECT_EQ(BufferTable::match(0, -178.0f), 1);
}

TEST_F(Recognition, TheVariableIsTheTemperatureOrItsDistanceFromTwentyFive)
{
    const BufferRow *rows = BufferTable::rows();
    // rows written in T - 25 give their c0 at 25 degrees
    EXPECT_FLOAT_EQ(BufferTable::valueAt(rows[5], 25.0f), 9.184f);
    EXPECT_FLOAT_EQ(BufferTable::valueAt(rows[6], 25.0f), 6.8649f);
    EXPECT_FLOAT_EQ(BufferTable::valueAt(rows[0], 25.0f), 12.46f);
    // the others give theirs at 0 degrees
    for (int r : {1, 2, 3, 4, 7, 8})
        EXPECT_FLOAT_EQ(BufferTable::valueAt(rows[r], 0.0f), rows[r].c[0]) << "row " << r;
    EXPECT_EQ(BufferTable::usaBufferTable()[2].nominal, 7.00f);
    EXPECT_EQ(BufferTable::dinBufferTable()[0].nominal, 9.18f);

    // the 9.18 buffer at 10 degrees through the recognition
    EXPECT_FLOAT_EQ(recognise(1, -130.0f, 10.0f, 3), 9.332f);
}

TEST_F(Recognition, TheContextOffersTheRecognisedValueOfTheStableReading)
{
    CMeasurementContext context;
    context.SetActiveKind(CMeasurementContext::KindPh);
    context.ConfigurePh(0, 0.01f, 7.0);
    context.StartCalibration();
    context.SetRawMv(176.0);
    context.SetTemperatuteDegreC(40.0);
    context.UpdateMeasurement();
    // 4.0 - 0.014744 + 0.048149 = 4.0334
    EXPECT_FLOAT_EQ(static_cast<float>(context.GetCalibrationValue(true)), 4.03f);
    EXPECT_EQ(context.GetStatus(), CMeasurementContext::StatusBufferRecognised);
    EXPECT_FLOAT_EQ(context.GetRecognisedBuffer(), 4.01f);
    EXPECT_FLOAT_EQ(context.GetLastMv(), 176.0f);
    EXPECT_EQ(context.GetRangeFlag(), 0);

    context.SetRawMv(100.0);
    context.UpdateMeasurement();
    // no buffer: 7 - 100/59.16 * 298.15/313.15 = 5.3906
    EXPECT_FLOAT_EQ(static_cast<float>(context.GetCalibrationValue(true)), 5.39f);
    EXPECT_EQ(context.GetStatus(), CMeasurementContext::StatusNoBuffer);
    EXPECT_FLOAT_EQ(context.GetRecognisedBuffer(), 4.01f);
}

// ---- the polynomials against published buffer values ----

// Published pH of the buffers versus temperature: the NIST primary standards
// (tetroxalate 1.68, phthalate 4.01, equimolal phosphate 6.86, borax 9.18,
// carbonate 10.01, saturated calcium hydroxide 12.46), which DIN 19266 uses
// as well, and the usual table of the technical phosphate buffer 7.00.
struct Published
{
    const char *group;
    float nominal;
    float at10;
    float at25;
    float at40;
    float tolerance;   // largest difference the test accepts
};

constexpr Published kPublished[] = {
    {"USA", 12.46f, 13.003f, 12.454f, 11.984f, 0.030f},
    {"USA", 10.01f, 10.179f, 10.012f, 9.889f, 0.010f},
    {"USA", 7.00f, 7.06f, 7.00f, 6.97f, 0.010f},
    {"USA", 4.01f, 3.998f, 4.008f, 4.035f, 0.005f},
    {"USA", 1.68f, 1.670f, 1.679f, 1.694f, 0.005f},
    {"DIN", 9.18f, 9.332f, 9.180f, 9.068f, 0.005f},
    {"DIN", 6.86f, 6.923f, 6.865f, 6.838f, 0.005f},
    {"DIN", 4.01f, 3.998f, 4.008f, 4.035f, 0.005f},
    {"DIN", 1.68f, 1.670f, 1.679f, 1.694f, 0.005f},
};

const BufferRow *rowOf(const Published &p)
{
    const int group = BufferTable::groupIndex(QString::fromLatin1(p.group));
    const int first = group == 0 ? 0 : BufferTable::kUsaRows;
    const int count = group == 0 ? BufferTable::kUsaRows : BufferTable::kDinRows;
    for (int i = first; i < first + count; ++i) {
        if (BufferTable::rows()[i].nominal == p.nominal)
            return &BufferTable::rows()[i];
    }
    return nullptr;
}

float largestDifference(const Published &p, const BufferRow &row)
{
    const float t[3] = {10.0f, 25.0f, 40.0f};
    const float published[3] = {p.at10, p.at25, p.at40};
    float largest = 0.0f;
    for (int i = 0; i < 3; ++i)
        largest = std::fmax(largest, std::fabs(BufferTable::valueAt(row, t[i]) - published[i]));
    return largest;
}

QString tableText()
{
    QString text = QStringLiteral(
        "# Calibration buffers against published values\n\n"
        "The meter takes the pH of a recognised buffer at the measured temperature\n"
        "from a cubic in temperature (`src/meter/buffertable.cpp`). The table compares\n"
        "it with published values: the NIST primary standards (also those of\n"
        "DIN 19266) for 1.68, 4.01, 6.86, 9.18, 10.01 and 12.46, and the usual table\n"
        "of the technical buffer 7.00, whose values differ by about 0.01 between\n"
        "makers. Each cell is published / polynomial.\n\n"
        "This file is written by the unit test `unit_buffertable`:\n\n"
        "    KESTRUM_WRITE_DOCS=1 build/bin/unit_buffertable --gtest_filter='PublishedBuffers.*'\n\n"
        "and the same test fails when the file and the table disagree.\n\n"
        "| Group | Buffer | 10 °C | 25 °C | 40 °C | Largest difference |\n"
        "|---|---|---|---|---|---|\n");
    for (const Published &p : kPublished) {
        const BufferRow *row = rowOf(p);
        if (!row)
            continue;
        const float published[3] = {p.at10, p.at25, p.at40};
        const float t[3] = {10.0f, 25.0f, 40.0f};
        text += QStringLiteral("| %1 | %2 |").arg(QString::fromLatin1(p.group)).arg(p.nominal, 0, 'f', 2);
        for (int i = 0; i < 3; ++i)
            text += QStringLiteral(" %1 / %2 |")
                        .arg(published[i], 0, 'f', 3)
                        .arg(BufferTable::valueAt(*row, t[i]), 0, 'f', 3);
        text += QStringLiteral(" %1 |\n").arg(largestDifference(p, *row), 0, 'f', 3);
    }
    return text;
}

TEST(PublishedBuffers, PolynomialsFollowThePublishedValues)
{
    for (const Published &p : kPublished) {
        const BufferRow *row = rowOf(p);
        ASSERT_NE(row, nullptr) << p.group << " " << p.nominal;
        EXPECT_LE(largestDifference(p, *row), p.tolerance) << p.group << " " << p.nominal;
        // the window is centred on the nominal pH on the ideal slope
        const float centre = (row->lowerMv + row->upperMv) / 2.0f;
        EXPECT_NEAR(centre, (7.0f - p.nominal) * 59.16f, 1.0f) << p.nominal;
        EXPECT_FLOAT_EQ(row->upperMv - row->lowerMv, 120.0f);
    }
}

TEST(PublishedBuffers, TheDocumentedTableIsCurrent)
{
    const QString path = QStringLiteral(KESTRUM_SOURCE_DIR "/docs/buffers.md");
    const QString text = tableText();
    if (qEnvironmentVariableIsSet("KESTRUM_WRITE_DOCS")) {
        ASSERT_TRUE(writeTextFile(path, text));
    }
    EXPECT_EQ(readTextFile(path).toStdString(), text.toStdString())
        << "rewrite it with KESTRUM_WRITE_DOCS=1 build/bin/unit_buffertable";
}

}
