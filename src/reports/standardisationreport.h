#pragma once

#include "reports/reportrows.h"
#include "reports/runreportsource.h"

// The report of a titrant standardisation: the titrant and its standard,
// one group of rows per cycle, the average concentration with its titer
// ratio, and the curves.
class StandardisationReport
{
public:
    explicit StandardisationReport(const RunReportSource &source);

    RunReportText build() const;

    QVector<RunReportRow> methodRows() const;
    QVector<RunReportRow> cycleRows(const QObject *cycle) const;
    QVector<RunReportRow> summaryRows() const;

private:
    const RunReportSource &s;
};
