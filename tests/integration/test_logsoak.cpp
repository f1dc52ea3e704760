#include "logrecords.h"
#include "models/calibrationlogmodel.h"
#include "models/electrodesetupmodel.h"
#include "models/measurementlogmodel.h"
#include "models/methodmodel.h"
#include "models/reportmodel.h"
#include "models/standardisationlogmodel.h"
#include "models/titrationlogmodel.h"
#include "testdatabase.h"

#include <QFileInfo>
#include <gtest/gtest.h>

namespace {

// A thousand runs of every kind, saved one after the other as the end of
// each run saves them: the logs stay at their capacities, every record of a
// dropped entry goes with it, and the file stops growing once the logs are
// full.
TEST(LogSoak, AThousandRunsKeepEveryLogAtItsCapacityWithoutOrphansOrGrowth)
{
    TestDatabase db;
    // The file's content and size are checked, not its durability.
    TestDatabase::exec(QStringLiteral("PRAGMA synchronous=OFF"));
    ReportModel reports;
    LogRecords::createTables();
    MethodModel method;
    TitrationLogModel titrationLog;
    StandardisationLogModel standardisationLog;
    CalibrationLogModel calibrationLog;
    MeasurementLogModel measurementLog;
    titrationLog.setCurrentMethod(&method);
    standardisationLog.setCurrentMethod(&method);
    calibrationLog.setCurrentMethod(&method);

    qint64 sizeWhenFull = 0;
    for (int i = 1; i <= 1000; ++i) {
        const QString electrode = i % 3 == 0 ? QStringLiteral("ISE-MKA") : QStringLiteral("pH");
        method.electrodeSetupModel()->setElectrodeType(electrode);
        titrationLog.setRunValues(LogRecords::addRun(QStringLiteral("Titration"), electrode, 1 + i % 3, method.id()));
        titrationLog.saveLogValues(true);
        LogRecords::addReport(QStringLiteral("Titration"), "titrationId", titrationLog.id());

        standardisationLog.setRunValues(LogRecords::addRun(QStringLiteral("Standardization"), QStringLiteral("pH"), 2, method.id()));
        standardisationLog.saveLogValues(true);
        LogRecords::addReport(QStringLiteral("Standardization"), "standardizationId", standardisationLog.id());

        const QVariantMap calibration = LogRecords::addCalibration(QStringLiteral("pH"), 1 + i % 5);
        calibrationLog.saveLogValues(true, calibration);
        LogRecords::addReport(QStringLiteral("Calibration"), "calibrationId", calibration.value(QStringLiteral("id")).toInt());

        measurementLog.setMeasurementValues(LogRecords::measurement(i % 2 == 0, i));
        measurementLog.saveLogValues(true);
        LogRecords::addReport(QStringLiteral("Measurement"), "measurementId", measurementLog.id());

        if (i == 250)
            sizeWhenFull = QFileInfo(db.path()).size();
    }

    const QString file = db.path();
    auto count = [&file](const char *sql) { return LogRecords::sqliteCount(file, QLatin1String(sql)); };
    EXPECT_EQ(count("SELECT count(*) FROM titrationLogTable"), 100);
    EXPECT_EQ(count("SELECT count(*) FROM standardisationLogTable"), 100);
    EXPECT_EQ(count("SELECT count(*) FROM calibrationLogTable"), 50);
    EXPECT_EQ(count("SELECT count(*) FROM measurementLogTable"), 100);
    EXPECT_EQ(count("SELECT min(id) FROM titrationLogTable"), 901);

    EXPECT_EQ(count("SELECT count(*) FROM titrationTable"), 200);
    EXPECT_EQ(count("SELECT count(*) FROM titrationTable WHERE id NOT IN "
                    "(SELECT titration_Id FROM titrationLogTable UNION SELECT titration_Id FROM standardisationLogTable)"), 0);
    EXPECT_EQ(count("SELECT count(*) FROM titrationCycleTable WHERE titrationId NOT IN (SELECT id FROM titrationTable)"), 0);
    EXPECT_EQ(count("SELECT count(*) FROM mkaTitrationCycleTable WHERE titrationID NOT IN (SELECT id FROM titrationTable)"), 0);
    EXPECT_EQ(count("SELECT count(*) FROM mkaAdditionTable WHERE titrationID NOT IN (SELECT id FROM titrationTable)"), 0);
    EXPECT_GT(count("SELECT count(*) FROM mkaAdditionTable"), 0);
    EXPECT_EQ(count("SELECT count(*) FROM calibrationTable WHERE id NOT IN (SELECT calibration_Id FROM calibrationLogTable)"), 0);
    EXPECT_EQ(count("SELECT count(*) FROM calibrationCycleTable WHERE CAST(calibrationID AS integer) NOT IN "
                    "(SELECT id FROM calibrationTable)"), 0);
    EXPECT_EQ(count("SELECT count(*) FROM reportSetupTable"), 350);
    EXPECT_EQ(count("SELECT count(*) FROM reportSetupTable WHERE NOT (titrationId IN (SELECT id FROM titrationLogTable) "
                    "OR standardizationId IN (SELECT id FROM standardisationLogTable) "
                    "OR measurementId IN (SELECT id FROM measurementLogTable) "
                    "OR calibrationId IN (SELECT calibration_Id FROM calibrationLogTable))"), 0);

    // Freed pages are used again: the file of 1000 runs is about that of 250.
    const qint64 finalSize = QFileInfo(file).size();
    ASSERT_GT(sizeWhenFull, 0);
    EXPECT_LT(finalSize, sizeWhenFull + sizeWhenFull / 5) << sizeWhenFull << " -> " << finalSize;
    EXPECT_EQ(LogRecords::sqlite(file, QStringLiteral("PRAGMA integrity_check")), "ok");
}

} // namespace
