// Method files that the method screens could not have made, given to the
// console with --method FILE: each is refused with a message that names the
// first bad field, the stored methods and runs stay byte for byte, no
// staging table is left, and the stored method of the same name is never run
// in the refused one's place.
#include "appconstants.h"
#include "logrecords.h"
#include "models/methoddraft.h"
#include "models/importexport.h"
#include "testdatalayer.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <functional>

namespace {

const QString kScenario = QStringLiteral(KESTRUM_SOURCE_DIR "/tools/virtual-instrument/scenarios/acetic-acid-10ml.json");
const char *const kKeptTables[] = {"methodSetupTable", "electrodeSetupTable", "titrantSetupTable", "titrationSetupTable",
                                   "methodSetupTable_import", "electrodeSetupTable_import", "titrantSetupTable_import",
                                   "titrationSetupTable_import", "titrationTable", "titrationCycleTable",
                                   "titrationLogTable"};

using Edit = std::function<void(QJsonObject &)>;

// The one row of a table of the method file.
QJsonObject rowOf(const QJsonObject &doc, const char *table)
{
    const QJsonObject rows = doc.value(QLatin1String(table)).toObject();
    return rows.constBegin().value().toObject();
}

void setRow(QJsonObject &doc, const char *table, const QJsonObject &row)
{
    QJsonObject rows = doc.value(QLatin1String(table)).toObject();
    rows.insert(rows.constBegin().key(), row);
    doc.insert(QLatin1String(table), rows);
}

Edit set(const char *table, const char *column, const QJsonValue &value)
{
    return [=](QJsonObject &doc) {
        QJsonObject row = rowOf(doc, table);
        row.insert(QLatin1String(column), value);
        setRow(doc, table, row);
    };
}

Edit both(Edit a, Edit b)
{
    return [=](QJsonObject &doc) { a(doc); b(doc); };
}

// The bytes of a file made from the good file's document.
using Maker = std::function<QByteArray(QJsonObject good)>;

Maker edited(Edit edit)
{
    return [=](QJsonObject doc) {
        edit(doc);
        return QJsonDocument(doc).toJson();
    };
}

struct BadFile {
    const char *name;
    Maker make;
    const char *message;       // what the console says
    bool fullLibrary = false;  // ten methods stored, one of them of the file's name
};

void PrintTo(const BadFile &file, std::ostream *os)
{
    *os << file.name;
}

class MethodFiles : public ::testing::TestWithParam<BadFile>
{
public:
    // A database with the stored method "Acidity", its method file, and the
    // same database with ten methods.
    static void SetUpTestSuite()
    {
        s_base = new QTemporaryDir;
        TestDataLayer layer; // every table the console's data layer makes
        TestDatabase &db = layer.db;
        QString error;
        const int id = MethodDraft().save(QStringLiteral("Acidity"), &error);
        ASSERT_GT(id, 0) << error.toStdString();
        ImportExport io(s_base->filePath(QStringLiteral("Acidity.json")));
        const QString where = QStringLiteral(" WHERE methodId=%1").arg(id);
        ASSERT_TRUE(io.exportQueries({QStringLiteral("SELECT * FROM methodSetupTable WHERE id=%1").arg(id),
                                      QStringLiteral("SELECT * FROM electrodeSetupTable") + where,
                                      QStringLiteral("SELECT * FROM titrationSetupTable") + where,
                                      QStringLiteral("SELECT * FROM titrantSetupTable") + where,
                                      QStringLiteral("SELECT * FROM systemInfo")},
                                     {QStringLiteral("methodSetupTable"), QStringLiteral("electrodeSetupTable"),
                                      QStringLiteral("titrationSetupTable"), QStringLiteral("titrantSetupTable"),
                                      QStringLiteral("systemInfo")},
                                     QString()));
        db.close();
        ASSERT_TRUE(QFile::copy(db.path(), s_base->filePath(QStringLiteral("one.db"))));
        db.open();
        for (int i = 1; i <= 9; ++i)
            ASSERT_GT(MethodDraft().save(QStringLiteral("Method %1").arg(i), &error), 0);
        db.close();
        ASSERT_TRUE(QFile::copy(db.path(), s_base->filePath(QStringLiteral("full.db"))));
    }
    static void TearDownTestSuite() { delete s_base; }

    static QJsonObject goodDocument()
    {
        QFile f(s_base->filePath(QStringLiteral("Acidity.json")));
        f.open(QIODevice::ReadOnly);
        return QJsonDocument::fromJson(f.readAll()).object();
    }

protected:
    // The console with the method file on a sandbox holding `database`.
    int runCli(const QString &sandbox, const QString &file, QString *text)
    {
        QProcess p;
        p.start(QStringLiteral(KESTRUM_BIN_DIR "/vantor-cli"),
                {QStringLiteral("titrate"), QStringLiteral("--scenario"), kScenario, QStringLiteral("--speed"),
                 QStringLiteral("200"), QStringLiteral("--method"), file, QStringLiteral("--sandbox"), sandbox});
        if (!p.waitForFinished(120000))
            p.kill();
        *text = QString::fromLocal8Bit(p.readAllStandardOutput() + p.readAllStandardError());
        return p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
    }
    static QString dumpOf(const QString &database)
    {
        QStringList args{database};
        for (const char *t : kKeptTables)
            args << QStringLiteral(".dump '%1'").arg(QLatin1String(t));
        QProcess p;
        p.start(QStringLiteral("sqlite3"), args);
        p.waitForFinished(30000);
        return QString::fromUtf8(p.readAllStandardOutput());
    }
    static QString sandboxWith(const QTemporaryDir &dir, const char *database)
    {
        const QString file = dir.path() + QStringLiteral(DATABASE_FILE_NAME);
        QDir().mkpath(QFileInfo(file).absolutePath());
        QFile::copy(s_base->filePath(QLatin1String(database)), file);
        return file;
    }

    static QTemporaryDir *s_base;
};

QTemporaryDir *MethodFiles::s_base = nullptr;

TEST_F(MethodFiles, TheUntouchedFileInstallsBesideTheStoredMethodAndRuns)
{
    QTemporaryDir sandbox;
    const QString database = sandboxWith(sandbox, "one.db");
    QString text;
    EXPECT_EQ(runCli(sandbox.path(), s_base->filePath(QStringLiteral("Acidity.json")), &text), 0) << text.toStdString();
    EXPECT_EQ(LogRecords::sqlite(database, QStringLiteral("SELECT group_concat(methodName, ',') FROM "
                                                          "(SELECT methodName FROM methodSetupTable WHERE id != 99999 ORDER BY id)")),
              QStringLiteral("Acidity,Acidity~1"));
    // The run went to the installed method, not to the stored one.
    EXPECT_EQ(LogRecords::sqlite(database, QStringLiteral("SELECT methodName FROM titrationTable")), QStringLiteral("Acidity~1"));
}

TEST_P(MethodFiles, AreRefusedWithTheirMessageAndLeaveNothing)
{
    const BadFile &c = GetParam();
    const QByteArray bytes = c.make(goodDocument());
    QTemporaryDir sandbox;
    const QString file = sandbox.filePath(QStringLiteral("method.json"));
    QFile f(file);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(bytes);
    f.close();
    const QString database = sandboxWith(sandbox, c.fullLibrary ? "full.db" : "one.db");
    const QString before = dumpOf(database);
    ASSERT_TRUE(before.contains(QStringLiteral("'Acidity'")));

    QString text;
    EXPECT_EQ(runCli(sandbox.path(), file, &text), 2) << text.toStdString();
    EXPECT_TRUE(text.contains(QLatin1String(c.message))) << text.toStdString();
    EXPECT_EQ(dumpOf(database), before);
    EXPECT_EQ(LogRecords::sqlite(database, QStringLiteral("SELECT count(*) FROM sqlite_master WHERE name LIKE '%temp'")),
              QStringLiteral("0"));
}

QByteArray padded(QJsonObject doc)
{
    doc.insert(QStringLiteral("padding"), QString(2 * 1024 * 1024, QLatin1Char('x')));
    return QJsonDocument(doc).toJson();
}

QByteArray truncated(const QJsonObject &doc)
{
    const QByteArray whole = QJsonDocument(doc).toJson();
    return whole.left(whole.size() / 2);
}

Edit twoMethods()
{
    return [](QJsonObject &doc) {
        QJsonObject rows = doc.value(QStringLiteral("methodSetupTable")).toObject();
        QJsonObject second = rows.constBegin().value().toObject();
        second.insert(QStringLiteral("id"), 5);
        rows.insert(QStringLiteral("5"), second);
        doc.insert(QStringLiteral("methodSetupTable"), rows);
    };
}

Edit sqlInKey()
{
    return [](QJsonObject &doc) {
        QJsonObject row = rowOf(doc, "methodSetupTable");
        row.insert(QStringLiteral("methodName) VALUES ('x'); DROP TABLE setupTable; --"), 1);
        setRow(doc, "methodSetupTable", row);
    };
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, MethodFiles,
    ::testing::Values(
        BadFile{"MaxVolumeNotANumber", edited(set("titrationSetupTable", "maxTotalTitrantVolume", "abc")),
                "titration part, maxTotalTitrantVolume: \"abc\" is not a number"},
        BadFile{"MaxVolumeNegative", edited(set("titrationSetupTable", "maxTotalTitrantVolume", "-5")),
                "titration part, maxTotalTitrantVolume: \"-5\" is not between 0 and 100"},
        BadFile{"PreDoseAboveTheMaximum",
                edited(both(set("titrationSetupTable", "preDoseTitrantVolume", "8"), set("titrationSetupTable", "maxTotalTitrantVolume", "5"))),
                "titration part, preDoseTitrantVolume: 8 mL is above maxTotalTitrantVolume (5 mL)"},
        BadFile{"UnknownTechnique", edited(set("titrationSetupTable", "titrationTechnique", "Guesswork")),
                "titration part, titrationTechnique: \"Guesswork\" is not one of"},
        BadFile{"TitrantConcentrationZero", edited(set("titrantSetupTable", "concInputMode_manualEntry", "0")),
                "titrant part, concInputMode_manualEntry: \"0\" is not above 0"},
        BadFile{"MissingPart", edited([](QJsonObject &doc) { doc.remove(QStringLiteral("titrantSetupTable")); }),
                "the titrant part of the method is missing"},
        BadFile{"PreStirOfYears", edited(set("titrationSetupTable", "preStirDuration", 1e9)),
                "titration part, preStirDuration: 1000000000 is not between 0 and 10000"},
        BadFile{"UnknownElectrodeType", edited(set("electrodeSetupTable", "electrodeType", "Conductivity")),
                "electrode part, electrodeType: \"Conductivity\" is not one of pH, Redox, ISE-Titration, ISE-MKA"},
        BadFile{"FourEndPoints", edited(set("titrationSetupTable", "noOfEndPoints", "4")),
                "titration part, noOfEndPoints: \"4\" is not between 1 and 3"},
        BadFile{"NullName", edited(set("methodSetupTable", "methodName", QJsonValue::Null)), "method part, methodName: missing"},
        BadFile{"NameTheScreensRefuse", edited(set("methodSetupTable", "methodName", "Acid<script>")),
                "method part, methodName: \"Acid<script>\" is not a name"},
        BadFile{"Truncated", truncated, "is not a method file:"},
        BadFile{"Oversized", padded, "a method file is at most 1048576"},
        BadFile{"SqlInAKey", edited(sqlInKey()), "method part: \"methodName) VALUES ('x'); DROP TABLE"},
        BadFile{"WrongTypeList", edited(set("titrationSetupTable", "noOfEndPoints", QJsonArray{1, 2})),
                "titration part, noOfEndPoints: a list or object is not a single value"},
        BadFile{"WrongTypeBool", edited(set("electrodeSetupTable", "electrodeType", true)),
                "electrode part, electrodeType: true is not one of"},
        BadFile{"TwoMethods", edited(twoMethods()), "holds 2 methods; a method file holds one"},
        BadFile{"PartOfAnotherMethod", edited(set("titrationSetupTable", "methodId", 7)),
                "titration part, methodId: 7 is not the method's id"},
        BadFile{"TheWorkingMethodsId",
                edited(both(set("methodSetupTable", "id", 99999),
                            both(set("electrodeSetupTable", "methodId", 99999),
                                 both(set("titrantSetupTable", "methodId", 99999), set("titrationSetupTable", "methodId", 99999))))),
                "method part, id: 99999 is the id of the working method"},
        BadFile{"IdZero", edited(set("methodSetupTable", "id", 0)), "method part, id: 0 is not a method id"},
        BadFile{"LibraryFull", edited([](QJsonObject &) {}), "could not be installed: Method log is full", true},
        // Values no run can use, with the field, the value and what is allowed.
        BadFile{"MaxVolumeZero", edited(set("titrationSetupTable", "maxTotalTitrantVolume", "0")),
                "titration part, maxTotalTitrantVolume: 0 mL is not above 0"},
        BadFile{"MaxVolumeAboveTheScreens", edited(set("titrationSetupTable", "maxTotalTitrantVolume", "100.5")),
                "titration part, maxTotalTitrantVolume: \"100.5\" is not between 0 and 100"},
        BadFile{"StandardisationMaxVolumeZero", edited(set("titrantSetupTable", "maxTotalVolume", 0)),
                "titrant part, maxTotalVolume: 0 mL is not above 0"},
        BadFile{"VariableSampleAmountZero",
                edited(both(set("titrationSetupTable", "sampleAmount", "Variable Volume"), set("titrationSetupTable", "sampleAmountValue", "0"))),
                "titration part, sampleAmountValue: 0 is not above 0 and at most 1000 (the sample amount of \"Variable Volume\")"},
        BadFile{"MinimumDoseAboveTheMaximum",
                edited(both(set("titrationSetupTable", "deltaVmin", "0.5"), set("titrationSetupTable", "deltaVmax", "0.1"))),
                "titration part, deltaVmin: 0.5 is not at most 0.1 (deltaVmax)"},
        BadFile{"MinimumWaitAboveTheMaximum", edited(both(set("titrantSetupTable", "tMin", 10), set("titrantSetupTable", "tMax", 5))),
                "titrant part, tMin: 10 is not at most 5 (tMax)"},
        BadFile{"UnknownTopLevelKey", edited([](QJsonObject &doc) { doc.insert(QStringLiteral("reportSetupTable"), QJsonObject()); }),
                "\"reportSetupTable\" is not one of its tables (methodSetupTable, electrodeSetupTable"},
        BadFile{"TheConsolesScratchName", edited(set("methodSetupTable", "methodName", "(vantor-cli)")),
                "method part, methodName: \"(vantor-cli)\" is not a name"}),
    [](const ::testing::TestParamInfo<BadFile> &info) { return std::string(info.param.name); });

} // namespace
