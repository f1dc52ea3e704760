#pragma once

#include <QJsonArray>
#include <QString>
#include <QVariant>
#include <QVector>

// One row of a run's report (titration, blank run, standardisation): the
// heading of the PDF, the heading of the text report, the value and its unit,
// and the row's place in the long and in the short form (0: the short form
// leaves it out).
struct RunReportRow
{
    QString longHeading;
    QString shortHeading;
    QVariant value;
    QString unit;
    int longPosition = 0;
    int shortPosition = 0;
};

// One row of a calibration or measurement report, carrying its own PDF
// layout: heading at x 72, value at x 280, both at y; flag 1 asks for a
// blank line after the row in the text report.
struct MeterReportRow
{
    QString heading;
    int y = 0;
    QString value;
    int flag = 0;
};

// A run's report text, parsed back: its method rows, one group of rows per
// cycle, the summary rows and the electrode type.
struct StoredRunReport
{
    bool ok = false;
    QJsonArray method;
    QVector<QJsonArray> cycles;
    QJsonArray summary;
    QString electrodeType;
};

// The stored form of report rows. A run's text is the method rows, "+++++",
// the cycle groups joined by "=====", "+++++", the summary rows, "*****" and
// the electrode type; each group is a JSON array of six-field rows. A meter
// report is one JSON array of seven-field rows.
namespace ReportRows {
// The value of a row that doesn't apply to the run; such rows are dropped.
extern const QString notApplicable;

QString group(const QVector<RunReportRow> &rows);
QString runText(const QVector<RunReportRow> &method, const QVector<QVector<RunReportRow>> &cycles,
                const QVector<RunReportRow> &summary, const QString &electrodeType);
QString meterText(const QVector<MeterReportRow> &rows);

// Reads a run's text with a JSON reader: a value holding commas, brackets,
// quotes or the separators themselves comes back as it went in.
StoredRunReport parseRun(const QString &text);
QJsonArray parseMeter(const QString &text);
} // namespace ReportRows
