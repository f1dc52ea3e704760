#include "logrecords.h"
#include "meterrecords.h"
#include "models/calibrationmodel.h"
#include "models/calibrationlogmodel.h"
#include "models/electrodesetupmodel.h"
#include "models/logcapacity.h"
#include "models/logtables.h"
#include "models/measurementlogmodel.h"
#include "models/methodmodel.h"
#include "models/objectlistmodel.h"
#include "models/reportmodel.h"
#include "models/standardisationlogmodel.h"
#include "models/titrantsetupmodel.h"
#include "models/titrationlogmodel.h"
#include "models/titrationsetupmodel.h"
#include "system/clock.h"
#include "testdatabase.h"

#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlExpression>
#include <QSignalSpy>
#include <QSqlQuery>
#include <gtest/gtest.h>

#include <memory>

namespace {

QVariant cell(const QString &sql)
{
    QSqlQuery q;
    if (!q.exec(sql) || !q.next())
        return QVariant();
    return q.value(0);
}

QString declaredType(const QString &table, const QString &column)
{
    QSqlQuery q;
    q.exec(QStringLiteral("PRAGMA table_info('%1')").arg(table));
    while (q.next()) {
        if (q.value(1).toString() == column)
            return q.value(2).toString().toLower();
    }
    return QString();
}

class LogModels : public ::testing::Test
{
protected:
    TestDatabase db;
    ReportModel reports;
    std::unique_ptr<MethodModel> method;
    std::unique_ptr<TitrationLogModel> titrationLog;
    std::unique_ptr<StandardisationLogModel> standardisationLog;
    std::unique_ptr<CalibrationLogModel> calibrationLog;
    std::unique_ptr<MeasurementLogModel> measurementLog;

    void SetUp() override
    {
        // What is checked here is the content of the file, not its
        // durability; without a sync per statement the runs take seconds.
        TestDatabase::exec(QStringLiteral("PRAGMA synchronous=OFF"));
        LogRecords::createTables();
        method = std::make_unique<MethodModel>();
        titrationLog = std::make_unique<TitrationLogModel>();
        standardisationLog = std::make_unique<StandardisationLogModel>();
        calibrationLog = std::make_unique<CalibrationLogModel>();
        measurementLog = std::make_unique<MeasurementLogModel>();
        titrationLog->setCurrentMethod(method.get());
        standardisationLog->setCurrentMethod(method.get());
        calibrationLog->setCurrentMethod(method.get());
    }

    void TearDown() override { DataLogSetting::setSource(nullptr); }

    // A run with its cycles, its log entry and its report, as the end of a
    // titration leaves them. Returns the log id.
    int titrationRun(bool notifOn = false, const QString &electrodeType = QStringLiteral("pH"))
    {
        method->electrodeSetupModel()->setElectrodeType(electrodeType);
        titrationLog->setRunValues(LogRecords::addRun(QStringLiteral("Titration"), electrodeType, 2, method->id()));
        titrationLog->saveLogValues(notifOn);
        LogRecords::addReport(QStringLiteral("Titration"), "titrationId", titrationLog->id());
        return titrationLog->id();
    }

    int standardisationRun(bool notifOn = false)
    {
        standardisationLog->setRunValues(LogRecords::addRun(QStringLiteral("Standardization"), QStringLiteral("pH"), 1, method->id()));
        standardisationLog->saveLogValues(notifOn);
        LogRecords::addReport(QStringLiteral("Standardization"), "standardizationId", standardisationLog->id());
        return standardisationLog->id();
    }

    int calibrationRun(bool notifOn = false)
    {
        const QVariantMap calibration = LogRecords::addCalibration(QStringLiteral("pH"), 3);
        calibrationLog->saveLogValues(notifOn, calibration);
        LogRecords::addReport(QStringLiteral("Calibration"), "calibrationId", calibration.value(QStringLiteral("id")).toInt());
        return calibrationLog->id();
    }

    int measurementRun(bool notifOn = false, bool stable = true)
    {
        measurementLog->setMeasurementValues(LogRecords::measurement(stable));
        measurementLog->saveLogValues(notifOn);
        LogRecords::addReport(QStringLiteral("Measurement"), "measurementId", measurementLog->id());
        return measurementLog->id();
    }

    int count(const QString &sql) const { return LogRecords::sqliteCount(db.path(), sql); }
};

// ---- the shape of the tables ------------------------------------------------

TEST_F(LogModels, TablesHaveTheirColumnCountsAndTheCopiedBlocksFollowTheSourceTables)
{
    const QStringList t = TestDatabase::columns(QStringLiteral("titrationLogTable"));
    const QStringList s = TestDatabase::columns(QStringLiteral("standardisationLogTable"));
    const QStringList c = TestDatabase::columns(QStringLiteral("calibrationLogTable"));
    const QStringList m = TestDatabase::columns(QStringLiteral("measurementLogTable"));
    ASSERT_EQ(t.size(), 143);
    ASSERT_EQ(s.size(), 98);
    ASSERT_EQ(c.size(), 42);
    ASSERT_EQ(m.size(), 21);
    EXPECT_EQ(TestDatabase::columns(QStringLiteral("reportSetupTable")).size(), 18);

    // Block starts and the tails.
    const QList<QPair<int, const char *>> marks{
        {0, "id"}, {1, "methodId"}, {5, "method_UpdatedAt"}, {6, "electrodeSetup_Id"}, {14, "electrodeSetup_MethodId"},
        {17, "calibration_Id"}, {28, "calibration_SampleId"}, {32, "calibrationCycle_Id"}, {39, "calibrationCycle_UpdatedAt"},
        {40, "titrantSetup_Id"}, {41, "titrantSetup_titrantName"}, {82, "titrantSetup_titrantMolecularWeight_Unit"},
        {83, "titration_Id"}, {93, "titration_UpdatedAt"}, {94, "titrationSetup_Id"}, {95, "titrationSetup_TitrantName"},
        {133, "titrationSetup_MkaProcessControlPrecision"}, {134, "titrationSetup_MethodId"},
        {137, "titrationSetup_blankConcentration"}, {138, "AvgConc"}, {139, "RSD"}, {140, "logCreatedAt"},
        {142, "standardizationId"}};
    for (const auto &mark : marks)
        EXPECT_EQ(t.value(mark.first), QLatin1String(mark.second)) << mark.first;

    // The titrant block is the titrant table from titrantName on, in its order.
    const QStringList titrant = TestDatabase::columns(QStringLiteral("titrantSetupTable"));
    for (int i = 1; i <= 42; ++i) {
        QString expected = QStringLiteral("titrantSetup_") + titrant.value(i);
        expected.replace(QStringLiteral("titrantSetup_mcreatedAt"), QStringLiteral("titrantSetup_CreatedAt"));
        expected.replace(QStringLiteral("titrantSetup_mupdatedAt"), QStringLiteral("titrantSetup_UpdatedAt"));
        EXPECT_EQ(t.value(40 + i), expected) << i;
    }
    const QStringList setup = TestDatabase::columns(QStringLiteral("titrationSetupTable"));
    for (int i = 1; i <= 39; ++i) {
        const QString name = setup.value(i);
        EXPECT_EQ(t.value(94 + i), QStringLiteral("titrationSetup_") + name.left(1).toUpper() + name.mid(1)) << i;
    }
    // The standardisation and calibration logs are the same blocks, cut short.
    EXPECT_EQ(s.mid(0, 94), t.mid(0, 94));
    EXPECT_EQ(s.mid(94), (QStringList{"AvgConc", "RSD", "logCreatedAt", "logUpdatedAt"}));
    EXPECT_EQ(c.mid(0, 40), t.mid(0, 40));
    EXPECT_EQ(c.mid(40), (QStringList{"logCreatedAt", "logUpdatedAt"}));
    EXPECT_EQ(m.value(12), QStringLiteral("isAtc"));
    EXPECT_EQ(m.value(20), QStringLiteral("calDateTime"));

    // Copies are text, except the ids and dates.
    EXPECT_EQ(declaredType(QStringLiteral("titrationLogTable"), QStringLiteral("titrantSetup_titrantConcentration_Value")), "varchar(30)");
    EXPECT_EQ(declaredType(QStringLiteral("titrationLogTable"), QStringLiteral("titrantSetup_methodId")), "integer");
    EXPECT_EQ(declaredType(QStringLiteral("titrationLogTable"), QStringLiteral("titration_Id")), "integer");
    EXPECT_EQ(declaredType(QStringLiteral("titrationLogTable"), QStringLiteral("calibration_SampleId")), "varchar(30)");
    EXPECT_EQ(declaredType(QStringLiteral("titrationLogTable"), QStringLiteral("method_CreatedAt")), "datetime");
    EXPECT_EQ(declaredType(QStringLiteral("measurementLogTable"), QStringLiteral("scaledValue")), "float");
}

// ---- snapshots -----------------------------------------------------------------

TEST_F(LogModels, ALogRowReadsAsBeforeAfterTheMethodIsRenamedChangedAndDeleted)
{
    method->saveMethodValues(QStringLiteral("Hardness"), QStringLiteral("pw"));
    ASSERT_EQ(method->success(), 1);
    method->titrantSetupModel()->setTitrantName(QStringLiteral("EDTA"));
    method->titrantSetupModel()->setTitrantConcentrationValue(0.0123f);
    method->titrationSetupModel()->setSampleMolecularWeight(40.08f);
    method->electrodeSetupModel()->setResolution(0.01f);
    const int methodId = method->id();
    const int logId = titrationRun();
    const QString before = LogRecords::sqlite(db.path(), QStringLiteral("SELECT * FROM titrationLogTable"));
    ASSERT_FALSE(before.isEmpty());

    EXPECT_EQ(cell(QStringLiteral("SELECT methodName FROM titrationLogTable")).toString(), "Hardness");
    EXPECT_EQ(cell(QStringLiteral("SELECT titrantSetup_titrantName FROM titrationLogTable")).toString(), "EDTA");
    EXPECT_EQ(cell(QStringLiteral("SELECT titrantSetup_titrantConcentration_Value FROM titrationLogTable")).toString(), "0.0123");
    EXPECT_EQ(cell(QStringLiteral("SELECT titrationSetup_SampleMolecularWeight FROM titrationLogTable")).toString(), "40.08");
    EXPECT_EQ(cell(QStringLiteral("SELECT electrodeSetup_Resolution FROM titrationLogTable")).toString(), "0.01");
    EXPECT_EQ(cell(QStringLiteral("SELECT titration_methodId FROM titrationLogTable")).toInt(), methodId);
    EXPECT_EQ(cell(QStringLiteral("SELECT methodId FROM titrationLogTable")).toInt(), methodId);

    method->updateMethodModel(methodId, QStringLiteral("Renamed"), QStringLiteral("x"));
    method->titrantSetupModel()->setTitrantName(QStringLiteral("HCl"));
    method->titrantSetupModel()->setTitrantSetupValues(QStringLiteral("pH"), true);
    method->deleteRow(methodId);
    ASSERT_EQ(TestDatabase::rowCount(QStringLiteral("methodSetupTable"), QStringLiteral("id=%1").arg(methodId)), 0);
    EXPECT_EQ(LogRecords::sqlite(db.path(), QStringLiteral("SELECT * FROM titrationLogTable")), before);

    // The entry built from the row gives the copied method back.
    QObject owner;
    const QList<TitrationLogModel *> list = TitrationLogModel::newestFirst(&owner);
    ASSERT_EQ(list.size(), 1);
    EXPECT_EQ(list[0]->id(), logId);
    EXPECT_EQ(list[0]->methodModel()->methodName(), "Hardness");
    EXPECT_EQ(list[0]->methodModel()->id(), methodId);
    EXPECT_EQ(list[0]->titrantSetupModel()->titrantName(), "EDTA");
    EXPECT_FLOAT_EQ(list[0]->titrantSetupModel()->titrantConcentrationValue(), 0.0123f);
    EXPECT_FLOAT_EQ(list[0]->titrationSetupModel()->sampleMolecularWeight(), 40.08f);
    EXPECT_FLOAT_EQ(list[0]->electrodeSetupModel()->resolution(), 0.01f);
    EXPECT_EQ(list[0]->runValues().value(QStringLiteral("titrationType")).toString(), "Titration");
    EXPECT_EQ(list[0]->count(), logId);
}

TEST_F(LogModels, TheRunTakesTheLastCalibrationOfItsElectrodeWithTheMeanOffset)
{
    LogRecords::addCalibration(QStringLiteral("pH"), 2, 97.0);  // offsets 2, 4
    const QVariantMap newest = LogRecords::addCalibration(QStringLiteral("pH"), 3, 99.0);  // offsets 2, 4, 6
    LogRecords::addCalibration(QStringLiteral("Redox"), 1, 1.0);
    TestDatabase::exec(QStringLiteral("UPDATE calibrationTable SET mcreatedAt='2020-01-01T00:00:00.000' WHERE electrodeType='Redox'"));
    TestDatabase::exec(QStringLiteral("UPDATE calibrationTable SET mcreatedAt='2021-01-01T00:00:00.000' WHERE id=1"));
    titrationRun();
    EXPECT_EQ(titrationLog->calibrationValues().value(QStringLiteral("id")).toInt(), newest.value(QStringLiteral("id")).toInt());
    EXPECT_DOUBLE_EQ(titrationLog->calibrationValues().value(QStringLiteral("avgSlope")).toDouble(), 99.0);
    EXPECT_FLOAT_EQ(titrationLog->calibrationValues().value(QStringLiteral("avgOffset")).toFloat(), 4.0f);
    EXPECT_EQ(cell(QStringLiteral("SELECT calibration_Id FROM titrationLogTable")).toInt(), newest.value(QStringLiteral("id")).toInt());
}

TEST_F(LogModels, SummaryFiguresAndBlankGoIntoTheirEntryOnly)
{
    const int first = titrationRun();
    const int second = titrationRun();
    titrationLog->setAvgConc(QStringLiteral("0.1021"));
    titrationLog->setRsd(QStringLiteral("0.35%"));
    ASSERT_TRUE(titrationLog->updateLog());
    ASSERT_TRUE(titrationLog->saveBlankConc(0.25f));
    EXPECT_EQ(cell(QStringLiteral("SELECT AvgConc || ' ' || RSD || ' ' || titrationSetup_blankConcentration FROM titrationLogTable WHERE id=%1").arg(second)).toString(),
              "0.1021 0.35% 0.25");
    EXPECT_EQ(cell(QStringLiteral("SELECT AvgConc || '/' || RSD FROM titrationLogTable WHERE id=%1").arg(first)).toString(), "/");

    standardisationRun();
    standardisationLog->setAvgConc(QStringLiteral("0.0998"));
    standardisationLog->setRSD(QStringLiteral("0.10%"));
    ASSERT_TRUE(standardisationLog->updateStandardisationLog());
    EXPECT_EQ(cell(QStringLiteral("SELECT AvgConc || ' ' || RSD FROM standardisationLogTable")).toString(), "0.0998 0.10%");
}

TEST_F(LogModels, ATitrationFindsTheStandardisationOfItsTitrantUnlessTheTitrantChangedSince)
{
    ManualClock clock(QDateTime::currentDateTime().addSecs(60));
    Clock::setSource(&clock);
    const int standardisation = standardisationRun();
    standardisationLog->setAvgConc(QStringLiteral("0.0998"));
    standardisationLog->updateStandardisationLog();
    titrationRun();
    EXPECT_EQ(titrationLog->standardisationId(), standardisation);
    EXPECT_EQ(titrationLog->standardisationLogModel()->AvgConc(), "0.0998");
    EXPECT_EQ(cell(QStringLiteral("SELECT standardizationId FROM titrationLogTable WHERE id=%1").arg(titrationLog->id())).toInt(), standardisation);

    // The titrant was edited after the standardisation: it no longer counts.
    method->titrantSetupModel()->setMupdatedAt(clock.now().addSecs(5));
    titrationRun();
    EXPECT_EQ(titrationLog->standardisationId(), 0);
    // A copied method is standardised through its original's run.
    titrationLog->setStandardizedFetch([](int) { return true; });
    method->titrantSetupModel()->setTitrantConcentrationValue(0.0512f);
    titrationRun();
    EXPECT_EQ(titrationLog->standardisationId(), -1);
    EXPECT_EQ(titrationLog->standardisationLogModel()->AvgConc(), "0.0512");
    EXPECT_EQ(cell(QStringLiteral("SELECT standardizationId FROM titrationLogTable WHERE id=%1").arg(titrationLog->id())).toInt(), -1);
    Clock::setSource(nullptr);
}

TEST_F(LogModels, ListsAreNewestFirstByTheLogTime)
{
    ManualClock clock(QDateTime(QDate(2025, 3, 1), QTime(10, 0)));
    Clock::setSource(&clock);
    const int a = measurementRun();
    clock.advance(-3600 * 1000);
    const int b = measurementRun();  // an hour earlier: the clock was set back
    clock.advance(2 * 3600 * 1000);
    const int c = measurementRun();
    clock.set(0);
    const int d = calibrationRun();
    clock.advance(24 * 3600 * 1000);
    const int e = calibrationRun();
    Clock::setSource(nullptr);

    QObject owner;
    QList<int> ids;
    for (const MeasurementLogModel *m : MeasurementLogModel::newestFirst(&owner))
        ids << m->id();
    EXPECT_EQ(ids, (QList<int>{c, a, b}));
    const QList<CalibrationLogModel *> calibrations = CalibrationLogModel::newestFirst(&owner);
    ASSERT_EQ(calibrations.size(), 2);
    EXPECT_EQ(calibrations[0]->id(), e);
    EXPECT_EQ(calibrations[1]->id(), d);
    EXPECT_EQ(calibrations[0]->electrodeType(), "pH");
    EXPECT_DOUBLE_EQ(calibrations[0]->calibrationValues().value(QStringLiteral("avgSlope")).toDouble(), 98.5);
    // An export reads the same order from the database, the calibration
    // log by its calibrations' own numbers.
    EXPECT_EQ(LogTables::reportIds(LogTables::Measurement), ids);
    EXPECT_EQ(LogTables::reportIds(LogTables::Calibration), (QList<int>{calibrations[0]->calId(), calibrations[1]->calId()}));
}

TEST_F(LogModels, AReadingIsStoredWithItsStabilityState)
{
    measurementRun(false, false);
    measurementRun(false, true);
    EXPECT_EQ(LogRecords::sqlite(db.path(), QStringLiteral("SELECT isAlarmActive, stabilizeState, isAtc, temperature, sampleIdValue FROM measurementLogTable ORDER BY id")),
              "1|stabilizing|1|24.5|Tank 4\n0|stabilized|1|24.5|Tank 4");
}

// ---- capacity --------------------------------------------------------------------

TEST_F(LogModels, TitrationLogWarnsFromThe96thEntryOnlyWithTheSettingOn)
{
    QSignalSpy spy(titrationLog.get(), &TitrationLogModel::notificationSignal);
    for (int i = 1; i <= 95; ++i)
        titrationRun(true);
    EXPECT_EQ(spy.count(), 0);
    titrationRun(true);
    ASSERT_EQ(spy.count(), 1);
    EXPECT_EQ(spy.at(0).at(0).value<QVariant>().toInt(), 6);
    titrationRun(false);
    EXPECT_EQ(spy.count(), 1);
    // The settings' switch, when nothing is passed: on until the settings say otherwise.
    titrationLog->saveLogValues();
    EXPECT_EQ(spy.count(), 2);
    DataLogSetting::setSource([] { return false; });
    titrationLog->saveLogValues();
    EXPECT_EQ(spy.count(), 2);
}

TEST_F(LogModels, The101stTitrationDropsTheOldestEntryWithItsRunCyclesAndReportOnly)
{
    QSignalSpy spy(titrationLog.get(), &TitrationLogModel::notificationSignal);
    const int first = titrationRun(false, QStringLiteral("pH"));
    const int firstRun = cell(QStringLiteral("SELECT titration_Id FROM titrationLogTable WHERE id=%1").arg(first)).toInt();
    const int second = titrationRun(false, QStringLiteral("ISE-MKA"));
    const int secondRun = cell(QStringLiteral("SELECT titration_Id FROM titrationLogTable WHERE id=%1").arg(second)).toInt();
    for (int i = 3; i <= 100; ++i)
        titrationRun(false);
    ASSERT_EQ(count(QStringLiteral("SELECT count(*) FROM titrationLogTable")), 100);
    ASSERT_EQ(count(QStringLiteral("SELECT count(*) FROM titrationCycleTable")), 2 * 99);

    const int newest = titrationRun(false);
    EXPECT_EQ(spy.count(), 0);
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM titrationLogTable")), 100);
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM titrationLogTable WHERE id=%1").arg(first)), 0);
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM titrationTable WHERE id=%1").arg(firstRun)), 0);
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM titrationCycleTable WHERE titrationId=%1").arg(firstRun)), 0);
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM reportSetupTable WHERE titrationId=%1").arg(first)), 0);
    // Nothing else went: 100 runs, the cycles of the 99 pH runs, 100 reports, the MKA rows.
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM titrationTable")), 100);
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM titrationCycleTable")), 2 * 98 + 2);
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM reportSetupTable")), 100);
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM mkaTitrationCycleTable")), 2);
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM mkaAdditionTable")), 4);
    EXPECT_EQ(count(QStringLiteral("SELECT max(id) FROM titrationLogTable")), newest);

    // The next one takes the MKA run with its MKA rows.
    titrationRun(false);
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM titrationTable WHERE id=%1").arg(secondRun)), 0);
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM mkaTitrationCycleTable")), 0);
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM mkaAdditionTable")), 0);
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM reportSetupTable WHERE titrationId=%1").arg(second)), 0);
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM titrationLogTable")), 100);
    // Ids go on from the highest ever given.
    EXPECT_EQ(titrationLog->id(), newest + 1);
}

TEST_F(LogModels, AFailureInThePruneLeavesTheWholeOldestEntry)
{
    const int first = titrationRun();
    const int firstRun = cell(QStringLiteral("SELECT titration_Id FROM titrationLogTable WHERE id=%1").arg(first)).toInt();
    for (int i = 2; i <= 100; ++i)
        titrationRun();
    // The report row can't be deleted: the last step of the prune fails.
    ASSERT_TRUE(TestDatabase::exec(QStringLiteral("CREATE TRIGGER keepReports BEFORE DELETE ON reportSetupTable "
                                                  "BEGIN SELECT RAISE(ABORT, 'kept'); END")));
    titrationRun();
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM titrationLogTable")), 101);
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM titrationLogTable WHERE id=%1").arg(first)), 1);
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM titrationTable WHERE id=%1").arg(firstRun)), 1);
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM titrationCycleTable WHERE titrationId=%1").arg(firstRun)), 2);
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM reportSetupTable WHERE titrationId=%1").arg(first)), 1);

    // Once deletions work again, the log comes back to its capacity.
    ASSERT_TRUE(TestDatabase::exec(QStringLiteral("DROP TRIGGER keepReports")));
    titrationRun();
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM titrationLogTable")), 100);
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM titrationTable")), 100);
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM titrationCycleTable")), 200);
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM reportSetupTable")), 100);
}

TEST_F(LogModels, The51stCalibrationDropsTheFirstWithItsPointsAndReport)
{
    QSignalSpy spy(calibrationLog.get(), &CalibrationLogModel::notificationSignal);
    const int first = calibrationRun(true);
    const int firstCalibration = calibrationLog->calId();
    for (int i = 2; i <= 45; ++i)
        calibrationRun(true);
    EXPECT_EQ(spy.count(), 0);
    calibrationRun(true);
    ASSERT_EQ(spy.count(), 1);
    EXPECT_EQ(spy.at(0).at(0).value<QVariant>().toInt(), 8);
    for (int i = 47; i <= 50; ++i)
        calibrationRun(false);
    ASSERT_EQ(count(QStringLiteral("SELECT count(*) FROM calibrationCycleTable")), 150);
    calibrationRun(false);
    EXPECT_EQ(spy.count(), 1);
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM calibrationLogTable")), 50);
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM calibrationLogTable WHERE id=%1").arg(first)), 0);
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM calibrationTable WHERE id=%1").arg(firstCalibration)), 0);
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM calibrationCycleTable WHERE calibrationID='%1'").arg(firstCalibration)), 0);
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM reportSetupTable WHERE calibrationId=%1").arg(firstCalibration)), 0);
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM calibrationTable")), 50);
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM calibrationCycleTable")), 150);
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM reportSetupTable")), 50);
}

TEST_F(LogModels, TheCalibrationInUseOutlivesItsLogEntry)
{
    // An ion calibration, then more pH calibrations than the log holds: the
    // ion entry goes, the calibration the meter loads for that ion stays.
    QVariantMap ion = LogRecords::addCalibration(QStringLiteral("ISE"), 2, 57.0);
    TestDatabase::exec(QStringLiteral("UPDATE calibrationTable SET iseType='Nitrate (NO3-)' WHERE id=%1").arg(ion.value(QStringLiteral("id")).toInt()));
    calibrationLog->saveLogValues(false, ion);
    const int firstPh = calibrationRun();
    const int firstPhCalibration = calibrationLog->calId();
    for (int i = 0; i < 51; ++i)
        calibrationRun();
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM calibrationLogTable")), 50);
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM calibrationLogTable WHERE id=%1").arg(firstPh)), 0);
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM calibrationTable WHERE id=%1").arg(firstPhCalibration)), 0);
    // 50 logged pH calibrations and the ion's: nothing else piles up.
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM calibrationTable")), 51);

    MeterRecords meter;
    meter.loadLastCalibration(QStringLiteral("ISE-Titration"), QStringLiteral("Nitrate (NO3-)"));
    ASSERT_NE(meter.calibrationModel(), nullptr);
    EXPECT_EQ(meter.calibrationModel()->id(), ion.value(QStringLiteral("id")).toInt());
    EXPECT_EQ(meter.cycles().size(), 2);

    // Once a newer ion calibration is in use, the kept one goes with the next prune.
    ion = LogRecords::addCalibration(QStringLiteral("ISE"), 2, 58.0);
    TestDatabase::exec(QStringLiteral("UPDATE calibrationTable SET iseType='Nitrate (NO3-)' WHERE id=%1").arg(ion.value(QStringLiteral("id")).toInt()));
    calibrationLog->saveLogValues(false, ion);
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM calibrationTable")), 50);
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM calibrationCycleTable WHERE calibrationID='%1'").arg(ion.value(QStringLiteral("id")).toInt())), 2);
}

TEST_F(LogModels, TheScreensLogTheCalibrationAndReadingTheyHold)
{
    // The calibration in hand is logged only once stored, under its id.
    MeterRecords meter;
    meter.measurementModel()->setReadMode(QStringLiteral("pH"));
    meter.initiateFromMeasure();
    meter.updateCalibrationPoint(6.0f, 7.0f, 7.0f, 97.0f, 6.0f, 25.0f, true);
    CalibrationModel *cal = meter.calibrationModel();
    EXPECT_FALSE(calibrationLog->saveLogValues(false, cal));
    EXPECT_FALSE(calibrationLog->saveLogValues(false, static_cast<CalibrationModel *>(nullptr)));
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM calibrationLogTable")), 0);
    ASSERT_TRUE(meter.insertCalibrationValue(false));
    EXPECT_TRUE(calibrationLog->saveLogValues(false, cal));
    EXPECT_EQ(calibrationLog->calId(), cal->id());
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM calibrationLogTable")), 1);

    // The meter's record given to the measurement log is what the save writes.
    meter.measurementModel()->setScaledValue(9.181f);
    meter.measurementModel()->setSampleIdValue(QStringLiteral("S-007"));
    ASSERT_TRUE(measurementLog->setProperty("measurementModel", QVariant::fromValue(meter.measurementModel())));
    measurementLog->saveLogValues(false);
    EXPECT_EQ(cell(QStringLiteral("SELECT scaledValue FROM measurementLogTable")).toFloat(), 9.181f);
    EXPECT_EQ(cell(QStringLiteral("SELECT sampleIdValue FROM measurementLogTable")).toString(), QStringLiteral("S-007"));
}

TEST_F(LogModels, StandardisationLogWarnsWith5AndDropsTheOldestRunAndReport)
{
    QSignalSpy spy(standardisationLog.get(), &StandardisationLogModel::notificationSignal);
    const int first = standardisationRun(true);
    const int firstRun = cell(QStringLiteral("SELECT titration_Id FROM standardisationLogTable WHERE id=%1").arg(first)).toInt();
    for (int i = 2; i <= 96; ++i)
        standardisationRun(true);
    ASSERT_EQ(spy.count(), 1);
    EXPECT_EQ(spy.at(0).at(0).value<QVariant>().toInt(), 5);
    for (int i = 97; i <= 101; ++i)
        standardisationRun(false);
    EXPECT_EQ(spy.count(), 1);
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM standardisationLogTable")), 100);
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM titrationTable WHERE id=%1").arg(firstRun)), 0);
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM titrationCycleTable WHERE titrationId=%1").arg(firstRun)), 0);
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM reportSetupTable WHERE standardizationId=%1").arg(first)), 0);
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM reportSetupTable")), 100);
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM titrationCycleTable")), 100);
}

TEST_F(LogModels, MeasurementLogSaysSavedUnlessItWarns)
{
    QSignalSpy warned(measurementLog.get(), &MeasurementLogModel::notificationSignal);
    QSignalSpy saved(measurementLog.get(), &MeasurementLogModel::logSaved);
    const int first = measurementRun(true);
    for (int i = 2; i <= 95; ++i)
        measurementRun(true);
    EXPECT_EQ(saved.count(), 95);
    EXPECT_EQ(warned.count(), 0);
    measurementRun(true);
    ASSERT_EQ(warned.count(), 1);
    EXPECT_EQ(warned.at(0).at(0).value<QVariant>().toInt(), 7);
    EXPECT_EQ(saved.count(), 95);
    for (int i = 97; i <= 101; ++i)
        measurementRun(false);
    EXPECT_EQ(saved.count(), 100);
    EXPECT_EQ(warned.count(), 1);
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM measurementLogTable")), 100);
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM measurementLogTable WHERE id=%1").arg(first)), 0);
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM reportSetupTable WHERE measurementId=%1").arg(first)), 0);
    EXPECT_EQ(count(QStringLiteral("SELECT count(*) FROM reportSetupTable")), 100);
}

} // namespace

// A script that reads a row through get() and lets it go must not hand the
// row to the script engine's collector: the list's owner deletes it.
TEST(ObjectList, ARowReadByAScriptOutlivesTheCollector)
{
    ObjectListModel list;
    auto row = std::make_unique<QObject>();
    row->setObjectName(QStringLiteral("row"));
    QPointer<QObject> watched(row.get());
    list.append(row.get());
    {
        QQmlEngine engine;
        engine.rootContext()->setContextProperty(QStringLiteral("rows"), &list);
        QQmlExpression read(engine.rootContext(), nullptr, QStringLiteral("rows.get(0).objectName"));
        EXPECT_EQ(read.evaluate().toString(), QStringLiteral("row"));
        engine.collectGarbage();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    EXPECT_FALSE(watched.isNull());
}
