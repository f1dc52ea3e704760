#pragma once

#include <QImage>
#include <QPainter>
#include <QPrinter>
#include <QString>

// One PDF report being painted: A4 portrait at 80 dots per inch, full page,
// coordinates in page pixels. Every page carries the frame: the logo, the
// instrument's model and a border; a page that fills up is closed with a
// rule and the writing goes on at the top of the next one.
class ReportPdf
{
public:
    static constexpr int resolution = 80;
    static constexpr double sectionTop = 158;
    static constexpr double pageBottom = 776;
    static constexpr double rowHeight = 25;
    static constexpr double ruleLeft = 65;
    static constexpr double ruleRight = 620;

    ReportPdf(const QString &fileName, const QString &model);
    ~ReportPdf();
    ReportPdf(const ReportPdf &) = delete;
    ReportPdf &operator=(const ReportPdf &) = delete;

    bool isOpen() const { return m_open; }
    int pages() const { return m_pages; }
    double y() const { return m_y; }
    void setY(double y) { m_y = y; }

    // "Roboto" at a point size and a Qt weight (50 regular, 63 medium, 75 bold).
    void setFont(int pointSize, int weight);
    void text(double x, double y, const QString &text);
    void rule(double y, double right = ruleRight);
    // The page's title under the frame.
    void title(const QString &text, int pointSize = 13, int weight = 63, double y = 140);
    // A row: heading at x 70, value at x 350, a rule above; true when it
    // went onto a new page.
    bool row(const QString &heading, const QString &value, double ruleEnd = ruleRight);
    // A section title on a grey band.
    void band(const QString &title);
    void image(const QRectF &target, const QImage &image);
    // Closes the page with a rule and starts the next one at the top.
    void breakPage();
    // Starts a new page when the writing has passed the page's end.
    bool breakIfFull();
    // Ends the document; false when the file could not be written.
    bool finish();

private:
    void frame();

    QPrinter m_printer;
    QPainter m_painter;
    QString m_model;
    bool m_open = false;
    int m_pages = 0;
    double m_y = sectionTop;
};
