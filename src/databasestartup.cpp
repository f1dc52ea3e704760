#include "databasestartup.h"

#include "datamigrator.h"
#include "models/sysinfomodel.h"
#include "system/platform.h"

#include <QCoreApplication>
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
const char *g_why = nullptr;
QStringList g_whyArgs;
const char *g_tail = nullptr;

const char *kInMemory = ":memory:";

} // namespace

QString DatabaseStartup::message()
{
    return g_message;
}

QString DatabaseStartup::translatedMessage()
{
    if (!g_why)
        return QString();
    return Text{g_why, g_whyArgs}.shown(true) + QCoreApplication::translate("DatabaseStartup", g_tail);
}

QString DatabaseStartup::Text::shown(bool translated) const
{
    const QString text = translated ? QCoreApplication::translate("DatabaseStartup", source) : QString::fromUtf8(source);
    if (args.size() == 1)
        return text.arg(args.at(0));
    if (args.size() == 2)
        return text.arg(args.at(0), args.at(1));
    return text;
}

void DatabaseStartup::keep(const Text &why, const char *tail)
{
    g_why = why.source;
    g_whyArgs = why.args;
    g_tail = tail;
    g_message = why.shown(false) + QString::fromUtf8(tail);
    qDebug().noquote() << "DatabaseStartup:" << g_message;
}

bool DatabaseStartup::stores()
{
    return g_stores;
}

QString DatabaseStartup::reasonFor(const QString &fileName)
{
    const Text why = reasonTextFor(fileName);
    return why.source ? why.shown(false) : QString();
}

DatabaseStartup::Text DatabaseStartup::reasonTextFor(const QString &fileName)
{
    const DataMigrator *migrator = DataMigrator::dmPtr();
    const QString version = migrator->foundVersion();
    switch (migrator->outcome()) {
    case DataMigrator::Outcome::Unreadable:
        return {QT_TRANSLATE_NOOP("DatabaseStartup", "The database file %1 cannot be read: it is damaged or not a database."), {fileName}};
    case DataMigrator::Outcome::LeftAsFound:
        return {QT_TRANSLATE_NOOP("DatabaseStartup", "The database file %1 could not be brought to this version, and its backup could not be written."), {fileName}};
    case DataMigrator::Outcome::Newer:
        if (version == QLatin1String("UNKNOWN"))
            return {QT_TRANSLATE_NOOP("DatabaseStartup", "The database file %1 carries no version this program knows: it belongs to a newer program, or to another one."), {fileName}};
        return {QT_TRANSLATE_NOOP("DatabaseStartup", "The database file %1 belongs to a newer program (database version %2)."), {fileName, version.left(30)}};
    case DataMigrator::Outcome::ReadOnly:
        return {QT_TRANSLATE_NOOP("DatabaseStartup", "The database file %1 cannot be written (%2)."), {fileName, migrator->writeError()}};
    default:
        return {};
    }
}

QString DatabaseStartup::restartMarkerPath()
{
    return Platform::path(QStringLiteral("/var/Kestrum/migration-restart"));
}

DatabaseStartup::State DatabaseStartup::open(const QString &fileName)
{
    g_message.clear();
    g_why = nullptr;
    g_stores = true;
    QSqlDatabase db = QSqlDatabase::contains(QLatin1String(QSqlDatabase::defaultConnection))
        ? QSqlDatabase::database(QLatin1String(QSqlDatabase::defaultConnection), false)
        : QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"));
    db.close();
    db.setDatabaseName(fileName);
    if (QFileInfo(fileName).isDir())
        return runReadOnly({QT_TRANSLATE_NOOP("DatabaseStartup", "The database file %1 is a folder."), {fileName}});
    if (!db.open())
        return runReadOnly({QT_TRANSLATE_NOOP("DatabaseStartup", "The database file %1 cannot be opened: %2."), {fileName, db.lastError().text()}});

    DataMigrator *migrator = DataMigrator::dmPtr();
    if (migrator->migrate())
        return State::Ready;
    switch (migrator->outcome()) {
    case DataMigrator::Outcome::ReadOnly:
        // A file of this version that takes no writes is still read: its
        // methods and logs are on show, nothing new is stored.
        if (migrator->foundVersion() == SysInfoModel::currentDatabaseVersion)
            return readFileOnly(reasonTextFor(fileName));
        return runReadOnly(reasonTextFor(fileName));
    case DataMigrator::Outcome::Unreadable:
    case DataMigrator::Outcome::LeftAsFound:
    case DataMigrator::Outcome::Newer:
        return runReadOnly(reasonTextFor(fileName));
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

DatabaseStartup::State DatabaseStartup::readFileOnly(const Text &why)
{
    keep(why, QT_TRANSLATE_NOOP("DatabaseStartup", " Its methods and logs can be read, but nothing done now is stored until it is serviced."));
    g_stores = false;
    return State::ReadOnly;
}

DatabaseStartup::State DatabaseStartup::runReadOnly(const Text &why)
{
    g_stores = false;
    keep(why, QT_TRANSLATE_NOOP("DatabaseStartup", " Nothing is stored until it is serviced; the file and its backup are left untouched."));
    // The models still need tables to stand on: an empty one in memory.
    QSqlDatabase db = QSqlDatabase::database(QLatin1String(QSqlDatabase::defaultConnection), false);
    db.close();
    db.setDatabaseName(QString::fromLatin1(kInMemory));
    if (!db.open())
        qDebug() << "DatabaseStartup: not even a database in memory:" << db.lastError().text();
    return State::ReadOnly;
}
