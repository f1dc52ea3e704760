#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

class QSqlQuery;
class QSqlRecord;

// One column of a model's table and the property that stands for it.
struct ColumnSpec
{
    // How a value is bound: text of the number ('g', 6 for floats), the number
    // itself, or as it is (ids, dates, strings).
    enum Binding { AsText, AsNumber, AsIs };
    const char *column;
    const char *declared;
    const char *property;
    Binding binding;
};

// Statement text and value binding from a model's column list. Table names
// and suffixes are the only text placed into statements; every value is bound.
class ColumnTable
{
public:
    explicit ColumnTable(QVector<ColumnSpec> columns)
        : m_columns(std::move(columns))
    {
    }

    const QVector<ColumnSpec> &columns() const { return m_columns; }
    QStringList names() const;
    QString createSql(const QString &table, bool ifNotExists) const;
    // INSERT of the named columns (all when empty).
    QString insertSql(const QString &table, const QStringList &columns) const;
    // UPDATE of the named columns WHERE `whereColumn` = :where_<whereColumn>.
    QString updateSql(const QString &table, const QStringList &columns, const QString &whereColumn) const;
    // Binds :<column> for every named column from the object's properties.
    void bindFrom(const QObject *model, QSqlQuery &query, const QStringList &columns) const;
    // The value of one column as it is bound.
    QVariant boundValue(const QObject *model, const ColumnSpec &spec) const;
    // Sets each property from the record, in column order, through the
    // property's setter; a column missing from the record is left alone.
    void loadInto(QObject *model, const QSqlRecord &record) const;
    // The same by position: column i of the record is column i of the list,
    // whatever its name; the positions in `skip` are left alone.
    void loadByPosition(QObject *model, const QSqlRecord &record, const QVector<int> &skip = {}) const;
    const ColumnSpec *find(const QString &column) const;

    // Inserts the named columns (all when empty) of the model into the table;
    // logs and answers false on failure.
    bool insertRow(const QObject *model, const QString &table, const QStringList &columns) const;
    // The same for every column but `id`, which the table gives: the new
    // row's id, or -1 (logged) on failure.
    int insertRowWithNewId(const QObject *model, const QString &table, const QStringList &skip = {}) const;
    // Updates the named columns of the row whose `id` is `id`.
    bool updateRow(const QObject *model, const QString &table, const QStringList &columns, int id) const;
    // The first id from `id` upwards that no row of the table holds yet.
    static int firstFreeId(const QString &table, int id);

private:
    QVector<ColumnSpec> m_columns;
};
