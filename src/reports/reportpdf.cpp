#include "reports/reportpdf.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QImageReader>
#include <QPageLayout>
#include <QPageSize>

// Outside any namespace: the macro declares the resource's function here.
static void initReportResources()
{
    Q_INIT_RESOURCE(reportassets);
}

namespace {
const QColor ink(QStringLiteral("#344550"));
const QColor bandGrey(QStringLiteral("#c3c7ca"));

// The report's fonts and logo travel in the program's resources, so a PDF
// is the same on every machine and carries its own font.
void loadAssets()
{
    static const bool loaded = [] {
        initReportResources();
        for (const char *face : {"regular", "medium", "bold"})
            QFontDatabase::addApplicationFont(QStringLiteral(":/reportassets/roboto.%1.ttf").arg(QLatin1String(face)));
        return true;
    }();
    Q_UNUSED(loaded)
}
} // namespace

ReportPdf::ReportPdf(const QString &fileName, const QString &model)
    : m_printer(QPrinter::HighResolution)
    , m_model(model)
{
    loadAssets();
    m_printer.setOutputFormat(QPrinter::PdfFormat);
    m_printer.setOutputFileName(fileName);
    m_printer.setResolution(resolution);
    m_printer.setFullPage(true);
    m_printer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF()));
    m_printer.setCreator(QStringLiteral("Kestrum"));
    m_open = m_painter.begin(&m_printer);
    if (m_open)
        frame();
}

ReportPdf::~ReportPdf()
{
    finish();
}

void ReportPdf::setFont(int pointSize, int weight)
{
    QFont font(QStringLiteral("Roboto"));
    font.setPointSize(pointSize);
    font.setWeight(weight);
    m_painter.setFont(font);
}

void ReportPdf::text(double x, double y, const QString &text)
{
    m_painter.setPen(ink);
    m_painter.drawText(QPointF(x, y), text);
}

void ReportPdf::rule(double y, double right)
{
    m_painter.setPen(QPen(ink, 0));
    m_painter.drawLine(QPointF(ruleLeft, y), QPointF(right, y));
}

void ReportPdf::title(const QString &title, int pointSize, int weight, double y)
{
    setFont(pointSize, weight);
    text(70, y, title);
}

bool ReportPdf::row(const QString &heading, const QString &value, double ruleEnd)
{
    const bool broke = breakIfFull();
    rule(m_y, ruleEnd);
    setFont(13, 50);
    text(70, m_y + 16, heading);
    text(350, m_y + 16, value);
    m_y += rowHeight;
    return broke;
}

void ReportPdf::band(const QString &title)
{
    breakIfFull();
    m_painter.setPen(QPen(bandGrey, rowHeight, Qt::SolidLine, Qt::FlatCap));
    m_painter.drawLine(QPointF(ruleLeft, m_y + rowHeight / 2), QPointF(ruleRight, m_y + rowHeight / 2));
    rule(m_y);
    rule(m_y + rowHeight);
    setFont(13, 63);
    text(70, m_y + 16, title);
    m_y += rowHeight;
}

void ReportPdf::image(const QRectF &target, const QImage &image)
{
    if (!image.isNull())
        m_painter.drawImage(target, image);
}

void ReportPdf::breakPage()
{
    rule(m_y);
    m_printer.newPage();
    frame();
    m_y = sectionTop;
}

bool ReportPdf::breakIfFull()
{
    if (m_y <= pageBottom)
        return false;
    breakPage();
    return true;
}

bool ReportPdf::finish()
{
    if (!m_open)
        return false;
    m_open = false;
    return m_painter.end();
}

void ReportPdf::frame()
{
    ++m_pages;
    const QRectF page(0, 0, m_printer.width(), m_printer.height());
    m_painter.setPen(QPen(ink, 0));
    m_painter.drawRect(page.adjusted(40, 30, -40, -30));
    // The logo keeps its proportions inside its box, drawn from its vector
    // form at four times the page's resolution.
    static const QImage logo = [] {
        QImageReader reader(QStringLiteral(":/reportassets/logo.svg"));
        reader.setScaledSize(reader.size().scaled(400, 180, Qt::KeepAspectRatio));
        return reader.read();
    }();
    if (!logo.isNull())
        m_painter.drawImage(QRectF(QPointF(60, 53), QSizeF(logo.size()) / 4), logo);
    setFont(16, 75);
    // A long model name ends at the rules' right end rather than past the border.
    const double width = QFontMetricsF(m_painter.font(), m_painter.device()).horizontalAdvance(m_model);
    text(qMin(400.0, ruleRight - 10 - width), 88, m_model);
    setFont(10, 50);
    text(560, page.height() - 40, QStringLiteral("Page %1").arg(m_pages));
}
