#include "reports/reportgenerator.h"

#include "reports/reportfiles.h"
#include "reports/reportpdf.h"
#include "reports/reportrows.h"

#include <QDebug>
#include <QDir>
#include <QImage>
#include <QJsonArray>
#include <QTextStream>

#include <functional>

namespace {
const QString typeMark = QStringLiteral("*****");
const QString mkaType = QStringLiteral("ISE-MKA");

bool isStandardisation(const StoredReport &r)
{
    return r.reportType == QLatin1String("Standardization");
}

bool isCalibration(const StoredReport &r)
{
    return r.reportType == QLatin1String("Calibration");
}

// A six-field run row: long and short heading, value, unit, positions.
struct Row
{
    QString longHeading;
    QString shortHeading;
    QString value;
    bool inShort = true;
};

Row rowOf(const QJsonValue &v)
{
    const QJsonArray a = v.toArray();
    Row row;
    row.longHeading = a.at(0).toString();
    row.shortHeading = a.at(1).toString();
    const QString value = a.at(2).toVariant().toString();
    const QString unit = a.at(3).toVariant().toString();
    row.value = unit.isEmpty() ? value : value + QLatin1Char(' ') + unit;
    row.inShort = a.at(5).toVariant().toString() != QLatin1String("0");
    return row;
}

QString padded(const QString &heading)
{
    return heading.leftJustified(15, QLatin1Char(' '));
}

// The curve points of each cycle, "(x|y),(x|y)", and the y axis unit.
struct Curves
{
    QStringList cycles;
    QString unit;
    bool mka = false;
};

Curves curvesOf(const QString &graph)
{
    Curves c;
    if (graph.endsWith(typeMark + mkaType)) {
        c.mka = true;
        const QString body = graph.left(graph.size() - typeMark.size() - mkaType.size());
        c.cycles = body.split(QStringLiteral("++++++"));
        return c;
    }
    const int unitAt = graph.lastIndexOf(QStringLiteral("====="));
    c.unit = unitAt < 0 ? QStringLiteral("mV") : graph.mid(unitAt + 5);
    const QString body = unitAt < 0 ? graph : graph.left(unitAt);
    c.cycles = body.split(QStringLiteral("+++++"));
    return c;
}

// Paints a PDF under a temporary name and puts it in place in one step;
// the path written, or "" when it failed.
QString writePdf(const QString &path, const QString &model, const std::function<void(ReportPdf &)> &paint)
{
    const QString temporary = path + QStringLiteral(".part");
    {
        ReportPdf pdf(temporary, model);
        if (!pdf.isOpen())
            return QString();
        paint(pdf);
        if (!pdf.finish()) {
            QFile::remove(temporary);
            return QString();
        }
    }
    return ReportFiles::publish(temporary, path) ? path : QString();
}

QString csvLine(const QStringList &cells)
{
    QStringList out;
    for (const QString &c : cells)
        out << ReportFiles::csvCell(c);
    return out.join(QLatin1Char(',')) + QLatin1Char('\n');
}
} // namespace

ReportGenerator::Form ReportGenerator::formOf(const QString &format)
{
    return format.compare(QLatin1String("short"), Qt::CaseInsensitive) == 0 ? Form::Short : Form::Long;
}

ReportGenerator::ReportGenerator(const QString &serialNumber, const QString &model)
    : m_serial(serialNumber)
    , m_model(model)
{
}

QString ReportGenerator::stagedPath(const StoredReport &report, const QString &name) const
{
    const QString folder = ReportFiles::stagingFolder(report.reportType);
    if (folder.isEmpty() || !QDir().mkpath(folder)) {
        qDebug() << "Report: no staging folder for" << report.reportType;
        return QString();
    }
    return QDir(folder).absoluteFilePath(name);
}

QString ReportGenerator::createTitrationPdf(const StoredReport &report) const
{
    const StoredRunReport run = ReportRows::parseRun(report.reportString);
    const QString path = stagedPath(report, ReportFiles::runName(m_serial, report.logTimeStamp, report.logId,
                                                                 isStandardisation(report) ? "_S.pdf" : "_T.pdf"));
    if (path.isEmpty())
        return QString();
    if (!run.ok)
        qDebug() << "Report: the stored text of" << report.reportType << report.logId << "does not parse";
    return writePdf(path, m_model, [&](ReportPdf &pdf) {
        pdf.title(isStandardisation(report) ? QStringLiteral("Report: Standardization Results")
                                            : QStringLiteral("Report: Titration Results"));
        for (const QJsonValue &v : run.method) {
            const Row row = rowOf(v);
            if (!row.longHeading.isEmpty())
                pdf.row(row.longHeading, row.value);
        }
        const bool mka = run.electrodeType == mkaType;
        pdf.band(QStringLiteral("Analysis Results:"));
        for (int c = 0; c < run.cycles.size(); ++c) {
            const QJsonArray rows = run.cycles.at(c);
            if (pdf.y() > ReportPdf::pageBottom && rows.size() == 7)
                pdf.breakPage();
            // The chart stands beside its rows: at the block's top less 10
            // once the block is taller than 124, at the top of a new page
            // when the rows break first, else where the block ends up.
            const QImage chart = !mka && c < 5 ? QImage::fromData(report.images[c], "PNG") : QImage();
            bool placed = chart.isNull();
            double chartBottom = 0;
            int chartPage = 0;
            auto place = [&](double y) {
                pdf.image(QRectF(450, y, 170, 150), chart);
                placed = true;
                chartBottom = y + 150;
                chartPage = pdf.pages();
            };
            double top = pdf.y();
            for (const QJsonValue &v : rows) {
                const Row row = rowOf(v);
                if (row.longHeading.isEmpty())
                    continue;
                const bool fullRule = mka || row.longHeading.endsWith(QLatin1String("Duration (Minutes)"));
                if (pdf.row(row.longHeading, row.value, fullRule ? ReportPdf::ruleRight : 440)) {
                    top = ReportPdf::sectionTop;
                    if (!placed)
                        place(ReportPdf::sectionTop);
                } else if (!placed && pdf.y() - top > 124) {
                    place(top - 10);
                }
            }
            if (!placed)
                place(rows.size() == 7 ? top : (top + (top + pdf.y()) / 2) / 2);
            // What follows starts below the chart.
            if (chartPage == pdf.pages() && chartBottom > pdf.y())
                pdf.setY(chartBottom + 2);
        }
        pdf.band(QStringLiteral("Result Summary"));
        for (const QJsonValue &v : run.summary) {
            const Row row = rowOf(v);
            if (!row.longHeading.isEmpty())
                pdf.row(row.longHeading, row.value);
        }
        pdf.rule(pdf.y());
    });
}

QString ReportGenerator::runText(const StoredReport &report, Form form, bool forPrinter)
{
    const StoredRunReport run = ReportRows::parseRun(report.reportString);
    QString text;
    QTextStream out(&text);
    const QString title = isStandardisation(report) ? QStringLiteral("Titrant Stdz Report") : QStringLiteral("Titration Report");
    out << (forPrinter ? QStringLiteral("      ") + title : title) << '\n';
    auto write = [&](const QJsonArray &rows) {
        for (const QJsonValue &v : rows) {
            const Row row = rowOf(v);
            if (row.shortHeading.isEmpty() || (form == Form::Short && !row.inShort))
                continue;
            if (forPrinter)
                out << padded(row.shortHeading) << " : " << row.value << '\n';
            else
                out << ReportFiles::csvCell(padded(row.shortHeading)) << " , " << ReportFiles::csvCell(row.value) << '\n';
        }
    };
    write(run.method);
    out << "Analysis Results" << '\n';
    for (const QJsonArray &cycle : run.cycles)
        write(cycle);
    out << "Result Summary" << '\n';
    write(run.summary);
    out.flush();
    return text;
}

QString ReportGenerator::createTitrationCsv(const StoredReport &report, Form form) const
{
    const QString path = stagedPath(report, ReportFiles::runName(m_serial, report.logTimeStamp, report.logId,
                                                                 isStandardisation(report) ? "_Ssum.csv" : "_Tsum.csv"));
    if (path.isEmpty() || !ReportFiles::writeFile(path, runText(report, form, false).toUtf8()))
        return QString();
    return path;
}

QStringList ReportGenerator::createRawCycleData(const StoredReport &report) const
{
    QStringList written;
    const Curves curves = curvesOf(report.graphString);
    const QString suffix = isStandardisation(report) ? QStringLiteral("_Sdata") : QStringLiteral("_Tdata");
    for (int c = 0; c < curves.cycles.size(); ++c) {
        QString text;
        if (curves.mka) {
            text = csvLine({"Row Data #", "Volume (mL)", "E(mV)", "Drift (mV/min)", "Fit Slope", "Fit E0", "Unknown*", "Precision"});
            const QStringList additions = curves.cycles.at(c).split(QLatin1Char(','), Qt::SkipEmptyParts);
            for (const QString &a : additions)
                text += csvLine(a.split(QLatin1Char('|')));
        } else {
            text = csvLine({"Row Data #", "Volume (mL)", "E(" + curves.unit + ")"});
            QString points = curves.cycles.at(c);
            points.remove(QLatin1Char('(')).remove(QLatin1Char(')'));
            const QStringList list = points.split(QLatin1Char(','), Qt::SkipEmptyParts);
            for (int n = 0; n < list.size(); ++n)
                text += csvLine(QStringList{QString::number(n + 1)} + list.at(n).split(QLatin1Char('|')));
        }
        const QString name = ReportFiles::runName(m_serial, report.logTimeStamp, report.logId,
                                                  suffix + QString::number(c + 1) + QStringLiteral(".csv"));
        const QString path = stagedPath(report, name);
        if (!path.isEmpty() && ReportFiles::writeFile(path, text.toUtf8()))
            written << path;
    }
    return written;
}

QString ReportGenerator::createCalMeasurePdf(const StoredReport &report) const
{
    const QString path = stagedPath(report, ReportFiles::meterName(report.logTimeStamp, report.logId,
                                                                   isCalibration(report) ? "_cal.pdf" : "_meas.pdf"));
    if (path.isEmpty())
        return QString();
    const QJsonArray rows = ReportRows::parseMeter(report.reportString);
    return writePdf(path, m_model, [&](ReportPdf &pdf) {
        pdf.title(isCalibration(report) ? QStringLiteral("Report: Calibration Results") : QStringLiteral("Report: Measurement Results"),
                  16, 75, 128);
        // Rows carry their own y; a row past the page's end goes to the top
        // of the next page, and the rows after it follow it there.
        double shift = 0;
        for (const QJsonValue &v : rows) {
            const QJsonArray a = v.toArray();
            double y = a.at(2).toDouble() - shift;
            if (y > ReportPdf::pageBottom) {
                pdf.setY(y - ReportPdf::rowHeight);
                pdf.breakPage();
                shift += y - ReportPdf::sectionTop;
                y = ReportPdf::sectionTop;
            }
            pdf.setFont(15, 50);
            pdf.text(a.at(1).toDouble(), y, a.at(0).toString());
            pdf.text(a.at(4).toDouble(), y, a.at(3).toVariant().toString());
        }
    });
}

QString ReportGenerator::meterText(const StoredReport &report, bool forPrinter) const
{
    QString text;
    QTextStream out(&text);
    const QString dashes = QStringLiteral("--------------------------------\n");
    out << dashes << m_model << '\n' << "Halvorn Instruments" << '\n' << dashes;
    for (const QJsonValue &v : ReportRows::parseMeter(report.reportString)) {
        const QJsonArray a = v.toArray();
        const QString heading = a.at(0).toString();
        const QString value = a.at(3).toVariant().toString();
        if (forPrinter)
            out << heading << " : " << value << '\n';
        else
            out << ReportFiles::csvCell(heading) << " , " << ReportFiles::csvCell(value) << '\n';
        if (a.at(6).toInt() == 1)
            out << '\n';
    }
    out.flush();
    return text;
}

QString ReportGenerator::createCalMeasureCsv(const StoredReport &report) const
{
    const QString path = stagedPath(report, ReportFiles::meterName(report.logTimeStamp, report.logId,
                                                                   isCalibration(report) ? "_cal.csv" : "_meas.csv"));
    if (path.isEmpty() || !ReportFiles::writeFile(path, meterText(report, false).toUtf8()))
        return QString();
    return path;
}
