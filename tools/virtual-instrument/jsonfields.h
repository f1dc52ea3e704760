#pragma once

#include <QJsonObject>
#include <QString>

// Strict reading of the optional fields of a scenario: a field that is
// there must be of its kind and within its range, or the whole file is
// refused with a message naming it. An absent field keeps its default.
class JsonFields
{
public:
    JsonFields(const QJsonObject &object, const QString &where, QString *error)
        : m_object(object), m_where(where), m_error(error) {}

    // A finite number in [lo, hi]; with `aboveLo` lo itself is refused.
    JsonFields &number(const char *key, double lo, double hi, double *value, bool aboveLo = false);
    // A whole number in [lo, hi].
    JsonFields &integer(const char *key, int lo, int hi, int *value);
    // A whole number in [lo, hi] beyond the range of int (a 32-bit seed).
    JsonFields &whole(const char *key, double lo, double hi, double *value);
    JsonFields &text(const char *key, QString *value);
    JsonFields &boolean(const char *key, bool *value);
    // A nested object (empty when absent).
    JsonFields &object(const char *key, QJsonObject *value);

    bool ok() const { return m_ok; }
    // "beaker.analyte.conc_mol_L"
    QString name(const char *key) const;

private:
    bool fail(const QString &message);

    QJsonObject m_object;
    QString m_where;
    QString *m_error;
    bool m_ok = true;
};
