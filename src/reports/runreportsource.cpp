#include "reports/runreportsource.h"

#include <QStringList>
#include <QVariant>

QString RunReportSource::text(const QObject *part, const char *key) const
{
    return part ? part->property(key).toString() : QString();
}

double RunReportSource::number(const QObject *part, const char *key) const
{
    return part ? part->property(key).toDouble() : 0.0;
}

QString RunReportSource::part(const QString &figures, int n)
{
    return figures.split(QLatin1Char('|')).value(n).remove(QLatin1Char(' '));
}
