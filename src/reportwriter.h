#pragma once

#include <QObject>
#include <QString>

#include <functional>

class ReportModel;
struct RunReportSource;

// Writes the report row of a stored run, calibration or reading: it reads
// the log entry (the frozen method and run), the stored cycles or points and
// the instrument settings, builds the rows (TitrationReport,
// StandardisationReport, MeterReport) and hands them with the curves and the
// cycle images to `ReportModel`, which stores them.
class ReportWriter : public QObject
{
    Q_OBJECT

public:
    struct Settings
    {
        QString instrumentName;
        QString buildNumber;
        int dateFormat = 0;
        int timeFormat = 0;
        int temperatureFormat = 0;
    };
    using SettingsSource = std::function<Settings()>;
    using StandardisedCheck = std::function<bool(int methodId)>;

    ReportWriter(SettingsSource settings, StandardisedCheck standardised, QObject *parent = nullptr);

    ReportModel *model() const { return m_model; }

    // A titration or standardisation log entry (TitrationLogModel or
    // StandardisationLogModel) with its summary figures in hand; the sample
    // id the run was made with ("" for the one of the entry).
    bool storeRunReport(QObject *logEntry, const QString &sampleId);
    // "Calibration" with the calibration's id, "Measurement" with the
    // measurement log entry's id.
    bool storeMeterReport(const QString &reportType, int id);

private:
    bool storeTitration(int logId, const QString &avgConc, const QString &rsd, const QString &sampleId);
    bool storeStandardisation(int logId, const QString &avgConc, const QString &rsd);
    bool storeCalibration(int calibrationId);
    bool storeMeasurement(int logId);
    void fillSettings(RunReportSource &source) const;
    bool write(int logId, const QString &type, const QDateTime &at);

    ReportModel *m_model = nullptr;
    SettingsSource m_settings;
    StandardisedCheck m_standardised;
};
