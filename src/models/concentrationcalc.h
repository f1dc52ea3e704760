#pragma once

#include <QString>

// The result formulas of a titration: stateless arithmetic that turns an
// end-point volume in mL into a concentration in the unit the user chose.
// TitrationSetupModel fills the inputs from its columns and calls these.
//
// V end-point volume (mL), C titrant concentration (mol/L), S sample amount
// (mL or g), D sample density (g/mL), M sample molecular weight (g/mol),
// R reaction ratio. Single precision, as the stored values are.
class ConcentrationCalc
{
public:
    struct Sample {
        QString resultUnits = QStringLiteral("M");
        float resultUnitsValue = 1.0f;   // F of "F*Consumption mmol"
        QString sampleAmount = QStringLiteral("Fixed Volume");
        float amount = 1.0f;             // S
        float density = 1.0f;            // D
        float molecularWeight = 1.0f;    // M
    };

    struct Direct {
        float volume = 0.0f;             // V
        float titrantConc = 1.0f;        // C
        float reactionRatio = 1.0f;      // R
        bool isReactionRatio = true;     // false for the consumption units
        QString blankRequired = QStringLiteral("No");
        float blankRequiredValue = 0.0f; // "Fixed"
        float blankConcentration = 0.0f; // "Variable", measured, mmol
    };

    struct Back {
        float volume = 0.0f;
        float titrantConc = 1.0f;
        float titrantReactionRatio = 1.0f;
        float reagentReactionRatio = 1.0f;
        QString reagentAmount = QStringLiteral("Manual Calc.");
        float reagentAmountValue = 1.0f;     // mmol
        float blankConcentration = 0.0f;     // mmol, "Back Blank Titration"
        float reagentConcentration = 1.0f;   // mol/L
        float reagentVolume = 1.0f;          // mL
        float reagentWeight = 1.0f;          // g
        float reagentPurity = 100.0f;        // %
        float reagentMolecularWeight = 1.0f; // g/mol
    };

    // The text tests on the unit and the sample kind.
    static bool needsMolecularWeight(const QString &unit);
    static bool isPerWeight(const QString &unit);
    static bool isSampleByVolume(const QString &sampleAmount);
    static bool densityApplies(const QString &unit, const QString &sampleAmount);
    static bool isConsumptionUnit(const QString &unit);

    // Multiplies by the unit's factor (1 for a unit not in the table).
    static float applyUnitFactor(float value, const QString &unit, float resultUnitsValue);

    static float directConcentration(const Sample &sample, const Direct &direct);
    static float backConcentration(const Sample &sample, const Back &back);
    static float reagentAmountMmol(const Back &back);

    // A blank in mmol: V x C x ratio.
    static float blank(float volume, float titrantConc, float ratio);

    // Multiple known addition: the sample basis and the conversion of a
    // concentration in mol/L to the chosen unit.
    static float mkaSampleBasis(const Sample &sample, float servingSize);
    static float mkaConvertResult(float molPerL, const Sample &sample);

    // A result that would be infinite or not a number (a zero sample amount,
    // density, ratio or molecular weight) is never stored or shown: it is
    // logged with the name of the formula and answered as 0.
    static float finiteOrZero(double value, const char *formula);
};
