#include "system/clocaletext.h"

#include <QLocale>

QString CLocaleText::dateTime(const QDateTime &value, const QString &format)
{
    return QLocale::c().toString(value, format);
}

QString CLocaleText::upperDateTime(const QDateTime &value, const QString &format)
{
    return dateTime(value, format).toUpper();
}

QString CLocaleText::date(const QDate &value, const QString &format)
{
    return QLocale::c().toString(value, format);
}

QString CLocaleText::time(const QTime &value, const QString &format)
{
    return QLocale::c().toString(value, format);
}

QString CLocaleText::number(double value)
{
    return QString::number(value, 'g', 6);
}
