#include "models/methodmodel.h"
#include "models/titrantsetupmodel.h"
#include "models/titrationcyclemodel.h"
#include "models/titrationmodel.h"
#include "models/titrationsetupmodel.h"
#include "system/clock.h"
#include "testdatabase.h"

#include <QSqlQuery>
#include <gtest/gtest.h>

#include <cmath>
#include <memory>

// Results of finished cycles, from the engine's volumes in µL through the
// method, titrant and titration models to the cycle of the run, on a real
// database. Every expected value is worked out by hand in the row.

namespace {

struct Row {
    const char *unit;
    const char *sampleAmount;
    float sample;         // S, mL or g
    double volumeUl;      // engine volume
    double expected;      // by hand
    const char *handWork; // how
};

// V = 10 mL, C = 0.1 mol/L, R = 1, D = 1.25 g/mL, M = 35.45 g/mol unless the
// row says otherwise: A = 0.1 x 10 x 1 = 1.0 mmol.
const Row directRows[] = {
    {"M", "Fixed Volume", 10, 10000, 0.1, "1.0 / 10"},
    {"mM", "Fixed Volume", 10, 10000, 100.0, "1.0 / 10 x 1000"},
    {"mg/100mL", "Fixed Volume", 10, 10000, 354.5, "1.0 x 35.45 / 10 x 100"},
    {"mg/L", "Fixed Volume", 10, 10000, 3545.0, "1.0 x 35.45 / 10 x 1000"},
    {"g/100mL", "Fixed Volume", 10, 10000, 0.3545, "3.545 / 10"},
    {"g/L", "Fixed Volume", 10, 10000, 3.545, "3.545 x 1"},
    {"ppm", "Fixed Volume", 10, 10000, 3545.0, "3.545 x 1000"},
    {"ppb", "Fixed Volume", 10, 10000, 3545000.0, "3.545 x 1e6"},
    // The unit tests read the text: "oz/gal" holds "/g", so it counts as
    // per weight, and a sample by volume takes the density: basis 12.5.
    {"oz/gal", "Fixed Volume", 10, 10000, 0.3786703772, "1.0 / 12.5 x 35.45 x 0.1335227"},
    {"% w/v", "Fixed Volume", 10, 10000, 0.3545, "3.545 x 0.1"},
    // Per weight with a sample by volume: basis S x D = 12.5 g.
    {"mol/kg", "Fixed Volume", 10, 10000, 0.08, "1.0 / 12.5"},
    {"mmol/kg", "Fixed Volume", 10, 10000, 80.0, "0.08 x 1000"},
    {"mmol/g", "Fixed Volume", 10, 10000, 0.08, "0.08"},
    {"mg/100g", "Fixed Volume", 10, 10000, 283.6, "0.08 x 35.45 x 100"},
    {"mg/g", "Fixed Volume", 10, 10000, 2.836, "0.08 x 35.45"},
    {"mg/kg", "Fixed Volume", 10, 10000, 2836.0, "0.08 x 35.45 x 1000"},
    {"g/100g", "Fixed Volume", 10, 10000, 0.2836, "2.836 / 10"},
    {"g/kg", "Fixed Volume", 10, 10000, 2.836, "2.836"},
    {"ppm by weight", "Fixed Volume", 10, 10000, 2836.0, "2.836 x 1000"},
    {"% w/w", "Fixed Volume", 10, 10000, 0.2836, "2.836 x 0.1"},
    {"TBN", "Fixed Volume", 10, 10000, 4.488448, "0.08 x 56.1056"},
    // A unit of the known addition list: molecular weight, factor 1.
    {"mg", "Fixed Volume", 10, 10000, 3.545, "1.0 x 35.45 / 10"},
    // Consumption: C x V, no basis.
    {"Consumption mmol", "Fixed Volume", 10, 10000, 1.0, "0.1 x 10"},
    // A sample by weight: 5 g, density applies to units not per weight,
    // basis 5 / 1.25 = 4.
    {"M", "Fixed Weight", 5, 10000, 0.25, "1.0 / 4"},
    {"mg/L", "Variable Weight", 5, 10000, 8862.5, "1.0 / 4 x 35.45 x 1000"},
    {"mol/kg", "Fixed Weight", 5, 10000, 0.2, "1.0 / 5, no density"},
    {"mg/kg", "Variable Weight", 5, 10000, 7090.0, "0.2 x 35.45 x 1000"},
    {"% w/w", "Fixed Weight", 5, 10000, 0.709, "0.2 x 35.45 x 0.1"},
    {"TAN", "Fixed Weight", 2, 1000, 2.80528, "0.1 x 1 / 2 x 56.1056"},
};

void expectClose(double expected, float actual, const char *what)
{
    EXPECT_NEAR(expected, actual, std::fabs(expected) * 2e-6 + 1e-7) << what;
}

class TitrationResults : public ::testing::Test
{
protected:
    TestDatabase db;
    std::unique_ptr<MethodModel> method;

    void SetUp() override
    {
        method.reset(new MethodModel());
        TitrantSetupModel *t = method->titrantSetupModel();
        t->setConcInputMode(QStringLiteral("Manual Entry"));
        t->setConcInputMode_Unit(QStringLiteral("M"));
        t->setTitrantConcentrationValue(0.1f);
        TitrationSetupModel *s = titration();
        s->setSampleDensity(1.25f);
        s->setSampleMolecularWeight(35.45f);
        s->setTitrationType(QStringLiteral("Direct Titration"));
    }

    TitrationSetupModel *titration() const { return method->titrationSetupModel(); }
    TitrationModel *run() const { return method->titrationModel(); }

    // One cycle of a run ends with these engine volumes.
    TitrationCycleModel *finishCycle(double ul1, double ul2 = 0, double ul3 = 0, const char *mode = "Titration",
                                     bool blank = false)
    {
        run()->setCycleno(run()->titrationCyclesCount() + 1);
        const double volumes[3] = {ul1, ul2, ul3};
        method->titrationCompleted(volumes, QString::fromLatin1(mode), blank);
        return run()->titrationCycle(run()->titrationCyclesCount() - 1);
    }

    void setUnit(const char *unit, float ratio = 1.0f)
    {
        // As the load does: the ratio after the unit.
        titration()->setResultUnits(QString::fromLatin1(unit));
        titration()->setReactionRatio(ratio);
    }
};

TEST_F(TitrationResults, EveryUnitOfADirectTitrationMatchesTheHandValue)
{
    for (const Row &row : directRows) {
        titration()->setSampleAmount(QString::fromLatin1(row.sampleAmount));
        titration()->setSampleAmountValue(row.sample);
        setUnit(row.unit);
        TitrationCycleModel *cycle = finishCycle(row.volumeUl);
        ASSERT_NE(cycle, nullptr);
        expectClose(row.expected, cycle->calCon(), row.unit);
        EXPECT_FLOAT_EQ(static_cast<float>(row.volumeUl / 1000.0), cycle->veqp()) << row.unit;
        SCOPED_TRACE(row.handWork);
    }
}

TEST_F(TitrationResults, FactorTimesConsumptionTakesTheUserFactor)
{
    titration()->setResultUnitsValue(3.0f);
    setUnit("F*Consumption mmol", 2.0f);
    // 3 x (0.1 x 2): the ratio enters only through a blank.
    expectClose(0.6, finishCycle(2000)->calCon(), "F*Consumption");
    titration()->setBlankRequired(QStringLiteral("Fixed"));
    titration()->setBlankRequiredValue(0.1f);
    // 3 x (0.1 x 2 - 0.1 / 2)
    expectClose(0.45, finishCycle(2000)->calCon(), "F*Consumption with blank");
}

TEST_F(TitrationResults, DirectTitrationWithFixedAndVariableBlank)
{
    setUnit("M");
    titration()->setSampleAmountValue(10.0f);
    titration()->setBlankRequired(QStringLiteral("Fixed"));
    titration()->setBlankRequiredValue(0.1f);
    expectClose(0.09, finishCycle(10000)->calCon(), "(1.0 - 0.1) / 10");

    // A variable blank is measured: a blank run of 0.2 mL gives 0.02 mmol,
    // which the screens then store for the method.
    titration()->setBlankRequired(QStringLiteral("Variable"));
    run()->setTitrationType(QStringLiteral("Direct Blank"));
    TitrationCycleModel *blankCycle = finishCycle(200, 0, 0, "Titration", true);
    expectClose(0.02, blankCycle->calCon(), "blank 0.2 x 0.1 x 1");
    expectClose(0.02, method->blankConcentration(), "method blank");
    method->setBlankConcentration(method->blankConcentration());
    QSqlQuery q(QStringLiteral("SELECT blankConcentration, blankRequiredValue FROM titrationSetupTable WHERE methodId=99999"));
    ASSERT_TRUE(q.next());
    EXPECT_NEAR(0.02, q.value(0).toDouble(), 1e-7);
    EXPECT_EQ(QStringLiteral("0.02"), q.value(1).toString());
    expectClose(0.098, finishCycle(10000)->calCon(), "(1.0 - 0.02) / 10");
}

TEST_F(TitrationResults, BackTitrationWithABackBlank)
{
    titration()->setTitrationType(QStringLiteral("Back Titration"));
    titration()->setReagentAmount(QStringLiteral("Back Blank Titration"));
    titration()->setSampleAmountValue(10.0f);
    setUnit("M");
    // The blank: all of the reagent titrated, 20 mL x 0.1 x 1 = 2 mmol.
    TitrationCycleModel *blankCycle = finishCycle(20000, 0, 0, "Titration", true);
    expectClose(2.0, blankCycle->calCon(), "back blank");
    method->setBlankConcentration(method->blankConcentration());
    expectClose(2.0, titration()->blankConcentration(), "stored blank");

    expectClose(0.1, finishCycle(10000)->calCon(), "(2 - 0.1 x 10) / 10");
    setUnit("mg/L");
    expectClose(3545.0, finishCycle(10000)->calCon(), "0.1 x 35.45 x 1000");
    setUnit("mg/kg");
    expectClose(2836.0, finishCycle(10000)->calCon(), "1 / (10 x 1.25) x 35.45 x 1000");
    titration()->setSampleAmount(QStringLiteral("Fixed Weight"));
    titration()->setSampleAmountValue(5.0f);
    setUnit("M");
    expectClose(0.25, finishCycle(10000)->calCon(), "1 / (5 / 1.25)");
    titration()->setSampleAmount(QStringLiteral("Fixed Volume"));
    titration()->setSampleAmountValue(10.0f);
    titration()->setReagentReactionRatio(2.0f);
    titration()->setTitrantReactionRatio(0.5f);
    expectClose(0.3, finishCycle(10000)->calCon(), "(2 - 0.1 x 10 x 0.5) x 2 / 10");
}

TEST_F(TitrationResults, BackTitrationReagentAmounts)
{
    titration()->setTitrationType(QStringLiteral("Back Titration"));
    titration()->setSampleAmountValue(10.0f);
    setUnit("M");
    titration()->setReagentAmount(QStringLiteral("Manual Calc."));
    titration()->setReagentAmountValue(2.0f);
    expectClose(0.1, finishCycle(10000)->calCon(), "(2 - 1) / 10");
    titration()->setReagentAmount(QStringLiteral("Manual Volume"));
    titration()->setReagentConcentration(0.5f);
    titration()->setReagentVolume(6.0f);
    expectClose(0.2, finishCycle(10000)->calCon(), "(0.5 x 6 - 1) / 10");
    titration()->setReagentAmount(QStringLiteral("Manual Weight"));
    titration()->setReagentWeight(0.2f);
    titration()->setReagentPurity(50.0f);
    titration()->setReagentMolecularWeight(50.0f);
    expectClose(0.1, finishCycle(10000)->calCon(), "(0.2 x 0.5 x 1000 / 50 - 1) / 10");
}

TEST_F(TitrationResults, ThreeEndPointsEachGetTheirResult)
{
    titration()->setSampleAmountValue(10.0f);
    setUnit("mM");
    TitrationCycleModel *cycle = finishCycle(5000, 10000, 15000);
    expectClose(50.0, cycle->calCon(), "0.1 x 5 / 10 x 1000");
    expectClose(100.0, cycle->calCon2(), "0.1 x 10 / 10 x 1000");
    expectClose(150.0, cycle->calCon3(), "0.1 x 15 / 10 x 1000");
    EXPECT_FLOAT_EQ(5.0f, cycle->veqp());
    EXPECT_FLOAT_EQ(10.0f, cycle->veqp2());
    EXPECT_FLOAT_EQ(15.0f, cycle->veqp3());

    // Two end points: the third is the result of volume 0, blank included.
    setUnit("M");
    titration()->setBlankRequired(QStringLiteral("Fixed"));
    titration()->setBlankRequiredValue(0.1f);
    cycle = finishCycle(5000, 10000);
    expectClose(0.04, cycle->calCon(), "(0.5 - 0.1) / 10");
    expectClose(-0.01, cycle->calCon3(), "(0 - 0.1) / 10");
    EXPECT_FLOAT_EQ(0.0f, cycle->veqp3());
}

TEST_F(TitrationResults, TitrantConcentrationByInputModeAndUnit)
{
    TitrantSetupModel *t = method->titrantSetupModel();
    titration()->setSampleAmountValue(10.0f);
    setUnit("M");
    t->setConcInputMode_Unit(QStringLiteral("mM"));
    t->setTitrantConcentrationValue(100.0f);
    expectClose(0.1, finishCycle(10000)->calCon(), "100 mM is 0.1 M");
    EXPECT_FLOAT_EQ(0.1f, titration()->titrantConcentration());

    // Standardised titrant: not standardised yet, the nominal unit holds.
    t->setConcInputMode(QStringLiteral("Standardization"));
    t->setTitrantConcentrationValue(50.0f);
    t->setNominalConc_Unit(QStringLiteral("mM"));
    t->setResultUnits(QStringLiteral("M"));
    expectClose(0.05, method->titrantConcentrationForRun(), "nominal mM");

    // A standardisation stored after the titrant's last change: its unit.
    ManualClock later(QDateTime::currentDateTime().addDays(1));
    Clock::setSource(&later);
    run()->setTitrationType(QStringLiteral("Standardization"));
    run()->setMethodId(MethodModel::scratchMethodId);
    ASSERT_TRUE(run()->setTitrationValues(false));
    Clock::setSource(nullptr);
    EXPECT_TRUE(MethodModel::isStandardized(MethodModel::scratchMethodId));
    expectClose(50.0, method->titrantConcentrationForRun(), "standardised, M");
}

TEST_F(TitrationResults, StandardisationSetsTheTitrantConcentration)
{
    TitrantSetupModel *t = method->titrantSetupModel();
    t->setNoOfEndPoints(2);
    t->setStandAmount(QStringLiteral("Fixed Volume"));
    t->setStandAmount_Value(10.0f);
    t->setStandConcentration(0.1f);
    t->setStandReactionRatio(1.0f);
    // The second end point counts: 0.1 x 10 / 4 = 0.25.
    TitrationCycleModel *cycle = finishCycle(2000, 4000, 0, "Standardization");
    expectClose(0.25, cycle->calCon(), "0.1 x 10 / (4 x 1)");
    EXPECT_FLOAT_EQ(4.0f, cycle->veqp());
    expectClose(0.25, method->titrantConcentration(), "method");
    QSqlQuery q(QStringLiteral("SELECT titrantConcentration FROM titrationSetupTable WHERE methodId=99999"));
    ASSERT_TRUE(q.next());
    EXPECT_NEAR(0.25, q.value(0).toDouble(), 1e-7);

    // No second volume: nothing infinite is kept or stored.
    cycle = finishCycle(2000, 0, 0, "Standardization");
    EXPECT_EQ(0.0f, cycle->calCon());
    EXPECT_EQ(0.0f, method->titrantConcentration());
    QSqlQuery again(QStringLiteral("SELECT titrantConcentration FROM titrationSetupTable WHERE methodId=99999"));
    ASSERT_TRUE(again.next());
    EXPECT_NEAR(0.25, again.value(0).toDouble(), 1e-7);
}

TEST_F(TitrationResults, BadInputsNeverStoreOrShowInfinityOrNaN)
{
    setUnit("M");
    titration()->setSampleAmountValue(0.0f);
    TitrationCycleModel *zeroSample = finishCycle(10000);
    EXPECT_EQ(0.0f, zeroSample->calCon()) << "a zero sample amount is reported as 0";

    titration()->setSampleAmountValue(10.0f);
    method->titrantSetupModel()->setTitrantConcentrationValue(0.0f);
    TitrationCycleModel *zeroTitrant = finishCycle(10000);
    EXPECT_EQ(0.0f, zeroTitrant->calCon()) << "no titrant, nothing found";

    method->titrantSetupModel()->setTitrantConcentrationValue(0.1f);
    titration()->setBlankRequired(QStringLiteral("Fixed"));
    titration()->setBlankRequiredValue(2.0f);
    TitrationCycleModel *negative = finishCycle(10000);
    expectClose(-0.1, negative->calCon(), "(1 - 2) / 10: a negative result, as computed");

    titration()->setBlankRequired(QStringLiteral("No"));
    titration()->setSampleAmount(QStringLiteral("Fixed Weight"));
    titration()->setSampleDensity(0.0f);
    TitrationCycleModel *zeroDensity = finishCycle(10000);
    EXPECT_EQ(0.0f, zeroDensity->calCon());

    run()->setTitrationType(QStringLiteral("Titration"));
    run()->setMethodId(MethodModel::scratchMethodId);
    ASSERT_TRUE(run()->setTitrationValues(false));
    QSqlQuery q(QStringLiteral("SELECT calcon, calcon2, calcon3 FROM titrationCycleTable ORDER BY cycleNo"));
    int rows = 0;
    while (q.next()) {
        ++rows;
        for (int i = 0; i < 3; ++i) {
            const QString text = q.value(i).toString().toLower();
            EXPECT_FALSE(text.contains(QLatin1String("inf")) || text.contains(QLatin1String("nan"))) << qPrintable(text);
            EXPECT_TRUE(std::isfinite(q.value(i).toDouble()));
        }
    }
    EXPECT_EQ(4, rows);
}

} // namespace
