#include "models/columnspec.h"

#include "models/dbutil.h"

#include <QDateTime>
#include <QDebug>
#include <QMetaProperty>
#include <QSqlQuery>
#include <QSqlRecord>

QStringList ColumnTable::names() const
{
    QStringList list;
    for (const ColumnSpec &c : m_columns)
        list << QString::fromLatin1(c.column);
    return list;
}

QString ColumnTable::createSql(const QString &table, bool ifNotExists) const
{
    QStringList defs;
    for (const ColumnSpec &c : m_columns)
        defs << QStringLiteral("%1 %2").arg(QString::fromLatin1(c.column), QString::fromLatin1(c.declared));
    return QStringLiteral("CREATE TABLE %1%2 (%3)")
        .arg(ifNotExists ? QStringLiteral("IF NOT EXISTS ") : QString(), table, defs.join(QStringLiteral(", ")));
}

QString ColumnTable::insertSql(const QString &table, const QStringList &columns) const
{
    const QStringList cols = columns.isEmpty() ? names() : columns;
    QStringList placeholders;
    for (const QString &c : cols)
        placeholders << QLatin1Char(':') + c;
    return QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
        .arg(table, cols.join(QStringLiteral(", ")), placeholders.join(QStringLiteral(", ")));
}

QString ColumnTable::updateSql(const QString &table, const QStringList &columns, const QString &whereColumn) const
{
    QStringList sets;
    for (const QString &c : columns)
        sets << QStringLiteral("%1=:%1").arg(c);
    return QStringLiteral("UPDATE %1 SET %2 WHERE %3=:where_%3").arg(table, sets.join(QStringLiteral(", ")), whereColumn);
}

const ColumnSpec *ColumnTable::find(const QString &column) const
{
    for (const ColumnSpec &c : m_columns) {
        if (column == QLatin1String(c.column))
            return &c;
    }
    return nullptr;
}

QVariant ColumnTable::boundValue(const QObject *model, const ColumnSpec &spec) const
{
    const QVariant v = model->property(spec.property);
    switch (spec.binding) {
    case ColumnSpec::AsText:
        switch (v.userType()) {
        case QMetaType::Float:
        case QMetaType::Double:
            return QString::number(v.toFloat(), 'g', 6);
        case QMetaType::Int:
        case QMetaType::Bool:
            return QString::number(v.toInt());
        default:
            return v.toString();
        }
    case ColumnSpec::AsNumber:
        if (v.userType() == QMetaType::Float || v.userType() == QMetaType::Double)
            return static_cast<double>(v.toFloat());
        return v.toInt();
    case ColumnSpec::AsIs:
        if (v.userType() == QMetaType::Bool)
            return v.toBool() ? 1 : 0;
        return v;
    }
    return v;
}

void ColumnTable::bindFrom(const QObject *model, QSqlQuery &query, const QStringList &columns) const
{
    for (const QString &c : columns) {
        const ColumnSpec *spec = find(c);
        if (spec)
            query.bindValue(QLatin1Char(':') + c, boundValue(model, *spec));
        else
            qDebug() << "ColumnTable: no column" << c;
    }
}

namespace {

// Writes a stored value into a property, converted to the property's type.
void assign(QObject *model, const char *property, const QVariant &v)
{
    const QMetaObject *meta = model->metaObject();
    const int index = meta->indexOfProperty(property);
    if (index < 0)
        return;
    QVariant converted;
    switch (meta->property(index).userType()) {
    case QMetaType::Float:
        converted = QVariant::fromValue(v.toFloat());
        break;
    case QMetaType::Double:
        converted = v.toDouble();
        break;
    case QMetaType::Int:
        converted = v.toInt();
        break;
    case QMetaType::Bool:
        converted = v.toInt() != 0;
        break;
    case QMetaType::QDateTime:
        converted = v.toDateTime();
        break;
    default:
        converted = v.toString();
        break;
    }
    meta->property(index).write(model, converted);
}

} // namespace

void ColumnTable::loadInto(QObject *model, const QSqlRecord &record) const
{
    for (const ColumnSpec &c : m_columns) {
        const int field = record.indexOf(QString::fromLatin1(c.column));
        if (field >= 0)
            assign(model, c.property, record.value(field));
    }
}

void ColumnTable::loadByPosition(QObject *model, const QSqlRecord &record, const QVector<int> &skip) const
{
    const int count = qMin(record.count(), m_columns.size());
    for (int i = 0; i < count; ++i) {
        if (!skip.contains(i))
            assign(model, m_columns.at(i).property, record.value(i));
    }
}

bool ColumnTable::insertRow(const QObject *model, const QString &table, const QStringList &columns) const
{
    QSqlQuery insert;
    insert.prepare(insertSql(table, columns));
    bindFrom(model, insert, columns.isEmpty() ? names() : columns);
    return DbUtil::exec(insert);
}

int ColumnTable::insertRowWithNewId(const QObject *model, const QString &table, const QStringList &skip) const
{
    QStringList columns = names();
    columns.removeAll(QStringLiteral("id"));
    for (const QString &c : skip)
        columns.removeAll(c);
    QSqlQuery insert;
    insert.prepare(insertSql(table, columns));
    bindFrom(model, insert, columns);
    if (!DbUtil::exec(insert))
        return -1;
    return insert.lastInsertId().toInt();
}

bool ColumnTable::updateRow(const QObject *model, const QString &table, const QStringList &columns, int id) const
{
    QSqlQuery update;
    update.prepare(updateSql(table, columns, QStringLiteral("id")));
    bindFrom(model, update, columns);
    update.bindValue(QStringLiteral(":where_id"), id);
    return DbUtil::exec(update);
}

int ColumnTable::firstFreeId(const QString &table, int id)
{
    for (;;) {
        QSqlQuery query;
        query.prepare(QStringLiteral("SELECT id FROM %1 WHERE id = :ID").arg(table));
        query.bindValue(QStringLiteral(":ID"), id);
        if (!DbUtil::exec(query) || !query.next())
            break;
        ++id;
    }
    qDebug() << "Unique ID: " << id;
    return id;
}
