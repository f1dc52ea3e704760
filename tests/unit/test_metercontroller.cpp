// The meter controller fed sample by sample: direct measurement and its
// stability count, the calibration flow with its refusals, the stored
// calibration as the next start and the run's conversions find it, the
// measurement log entry, and the calibration-due check of the settings.

#include "controller/metercontroller.h"
#include "controller/mspcontroller.h"
#include "datamanagerbase.h"
#include "meter/cmeasurementcontext.h"
#include "meterrecords.h"
#include "models/calibrationcyclemodel.h"
#include "models/calibrationmodel.h"
#include "models/electrodesetupmodel.h"
#include "models/measurementlogmodel.h"
#include "models/measurementmodel.h"
#include "models/setupmodel.h"
#include "system/clock.h"
#include "testdatabase.h"
#include "testdatalayer.h"

#include <QSignalSpy>
#include <QSqlQuery>
#include <QSqlRecord>
#include <gtest/gtest.h>

#include <cmath>
#include <memory>

namespace {

constexpr double kIdeal = 59.16;

// The potential of an electrode of `percent` slope and `e0` mV offset in a
// solution of `pH` at `celsius`.
double electrodeMv(double pH, double percent, double e0, double celsius)
{
    return e0 - percent / 100.0 * kIdeal * (celsius + 273.15) / 298.15 * (pH - 7.0);
}

QVariant cell(const QString &sql)
{
    QSqlQuery q;
    if (!q.exec(sql) || !q.next())
        return QVariant();
    return q.value(0);
}

class Meter : public ::testing::Test
{
protected:
    void SetUp() override { restart(); }
    void TearDown() override
    {
        mc.reset();
        dm.reset();
    }

    // New objects on the same database file, as after a restart.
    void restart()
    {
        mc.reset();
        dm.reset();
        db.reopen();
        dm = startedDataManager();
        mc = std::make_unique<MeterController>(nullptr, dm.get());
        dm->engine()->setRawTemperatureCelcius(25.0f);
    }

    void measurePh(float resolution = 0.01f)
    {
        MeasurementModel *m = dm->measurementModel();
        m->setReadMode(QStringLiteral("pH"));
        m->setResolution(resolution);
        m->setBufferGroup(QStringLiteral("USA"));
        dm->setDeviceMode(QStringLiteral("Measurement"));
        mc->qmlStartMeasure();
    }

    // Feeds one potential until the meter reports a stable reading; the
    // number of samples it took, 0 if it never did.
    int feedUntilStable(double mv, int limit = 200)
    {
        QSignalSpy stable(mc.get(), &MeterController::qmlStableCalibration);
        for (int n = 1; n <= limit; ++n) {
            mc->execute(0, mv);
            if (stable.count() > 0)
                return n;
        }
        return 0;
    }

    void startPhCalibration(double celsius, const QString &group = QStringLiteral("USA"))
    {
        dm->engine()->setRawTemperatureCelcius(float(celsius));
        MeasurementModel *m = dm->measurementModel();
        m->setReadMode(QStringLiteral("pH"));
        m->setResolution(0.01f);
        m->setBufferGroup(group);
        m->setSensorName(QStringLiteral("pH-12"));
        dm->setDeviceMode(QStringLiteral("Calibration"));
        dm->initiateCalibrationModelFromMeasure();
        mc->qmlStartCalibration();
    }

    // One point as the screens take it: start, wait for stability, accept.
    void takePoint(double mv)
    {
        mc->qmlStartCalPoint();
        ASSERT_GT(feedUntilStable(mv), 0) << "no stable reading at " << mv << " mV";
        mc->accptCalibration(false);
    }

    void finish()
    {
        mc->qmlStopCalibration();
        mc->calDone();
    }

    TestDatabase db;
    std::unique_ptr<DataManagerBase> dm;
    std::unique_ptr<MeterController> mc;
};

// ---- Direct measurement ----

TEST_F(Meter, DirectMeasurementReadsTheIdealElectrodeAndHoldsAfterTheSettlingCount)
{
    measurePh();
    QSignalSpy unstable(mc.get(), &MeterController::qmlUnStableCalibration);
    // 10 samples fill the average, 4 averages the drift ring, then 26 small
    // steps: the 38th sample is the first stable one.
    EXPECT_EQ(feedUntilStable(12.0), 38);
    EXPECT_EQ(unstable.count(), 37);
    MeasurementModel *m = dm->measurementModel();
    EXPECT_NEAR(m->scaledValue(), 6.80, 1e-4) << "7 - 12 / 59.16 at two decimals";
    EXPECT_NEAR(m->mV(), 12.0, 1e-3);
    EXPECT_TRUE(m->stability());
    EXPECT_TRUE(m->isATC()) << "a probe reads 25 degrees";
    EXPECT_FLOAT_EQ(m->temp(), 25.0f);
    EXPECT_FLOAT_EQ(dm->engine()->millivolts(), 12.0f);
    EXPECT_FALSE(mc->isMeasureOutOfRange());
}

TEST_F(Meter, NoProbeMeansTheManualTemperature)
{
    dm->engine()->setRawTemperatureCelcius(125.0f);
    measurePh();
    mc->execute(0, 0.0);
    EXPECT_FALSE(dm->measurementModel()->isATC());
    EXPECT_FLOAT_EQ(dm->measurementModel()->temp(), 25.0f) << "the settings' manual value";
}

TEST_F(Meter, StoppedMeterDropsSamplesAndAStartResetsStability)
{
    measurePh();
    ASSERT_GT(feedUntilStable(0.0), 0);
    mc->qmlStopMeasure();
    EXPECT_EQ(mc->meterState(), MeterController::Idle);
    QSignalSpy any(mc.get(), &MeterController::qmlUnStableCalibration);
    QSignalSpy stable(mc.get(), &MeterController::qmlStableCalibration);
    mc->execute(0, 100.0);
    EXPECT_EQ(any.count() + stable.count(), 0);
    mc->qmlStartMeasure();
    mc->execute(0, 0.0);
    EXPECT_EQ(stable.count(), 0) << "the detector starts afresh";
    EXPECT_EQ(any.count(), 1);
}

TEST_F(Meter, OneSampleConnectionHoweverOftenItIsMade)
{
    mspController msp(QStringLiteral("/nonexistent/tty"));
    MeterController meter(&msp, dm.get());
    dm->measurementModel()->setReadMode(QStringLiteral("pH"));
    dm->setDeviceMode(QStringLiteral("Measurement"));
    meter.qmlStartMeasure();
    meter.startMeterConnection();
    meter.startMeterConnection();
    QSignalSpy unstable(&meter, &MeterController::qmlUnStableCalibration);
    emit msp.mspNewDataSignal(1, 5.0);
    EXPECT_EQ(unstable.count(), 1);
    meter.stopMeterConnection();
    emit msp.mspNewDataSignal(2, 5.0);
    EXPECT_EQ(unstable.count(), 1);
    EXPECT_FALSE(meter.isConnected());
}

TEST_F(Meter, ProbeUpdateFoldsIseAndKeepsTheIonOnlyForIse)
{
    mc->measEngProbeUpdate(QStringLiteral("ISE-Titration"), QStringLiteral("Fluoride (F-)"), 0.1f, 3);
    EXPECT_EQ(mc->meterProbeType(), QStringLiteral("ISE"));
    EXPECT_EQ(mc->meterIseProbeType(), QStringLiteral("Fluoride (F-)"));
    EXPECT_EQ(mc->significantDigits(), 3);
    mc->measEngProbeUpdate(QStringLiteral("pH"), QStringLiteral("Fluoride (F-)"), 0.01f, 2);
    EXPECT_EQ(mc->meterProbeType(), QStringLiteral("pH"));
    EXPECT_TRUE(mc->meterIseProbeType().isEmpty());
    EXPECT_FLOAT_EQ(mc->resolution(), 0.01f);
}

TEST_F(Meter, BufferGroupIsUsaOnlyForTheExactWord)
{
    startPhCalibration(25.0, QStringLiteral("usa"));
    EXPECT_EQ(mc->bufferGroupIndex(), 1);
    mc->qmlStartCalPoint();
    ASSERT_GT(feedUntilStable(0.0), 0);
    EXPECT_NEAR(dm->calibrationCycleModel()->calValue(), 6.86, 1e-4) << "the DIN 6.86 buffer at 25 degrees";
}

// ---- Calibration ----

TEST_F(Meter, ThreePointCalibrationGivesTheElectrodesSlopeAndOffset)
{
    startPhCalibration(25.0);
    for (double pH : {4.01, 7.00, 10.01})
        takePoint(electrodeMv(pH, 97.0, 12.0, 25.0));
    EXPECT_EQ(mc->getCalDonePoint(), 3);
    QSignalSpy slopeError(mc.get(), &MeterController::showQmlSlopeError);
    finish();
    EXPECT_EQ(slopeError.count(), 0);
    const QList<CalibrationCycleModel *> &points = dm->calibrationCycleList();
    ASSERT_EQ(points.size(), 3);
    ASSERT_EQ(dm->calibrationcycles()->count(), 3) << "the screens list the same points";
    EXPECT_EQ(dm->calibrationcycles()->get(2), points[2]);
    const float buffers[3] = {4.01f, 7.00f, 10.01f};
    for (int i = 0; i < 3; ++i) {
        EXPECT_FLOAT_EQ(points[i]->buffer(), buffers[i]);
        EXPECT_NEAR(points[i]->calValue(), buffers[i], 1e-4);
        EXPECT_NEAR(points[i]->slope(), 97.0, 0.1) << "the last point shows its neighbour's segment";
        if (i < 2) {
            EXPECT_NEAR(points[i]->offset(), 12.0, 0.1) << "each segment's potential at pH 7";
        }
        EXPECT_EQ(points[i]->temperatureMode(), QStringLiteral("ATC"));
        EXPECT_EQ(points[i]->cycleNo(), i + 1);
    }
    EXPECT_NEAR(dm->calibrationModel()->avgSlope(), 97.0, 0.1);
}

TEST_F(Meter, PointsTooCloseAreRefusedAndDropTheCalibration)
{
    startPhCalibration(25.0);
    takePoint(electrodeMv(4.01, 100.0, 0.0, 25.0));
    ASSERT_EQ(mc->getCalDonePoint(), 1);
    QSignalSpy slopeError(mc.get(), &MeterController::showQmlSlopeError);
    // 3 mV away: the same buffer read again, but typed as another value.
    mc->qmlStartCalPoint();
    ASSERT_GT(feedUntilStable(electrodeMv(4.01, 100.0, 0.0, 25.0) + 3.0), 0);
    mc->calEdit(4.5f);
    mc->accptCalibration(true);
    EXPECT_EQ(slopeError.count(), 1);
    EXPECT_TRUE(mc->isSlopeErrorOnAccept());
    EXPECT_EQ(mc->getCalDonePoint(), 1) << "the count stays although the points went";
    EXPECT_EQ(mc->meterState(), MeterController::Running);
    takePoint(electrodeMv(7.00, 100.0, 0.0, 25.0));
    EXPECT_FALSE(mc->isSlopeErrorOnAccept());
    EXPECT_EQ(mc->getCalDonePoint(), 1) << "a fresh start";
}

TEST_F(Meter, SlopeOutsideTheLimitsIsRefusedAtTheEndAndNothingIsStored)
{
    startPhCalibration(25.0);
    takePoint(electrodeMv(4.01, 75.0, 0.0, 25.0));
    takePoint(electrodeMv(7.00, 75.0, 0.0, 25.0));
    QSignalSpy slopeError(mc.get(), &MeterController::showQmlSlopeError);
    finish();
    EXPECT_EQ(slopeError.count(), 1);
    EXPECT_TRUE(mc->isSlopeErrorOnAccept());
    EXPECT_TRUE(dm->calibrationCycleList().isEmpty());
    EXPECT_EQ(TestDatabase::rowCount(QStringLiteral("calibrationCycleTable")), 0);
}

TEST_F(Meter, OnePointCalibrationIsTheIdealSlopeThroughThePoint)
{
    startPhCalibration(25.0);
    takePoint(30.0);
    finish();
    ASSERT_EQ(dm->calibrationCycleList().size(), 1);
    EXPECT_NEAR(dm->calibrationModel()->avgSlope(), 100.0, 1e-4);
    dm->insertCalibrationValue();
    EXPECT_EQ(TestDatabase::rowCount(QStringLiteral("calibrationCycleTable")), 1);
}

TEST_F(Meter, OverrideTakesTheReadingAtOnce)
{
    startPhCalibration(25.0);
    mc->qmlStartCalPoint();
    mc->execute(0, 177.0);
    QSignalSpy stable(mc.get(), &MeterController::qmlStableCalibration);
    mc->qmlOverrideCalibration();
    EXPECT_EQ(stable.count(), 1);
    EXPECT_EQ(mc->meterState(), MeterController::Idle);
    EXPECT_NEAR(dm->calibrationCycleModel()->calValue(), 4.01, 1e-4);
    EXPECT_NEAR(dm->calibrationCycleModel()->voltage(), 177.0, 1e-3);
}

TEST_F(Meter, StopCalibrationWhileIdleStillReturnsToMeasurement)
{
    startPhCalibration(25.0);
    EXPECT_EQ(mc->meterMode(), MeterController::ModeCalibration);
    mc->reInitiateMeterModel();
    mc->qmlStopCalibration();
    EXPECT_EQ(mc->meterMode(), MeterController::ModeMeasurement);
}

TEST_F(Meter, TemperaturesOfTheCalibrationUseTheBuffersValuesThere)
{
    struct Case {
        double celsius;
        double values[3];
    };
    // The buffer polynomials at 10 and 40 degrees, rounded to 0.01.
    const Case cases[] = {{10.0, {4.00, 7.06, 10.18}}, {40.0, {4.03, 6.97, 9.89}}};
    for (const Case &c : cases) {
        restart();
        startPhCalibration(c.celsius);
        for (double pH : c.values)
            takePoint(electrodeMv(pH, 97.0, 12.0, c.celsius));
        finish();
        const QList<CalibrationCycleModel *> &points = dm->calibrationCycleList();
        ASSERT_EQ(points.size(), 3);
        for (int i = 0; i < 3; ++i) {
            EXPECT_NEAR(points[i]->calValue(), c.values[i], 1e-4) << c.celsius;
            EXPECT_NEAR(points[i]->temperature(), c.celsius, 1e-4);
            EXPECT_NEAR(points[i]->slope(), 97.0, 0.15) << "referred to 25 degrees";
            if (i < 2) {
                EXPECT_NEAR(points[i]->offset(), 12.0, 0.15);
            }
        }
    }
}

TEST_F(Meter, RedoxCalibrationShiftsEveryLaterReading)
{
    dm->measurementModel()->setReadMode(QStringLiteral("Redox"));
    dm->setDeviceMode(QStringLiteral("Calibration"));
    dm->initiateCalibrationModelFromMeasure();
    mc->qmlStartCalibration();
    mc->qmlStartCalPoint();
    ASSERT_GT(feedUntilStable(230.0), 0);
    mc->calEdit(220.0f);
    mc->accptCalibration(true);
    EXPECT_FALSE(mc->isSlopeErrorOnAccept());
    finish();
    ASSERT_EQ(dm->calibrationCycleList().size(), 1);
    EXPECT_NEAR(dm->calibrationModel()->avgSlope(), -10.0, 1e-3) << "the offset, in the slope column";
    dm->insertCalibrationValue();

    restart();
    dm->measurementModel()->setReadMode(QStringLiteral("Redox"));
    dm->setDeviceMode(QStringLiteral("Measurement"));
    mc->qmlStartMeasure();
    ASSERT_GT(feedUntilStable(300.0), 0);
    EXPECT_NEAR(dm->measurementModel()->scaledValue(), 290.0, 0.01);
}

TEST_F(Meter, IseAgainstACalibrationOfAnotherUnitAsksForACalibration)
{
    {
        CalibrationModel c;
        c.setElectrodeType(QStringLiteral("ISE"));
        c.setIseType(QStringLiteral("Sodium (Na+)"));
        c.setDirectMeasureUnit(QStringLiteral("ppm"));
        c.setAvgSlope(58.0);
        CalibrationCycleModel p1, p2;
        p1.setCalValue(1.0f);
        p1.setVoltage(0.0f);
        p1.setSlope(58.0f);
        p2.setCalValue(10.0f);
        p2.setVoltage(58.0f);
        p2.setSlope(58.0f);
        ASSERT_TRUE(c.setCalibrationValues(false, {&p1, &p2}, QStringLiteral("INSERT")));
    }
    MeasurementModel *m = dm->measurementModel();
    m->setReadMode(QStringLiteral("ISE-Titration"));
    m->setIseType(QStringLiteral("Sodium (Na+)"));
    m->setDirectMeasurementUnit(QStringLiteral("mg/L"));
    dm->setDeviceMode(QStringLiteral("Measurement"));
    mc->qmlStartMeasure();
    EXPECT_EQ(mc->meterProbeType(), QStringLiteral("ISE"));
    ASSERT_EQ(dm->calibrationCycleList().size(), 2) << "the sodium calibration was found";
    EXPECT_EQ(m->measureMessage(), QStringLiteral("Please Calibrate "));
    mc->execute(0, 29.0);
    EXPECT_EQ(mc->context()->GetActiveKind(), int(CMeasurementContext::KindIse)) << "the reading goes on";

    m->setDirectMeasurementUnit(QStringLiteral("ppm"));
    mc->qmlStartMeasure();
    EXPECT_TRUE(m->measureMessage().isEmpty());
    m->setIseType(QStringLiteral("Potassium (K+)"));
    mc->qmlStartMeasure();
    EXPECT_EQ(m->measureMessage(), QStringLiteral("Please Calibrate ")) << "no potassium calibration";
}

// ---- Stored calibrations ----

TEST_F(Meter, StoredCalibrationSurvivesARestartAndServesTheRunsConversions)
{
    startPhCalibration(25.0);
    for (double pH : {4.01, 7.00, 10.01})
        takePoint(electrodeMv(pH, 97.0, 12.0, 25.0));
    finish();
    dm->insertCalibrationValue();
    const int id = dm->calibrationModel()->id();
    EXPECT_EQ(TestDatabase::rowCount(QStringLiteral("calibrationTable")), 1);
    EXPECT_EQ(TestDatabase::rowCount(QStringLiteral("calibrationCycleTable"),
                                     QStringLiteral("calibrationID = '%1'").arg(id)), 3);
    EXPECT_EQ(cell(QStringLiteral("SELECT electrodeName FROM calibrationTable")).toString(), QStringLiteral("pH-12"));
    EXPECT_NEAR(cell(QStringLiteral("SELECT avgSlope FROM calibrationTable")).toDouble(), 97.0, 0.1);

    restart();
    ElectrodeSetupModel *e = dm->electrodeSetupModel();
    ASSERT_NE(e, nullptr);
    e->setElectrodeType(QStringLiteral("pH"));
    e->setResolution(0.01f);
    mc->repointAtMethodProbe();
    ASSERT_NE(dm->calibrationModel(), nullptr);
    EXPECT_EQ(dm->calibrationModel()->id(), id);
    ASSERT_EQ(dm->calibrationCycleList().size(), 3);
    EXPECT_EQ(dm->calibrationCycleList().at(2)->cycleNo(), 3);
    EXPECT_EQ(dm->calibrationcycles()->get(2), dm->calibrationCycleList().at(2)) << "a loaded calibration is listed";
    for (double pH : {4.01, 7.00, 10.01}) {
        EXPECT_NEAR(dm->engine()->millivoltsToPH(float(electrodeMv(pH, 97.0, 12.0, 25.0))), pH, 0.011);
        EXPECT_NEAR(dm->engine()->phToMillivolts(float(pH)), electrodeMv(pH, 97.0, 12.0, 25.0), 0.6);
    }
}

TEST_F(Meter, ACancelledCalibrationLeavesNoTrace)
{
    startPhCalibration(25.0);
    takePoint(electrodeMv(4.01, 97.0, 12.0, 25.0));
    mc->qmlStopCalibration();
    dm->deleteCalibrationModelAndPoints();
    EXPECT_EQ(TestDatabase::rowCount(QStringLiteral("calibrationTable")), 0);
    EXPECT_EQ(TestDatabase::rowCount(QStringLiteral("calibrationCycleTable")), 0);
}

TEST_F(Meter, NewestCalibrationOfTheProbeIsTheOneLoaded)
{
    for (const char *type : {"pH", "Redox", "pH"}) {
        CalibrationModel c;
        c.setElectrodeType(QString::fromLatin1(type));
        c.setElectrodeName(QString::fromLatin1(type) + QStringLiteral("-probe"));
        ASSERT_TRUE(c.setCalibrationValues(false, {}, QStringLiteral("INSERT")));
    }
    dm->loadLastCalibration(QStringLiteral("pH"), QString());
    ASSERT_NE(dm->calibrationModel(), nullptr);
    EXPECT_EQ(dm->calibrationModel()->id(), 3);
    dm->loadLastCalibration(QStringLiteral("Redox"), QString());
    ASSERT_NE(dm->calibrationModel(), nullptr);
    EXPECT_EQ(dm->calibrationModel()->id(), 2);
    dm->loadLastCalibration(QStringLiteral("ISE"), QStringLiteral("Sodium (Na+)"));
    EXPECT_EQ(dm->calibrationModel(), nullptr);
}

// ---- The measurement log ----

TEST_F(Meter, ALoggedStableReadingCarriesItsValueAndTheCalibrationInUse)
{
    startPhCalibration(25.0);
    for (double pH : {4.01, 7.00})
        takePoint(electrodeMv(pH, 97.0, 12.0, 25.0));
    finish();
    dm->insertCalibrationValue();
    const int calId = dm->calibrationModel()->id();

    measurePh();
    ASSERT_GT(feedUntilStable(electrodeMv(7.00, 97.0, 12.0, 25.0)), 0);
    MeasurementLogModel log;
    ASSERT_TRUE(dm->logMeasurement(&log, false));
    QSqlQuery q;
    ASSERT_TRUE(q.exec(QStringLiteral("SELECT * FROM measurementLogTable")) && q.next());
    const QSqlRecord r = q.record();
    EXPECT_EQ(r.value(QStringLiteral("readMode")).toString(), QStringLiteral("pH"));
    EXPECT_NEAR(r.value(QStringLiteral("scaledValue")).toDouble(), 7.00, 1e-4);
    EXPECT_NEAR(r.value(QStringLiteral("mv")).toDouble(), 12.0, 0.01);
    EXPECT_EQ(r.value(QStringLiteral("stabilizeState")).toString(), QStringLiteral("stabilized"));
    EXPECT_EQ(r.value(QStringLiteral("isAlarmActive")).toInt(), 0);
    EXPECT_EQ(r.value(QStringLiteral("isAtc")).toInt(), 1);
    EXPECT_EQ(r.value(QStringLiteral("calLogId")).toInt(), calId);
    EXPECT_NEAR(r.value(QStringLiteral("calAvg")).toDouble(), 97.0, 0.1);
    EXPECT_FALSE(q.next());
    EXPECT_EQ(cell(QStringLiteral("SELECT calLogId FROM MeasurementTable")).toInt(), calId)
        << "the meter state row goes with it";
}

TEST_F(Meter, AnUnsettledReadingIsLoggedAsStabilizing)
{
    measurePh();
    mc->execute(0, 5.0);
    MeasurementLogModel log;
    ASSERT_TRUE(dm->logMeasurement(&log, false));
    EXPECT_EQ(cell(QStringLiteral("SELECT stabilizeState FROM measurementLogTable")).toString(),
              QStringLiteral("stabilizing"));
    EXPECT_EQ(cell(QStringLiteral("SELECT isAlarmActive FROM measurementLogTable")).toInt(), 1);
}

// ---- Calibration due ----

TEST(CalibrationDue, OnceInEachPeriodAndInTheFirstMinute)
{
    const QDateTime at(QDate(2026, 3, 1), QTime(10, 0, 30));
    EXPECT_TRUE(SetupModel::isCalibrationDue(at, at.addSecs(10), 24));
    EXPECT_FALSE(SetupModel::isCalibrationDue(at, at.addSecs(70), 24));
    EXPECT_TRUE(SetupModel::isCalibrationDue(at, at.addSecs(24 * 3600 + 5), 24));
    EXPECT_FALSE(SetupModel::isCalibrationDue(at, at.addSecs(24 * 3600 + 65), 24));
    EXPECT_TRUE(SetupModel::isCalibrationDue(at, at.addSecs(48 * 3600), 48));
    EXPECT_FALSE(SetupModel::isCalibrationDue(at, at.addSecs(24 * 3600), 48));
    EXPECT_FALSE(SetupModel::isCalibrationDue(QDateTime(), at, 24));
}

TEST_F(Meter, TheSettingsTakeTheStoredCalibrationsTimeAndRaiseItsDueNotice)
{
    ManualClock clock(QDateTime(QDate(2026, 3, 1), QTime(10, 0, 30)));
    Clock::setSource(&clock);
    startPhCalibration(25.0);
    takePoint(electrodeMv(7.00, 97.0, 12.0, 25.0));
    finish();
    dm->insertCalibrationValue();
    {
        // A redox calibration in the same minute: pH wins the tick.
        CalibrationModel redox;
        redox.setElectrodeType(QStringLiteral("Redox"));
        ASSERT_TRUE(redox.setCalibrationValues(false, {}, QStringLiteral("INSERT")));
    }

    SetupModel setup;
    // As the calibration summary does after a calibration.
    setup.getLastCalibrationTime();
    EXPECT_EQ(setup.pHLastCalibrationTime(), clock.now());
    EXPECT_NEAR(setup.pHLastCalibrationAvg(), 100.0, 0.01);
    setup.updatePhCalibrationNotifOn(true);
    setup.updateRedoxCalibrationNotifOn(true);
    QSignalSpy notice(&setup, &SetupModel::notificationSignal);
    clock.advance(10 * 1000);
    setup.calibrationDueNotificationSlot();
    ASSERT_EQ(notice.count(), 1);
    EXPECT_EQ(notice.at(0).at(0).toInt(), 1);
    clock.advance(60 * 1000);
    setup.calibrationDueNotificationSlot();
    EXPECT_EQ(notice.count(), 1);

    setup.updatePhCalibrationDue(48);
    setup.updatePhCalibrationNotifOn(false);
    clock.advance(24 * 3600 * 1000 - 60 * 1000);
    setup.calibrationDueNotificationSlot();
    ASSERT_EQ(notice.count(), 2) << "pH is switched off: redox is told";
    EXPECT_EQ(notice.at(1).at(0).toInt(), 2);

    SetupModel again;
    EXPECT_EQ(again.phCalibrationDue(), 48) << "the due hours are on the settings row";
    EXPECT_FALSE(again.isPhCalibrationNotifOn());
    Clock::setSource(nullptr);
}

} // namespace
