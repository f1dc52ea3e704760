#include "testdatabase.h"

#include "appconstants.h"

#include <QDebug>
#include <QProcess>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

TestDatabase::TestDatabase()
{
    Platform::prepareSandbox();
    open();
}

TestDatabase::~TestDatabase()
{
    close();
}

QString TestDatabase::path() const
{
    return Platform::path(QStringLiteral(DATABASE_FILE_NAME));
}

bool TestDatabase::open()
{
    QSqlDatabase db = QSqlDatabase::contains(QLatin1String(QSqlDatabase::defaultConnection))
        ? QSqlDatabase::database(QLatin1String(QSqlDatabase::defaultConnection), false)
        : QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"));
    db.setDatabaseName(path());
    return db.open();
}

void TestDatabase::close()
{
    {
        QSqlDatabase db = QSqlDatabase::database(QLatin1String(QSqlDatabase::defaultConnection), false);
        db.close();
    }
    QSqlDatabase::removeDatabase(QLatin1String(QSqlDatabase::defaultConnection));
}

bool TestDatabase::reopen()
{
    close();
    return open();
}

QString TestDatabase::dump(const QStringList &tables) const
{
    QStringList args{path()};
    if (tables.isEmpty()) {
        args << QStringLiteral(".dump");
    } else {
        for (const QString &t : tables)
            args << QStringLiteral(".dump '%1'").arg(t);
    }
    QProcess p;
    p.start(QStringLiteral("sqlite3"), args);
    p.waitForFinished(30000);
    return QString::fromUtf8(p.readAllStandardOutput());
}

bool TestDatabase::runScript(const QString &sql) const
{
    QProcess p;
    p.start(QStringLiteral("sqlite3"), {path()});
    p.write(sql.toUtf8());
    p.closeWriteChannel();
    p.waitForFinished(30000);
    if (p.exitCode() != 0)
        qDebug() << "sqlite3:" << p.readAllStandardError();
    return p.exitStatus() == QProcess::NormalExit && p.exitCode() == 0;
}

QStringList TestDatabase::columns(const QString &table)
{
    QStringList names;
    QSqlQuery q;
    q.exec(QStringLiteral("PRAGMA table_info('%1')").arg(table));
    while (q.next())
        names << q.value(1).toString();
    return names;
}

int TestDatabase::rowCount(const QString &table, const QString &where)
{
    QSqlQuery q;
    if (!q.exec(QStringLiteral("SELECT count(*) FROM %1 %2").arg(table, where.isEmpty() ? QString() : QStringLiteral("WHERE ") + where)) || !q.next())
        return -1;
    return q.value(0).toInt();
}

bool TestDatabase::exec(const QString &sql)
{
    QSqlQuery q;
    const bool ok = q.exec(sql);
    if (!ok)
        qDebug() << "test SQL failed:" << q.lastError().text() << sql;
    return ok;
}
