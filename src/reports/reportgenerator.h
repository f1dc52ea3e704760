#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QStringList>

// One stored report row (`reportSetupTable`) as the generator needs it.
struct StoredReport
{
    int logId = 0;
    QString reportType; // "Titration", "Standardization", "Calibration", "Measurement"
    QString reportString;
    QString graphString;
    QByteArray images[5];
    QDateTime logTimeStamp;
    int standardizationId = 0;
};

// Turns stored report rows into files in the staging folder of their kind
// (PDF, the text report as CSV, a run's raw curves) or into the text of the
// receipt printer. It never reads the database: everything comes out of the
// row's texts and images.
class ReportGenerator
{
public:
    enum class Form { Long, Short };
    // "Short" and "short" are the short form; anything else is the long one.
    static Form formOf(const QString &format);

    ReportGenerator(const QString &serialNumber, const QString &model);

    // Each returns the full path of the file written, or "" when it failed.
    QString createTitrationPdf(const StoredReport &report) const;
    QString createTitrationCsv(const StoredReport &report, Form form) const;
    QStringList createRawCycleData(const StoredReport &report) const;
    QString createCalMeasurePdf(const StoredReport &report) const;
    QString createCalMeasureCsv(const StoredReport &report) const;

    // The text report of a run: for a file, cells joined by " , "; for the
    // printer, " : " and the title indented.
    static QString runText(const StoredReport &report, Form form, bool forPrinter);
    // The text report of a calibration or a reading.
    QString meterText(const StoredReport &report, bool forPrinter) const;

private:
    QString stagedPath(const StoredReport &report, const QString &name) const;

    QString m_serial;
    QString m_model;
};
