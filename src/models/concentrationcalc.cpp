#include "models/concentrationcalc.h"

#include <QDebug>

#include <cmath>

bool ConcentrationCalc::needsMolecularWeight(const QString &unit)
{
    return unit.contains(QLatin1String("pp")) || unit.contains(QLatin1Char('%')) || unit.contains(QLatin1String("g/"))
           || unit.contains(QLatin1String("oz/")) || unit == QLatin1String("mg");
}

bool ConcentrationCalc::isPerWeight(const QString &unit)
{
    return unit.contains(QLatin1String("w/w")) || unit.contains(QLatin1String("/kg")) || unit.contains(QLatin1String("/g"))
           || unit.contains(QLatin1String("/100g")) || unit == QLatin1String("TAN") || unit == QLatin1String("TBN")
           || unit == QLatin1String("ppm by weight");
}

bool ConcentrationCalc::isSampleByVolume(const QString &sampleAmount)
{
    return sampleAmount.contains(QLatin1String("Volume"));
}

bool ConcentrationCalc::densityApplies(const QString &unit, const QString &sampleAmount)
{
    if (unit.contains(QLatin1String("Consumption"), Qt::CaseInsensitive))
        return false;
    if (isPerWeight(unit))
        return isSampleByVolume(sampleAmount);
    return sampleAmount.contains(QLatin1String("Weight"));
}

bool ConcentrationCalc::isConsumptionUnit(const QString &unit)
{
    return unit.contains(QLatin1String("Consumption mmol"));
}

float ConcentrationCalc::applyUnitFactor(float value, const QString &unit, float resultUnitsValue)
{
    // Factors 100, 0.1335227, 0.1 and 56.1056 are applied in double precision
    // and rounded back; 1000, 1000000 and the division by 10 in single.
    struct DoubleFactor { const char *unit; double factor; };
    static const DoubleFactor doubles[] = {
        {"mg/100mL", 100.0}, {"mg/100g", 100.0}, {"oz/gal", 0.1335227}, {"% w/v", 0.1},
        {"% w/w", 0.1},      {"TAN", 56.1056},   {"TBN", 56.1056},
    };
    for (const DoubleFactor &d : doubles) {
        if (unit == QLatin1String(d.unit))
            return static_cast<float>(static_cast<double>(value) * d.factor);
    }
    static const char *const thousands[] = {"mM", "mg/L", "ppm", "mmol/kg", "mg/kg", "ppm by weight"};
    for (const char *u : thousands) {
        if (unit == QLatin1String(u))
            return value * 1000.0f;
    }
    if (unit == QLatin1String("ppb"))
        return value * 1000000.0f;
    if (unit == QLatin1String("g/100mL") || unit == QLatin1String("g/100g"))
        return value / 10.0f;
    if (unit == QLatin1String("F*Consumption mmol"))
        return value * resultUnitsValue;
    return value; // "M", "g/L", "mol/kg", "mmol/g", "mg/g", "g/kg", "Consumption mmol", others
}

float ConcentrationCalc::directConcentration(const Sample &s, const Direct &d)
{
    qDebug() << "TitrationSetupModel::calculateConcentration";
    qDebug() << "Titrant Concentration - " << d.titrantConc;

    float blankMmol = 0.0f;
    if (d.blankRequired == QLatin1String("Fixed"))
        blankMmol = d.blankRequiredValue;
    else if (d.blankRequired == QLatin1String("Variable"))
        blankMmol = d.blankConcentration;

    const bool mw = needsMolecularWeight(s.resultUnits);
    const bool density = densityApplies(s.resultUnits, s.sampleAmount);
    float x = 0.0f;
    if (d.isReactionRatio) {
        const float found = -blankMmol + d.titrantConc * d.volume * d.reactionRatio;
        float basis = s.amount;
        if (density)
            basis = isSampleByVolume(s.sampleAmount) ? s.amount * s.density : s.amount / s.density;
        x = found / basis;
        if (mw)
            x = x * s.molecularWeight;
    } else if (!mw && !density) {
        x = d.titrantConc * d.volume - blankMmol / d.reactionRatio;
    }
    return finiteOrZero(applyUnitFactor(x, s.resultUnits, s.resultUnitsValue), "direct titration");
}

float ConcentrationCalc::reagentAmountMmol(const Back &b)
{
    if (b.reagentAmount == QLatin1String("Manual Calc."))
        return b.reagentAmountValue;
    if (b.reagentAmount == QLatin1String("Back Blank Titration"))
        return b.blankConcentration;
    if (b.reagentAmount == QLatin1String("Manual Volume"))
        return b.reagentConcentration * b.reagentVolume;
    if (b.reagentAmount == QLatin1String("Manual Weight")) {
        const float pure = b.reagentWeight * (b.reagentPurity / 100.0f);
        return finiteOrZero(static_cast<double>(pure) * 1000.0 / static_cast<double>(b.reagentMolecularWeight),
                            "reagent amount");
    }
    return 0.0f;
}

float ConcentrationCalc::backConcentration(const Sample &s, const Back &b)
{
    const float reagent = reagentAmountMmol(b);
    const bool byVolume = isSampleByVolume(s.sampleAmount);
    const bool perWeight = isPerWeight(s.resultUnits);
    float basis = s.amount;
    if (byVolume && perWeight)
        basis = s.amount * s.density;
    else if (!byVolume && !perWeight)
        basis = s.amount / s.density;

    float x = (reagent - b.titrantConc * b.volume * b.titrantReactionRatio) * b.reagentReactionRatio / basis;
    if (needsMolecularWeight(s.resultUnits))
        x = x * s.molecularWeight;
    return finiteOrZero(applyUnitFactor(x, s.resultUnits, s.resultUnitsValue), "back titration");
}

float ConcentrationCalc::blank(float volume, float titrantConc, float ratio)
{
    return finiteOrZero(volume * titrantConc * ratio, "blank");
}

float ConcentrationCalc::mkaSampleBasis(const Sample &s, float servingSize)
{
    if (s.resultUnits == QLatin1String("mg"))
        return 1.0f;
    if (s.resultUnits.contains(QLatin1String("/serving")))
        return s.sampleAmount == QLatin1String("Serving No.") ? s.amount
                                                               : finiteOrZero(s.amount / servingSize, "serving");
    const bool byVolume = isSampleByVolume(s.sampleAmount);
    const bool perWeight = isPerWeight(s.resultUnits);
    if (byVolume && perWeight)
        return s.amount * s.density;
    if (!byVolume && !perWeight)
        return finiteOrZero(s.amount / s.density, "sample basis");
    return s.amount;
}

float ConcentrationCalc::mkaConvertResult(float molPerL, const Sample &s)
{
    float x = molPerL;
    if (needsMolecularWeight(s.resultUnits))
        x = x * s.molecularWeight;
    return finiteOrZero(applyUnitFactor(x, s.resultUnits, s.resultUnitsValue), "known addition result");
}

float ConcentrationCalc::finiteOrZero(double value, const char *formula)
{
    if (std::isfinite(value))
        return static_cast<float>(value);
    qDebug() << "ConcentrationCalc:" << formula
             << "has no finite result (a zero sample amount, density, ratio or molecular weight); reported as 0";
    return 0.0f;
}
