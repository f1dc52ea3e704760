#include "controller/reportcontroller.h"

#include "meter/cmeasurementise.h"
#include "reports/methodreport.h"
#include "reports/reportfiles.h"
#include "reports/reportgenerator.h"
#include "system/clock.h"
#include "system/printer.h"
#include "system/usbdir.h"
#include "system/screenshotfolder.h"
#include "system/usbdisk.h"

#include <QDebug>
#include <QJsonDocument>
#include <QLocale>
#include <QRegularExpression>
#include <QSqlError>
#include <QHash>

#include <limits>
#include <QImage>
#include <QQuickWindow>

namespace {
// The kinds of the logs in the order of a batch, with their report type and
// the id column of their rows.
struct Kind {
    const char *name;
    const char *reportType;
    const char *idColumn;
};
constexpr Kind kKinds[] = {
    {"Titration Log", "Titration", "titrationId"},
    {"Titrant Log", "Standardization", "standardizationId"},
    {"Direct Measure Log", "Measurement", "measurementId"},
    {"Calibration Log", "Calibration", "calibrationId"},
};
const QString allLogs = QStringLiteral("All Logs");

const Kind *kindOf(const QString &name)
{
    for (const Kind &k : kKinds) {
        if (name == QLatin1String(k.name))
            return &k;
    }
    // The summaries' own words for the two meter logs.
    if (name == QLatin1String("Measurement Log") || name == QLatin1String("Direct Measurement Log"))
        return &kKinds[2];
    if (name == QLatin1String("Standardization Log"))
        return &kKinds[1];
    return nullptr;
}

bool isRunKind(const Kind *kind)
{
    return kind == &kKinds[0] || kind == &kKinds[1];
}

// A number of the request, given as a number or as a numeric text.
int requestInt(const QJsonObject &params, const char *key, int fallback)
{
    const QJsonValue v = params.value(QLatin1String(key));
    if (v.isDouble())
        return v.toInt();
    bool ok = false;
    const int n = v.toString().trimmed().toInt(&ok);
    return ok ? n : fallback;
}

// The rows' time stamps are written by Qt ("2026-11-25T17:02:00.000"); the
// date range compares their first ten characters.
const char *selectRows = "SELECT * FROM reportSetupTable WHERE substr(logTimeStamp, 1, 10) BETWEEN :from AND :to "
                         "AND reportType LIKE :type AND %1 BETWEEN :firstLimit AND :limit ORDER BY datetime(logTimeStamp), id";
} // namespace

ReportController::ReportController(QObject *parent)
    : ReportController(InstrumentSource(), nullptr, USBDisk::instance(), parent)
{
}

ReportController::ReportController(InstrumentSource instrument, Printer *printer, USBDisk *disk, QObject *parent)
    : QObject(parent)
    , m_instrument(std::move(instrument))
    , m_printer(printer)
    , m_disk(disk)
{
}

void ReportController::setFileType(const QString &fileType)
{
    if (fileType == m_fileType)
        return;
    m_fileType = fileType;
    emit valueChanged();
}

void ReportController::setIsCSV(bool isCSV)
{
    if (isCSV == m_isCSV)
        return;
    m_isCSV = isCSV;
    emit valueChanged();
}

bool ReportController::handleScreenShotImage()
{
    auto *window = qobject_cast<QQuickWindow *>(m_window.data());
    QString error;
    const QString file = ScreenshotFolder::save(window ? window->grabWindow() : QImage(), m_disk, &error);
    qDebug() << "ReportController: screenshot" << (file.isEmpty() ? error : file);
    return !file.isEmpty();
}

QString ReportController::storedSerialNumber()
{
    QSqlQuery query;
    // Rows that never learnt the serial say "UNKNOWN" or nothing.
    if (query.exec(QStringLiteral("SELECT mfgSerialNum FROM systemInfo ORDER BY datetime(timestamp) DESC, rowid DESC"))) {
        while (query.next()) {
            const QString serial = query.value(0).toString();
            if (!serial.isEmpty() && serial != QLatin1String("UNKNOWN"))
                return serial;
        }
    }
    return QString();
}

QString ReportController::stagingFolder(const QString &reportFor)
{
    return ReportFiles::stagingFolder(reportFor);
}

QString ReportController::diskFolder(const QString &reportFor)
{
    const QString folder = ReportFiles::folderOf(reportFor);
    return folder.isEmpty() ? QString() : QStringLiteral("/VantorPro/") + folder + QLatin1Char('/');
}

void ReportController::exportInput(const QJsonObject &params)
{
    m_outcome = Outcome();
    QString from = QStringLiteral("2000-01-01");
    QString to = QStringLiteral("2030-12-31");
    const QString exportOf = params.value(QLatin1String("exportOf")).toString();
    const QString fileType = params.value(QLatin1String("fileType")).toString();
    const QString format = params.value(QLatin1String("format")).toString();
    const QString exportBy = params.value(QLatin1String("exportBy")).toString();
    int first = requestInt(params, "recordOffsetMin", 0);
    int last = requestInt(params, "recordOffsetMax", std::numeric_limits<int>::max());
    if (exportBy != QLatin1String("All") && exportBy != QLatin1String("Data Set")) {
        const QString lastDays = params.value(QLatin1String("lastDays")).toString();
        if (!lastDays.isEmpty()) {
            const QDate today = Clock::now().date();
            const int days = lastDays == QLatin1String("10") ? 10 : lastDays == QLatin1String("30") ? 30 : 60;
            from = today.addDays(-days).toString(Qt::ISODate);
            to = today.toString(Qt::ISODate);
        } else {
            // A date left empty keeps its end of the default range.
            const QString given[2] = {params.value(QLatin1String("fromDate")).toString(),
                                      params.value(QLatin1String("toDate")).toString()};
            from = given[0].isEmpty() ? from : given[0];
            to = given[1].isEmpty() ? to : given[1];
        }
    }
    const char *limitKeys[][2] = {{"titrationLimitMin", "titrationLimitMax"},
                                  {"standLimitMin", "standLimitMax"},
                                  {"measureLimitMin", "measureLimitMax"},
                                  {"calLimitMin", "calLimitMax"}};
    if (exportOf != allLogs && !kindOf(exportOf)) {
        qDebug() << "Error: Unknown report type requested." << exportOf;
        m_outcome.error = QStringLiteral("unknown report type");
        return;
    }
    for (int i = 0; i < 4; ++i) {
        const Kind &kind = kKinds[i];
        if (exportOf != allLogs && kindOf(exportOf) != &kind)
            continue;
        int firstLimit = first;
        int limit = last;
        if (exportOf == allLogs) {
            const int min = requestInt(params, limitKeys[i][0], -1);
            const int max = requestInt(params, limitKeys[i][1], -1);
            if (min != -1 && max != -1) {
                firstLimit = min;
                limit = max;
            }
        }
        QSqlQuery query;
        query.prepare(QString::fromLatin1(selectRows).arg(QLatin1String(kind.idColumn)));
        query.bindValue(QStringLiteral(":from"), from);
        query.bindValue(QStringLiteral(":to"), to);
        query.bindValue(QStringLiteral(":type"), QLatin1String(kind.reportType));
        // Two numbers given the wrong way round still name the same records.
        query.bindValue(QStringLiteral(":firstLimit"), qMin(firstLimit, limit));
        query.bindValue(QStringLiteral(":limit"), qMax(firstLimit, limit));
        runQuery(query, fileType, format, QLatin1String(kind.name));
    }
    finish(fileType, exportOf);
}

void ReportController::exportReportFromSummary(int logId, const QString &fileType, const QString &format, const QString &reportFor)
{
    m_outcome = Outcome();
    const Kind *kind = kindOf(reportFor);
    if (!kind) {
        qDebug() << "Error: Unknown report type requested." << reportFor;
        m_outcome.error = QStringLiteral("unknown report type");
        return;
    }
    QSqlQuery query;
    query.prepare(QStringLiteral("SELECT * FROM reportSetupTable WHERE %1 = :logId AND reportType = :type ORDER BY id DESC LIMIT 1")
                      .arg(QLatin1String(kind->idColumn)));
    query.bindValue(QStringLiteral(":logId"), logId);
    query.bindValue(QStringLiteral(":type"), QLatin1String(kind->reportType));
    runQuery(query, fileType, format, QLatin1String(kind->name));
    finish(fileType, QLatin1String(kind->name));
}

void ReportController::runQuery(QSqlQuery &query, const QString &fileType, const QString &format, const QString &reportFor)
{
    if (!query.exec()) {
        qDebug() << "ReportController: query failed" << query.lastError().text();
        emit showPopupMultiInput(QStringLiteral("noRecordFound"), 0, QString());
        return;
    }
    fetchReportValues(query, fileType, format, reportFor);
}

void ReportController::fetchReportValues(QSqlQuery query, const QString &fileType, const QString &format, const QString &reportFor)
{
    setDateAndTimeFormat();
    const Kind *kind = kindOf(reportFor);
    QVector<StoredReport> reports;
    while (kind && query.next()) {
        StoredReport r;
        r.logId = query.value(QLatin1String(kind->idColumn)).toInt();
        r.reportType = query.value(QStringLiteral("reportType")).toString();
        r.reportString = query.value(QStringLiteral("reportString")).toString();
        r.graphString = query.value(QStringLiteral("graphString")).toString();
        for (int i = 0; i < 5; ++i)
            r.images[i] = query.value(QStringLiteral("cycleImage%1").arg(i + 1)).toByteArray();
        r.logTimeStamp = query.value(QStringLiteral("logTimeStamp")).toDateTime();
        r.standardizationId = query.value(QStringLiteral("standardizationId")).toInt();
        reports.append(r);
    }
    if (reports.isEmpty()) {
        emit showPopupMultiInput(QStringLiteral("noRecordFound"), 0, QString());
        return;
    }
    m_outcome.recordsFound += reports.size();
    emit showPopupMultiInput(QStringLiteral("recordFound"), reports.size(), QString());

    const Instrument instrument = m_instrument ? m_instrument() : Instrument();
    const ReportGenerator generator(instrument.serialNumber, instrument.model);
    const bool text = fileType == QLatin1String("CSV");
    const bool toPrinter = text && !m_isCSV && !m_stageOnly;
    const ReportGenerator::Form form = ReportGenerator::formOf(format);
    QStringList &written = m_outcome.filesWritten;
    for (const StoredReport &r : reports) {
        if (toPrinter) {
            const QString receipt = isRunKind(kind) ? ReportGenerator::runText(r, form, true) : generator.meterText(r, true);
            m_outcome.printed = m_printer && m_printer->printReport(receipt);
            if (!m_outcome.printed)
                m_outcome.error = QStringLiteral("the printer is not ready");
            continue;
        }
        QString file;
        if (isRunKind(kind))
            file = text ? generator.createTitrationCsv(r, form) : generator.createTitrationPdf(r);
        else
            file = text ? generator.createCalMeasureCsv(r) : generator.createCalMeasurePdf(r);
        if (file.isEmpty())
            qDebug() << "ReportController: the report of" << reportFor << r.logId << "was not written";
        else
            written << file;
        if (text && isRunKind(kind))
            written << generator.createRawCycleData(r);
    }
}

void ReportController::finish(const QString &fileType, const QString &moveKind)
{
    qDebug() << "Report Created Time===================" << Clock::now().toString(Qt::ISODate);
    if (m_stageOnly)
        return;
    if (m_outcome.recordsFound == 0) {
        // "No Record Found" stays on show; what an earlier export left
        // staged still goes to a disk that is there.
        if (m_isCSV || fileType != QLatin1String("CSV"))
            m_outcome.moved = moveReportsToUSB(moveKind);
        return;
    }
    if (fileType == QLatin1String("CSV") && !m_isCSV) {
        if (m_outcome.printed && m_outcome.error.isEmpty())
            emit dismissPopup(QStringLiteral("printCompleted"));
        else
            emit showPopupMultiInput(QStringLiteral("printerNotReady"), 0, QString());
        return;
    }
    m_outcome.moved = moveReportsToUSB(moveKind);
    if (m_outcome.moved) {
        qDebug() << "USB unmount Time=========================" << Clock::now().toString(Qt::ISODate);
        emit dismissPopup(QStringLiteral("exportCompleted"));
    } else {
        emit showPopupMultiInput(QStringLiteral("usbNotReady"), 0, QString());
    }
}

bool ReportController::moveReportsToUSB(const QString &reportType)
{
    QStringList kinds;
    if (reportType == allLogs) {
        for (const Kind &k : kKinds)
            kinds << QLatin1String(k.name);
    } else if (kindOf(reportType)) {
        kinds << QLatin1String(kindOf(reportType)->name);
    } else {
        qDebug() << "Error: Unknown report type requested.";
        return false;
    }
    USBDir root(QStringLiteral("/VantorPro/"), m_disk);
    if (!m_disk || !root.isUsable() || m_disk->hasError()) {
        qDebug() << "Error: USB was not ready.";
        m_outcome.error = QStringLiteral("USB is not ready");
        return false;
    }
    QStringList failed;
    for (const QString &kind : kinds) {
        const QString target = USBDisk::resolve(diskFolder(kind));
        ReportFiles::moveAll(QDir(stagingFolder(kind)), target, &failed);
    }
    if (!failed.isEmpty() || !root.isUsable()) {
        qDebug() << "ReportController: not moved to the USB disk, kept for the next export:" << failed;
        m_outcome.error = QStringLiteral("the reports could not be moved to the USB disk");
        return false;
    }
    return true;
}

void ReportController::methodTextReport(int id, const QString &electrodeObj, const QString &titrantObj,
                                        const QString &titrationObj, const QString &setupObj, const QString &custumObject,
                                        const QString &reportValueObject, const QDateTime &mUpdatedAt,
                                        const QString &methodName)
{
    setDateAndTimeFormat();
    const Instrument instrument = m_instrument ? m_instrument() : Instrument();
    auto object = [](const QString &text) { return QJsonDocument::fromJson(text.toUtf8()).object(); };
    const MethodReport::Parts parts{object(electrodeObj), object(titrantObj), object(titrationObj), object(setupObj),
                                    object(custumObject)};
    const QDateTime now = Clock::now();
    QHash<QString, QString> filled{{"Titrator Model", instrument.model.mid(11)},
                                   {"Software Rev.", returnBuildNumber()},
                                   {"Report Date", getFormattedDateString(now)},
                                   {"Report Time", getFormattedTimeString(now)},
                                   {"Method Name", methodName}};
    const QString setupSerial = parts.setup.value(QLatin1String("mfgSerialNo")).toString();
    filled.insert(QStringLiteral("Serial Number"), setupSerial.isEmpty() ? instrument.serialNumber : setupSerial);
    if (mUpdatedAt.isValid())
        filled.insert(QStringLiteral("Method Edited"), getPDFformattedDateTimeString(mUpdatedAt));
    // The newest pH calibration, for a pH electrode's rows.
    QSqlQuery cal;
    if (cal.exec(QStringLiteral("SELECT id, mcreatedAt, avgSlope FROM calibrationTable WHERE electrodeType='pH' "
                                "ORDER BY datetime(mcreatedAt) DESC, id DESC LIMIT 1"))
        && cal.next()) {
        const QDateTime at = cal.value(1).toDateTime();
        filled.insert(QStringLiteral("Calibrate Log #"), cal.value(0).toString());
        filled.insert(QStringLiteral("Calibrate Date"), getFormattedDateString(at));
        filled.insert(QStringLiteral("Calibrate Time"), getFormattedTimeString(at));
        filled.insert(QStringLiteral("Slope Value"), QString::number(cal.value(2).toDouble(), 'f', 1) + QStringLiteral(" %"));
        QSqlQuery offset;
        offset.prepare(QStringLiteral("SELECT avg(offset) FROM calibrationCycleTable WHERE calibrationID = :id"));
        offset.bindValue(QStringLiteral(":id"), cal.value(0).toString());
        if (offset.exec() && offset.next())
            filled.insert(QStringLiteral("Offset Value"), QString::number(offset.value(0).toDouble(), 'f', 1) + QStringLiteral(" mV"));
    }
    QSqlQuery stand;
    stand.prepare(QStringLiteral("SELECT lastStandardization FROM methodSetupTable WHERE id = :id"));
    stand.bindValue(QStringLiteral(":id"), id);
    if (stand.exec() && stand.next()) {
        const QDateTime at = stand.value(0).toDateTime();
        if (at.isValid()) {
            filled.insert(QStringLiteral("StandardizeDate"), getFormattedDateString(at));
            filled.insert(QStringLiteral("StandardizeTime"), getFormattedTimeString(at));
        }
    }
    const QString text = MethodReport::text(object(reportValueObject), parts, filled,
                                            [this](double v, int digits) { return getSigFigs(v, digits); });
    if (!m_isCSV) {
        const bool printed = m_printer && m_printer->printReport(text);
        if (printed)
            emit dismissPopup(QStringLiteral("printCompleted"));
        else
            emit showPopupMultiInput(QStringLiteral("printerNotReady"), 0, QString());
        return;
    }
    USBDir dir(QStringLiteral("/VantorPro/MethodReport/"), m_disk);
    if (!dir.isUsable() || !dir.mkpath(dir.absolutePath())) {
        qDebug() << "Error: USB was not ready.";
        emit showPopupMultiInput(QStringLiteral("usbNotReady"), 0, QString());
        return;
    }
    const QString name = ReportFiles::methodFileName(instrument.serialNumber, now, methodName);
    if (ReportFiles::writeFile(dir.absoluteFilePath(name), text.toUtf8()))
        emit dismissPopup(QStringLiteral("exportCompleted"));
    else
        emit showPopupMultiInput(QStringLiteral("fileNotCreated"), 0, name);
}

void ReportController::setDateAndTimeFormat()
{
    const Instrument instrument = m_instrument ? m_instrument() : Instrument();
    if (instrument.dateFormat == m_dateFormat && instrument.timeFormat == m_timeFormat)
        return;
    m_dateFormat = instrument.dateFormat;
    m_timeFormat = instrument.timeFormat;
    emit valueChanged();
}

QString ReportController::getSigFigs(double num, int digit) const
{
    static CMeasurementIse rule;
    return QString::number(double(rule.SignificantDigits(float(num), digit)), 'g', 8);
}

QString ReportController::getFormattedDateString(const QDateTime &value) const
{
    static const char *formats[] = {"MM/dd/yyyy", "dd/MM/yyyy", "MMM-dd-yyyy", "dd-MMM-yyyy"};
    const char *format = m_dateFormat >= 0 && m_dateFormat < 4 ? formats[m_dateFormat] : "dd/MM/yyyy";
    return QLocale::c().toString(value, QLatin1String(format));
}

QString ReportController::getFormattedTimeString(const QDateTime &value) const
{
    return QLocale::c().toString(value, m_timeFormat == 0 ? QStringLiteral("hh:mm:ss AP") : QStringLiteral("hh:mm:ss"));
}

QString ReportController::getPDFformattedDateTimeString(const QDateTime &value) const
{
    return getFormattedDateString(value) + QLatin1Char(' ') + getFormattedTimeString(value);
}

QString ReportController::returnTextSpace(const QString &text, int width) const
{
    return text.leftJustified(width, QLatin1Char(' '));
}

QString ReportController::returnBuildNumber() const
{
    return QStringLiteral("V" KESTRUM_VERSION).remove(QRegularExpression(QStringLiteral("-g.*")));
}

QString ReportController::iseTypeShortFormat(const QString &name) const
{
    static const QHash<QString, QString> shortNames = {
        {"Carbon Dioxide CO2", "Carb Diox CO2"},   {"Fluoroborate BF4-", "TFB BF4-"},
        {"Thiocyanate SCN-", "Thiocyan SCN-"},     {"Monovalent Anion X-", "Monoanion X-"},
        {"Monovalent Cation X+", "Monocation X+"}, {"Divalent Anion X2-", "Dianion X2-"},
        {"Divalent Cation X2+", "Dication X2+"},
    };
    QString plain = name;
    plain.remove(QLatin1Char('(')).remove(QLatin1Char(')'));
    return shortNames.value(plain, plain);
}
