#include "models/calibrationcyclemodel.h"
#include "models/calibrationmodel.h"
#include "models/measurementmodel.h"
#include "models/methodmodel.h"
#include "models/mkaadditionmodel.h"
#include "models/mkatitrationcyclemodel.h"
#include "models/setupmodel.h"
#include "models/titrationcyclemodel.h"
#include "models/titrationmodel.h"
#include "system/clock.h"
#include "testdatabase.h"
#include "testsupport.h"
#include "system/beeper.h"
#include "system/platform.h"
#include "resourcemanager.h"

#include <QImage>
#include <QSignalSpy>
#include <QSqlQuery>
#include <QSqlRecord>
#include <gtest/gtest.h>

#include <memory>

// The records of runs, calibrations, the meter and the settings, checked in
// the tables as the log screens and a restart read them.

namespace {

QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

QVariant cell(const QString &sql)
{
    QSqlQuery q;
    if (!q.exec(sql) || !q.next())
        return QVariant();
    return q.value(0);
}

// Collects what the models log, to see that a failure was told.
QStringList g_log;
void collect(QtMsgType, const QMessageLogContext &, const QString &message)
{
    g_log << message;
}

struct LogCapture {
    QtMessageHandler previous;
    LogCapture() : previous(qInstallMessageHandler(collect)) { g_log.clear(); }
    ~LogCapture() { qInstallMessageHandler(previous); }
    bool contains(const char *text) const
    {
        for (const QString &line : g_log) {
            if (line.contains(QLatin1String(text)))
                return true;
        }
        return false;
    }
};

class Records : public ::testing::Test
{
protected:
    TestDatabase db;
    ManualClock clock{QDateTime(QDate(2026, 3, 14), QTime(21, 5, 0))};

    void SetUp() override { Clock::setSource(&clock); }
    void TearDown() override { Clock::setSource(nullptr); }
};

TEST_F(Records, TableColumnsStandInTheirOrder)
{
    TitrationModel run;
    CalibrationModel calibration;
    MeasurementModel meter;
    meter.createMeasurementTableAndLoadModel();
    SetupModel setup;
    EXPECT_EQ(words("id titrationType titrationDateTime methodName titrantName titrantPercentage sensorName cycleno "
                    "methodId mcreatedAt mupdatedAt"),
              TestDatabase::columns(QStringLiteral("titrationTable")));
    EXPECT_EQ(words("id cycleNo sampleId calcon calcon2 calcon3 veqp veqp2 veqp3 initialpH inclInAvg titrationId "
                    "graphPoints mcreatedAt mupdatedAt lastRunTime sampleAmountValue reagentAmountValue "
                    "standAmountValue temperature runningDuration cycleImage epValue1 epValue2"),
              TestDatabase::columns(QStringLiteral("titrationCycleTable")));
    EXPECT_EQ(words("id cycleNo titrationID avgCalconc avgVolume sampleAmountValue temperature runningDuration "
                    "avgmVvalue avgPrecision spikeRecovery slope mcreatedAt mupdatedAt lastRuntime inclAvg"),
              TestDatabase::columns(QStringLiteral("mkaTitrationCycleTable")));
    EXPECT_EQ(words("id additionNo cycleNo titrationID volume mVvalue calConc precision mcreatedAt mupdatedAt drift "
                    "slope E0"),
              TestDatabase::columns(QStringLiteral("mkaAdditionTable")));
    EXPECT_EQ(words("id electrodeSetupId electrodeName electrodeType bufferGroup resolution iseType significantDigits "
                    "directMeasureUnit methodId calNo sampleId stirSpeed mcreatedAt mupdatedAt avgSlope"),
              TestDatabase::columns(QStringLiteral("calibrationTable")));
    EXPECT_EQ(words("id calibrationID timestamp voltage volume slope calValue temperature cycleNo offset "
                    "temperatureMode resolution mcreatedAt mupdatedAt buffer"),
              TestDatabase::columns(QStringLiteral("calibrationCycleTable")));
    EXPECT_EQ(words("id readMode iseType bufferGroup resolution stirSpeed sampleId sampleIdValue significantDigit "
                    "directMeasurementUnit scaledValue mv sensorName temperature calibrationTime isAtc methodId "
                    "mcreatedAt mupdatedAt calLogId calAvg calDateTime"),
              TestDatabase::columns(QStringLiteral("MeasurementTable")));
    EXPECT_EQ(words("id language date dateFormat_Index time timeFormat_Index temperatureFormat_Index instrumentName "
                    "displaybrightness temperatureInput temperatureInputAtc temperatureOffset screenSensitivity "
                    "screenSaverTime buretteSize installationDate currentMethodId isDataUpdated mcreatedAt mupdatedAt "
                    "isTitrationCycleCompleteNotifOn isMaxTitrantVolNotifOn isDatalogFullNotifOn "
                    "isMaintainanceDueNotifOn isPhCalibrationNotifOn isRedoxCalibrationNotifOn "
                    "isIseCalibrationNotifOn phCalibrationDue redoxCalibrationDue iseCalibrationDue maintainanceDue "
                    "maintainanceScheduledAt"),
              TestDatabase::columns(QStringLiteral("setupTable")));
}

// A run as the controller drives it: each cycle is made when it starts,
// gets its points, and is completed by the results.
class RunRecords : public Records
{
protected:
    std::unique_ptr<MethodModel> method;
    TitrationModel *run = nullptr;

    void SetUp() override
    {
        Records::SetUp();
        method.reset(new MethodModel());
        run = method->titrationModel();
        run->setMethodId(MethodModel::scratchMethodId);
        run->setMethodName(QStringLiteral("Chloride"));
        run->setTitrationType(QStringLiteral("Titration"));
    }

    void runCycle(int number, qint64 durationMs, float result, float volume)
    {
        run->setCycleno(number);
        run->setSampleAmountValue(10.0f + number);
        run->setTemperature(24.5f);
        run->currentTitrationCycle()->addPoint(0.0f, 3.0f + number, 0.01f, QStringLiteral("pH"));
        clock.advance(durationMs);
        run->currentTitrationCycle()->addPoint(volume, 7.0f, 0.01f, QStringLiteral("pH"));
        const float results[3] = {result, result * 2, 0.0f};
        const float volumes[3] = {volume, volume * 2, 0.0f};
        run->updateTitrationCompletion(results, volumes);
    }
};

TEST_F(RunRecords, ThreeCyclesOneExcludedAreStoredAndReadBackByPosition)
{
    runCycle(1, 3723000, 0.1234567f, 9.876f);
    runCycle(2, 65000, 0.2f, 10.5f);
    runCycle(3, 1000, 0.3f, 11.0f);
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(Qt::blue);
    run->insertCycleImage(image);
    run->titrationCycle(1)->setInclInAvg(0);
    ASSERT_TRUE(run->setTitrationValues(true));

    QSqlQuery q;
    q.prepare(QStringLiteral("SELECT * FROM titrationCycleTable where titrationId = :id ORDER BY cycleNo"));
    q.bindValue(QStringLiteral(":id"), run->id());
    ASSERT_TRUE(q.exec());
    const float results[3] = {0.1234567f, 0.2f, 0.3f};
    const float volumes[3] = {9.876f, 10.5f, 11.0f};
    const char *durations[3] = {"01:02:03", "00:01:05", "00:00:01"};
    for (int i = 0; i < 3; ++i) {
        ASSERT_TRUE(q.next());
        const QSqlRecord r = q.record();
        EXPECT_EQ(i + 1, r.value(1).toInt());
        EXPECT_EQ(results[i], r.value(3).toFloat()) << "calcon, exactly";
        EXPECT_EQ(results[i] * 2, r.value(4).toFloat());
        EXPECT_EQ(volumes[i], r.value(6).toFloat()) << "veqp, exactly";
        EXPECT_EQ(i == 1 ? 0 : 1, r.value(10).toInt()) << "inclInAvg";
        EXPECT_EQ(run->id(), r.value(11).toInt());
        // The run is written when it ends: 21:05:00 + 3723 s + 65 s + 1 s.
        EXPECT_EQ(QStringLiteral("03/14/2026 | 10:08 PM"), r.value(15).toString()) << "lastRunTime of the run";
        EXPECT_EQ(10.0f + (i + 1), r.value(16).toFloat());
        EXPECT_EQ(24.5f, r.value(19).toFloat());
        EXPECT_EQ(QString::fromLatin1(durations[i]), r.value(20).toString());
        // And as the log screens load it.
        std::unique_ptr<TitrationCycleModel> loaded(TitrationCycleModel::fromRecord(r));
        EXPECT_EQ(results[i], loaded->calCon());
        EXPECT_EQ(QString::fromLatin1(durations[i]), loaded->runningDurationText());
        EXPECT_EQ(run->titrationCycle(i)->graphPoints(), loaded->graphPoints());
    }
    EXPECT_FALSE(q.next());
    EXPECT_EQ(QStringLiteral("(0.000|4.00),(9.876|7.00)"), run->titrationCycle(0)->graphPoints());
    const QByteArray png = cell(QStringLiteral("SELECT cycleImage FROM titrationCycleTable WHERE cycleNo=3")).toByteArray();
    EXPECT_TRUE(png.startsWith("\x89PNG"));
    EXPECT_FALSE(QImage::fromData(png, "PNG").isNull());

    // The method shows when it last ran, in memory and in its row.
    const QString when = QStringLiteral("10:08 PM | 03/14/2026");
    EXPECT_EQ(when, method->lastTitration());
    EXPECT_EQ(when, cell(QStringLiteral("SELECT lastTitration FROM methodSetupTable WHERE id=99999")).toString());
    EXPECT_EQ(1, cell(QStringLiteral("SELECT isChangeFromHome FROM methodSetupTable WHERE id=99999")).toInt());

    // A box ticked back on in the summary: the flag moves, the result stays.
    const int second = cell(QStringLiteral("SELECT id FROM titrationCycleTable WHERE cycleNo=2")).toInt();
    run->updateInculeInAvgCondition(second, true);
    EXPECT_EQ(1, cell(QStringLiteral("SELECT inclInAvg FROM titrationCycleTable WHERE cycleNo=2")).toInt());
    EXPECT_EQ(0.2f, cell(QStringLiteral("SELECT calcon FROM titrationCycleTable WHERE cycleNo=2")).toFloat());
}

TEST_F(RunRecords, ABlankRunCountsAsTheLastStandardisation)
{
    run->setTitrationType(QStringLiteral("Direct Blank"));
    runCycle(1, 1000, 0.02f, 0.2f);
    ASSERT_TRUE(run->setTitrationValues(false));
    EXPECT_EQ(QStringLiteral("09:05 PM | 03/14/2026"), method->lastStandardization());
    EXPECT_TRUE(method->lastTitration().isEmpty());
    EXPECT_EQ(QDateTime(QDate(2026, 3, 14), QTime(21, 5, 1)), run->getLastBlankInput(QStringLiteral("Direct Blank")));
    EXPECT_FALSE(run->getLastBlankInput(QStringLiteral("Back Blank")).isValid());
}

TEST_F(RunRecords, AStoppedCycleNeverGetsARow)
{
    runCycle(1, 1000, 0.1f, 5.0f);
    run->setCycleno(2);
    run->setDirectMeasureData();
    EXPECT_EQ(2, run->titrationCyclesCount());
    run->stopCycle();
    EXPECT_EQ(1, run->titrationCyclesCount());
    ASSERT_TRUE(run->setTitrationValues(false));
    EXPECT_EQ(1, TestDatabase::rowCount(QStringLiteral("titrationCycleTable")));
}

TEST_F(RunRecords, GraphPointsFollowTheResolutionInPhAndOneDecimalInMillivolts)
{
    TitrationCycleModel cycle;
    cycle.addPoint(1.5f, 7.0f, 0.01f, QStringLiteral("pH"));
    EXPECT_EQ(QStringLiteral("(1.500|7.00)"), cycle.graphPoints());
    cycle.addPoint(2.25f, 7.1234f, 0.1f, QStringLiteral("pH"));
    cycle.addPoint(3.0f, 7.1234f, 0.001f, QStringLiteral("pH"));
    cycle.addPoint(3.5f, -123.456f, 0.001f, QStringLiteral("mV"));
    EXPECT_EQ(QStringLiteral("(1.500|7.00),(2.250|7.1),(3.000|7.123),(3.500|-123.5)"), cycle.graphPoints());
}

TEST_F(RunRecords, AFailedInsertLeavesNoOrphanRowsAndIsLogged)
{
    runCycle(1, 1000, 0.1f, 5.0f);
    runCycle(2, 1000, 0.2f, 6.0f);
    runCycle(3, 1000, 0.3f, 7.0f);
    ASSERT_TRUE(TestDatabase::exec(QStringLiteral(
        "CREATE TRIGGER refuseThird BEFORE INSERT ON titrationCycleTable WHEN NEW.cycleNo = 3 "
        "BEGIN SELECT RAISE(ABORT, 'cycle refused'); END")));
    {
        LogCapture log;
        EXPECT_FALSE(run->setTitrationValues(false));
        EXPECT_TRUE(log.contains("cycle refused"));
    }
    EXPECT_EQ(0, TestDatabase::rowCount(QStringLiteral("titrationTable")));
    EXPECT_EQ(0, TestDatabase::rowCount(QStringLiteral("titrationCycleTable")));
    EXPECT_TRUE(cell(QStringLiteral("SELECT lastTitration FROM methodSetupTable WHERE id=99999")).toString().isEmpty());
    EXPECT_EQ(3, run->titrationCyclesCount()) << "the run stays in memory";

    // The run itself refused: no cycle is written under a stale id.
    ASSERT_TRUE(TestDatabase::exec(QStringLiteral("DROP TRIGGER refuseThird")));
    ASSERT_TRUE(TestDatabase::exec(QStringLiteral(
        "CREATE TRIGGER refuseRun BEFORE INSERT ON titrationTable BEGIN SELECT RAISE(ABORT, 'run refused'); END")));
    {
        LogCapture log;
        EXPECT_FALSE(run->setTitrationValues(false));
        EXPECT_TRUE(log.contains("run refused"));
    }
    EXPECT_EQ(0, TestDatabase::rowCount(QStringLiteral("titrationCycleTable")));
    ASSERT_TRUE(TestDatabase::exec(QStringLiteral("DROP TRIGGER refuseRun")));
    EXPECT_TRUE(run->setTitrationValues(false));
    EXPECT_EQ(3, TestDatabase::rowCount(QStringLiteral("titrationCycleTable")));
}

TEST_F(RunRecords, KnownAdditionCyclesAndAdditionsFromTheScreens)
{
    run->setElectrodeType(QStringLiteral("ISE-MKA"));
    const QString cycles = QStringLiteral(
        "{\"avgCalconc\":0.0125,\"avgPrecision\":1.5,\"avgVolume\":0.3,\"avgmVvalue\":-42.5,\"cycleno\":1,"
        "\"inclAvg\":1,\"runningDuration\":\"00:04:10\",\"sampleAmountValue\":50,\"slope\":-58.1,"
        "\"spikeRecovery\":98.5,\"temperature\":25} | not json | "
        "{\"avgCalconc\":0.0127,\"cycleno\":2,\"inclAvg\":0,\"runningDuration\":\"00:03:59\"}");
    const QString additions = QStringLiteral(
        "{\"additionNo\":1,\"cycleno\":1,\"volume\":0.1,\"mVvalue\":-40.1,\"calConc\":0.012,\"precision\":999,"
        "\"drift\":0.2,\"slope\":-58,\"E0\":101.5} | {\"volume\":1}");
    {
        LogCapture log;
        run->mkaCycleInput(cycles, additions);
        EXPECT_TRUE(log.contains("not a JSON object"));
    }
    ASSERT_EQ(2, run->mkaTitrationCycles().size());
    ASSERT_EQ(1, run->mkaAdditionCycles().size());
    ASSERT_TRUE(run->setTitrationValues(false));

    QSqlQuery q(QStringLiteral("SELECT * FROM mkaTitrationCycleTable ORDER BY cycleNo"));
    ASSERT_TRUE(q.next());
    EXPECT_EQ(run->id(), q.value(2).toInt());
    EXPECT_EQ(0.0125f, q.value(3).toFloat());
    EXPECT_EQ(QStringLiteral("00:04:10"), q.value(7).toString());
    EXPECT_EQ(QStringLiteral("03/14/2026 | 09:05 PM"), q.value(14).toString());
    ASSERT_TRUE(q.next());
    EXPECT_EQ(0, q.value(15).toInt());
    const int second = q.value(0).toInt();
    run->updateInculeInAvgConditioninMKA(second, true);
    EXPECT_EQ(1, cell(QStringLiteral("SELECT inclAvg FROM mkaTitrationCycleTable WHERE cycleNo=2")).toInt());
    QSqlQuery a(QStringLiteral("SELECT * FROM mkaAdditionTable"));
    ASSERT_TRUE(a.next());
    EXPECT_EQ(run->id(), a.value(3).toInt());
    EXPECT_EQ(-40.1f, a.value(5).toFloat());
    EXPECT_EQ(101.5f, a.value(12).toFloat());
    EXPECT_EQ(0, TestDatabase::rowCount(QStringLiteral("titrationCycleTable")));
}

TEST_F(Records, ACalibrationIsStoredWithItsPointsAndSlopeEdits)
{
    CalibrationModel calibration;
    EXPECT_GE(calibration.id(), 1);
    EXPECT_LE(calibration.id(), 10);
    calibration.setElectrodeName(QStringLiteral("HI1131"));
    calibration.setElectrodeType(QStringLiteral("pH"));
    calibration.setResolution(0.01f);
    calibration.setStirSpeed(3);
    calibration.setAvgSlope(98.5);
    QList<CalibrationCycleModel *> points;
    for (int i = 0; i < 3; ++i) {
        auto *p = new CalibrationCycleModel(&calibration);
        p->setCalValue(4.01f + 3 * i);
        p->setVoltage(177.3f - 177.0f * i);
        p->setSlope(98.0f + i);
        p->setTemperatureMode(QStringLiteral("ATC"));
        points << p;
        clock.advance(1000);
    }
    ASSERT_TRUE(calibration.setCalibrationValues(false, points, QStringLiteral("INSERT")));
    EXPECT_GT(calibration.id(), 0);
    QSqlQuery c(QStringLiteral("SELECT * FROM calibrationTable"));
    ASSERT_TRUE(c.next());
    EXPECT_TRUE(c.value(1).isNull()) << "electrodeSetupId";
    EXPECT_TRUE(c.value(9).isNull()) << "methodId";
    EXPECT_EQ(QStringLiteral("0.01"), c.value(5).toString());
    EXPECT_EQ(QStringLiteral("USA"), c.value(4).toString());
    EXPECT_EQ(QStringLiteral("3"), c.value(12).toString());
    QSqlQuery p(QStringLiteral("SELECT * FROM calibrationCycleTable ORDER BY datetime(mcreatedAt)"));
    int n = 0;
    while (p.next()) {
        EXPECT_EQ(QString::number(calibration.id()), p.value(1).toString());
        EXPECT_TRUE(p.value(8).isNull()) << "cycleNo is numbered on loading";
        ++n;
    }
    EXPECT_EQ(3, n);
    EXPECT_EQ(QStringLiteral("177.3"), cell(QStringLiteral("SELECT voltage FROM calibrationCycleTable LIMIT 1")).toString());

    points.at(1)->updateSlopeValue(97.25f);
    calibration.updateAvgSlopeValue(97.5f);
    EXPECT_EQ(QStringLiteral("97.25"),
              cell(QStringLiteral("SELECT slope FROM calibrationCycleTable WHERE id=%1").arg(points.at(1)->id())).toString());
    EXPECT_DOUBLE_EQ(97.5, cell(QStringLiteral("SELECT avgSlope FROM calibrationTable")).toDouble());

    // A refused calibration stores none of its points.
    ASSERT_TRUE(TestDatabase::exec(QStringLiteral(
        "CREATE TRIGGER refuse BEFORE INSERT ON calibrationCycleTable WHEN NEW.calValue = '10.01' "
        "BEGIN SELECT RAISE(ABORT, 'point refused'); END")));
    CalibrationModel second;
    LogCapture log;
    EXPECT_FALSE(second.setCalibrationValues(false, points, QStringLiteral("INSERT")));
    EXPECT_TRUE(log.contains("point refused"));
    EXPECT_EQ(1, TestDatabase::rowCount(QStringLiteral("calibrationTable")));
    EXPECT_EQ(3, TestDatabase::rowCount(QStringLiteral("calibrationCycleTable")));
}

TEST_F(Records, TheMeterStateIsOneRowThatSurvivesARestart)
{
    {
        MeasurementModel meter;
        meter.createMeasurementTableAndLoadModel();
        EXPECT_GE(meter.id(), 10000);
        EXPECT_LE(meter.id(), 15000);
        meter.setReadMode(QStringLiteral("Redox"));
        meter.setIseType(QStringLiteral("Ammonia (NH3)"));
        meter.setSampleId(QStringLiteral("Manual"));
        meter.setSampleIdValue(QStringLiteral("Tank 4"));
        meter.setTemp(23.25f);
        meter.setIsATC(true);
        ASSERT_TRUE(meter.setMeasurementValues(&meter));
    }
    ASSERT_TRUE(db.reopen());
    MeasurementModel meter;
    meter.createMeasurementTableAndLoadModel();
    EXPECT_EQ(1, TestDatabase::rowCount(QStringLiteral("MeasurementTable")));
    EXPECT_EQ(QStringLiteral("Redox"), meter.readMode());
    EXPECT_TRUE(meter.iseType().isEmpty()) << "a leftover ion type is cleaned up";
    EXPECT_EQ(QStringLiteral("Tank 4"), meter.sampleIDManual());
    EXPECT_TRUE(meter.sampleIDAutoInc().isEmpty());
    EXPECT_EQ(23.25f, meter.temp());
    EXPECT_TRUE(meter.isATC());
    ASSERT_TRUE(TestDatabase::exec(QStringLiteral("UPDATE MeasurementTable SET isAtc=2")));
    MeasurementModel again;
    again.createMeasurementTableAndLoadModel();
    EXPECT_FALSE(again.isATC());
}

TEST_F(Records, TheSettingsRowTakesDefaultsOnFirstStartAndKeepsChanges)
{
    {
        SetupModel setup;
        EXPECT_FALSE(setup.isSetupLoaded());
        EXPECT_EQ(1, TestDatabase::rowCount(QStringLiteral("setupTable")));
        QSqlQuery q(QStringLiteral("SELECT * FROM setupTable"));
        ASSERT_TRUE(q.next());
        EXPECT_EQ(101, q.value(0).toInt());
        EXPECT_EQ(QStringLiteral("3"), q.value(8).toString());
        EXPECT_EQ(25.0, q.value(9).toDouble());
        EXPECT_EQ(QStringLiteral("20"), q.value(14).toString());
        EXPECT_EQ(99999, q.value(16).toInt());
        EXPECT_EQ(0, q.value(17).toInt());
        EXPECT_EQ(1, q.value(20).toInt());
        EXPECT_EQ(1, q.value(21).toInt());
        EXPECT_EQ(0, q.value(24).toInt());
        EXPECT_EQ(24, q.value(27).toInt());
        EXPECT_EQ(24, q.value(29).toInt());
        EXPECT_EQ(0, q.value(30).toInt());

        setup.setInstrumentName(QStringLiteral("Lab 2"));
        setup.setDisplayBrightness(5);
        setup.setIsDataUpdated(true);
        setup.setTemperatureInput(21.5f);
        ASSERT_TRUE(setup.setSetupValues());
        setup.updatePhCalibrationDue(48);
        setup.updateRedoxCalibrationNotifOn(true);
        setup.setTemperatureOffset(0.7f);
    }
    ASSERT_TRUE(db.reopen());
    SetupModel setup;
    EXPECT_TRUE(setup.isSetupLoaded());
    EXPECT_EQ(1, TestDatabase::rowCount(QStringLiteral("setupTable")));
    EXPECT_EQ(QStringLiteral("Lab 2"), setup.instrumentName());
    EXPECT_EQ(5, setup.displayBrightness());
    EXPECT_EQ(5, setup.tempDisplayBrightness());
    EXPECT_TRUE(setup.isDataUpdated());
    EXPECT_EQ(21.5f, setup.temperatureInput());
    EXPECT_EQ(48, setup.phCalibrationDue());
    EXPECT_TRUE(setup.isRedoxCalibrationNotifOn());
    EXPECT_EQ(0.0f, setup.getTemperatureOffset()) << "the offset alone is not stored";

    // A switch holds only for a stored 1.
    ASSERT_TRUE(TestDatabase::exec(QStringLiteral("UPDATE setupTable SET isPhCalibrationNotifOn=2, isDataUpdated=2")));
    SetupModel third;
    EXPECT_FALSE(third.isPhCalibrationNotifOn());
    EXPECT_TRUE(third.isDataUpdated());

    // The reset takes the first start's values (12-hour form, °C, 25 °C).
    third.resetSetupValues();
    EXPECT_EQ(0, third.timeFormat_Index());
    EXPECT_EQ(0, third.temperatureFormat_Index());
    EXPECT_EQ(25.0f, third.temperatureInput());
    EXPECT_TRUE(third.instrumentName().isEmpty());
    EXPECT_EQ(QStringLiteral("Lab 2"), cell(QStringLiteral("SELECT instrumentName FROM setupTable")).toString())
        << "a reset is memory only";
}

TEST_F(Records, TheMaintenanceScheduleRunsOnePeriodAheadInTheTable)
{
    SetupModel setup;
    const QDateTime start = clock.now().addMonths(-4);
    setup.setDate(start);
    ASSERT_TRUE(setup.setSetupValues());
    setup.updateMaintainanceDue(3);
    EXPECT_EQ(start.addMonths(6), setup.maintainanceScheduledAt());
    EXPECT_EQ(start.addMonths(9), cell(QStringLiteral("SELECT maintainanceScheduledAt FROM setupTable")).toDateTime());
    EXPECT_EQ(3, cell(QStringLiteral("SELECT maintainanceDue FROM setupTable")).toInt());
}

// The reminder at start-up sounds and leaves only on the day the schedule
// names, and then moves the schedule on; the tone is 440 Hz.
TEST_F(Records, TheMaintenanceReminderSoundsOnItsDayOnly)
{
    TempSandbox sandbox;
    const struct { int daysAfterStart; bool raised; } rows[] = {{0, true}, {1, false}, {-1, false}};
    for (const auto &r : rows) {
        SetupModel setup;
        setup.setDate(clock.now().addMonths(-2));
        setup.setIsMaintainanceDueNotifOn(true);
        setup.updateMaintainanceDue(1);
        ASSERT_EQ(clock.now(), setup.maintainanceScheduledAt());
        setup.setMaintainanceScheduledAt(clock.now().addDays(r.daysAfterStart));
        QSignalSpy notified(&setup, &SetupModel::notificationSignal);
        Platform::clearRecordedCommands();
        setup.startMaintainanceNotification();
        ASSERT_EQ(notified.count(), r.raised ? 1 : 0) << r.daysAfterStart;
        if (!r.raised)
            continue;
        EXPECT_EQ(9, notified.at(0).at(0).value<QVariant>().toInt());
        EXPECT_TRUE(Platform::recordedCommands().contains(QStringLiteral("write /sys/class/pwm/pwmchip0/pwm0/period 2272728")));
        EXPECT_TRUE(setup.beeper().isStopPending());
        EXPECT_EQ(SetupModel::notificationToneMs, setup.beeper().stopDelayMs());
        EXPECT_EQ(clock.now().addMonths(1), cell(QStringLiteral("SELECT maintainanceScheduledAt FROM setupTable")).toDateTime());
    }
}

// The end of a run sounds by the name and the two switches: the first
// note's period tells which sound it was.
TEST_F(Records, TheEndOfARunSoundsAsTheNameAndTheSwitchesSay)
{
    TempSandbox sandbox;
    SetupModel setup;
    ResourceManager rm;
    rm.setSetup(&setup);
    const struct { const char *name; bool maxReached, cycleOn, maxOn; int hz; } rows[] = {
        {"Lab", false, true, true, 440},
        {"Lab", true, true, true, 988},     // the warning tune
        {"Lab", true, true, false, 440},
        {"Lab", false, false, true, 0},     // silent
        {"SS Enterprise", false, false, false, 294},
        {"Death Star", true, true, true, 392},
    };
    for (const auto &r : rows) {
        setup.setInstrumentName(QString::fromLatin1(r.name));
        setup.setTitrationCycleCompleteNotification(r.cycleOn);
        setup.setMaxTitrantVolumeNotification(r.maxOn);
        Platform::clearRecordedCommands();
        rm.titrationNotificationResponse(r.maxReached);
        const QStringList written = Platform::recordedCommands().filter(QStringLiteral("/period "));
        if (r.hz == 0) {
            EXPECT_TRUE(written.isEmpty()) << r.name;
        } else {
            ASSERT_FALSE(written.isEmpty()) << r.name;
            EXPECT_EQ(written[0], QStringLiteral("write %1 %2").arg(QLatin1String(Beeper::periodPath)).arg(Beeper::periodNs(r.hz)))
                << r.name << " " << r.maxReached;
        }
        for (int i = 0; i < 10; ++i)
            rm.stopBeep(); // to the end of any tune
    }
}

TEST_F(Records, SettingsKnowTheLastCalibrationOfEachKind)
{
    SetupModel setup;
    CalibrationModel ph;
    ph.setAvgSlope(97.0);
    ASSERT_TRUE(ph.setCalibrationValues(false, {}, QStringLiteral("INSERT")));
    clock.advance(60000);
    CalibrationModel atc;
    atc.setElectrodeType(QStringLiteral("ATC"));
    ASSERT_TRUE(atc.setCalibrationValues(false, {}, QStringLiteral("INSERT")));
    EXPECT_FALSE(setup.pHLastCalibrationTime().isValid());
    setup.getLastCalibrationTime();
    EXPECT_EQ(QDateTime(QDate(2026, 3, 14), QTime(21, 5, 0)), setup.pHLastCalibrationTime());
    EXPECT_EQ(97.0f, setup.pHLastCalibrationAvg());
    EXPECT_FALSE(setup.redoxLastCalibrationTime().isValid());
    EXPECT_FALSE(setup.iseLastCalibrationTime().isValid());
}

} // namespace
