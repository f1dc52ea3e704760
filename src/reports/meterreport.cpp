#include "reports/meterreport.h"

#include "reports/reportvalues.h"

#include <QVariant>

namespace {
const QString line = QStringLiteral("_______________");

QString text(const QObject *o, const char *key)
{
    return o ? o->property(key).toString() : QString();
}

double number(const QObject *o, const char *key)
{
    return o ? o->property(key).toDouble() : 0.0;
}

// " %" for pH, " mV" for redox, " mV/dec" for ion-selective electrodes.
QString slopeUnit(const QString &type)
{
    if (type == QLatin1String("pH"))
        return QStringLiteral(" %");
    if (type == QLatin1String("Redox"))
        return QStringLiteral(" mV");
    return QStringLiteral(" mV/dec");
}

QString temperatureText(double celsius, int format)
{
    return ReportValues::fixed(ReportValues::temperature(celsius, format), 1) + " " + ReportValues::temperatureUnit(format);
}

// Rows placed one under the other: each `add` moves down by `step` first.
class Page
{
public:
    explicit Page(int y) : m_y(y) {}
    void at(const QString &heading, const QString &value, int flag = 0) { m_rows.append({heading, m_y, value, flag}); }
    void down(int step, const QString &heading, const QString &value, int flag = 0)
    {
        m_y += step;
        at(heading, value, flag);
    }
    QVector<MeterReportRow> rows() const { return m_rows; }

private:
    int m_y;
    QVector<MeterReportRow> m_rows;
};
} // namespace

QVector<MeterReportRow> MeterReport::measurement(const QObject *m, const QDateTime &createdAt, const Settings &settings)
{
    const QString mode = text(m, "readMode");
    const bool ise = mode == QLatin1String("ISE");
    Page page(160);
    page.at("SW Rev", settings.buildNumber, 1);
    const QString sampleId = text(m, "sampleId");
    page.down(50, "Sample ID", sampleId == QLatin1String("None") ? sampleId : text(m, "sampleIdValue"));
    page.down(25, "Date/Time", ReportValues::dateTime(createdAt, settings.dateFormat, settings.timeFormat), 1);
    page.down(25, "Electrode Type", mode);
    if (ise)
        page.down(25, "ISE Type", text(m, "iseType"));
    page.down(25, "Electrode Name", text(m, "sensorName"));

    const double value = number(m, "scaledValue");
    QString shown;
    QString heading = QStringLiteral("Concentration");
    if (mode == QLatin1String("pH")) {
        heading = QStringLiteral("pH value");
        shown = ReportValues::fixed(value, ReportValues::resolutionDecimals(number(m, "resolution")));
    } else if (ise) {
        shown = ReportValues::sigFigsDec(value, int(number(m, "significantDigits")), 4);
    } else {
        heading = mode == QLatin1String("Redox") ? QStringLiteral("Redox value") : heading;
        shown = ReportValues::fixed(value, 1);
    }
    const QString unit = text(m, "directMeasurementUnit");
    if (unit != QLatin1String("None"))
        shown += " " + unit;
    page.down(25, heading, shown);
    page.down(25, "mV value", ReportValues::fixed(number(m, "mV"), 1) + " mV");
    page.down(25, "Temperature", temperatureText(number(m, "temp"), settings.temperatureFormat)
                                     + (m && m->property("isATC").toBool() ? " (ATC)" : " (MAN)"));
    const int calLog = int(number(m, "calLogId"));
    const QDateTime calibrated = m ? m->property("calDateTime").toDateTime() : QDateTime();
    page.down(50, "Cal Log #", calLog == 0 ? QString() : QString::number(calLog));
    page.down(25, mode == QLatin1String("Redox") ? "Offset" : "Average Slope",
              calLog == 0 ? QString() : ReportValues::fixed(number(m, "calAvg"), 1) + " " + slopeUnit(mode));
    page.down(25, "Calibrated",
              calLog == 0 ? QString()
                          : ReportValues::date(calibrated, settings.dateFormat) + " " + ReportValues::time(calibrated, settings.timeFormat));
    page.down(50, "Operator", line);
    page.down(25, "Signature", line);
    return page.rows();
}

QVector<MeterReportRow> MeterReport::calibration(const QObject *c, const QList<const QObject *> &points, const Settings &settings)
{
    const QString type = text(c, "electrodeType");
    if (type == QLatin1String("ATC"))
        return atcCalibration(c, points, settings);
    Page page(160);
    page.at("SW Rev", settings.buildNumber, 1);
    page.down(50, "Electrode Type", type);
    if (type == QLatin1String("ISE"))
        page.down(25, "ISE Type", text(c, "iseType"));
    page.down(25, "Electrode Name", text(c, "electrodeName"));
    page.down(25, "Calibration Time",
              ReportValues::dateTime(c->property("mcreatedAt").toDateTime(), settings.dateFormat, settings.timeFormat), 1);
    const QString unit = text(c, "directMeasureUnit");
    for (int i = 0; i < points.size(); ++i) {
        const QObject *p = points.at(i);
        // Points are stored without their number; their order gives it.
        const int pointNo = p->property("cycleNo").toInt();
        page.down(50, "Point", QString::number(pointNo > 0 ? pointNo : i + 1));
        const double value = number(p, "calValue");
        if (type == QLatin1String("pH"))
            page.down(25, "pH value", ReportValues::fixed(value, ReportValues::resolutionDecimals(number(c, "resolution"))) + " " + unit);
        else if (type == QLatin1String("Redox"))
            page.down(25, "Redox value", ReportValues::fixed(value, 1) + " " + unit);
        else
            page.down(25, "Concentration", ReportValues::sigFigsDec(value, int(number(c, "significantDigits")), 4)
                                               + (unit == QLatin1String("None") ? QString() : " " + unit));
        page.down(25, "mV", ReportValues::fixed(number(p, "voltage"), 1) + " mV");
        page.down(25, "Temperature", temperatureText(number(p, "temperature"), settings.temperatureFormat) + " ("
                                         + text(p, "temperatureMode") + ")", 1);
    }
    const QString label = slopeUnit(type);
    int step = 50;
    if (type != QLatin1String("Redox")) {
        const int pairs = points.size() > 1 ? points.size() - 1 : points.size();
        for (int n = 1; n <= pairs; ++n) {
            const QObject *p = points.at(n - 1);
            page.down(step, "Slope " + QString::number(n), ReportValues::fixed(number(p, "slope"), 1) + label);
            page.down(25, "Eo " + QString::number(n), ReportValues::fixed(number(p, "offset"), 1) + " mV");
            step = 25;
        }
        step = 50;
    }
    page.down(step, type == QLatin1String("Redox") ? "Offset" : "Average Slope", ReportValues::fixed(number(c, "avgSlope"), 1) + label);
    page.down(25, "Cal Log #", text(c, "id"));
    page.down(50, "Operator", line);
    page.down(25, "Signature", line);
    return page.rows();
}

QVector<MeterReportRow> MeterReport::atcCalibration(const QObject *c, const QList<const QObject *> &points, const Settings &settings)
{
    const QObject *p = points.value(0);
    auto probe = [&](const char *key) { return temperatureText(number(p, key), settings.temperatureFormat); };
    return {
        {"SW Rev", 160, settings.buildNumber, 1},
        {"Electrode Type", 210, text(c, "electrodeType"), 0},
        {"Calibration Time", 235, ReportValues::dateTime(c->property("mcreatedAt").toDateTime(), settings.dateFormat, settings.timeFormat), 0},
        {"ATC Value", 285, probe("calValue"), 0},
        {"Temperature", 310, probe("temperature"), 0},
        // An offset is a difference of temperatures: scaled, not shifted.
        {"Offset", 335, ReportValues::fixed(number(p, "offset") * (settings.temperatureFormat == 0 ? 1.0 : 1.8), 1) + " "
                            + ReportValues::temperatureUnit(settings.temperatureFormat), 0},
        {"Cal Log #", 360, text(c, "id"), 0},
        {"Operator", 410, line, 0},
        {"Signature", 435, line, 0},
    };
}
