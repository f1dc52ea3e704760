#pragma once

#include <QDateTime>
#include <QJsonObject>
#include <QObject>
#include <QPointer>
#include <QSqlQuery>
#include <QString>
#include <QStringList>
#include <QVariantList>

#include <functional>

class Printer;
class USBDisk;

// "reportController" of the screens: the stored report rows of the logs as
// PDF and CSV files on the USB disk or as text on the receipt printer, and
// screenshots. Files are written into a staging folder of their kind first
// and then moved to the disk; what could not be moved stays staged for the
// next export. The shell hands it the window to capture (a QQuickWindow,
// kept as a QObject so that the controllers stay free of Qt Quick).
class ReportController : public QObject
{
    Q_OBJECT
    // "Short" / "short": the summary alone; "Long" / "All": with the cycles.
    Q_PROPERTY(QString fileType READ fileType WRITE setFileType NOTIFY valueChanged)
    // Text output to a file (true) or to the receipt printer (false).
    Q_PROPERTY(bool isCSV READ isCSV WRITE setIsCSV NOTIFY valueChanged)
    Q_PROPERTY(int dateFormat READ dateFormat NOTIFY valueChanged)
    Q_PROPERTY(int timeFormat READ timeFormat NOTIFY valueChanged)
    Q_PROPERTY(QVariantList titrationcycles READ titrationcycles NOTIFY valueChanged)

public:
    // What a report shows of the instrument, read at each export.
    struct Instrument
    {
        QString model;        // "Vantor Pro V400 ..."
        QString serialNumber; // "" when none is stored
        int dateFormat = 0;   // the instrument's date and time settings
        int timeFormat = 0;
    };
    using InstrumentSource = std::function<Instrument()>;

    // What one export did, for the console and the tests.
    struct Outcome
    {
        int recordsFound = 0;
        QStringList filesWritten; // staged files, by full path
        bool moved = false;       // the staged files reached the disk
        bool printed = false;
        QString error;
    };

    explicit ReportController(QObject *parent = nullptr);
    ReportController(InstrumentSource instrument, Printer *printer, USBDisk *disk, QObject *parent = nullptr);

    void loadImageCapturingWindow(QObject *window) { m_window = window; }
    QObject *capturingWindow() const { return m_window; }

    QString fileType() const { return m_fileType; }
    void setFileType(const QString &fileType);
    bool isCSV() const { return m_isCSV; }
    void setIsCSV(bool isCSV);
    int dateFormat() const { return m_dateFormat; }
    int timeFormat() const { return m_timeFormat; }
    QVariantList titrationcycles() const { return m_titrationcycles; }

    // The last export's outcome.
    const Outcome &lastOutcome() const { return m_outcome; }
    // Renders into the staging folders only (the console's export): no
    // disk, no printer, no move.
    void setStageOnly(bool stageOnly) { m_stageOnly = stageOnly; }

    // The newest serial number stored in `systemInfo` ("" when none is known).
    static QString storedSerialNumber();
    // The staging folder of a kind ("Titration Log"...), full path.
    static QString stagingFolder(const QString &reportFor);
    // The disk's folder of a kind ("/VantorPro/TitrationReport/").
    static QString diskFolder(const QString &reportFor);

public slots:
    // A batch export or print of the logs: the screens' request object
    // (exportOf, fileType, format, exportBy, record limits, dates).
    void exportInput(const QJsonObject &params);
    // One report, from a summary screen: fileType "CSV", "Report" or "PDF";
    // reportFor "Titration Log", "Titrant Log", "Calibration Log" or
    // "Direct Measure Log".
    void exportReportFromSummary(int logId, const QString &fileType, const QString &format, const QString &reportFor);
    // Renders every row of a prepared, executed query.
    void fetchReportValues(QSqlQuery query, const QString &fileType, const QString &format, const QString &reportFor);
    // Moves the staged files of a kind (or "All Logs") to the disk; false
    // when the disk was not ready or a file could not be moved.
    bool moveReportsToUSB(const QString &reportType);
    // A method's settings as a text report, to the disk or the printer.
    void methodTextReport(int id, const QString &electrodeObj, const QString &titrantObj, const QString &titrationObj,
                          const QString &setupObj, const QString &custumObject, const QString &reportValueObject,
                          const QDateTime &mUpdatedAt, const QString &methodName);
    void setDateAndTimeFormat();
    // The screen into the USB disk's screenshot folder; false when it could
    // not be saved (no disk, the disk went away, a failed write).
    bool handleScreenShotImage();

    QString getSigFigs(double num, int digit) const;
    QString getFormattedDateString(const QDateTime &value) const;
    QString getFormattedTimeString(const QDateTime &value) const;
    QString getPDFformattedDateTimeString(const QDateTime &value) const;
    QString returnTextSpace(const QString &text, int width) const;
    QString returnBuildNumber() const;
    QString iseTypeShortFormat(const QString &name) const;

signals:
    void valueChanged();
    void showPopupMultiInput(const QString &popupState, int logCount, const QString &fileName);
    void dismissPopup(const QString &popupState);

private:
    void runQuery(QSqlQuery &query, const QString &fileType, const QString &format, const QString &reportFor);
    void finish(const QString &fileType, const QString &moveKind);

    InstrumentSource m_instrument;
    QPointer<Printer> m_printer;
    QPointer<USBDisk> m_disk;
    QPointer<QObject> m_window;
    QString m_fileType = QStringLiteral("Short");
    bool m_isCSV = true;
    bool m_stageOnly = false;
    int m_dateFormat = 0;
    int m_timeFormat = 0;
    QVariantList m_titrationcycles;
    Outcome m_outcome;
};
