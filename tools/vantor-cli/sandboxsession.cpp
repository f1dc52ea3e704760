#include "sandboxsession.h"

#include "appconstants.h"
#include "databasestartup.h"
#include "datamigrator.h"
#include "models/dbutil.h"
#include "models/sysinfomodel.h"
#include "system/platform.h"

#include <QDir>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QTextStream>

namespace {

// The start-up check of the application. An old file it cannot bring
// forward is saved to JSON and emptied, and the application restarts; the
// second pass here stands for that restart. A new file takes the same way
// to its first version row. A damaged file, or one of a newer or unknown
// version, is left as it is and the command stops; a file that takes no
// writes is read, and nothing is stored.
bool migrateDatabase(const QString &file, QTextStream &err, bool *stores)
{
    DataMigrator *migrator = DataMigrator::dmPtr();
    const bool fresh = !DbUtil::tableExists(SysInfoModel::tableName);
    if (migrator->migrate())
        return true;
    if (migrator->outcome() == DataMigrator::Outcome::Wiped) {
        if (!fresh)
            err << "vantor-cli: the database was of an older version that could not be brought forward; it was saved to "
                << DataMigrator::backupFilePath() << " and emptied\n";
        if (migrator->migrate())
            return true;
    }
    if (migrator->outcome() == DataMigrator::Outcome::ReadOnly
        && migrator->foundVersion() == SysInfoModel::currentDatabaseVersion) {
        err << "vantor-cli: " << DatabaseStartup::reasonFor(file) << " Nothing will be stored.\n";
        *stores = false;
        return true;
    }
    const QString why = DatabaseStartup::reasonFor(file);
    err << "vantor-cli: "
        << (why.isEmpty() ? QStringLiteral("the database %1 could not be brought to this version").arg(file) : why)
        << " It was left as it is.\n";
    return false;
}

} // namespace

SandboxSession::SandboxSession(const QString &root)
    : m_previousRoot(Platform::sandboxRoot())
{
    // A relative folder is the working directory's.
    const QString path = root.isEmpty() ? m_temporary.path() : QDir(root).absolutePath();
    if (!QDir().mkpath(path))
        return;
    Platform::setSandboxRoot(path);
    Platform::prepareSandbox();
    m_rooted = true;
}

SandboxSession::~SandboxSession()
{
    if (m_databaseOpen) {
        {
            QSqlDatabase db = QSqlDatabase::database(QLatin1String(QSqlDatabase::defaultConnection), false);
            db.close();
        }
        QSqlDatabase::removeDatabase(QLatin1String(QSqlDatabase::defaultConnection));
    }
    if (m_rooted)
        Platform::setSandboxRoot(m_previousRoot);
}

bool SandboxSession::open(QTextStream &err)
{
    if (!m_rooted) {
        err << "vantor-cli: cannot make the sandbox folder\n";
        return false;
    }
    const QString file = Platform::path(QStringLiteral(DATABASE_FILE_NAME));
    QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"));
    db.setDatabaseName(file);
    m_databaseOpen = true;
    if (!db.open()) {
        err << "vantor-cli: cannot open the database " << file << "\n";
        return false;
    }
    if (!migrateDatabase(file, err, &m_stores))
        return false;
    if (m_stores)
        return true;
    // The command runs as usual on a copy that is thrown away with the
    // session, so its figures are still shown; the file is only read.
    const QString copy = m_temporary.filePath(QStringLiteral("read-only-copy.db"));
    QSqlQuery vacuum;
    vacuum.prepare(QStringLiteral("VACUUM INTO :copy"));
    vacuum.bindValue(QStringLiteral(":copy"), copy);
    if (!m_temporary.isValid() || !vacuum.exec()) {
        err << "vantor-cli: cannot copy the database " << file << " to work on: " << vacuum.lastError().text() << "\n";
        return false;
    }
    vacuum.finish();
    db.close();
    db.setDatabaseName(copy);
    if (!db.open()) {
        err << "vantor-cli: cannot open the copy of the database " << file << "\n";
        return false;
    }
    return true;
}
