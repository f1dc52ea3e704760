#include "models/concentrationcalc.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using Sample = ConcentrationCalc::Sample;
using Direct = ConcentrationCalc::Direct;
using Back = ConcentrationCalc::Back;

Sample sample(const char *unit, const char *amountKind, float s, float d = 1.0f, float m = 1.0f, float f = 1.0f)
{
    Sample x;
    x.resultUnits = QString::fromUtf8(unit);
    x.sampleAmount = QString::fromUtf8(amountKind);
    x.amount = s;
    x.density = d;
    x.molecularWeight = m;
    x.resultUnitsValue = f;
    return x;
}

Direct direct(float v, float c, float r = 1.0f)
{
    Direct d;
    d.volume = v;
    d.titrantConc = c;
    d.reactionRatio = r;
    return d;
}

// Every result unit, direct titration. V = 10 mL, C = 0.1 mol/L, R = 1, so
// A = 1 mmol. Volume sample 10 mL, density 1.25, molecular weight 35.45;
// weight sample 5 g. The expected values are worked by hand in the comment.
struct UnitCase { const char *unit; const char *kind; float s; double expected; const char *hand; };

const UnitCase kUnits[] = {
    {"M", "Fixed Volume", 10, 0.1, "1/10"},
    {"mM", "Fixed Volume", 10, 100, "1/10*1000"},
    {"mg/100mL", "Fixed Volume", 10, 354.5, "1*35.45/10*100"},
    {"mg/L", "Fixed Volume", 10, 3545, "1*35.45/10*1000"},
    {"g/100mL", "Fixed Volume", 10, 0.3545, "3.545/10"},
    {"g/L", "Fixed Volume", 10, 3.545, "1*35.45/10"},
    {"ppm", "Fixed Volume", 10, 3545, "3.545*1000"},
    {"ppb", "Fixed Volume", 10, 3545000, "3.545*1e6"},
    // "oz/gal" holds "/g", so the text test takes it per weight: basis S*D = 12.5
    {"oz/gal", "Fixed Volume", 10, 0.378670, "35.45/12.5*0.1335227"},
    {"% w/v", "Fixed Volume", 10, 0.3545, "3.545*0.1"},
    // per weight with a volume sample: basis S*D = 12.5
    {"mol/kg", "Fixed Volume", 10, 0.08, "1/12.5"},
    {"mmol/kg", "Fixed Volume", 10, 80, "1/12.5*1000"},
    {"mmol/g", "Variable Volume", 10, 0.08, "1/12.5"},
    {"mg/100g", "Fixed Volume", 10, 283.6, "1*35.45/12.5*100"},
    {"mg/g", "Fixed Volume", 10, 2.836, "35.45/12.5"},
    {"mg/kg", "Fixed Volume", 10, 2836, "2.836*1000"},
    {"g/100g", "Fixed Volume", 10, 0.2836, "2.836/10"},
    {"g/kg", "Fixed Volume", 10, 2.836, "2.836"},
    {"ppm by weight", "Fixed Volume", 10, 2836, "2.836*1000"},
    {"% w/w", "Fixed Volume", 10, 0.2836, "2.836*0.1"},
    // per weight with a weight sample: density does not apply, basis 5 g
    {"TAN", "Fixed Weight", 5, 11.22112, "1/5*56.1056"},
    {"TBN", "Variable Weight", 5, 11.22112, "1/5*56.1056"},
    {"mg/g", "Fixed Weight", 5, 7.09, "35.45/5"},
    // not per weight with a weight sample: basis S/D = 4
    {"M", "Fixed Weight", 5, 0.25, "1/(5/1.25)"},
    {"g/L", "Variable Weight", 5, 8.8625, "35.45/4"},
};

TEST(ConcentrationCalc, EveryUnitOfADirectTitration)
{
    for (const UnitCase &c : kUnits) {
        const float got = ConcentrationCalc::directConcentration(sample(c.unit, c.kind, c.s, 1.25f, 35.45f),
                                                                 direct(10, 0.1f));
        EXPECT_NEAR(got, c.expected, std::abs(c.expected) * 2e-6) << c.unit << " " << c.kind << " = " << c.hand;
    }
}

TEST(ConcentrationCalc, ConsumptionUnitsIgnoreTheRatioButForTheBlank)
{
    Direct d = direct(2, 0.5f, 4.0f);
    d.isReactionRatio = false;
    EXPECT_FLOAT_EQ(ConcentrationCalc::directConcentration(sample("Consumption mmol", "Fixed Volume", 10), d), 1.0f);
    EXPECT_FLOAT_EQ(ConcentrationCalc::directConcentration(sample("F*Consumption mmol", "Fixed Volume", 10, 1, 1, 3), d),
                    3.0f);
    d.blankRequired = QStringLiteral("Fixed");
    d.blankRequiredValue = 0.2f; // C*V - B/R = 1 - 0.2/4
    EXPECT_FLOAT_EQ(ConcentrationCalc::directConcentration(sample("Consumption mmol", "Fixed Volume", 10), d), 0.95f);
}

TEST(ConcentrationCalc, BlanksOfADirectTitration)
{
    Direct d = direct(10, 0.1f);
    d.blankRequired = QStringLiteral("Fixed");
    d.blankRequiredValue = 0.1f; // A = 0.9 mmol
    EXPECT_NEAR(ConcentrationCalc::directConcentration(sample("M", "Fixed Volume", 10), d), 0.09, 1e-7);
    d.blankRequired = QStringLiteral("Variable");
    d.blankConcentration = 0.4f; // A = 0.6
    EXPECT_NEAR(ConcentrationCalc::directConcentration(sample("M", "Fixed Volume", 10), d), 0.06, 1e-7);
    d.blankRequired = QStringLiteral("No");
    EXPECT_NEAR(ConcentrationCalc::directConcentration(sample("M", "Fixed Volume", 10), d), 0.1, 1e-7);
    // A blank run: V 0.2 mL of 0.1 mol/L at ratio 1 is 0.02 mmol.
    EXPECT_NEAR(ConcentrationCalc::blank(0.2f, 0.1f, 1.0f), 0.02, 1e-8);
    // A blank larger than the titrant found gives a negative result, as computed.
    d.blankRequired = QStringLiteral("Fixed");
    d.blankRequiredValue = 1.5f;
    EXPECT_NEAR(ConcentrationCalc::directConcentration(sample("M", "Fixed Volume", 10), d), -0.05, 1e-7);
}

TEST(ConcentrationCalc, BackTitrationsByEveryReagentAmount)
{
    Back b;
    b.volume = 10;
    b.titrantConc = 0.1f;
    b.reagentAmountValue = 2.0f; // (2 - 1) / 10
    EXPECT_NEAR(ConcentrationCalc::backConcentration(sample("M", "Fixed Volume", 10), b), 0.1, 1e-7);

    b.reagentAmount = QStringLiteral("Back Blank Titration");
    b.blankConcentration = 3.0f; // (3 - 1) * 2 / 10 with reagent ratio 2
    b.reagentReactionRatio = 2.0f;
    EXPECT_NEAR(ConcentrationCalc::backConcentration(sample("M", "Fixed Volume", 10), b), 0.4, 1e-7);

    b.reagentReactionRatio = 1.0f;
    b.reagentAmount = QStringLiteral("Manual Volume");
    b.reagentConcentration = 0.5f;
    b.reagentVolume = 6.0f;      // Q = 3; titrant ratio 2: (3 - 2) / 10
    b.titrantReactionRatio = 2.0f;
    EXPECT_NEAR(ConcentrationCalc::backConcentration(sample("M", "Fixed Volume", 10), b), 0.1, 1e-7);

    b.titrantReactionRatio = 1.0f;
    b.reagentAmount = QStringLiteral("Manual Weight");
    b.reagentWeight = 0.5f;
    b.reagentPurity = 80.0f;
    b.reagentMolecularWeight = 100.0f; // Q = 0.5*0.8*1000/100 = 4 mmol
    EXPECT_NEAR(ConcentrationCalc::reagentAmountMmol(b), 4.0, 1e-6);
    // weight sample 5 g, D 1.25, per-weight "mmol/g": basis 5; (4 - 1)/5 = 0.6
    EXPECT_NEAR(ConcentrationCalc::backConcentration(sample("mmol/g", "Fixed Weight", 5, 1.25f), b), 0.6, 1e-6);
    // same with "M": basis 5/1.25 = 4; 3/4 = 0.75
    EXPECT_NEAR(ConcentrationCalc::backConcentration(sample("M", "Fixed Weight", 5, 1.25f), b), 0.75, 1e-6);
    // volume sample with "mg/kg", M 35.45: basis 12.5; 3/12.5*35.45*1000 = 8508
    EXPECT_NEAR(ConcentrationCalc::backConcentration(sample("mg/kg", "Fixed Volume", 10, 1.25f, 35.45f), b), 8508, 0.01);

    b.reagentAmount = QStringLiteral("Something else");
    EXPECT_EQ(ConcentrationCalc::reagentAmountMmol(b), 0.0f);
}

TEST(ConcentrationCalc, ThreeEndPointsTakeTheSameFormula)
{
    // Three end points of one run of 0.1 mol/L titrant on a 20 mL sample,
    // reported in mM: V/20*0.1*1000.
    const float volumes[3] = {4.0f, 9.5f, 14.25f};
    const double expected[3] = {20.0, 47.5, 71.25};
    for (int i = 0; i < 3; ++i) {
        EXPECT_NEAR(ConcentrationCalc::directConcentration(sample("mM", "Fixed Volume", 20), direct(volumes[i], 0.1f)),
                    expected[i], 1e-4);
    }
}

TEST(ConcentrationCalc, ZeroDivisorsNeverGiveNaNOrInfinity)
{
    const float zeroSample = ConcentrationCalc::directConcentration(sample("M", "Fixed Volume", 0), direct(10, 0.1f));
    EXPECT_TRUE(std::isfinite(zeroSample));
    EXPECT_EQ(zeroSample, 0.0f);
    EXPECT_EQ(ConcentrationCalc::directConcentration(sample("M", "Fixed Weight", 5, 0), direct(10, 0.1f)), 0.0f);
    Direct consumption = direct(2, 0.5f, 0.0f);
    consumption.isReactionRatio = false;
    consumption.blankRequired = QStringLiteral("Fixed");
    consumption.blankRequiredValue = 0.1f;
    EXPECT_EQ(ConcentrationCalc::directConcentration(sample("Consumption mmol", "Fixed Volume", 1), consumption), 0.0f);
    // A zero titrant concentration is not a division: the result is 0 (or minus the blank).
    EXPECT_EQ(ConcentrationCalc::directConcentration(sample("M", "Fixed Volume", 10), direct(10, 0.0f)), 0.0f);
    Back b;
    b.reagentAmount = QStringLiteral("Manual Weight");
    b.reagentMolecularWeight = 0.0f;
    EXPECT_EQ(ConcentrationCalc::reagentAmountMmol(b), 0.0f);
    EXPECT_TRUE(std::isfinite(ConcentrationCalc::backConcentration(sample("M", "Fixed Volume", 0), b)));
}

TEST(ConcentrationCalc, KnownAdditionBasisAndConversion)
{
    Sample s = sample("mg/serving", "Serving No.", 2);
    EXPECT_EQ(ConcentrationCalc::mkaSampleBasis(s, 4.0f), 2.0f);
    s.sampleAmount = QStringLiteral("Fixed Weight");
    s.amount = 10;
    EXPECT_EQ(ConcentrationCalc::mkaSampleBasis(s, 4.0f), 2.5f);
    EXPECT_EQ(ConcentrationCalc::mkaSampleBasis(sample("mg", "Fixed Weight", 10), 4.0f), 1.0f);
    EXPECT_EQ(ConcentrationCalc::mkaSampleBasis(sample("ppm", "Fixed Weight", 10, 1.25f), 1.0f), 8.0f);
    EXPECT_EQ(ConcentrationCalc::mkaSampleBasis(sample("mg/kg", "Fixed Volume", 10, 1.25f), 1.0f), 12.5f);
    // 0.001 mol/L of fluoride (19.00 g/mol) in ppm: 19 mg/L
    EXPECT_NEAR(ConcentrationCalc::mkaConvertResult(0.001f, sample("ppm", "Fixed Volume", 1, 1, 19.0f)), 19.0, 1e-4);
    EXPECT_NEAR(ConcentrationCalc::mkaConvertResult(0.001f, sample("mM", "Fixed Volume", 1)), 1.0, 1e-6);
}

TEST(ConcentrationCalc, UnitTextTests)
{
    EXPECT_TRUE(ConcentrationCalc::needsMolecularWeight(QStringLiteral("mg")));
    EXPECT_FALSE(ConcentrationCalc::needsMolecularWeight(QStringLiteral("mmol/kg")));
    EXPECT_TRUE(ConcentrationCalc::needsMolecularWeight(QStringLiteral("ppm(w)")));
    EXPECT_TRUE(ConcentrationCalc::isPerWeight(QStringLiteral("%w/w")));
    EXPECT_FALSE(ConcentrationCalc::isPerWeight(QStringLiteral("mg/L")));
    EXPECT_FALSE(ConcentrationCalc::densityApplies(QStringLiteral("f*consumption MMOL"), QStringLiteral("Fixed Weight")));
    EXPECT_TRUE(ConcentrationCalc::densityApplies(QStringLiteral("M"), QStringLiteral("Variable Weight")));
    EXPECT_FALSE(ConcentrationCalc::densityApplies(QStringLiteral("M"), QStringLiteral("Fixed Volume")));
    EXPECT_EQ(ConcentrationCalc::applyUnitFactor(2.0f, QStringLiteral("unknown unit"), 5.0f), 2.0f);
}

} // namespace
