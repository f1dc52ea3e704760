#include "models/dbutil.h"

#include "models/dbtransaction.h"

#include <QDebug>
#include <QRegularExpression>
#include <QSqlError>
#include <QSqlRecord>

bool DbUtil::exec(QSqlQuery &query, const QString &sql)
{
    const bool ok = sql.isEmpty() ? query.exec() : query.exec(sql);
    if (!ok)
        qDebug() << "SQL failed:" << query.lastError().text() << "in" << query.lastQuery();
    return ok;
}

bool DbUtil::execText(const QString &sql)
{
    QSqlQuery query;
    return exec(query, sql);
}

bool DbUtil::tableExists(const QString &name)
{
    QSqlQuery query;
    query.prepare(QStringLiteral("SELECT count(*) FROM sqlite_master WHERE type = 'table' AND name = :name"));
    query.bindValue(QStringLiteral(":name"), name);
    if (!exec(query) || !query.next())
        return false;
    return query.value(0).toInt() > 0;
}

QStringList DbUtil::tableNames()
{
    QStringList names;
    QSqlQuery query;
    if (!exec(query, QStringLiteral("SELECT name FROM sqlite_master WHERE type='table' ORDER BY name")))
        return names;
    while (query.next())
        names << query.value(0).toString();
    return names;
}

QStringList DbUtil::columnNames(const QString &table)
{
    QStringList names;
    if (!isPlainIdentifier(table))
        return names;
    QSqlQuery query;
    if (!exec(query, QStringLiteral("PRAGMA table_info('%1')").arg(table)))
        return names;
    const int nameField = query.record().indexOf(QStringLiteral("name"));
    while (query.next())
        names << query.value(nameField).toString();
    return names;
}

bool DbUtil::isPlainIdentifier(const QString &name)
{
    static const QRegularExpression re(QStringLiteral("^[A-Za-z_][A-Za-z0-9_]{0,63}$"));
    return re.match(name).hasMatch();
}

QStringList DbUtil::versionRange(const QString &first, const QString &last)
{
    QStringList versions;
    const QStringList a = first.split(QLatin1Char('.'));
    const QStringList b = last.split(QLatin1Char('.'));
    if (a.size() != 2 || b.size() != 2 || a[0] != b[0])
        return versions;
    for (int minor = a[1].toInt(); minor <= b[1].toInt(); ++minor)
        versions << QStringLiteral("%1.%2").arg(a[0]).arg(minor);
    return versions;
}

QVariant DbUtil::scalar(const QString &sql, bool *ok)
{
    QSqlQuery query;
    const bool good = exec(query, sql) && query.next();
    if (ok)
        *ok = good;
    return good ? query.value(0) : QVariant();
}

bool DbUtil::resetSquenceIds(const QStringList &tables)
{
    DbTransaction unit;
    bool ok = true;
    for (const QString &table : tables) {
        if (!isPlainIdentifier(table) || !tableExists(table)) {
            qDebug() << "resetSquenceIds: no table" << table;
            ok = false;
            continue;
        }
        QSqlQuery last;
        if (!exec(last, QStringLiteral("SELECT id FROM %1 ORDER BY id DESC LIMIT 1").arg(table))) {
            ok = false;
            continue;
        }
        QSqlQuery counter;
        if (last.next()) {
            counter.prepare(QStringLiteral("UPDATE sqlite_sequence SET seq = :seq WHERE name = :name"));
            counter.bindValue(QStringLiteral(":seq"), last.value(0).toLongLong());
        } else {
            counter.prepare(QStringLiteral("Delete FROM sqlite_sequence WHERE name = :name"));
        }
        counter.bindValue(QStringLiteral(":name"), table);
        ok = exec(counter) && ok;
    }
    return unit.commit() && ok;
}
