#include "models/sysinfomodel.h"

#include "models/dbtransaction.h"
#include "models/dbutil.h"
#include "models/migrationframe.h"

#include <QDebug>
#include <QSqlError>
#include <QSqlQuery>
#include <QSysInfo>

namespace {

const QStringList &textColumns()
{
    static const QStringList columns{QStringLiteral("appVersion"), QStringLiteral("dbVersion"),
                                     QStringLiteral("mfgSerialNum"), QStringLiteral("mspVersion"),
                                     QStringLiteral("osTreeHash"), QStringLiteral("osVersion"),
                                     QStringLiteral("productType")};
    return columns;
}

const QString kUnknown = QStringLiteral("UNKNOWN");

} // namespace

const QString SysInfoModel::tableName = QStringLiteral("systemInfo");
const QString SysInfoModel::currentDatabaseVersion = QStringLiteral("1.8");
const QMap<QString, QString> SysInfoModel::tableFields{
    {QStringLiteral("appVersion"), QStringLiteral("varchar(30)")},
    {QStringLiteral("dbVersion"), QStringLiteral("varchar(30)")},
    {QStringLiteral("id"), QStringLiteral("integer primary key")},
    {QStringLiteral("mfgSerialNum"), QStringLiteral("varchar(30)")},
    {QStringLiteral("mspVersion"), QStringLiteral("varchar(30)")},
    {QStringLiteral("osTreeHash"), QStringLiteral("varchar(64)")},
    {QStringLiteral("osVersion"), QStringLiteral("varchar(128)")},
    {QStringLiteral("productType"), QStringLiteral("varchar(30)")},
    {QStringLiteral("timestamp"), QStringLiteral("DATETIME UNIQUE")},
};
QStringList SysInfoModel::noMigrateList = DbUtil::versionRange(QStringLiteral("1.2"), QStringLiteral("1.7"));

SysInfoModel::SysInfoModel(QObject *parent)
    : QObject(parent)
{
    createTables();
    m_timestamp = QDateTime::currentDateTime();
    m_id = -1;
    for (const QString &c : textColumns())
        m_fields[c] = kUnknown;
    loadNewest();
    setDbVersion(currentDatabaseVersion);
    setOsVersion(QSysInfo::kernelVersion());
}

QString SysInfoModel::createStatement(const QString &suffix)
{
    QStringList columns;
    for (auto it = tableFields.cbegin(); it != tableFields.cend(); ++it)
        columns << it.key() + QLatin1Char(' ') + it.value();
    return QStringLiteral("CREATE TABLE IF NOT EXISTS %1%2 (%3)").arg(tableName, suffix, columns.join(QStringLiteral(", ")));
}

bool SysInfoModel::createTables(bool withStaging)
{
    const bool live = DbUtil::execText(createStatement(QString()));
    const bool staging = !withStaging || DbUtil::execText(createStatement(QStringLiteral("_import")));
    return live && staging;
}

QString SysInfoModel::readDbVersion(const QString &suffix, bool *readable)
{
    if (readable)
        *readable = true;
    if (!suffix.isEmpty() && !DbUtil::isPlainIdentifier(suffix))
        return kUnknown;
    QSqlQuery probe;
    probe.prepare(QStringLiteral("SELECT count(*) FROM sqlite_master WHERE type='table' AND name=:name"));
    probe.bindValue(QStringLiteral(":name"), tableName + suffix);
    if (!probe.exec() || !probe.next()) {
        qDebug() << "SysInfoModel: the database file cannot be read:" << probe.lastError().text();
        if (readable)
            *readable = false;
        return kUnknown;
    }
    if (probe.value(0).toInt() == 0)
        return kUnknown;
    QSqlQuery query;
    if (!query.exec(QStringLiteral("SELECT dbVersion FROM %1%2 ORDER BY datetime(timestamp) DESC LIMIT 1").arg(tableName, suffix))) {
        qDebug() << "SysInfoModel: the version row cannot be read:" << query.lastError().text();
        if (readable)
            *readable = false;
        return kUnknown;
    }
    if (!query.next() || query.value(0).isNull())
        return kUnknown;
    const QString version = query.value(0).toString();
    return version.isEmpty() ? kUnknown : version;
}

void SysInfoModel::loadNewest()
{
    QSqlQuery query;
    if (!DbUtil::exec(query, QStringLiteral("SELECT %1 FROM %2 ORDER BY datetime(timestamp) DESC LIMIT 1")
                                 .arg(textColumns().join(QLatin1Char(',')), tableName)))
        return;
    if (!query.next())
        return;
    for (int i = 0; i < textColumns().size(); ++i) {
        if (!query.value(i).isNull())
            m_fields[textColumns().at(i)] = query.value(i).toString();
    }
}

void SysInfoModel::setOsTreeHash(const QString &v)
{
    if (v.isEmpty())
        return;
    setField(QStringLiteral("osTreeHash"), v);
}

void SysInfoModel::setField(const QString &column, const QString &value)
{
    if (m_fields.value(column) == value)
        return;
    m_fields[column] = value;
    save();
}

bool SysInfoModel::save()
{
    QStringList columns = textColumns();
    columns << QStringLiteral("timestamp");
    QStringList placeholders;
    for (const QString &c : columns)
        placeholders << QLatin1Char(':') + c;
    const QString values = QStringLiteral("VALUES (%1)").arg(placeholders.join(QLatin1Char(',')));
    QSqlQuery query;
    if (m_id < 0) {
        query.prepare(QStringLiteral("INSERT INTO %1%2 (%3) %4").arg(tableName, QString(), columns.join(QLatin1Char(',')), values));
    } else {
        query.prepare(QStringLiteral("REPLACE INTO %1%2 (id,%3) %4")
                          .arg(tableName, QString(), columns.join(QLatin1Char(',')),
                               QStringLiteral("VALUES (:id,%1)").arg(placeholders.join(QLatin1Char(',')))));
        query.bindValue(QStringLiteral(":id"), m_id);
    }
    for (const QString &c : textColumns())
        query.bindValue(QLatin1Char(':') + c, m_fields.value(c));
    query.bindValue(QStringLiteral(":timestamp"), m_timestamp);
    if (!DbUtil::exec(query))
        return false;
    if (m_id < 0)
        m_id = query.lastInsertId().toInt();
    return true;
}

bool SysInfoModel::rebuildFromOldShape()
{
    DbTransaction unit;
    if (!DbUtil::execText(QStringLiteral("ALTER TABLE %1 RENAME TO %1_migrate").arg(tableName)))
        return false;
    const QString columns = QStringLiteral("timestamp, osTreeHash, appVersion, mspVersion, dbVersion, osVersion, mfgSerialNum, productType");
    const bool ok = DbUtil::execText(QStringLiteral("DROP TABLE IF EXISTS %1_import").arg(tableName))
        && createTables()
        && DbUtil::execText(QStringLiteral("INSERT INTO %1 (%2) SELECT %2 FROM %1_migrate").arg(tableName, columns))
        && DbUtil::execText(QStringLiteral("DROP TABLE %1_migrate").arg(tableName));
    return ok && unit.commit();
}

bool SysInfoModel::migrate(const QString &fromVersion)
{
    MigrationFrame frame;
    frame.modelName = QStringLiteral("SysInfoModel");
    frame.noMigrateList = noMigrateList;
    frame.handledVersions = QStringList{QStringLiteral("1.1")};
    frame.step = [](const QString &) { return rebuildFromOldShape(); };
    return frame.run(fromVersion);
}
