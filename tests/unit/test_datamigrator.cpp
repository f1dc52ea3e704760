#include "datamigrator.h"
#include "models/dbutil.h"
#include "models/methodmodel.h"
#include "models/sysinfomodel.h"
#include "system/platform.h"
#include "testdatabase.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSqlQuery>
#include <gtest/gtest.h>

namespace {

QString fixture(const char *name)
{
    return readTextFile(QStringLiteral(KESTRUM_SOURCE_DIR "/tests/data/") + QString::fromLatin1(name));
}

QVariant cell(const QString &sql)
{
    QSqlQuery q;
    if (!q.exec(sql) || !q.next())
        return QVariant();
    return q.value(0);
}

QString tableSql(const QString &table)
{
    return cell(QStringLiteral("SELECT sql FROM sqlite_master WHERE name='%1'").arg(table)).toString();
}

const char *kCurrentSysInfo =
    "DROP TABLE systemInfo;"
    "CREATE TABLE systemInfo (appVersion varchar(30), dbVersion varchar(30), id integer primary key, "
    "mfgSerialNum varchar(30), mspVersion varchar(30), osTreeHash varchar(64), osVersion varchar(128), "
    "productType varchar(30), timestamp DATETIME UNIQUE);"
    "INSERT INTO systemInfo (appVersion, dbVersion, mfgSerialNum, timestamp) VALUES ('1.4.0', '%1', 'SN-0042', '2021-01-01T08:00:00.000');";

// What a 1.2 to 1.4 installation changed in the file on top of 1.1.
const char *kUpTo15 =
    "ALTER TABLE MeasurementTable ADD COLUMN calLogId integer;"
    "ALTER TABLE MeasurementTable ADD COLUMN calAvg float;"
    "ALTER TABLE MeasurementTable ADD COLUMN calDateTime DATETIME;"
    "DELETE FROM MeasurementTable WHERE id=10002;"
    "INSERT INTO reportSetupTable (reportType, calibrationId) VALUES ('Calibration', 1);"
    "INSERT INTO reportSetupTable (reportType, titrationId) VALUES ('Standardization', 1);";

const char *kUpTo17 =
    "ALTER TABLE reportSetupTable ADD COLUMN standardizationId integer;"
    "ALTER TABLE titrationSetupTable ADD COLUMN servingSize float;"
    "ALTER TABLE titrationSetupTable ADD COLUMN servingUnit varchar(30);";

class Migration : public ::testing::Test
{
protected:
    void SetUp() override { Platform::clearRecordedCommands(); }
    TestDatabase db;

    // The method library and the settings as the old version left them.
    void expectMethodsAndSettingsKept()
    {
        EXPECT_EQ(cell(QStringLiteral("SELECT methodName FROM methodSetupTable WHERE id=7")).toString(), QStringLiteral("Acidity"));
        EXPECT_EQ(cell(QStringLiteral("SELECT methodPassword FROM methodSetupTable WHERE id=7")).toString(), QStringLiteral("pw7"));
        EXPECT_DOUBLE_EQ(cell(QStringLiteral("SELECT titrantConcentration FROM methodSetupTable WHERE id=7")).toDouble(), 0.1021);
        EXPECT_EQ(TestDatabase::rowCount(QStringLiteral("methodSetupTable"), QStringLiteral("id=99999")), 1);
        EXPECT_EQ(cell(QStringLiteral("SELECT standAmount_Value FROM titrantSetupTable WHERE methodId=7")).toString(), QStringLiteral("0.2042"));
        EXPECT_EQ(cell(QStringLiteral("SELECT endPointValues FROM titrationSetupTable WHERE methodId=7")).toString(), QStringLiteral("8.3"));
        EXPECT_EQ(cell(QStringLiteral("SELECT electrodeName FROM electrodeSetupTable WHERE methodId=7")).toString(), QStringLiteral("pH-1"));
        EXPECT_EQ(cell(QStringLiteral("SELECT instrumentName FROM setupTable WHERE id=101")).toString(), QStringLiteral("Lab 3"));
        EXPECT_TRUE(tableSql(QStringLiteral("methodSetupTable")).contains(QLatin1String("autoincrement"), Qt::CaseInsensitive));
        const QStringList titration = TestDatabase::columns(QStringLiteral("titrationSetupTable"));
        EXPECT_EQ(titration.mid(titration.size() - 2), QStringList({QStringLiteral("servingSize"), QStringLiteral("servingUnit")}));
    }
};

TEST_F(Migration, CurrentVersionIsLeftAlone)
{
    ASSERT_TRUE(SysInfoModel::createTables());
    ASSERT_TRUE(TestDatabase::exec(QStringLiteral("INSERT INTO systemInfo (dbVersion, timestamp) VALUES ('1.8', '2026-01-01T00:00:00.000')")));
    { MethodModel method; method.saveMethodValues(QStringLiteral("Kept"), QString()); }
    const QString before = db.dump();
    EXPECT_TRUE(DataMigrator::dmPtr()->migrate());
    EXPECT_EQ(db.dump(), before);
    EXPECT_TRUE(Platform::recordedCommands().isEmpty());
}

TEST_F(Migration, EmptyFileTakesTheWipePathOnceAndThenStarts)
{
    EXPECT_EQ(SysInfoModel::readDbVersion(), QStringLiteral("UNKNOWN"));
    EXPECT_FALSE(DataMigrator::dmPtr()->migrate());
    EXPECT_EQ(SysInfoModel::readDbVersion(), QStringLiteral("1.8"));
    EXPECT_EQ(TestDatabase::rowCount(QStringLiteral("systemInfo")), 1);
    ASSERT_TRUE(db.reopen());
    EXPECT_TRUE(DataMigrator::dmPtr()->migrate());
}

TEST_F(Migration, Version11KeepsMethodsAndSettingsAndDropsReshapedLogs)
{
    ASSERT_TRUE(db.runScript(fixture("schema_1_1.sql")));
    ASSERT_EQ(SysInfoModel::readDbVersion(), QStringLiteral("1.1"));
    ASSERT_TRUE(DataMigrator::dmPtr()->migrate());

    expectMethodsAndSettingsKept();
    for (const char *gone : {"titrationTable", "titrationCycleTable", "calibrationTable", "calibrationCycleTable",
                             "calibrationLogTable", "titrationLogTable", "standardisationLogTable",
                             "measurementLogTable", "reportSetupTable"})
        EXPECT_EQ(TestDatabase::rowCount(QString::fromLatin1(gone)), -1) << gone;
    // The meter row gained its three columns and lost its two wrong rows.
    const QStringList meter = TestDatabase::columns(QStringLiteral("MeasurementTable"));
    EXPECT_EQ(meter.size(), 22);
    EXPECT_EQ(meter.mid(19), QStringList({QStringLiteral("calLogId"), QStringLiteral("calAvg"), QStringLiteral("calDateTime")}));
    EXPECT_EQ(TestDatabase::rowCount(QStringLiteral("MeasurementTable")), 0);
    // systemInfo in its new shape, the history kept; the version moves on
    // when the model is built.
    EXPECT_EQ(TestDatabase::columns(QStringLiteral("systemInfo")).first(), QStringLiteral("appVersion"));
    EXPECT_EQ(cell(QStringLiteral("SELECT mfgSerialNum FROM systemInfo")).toString(), QStringLiteral("SN-0042"));
    EXPECT_EQ(SysInfoModel::readDbVersion(), QStringLiteral("1.1"));
    {
        SysInfoModel sysInfo;
        EXPECT_EQ(sysInfo.mfgSerialNum(), QStringLiteral("SN-0042"));
    }
    EXPECT_EQ(SysInfoModel::readDbVersion(), QStringLiteral("1.8"));

    // A new method never takes an id that an old run pointed to.
    MethodModel method;
    method.saveMethodValues(QStringLiteral("New"), QString());
    EXPECT_GT(method.id(), 100012);
    EXPECT_TRUE(Platform::recordedCommands().isEmpty());
}

TEST_F(Migration, Version15DropsOnlyTheLogsThatChangedAndItsRunReports)
{
    ASSERT_TRUE(db.runScript(fixture("schema_1_1.sql") + QString::fromLatin1(kUpTo15)
                             + QString::fromLatin1(kCurrentSysInfo).arg(QStringLiteral("1.5"))));
    ASSERT_TRUE(DataMigrator::dmPtr()->migrate());
    expectMethodsAndSettingsKept();
    EXPECT_EQ(TestDatabase::rowCount(QStringLiteral("titrationLogTable")), -1);
    EXPECT_EQ(TestDatabase::rowCount(QStringLiteral("standardisationLogTable")), -1);
    EXPECT_EQ(TestDatabase::rowCount(QStringLiteral("measurementLogTable")), 1);
    EXPECT_EQ(TestDatabase::rowCount(QStringLiteral("calibrationTable")), 1);
    EXPECT_EQ(TestDatabase::rowCount(QStringLiteral("MeasurementTable")), 1);
    EXPECT_EQ(TestDatabase::columns(QStringLiteral("reportSetupTable")).last(), QStringLiteral("standardizationId"));
    EXPECT_EQ(TestDatabase::rowCount(QStringLiteral("reportSetupTable")), 1);
    EXPECT_EQ(cell(QStringLiteral("SELECT reportType FROM reportSetupTable")).toString(), QStringLiteral("Calibration"));
}

TEST_F(Migration, Version17RebuildsOnlyTheMethodTable)
{
    ASSERT_TRUE(db.runScript(fixture("schema_1_1.sql") + QString::fromLatin1(kUpTo15) + QString::fromLatin1(kUpTo17)
                             + QString::fromLatin1(kCurrentSysInfo).arg(QStringLiteral("1.7"))));
    QStringList others;
    for (const char *t : {"titrationTable", "calibrationTable", "measurementLogTable", "reportSetupTable",
                          "MeasurementTable", "setupTable", "titrantSetupTable", "titrationSetupTable", "systemInfo"})
        others << QString::fromLatin1(t);
    const QString before = db.dump(others);
    ASSERT_TRUE(DataMigrator::dmPtr()->migrate());
    expectMethodsAndSettingsKept();
    EXPECT_EQ(db.dump(others), before);
    EXPECT_EQ(TestDatabase::rowCount(QStringLiteral("methodSetupTable")), 2);
}

TEST_F(Migration, UnknownVersionIsSavedToJsonThenEmptiedAndTheServiceRestarted)
{
    ASSERT_TRUE(db.runScript(fixture("schema_1_1.sql") + QString::fromLatin1(kCurrentSysInfo).arg(QStringLiteral("2.0"))
                             + QStringLiteral("INSERT INTO reportSetupTable (reportType, image1) VALUES ('Calibration', X'89504E470D0A1A0A00FF');")));
    QFile::remove(DataMigrator::backupFilePath());
    EXPECT_FALSE(DataMigrator::dmPtr()->migrate());
    DataMigrator::dmPtr()->restartApp();
    EXPECT_EQ(Platform::recordedCommands(), QStringList({QStringLiteral("systemctl restart b2qt")}));

    // Only systemInfo is left, at the current version.
    QStringList tables;
    QSqlQuery q(QStringLiteral("SELECT name FROM sqlite_master WHERE type='table' AND name NOT LIKE 'sqlite_%'"));
    while (q.next())
        tables << q.value(0).toString();
    EXPECT_EQ(tables, QStringList({QStringLiteral("systemInfo")}));
    EXPECT_EQ(SysInfoModel::readDbVersion(), QStringLiteral("1.8"));

    // The copy holds what was there, the stored image byte for byte.
    const QJsonObject doc = QJsonDocument::fromJson(readTextFile(DataMigrator::backupFilePath()).toUtf8()).object();
    EXPECT_EQ(doc.value(QStringLiteral("methodSetupTable")).toObject().value(QStringLiteral("7")).toObject()
                  .value(QStringLiteral("methodName")).toString(), QStringLiteral("Acidity"));
    EXPECT_EQ(doc.value(QStringLiteral("setupTable")).toObject().size(), 1);
    EXPECT_EQ(doc.value(QStringLiteral("MeasurementTable")).toObject().size(), 2);
    const QJsonObject report = doc.value(QStringLiteral("reportSetupTable")).toObject().value(QStringLiteral("2")).toObject();
    EXPECT_EQ(QByteArray::fromBase64(report.value(QStringLiteral("image1")).toObject().value(QStringLiteral("blob_base64")).toString().toLatin1()),
              QByteArray::fromHex("89504E470D0A1A0A00FF"));
    EXPECT_TRUE(report.value(QStringLiteral("titrationId")).isNull());
}

TEST_F(Migration, AFailedStepLeavesNothingHalfMigratedInTheCopy)
{
    // An earlier start added the meter columns and died: the 1.1 step fails
    // now, and the copy must hold the file as found, not half a migration.
    ASSERT_TRUE(db.runScript(fixture("schema_1_1.sql")
                             + QStringLiteral("ALTER TABLE MeasurementTable ADD COLUMN calLogId integer;")));
    EXPECT_FALSE(DataMigrator::dmPtr()->migrate());
    const QJsonObject doc = QJsonDocument::fromJson(readTextFile(DataMigrator::backupFilePath()).toUtf8()).object();
    EXPECT_TRUE(doc.contains(QStringLiteral("titrationLogTable")));
    EXPECT_TRUE(doc.contains(QStringLiteral("calibrationTable")));
    EXPECT_EQ(doc.value(QStringLiteral("MeasurementTable")).toObject().size(), 2);
    EXPECT_EQ(SysInfoModel::readDbVersion(), QStringLiteral("1.8"));
}

TEST_F(Migration, NewestSystemInfoRowIsTheStateAndOnlyChangesAddRows)
{
    {
        SysInfoModel first;
        first.setMspVersion(QStringLiteral("MSP 3.0"));
        first.setMspVersion(QStringLiteral("MSP 3.1"));
    }
    EXPECT_EQ(TestDatabase::rowCount(QStringLiteral("systemInfo")), 1);
    {
        SysInfoModel second;
        EXPECT_EQ(second.mspVersion(), QStringLiteral("MSP 3.1"));
        second.setMspVersion(QStringLiteral("MSP 3.1"));
        second.setOsTreeHash(QString());
    }
    EXPECT_EQ(TestDatabase::rowCount(QStringLiteral("systemInfo")), 1);
}

TEST_F(Migration, SequenceCountersFollowWhatIsLeft)
{
    ASSERT_TRUE(TestDatabase::exec(QStringLiteral("CREATE TABLE calibrationTable (id integer primary key autoincrement, v int)")));
    ASSERT_TRUE(TestDatabase::exec(QStringLiteral("CREATE TABLE titrationTable (id integer primary key autoincrement, v int)")));
    for (int i = 0; i < 5; ++i) {
        ASSERT_TRUE(TestDatabase::exec(QStringLiteral("INSERT INTO calibrationTable (v) VALUES (1)")));
        ASSERT_TRUE(TestDatabase::exec(QStringLiteral("INSERT INTO titrationTable (v) VALUES (1)")));
    }
    ASSERT_TRUE(TestDatabase::exec(QStringLiteral("DELETE FROM calibrationTable")));
    ASSERT_TRUE(TestDatabase::exec(QStringLiteral("DELETE FROM titrationTable WHERE id > 2")));
    EXPECT_TRUE(DbUtil::resetSquenceIds({QStringLiteral("calibrationTable"), QStringLiteral("titrationTable")}));
    ASSERT_TRUE(TestDatabase::exec(QStringLiteral("INSERT INTO calibrationTable (v) VALUES (1)")));
    ASSERT_TRUE(TestDatabase::exec(QStringLiteral("INSERT INTO titrationTable (v) VALUES (1)")));
    EXPECT_EQ(cell(QStringLiteral("SELECT max(id) FROM calibrationTable")).toInt(), 1);
    EXPECT_EQ(cell(QStringLiteral("SELECT max(id) FROM titrationTable")).toInt(), 3);
    EXPECT_FALSE(DbUtil::resetSquenceIds({QStringLiteral("titrationTable; DROP TABLE titrationTable")}));
    EXPECT_EQ(TestDatabase::rowCount(QStringLiteral("titrationTable")), 3);
}

} // namespace
