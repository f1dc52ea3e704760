// The chemistry of the virtual instrument against values worked out by hand.

#include "beaker.h"
#include "scenario.h"

#include <QJsonObject>

#include <gtest/gtest.h>

#include <cmath>

namespace {

AcidBaseBeaker::Params withPKa(double pKa)
{
    AcidBaseBeaker::Params p; // 50 mL of 0.1 mol/L acid, 0.1 mol/L NaOH
    p.pKa = {pKa};
    return p;
}

AcidBaseBeaker::Params ammonia()
{
    AcidBaseBeaker::Params p = withPKa(9.25); // ammonium / ammonia
    p.acidCharge = 1;                         // NH4+ is the protonated form
    p.startsAsAcid = false;
    p.titrantIsBase = false;
    return p;
}

} // namespace

TEST(AcidBase, PhAgainstHandValues)
{
    struct Point {
        const char *what;
        AcidBaseBeaker::Params sample;
        double ml, pH, tolerance;
    };
    const Point points[] = {
        {"acetic acid alone: [H+] = sqrt(Ka C)", withPKa(4.76), 0.0, 2.88, 0.01},
        {"acetate at equivalence: pOH = (pKb - log C) / 2", withPKa(4.76), 50.0, 8.73, 0.02},
        {"half neutralised: Henderson-Hasselbalch", withPKa(4.76), 25.0, 4.76, 0.01},
        {"a tenth neutralised", withPKa(4.76), 5.0, 4.76 + std::log10(5.0 / 45.0), 0.01},
        {"10 mL excess of hydroxide in 110 mL", withPKa(4.76), 60.0, 14.0 + std::log10(0.1 * 10.0 / 110.0), 0.01},
        {"hydrochloric acid alone", withPKa(-6.0), 0.0, 1.0, 0.005},
        {"2.5 mmol of HCl left in 75 mL", withPKa(-6.0), 25.0, -std::log10(2.5 / 75.0), 0.005},
        {"strong acid at equivalence", withPKa(-6.0), 50.0, 7.0, 0.02},
        {"0.1 mol/L ammonia: pOH = (4.75 + 1) / 2", ammonia(), 0.0, 11.12, 0.02},
        {"ammonia half neutralised", ammonia(), 25.0, 9.25, 0.01},
        {"0.05 mol/L ammonium: pH = (9.25 + 1.30) / 2", ammonia(), 50.0, 5.28, 0.02},
    };
    for (const Point &p : points)
        EXPECT_NEAR(AcidBaseBeaker(p.sample).pH(p.ml), p.pH, p.tolerance) << p.what;
}

TEST(AcidBase, PhosphoricAcidHasTwoVisibleSteps)
{
    AcidBaseBeaker::Params p;
    p.pKa = {2.15, 7.20, 12.35};
    p.concentration = 0.02;
    const AcidBaseBeaker b(p);
    // 1 mmol of acid: first equivalence at 10 mL, second at 20 mL. The
    // amphoteric salts there: [H+]^2 = K1 K2 C / (K1 + C) and
    // [H+]^2 = K2 (K3 C + Kw) / (K2 + C).
    const double k1 = std::pow(10.0, -2.15), k2 = std::pow(10.0, -7.20),
                 k3 = std::pow(10.0, -12.35), kw = std::pow(10.0, -b.pKw());
    const double c1 = 1.0 / 60.0, c2 = 1.0 / 70.0;
    EXPECT_NEAR(b.pH(10.0), -0.5 * std::log10(k1 * k2 * c1 / (k1 + c1)), 0.02);
    EXPECT_NEAR(b.pH(15.0), 7.20, 0.05);
    EXPECT_NEAR(b.pH(20.0), -0.5 * std::log10(k2 * (k3 * c2 + kw) / (k2 + c2)), 0.02);
    // The curve never falls while base is added.
    double last = b.pH(0.0);
    for (double ml = 0.25; ml <= 40.0; ml += 0.25) {
        const double now = b.pH(ml);
        ASSERT_GE(now, last - 1e-9) << ml;
        last = now;
    }
}

TEST(AcidBase, ElectrodeReadsNernstAtItsTemperature)
{
    AcidBaseBeaker::Params p;
    p.celsius = 35.0;
    p.e0Mv = 10.0;
    p.slopePct = 95.0;
    const AcidBaseBeaker b(p);
    const double slope = 0.95 * 0.198416 * (35.0 + 273.15); // 58.1 mV per pH
    EXPECT_NEAR(b.potentialMv(25.0), 10.0 - slope * (b.pH(25.0) - 7.0), 0.01);
    EXPECT_NEAR(Beaker::nernstSlope(25.0), 59.16, 0.01);
    // Water's ion product grows with temperature: neutral is below 7 at 35 °C.
    EXPECT_NEAR(b.pKw(), 13.68, 0.02);
}

TEST(Redox, IronWithCerium)
{
    RedoxBeaker::Params p; // Fe2+ 0.1 mol/L, Ce4+ 0.1 mol/L, 50 mL
    const RedoxBeaker b(p);
    EXPECT_NEAR(b.potentialMv(25.0), 771.0, 0.5);                 // half-way: E0 of iron
    EXPECT_NEAR(b.potentialMv(50.0), (771.0 + 1440.0) / 2, 0.5);  // equivalence
    EXPECT_NEAR(b.potentialMv(100.0), 1440.0, 0.5);               // twice: E0 of cerium
    EXPECT_NEAR(b.potentialMv(5.0), 771.0 + 59.16 * std::log10(5.0 / 45.0), 0.5);
    // Before the first drop a trace of iron(III) sets the potential.
    EXPECT_NEAR(b.potentialMv(0.0), 771.0 + 59.16 * std::log10(1e-4), 0.5);
}

TEST(Redox, UnequalElectronNumbers)
{
    RedoxBeaker::Params p;
    p.analyteN = 1;  // Fe2+
    p.titrantN = 5;  // permanganate, 0.02 mol/L takes 0.1 mol/L of electrons
    p.titrantE0 = 1510;
    p.titrantConcentration = 0.02;
    const RedoxBeaker b(p);
    EXPECT_NEAR(b.potentialMv(25.0), 771.0, 0.5);
    EXPECT_NEAR(b.potentialMv(50.0), (771.0 + 5 * 1510.0) / 6, 1.0);
}

TEST(Ise, DilutionAndAddition)
{
    IseBeaker::Params p; // 50 mL of 0.001 mol/L, standard 0.1 mol/L, charge 1
    const IseBeaker b(p);
    EXPECT_NEAR(b.potentialMv(0.0), -3 * 59.16, 0.05);
    // 5 mL of standard: (0.05 + 0.5) mmol in 55 mL is 0.01 mol/L.
    EXPECT_NEAR(b.concentration(5.0), 0.01, 1e-12);
    EXPECT_NEAR(b.potentialMv(5.0), -2 * 59.16, 0.05);

    IseBeaker::Params q = p;
    q.charge = 2;
    q.slopePct = 90;
    q.e0Mv = 100;
    EXPECT_NEAR(IseBeaker(q).potentialMv(5.0), 100 - 2 * 0.9 * 59.16 / 2, 0.05);
}

TEST(ScenarioFile, DefaultsAreAceticAcidWithSodiumHydroxide)
{
    Scenario s;
    QString error;
    ASSERT_TRUE(Scenario::parse("{}", &s, &error)) << error.toStdString();
    EXPECT_EQ(s.config.buretteMl, 20);
    EXPECT_NEAR(s.beaker->potentialMv(0.0), -59.16 * (2.88 - 7.0), 0.7);
}

TEST(ScenarioFile, BadFilesAreRefusedWithAReason)
{
    const char *bad[] = {
        "", "[1,2]", "{\"burette_mL\":\"twenty\"}", "{\"burette_mL\":0}",
        "{\"electrode\":{\"tau_s\":-1}}", "{\"beaker\":{\"kind\":\"soup\"}}",
        "{\"beaker\":{\"kind\":\"acid-base\",\"analyte\":{\"pKa\":[]}}}",
        "{\"beaker\":{\"kind\":\"acid-base\",\"analyte\":{\"form\":\"salt\"}}}",
        "{\"beaker\":{\"kind\":\"acid-base\",\"titrant\":{\"kind\":\"weak-base\"}}}",
        "{\"beaker\":{\"kind\":\"ise\",\"ion\":{\"charge\":0}}}",
        "{\"beaker\":{\"volume_mL\":-5}}", "{\"slave\":{\"serial\":\"two words\"}}",
        // Every number: finite, in range, of its type; nothing falls back to a default.
        "{\"beaker\":{\"analyte\":{\"conc_mol_L\":-0.1}}}", "{\"beaker\":{\"analyte\":{\"conc_mol_L\":0}}}",
        "{\"beaker\":{\"analyte\":{\"conc_mol_L\":1e300}}}", "{\"beaker\":{\"analyte\":{\"conc_mol_L\":\"fifty\"}}}",
        "{\"beaker\":{\"titrant\":{\"conc_mol_L\":0}}}", "{\"beaker\":{\"volume_mL\":0}}",
        "{\"beaker\":{\"volume_mL\":\"fifty\"}}", "{\"beaker\":{\"analyte\":{\"pKa\":[4.76,\"x\"]}}}",
        "{\"beaker\":{\"kind\":\"redox\",\"analyte\":{\"n\":1.5}}}",
        "{\"beaker\":{\"kind\":\"redox\",\"titrant\":{\"conc_mol_L\":-1}}}",
        "{\"beaker\":{\"kind\":\"ise\",\"ion\":{\"conc_mol_L\":0}}}", "{\"beaker\":{\"kind\":\"buffer\",\"pH\":\"7\"}}",
        "{\"beaker\":5}", "{\"electrode\":[1]}", "{\"temperature_probe\":\"yes\"}", "{\"burette_mL\":20.5}",
        "{\"seed\":1.5}", "{\"seed\":-1}", "{\"seed\":4294967296}",
    };
    for (const char *json : bad) {
        Scenario s;
        QString error;
        EXPECT_FALSE(Scenario::parse(json, &s, &error)) << json;
        EXPECT_FALSE(error.isEmpty()) << json;
    }
}

TEST(Buffer, ReadsItsPHWithTheElectrodesOffsetAndSlope)
{
    // 97 % of the Nernst slope at 25 °C (59.16 mV) is 57.39 mV per pH; an
    // offset of +12 mV. pH 4.01: 12 - 57.39*(4.01-7) = 183.59 mV.
    QString error;
    auto b = Beaker::fromJson(QJsonObject{{QStringLiteral("kind"), QStringLiteral("buffer")},
                                          {QStringLiteral("pH"), 4.01}},
                              25.0, 12.0, 97.0, &error);
    ASSERT_TRUE(b) << error.toStdString();
    EXPECT_NEAR(b->potentialMv(0.0), 183.59, 0.02);
    EXPECT_NEAR(b->potentialMv(5.0), 183.59, 0.02) << "titrant does not move a buffer";
    // At 10 °C the slope is 56.18 mV per pH; pH 10.07 at 100 %: -172.47 mV.
    auto cold = Beaker::fromJson(QJsonObject{{QStringLiteral("kind"), QStringLiteral("buffer")},
                                             {QStringLiteral("pH"), 10.07}},
                                 10.0, 0.0, 100.0, &error);
    ASSERT_TRUE(cold);
    EXPECT_NEAR(cold->potentialMv(0.0), -172.47, 0.02);
    EXPECT_FALSE(Beaker::fromJson(QJsonObject{{QStringLiteral("kind"), QStringLiteral("buffer")},
                                              {QStringLiteral("pH"), 99.0}},
                                  25.0, 0.0, 100.0, &error));
    EXPECT_FALSE(error.isEmpty());
}

TEST(ScenarioFile, KnownAdditionScenariosRiseForCationsAndFallForAnions)
{
    // The shipped ion-selective scenarios serve a known-addition run: each
    // standard addition moves the electrode by the Nernst step of the new
    // concentration, up for a cation, down for an anion.
    const QString dir = QStringLiteral(KESTRUM_SOURCE_DIR "/tools/virtual-instrument/scenarios/");
    for (const char *name : {"sodium-ise.json", "chloride-ise.json"}) {
        Scenario s;
        QString error;
        ASSERT_TRUE(Scenario::load(dir + QLatin1String(name), &s, &error)) << name << error.toStdString();
        const IseBeaker *ise = dynamic_cast<const IseBeaker *>(s.beaker.get());
        ASSERT_NE(ise, nullptr) << name;
        const double sign = QLatin1String(name).startsWith(QLatin1String("sodium")) ? 1.0 : -1.0;
        const double step = ise->potentialMv(1.0) - ise->potentialMv(0.0);
        const double slope = step / std::log10(ise->concentration(1.0) / ise->concentration(0.0));
        EXPECT_GT(slope * sign, 0.9 * Beaker::nernstSlope(25.0)) << name;
        EXPECT_LE(slope * sign, Beaker::nernstSlope(25.0)) << name;
        EXPECT_GT(step * sign, 1.0) << name;
    }
}
