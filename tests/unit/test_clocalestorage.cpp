#include "models/calibrationmodel.h"
#include "models/measurementmodel.h"
#include "models/methodmodel.h"
#include "models/setupmodel.h"
#include "models/titrationcyclemodel.h"
#include "models/titrationmodel.h"
#include "models/titrationsetupmodel.h"
#include "system/clock.h"
#include "system/platform.h"
#include "testdatabase.h"

#include <QCoreApplication>
#include <QLocale>
#include <QSqlQuery>
#include <gtest/gtest.h>

#include <memory>

// The instrument may run in German or French; what is stored and what is
// handed to the clock command must read the same in every language. This
// binary starts with a German system locale and a French default locale.

namespace {

QVariant cell(const QString &sql)
{
    QSqlQuery q;
    if (!q.exec(sql) || !q.next())
        return QVariant();
    return q.value(0);
}

class CLocaleStorage : public ::testing::Test
{
protected:
    TestDatabase db;
    ManualClock clock{QDateTime(QDate(2026, 3, 14), QTime(21, 5, 0))};
    void SetUp() override { Clock::setSource(&clock); }
    void TearDown() override { Clock::setSource(nullptr); }
};

TEST_F(CLocaleStorage, TheLocaleOfThisRunWouldChangeNaiveTexts)
{
    ASSERT_EQ(QStringLiteral("de_DE"), QLocale::system().name());
    ASSERT_EQ(QStringLiteral("fr_FR"), QLocale().name());
    const QDateTime t = clock.now();
    EXPECT_NE(QStringLiteral("14 Mar 2026"), QLocale::system().toString(t, QStringLiteral("dd MMM yyyy")));
    EXPECT_NE(QStringLiteral("14 Mar 2026"), QLocale().toString(t, QStringLiteral("dd MMM yyyy")));
    EXPECT_NE(QStringLiteral("0.5"), QLocale().toString(0.5));
}

TEST_F(CLocaleStorage, TheClockCommandReadsTheSameInEveryLanguage)
{
    const QDateTime t = clock.now();
    EXPECT_EQ(QStringLiteral("14 Mar 2026 21:05:00"), SetupModel::clockText(t, t));
    EXPECT_EQ(QStringLiteral("14 Mar 2026 09:30:00"), SetupModel::clockText2(QStringLiteral("09:30:00"), t));
    // The pages set the clock through the platform layer, date and time apart.
    Platform::clearRecordedCommands();
    SetupModel setup;
    setup.setupSysDateTime(t, t);
    setup.setupSysDateTime2(QStringLiteral("00:30:00"), t);
    setup.saveHardwareClock();
    EXPECT_EQ(Platform::recordedCommands(),
              QStringList({QStringLiteral("date -s 14 Mar 2026 21:05:00"), QStringLiteral("date -s 14 Mar 2026 00:30:00"),
                           QStringLiteral("/sbin/hwclock -w")}));
}

TEST_F(CLocaleStorage, StoredRunTextsAndNumbersDoNotChange)
{
    MethodModel method;
    TitrationSetupModel *titration = method.titrationSetupModel();
    titration->setSampleDensity(0.5f);
    titration->setSampleAmountValue(12.75f);
    titration->setTitrationSetupValues(QStringLiteral("pH"));
    EXPECT_EQ(QStringLiteral("0.5"), cell(QStringLiteral("SELECT sampleDensity FROM titrationSetupTable")).toString());
    EXPECT_EQ(QStringLiteral("12.75"), cell(QStringLiteral("SELECT sampleAmountValue FROM titrationSetupTable")).toString());

    TitrationModel *run = method.titrationModel();
    run->setMethodId(MethodModel::scratchMethodId);
    run->setTitrationType(QStringLiteral("Titration"));
    run->setCycleno(1);
    run->currentTitrationCycle()->addPoint(1.5f, 7.0f, 0.01f, QStringLiteral("pH"));
    clock.advance(3723000);
    const float results[3] = {0.125f, 0.0f, 0.0f};
    const float volumes[3] = {1.5f, 0.0f, 0.0f};
    run->updateTitrationCompletion(results, volumes);
    ASSERT_TRUE(run->setTitrationValues(false));
    EXPECT_EQ(QStringLiteral("(1.500|7.00)"), cell(QStringLiteral("SELECT graphPoints FROM titrationCycleTable")).toString());
    EXPECT_EQ(QStringLiteral("01:02:03"), cell(QStringLiteral("SELECT runningDuration FROM titrationCycleTable")).toString());
    EXPECT_EQ(QStringLiteral("03/14/2026 | 10:07 PM"), cell(QStringLiteral("SELECT lastRunTime FROM titrationCycleTable")).toString());
    EXPECT_EQ(QStringLiteral("10:07 PM | 03/14/2026"),
              cell(QStringLiteral("SELECT lastTitration FROM methodSetupTable WHERE id=99999")).toString());
}

TEST_F(CLocaleStorage, StoredMeterAndCalibrationNumbersDoNotChange)
{
    CalibrationModel calibration;
    calibration.setResolution(0.01f);
    ASSERT_TRUE(calibration.setCalibrationValues(false, {}, QStringLiteral("INSERT")));
    EXPECT_EQ(QStringLiteral("0.01"), cell(QStringLiteral("SELECT resolution FROM calibrationTable")).toString());
    MeasurementModel meter;
    meter.createMeasurementTableAndLoadModel();
    meter.setTemp(23.25f);
    ASSERT_TRUE(meter.setMeasurementValues(&meter));
    EXPECT_EQ(QStringLiteral("23.25"), cell(QStringLiteral("SELECT temperature FROM MeasurementTable")).toString());
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("LC_ALL", "de_DE.UTF-8");
    qputenv("LC_TIME", "de_DE.UTF-8");
    qputenv("LANG", "de_DE.UTF-8");
    QCoreApplication app(argc, argv);
    QLocale::setDefault(QLocale(QLocale::French, QLocale::France));
    ::testing::InitGoogleTest(&argc, argv);
    TempSandbox sandbox;
    return RUN_ALL_TESTS();
}
