#include "standardisationrecords.h"

#include "models/dbutil.h"

#include <QDateTime>
#include <QDebug>
#include <QSqlQuery>
#include <QSqlRecord>

void StandardisationRecords::setStandardized(bool on)
{
    if (m_standardized == on)
        return;
    m_standardized = on;
    emit changed();
}

bool StandardisationRecords::fetch(int methodId)
{
    setStandardized(false);
    QSqlQuery run;
    run.prepare(QStringLiteral("SELECT * FROM titrationTable WHERE methodId = :id AND titrationType LIKE "
                               "'Standardization' order by datetime(mcreatedAt) DESC"));
    run.bindValue(QStringLiteral(":id"), methodId);
    if (!run.exec() || !run.next())
        return false;
    const QDateTime standardised = run.value(QStringLiteral("mupdatedAt")).toDateTime();
    run.finish();

    QSqlQuery titrant;
    titrant.prepare(QStringLiteral("SELECT mupdatedAt FROM titrantSetupTable WHERE methodId = :id"));
    titrant.bindValue(QStringLiteral(":id"), methodId);
    if (titrant.exec() && titrant.next())
        setStandardized(standardised > titrant.value(0).toDateTime());
    else
        setStandardized(true);
    return m_standardized;
}

bool StandardisationRecords::copy(int originalMethodId, int newMethodId)
{
    QSqlQuery run;
    run.prepare(QStringLiteral("SELECT * FROM titrationTable WHERE methodId = :id AND titrationType LIKE "
                               "'Standardization' order by datetime(mcreatedAt) DESC"));
    run.bindValue(QStringLiteral(":id"), originalMethodId);
    if (!run.exec()) {
        qDebug() << "copyStandardization: query failed for method" << originalMethodId;
        return false;
    }
    if (!run.next())
        return false;
    const QSqlRecord record = run.record();
    run.finish();

    QStringList columns;
    for (int i = 0; i < record.count(); ++i) {
        const QString name = record.fieldName(i);
        if (name != QLatin1String("id") && DbUtil::isPlainIdentifier(name))
            columns << name;
    }
    QStringList placeholders;
    for (int i = 0; i < columns.size(); ++i)
        placeholders << QStringLiteral("?");
    QSqlQuery insert;
    insert.prepare(QStringLiteral("INSERT INTO titrationTable (%1) VALUES (%2)")
                       .arg(columns.join(QStringLiteral(", ")), placeholders.join(QStringLiteral(", "))));
    for (const QString &name : columns) {
        if (name == QLatin1String("methodId"))
            insert.addBindValue(newMethodId);
        else if (name == QLatin1String("mupdatedAt"))
            insert.addBindValue(QDateTime::currentDateTime());
        else
            insert.addBindValue(record.value(name));
    }
    if (!DbUtil::exec(insert)) {
        qDebug() << "copyStandardization: insert failed for method" << newMethodId;
        return false;
    }
    return true;
}
