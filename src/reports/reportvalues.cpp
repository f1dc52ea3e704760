#include "reports/reportvalues.h"

#include "system/clocaletext.h"

#include <QStringList>
#include <QtMath>

#include <cmath>

QString ReportValues::fixed(double value, int decimals)
{
    return QString::number(value, 'f', decimals);
}

QString ReportValues::sigFigsDec(double value, int significant, int decimals)
{
    if (std::abs(value) < std::pow(10.0, significant - decimals))
        return fixed(value, decimals);
    const QString scientific = QString::number(value, 'e', significant - 1);
    const int exponent = scientific.mid(scientific.indexOf(QLatin1Char('e')) + 1).toInt();
    if (exponent >= significant)
        return QString::number(qRound64(scientific.toDouble()));
    return fixed(value, qMax(0, significant - 1 - exponent));
}

int ReportValues::resolutionDecimals(double resolution)
{
    if (resolution > 0.09 && resolution < 0.11)
        return 1;
    if (resolution > 0.009 && resolution < 0.011)
        return 2;
    return 3;
}

QString ReportValues::date(const QDateTime &value, int dateFormat)
{
    static const QStringList formats = {QStringLiteral("MM/dd/yyyy"), QStringLiteral("dd/MM/yyyy"),
                                        QStringLiteral("MMM-dd-yyyy"), QStringLiteral("dd-MMM-yyyy")};
    return CLocaleText::dateTime(value, formats.value(dateFormat, formats.first()));
}

QString ReportValues::time(const QDateTime &value, int timeFormat)
{
    return CLocaleText::dateTime(value, timeFormat == 0 ? QStringLiteral("hh:mm AP") : QStringLiteral("hh:mm"));
}

QString ReportValues::dateTime(const QDateTime &value, int dateFormat, int timeFormat)
{
    return date(value, dateFormat) + QStringLiteral(" | ") + time(value, timeFormat);
}

QString ReportValues::duration(int seconds)
{
    const int s = qMax(0, seconds);
    return QStringLiteral("%1:%2:%3")
        .arg(s / 3600, 2, 10, QLatin1Char('0'))
        .arg(s / 60 % 60, 2, 10, QLatin1Char('0'))
        .arg(s % 60, 2, 10, QLatin1Char('0'));
}

double ReportValues::temperature(double celsius, int temperatureFormat)
{
    return temperatureFormat == 0 ? celsius : 1.8 * celsius + 32;
}

QString ReportValues::temperatureUnit(int temperatureFormat)
{
    return temperatureFormat == 0 ? QStringLiteral("°C") : QStringLiteral("°F");
}
