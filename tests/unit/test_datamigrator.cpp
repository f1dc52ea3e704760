#include "datamanagerbase.h"
#include "datamigrator.h"
#include "models/dbutil.h"
#include "models/methodmodel.h"
#include "models/sysinfomodel.h"
#include "system/platform.h"
#include "testdatabase.h"

#include <QFile>
#include <QMap>
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

// A file as version `version` of the application left it: the 1.1 file
// with each later version's changes on top, and a newest systemInfo row of
// that version.
QString fileOfVersion(const QString &version)
{
    QString sql = fixture("schema_1_1.sql");
    for (const QString &step : DbUtil::versionRange(QStringLiteral("1.2"), version))
        sql += fixture(QStringLiteral("upgrade_%1.sql").arg(QString(step).replace(QLatin1Char('.'), QLatin1Char('_'))).toLatin1().constData());
    if (version != QLatin1String("1.1"))
        sql += QStringLiteral("INSERT INTO systemInfo (appVersion, dbVersion, mfgSerialNum, timestamp) "
                              "VALUES ('1.4.0', '%1', 'SN-0042', '2021-01-01T08:00:00.000');").arg(version);
    return sql;
}

// Every row of a table, its columns as listed, in id order.
QStringList rowsOf(const QString &table, const QStringList &columns)
{
    QStringList rows;
    QSqlQuery q;
    if (!q.exec(QStringLiteral("SELECT %1 FROM %2 ORDER BY id").arg(columns.join(QLatin1Char(',')), table)))
        return {QStringLiteral("<no table>")};
    while (q.next()) {
        QStringList cells;
        for (int i = 0; i < columns.size(); ++i)
            cells << (q.value(i).isNull() ? QStringLiteral("NULL") : q.value(i).toString());
        rows << cells.join(QLatin1Char('|'));
    }
    return rows;
}

class Migration : public ::testing::Test
{
protected:
    void SetUp() override { Platform::clearRecordedCommands(); }
    TestDatabase db;
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

struct OldFile {
    const char *version;
    // Tables the version's step drops (they come back empty with their model).
    QStringList dropped;
    // Rows left in the report and meter tables, where the step deletes some.
    int reportsLeft;
    int meterRowsLeft;
};

void PrintTo(const OldFile &file, std::ostream *os)
{
    *os << "version " << file.version;
}

class MigrationOfVersion : public Migration, public ::testing::WithParamInterface<OldFile>
{
};

TEST_P(MigrationOfVersion, KeepsEveryMethodAndWhatTheShapeAllows)
{
    const OldFile &old = GetParam();
    ASSERT_TRUE(db.runScript(fileOfVersion(QString::fromLatin1(old.version))));
    ASSERT_EQ(SysInfoModel::readDbVersion(), QString::fromLatin1(old.version));
    const int newestRunMethod = cell(QStringLiteral("SELECT methodId FROM titrationTable ORDER BY mcreatedAt DESC LIMIT 1")).toInt();
    ASSERT_EQ(TestDatabase::rowCount(QStringLiteral("methodSetupTable"), QStringLiteral("id=%1").arg(newestRunMethod)), 1)
        << "the newest run's method still exists";
    QMap<QString, QStringList> columns;
    QMap<QString, QStringList> before;
    for (const QString &t : DbUtil::tableNames()) {
        if (t.startsWith(QLatin1String("sqlite_")) || t.startsWith(QLatin1String("systemInfo")))
            continue;
        columns[t] = TestDatabase::columns(t);
        before[t] = rowsOf(t, columns[t]);
    }

    ASSERT_TRUE(DataMigrator::dmPtr()->migrate());
    EXPECT_EQ(DataMigrator::dmPtr()->outcome(), DataMigrator::Outcome::Migrated);

    for (auto it = before.cbegin(); it != before.cend(); ++it) {
        const QString &t = it.key();
        if (old.dropped.contains(t))
            EXPECT_EQ(TestDatabase::rowCount(t), -1) << t.toStdString();
        else if (t == QLatin1String("reportSetupTable"))
            EXPECT_EQ(TestDatabase::rowCount(t), old.reportsLeft);
        else if (t == QLatin1String("MeasurementTable"))
            EXPECT_EQ(TestDatabase::rowCount(t), old.meterRowsLeft);
        else
            EXPECT_EQ(rowsOf(t, columns[t]), it.value()) << t.toStdString();
    }
    EXPECT_TRUE(tableSql(QStringLiteral("methodSetupTable")).contains(QLatin1String("autoincrement"), Qt::CaseInsensitive));
    const QStringList titration = TestDatabase::columns(QStringLiteral("titrationSetupTable"));
    EXPECT_EQ(titration.mid(titration.size() - 2), QStringList({QStringLiteral("servingSize"), QStringLiteral("servingUnit")}));
    {
        SysInfoModel sysInfo;
        EXPECT_EQ(sysInfo.mfgSerialNum(), QStringLiteral("SN-0042"));
    }
    EXPECT_EQ(SysInfoModel::readDbVersion(), QStringLiteral("1.8"));
    // The data layer starts on the migrated file without a failed statement.
    static QStringList failed;
    failed.clear();
    const QtMessageHandler previous = qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &text) {
        if (text.contains(QLatin1String("SQL failed")))
            failed << text;
    });
    {
        DataManagerBase dm;
        dm.DataManagerLegacyInit();
        dm.updateProdType(QStringLiteral("All-in-one"));
    }
    qInstallMessageHandler(previous);
    EXPECT_TRUE(failed.isEmpty()) << failed.join(QLatin1Char('\n')).toStdString();

    // A new method never takes an id that a run pointed to.
    MethodModel method;
    method.saveMethodValues(QStringLiteral("New"), QString());
    EXPECT_GT(method.id(), 100012);
    EXPECT_TRUE(Platform::recordedCommands().isEmpty());
}

const QStringList kRunTables{QStringLiteral("titrationTable"), QStringLiteral("titrationCycleTable"),
                             QStringLiteral("calibrationTable"), QStringLiteral("calibrationCycleTable"),
                             QStringLiteral("calibrationLogTable"), QStringLiteral("reportSetupTable")};
const QStringList kMeasurementLog{QStringLiteral("measurementLogTable")};
const QStringList kRunLogs{QStringLiteral("titrationLogTable"), QStringLiteral("standardisationLogTable")};

INSTANTIATE_TEST_SUITE_P(Versions, MigrationOfVersion,
                         ::testing::Values(OldFile{"1.1", kRunTables + kMeasurementLog + kRunLogs, 0, 0},
                                           OldFile{"1.2", kRunTables + kMeasurementLog + kRunLogs, 0, 0},
                                           OldFile{"1.3", kRunTables + kMeasurementLog + kRunLogs, 0, 1},
                                           OldFile{"1.4", kMeasurementLog + kRunLogs, 1, 1},
                                           OldFile{"1.5", kRunLogs, 1, 1},
                                           OldFile{"1.6", {}, 3, 1},
                                           OldFile{"1.7", {}, 3, 1}),
                         [](const ::testing::TestParamInfo<OldFile> &info) {
                             return std::string("v") + QString::fromLatin1(info.param.version).remove(QLatin1Char('.')).toStdString();
                         });

TEST_F(Migration, ANewerVersionIsLeftAsItIsAndAFailedOneIsSavedToJsonThenEmptied)
{
    ASSERT_TRUE(db.runScript(fixture("schema_1_1.sql") + QStringLiteral("INSERT INTO systemInfo (dbVersion, timestamp) VALUES ('2.0', '2021-01-01T08:00:00.000');")
                             + QStringLiteral("INSERT INTO reportSetupTable (reportType, image1) VALUES ('Calibration', X'89504E470D0A1A0A00FF');")));
    QFile::remove(DataMigrator::backupFilePath());
    // A newer program's file: nothing copied, nothing emptied.
    const QString asFound = db.dump();
    EXPECT_FALSE(DataMigrator::dmPtr()->migrate());
    EXPECT_EQ(DataMigrator::dmPtr()->outcome(), DataMigrator::Outcome::Newer);
    EXPECT_EQ(db.dump(), asFound);
    EXPECT_FALSE(QFile::exists(DataMigrator::backupFilePath()));

    // The same file as a 1.1 file whose step fails (its meter columns are
    // there already) is copied and emptied.
    ASSERT_TRUE(TestDatabase::exec(QStringLiteral("DELETE FROM systemInfo WHERE dbVersion = '2.0'")));
    ASSERT_TRUE(TestDatabase::exec(QStringLiteral("ALTER TABLE MeasurementTable ADD COLUMN calLogId integer")));
    EXPECT_FALSE(DataMigrator::dmPtr()->migrate());
    EXPECT_EQ(DataMigrator::dmPtr()->outcome(), DataMigrator::Outcome::Wiped);
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
