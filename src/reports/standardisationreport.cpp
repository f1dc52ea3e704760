#include "reports/standardisationreport.h"

#include "reports/reportvalues.h"
#include "reports/titrationreport.h"

namespace {
QVariant when(bool present, const QVariant &value)
{
    return present ? value : QVariant(ReportRows::notApplicable);
}
} // namespace

StandardisationReport::StandardisationReport(const RunReportSource &source)
    : s(source)
{
}

QVector<RunReportRow> StandardisationReport::methodRows() const
{
    const QObject *t = s.titrant;
    QVector<RunReportRow> rows = TitrationReport::headRows(s, QVariant());
    rows[5].longPosition = 6;
    rows[5].shortPosition = 5;
    rows.append({"Titrant ID", "Titrant ID", s.text(t, "titrantID"), "", 7, 6});
    for (RunReportRow r : TitrationReport::calibrationRows(s)) {
        r.shortPosition = r.longPosition - 1;
        rows.append(r);
    }
    const bool standardised = s.text(t, "concInputMode") == QLatin1String("Standardization");
    const QString amount = s.text(t, "standAmount");
    const bool fixedAmount = amount == QLatin1String("Fixed Weight") || amount == QLatin1String("Fixed Volume");
    const bool byVolume = amount == QLatin1String("Fixed Volume") || amount == QLatin1String("Variable Volume");
    const bool byWeight = amount == QLatin1String("Fixed Weight") || amount == QLatin1String("Variable Weight");
    QString standard = s.text(t, "standardName");
    if (standard == QLatin1String("User Defined"))
        standard = s.text(t, "standardName_userDefined");
    rows << RunReportRow{"Titrant Nominal Concentration", "Titrant N Conc.", ReportValues::sigFigsDec(s.number(t, "nominalConc")), s.text(t, "nominalConc_Unit"), 14, 13}
         << RunReportRow{"Standardization Technique", "StdzTechnique", when(standardised, s.text(t, "standTechnique")), "", 15, 0}
         << RunReportRow{"Standardization Number of Endpoints", "Stdz Endpoints", when(standardised, s.text(t, "noOfEndPoints")), "", 16, 0}
         << RunReportRow{"Standardization Result Units", "Stdz ResultUnit", when(standardised, s.text(t, "resultUnits")), "", 17, 0}
         << RunReportRow{"Standardization Reaction Ratio", "Stdz Rxn Ratio", when(standardised, ReportValues::fixed(s.number(t, "standReactionRatio"), 3)), "", 18, 0}
         << RunReportRow{"Standard Name", "Standard Name", when(standardised, standard), "", 19, 0}
         << RunReportRow{"Standard Amount", "Standard Amount",
                         when(standardised, fixedAmount ? ReportValues::fixed(s.number(t, "standAmount_Value"), 3) : amount),
                         fixedAmount ? s.text(t, "standAmount_Unit") : QString(), 20, 14}
         << RunReportRow{"Standard Concentration", "Standard Conc.", when(standardised && byVolume, ReportValues::sigFigsDec(s.number(t, "standConcentration"))),
                         s.text(t, "standConcentration_Unit"), 21, 15}
         << RunReportRow{"Standard Molecular Weight", "Standard MW", when(standardised && byWeight, ReportValues::fixed(s.number(t, "standMolecularWeight"), 3)),
                         s.text(t, "standMolecularWeight_Unit"), 22, 0}
         << RunReportRow{"Standard Purity", "Standard Purity", when(standardised && byWeight, ReportValues::fixed(s.number(t, "standardPurity"), 1)),
                         s.text(t, "standardPurity_Unit"), 23, 0}
         << RunReportRow{"Titrant Molecular Weight", "Titrant MW", when(s.isMka(), ReportValues::fixed(s.number(t, "titrantMolecularWeight"), 3)),
                         s.text(t, "titrantMolecularWeight_Unit"), 24, 0}
         << RunReportRow{"Titrant Pre-dose Volume(Standardization)", "Titrant Predose", when(standardised, ReportValues::fixed(s.number(t, "preDoseTitrantVolume"), 3)), "mL", 25, 0}
         << RunReportRow{"Titrant Max Total Volume(Standardization)", "Titrant Max Volume", when(standardised, ReportValues::fixed(s.number(t, "maxTotalVolume"), 3)), "mL", 26, 0}
         << RunReportRow{"Standardization Process Control", "Stdz Control", when(standardised, s.text(t, "standProcessControl")), "", 27, 0};
    return rows;
}

QVector<RunReportRow> StandardisationReport::cycleRows(const QObject *c) const
{
    const QObject *t = s.titrant;
    const QString amount = s.text(t, "standAmount");
    const bool variable = amount == QLatin1String("Variable Weight") || amount == QLatin1String("Variable Volume");
    const QString unit = s.text(t, "endPoint_Unit");
    const int decimals = TitrationReport::endPointDecimals(s, unit);
    const bool preset = s.text(t, "standTechnique") == QLatin1String("Preset End Pt.");
    const double endPoint = preset ? s.number(t, "endPointsValues") : c->property("epValue1").toDouble();
    return {
        {"Cycle Number", "Cycle Number", c->property("cycleNo").toInt(), "", 1, 1},
        {"Excluded", "Excluded", c->property("inclInAvg").toInt() != 0 ? "No" : "Yes", "", 2, 2},
        {"Sample Amount", "Sample Amount", when(variable, ReportValues::sigFigsDec(c->property("standAmountValue").toDouble())),
         s.text(t, "standAmount_Unit"), 3, 3},
        {"Actual Titrant Concentration", "Titrant Conc.", ReportValues::sigFigsDec(c->property("calCon").toDouble()), s.text(t, "resultUnits"), 4, 4},
        {"End Point Volume", "EP Volume", ReportValues::fixed(c->property("veqp").toDouble(), 3), "mL", 5, 5},
        {"End Point Value", "EP Value", ReportValues::fixed(endPoint, decimals), unit, 6, 6},
        {"Temperature", "Temperature", TitrationReport::cycleTemperature(s, c), TitrationReport::temperatureUnit(s), 7, 0},
        {"Standardization Duration (Minutes)", "Duration (Min)", TitrationReport::cycleDuration(c), "", 8, 0},
    };
}

QVector<RunReportRow> StandardisationReport::summaryRows() const
{
    const QObject *t = s.titrant;
    const QString average = RunReportSource::part(s.avgConc, 0);
    return {
        {"Average Titrant Concentration", "Average Titrant Conc.", average, s.text(t, "resultUnits"), 1, 1},
        {"RSD", "RSD", RunReportSource::part(s.rsd, 0), "", 2, 2},
        {"Average Temperature", "Temperature", TitrationReport::meanTemperature(s), TitrationReport::temperatureUnit(s), 3, 0},
        {"Standardization Duration (Minutes)", "Duration (Min)", TitrationReport::meanDuration(s), "", 4, 0},
        {"Titer Ratio", "Titer Ratio",
         TitrationReport::titerRatio(average.toDouble(), s.text(t, "resultUnits"), s.number(t, "nominalConc"), s.text(t, "nominalConc_Unit")),
         "", 5, 0},
    };
}

RunReportText StandardisationReport::build() const
{
    QVector<QVector<RunReportRow>> cycles;
    for (const QObject *c : s.cycles)
        cycles.append(cycleRows(c));
    const QString yUnit = s.electrodeType() == QLatin1String("pH") ? s.text(s.titrant, "endPoint_Unit") : QStringLiteral("mV");
    return {ReportRows::runText(methodRows(), cycles, summaryRows(), s.electrodeType()), TitrationReport::curves(s, yUnit)};
}
