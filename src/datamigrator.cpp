#include "datamigrator.h"

#include "models/calibrationcyclemodel.h"
#include "models/calibrationlogmodel.h"
#include "models/calibrationmodel.h"
#include "models/dbtransaction.h"
#include "models/dbutil.h"
#include "models/electrodesetupmodel.h"
#include "models/measurementlogmodel.h"
#include "models/measurementmodel.h"
#include "models/methodmodel.h"
#include "models/reportmodel.h"
#include "models/setupmodel.h"
#include "models/standardisationlogmodel.h"
#include "models/sysinfomodel.h"
#include "models/titrantsetupmodel.h"
#include "models/titrationcyclemodel.h"
#include "models/titrationlogmodel.h"
#include "models/titrationmodel.h"
#include "models/titrationsetupmodel.h"
#include "models/importexport.h"
#include "models/methodbackup.h"
#include "system/platform.h"
#include "system/usbdir.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlError>
#include <QSqlQuery>

#include <algorithm>
#include <functional>
#include <vector>

DataMigrator::DataMigrator(QObject *parent)
    : QObject(parent)
{
}

DataMigrator *DataMigrator::dmPtr()
{
    static DataMigrator *instance = new DataMigrator;
    return instance;
}

QString DataMigrator::backupFilePath()
{
    return Platform::path(QStringLiteral("/var/Kestrum/database_backup.json"));
}

bool DataMigrator::isKnownVersion(const QString &version)
{
    return DbUtil::versionRange(QStringLiteral("1.1"), SysInfoModel::currentDatabaseVersion).contains(version);
}

bool DataMigrator::passesQuickCheck()
{
    QSqlQuery check;
    if (!check.exec(QStringLiteral("PRAGMA quick_check"))) {
        qDebug() << "DataMigrator: quick_check cannot run:" << check.lastError().text();
        return false;
    }
    QStringList problems;
    while (check.next() && problems.size() < 5)
        problems << check.value(0).toString();
    if (problems == QStringList{QStringLiteral("ok")})
        return true;
    qDebug() << "DataMigrator: quick_check found" << problems << check.lastError().text();
    return false;
}

bool DataMigrator::takesWrites()
{
    // A whole transaction rolled back: the file is not touched (a savepoint
    // released after its rollback would still count as a write).
    m_writeError.clear();
    QSqlQuery probe;
    bool ok = probe.exec(QStringLiteral("BEGIN"));
    if (ok) {
        ok = probe.exec(QStringLiteral("CREATE TABLE write_test_kestrum (id integer)"));
        if (!ok)
            m_writeError = probe.lastError().databaseText().isEmpty() ? probe.lastError().text() : probe.lastError().databaseText();
        probe.finish();
        QSqlQuery(QStringLiteral("ROLLBACK"));
    } else {
        m_writeError = probe.lastError().text();
    }
    if (!ok)
        qDebug() << "DataMigrator: the file takes no writes:" << m_writeError;
    return ok;
}

bool DataMigrator::migrate()
{
    m_foundVersion = QStringLiteral("UNKNOWN");
    // Nothing is written, migrated, copied or emptied on the strength of a
    // file that is damaged or can't even be read.
    if (!passesQuickCheck()) {
        m_outcome = Outcome::Unreadable;
        return false;
    }
    bool readable = true;
    const QString version = SysInfoModel::readDbVersion(QString(), &readable);
    m_foundVersion = version;
    qDebug() << "DataMigrator: database version" << version;
    if (!readable) {
        m_outcome = Outcome::Unreadable;
        return false;
    }
    // A file with tables but a version this program doesn't know (a newer
    // program's, or none at all) is not ours to empty. Only a file without
    // any table of its own is a first start.
    const QStringList tables = DbUtil::tableNames();
    const bool fresh = std::none_of(tables.cbegin(), tables.cend(),
                                    [](const QString &t) { return !t.startsWith(QLatin1String("sqlite_")); });
    if (!fresh && !isKnownVersion(version)) {
        m_outcome = Outcome::Newer;
        return false;
    }
    if (!takesWrites()) {
        m_outcome = Outcome::ReadOnly;
        return false;
    }
    m_outcome = Outcome::Current;
    // The one-file staging tables of an install that was cut short (a kill
    // or a power loss) go now, not only with the next install.
    if (!ImportExport().dropTables(QStringLiteral("_temp")))
        qDebug() << "DataMigrator: staging tables left by an install could not be dropped";
    if (version == SysInfoModel::currentDatabaseVersion)
        return true;

    // All models move forward together or not at all: a power loss or a
    // failed step leaves the file as it was found.
    bool migrated = false;
    {
        DbTransaction unit;
        migrated = unit.isOpen() && migrateModelsFrom(version) && unit.commit();
    }
    if (migrated) {
        m_outcome = Outcome::Migrated;
        return true;
    }
    return wipeDatabaseRebuildSysInfo();
}

bool DataMigrator::migrateModelsFrom(const QString &fromVersion)
{
    const std::vector<std::function<bool(const QString &)>> models{
        &CalibrationCycleModel::migrate, &CalibrationModel::migrate, &CalibrationLogModel::migrate,
        &ElectrodeSetupModel::migrate,   &MeasurementModel::migrate, &MeasurementLogModel::migrate,
        &MethodModel::migrate,           &SetupModel::migrate,       &SysInfoModel::migrate,
        &TitrantSetupModel::migrate,     &TitrationLogModel::migrate, &TitrationModel::migrate,
        &TitrationSetupModel::migrate,   &TitrationCycleModel::migrate, &StandardisationLogModel::migrate,
        &ReportModel::migrate,
    };
    bool result = true;
    for (const auto &m : models)
        result = m(fromVersion) && result;
    return result;
}

bool DataMigrator::wipeDatabaseRebuildSysInfo()
{
    m_outcome = Outcome::LeftAsFound;
    QStringList ownTables = DbUtil::tableNames();
    ownTables.erase(std::remove_if(ownTables.begin(), ownTables.end(),
                                   [](const QString &t) { return t.startsWith(QLatin1String("sqlite_")); }),
                    ownTables.end());
    // Nothing is destroyed without its copy; a file without tables of its own
    // (the first start) has nothing to copy and leaves the last copy alone.
    ImportExport backup(backupFilePath());
    if (!ownTables.isEmpty() && !backup.exportAll()) {
        qDebug() << "DataMigrator: the JSON copy could not be written; the file is left as it is";
        return false;
    }

    {
        DbTransaction unit;
        bool ok = true;
        // SQLite's own tables go with the tables they serve.
        for (const QString &name : qAsConst(ownTables)) {
            const bool dropped = DbUtil::execText(QStringLiteral("DROP TABLE \"%1\"").arg(QString(name).replace(QLatin1Char('"'), QStringLiteral("\"\""))));
            qDebug() << "DROP TABLE" << name << " Result: " << dropped;
            ok = dropped && ok;
        }
        if (DbUtil::tableExists(QStringLiteral("sqlite_sequence")))
            ok = DbUtil::execText(QStringLiteral("DELETE FROM sqlite_sequence")) && ok;
        QSqlQuery insert;
        ok = ok && SysInfoModel::createTables(false);
        ok = ok && insert.prepare(QStringLiteral("INSERT INTO %1 (dbVersion) VALUES(:dbVersion)").arg(SysInfoModel::tableName));
        insert.bindValue(QStringLiteral(":dbVersion"), SysInfoModel::currentDatabaseVersion);
        ok = ok && DbUtil::exec(insert);
        if (!ok || !unit.commit()) {
            qDebug() << "DataMigrator: the file could not be emptied; it stays as it was";
            return false;
        }
    }
    m_outcome = Outcome::Wiped;
    DbUtil::execText(QStringLiteral("VACUUM"));
    return false;
}

void DataMigrator::restartApp()
{
    const Platform::Result r = Platform::run(QStringLiteral("systemctl"), {QStringLiteral("restart"), QStringLiteral("b2qt")}, 30000);
    if (!r.ok())
        qDebug() << "DataMigrator: restart failed, exit" << r.exitCode << r.standardError;
}

bool DataMigrator::migrateUSB()
{
    USBDir dir(QStringLiteral("/VantorPro/"));
    if (!dir.isUsable() || !dir.mkpath(dir.absoluteFilePath(QStringLiteral("methods_backup"))))
        return false;
    const QString old = dir.absoluteFilePath(QStringLiteral("methods_backup.json"));
    if (!QFileInfo(old).isFile())
        return false;
    const QString staging = QStringLiteral("_import");
    ImportExport io(old);
    if (!io.clearTables(staging) || !io.importAll(ImportExport::Replace, staging))
        return false;
    const int written = MethodBackup(nullptr).exportMethods(QDir(dir.absoluteFilePath(QStringLiteral("methods_backup"))), staging);
    qDebug() << "DataMigrator: methods of the old backup file written:" << written;
    return written > 0 && dir.isUsable() && QFile::remove(old);
}
