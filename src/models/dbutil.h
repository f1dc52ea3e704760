#pragma once

#include <QSqlQuery>
#include <QString>
#include <QStringList>
#include <QVariant>

// Small helpers around the one default connection. Every statement of the
// models goes through a fresh QSqlQuery; these only take the repetition out
// of running, logging and checking them.
class DbUtil
{
public:
    // Runs a prepared query (or `sql` when given) and logs the failure with
    // the error text and the statement.
    static bool exec(QSqlQuery &query, const QString &sql = QString());
    // Runs one statement without bound values.
    static bool execText(const QString &sql);
    // Whether a table of that exact name exists in the file.
    static bool tableExists(const QString &name);
    // Names of all tables, as the file lists them.
    static QStringList tableNames();
    // Column names of an existing table in their physical order.
    static QStringList columnNames(const QString &table);
    // A name that may stand in statement text: letters, digits and '_',
    // not starting with a digit, at most 64 characters.
    static bool isPlainIdentifier(const QString &name);
    // Inclusive list of one-decimal versions: ("1.1", "1.4") -> 1.1 1.2 1.3 1.4.
    static QStringList versionRange(const QString &first, const QString &last);
    // Sets each AUTOINCREMENT counter to the highest id left in its table,
    // or removes it when the table is empty, so that numbering carries on
    // from what is there (from 1 in an emptied table).
    static bool resetSquenceIds(const QStringList &tables);
    // First column of the first row of a query without bound values.
    static QVariant scalar(const QString &sql, bool *ok = nullptr);
};
