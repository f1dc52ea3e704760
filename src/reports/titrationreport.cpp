#include "reports/titrationreport.h"

#include "reports/reportvalues.h"

#include <QStringList>
#include <QTime>

#include <cmath>

namespace {
const QString nill = ReportRows::notApplicable;

QVariant when(bool present, const QVariant &value)
{
    return present ? value : QVariant(nill);
}

bool oneOf(const QString &value, const QStringList &list)
{
    return list.contains(value);
}

QDateTime dateOf(const QVariant &v)
{
    return v.toDateTime();
}
} // namespace

TitrationReport::TitrationReport(const RunReportSource &source)
    : s(source)
{
}

bool TitrationReport::isBlank() const
{
    return s.runType() == QLatin1String("Direct Blank") || s.runType() == QLatin1String("Back Blank");
}

bool TitrationReport::linked() const
{
    return s.standardisation.value(QStringLiteral("id")).toInt() != 0;
}

int TitrationReport::endPoints() const
{
    return qBound(1, int(s.number(s.titration, "noOfEndPoints")), 3);
}

QString TitrationReport::temperatureUnit(const RunReportSource &s)
{
    return s.temperatureFormat == 0 ? QStringLiteral("C") : QStringLiteral("F");
}

QString TitrationReport::cycleTemperature(const RunReportSource &s, const QObject *cycle)
{
    return ReportValues::fixed(ReportValues::temperature(cycle->property("temperature").toDouble(), s.temperatureFormat), 1);
}

QString TitrationReport::cycleDuration(const QObject *cycle)
{
    const QTime t = cycle->property("runningDuration").toTime();
    return ReportValues::duration(t.isValid() ? QTime(0, 0).secsTo(t) : 0);
}

QString TitrationReport::meanTemperature(const RunReportSource &s)
{
    double sum = 0;
    for (const QObject *c : s.cycles)
        sum += c->property("temperature").toDouble();
    const double mean = s.cycles.isEmpty() ? 0 : sum / s.cycles.size();
    return ReportValues::fixed(ReportValues::temperature(mean, s.temperatureFormat), 1);
}

QString TitrationReport::meanDuration(const RunReportSource &s)
{
    int sum = 0;
    for (const QObject *c : s.cycles) {
        const QTime t = c->property("runningDuration").toTime();
        sum += t.isValid() ? QTime(0, 0).secsTo(t) : 0;
    }
    return ReportValues::duration(s.cycles.isEmpty() ? 0 : qRound(double(sum) / s.cycles.size()));
}

int TitrationReport::endPointDecimals(const RunReportSource &s, const QString &displayUnit)
{
    if (s.electrodeType() == QLatin1String("pH") && displayUnit == QLatin1String("pH"))
        return ReportValues::resolutionDecimals(s.number(s.electrode, "resolution"));
    return 1;
}

QString TitrationReport::titerRatio(double actual, const QString &resultUnits, double nominal, const QString &nominalUnit)
{
    const bool molar = resultUnits == QLatin1String("M");
    const bool milli = nominalUnit == QLatin1String("mM");
    double ratio;
    if (molar)
        ratio = milli ? actual / (nominal / 1000) : actual / nominal;
    else
        ratio = milli ? actual / nominal : actual / (nominal * 1000);
    return ReportValues::sigFigsDec(std::isfinite(ratio) ? ratio : 0.0);
}

QVector<RunReportRow> TitrationReport::headRows(const RunReportSource &s, const QVariant &sampleId)
{
    const QDateTime at = s.cycles.isEmpty() ? dateOf(s.run.value(QStringLiteral("mcreatedAt")))
                                            : s.cycles.last()->property("mcreatedAt").toDateTime();
    QString name = s.text(s.titrant, "titrantName");
    if (name == QLatin1String("User Defined"))
        name = s.text(s.titrant, "titrantName_userDefined");
    QVector<RunReportRow> rows = {
        {"Instrument Name", "Titrator Name", s.instrumentName, "", 1, 0},
        {"Date & Time", "", ReportValues::dateTime(at, s.dateFormat, s.timeFormat), "", 2, 1},
        {"", "Date", ReportValues::date(at, s.dateFormat), "", 3, 2},
        {"", "Time", ReportValues::time(at, s.timeFormat), "", 4, 3},
        {"Method Name", "Method Name", s.text(s.method, "methodName"), "", 5, 4},
    };
    if (sampleId.isValid())
        rows.append({"Sample ID", "Sample ID", sampleId, "", 6, 5});
    rows.append({"Titrant Name", "Titrant Name", name, "", 7, 6});
    return rows;
}

QVector<RunReportRow> TitrationReport::calibrationRows(const RunReportSource &s)
{
    const bool ph = s.electrodeType() == QLatin1String("pH");
    const int id = s.calibration.value(QStringLiteral("id")).toInt();
    const QDateTime at = dateOf(s.calibration.value(QStringLiteral("mcreatedAt")));
    auto value = [&](const QString &text) { return when(ph, id == 0 ? QString() : text); };
    return {
        {"Calibration Log Number", "Calibration Log #", value(QString::number(id)), "", 8, 0},
        {"Calibration Date & Time", "", value(ReportValues::dateTime(at, s.dateFormat, s.timeFormat)), "", 9, 0},
        {"", "Calibrate Date", value(ReportValues::date(at, s.dateFormat)), "", 10, 0},
        {"", "Calibrate Time", value(ReportValues::time(at, s.timeFormat)), "", 11, 0},
        {"Average Slope Value", "Avg. Slope Value",
         value(ReportValues::fixed(s.calibration.value(QStringLiteral("avgSlope")).toDouble(), 1) + " %"), "", 12, 0},
        {"Average Offset Value", "Avg. Offset Value", nill, "", 13, 0},
    };
}

QString TitrationReport::sampleAmountUnit() const
{
    const QString amount = s.text(s.titration, "sampleAmount");
    if (amount.endsWith(QLatin1String("Weight")))
        return QStringLiteral("gram");
    if (amount.endsWith(QLatin1String("Volume")))
        return QStringLiteral("mL");
    return QString();
}

QString TitrationReport::blankRequired() const
{
    const QString required = s.text(s.titration, "blankRequired");
    const double value = s.number(s.titration, "blankRequiredValue");
    if (s.isMka())
        return required == QLatin1String("No") ? required : ReportValues::sigFigsDec(value) + " M";
    if (required == QLatin1String("No"))
        return required;
    if (required == QLatin1String("Fixed"))
        return ReportValues::sigFigsDec(value) + " mmol";
    const double blank = s.number(s.titration, "blankConcentration");
    return blank != 0 ? ReportValues::sigFigsDec(blank) + " mmol" : required;
}

QString TitrationReport::reagentAmount() const
{
    const QString amount = s.text(s.titration, "reagentAmount");
    if (amount == QLatin1String("Manual Calc."))
        return ReportValues::sigFigsDec(s.number(s.titration, "reagentAmountValue")) + " mmol";
    if (amount == QLatin1String("Manual Volume"))
        return ReportValues::fixed(s.number(s.titration, "reagentVolume"), 3) + " mL";
    if (amount == QLatin1String("Manual Weight")) {
        if (s.text(s.titration, "reagentWeightType") == QLatin1String("Fixed Weight"))
            return ReportValues::fixed(s.number(s.titration, "reagentWeight"), 3) + " gram";
        return QStringLiteral("Variable Weight");
    }
    const double blank = s.number(s.titration, "blankConcentration");
    return blank == 0 ? QStringLiteral("Back Blank Titration") : ReportValues::sigFigsDec(blank) + " mmol";
}

QVector<RunReportRow> TitrationReport::methodRows() const
{
    const QObject *t = s.titration;
    const bool mka = s.isMka();
    const bool blank = isBlank();
    const bool link = linked();
    const QString type = s.text(t, "titrationType");
    const QString units = s.text(t, "resultUnits");
    const bool back = type == QLatin1String("Back Titration") && !blank;
    const QString reagent = s.text(t, "reagentAmount");
    const QString amount = s.text(t, "sampleAmount");

    QString sampleId = s.sampleId;
    if (blank)
        sampleId = QStringLiteral("Blank");
    else if (s.text(t, "sampleID") == QLatin1String("None"))
        sampleId = QStringLiteral("None");
    QVector<RunReportRow> rows = headRows(s, sampleId);
    rows << calibrationRows(s);

    const QString stdActual = RunReportSource::part(s.standardisation.value(QStringLiteral("AvgConc")).toString(), 0);
    const QString stdResultUnits = s.standardisation.value(QStringLiteral("resultUnits")).toString();
    const QString stdNominalUnit = s.standardisation.value(QStringLiteral("nominalConc_Unit")).toString();
    const double stdNominal = s.standardisation.value(QStringLiteral("nominalConc")).toDouble();
    const QDateTime stdAt = dateOf(s.standardisation.value(QStringLiteral("createdAt")));
    const QDateTime titrantAt = s.titrant ? s.titrant->property("mupdatedAt").toDateTime() : QDateTime();
    rows << RunReportRow{"Titrant Nominal Concentration", "Titrant N Conc.", when(link, ReportValues::sigFigsDec(stdNominal)), stdNominalUnit, 14, 0}
         << RunReportRow{"Titrant Actual Concentration", "Titrant A Conc.", when(link, stdActual), stdResultUnits, 15, 0}
         << RunReportRow{"Titrant Standardization Date & Time", "", when(link, ReportValues::dateTime(stdAt, s.dateFormat, s.timeFormat)), "", 16, 0}
         << RunReportRow{"", "StandardizeDate", when(link, ReportValues::date(stdAt, s.dateFormat)), "", 17, 0}
         << RunReportRow{"", "StandardizeTime", when(link, ReportValues::time(stdAt, s.timeFormat)), "", 18, 0}
         << RunReportRow{"Titer Ratio", "Titer Ratio", when(link, titerRatio(stdActual.toDouble(), stdResultUnits, stdNominal, stdNominalUnit)), "", 19, 0}
         << RunReportRow{"Titrant Concentration", "Titrant Conc.", when(!link, ReportValues::sigFigsDec(s.number(s.titrant, "titrantConcentrationValue"))), s.titrantConcentrationUnit, 20, 0}
         << RunReportRow{"Titrant Input Date & Time", "", when(!link, ReportValues::dateTime(titrantAt, s.dateFormat, s.timeFormat)), "", 21, 0}
         << RunReportRow{"", "Titrant Date", when(!link, ReportValues::date(titrantAt, s.dateFormat)), "", 22, 0}
         << RunReportRow{"", "Titrant Time", when(!link, ReportValues::time(titrantAt, s.timeFormat)), "", 23, 0}
         << RunReportRow{"Titration Technique", blank ? "Titration Technique" : "Titr Technique", when(blank || !mka, s.text(t, "titrationTechnique")), "", 24, 0}
         << RunReportRow{"Titration Type", "Titration Type", when(blank || !mka, type), "", 25, 0};
    if (!blank)
        rows << RunReportRow{"Blank Required", "Blank Required", when(mka || type == QLatin1String("Direct Titration"), blankRequired()), "", 26, 0};

    QVariant blankAt = nill;
    if (s.runType() == QLatin1String("Direct Blank"))
        blankAt = dateOf(s.run.value(QStringLiteral("mupdatedAt")));
    else if (!blank && s.number(t, "blankConcentration") != 0 && type == QLatin1String("Direct Titration"))
        blankAt = s.lastBlankInput;
    const bool hasBlankAt = blankAt.type() == QVariant::DateTime;
    rows << RunReportRow{"Blank Input Date & Time", "", when(hasBlankAt, ReportValues::dateTime(blankAt.toDateTime(), s.dateFormat, s.timeFormat)), "", 27, 0}
         << RunReportRow{"", "Blank Date", when(hasBlankAt, ReportValues::date(blankAt.toDateTime(), s.dateFormat)), "", 28, 0}
         << RunReportRow{"", "Blank Time", when(hasBlankAt, ReportValues::time(blankAt.toDateTime(), s.timeFormat)), "", 29, 0};
    if (blank) {
        for (int i = 7; i < rows.size(); ++i)
            rows[i].shortPosition = 0;
        return rows;
    }

    static const QStringList massUnits = {"mg/100mL", "mg/L", "g/100mL", "g/L", "ppm", "ppb", "oz/gal", "% w/v",
                                          "mg/100g", "mg/kg", "g/100g", "g/kg", "ppm by weight", "% w/w"};
    static const QStringList densityByWeight = {"M", "mM", "mg/100mL", "mg/L", "g/100mL", "g/L", "ppm", "ppb", "oz/gal", "% w/v", "mol/kg"};
    static const QStringList densityOther = {"mol/kg", "mmol/kg", "mmol/g", "mg/100g", "mg/kg", "g/100g", "g/kg",
                                             "ppm by weight", "% w/w", "TAN", "TBN"};
    const bool byWeight = amount == QLatin1String("Fixed Weight") || amount == QLatin1String("Variable Weight");
    const bool fixedAmount = amount == QLatin1String("Fixed Weight") || amount == QLatin1String("Fixed Volume");
    const QString control = s.text(t, "titrationProcessControl");
    const bool userControl = control == QLatin1String("User Defined");
    rows << RunReportRow{"Reagent Reaction Ratio", "Rgnt Rxn Ratio", when(back, ReportValues::fixed(s.number(t, "reagentReactionRatio"), 3)), "", 30, 0}
         << RunReportRow{"Titrant Reaction Ratio", "Ttrnt Rxn Ratio", when(back, ReportValues::fixed(s.number(t, "titrantReactionRatio"), 3)), "", 31, 0}
         << RunReportRow{"Reagent Amount", "Reagent Amount", when(back, reagentAmount()), "", 32, 0}
         << RunReportRow{"Reagent Concentration", "Reagent Conc.", when(back && reagent == QLatin1String("Manual Volume"), ReportValues::sigFigsDec(s.number(t, "reagentConcentration"))), "M", 33, 0}
         << RunReportRow{"Reagent Volume", "Reagent Volume", when(back && reagent == QLatin1String("Manual Volume"), ReportValues::fixed(s.number(t, "reagentVolume"), 3)), "mL", 34, 0}
         << RunReportRow{"Reagent Molecular Weight", "Reagent MW", when(back && reagent == QLatin1String("Manual Weight"), ReportValues::fixed(s.number(t, "reagentMolecularWeight"), 3)), "g/mol", 35, 0}
         << RunReportRow{"Reagnet Purity", "Reagent Purity", when(back && reagent == QLatin1String("Manual Weight"), ReportValues::fixed(s.number(t, "reagentPurity"), 1)), "%", 36, 0}
         << RunReportRow{"Reaction Ratio", "Reaction Ratio",
                         when(!mka && type == QLatin1String("Direct Titration") && units != QLatin1String("Consumption mmol")
                                  && units != QLatin1String("F*Consumption mmol"),
                              ReportValues::fixed(s.number(t, "reactionRatio"), 3)), "", 37, 0}
         << RunReportRow{"Sample Molecular Weight", "Sample MW", when(oneOf(units, massUnits), ReportValues::fixed(s.number(t, "sampleMolecularWeight"), 3)), "g/mol", 38, 0}
         << RunReportRow{"Sample Amount", "Sample Amount", fixedAmount ? ReportValues::sigFigsDec(s.number(t, "sampleAmountValue")) : amount, sampleAmountUnit(), 39, 7}
         << RunReportRow{"Sample Density", "Sample Density", when(oneOf(units, byWeight ? densityByWeight : densityOther), ReportValues::fixed(s.number(t, "sampleDensity"), 3)), "g/cm^3", 40, 0}
         << RunReportRow{"Titrant Pre-dose Volume (Titration)", "Titrant Predose", when(!mka, ReportValues::fixed(s.number(t, "preDoseTitrantVolume"), 3)), "mL", 41, 0}
         << RunReportRow{"Total Solution Volume", "Total Sol.Vol", when(mka, ReportValues::fixed(s.number(t, "totalSolutionVolume"), 3)), "mL", 42, 8}
         << RunReportRow{"Titrant Max Volume", "Titrant Max Vol", ReportValues::fixed(s.number(t, "maxTotalTitrantVolume"), 3), "mL", 43, 0}
         << RunReportRow{"Titration Process Control (Titration)", "Titrate Control", when(!mka && !userControl, control), "", 44, 9}
         << RunReportRow{"Process Control", "Process Control", when(!mka && userControl, control), "", 45, 10}
         << RunReportRow{"MKA Process Control", "Process Control", when(mka, s.text(t, "mkaProcessControl")), "", 46, 11};
    return rows;
}

QVector<RunReportRow> TitrationReport::cycleRows(const QObject *c) const
{
    if (s.isMka())
        return mkaCycleRows(c);
    if (isBlank())
        return blankCycleRows(c);
    const QObject *t = s.titration;
    const int n = endPoints();
    const QString units = s.text(t, "resultUnits");
    const QString display = s.text(t, "displayUnits");
    const int decimals = endPointDecimals(s, display);
    const bool preset = s.text(t, "titrationTechnique") == QLatin1String("Preset End Pt.");
    const QString amount = s.text(t, "sampleAmount");
    const bool variableReagent = s.text(t, "titrationType") == QLatin1String("Back Titration")
        && s.text(t, "reagentAmount") == QLatin1String("Manual Weight")
        && s.text(t, "reagentWeightType") == QLatin1String("Variable Weight");
    auto num = [c](const char *key) { return c->property(key).toDouble(); };
    auto ep = [&](const char *setKey, const char *cycleKey) {
        return ReportValues::fixed(preset ? s.number(t, setKey) : num(cycleKey), decimals);
    };
    return {
        {"Cycle Number", "Cycle Number", c->property("cycleNo").toInt(), "", 1, 1},
        {"Excluded", "Excluded", c->property("inclInAvg").toInt() != 0 ? "No" : "Yes", "", 2, 2},
        {"Reagent Amount", "Reagent Amount", when(variableReagent, ReportValues::sigFigsDec(num("reagentAmountValue"))), "gram", 3, 3},
        {"Sample Amount", "Sample Amount",
         when(amount == QLatin1String("Variable Weight") || amount == QLatin1String("Variable Volume"),
              ReportValues::sigFigsDec(num("sampleAmountValue"))), sampleAmountUnit(), 4, 4},
        {"Sample Concentration (1)", "Sample Conc. 1", ReportValues::sigFigsDec(num("calCon")), units, 5, 5},
        {"Sample Concentration (2)", "Sample Conc. 2", when(n >= 2, ReportValues::sigFigsDec(num("calCon2"))), units, 6, 6},
        {"Sample Concentration (3)", "Sample Conc. 3", when(n >= 3, ReportValues::sigFigsDec(num("calCon3"))), units, 7, 7},
        {"End Point Volume (1)", "EP Volume 1", ReportValues::fixed(num("veqp"), 3), "mL", 8, 8},
        {"End Point Volume (2)", "EP Volume 2", when(n >= 2, ReportValues::fixed(num("veqp2"), 3)), "mL", 9, 9},
        {"End Point Volume (3)", "EP Volume 3", when(n >= 3, ReportValues::fixed(num("veqp3"), 3)), "mL", 10, 10},
        {"End Point Value (1)", "EP Value 1", ep("endPointValues", "epValue1"), display, 11, 11},
        {"End Point Value (2)", "EP Value 2", when(n >= 2, ep("endPointValues_Second", "epValue2")), display, 12, 12},
        {"End Point Value (3)", "EP Value 3", when(n >= 3, ReportValues::fixed(s.number(t, "endPointValues_Third"), decimals)), display, 13, 13},
        {"Initial pH", "Initial pH", when(display == QLatin1String("pH"), c->property("initialpH").toString()), "", 14, 14},
        {"Temperature", "Temperature", cycleTemperature(s, c), temperatureUnit(s), 15, 0},
        {"Titration Duration (Minutes)", "Duration (Min)", cycleDuration(c), "", 16, 0},
    };
}

QVector<RunReportRow> TitrationReport::blankCycleRows(const QObject *c) const
{
    const bool direct = s.runType() == QLatin1String("Direct Blank");
    const QString value = ReportValues::sigFigsDec(c->property("calCon").toDouble());
    const QString display = s.text(s.titration, "displayUnits");
    return {
        {"Cycle Number", "Cycle Number", c->property("cycleNo").toInt(), "", 1, 1},
        {"Excluded", "Excluded", c->property("inclInAvg").toInt() != 0 ? "No" : "Yes", "", 2, 2},
        {"Blank Value", "Blank Value", when(direct, value), "mmol", 3, 3},
        {"Back Blank Value (Reagent Value)", "Reagent Value", when(!direct, value), "mmol", 4, 4},
        {"End Point Volume", "EP Volume", ReportValues::fixed(c->property("veqp").toDouble(), 3), "mL", 5, 5},
        {"End Point Value", "EP Value", ReportValues::fixed(c->property("epValue1").toDouble(), endPointDecimals(s, display)), display, 6, 6},
        {"Temperature", "Temperature", cycleTemperature(s, c), temperatureUnit(s), 7, 0},
        {"Titration Duration (Minutes)", "Duration (Min)", cycleDuration(c), "", 8, 0},
    };
}

QVector<RunReportRow> TitrationReport::mkaCycleRows(const QObject *c) const
{
    const QString amount = s.text(s.titration, "sampleAmount");
    return {
        {"Cycle Number", "Cycle Number", c->property("cycleno").toInt(), "", 1, 1},
        {"Excluded", "Excluded", c->property("inclAvg").toInt() != 0 ? "No" : "Yes", "", 2, 2},
        {"Sample Amount", "Sample Amount",
         when(amount == QLatin1String("Variable Weight") || amount == QLatin1String("Variable Volume"),
              ReportValues::sigFigsDec(c->property("sampleAmountValue").toDouble())), sampleAmountUnit(), 3, 3},
        {"Sample Concentration", "Sample Conc.", ReportValues::sigFigsDec(c->property("avgCalconc").toDouble()), s.text(s.titration, "resultUnits"), 4, 4},
        {"Precision Level", "Precision", ReportValues::fixed(c->property("avgPrecision").toDouble(), 1), "%", 5, 5},
        {"Spike Recovery", "Spike Recovery", ReportValues::fixed(c->property("spikeRecovery").toDouble(), 1), "%", 6, 6},
        {"Electrode Slope", "Fit Slope", ReportValues::fixed(c->property("slope").toDouble(), 1), "mV/dec", 7, 7},
        {"Temperature", "Temperature", cycleTemperature(s, c), temperatureUnit(s), 8, 0},
        {"Titration Duration (Minutes)", "Duration (Min)", cycleDuration(c), "", 9, 0},
    };
}

QVector<RunReportRow> TitrationReport::summaryRows() const
{
    const QString units = s.text(s.titration, "resultUnits");
    const QString temperature = meanTemperature(s);
    const QString duration = meanDuration(s);
    const QString unit = temperatureUnit(s);
    if (s.isMka())
        return {
            {"Average Sample Concentration", "Average Conc.", RunReportSource::part(s.avgConc, 0), units, 1, 1},
            {"RSD", "RSD", RunReportSource::part(s.rsd, 0), "", 2, 2},
            {"Temperature", "Temperature", temperature, unit, 3, 0},
            {"Titration Duration (Minutes)", "Duration (Min)", duration, "", 4, 0},
        };
    if (isBlank()) {
        const bool direct = s.runType() == QLatin1String("Direct Blank");
        const QString average = RunReportSource::part(s.avgConc, 0);
        return {
            {"Average Blank Value", "Average Blank", when(direct, average), "mmol", 1, 1},
            {"Average Blank Value", "Average Reagent", when(!direct, average), "mmol", 2, 2},
            {"RSD", "RSD", RunReportSource::part(s.rsd, 0), "", 3, 3},
            {"Temperature", "Temperature", temperature, unit, 4, 0},
            {"Titration Duration (Minutes)", "Duration (Min)", duration, "", 5, 0},
        };
    }
    const int n = endPoints();
    QVector<RunReportRow> rows;
    for (int i = 0; i < 3; ++i)
        rows.append({QStringLiteral("Average Sample Concentration (%1)").arg(i + 1), QStringLiteral("Average Conc. %1").arg(i + 1),
                     when(i < n, RunReportSource::part(s.avgConc, i)), units, i + 1, i + 1});
    for (int i = 0; i < 3; ++i)
        rows.append({QStringLiteral("RSD (%1)").arg(i + 1), QStringLiteral("RSD (%1)").arg(i + 1),
                     when(i < n, RunReportSource::part(s.rsd, i)), "", i + 4, i + 4});
    rows.append({"Temperature", "Temperature", temperature, unit, 7, 0});
    rows.append({"Titration Duration (Minutes)", "Duration (Min)", duration, "", 8, 0});
    return rows;
}

QString TitrationReport::curves(const RunReportSource &s, const QString &yUnit)
{
    QStringList points;
    for (const QObject *c : s.cycles)
        points << c->property("graphPoints").toString();
    return points.join(QStringLiteral("+++++")) + QStringLiteral("=====") + yUnit;
}

QString TitrationReport::mkaAdditions() const
{
    QString text;
    int cycle = s.additions.isEmpty() ? 0 : s.additions.first()->property("cycleno").toInt();
    for (const QObject *a : s.additions) {
        if (a->property("cycleno").toInt() != cycle) {
            text += QStringLiteral("++++++");
            cycle = a->property("cycleno").toInt();
        }
        auto one = [a](const char *key) { return ReportValues::fixed(a->property(key).toDouble(), 1); };
        const double conc = a->property("calConc").toDouble();
        const double precision = a->property("precision").toDouble();
        text += QStringList{QString::number(a->property("additionNo").toInt()), ReportValues::fixed(a->property("volume").toDouble(), 3),
                            one("mVvalue"), one("drift"), one("slope"), one("e0"),
                            ReportValues::sigFigsDec(conc, 4, 5).toDouble() == 0 ? QString() : ReportValues::sigFigsDec(conc, 4, 5),
                            ReportValues::fixed(precision, 1).toDouble() == 999 ? QString() : ReportValues::fixed(precision, 1)}
                    .join(QLatin1Char('|'))
            + QLatin1Char(',');
    }
    return text;
}

QString TitrationReport::graphString() const
{
    if (s.isMka())
        return mkaAdditions() + QStringLiteral("*****") + s.electrodeType();
    return curves(s, s.electrodeType() == QLatin1String("pH") ? s.text(s.titration, "displayUnits") : QStringLiteral("mV"));
}

RunReportText TitrationReport::build() const
{
    QVector<QVector<RunReportRow>> cycles;
    for (const QObject *c : s.cycles)
        cycles.append(cycleRows(c));
    return {ReportRows::runText(methodRows(), cycles, summaryRows(), s.electrodeType()), graphString()};
}
