#include "models/methodmodel.h"
#include "models/sysinfomodel.h"
#include "models/titrantsetupmodel.h"
#include "models/importexport.h"
#include "testdatabase.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSqlQuery>
#include <gtest/gtest.h>

namespace {

const QStringList kLiveTables{QStringLiteral("methodSetupTable"), QStringLiteral("electrodeSetupTable"),
                              QStringLiteral("titrantSetupTable"), QStringLiteral("titrationSetupTable"),
                              QStringLiteral("systemInfo"), QStringLiteral("reportSetupTable"),
                              QStringLiteral("myimportTable")};

QVariant cell(const QString &sql)
{
    QSqlQuery q;
    if (!q.exec(sql) || !q.next())
        return QVariant();
    return q.value(0);
}

class ImportExportTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        MethodModel method;
        method.titrantSetupModel()->setStandAmount_Value(0.2042f);
        method.saveMethodValues(QStringLiteral("Acidity"), QStringLiteral("pw"));
        methodId = method.id();
        SysInfoModel sysInfo;
        sysInfo.setMfgSerialNum(QStringLiteral("SN-1"));
        // A table with images, NULLs and real numbers, and a live table whose
        // name merely contains "import".
        ASSERT_TRUE(TestDatabase::exec(QStringLiteral(
            "CREATE TABLE reportSetupTable (id integer primary key autoincrement, reportType varchar(30), "
            "titrationId int, avg float, image1 blob)")));
        QSqlQuery q;
        q.prepare(QStringLiteral("INSERT INTO reportSetupTable (reportType, titrationId, avg, image1) VALUES (?, ?, ?, ?)"));
        q.addBindValue(QStringLiteral("Titration"));
        q.addBindValue(QVariant());
        q.addBindValue(0.1 + 0.2);
        q.addBindValue(QByteArray::fromHex("89504E470D0A1A0A0000000D49484452FF00"));
        ASSERT_TRUE(q.exec());
        ASSERT_TRUE(TestDatabase::exec(QStringLiteral("CREATE TABLE myimportTable (id integer primary key, v text)")));
        ASSERT_TRUE(TestDatabase::exec(QStringLiteral("INSERT INTO myimportTable VALUES (1, 'keep me')")));
        file = Platform::path(QStringLiteral("/var/Kestrum/test.json"));
    }

    bool writeFile(const QByteArray &bytes)
    {
        QFile f(file);
        return f.open(QIODevice::WriteOnly | QIODevice::Truncate) && f.write(bytes) == bytes.size();
    }

    TestDatabase db;
    int methodId = 0;
    QString file;
};

TEST_F(ImportExportTest, WholeFileRoundTripKeepsEveryValueTypeAndByte)
{
    const QString before = db.dump();
    ImportExport io(file);
    ASSERT_TRUE(io.exportAll());
    for (const QString &t : kLiveTables)
        ASSERT_TRUE(TestDatabase::exec(QStringLiteral("DELETE FROM ") + t));
    ASSERT_NE(db.dump(), before);
    EXPECT_TRUE(io.importAll(ImportExport::Replace, QString()));
    EXPECT_EQ(db.dump(), before);
}

TEST_F(ImportExportTest, StagingSuffixIsTakenOutOfTheKeysAndModesDecideOverExistingRows)
{
    ImportExport io(file);
    ASSERT_TRUE(io.exportQueries({QStringLiteral("SELECT * FROM methodSetupTable WHERE id=%1").arg(methodId)},
                                 {QStringLiteral("methodSetupTable")}, QString()));
    // Into the staging table, then out again under the live name.
    ASSERT_TRUE(io.importAll(ImportExport::Ignore, QStringLiteral("_import")));
    EXPECT_EQ(cell(QStringLiteral("SELECT methodName FROM methodSetupTable_import WHERE id=%1").arg(methodId)).toString(), QStringLiteral("Acidity"));
    ImportExport out(Platform::path(QStringLiteral("/var/Kestrum/staged.json")));
    ASSERT_TRUE(out.exportTables({QStringLiteral("methodSetupTable_import")}, QStringLiteral("_import")));
    const QJsonObject doc = QJsonDocument::fromJson(readTextFile(out.fileName()).toUtf8()).object();
    EXPECT_EQ(doc.keys(), QStringList({QStringLiteral("methodSetupTable")}));

    // IGNORE keeps the row that is there, REPLACE takes the file's.
    ASSERT_TRUE(TestDatabase::exec(QStringLiteral("UPDATE methodSetupTable_import SET methodName='Local'")));
    EXPECT_TRUE(io.importAll(ImportExport::Ignore, QStringLiteral("_import")));
    EXPECT_EQ(cell(QStringLiteral("SELECT methodName FROM methodSetupTable_import")).toString(), QStringLiteral("Local"));
    EXPECT_TRUE(io.importAll(ImportExport::Replace, QStringLiteral("_import")));
    EXPECT_EQ(cell(QStringLiteral("SELECT methodName FROM methodSetupTable_import")).toString(), QStringLiteral("Acidity"));
    EXPECT_EQ(TestDatabase::rowCount(QStringLiteral("methodSetupTable_import")), 1);
}

TEST_F(ImportExportTest, TempTwinHasTheLiveColumnsAndUnknownKeysAreIgnored)
{
    ASSERT_TRUE(writeFile(R"({"electrodeSetupTable": {"3": {"id": 3, "electrodeName": "old file", "methodId": 42,
                             "noSuchColumn": "x", "evil\"); DROP TABLE setupTable; --": 1}}})"));
    ImportExport io(file);
    EXPECT_TRUE(io.importAll(ImportExport::Replace, QStringLiteral("_temp")));
    EXPECT_EQ(TestDatabase::columns(QStringLiteral("electrodeSetupTable_temp")), TestDatabase::columns(QStringLiteral("electrodeSetupTable")));
    EXPECT_EQ(cell(QStringLiteral("SELECT electrodeName FROM electrodeSetupTable_temp WHERE methodId=42")).toString(), QStringLiteral("old file"));
    EXPECT_TRUE(cell(QStringLiteral("SELECT electrodeType FROM electrodeSetupTable_temp WHERE methodId=42")).isNull());
    EXPECT_TRUE(io.dropTables(QStringLiteral("_temp")));
    EXPECT_EQ(TestDatabase::rowCount(QStringLiteral("electrodeSetupTable_temp")), -1);
    // A staging name is never staged again.
    ASSERT_TRUE(writeFile(R"({"methodSetupTable_import": {"1": {"id": 1}}})"));
    EXPECT_FALSE(io.importAll(ImportExport::Replace, QStringLiteral("_temp")));
    EXPECT_EQ(TestDatabase::rowCount(QStringLiteral("methodSetupTable_import_temp")), -1);
}

TEST_F(ImportExportTest, ClearAndDropTouchOnlyTablesEndingInTheSuffix)
{
    ImportExport io(file);
    const QString before = db.dump(kLiveTables);
    EXPECT_FALSE(io.dropTables(QString()));
    EXPECT_FALSE(io.clearTables(QString()));
    EXPECT_FALSE(io.dropTables(QStringLiteral("%")));
    EXPECT_FALSE(io.dropTables(QStringLiteral("_import' OR 1=1 --")));
    ASSERT_TRUE(TestDatabase::exec(QStringLiteral("INSERT INTO methodSetupTable_import (id, methodName) VALUES (5, 'staged')")));
    EXPECT_TRUE(io.clearTables(QStringLiteral("_import")));
    EXPECT_EQ(TestDatabase::rowCount(QStringLiteral("methodSetupTable_import")), 0);
    EXPECT_TRUE(io.dropTables(QStringLiteral("_import")));
    EXPECT_EQ(TestDatabase::rowCount(QStringLiteral("methodSetupTable_import")), -1);
    EXPECT_EQ(TestDatabase::rowCount(QStringLiteral("systemInfo_import")), -1);
    EXPECT_EQ(db.dump(kLiveTables), before);
}

TEST_F(ImportExportTest, ExportWritesTheWholeFileOrLeavesTheOldOne)
{
    const QByteArray previous = "{\"previous\": {}}";
    ASSERT_TRUE(writeFile(previous));
    ImportExport io(file);
    EXPECT_FALSE(io.exportQueries({QStringLiteral("SELECT * FROM methodSetupTable")}, {}, QString()));
    EXPECT_FALSE(io.exportQueries({QStringLiteral("SELECT * FROM noSuchTable"), QStringLiteral("SELECT * FROM systemInfo")},
                                  {QStringLiteral("noSuchTable"), QStringLiteral("systemInfo")}, QString()));
    EXPECT_EQ(readTextFile(file).toUtf8(), previous);
    // A folder in place of the file: nothing written, the result false.
    ImportExport blocked(Platform::path(QStringLiteral("/var/Kestrum")));
    EXPECT_FALSE(blocked.exportAll());
}

struct HostileFile {
    const char *name;
    QByteArray bytes;
    bool expected;
};

QByteArray deepNesting()
{
    return QByteArray("{\"methodSetupTable\": {\"1\": {\"id\": ") + QByteArray(200000, '[') + QByteArray(200000, ']') + "}}}";
}

QByteArray hugeString()
{
    return QByteArray("{\"methodSetupTable\": {\"1\": {\"id\": 77, \"methodName\": \"") + QByteArray(3 * 1024 * 1024, 'A') + "\"}}}";
}

class HostileImport : public ImportExportTest, public ::testing::WithParamInterface<HostileFile>
{
};

TEST_P(HostileImport, LeavesLiveTablesByteForByteAndDoesNotCrash)
{
    const HostileFile &h = GetParam();
    ASSERT_TRUE(writeFile(h.bytes));
    const QString before = db.dump(kLiveTables);
    ImportExport io(file);
    for (const QString &suffix : {QStringLiteral("_temp"), QString()})
        EXPECT_EQ(io.importAll(ImportExport::Replace, suffix), h.expected) << h.name << " suffix " << suffix.toStdString();
    EXPECT_EQ(db.dump(kLiveTables), before) << h.name;
    EXPECT_TRUE(io.dropTables(QStringLiteral("_temp")));
}

INSTANTIATE_TEST_SUITE_P(
    Files, HostileImport,
    ::testing::Values(
        HostileFile{"top-level array", "[{\"methodSetupTable\": {}}, 1, 2]", true},
        HostileFile{"table key with SQL", R"({"methodSetupTable (id) VALUES (1); DROP TABLE setupTable; --": {"1": {"id": 1}}})", false},
        HostileFile{"unknown table", R"({"noSuchTable": {"1": {"id": 1}}})", false},
        HostileFile{"internal table", R"({"sqlite_master": {"1": {"type": "table", "name": "x"}}})", true},
        HostileFile{"array as a value", R"({"methodSetupTable": {"1": {"id": 1, "methodName": [1, 2]}}})", false},
        HostileFile{"object as a value", R"({"methodSetupTable": {"1": {"id": 1, "methodName": {"a": 1}}}})", false},
        HostileFile{"truncated", QByteArray(R"({"methodSetupTable": {"100000": {"id": 100000, "methodName": "Aci)"), false},
        HostileFile{"invalid UTF-8", QByteArray("{\"methodSetupTable\": {\"1\": {\"methodName\": \"\xff\xfe\xc3\x28\"}}}"), false},
        HostileFile{"deep nesting", deepNesting(), false},
        HostileFile{"huge string", hugeString(), false},
        HostileFile{"empty file", QByteArray(), false},
        HostileFile{"binary noise", QByteArray::fromHex("00ff13deadbeef00"), false}),
    [](const ::testing::TestParamInfo<HostileFile> &info) {
        std::string n = info.param.name;
        for (char &c : n)
            c = std::isalnum(static_cast<unsigned char>(c)) ? c : '_';
        return n;
    });

TEST_F(ImportExportTest, OversizedFileIsRefusedUnread)
{
    QFile f(file);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    ASSERT_TRUE(f.resize(ImportExport::maxFileBytes + 1));
    f.close();
    const QString before = db.dump(kLiveTables);
    ImportExport io(file);
    EXPECT_FALSE(io.importAll(ImportExport::Replace, QStringLiteral("_temp")));
    EXPECT_EQ(db.dump(kLiveTables), before);
}

TEST_F(ImportExportTest, ValuesThatLookLikeSqlAreStoredAsText)
{
    const QByteArray text = R"({"methodSetupTable": {"5": {"id": 5, "methodName": "x'); DROP TABLE setupTable; --"}}})";
    ASSERT_TRUE(writeFile(text));
    ImportExport io(file);
    EXPECT_TRUE(io.importAll(ImportExport::Replace, QStringLiteral("_temp")));
    EXPECT_EQ(cell(QStringLiteral("SELECT methodName FROM methodSetupTable_temp WHERE id=5")).toString(),
              QStringLiteral("x'); DROP TABLE setupTable; --"));
}

} // namespace
