#include "databasestartup.h"

#include "datamigrator.h"
#include "system/platform.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QSqlDatabase>
#include <QSqlError>

namespace {

QString g_message;

const char *kInMemory = ":memory:";

} // namespace

QString DatabaseStartup::message()
{
    return g_message;
}

QString DatabaseStartup::restartMarkerPath()
{
    return Platform::path(QStringLiteral("/var/Kestrum/migration-restart"));
}

DatabaseStartup::State DatabaseStartup::open(const QString &fileName)
{
    g_message.clear();
    QSqlDatabase db = QSqlDatabase::contains(QLatin1String(QSqlDatabase::defaultConnection))
        ? QSqlDatabase::database(QLatin1String(QSqlDatabase::defaultConnection), false)
        : QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"));
    db.close();
    db.setDatabaseName(fileName);
    if (QFileInfo(fileName).isDir())
        return runReadOnly(QStringLiteral("The database file %1 is a folder.").arg(fileName));
    if (!db.open())
        return runReadOnly(QStringLiteral("The database file %1 cannot be opened: %2.").arg(fileName, db.lastError().text()));

    DataMigrator *migrator = DataMigrator::dmPtr();
    if (migrator->migrate())
        return State::Ready;
    switch (migrator->outcome()) {
    case DataMigrator::Outcome::Unreadable:
        return runReadOnly(QStringLiteral("The database file %1 cannot be read (it is damaged or not a database).").arg(fileName));
    case DataMigrator::Outcome::LeftAsFound:
        return runReadOnly(QStringLiteral("The database file %1 could not be brought to this version, and its backup could not be written.").arg(fileName));
    default:
        break;
    }
    // Emptied after its copy was written: the service starts afresh once.
    if (!restartOncePerBoot())
        qDebug() << "DatabaseStartup: going on without a restart";
    return State::Ready;
}

bool DatabaseStartup::restartOncePerBoot()
{
    const QString boot = Platform::bootId();
    QFile marker(restartMarkerPath());
    if (!boot.isEmpty() && marker.open(QIODevice::ReadOnly) && QString::fromLatin1(marker.read(64)).trimmed() == boot) {
        qDebug() << "DatabaseStartup: the service was restarted once since boot already; no second restart";
        return false;
    }
    marker.close();
    QDir().mkpath(QFileInfo(restartMarkerPath()).absolutePath());
    QSaveFile write(restartMarkerPath());
    if (!write.open(QIODevice::WriteOnly) || write.write(boot.toLatin1() + '\n') < 0 || !write.commit()) {
        // Without the marker a restart could repeat: better none at all.
        qDebug() << "DatabaseStartup: cannot write" << restartMarkerPath() << "; no restart";
        return false;
    }
    DataMigrator::dmPtr()->restartApp();
    return true;
}

DatabaseStartup::State DatabaseStartup::runReadOnly(const QString &why)
{
    g_message = why + QStringLiteral(" Nothing is stored until it is serviced; the file and its backup are left untouched.");
    qDebug().noquote() << "DatabaseStartup:" << g_message;
    // The models still need tables to stand on: an empty one in memory.
    QSqlDatabase db = QSqlDatabase::database(QLatin1String(QSqlDatabase::defaultConnection), false);
    db.close();
    db.setDatabaseName(QString::fromLatin1(kInMemory));
    if (!db.open())
        qDebug() << "DatabaseStartup: not even a database in memory:" << db.lastError().text();
    return State::ReadOnly;
}
