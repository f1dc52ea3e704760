#pragma once

#include "models/columnspec.h"

#include <QMap>
#include <QSqlRecord>
#include <QString>
#include <QStringList>
#include <QVariantMap>
#include <QVector>

class QSqlQuery;

// Where the value of a log column comes from: one of the copied rows, or the
// log's own values (averages, dates, links).
enum class LogBlock { Own, Method, Electrode, Calibration, CalibrationPoint, Titrant, Run, TitrationSetup, Measurement };

// The values of each source row, by the source's column names.
using LogSourceRows = QMap<LogBlock, QVariantMap>;

struct LogColumn
{
    QString name;
    QString declared;
    LogBlock block;
    QString source; // column of the source row, or the name of the log's own value
};

// The column layout of one log table. A log row is a frozen copy of the
// method, its setup parts and the run, so the layout lists for every column
// the row and column it copies; readers depend on the order.
class LogLayout
{
public:
    explicit LogLayout(QVector<LogColumn> columns);

    const QVector<LogColumn> &columns() const { return m_columns; }
    int count() const { return m_columns.size(); }
    QStringList names() const;
    QString createSql(const QString &table) const;
    // INSERT of every column but `id`.
    QString insertSql(const QString &table) const;
    // Binds every column but `id` from the source rows. A value missing from
    // its row is bound as NULL; copied values are converted to the declared
    // type (floats of text columns as 'g' with 6 digits).
    void bind(QSqlQuery &query, const LogSourceRows &rows) const;
    // The columns of one block of a log row, renamed to the source's own
    // column names, for loading into the source's model.
    QSqlRecord blockRecord(const QSqlRecord &logRow, LogBlock block) const;

    // A model's row as its table would hold it, by column name.
    static QVariantMap rowOf(const QObject *model, const ColumnTable &table);
    // The value converted to a column's declared type.
    static QVariant toDeclared(const QVariant &value, const QString &declared);

    static const LogLayout &titration();
    static const LogLayout &standardisation();
    static const LogLayout &calibration();
    static const LogLayout &measurement();

private:
    QVector<LogColumn> m_columns;
    ColumnTable m_table;
};
