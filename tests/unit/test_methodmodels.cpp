#include "methodlibrary.h"
#include "models/electrodesetupmodel.h"
#include "models/methodmodel.h"
#include "models/sysinfomodel.h"
#include "models/titrantsetupmodel.h"
#include "models/titrationsetupmodel.h"
#include "testdatabase.h"

#include <QSqlQuery>
#include <QSqlRecord>
#include <gtest/gtest.h>

#include <cmath>
#include <memory>

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

// Every value of a row but the keys and dates, to compare a method's row
// with its copy.
QVariantMap rowWithoutKeys(const QString &table, int methodId)
{
    QSqlQuery q;
    q.exec(QStringLiteral("SELECT * FROM %1 WHERE methodId=%2").arg(table).arg(methodId));
    QVariantMap map;
    if (!q.next())
        return map;
    const QSqlRecord r = q.record();
    for (int i = 0; i < r.count(); ++i) {
        const QString n = r.fieldName(i);
        if (n != QLatin1String("id") && n != QLatin1String("methodId") && !n.endsWith(QLatin1String("At")))
            map.insert(n, r.value(i));
    }
    return map;
}

class MethodModels : public ::testing::Test
{
protected:
    TestDatabase db;

    // A method with every part set away from its defaults.
    static void fillMethod(MethodModel &m)
    {
        ElectrodeSetupModel *e = m.electrodeSetupModel();
        e->setElectrodeType(QStringLiteral("ISE-Titration"));
        e->setIseType(QStringLiteral("Calcium (Ca+2)"));
        e->setElectrodeName(QStringLiteral("Ca-ISE 7"));
        e->setSignificantDigits(3);
        e->setDirectMeasureUnit(QStringLiteral("mg/L"));
        TitrantSetupModel *t = m.titrantSetupModel();
        t->setTitrantName(QStringLiteral("EDTA"));
        t->setConcInputMode(QStringLiteral("Standardization"));
        t->setStandAmount(QStringLiteral("Variable Weight"));
        t->setStandAmount_Value(0.25f);
        t->setStandMolecularWeight(100.09f);
        t->setTitrantConcentrationValue(0.0123f);
        t->setDeltaVmin(0.03f);
        t->setTMax(12);
        TitrationSetupModel *s = m.titrationSetupModel();
        s->setTitrationTechnique(QStringLiteral("Preset End Pt."));
        s->setNoOfEndPoints(2);
        s->setEndPointValues_Second(4.5f);
        s->setResultUnits(QStringLiteral("mg/L"));
        s->setSampleMolecularWeight(40.08f);
        s->setServingSize(2.5f);
    }
};

TEST_F(MethodModels, TablesHaveTheColumnsInTheirOrder)
{
    MethodModel method;
    SysInfoModel sysInfo;
    const QStringList methodCols = words(
        "id methodName methodPassword lastTitration lastCalibration lastStandardization titrantConcentration "
        "blankConcentration sampleConcentration mcreatedAt mupdatedAt isChangeFromHome calibratedElectrodeName");
    const QStringList electrodeCols = words(
        "id electrodeName electrodeType bufferGroup resolution iseType significantDigits methodId directMeasureUnit "
        "mcreatedAt mupdatedAt");
    const QStringList titrantCols = words(
        "id titrantName titrantName_userDefined titrantID concInputMode concInputMode_manualEntry concInputMode_Unit "
        "nominalConc nominalConc_Unit titerRatio standTechnique noOfEndPoints endPointsValues endPointsValueSecond "
        "endPoint_Unit resultUnits standReactionRatio standardName standardName_userDefined standAmount "
        "standAmount_Value standAmount_Unit standMolecularWeight standardPurity standConcentration "
        "preDoseTitrantVolume maxTotalVolume standProcessControl preStirDuration stirSpeed titrantConcentration "
        "titrantConcentration_Value titrantMolecularWeight methodId mcreatedAt mupdatedAt standMolecularWeight_Unit "
        "standardPurity_Unit standConcentration_Unit preDoseTitrantVolume_Unit maxTotalVolume_Unit "
        "preStirDuration_Unit titrantMolecularWeight_Unit deltaE deltaVmin deltaVmax stabilityCriteria tMin tMax "
        "threshold");
    const QStringList titrationCols = words(
        "id titrantName titrationTechnique noOfEndPoints endPointValues endPointValues_Second endPointValues_Third "
        "displayUnits titrationType blankRequired blankRequiredValue resultUnits resultUnitsValue reactionRatio "
        "reagentAmount reagentAmountValue reagentMolecularWeight reagentPurity reagentWeight reagentVolume "
        "reagentConcentration sampleMolecularWeight sampleDensity preDoseTitrantVolume maxTotalTitrantVolume "
        "titrationProcessControl preStirDuration stirSpeed sampleID sampleIDValue sampleAmount sampleAmountValue "
        "reagentReactionRatio titrantReactionRatio iseType totalSolutionVolume mkaProcessControl "
        "mkaProcessControlConstant mkaProcessControlMeasurement mkaProcessControlPrecision methodId mcreatedAt "
        "mupdatedAt titrantConcentration blankConcentration reagentWeightType deltaE deltaVmin deltaVmax "
        "stabilityCriteria tMin tMax threshold avgConcentration servingSize servingUnit");
    const QStringList sysInfoCols = words("appVersion dbVersion id mfgSerialNum mspVersion osTreeHash osVersion productType timestamp");
    ASSERT_EQ(titrantCols.size(), 50);
    ASSERT_EQ(titrationCols.size(), 56);
    for (const QString &suffix : {QString(), QStringLiteral("_import")}) {
        EXPECT_EQ(TestDatabase::columns(QStringLiteral("methodSetupTable") + suffix), methodCols) << suffix.toStdString();
        EXPECT_EQ(TestDatabase::columns(QStringLiteral("electrodeSetupTable") + suffix), electrodeCols);
        EXPECT_EQ(TestDatabase::columns(QStringLiteral("titrantSetupTable") + suffix), titrantCols);
        EXPECT_EQ(TestDatabase::columns(QStringLiteral("titrationSetupTable") + suffix), titrationCols);
        EXPECT_EQ(TestDatabase::columns(QStringLiteral("systemInfo") + suffix), sysInfoCols);
    }
    // Every column of a part is a property the screens can bind to.
    for (const ColumnTable *table : {&ElectrodeSetupModel::columnTable(), &TitrantSetupModel::columnTable(),
                                     &TitrationSetupModel::columnTable(), &MethodModel::columnTable()}) {
        for (const ColumnSpec &c : table->columns()) {
            QObject *owner = table == &MethodModel::columnTable() ? static_cast<QObject *>(&method)
                : table == &ElectrodeSetupModel::columnTable()    ? static_cast<QObject *>(method.electrodeSetupModel())
                : table == &TitrantSetupModel::columnTable()      ? static_cast<QObject *>(method.titrantSetupModel())
                                                                  : static_cast<QObject *>(method.titrationSetupModel());
            EXPECT_GE(owner->metaObject()->indexOfProperty(c.property), 0) << c.property;
        }
    }
}

TEST_F(MethodModels, FreshDatabaseHoldsOnlyTheWorkingMethod)
{
    MethodModel method;
    EXPECT_EQ(TestDatabase::rowCount(QStringLiteral("methodSetupTable")), 1);
    EXPECT_EQ(cell(QStringLiteral("SELECT id FROM methodSetupTable")).toInt(), 99999);
    for (const char *t : {"electrodeSetupTable", "titrantSetupTable", "titrationSetupTable"})
        EXPECT_EQ(TestDatabase::rowCount(QString::fromLatin1(t), QStringLiteral("methodId=99999")), 1) << t;
    EXPECT_EQ(MethodModel::methodCount(), 0);
    // A second start finds the row and adds nothing.
    MethodModel again;
    EXPECT_EQ(TestDatabase::rowCount(QStringLiteral("methodSetupTable")), 1);
    EXPECT_EQ(TestDatabase::rowCount(QStringLiteral("titrantSetupTable")), 1);
}

TEST_F(MethodModels, SavedMethodReloadsAfterRestartCopiesAndDeletesWithItsParts)
{
    int id = 0;
    {
        MethodModel method;
        fillMethod(method);
        method.saveMethodValues(QStringLiteral("Calcium"), QStringLiteral("1234"));
        ASSERT_EQ(method.success(), 1);
        id = method.id();
    }
    EXPECT_GT(id, 99999);
    ASSERT_TRUE(db.reopen());

    MethodModel method;
    const QString stored = db.dump();
    method.updateMethodModel(id);
    EXPECT_EQ(db.dump(), stored); // loading writes nothing
    EXPECT_EQ(method.methodName(), QStringLiteral("Calcium"));
    EXPECT_EQ(method.methodPassword(), QStringLiteral("1234"));
    EXPECT_EQ(method.electrodeSetupModel()->electrodeType(), QStringLiteral("ISE-Titration"));
    EXPECT_EQ(method.electrodeSetupModel()->electrodeIndex(), 3);
    EXPECT_EQ(method.electrodeSetupModel()->electrodeName(), QStringLiteral("Ca-ISE 7"));
    EXPECT_EQ(method.electrodeSetupModel()->significantDigits(), 3);
    EXPECT_EQ(method.titrantSetupModel()->standAmount(), QStringLiteral("Variable Weight"));
    EXPECT_FLOAT_EQ(method.titrantSetupModel()->standAmount_Value(), 0.25f);
    EXPECT_FLOAT_EQ(method.titrantSetupModel()->standMolecularWeight(), 100.09f);
    EXPECT_FLOAT_EQ(method.titrantSetupModel()->deltaVmin(), 0.03f);
    EXPECT_EQ(method.titrantSetupModel()->tMax(), 12);
    EXPECT_FLOAT_EQ(method.titrantConcentration(), 0.0123f);
    EXPECT_EQ(method.titrationSetupModel()->titrationTechnique(), QStringLiteral("Preset End Pt."));
    EXPECT_EQ(method.titrationSetupModel()->noOfEndPoints(), 2);
    EXPECT_FLOAT_EQ(method.titrationSetupModel()->endPointValues_Second(), 4.5f);
    EXPECT_FLOAT_EQ(method.titrationSetupModel()->servingSize(), 2.5f);
    EXPECT_FLOAT_EQ(method.titrationSetupModel()->titrantConcentration(), 0.0123f);

    // The copy: the loaded method saved under another name.
    const QString before = db.dump({QStringLiteral("methodSetupTable"), QStringLiteral("electrodeSetupTable"),
                                    QStringLiteral("titrantSetupTable"), QStringLiteral("titrationSetupTable")});
    method.saveMethodValues(QStringLiteral("Calcium copy"), QString());
    ASSERT_EQ(method.success(), 1);
    const int copyId = method.id();
    EXPECT_NE(copyId, id);
    EXPECT_EQ(MethodModel::methodCount(), 2);
    for (const char *t : {"electrodeSetupTable", "titrantSetupTable", "titrationSetupTable"}) {
        const QVariantMap original = rowWithoutKeys(QString::fromLatin1(t), id);
        ASSERT_FALSE(original.isEmpty()) << t;
        EXPECT_EQ(rowWithoutKeys(QString::fromLatin1(t), copyId), original) << t;
    }

    // Deleting the copy takes its parts and leaves everything else as it was.
    method.deleteRow(copyId);
    for (const char *t : {"electrodeSetupTable", "titrantSetupTable", "titrationSetupTable"})
        EXPECT_EQ(TestDatabase::rowCount(QString::fromLatin1(t), QStringLiteral("methodId=%1").arg(copyId)), 0) << t;
    EXPECT_EQ(db.dump({QStringLiteral("methodSetupTable"), QStringLiteral("electrodeSetupTable"),
                       QStringLiteral("titrantSetupTable"), QStringLiteral("titrationSetupTable")}),
              before);
}

TEST_F(MethodModels, DuplicateNameChangesNothingAndReportsFailure)
{
    MethodModel method;
    method.saveMethodValues(QStringLiteral("Chloride"), QString());
    ASSERT_EQ(method.success(), 1);
    const QString before = db.dump();
    method.saveMethodValues(QStringLiteral("Chloride"), QString());
    EXPECT_EQ(method.success(), 0);
    EXPECT_EQ(db.dump(), before);
    // A rename to a name in use fails the same way.
    method.saveMethodValues(QStringLiteral("Nitrate"), QString());
    method.updateMethodModel(method.id(), QStringLiteral("Chloride"), QString());
    EXPECT_EQ(method.success(), 0);
}

// A calibration becomes the method's only when it is of the electrode the
// method asked it for; the row keeps what memory shows.
TEST_F(MethodModels, OnlyTheCalibrationOfTheMethodsOwnElectrodeIsRecorded)
{
    const QDateTime when(QDate(2026, 11, 24), QTime(15, 59));
    struct Row {
        const char *asked;       // calibratedElectrodeName
        const char *calibrated;  // the calibration's electrode
        bool recorded;
    } rows[] = {
        {"Glass 1", "Glass 1", true},
        {"Glass 1", "Glass 2", false},
        {"", "Glass 1", false},
        {"Probe 9", "Probe 9", false}, // asked for another electrode (the Measure section's)
    };
    for (const Row &row : rows) {
        MethodModel method;
        method.electrodeSetupModel()->setElectrodeName(QStringLiteral("Glass 1"));
        method.saveMethodValues(QStringLiteral("Cal %1").arg(int(&row - rows)), QString());
        ASSERT_EQ(method.success(), 1);
        method.setCalibratedElectrodeName(QString::fromLatin1(row.asked));
        EXPECT_EQ(method.recordCalibration(QString::fromLatin1(row.calibrated), when), row.recorded) << row.calibrated;
        const QString stored = cell(QStringLiteral("SELECT lastCalibration FROM methodSetupTable WHERE id=%1").arg(method.id())).toString();
        EXPECT_EQ(stored, row.recorded ? QStringLiteral("03:59 PM | 11/24/2026") : QString()) << row.calibrated;
        EXPECT_EQ(method.lastCalibration(), stored);
    }
}

TEST_F(MethodModels, TheEleventhMethodIsRefused)
{
    MethodModel method;
    for (int i = 1; i <= 10; ++i) {
        method.saveMethodValues(QStringLiteral("Method %1").arg(i), QString());
        ASSERT_EQ(method.success(), 1) << i;
    }
    EXPECT_EQ(MethodModel::methodCount(), 10);
    const QString before = db.dump();
    method.saveMethodValues(QStringLiteral("Method 11"), QString());
    EXPECT_EQ(method.success(), 0);
    EXPECT_EQ(MethodModel::methodCount(), 10);
    EXPECT_EQ(db.dump(), before);
}

// The library says why a save was refused, and writes nothing then.
struct SaveCase {
    const char *name;
    int storedBefore;       // methods "Method 1".."Method N" saved first
    const char *trigger;    // a statement run before the save, or ""
    const char *newName;
    const char *outcome;    // MethodLibrary's reason, "" for a save
};
const SaveCase kSaveCases[] = {
    {"Saved", 1, "", "Nitrate", ""},
    {"DuplicateName", 2, "", "Method 2", "duplicateName"},
    {"LibraryFull", 10, "", "Nitrate", "libraryFull"},
    {"DatabaseError", 1, "CREATE TRIGGER refuse BEFORE INSERT ON titrationSetupTable BEGIN SELECT RAISE(ABORT, 'disk'); END",
     "Nitrate", "databaseError"},
};

class SaveOutcome : public ::testing::TestWithParam<SaveCase>
{
protected:
    TestDatabase db;
};

TEST_P(SaveOutcome, TheLibraryNamesTheReasonOfARefusal)
{
    const SaveCase &c = GetParam();
    MethodLibrary library;
    for (int i = 1; i <= c.storedBefore; ++i)
        ASSERT_EQ(library.saveCurrent(QStringLiteral("Method %1").arg(i), QString()), QString()) << i;
    if (*c.trigger) {
        ASSERT_TRUE(QSqlQuery().exec(QString::fromLatin1(c.trigger)));
    }
    const QString before = db.dump();
    EXPECT_EQ(library.saveCurrent(QString::fromLatin1(c.newName), QString()), QString::fromLatin1(c.outcome));
    EXPECT_EQ(library.current()->success(), *c.outcome ? 0 : 1);
    if (*c.outcome) {
        EXPECT_EQ(db.dump(), before);
    } else {
        EXPECT_TRUE(MethodLibrary::nameTaken(QString::fromLatin1(c.newName)));
    }
}

INSTANTIATE_TEST_SUITE_P(Reasons, SaveOutcome, ::testing::ValuesIn(kSaveCases),
                         [](const ::testing::TestParamInfo<SaveCase> &info) { return std::string(info.param.name); });

// A stored method's values for its report come from its rows; the method
// in hand stays as it is, and a method that isn't stored gives nothing.
TEST_F(MethodModels, PartsOfAStoredMethodLeaveTheCurrentMethodAlone)
{
    MethodLibrary library;
    library.current()->electrodeSetupModel()->setElectrodeName(QStringLiteral("Stored electrode"));
    ASSERT_EQ(library.saveCurrent(QStringLiteral("Stored"), QStringLiteral("pw")), QString());
    const int stored = library.current()->id();
    library.current()->electrodeSetupModel()->setElectrodeName(QStringLiteral("In hand"));
    const QVariantMap parts = library.partsOf(stored);
    EXPECT_EQ(parts.value(QStringLiteral("method")).toMap().value(QStringLiteral("methodName")).toString(), QStringLiteral("Stored"));
    EXPECT_EQ(parts.value(QStringLiteral("electrode")).toMap().value(QStringLiteral("electrodeName")).toString(),
              QStringLiteral("Stored electrode"));
    EXPECT_TRUE(parts.value(QStringLiteral("titrant")).toMap().contains(QStringLiteral("nominalConc")));
    EXPECT_TRUE(parts.value(QStringLiteral("titration")).toMap().contains(QStringLiteral("titrationTechnique")));
    EXPECT_EQ(library.current()->electrodeSetupModel()->electrodeName(), QStringLiteral("In hand"));
    EXPECT_TRUE(library.partsOf(stored + 100).isEmpty());
}

TEST_F(MethodModels, ImportedMethodsInstallUnderFreeNamesWithPasswordAndWithoutHistory)
{
    MethodModel method;
    method.saveMethodValues(QStringLiteral("Chloride"), QString());
    ASSERT_EQ(method.success(), 1);

    // A method from another instrument, staged as an import leaves it.
    MethodModel staged(nullptr, false);
    fillMethod(staged);
    staged.setId(100004);
    staged.setMethodName(QStringLiteral("Chloride~4"));
    staged.setMethodPassword(QStringLiteral("secret"));
    staged.setLastTitration(QStringLiteral("01/02/2026 10:00 AM"));
    staged.setCalibratedElectrodeName(QStringLiteral("Cl-ISE"));
    staged.electrodeSetupModel()->setMethodId(100004);
    staged.titrantSetupModel()->setMethodId(100004);
    staged.titrationSetupModel()->setMethodId(100004);
    ASSERT_TRUE(staged.insertStaged(QStringLiteral("_import")));

    ASSERT_TRUE(method.loadMethodsFromDb(QStringLiteral("_import"), true));
    ASSERT_EQ(method.importedMethodCount(), 1);
    EXPECT_TRUE(method.methodList().first()->lastTitration().isEmpty());
    // The same id twice installs the method twice, 0 is skipped.
    method.listToDb({0, 100004, 100004});

    EXPECT_EQ(MethodModel::methodCount(), 3);
    QSqlQuery q(QStringLiteral("SELECT methodName, methodPassword, lastTitration, calibratedElectrodeName, id "
                               "FROM methodSetupTable WHERE methodName LIKE 'Chloride~%' ORDER BY id"));
    QStringList names;
    while (q.next()) {
        names << q.value(0).toString();
        EXPECT_EQ(q.value(1).toString(), QStringLiteral("secret"));
        EXPECT_TRUE(q.value(2).toString().isEmpty());
        EXPECT_TRUE(q.value(3).toString().isEmpty());
        EXPECT_EQ(rowWithoutKeys(QStringLiteral("titrantSetupTable"), q.value(4).toInt()),
                  rowWithoutKeys(QStringLiteral("titrantSetupTable_import"), 100004));
    }
    EXPECT_EQ(names, QStringList({QStringLiteral("Chloride~1"), QStringLiteral("Chloride~2")}));
    EXPECT_EQ(MethodModel::uniqueMethodName(QStringLiteral("Cl~ride~12")), QStringLiteral("Cl~ride"));
}

// Hand computations: standard amount n (mmol) = C × amount for a solution,
// purity × mass / molecular weight for a solid; titrant = n / (V × ratio).
struct StandardCase {
    const char *amountKind;
    float amount;
    float standConc;
    const char *standConcUnit;
    float purity;
    float molecularWeight;
    float ratio;
    const char *resultUnit;
    float volume;
    float expected;
};

const StandardCase kStandardCases[] = {
    // 0.1 M × 10 mL = 1 mmol; 1 / 5 mL = 0.2 M
    {"Fixed Volume", 10.0f, 0.1f, "M", 100.0f, 1.0f, 1.0f, "M", 5.0f, 0.2f},
    {"Fixed Volume", 10.0f, 0.1f, "M", 100.0f, 1.0f, 1.0f, "mM", 5.0f, 200.0f},
    // 100 mM is 0.1 M: the same 0.2 M
    {"Fixed Volume", 10.0f, 100.0f, "mM", 100.0f, 1.0f, 1.0f, "M", 5.0f, 0.2f},
    // 0.1 M × 10 mL = 1 mmol; 1 / (4 mL × 2) = 0.125 M
    {"Variable Volume", 10.0f, 100.0f, "mM", 100.0f, 1.0f, 2.0f, "M", 4.0f, 0.125f},
    // 1 g × 100 % / 100 g/mol = 10 mmol; 10 / 10 mL = 1.0 M
    {"Fixed Weight", 1.0f, 1.0f, "M", 100.0f, 100.0f, 1.0f, "M", 10.0f, 1.0f},
    // 2 g × 98 % / 58.44 = 33.5387 mmol; / 20 mL = 1.676934 M = 1676.934 mM
    {"Fixed Weight", 2.0f, 1.0f, "M", 98.0f, 58.44f, 1.0f, "mM", 20.0f, 1676.9336f},
    // 0.5 g × 99.5 % / 204.22 = 2.436098 mmol; / 24.5 mL = 0.0994326 M
    {"Variable Weight", 0.5f, 1.0f, "M", 99.5f, 204.22f, 1.0f, "M", 24.5f, 0.0994326f},
};

class TitrantConcentration : public MethodModels, public ::testing::WithParamInterface<StandardCase>
{
};

TEST_P(TitrantConcentration, StandardisationGivesTheHandComputedValueAndStoresIt)
{
    const StandardCase &c = GetParam();
    MethodModel method;
    method.saveMethodValues(QStringLiteral("Std"), QString());
    ASSERT_EQ(method.success(), 1);
    TitrantSetupModel *t = method.titrantSetupModel();
    t->setStandAmount(QString::fromLatin1(c.amountKind));
    t->setStandAmount_Value(c.amount);
    t->setStandConcentration(c.standConc);
    t->setStandConcentration_Unit(QString::fromLatin1(c.standConcUnit));
    t->setStandardPurity(c.purity);
    t->setStandMolecularWeight(c.molecularWeight);
    t->setStandReactionRatio(c.ratio);
    t->setResultUnits(QString::fromLatin1(c.resultUnit));
    // A blank belongs to the titration of a sample, never to a standardisation.
    for (const char *blank : {"No", "Fixed"}) {
        method.titrationSetupModel()->setBlankRequired(QString::fromLatin1(blank));
        method.titrationSetupModel()->setBlankRequiredValue(0.1f);
        const float got = t->calculateTitrantConcentration(c.volume, method.id());
        EXPECT_NEAR(got, c.expected, std::fabs(c.expected) * 1e-5f) << c.amountKind << " blank " << blank;
    }
    const int id = method.id();
    EXPECT_NEAR(cell(QStringLiteral("SELECT titrantConcentration FROM methodSetupTable WHERE id=%1").arg(id)).toFloat(), c.expected, c.expected * 1e-5f);
    EXPECT_NEAR(cell(QStringLiteral("SELECT titrantConcentration_Value FROM titrantSetupTable WHERE methodId=%1").arg(id)).toFloat(), c.expected, c.expected * 1e-5f);
    EXPECT_NEAR(cell(QStringLiteral("SELECT titrantConcentration FROM titrationSetupTable WHERE methodId=%1").arg(id)).toFloat(), c.expected, c.expected * 1e-5f);
}

INSTANTIATE_TEST_SUITE_P(StandardAmounts, TitrantConcentration, ::testing::ValuesIn(kStandardCases));

TEST_F(MethodModels, ZeroVolumeOrAmountStoresNoConcentration)
{
    MethodModel method;
    method.saveMethodValues(QStringLiteral("Std"), QString());
    TitrantSetupModel *t = method.titrantSetupModel();
    t->setStandConcentration(0.1f);
    t->setStandAmount_Value(10.0f);
    const QString before = db.dump();
    EXPECT_TRUE(std::isinf(t->calculateTitrantConcentration(0.0f, method.id())));
    t->setStandAmount_Value(0.0f);
    EXPECT_FALSE(t->calculateTitrantConcentration(5.0f, method.id()) > 0.0f);
    t->setStandAmount(QStringLiteral("Fixed Weight"));
    t->setStandAmount_Value(1.0f);
    t->setStandMolecularWeight(0.0f);
    EXPECT_FALSE(std::isfinite(t->calculateTitrantConcentration(5.0f, method.id())));
    EXPECT_EQ(db.dump(), before);
    EXPECT_FLOAT_EQ(t->titrantConcentrationValue(), 1.0f);
}

TEST_F(MethodModels, ManualConcentrationIsSavedAndMupdatedMovesOnlyWithAChange)
{
    MethodModel method;
    method.saveMethodValues(QStringLiteral("Manual"), QString());
    TitrantSetupModel *t = method.titrantSetupModel();
    t->setConcInputMode(QStringLiteral("Manual Entry"));
    t->setConcInputMode_manualEntry(0.05f);
    const QString sql = QStringLiteral("SELECT %1 FROM titrantSetupTable WHERE methodId=") + QString::number(method.id());
    const QString stamp = cell(sql.arg(QStringLiteral("mupdatedAt"))).toString();
    t->setMupdatedAt(QDateTime::fromString(stamp, Qt::ISODateWithMs));
    t->setTitrantSetupValues(QStringLiteral("pH"), false);
    EXPECT_FLOAT_EQ(cell(sql.arg(QStringLiteral("titrantConcentration_Value"))).toFloat(), 0.05f);
    EXPECT_EQ(cell(sql.arg(QStringLiteral("mupdatedAt"))).toString(), stamp);
    // Floats of text columns keep six significant digits, as text.
    t->setStandAmount_Value(1.0f / 3.0f);
    t->setTitrantSetupValues(QStringLiteral("pH"), true);
    EXPECT_EQ(cell(sql.arg(QStringLiteral("standAmount_Value"))).toString(), QStringLiteral("0.333333"));
    EXPECT_EQ(cell(sql.arg(QStringLiteral("typeof(standAmount_Value)"))).toString(), QStringLiteral("text"));
    EXPECT_NE(cell(sql.arg(QStringLiteral("mupdatedAt"))).toString(), stamp);
    // Another electrode type writes nothing.
    const QString before = db.dump();
    t->setTitrantName(QStringLiteral("HCl"));
    t->setTitrantSetupValues(QStringLiteral("Conductivity"), true);
    EXPECT_EQ(db.dump(), before);
}

TEST_F(MethodModels, ElectrodeIndexFollowsTypeAndIseType)
{
    ElectrodeSetupModel e;
    e.setElectrodeType(QStringLiteral("ISE-Titration"));
    e.setIseType(QStringLiteral("Calcium"));
    EXPECT_EQ(e.electrodeIndex(), 3);
    e.setIseType(QStringLiteral("Fluoride (F-)"));
    EXPECT_EQ(e.electrodeIndex(), 2);
    e.setIseType(QStringLiteral("Unobtainium"));
    EXPECT_EQ(e.electrodeIndex(), 2);
    e.setElectrodeType(QStringLiteral("pH"));
    e.setIseType(QStringLiteral("Calcium"));
    EXPECT_EQ(e.electrodeIndex(), 0);
    e.setElectrodeType(QStringLiteral("Redox"));
    EXPECT_EQ(e.electrodeIndex(), 1);
    e.setDirectMeasureUnit(QStringLiteral("RmV"));
    EXPECT_EQ(e.directMeasureUnitIndex(), 7);
}

TEST_F(MethodModels, RedoxSaveBlanksWhatRedoxDoesNotUse)
{
    ElectrodeSetupModel e;
    e.setMethodId(4711);
    e.setBufferGroup(QStringLiteral("DIN"));
    e.setResolution(0.01f);
    e.setElectrodeSetupValues();
    EXPECT_EQ(cell(QStringLiteral("SELECT bufferGroup FROM electrodeSetupTable WHERE methodId=4711")).toString(), QStringLiteral("DIN"));
    e.setElectrodeType(QStringLiteral("Redox"));
    e.setElectrodeSetupValues();
    EXPECT_EQ(TestDatabase::rowCount(QStringLiteral("electrodeSetupTable"), QStringLiteral("methodId=4711")), 1);
    EXPECT_EQ(cell(QStringLiteral("SELECT bufferGroup FROM electrodeSetupTable WHERE methodId=4711")).toString(), QString());
    EXPECT_EQ(cell(QStringLiteral("SELECT iseType FROM electrodeSetupTable WHERE methodId=4711")).toString(), QString());
    EXPECT_EQ(cell(QStringLiteral("SELECT resolution FROM electrodeSetupTable WHERE methodId=4711")).toString(), QStringLiteral(".001"));
}

TEST_F(MethodModels, SettersWithSideEffects)
{
    TitrantSetupModel t;
    t.setNoOfEndPoints(2);
    t.setStandTechnique(QStringLiteral("Preset End Pt."));
    EXPECT_EQ(t.noOfEndPoints(), 1);
    EXPECT_EQ(t.checkDecimal(0.001f), 3);
    EXPECT_EQ(t.checkDecimal(5.0f), 0);
    t.setTitrantConcentration(QStringLiteral("mg/L"));
    t.setTitrantConcentrationValue(35.45f);
    t.setTitrantMolecularWeight(35.45f);
    EXPECT_FLOAT_EQ(t.titrantConcentrationMolar(), 0.001f);
    TitrationSetupModel s;
    s.setResultUnits(QStringLiteral("F*Consumption mmol"));
    s.setReactionRatio(2.0f);
    EXPECT_FALSE(s.isReactionRatio());
    s.setSampleAmount(QStringLiteral("Fixed Weight"));
    s.setSampleAmountValue(5.0f);
    EXPECT_FLOAT_EQ(s.fixedSampleWeightValue(), 5.0f);
    EXPECT_FLOAT_EQ(s.fixedSampleVolumeValue(), 1.0f);
}

TEST_F(MethodModels, NewTitrationReturnsTheStoredPartsToDefaults)
{
    MethodModel method;
    fillMethod(method);
    method.saveMethodValues(QStringLiteral("Reset me"), QString());
    const int id = method.id();
    method.newTitration();
    EXPECT_EQ(cell(QStringLiteral("SELECT electrodeType FROM electrodeSetupTable WHERE methodId=%1").arg(id)).toString(), QStringLiteral("pH"));
    EXPECT_EQ(cell(QStringLiteral("SELECT titrantName FROM titrantSetupTable WHERE methodId=%1").arg(id)).toString(), QStringLiteral("NaOH"));
    EXPECT_EQ(cell(QStringLiteral("SELECT noOfEndPoints FROM titrationSetupTable WHERE methodId=%1").arg(id)).toString(), QStringLiteral("1"));
    for (const char *t : {"electrodeSetupTable", "titrantSetupTable", "titrationSetupTable"})
        EXPECT_EQ(TestDatabase::rowCount(QString::fromLatin1(t), QStringLiteral("methodId=%1").arg(id)), 1) << t;
}

} // namespace
