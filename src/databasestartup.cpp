#include "databasestartup.h"

#include "datamigrator.h"
#include "models/sysinfomodel.h"
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
bool g_stores = true;

const char *kInMemory = ":memory:";

} // namespace

QString DatabaseStartup::message()
{
    return g_message;
}

bool DatabaseStartup::stores()
{
    return g_stores;
}

QString DatabaseStartup::reasonFor(const QString &fileName)
{
    const DataMigrator *migrator = DataMigrator::dmPtr();
    const QString version = migrator->foundVersion();
    switch (migrator->outcome()) {
    case DataMigrator::Outcome::Unreadable:
        return QStringLiteral("The database file %1 cannot be read: it is damaged or not a database.").arg(fileName);
    case DataMigrator::Outcome::LeftAsFound:
        return QStringLiteral("The database file %1 could not be brought to this version, and its backup could not be written.").arg(fileName);
    case DataMigrator::Outcome::Newer:
        if (version == QLatin1String("UNKNOWN"))
            return QStringLiteral("The database file %1 carries no version this program knows: it belongs to a newer program, or to another one.").arg(fileName);
        return QStringLiteral("The database file %1 belongs to a newer program (database version %2).").arg(fileName, version.left(30));
    case DataMigrator::Outcome::ReadOnly:
        return QStringLiteral("The database file %1 cannot be written (%2).").arg(fileName, migrator->writeError());
    default:
        return QString();
    }
}

QString DatabaseStartup::restartMarkerPath()
{
    return Platform::path(QStringLiteral("/var/Kestrum/migration-restart"));
}

DatabaseStartup::State DatabaseStartup::open(const QString &fileName)
{
    g_message.clear();
    g_stores = true;
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
    case DataMigrator::Outcome::ReadOnly:
        // A file of this version that takes no writes is still read: its
        // methods and logs are on show, nothing new is stored.
        if (migrator->foundVersion() == SysInfoModel::currentDatabaseVersion)
            return readFileOnly(reasonFor(fileName));
        return runReadOnly(reasonFor(fileName));
    case DataMigrator::Outcome::Unreadable:
    case DataMigrator::Outcome::LeftAsFound:
    case DataMigrator::Outcome::Newer:
        return runReadOnly(reasonFor(fileName));
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

DatabaseStartup::State DatabaseStartup::readFileOnly(const QString &why)
{
    g_message = why + QStringLiteral(" Its methods and logs can be read, but nothing done now is stored until it is serviced.");
    g_stores = false;
    qDebug().noquote() << "DatabaseStartup:" << g_message;
    return State::ReadOnly;
}

DatabaseStartup::State DatabaseStartup::runReadOnly(const QString &why)
{
    g_stores = false;
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
