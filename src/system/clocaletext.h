#pragma once

#include <QDateTime>
#include <QString>

// Texts that are stored or handed to system commands are written in the C
// locale, whatever language the system runs in: month names, AM/PM and
// digits never change with the user's language.
class CLocaleText
{
public:
    static QString dateTime(const QDateTime &value, const QString &format);
    // The same in capitals ("03/14/2026 | 09:05 PM").
    static QString upperDateTime(const QDateTime &value, const QString &format);
    static QString date(const QDate &value, const QString &format);
    static QString time(const QTime &value, const QString &format);
    // A float as the tables keep it: 'g' with six significant digits.
    static QString number(double value);
};
