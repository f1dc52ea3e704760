#pragma once

#include "reports/reportrows.h"
#include "reports/runreportsource.h"

// The report of a titration: method rows, one group of rows per cycle and
// the summary rows, for ordinary runs, blank runs ("Direct Blank",
// "Back Blank") and known-addition runs ("ISE-MKA"), with the curve text.
// Rows that don't apply to the run carry the value "NILL" and are dropped.
class TitrationReport
{
public:
    explicit TitrationReport(const RunReportSource &source);

    RunReportText build() const;

    QVector<RunReportRow> methodRows() const;
    QVector<RunReportRow> cycleRows(const QObject *cycle) const;
    QVector<RunReportRow> summaryRows() const;
    QString graphString() const;

    // Rows shared with the standardisation report.
    // Rows 1 to 7; without the sample id row when `sampleId` is invalid.
    static QVector<RunReportRow> headRows(const RunReportSource &s, const QVariant &sampleId);
    static QVector<RunReportRow> calibrationRows(const RunReportSource &s);
    static QString temperatureUnit(const RunReportSource &s);
    static QString meanTemperature(const RunReportSource &s);
    static QString meanDuration(const RunReportSource &s);
    static QString cycleTemperature(const RunReportSource &s, const QObject *cycle);
    static QString cycleDuration(const QObject *cycle);
    static QString curves(const RunReportSource &s, const QString &yUnit);
    // Decimals of end-point values: the electrode's for a pH electrode shown
    // in pH, else 1.
    static int endPointDecimals(const RunReportSource &s, const QString &displayUnit);
    // The titrant's actual concentration over its nominal one, in one unit.
    static QString titerRatio(double actual, const QString &resultUnits, double nominal, const QString &nominalUnit);

private:
    bool isBlank() const;
    bool linked() const;
    int endPoints() const;
    QVector<RunReportRow> mkaCycleRows(const QObject *cycle) const;
    QVector<RunReportRow> blankCycleRows(const QObject *cycle) const;
    QString sampleAmountUnit() const;
    QString blankRequired() const;
    QString reagentAmount() const;
    QString mkaAdditions() const;

    const RunReportSource &s;
};
