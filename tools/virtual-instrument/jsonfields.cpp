#include "jsonfields.h"

#include <cmath>

QString JsonFields::name(const char *key) const
{
    return m_where.isEmpty() ? QLatin1String(key) : m_where + QLatin1Char('.') + QLatin1String(key);
}

bool JsonFields::fail(const QString &message)
{
    if (m_ok)
        *m_error = message; // the first fault is the one reported
    m_ok = false;
    return false;
}

JsonFields &JsonFields::number(const char *key, double lo, double hi, double *value, bool aboveLo)
{
    const QJsonValue v = m_object.value(QLatin1String(key));
    if (v.isUndefined())
        return *this;
    const double x = v.toDouble();
    if (!v.isDouble() || !std::isfinite(x) || x < lo || x > hi || (aboveLo && x <= lo)) {
        fail(QStringLiteral("\"%1\" must be a number %2 %3 and at most %4")
                 .arg(name(key), aboveLo ? QStringLiteral("above") : QStringLiteral("from"))
                 .arg(lo)
                 .arg(hi));
        return *this;
    }
    *value = x;
    return *this;
}

JsonFields &JsonFields::integer(const char *key, int lo, int hi, int *value)
{
    double x = *value;
    whole(key, lo, hi, &x);
    *value = int(x);
    return *this;
}

JsonFields &JsonFields::whole(const char *key, double lo, double hi, double *value)
{
    const QJsonValue v = m_object.value(QLatin1String(key));
    if (v.isUndefined())
        return *this;
    const double x = v.toDouble();
    if (!v.isDouble() || !std::isfinite(x) || x != std::floor(x) || x < lo || x > hi) {
        fail(QStringLiteral("\"%1\" must be a whole number from %2 to %3").arg(name(key)).arg(lo, 0, 'f', 0).arg(hi, 0, 'f', 0));
        return *this;
    }
    *value = x;
    return *this;
}

JsonFields &JsonFields::text(const char *key, QString *value)
{
    const QJsonValue v = m_object.value(QLatin1String(key));
    if (v.isUndefined())
        return *this;
    if (!v.isString()) {
        fail(QStringLiteral("\"%1\" must be a text").arg(name(key)));
        return *this;
    }
    *value = v.toString();
    return *this;
}

JsonFields &JsonFields::boolean(const char *key, bool *value)
{
    const QJsonValue v = m_object.value(QLatin1String(key));
    if (v.isUndefined())
        return *this;
    if (!v.isBool()) {
        fail(QStringLiteral("\"%1\" must be true or false").arg(name(key)));
        return *this;
    }
    *value = v.toBool();
    return *this;
}

JsonFields &JsonFields::object(const char *key, QJsonObject *value)
{
    const QJsonValue v = m_object.value(QLatin1String(key));
    if (v.isUndefined())
        return *this;
    if (!v.isObject()) {
        fail(QStringLiteral("\"%1\" must be an object").arg(name(key)));
        return *this;
    }
    *value = v.toObject();
    return *this;
}
