#include "controller/reportcontroller.h"

#include "system/printer.h"
#include "system/screenshotfolder.h"
#include "system/usbdisk.h"

#include <QDebug>
#include <QImage>
#include <QQuickWindow>

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
    const QString file = ScreenshotFolder::save(window ? window->grabWindow() : QImage(), USBDisk::instance(), &error);
    qDebug() << "ReportController: screenshot" << (file.isEmpty() ? error : file);
    return !file.isEmpty();
}

QString ReportController::stagingFolder(const QString &) { return QString(); }
QString ReportController::diskFolder(const QString &) { return QString(); }
void ReportController::exportInput(const QJsonObject &) {}
void ReportController::exportReportFromSummary(int, const QString &, const QString &, const QString &) {}
void ReportController::fetchReportValues(QSqlQuery, const QString &, const QString &, const QString &) {}
bool ReportController::moveReportsToUSB(const QString &) { return false; }
void ReportController::methodTextReport(int, const QString &, const QString &, const QString &, const QString &,
                                        const QString &, const QString &, const QDateTime &, const QString &) {}
void ReportController::setDateAndTimeFormat() {}
QString ReportController::getSigFigs(double, int) const { return QString(); }
QString ReportController::getFormattedDateString(const QDateTime &) const { return QString(); }
QString ReportController::getFormattedTimeString(const QDateTime &) const { return QString(); }
QString ReportController::getPDFformattedDateTimeString(const QDateTime &) const { return QString(); }
QString ReportController::returnTextSpace(const QString &t, int) const { return t; }
QString ReportController::returnBuildNumber() const { return QString(); }
QString ReportController::iseTypeShortFormat(const QString &n) const { return n; }
void ReportController::runQuery(QSqlQuery &, const QString &, const QString &, const QString &) {}
void ReportController::finish(const QString &, const QString &) {}
