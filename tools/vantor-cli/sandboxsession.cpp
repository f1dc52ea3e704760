#include "sandboxsession.h"

#include "appconstants.h"
#include "datamigrator.h"
#include "models/dbutil.h"
#include "models/sysinfomodel.h"
#include "system/platform.h"

#include <QDir>
#include <QSqlDatabase>
#include <QTextStream>

namespace {

// The start-up check of the application. A file it cannot bring forward is
// saved to JSON and emptied, and the application restarts; the second pass
// here stands for that restart. A new file takes the same way to its first
// version row.
bool migrateDatabase(QTextStream &err)
{
    const bool fresh = !DbUtil::tableExists(SysInfoModel::tableName);
    if (DataMigrator::dmPtr()->migrate())
        return true;
    if (!fresh)
        err << "vantor-cli: the database was of another version; it was saved to "
            << DataMigrator::backupFilePath() << " and emptied\n";
    return DataMigrator::dmPtr()->migrate();
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
    if (!migrateDatabase(err)) {
        err << "vantor-cli: the database " << file << " is of another version and could not be brought forward\n";
        return false;
    }
    return true;
}
