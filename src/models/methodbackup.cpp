#include "models/methodbackup.h"

#include "models/importexport.h"
#include "models/methodfilevalidator.h"
#include "models/methodmodel.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFile>
#include <QFileInfo>

namespace {

const QString kTemp = QStringLiteral("_temp");
constexpr int kMaxNameChars = 60;

bool isReservedChar(QChar c)
{
    return c.unicode() < 0x20 || c.unicode() == 0x7f || QStringLiteral("/\\:*?\"<>|").contains(c);
}

} // namespace

MethodBackup::MethodBackup(MethodModel *list)
    : m_list(list)
{
}

QString MethodBackup::safeFileName(const QString &methodName, QSet<QString> *taken)
{
    QString name;
    for (const QChar c : methodName)
        name += isReservedChar(c) || c.category() == QChar::Other_Format ? QLatin1Char('_') : c;
    name = name.left(kMaxNameChars).trimmed();
    while (name.startsWith(QLatin1Char('.')))
        name[0] = QLatin1Char('_');
    if (name.isEmpty())
        name = QStringLiteral("method");
    QString candidate = name;
    for (int n = 2; taken->contains(candidate.toLower()); ++n)
        candidate = QStringLiteral("%1_%2").arg(name).arg(n);
    taken->insert(candidate.toLower());
    return candidate;
}

int MethodBackup::exportMethods(const QDir &dir, const QString &suffix)
{
    if (!suffix.isEmpty() && !ImportExport::isValidSuffix(suffix))
        return -1;
    MethodModel source(nullptr, false);
    source.loadMethodsFromDb(suffix, false);
    const QStringList tables{QStringLiteral("methodSetupTable") + suffix, QStringLiteral("electrodeSetupTable") + suffix,
                             QStringLiteral("titrationSetupTable") + suffix, QStringLiteral("titrantSetupTable") + suffix,
                             QStringLiteral("systemInfo")};
    QSet<QString> taken;
    int written = 0;
    bool failed = false;
    for (const MethodModel *entry : source.methodList()) {
        if (entry->id() == MethodModel::scratchMethodId)
            continue;
        if (m_writable && !m_writable()) {
            m_messages << QCoreApplication::translate("MethodBackup", "%1: the disk is no longer there").arg(entry->methodName());
            failed = true;
            break;
        }
        const int id = entry->id();
        const QStringList queries{
            QStringLiteral("SELECT * FROM methodSetupTable%1 WHERE id=%2").arg(suffix).arg(id),
            QStringLiteral("SELECT * FROM electrodeSetupTable%1 WHERE methodId=%2").arg(suffix).arg(id),
            QStringLiteral("SELECT * FROM titrationSetupTable%1 WHERE methodId=%2").arg(suffix).arg(id),
            QStringLiteral("SELECT * FROM titrantSetupTable%1 WHERE methodId=%2").arg(suffix).arg(id),
            QStringLiteral("SELECT * FROM systemInfo")};
        ImportExport io(dir.absoluteFilePath(safeFileName(entry->methodName(), &taken) + QStringLiteral(".json")));
        if (io.exportQueries(queries, tables, suffix)) {
            ++written;
        } else {
            m_messages << QCoreApplication::translate("MethodBackup", "%1: could not be written").arg(entry->methodName());
            failed = true;
        }
    }
    return failed ? -1 : written;
}

QStringList MethodBackup::jsonFiles(const QDir &dir)
{
    QStringList files = dir.entryList({QStringLiteral("*.json")}, QDir::Files | QDir::Readable, QDir::Name);
    qDebug() << "MethodBackup: files" << files.mid(0, maxFiles).join(QStringLiteral(", "));
    if (files.size() > maxFiles) {
        m_messages << QCoreApplication::translate("MethodBackup", "%1 files: only the first %2 are read").arg(files.size()).arg(maxFiles);
        files = files.mid(0, maxFiles);
    }
    return files;
}

bool MethodBackup::stageFile(const QString &path, bool sanitize)
{
    const QString name = QFileInfo(path).fileName();
    const QString refused = MethodFileValidator(MethodFileValidator::storedBuretteMl()).checkFile(path);
    if (!refused.isEmpty()) {
        m_messages << QStringLiteral("%1: %2").arg(name.left(40), refused);
        return false;
    }
    ImportExport io(path);
    io.dropTables(kTemp);
    qDebug() << "Importing: " << path;
    bool staged = io.importAll(ImportExport::Replace, kTemp);
    const int before = m_list->methodList().size();
    staged = m_list->loadMethodsFromDb(kTemp, sanitize) && staged;
    for (const QString &why : m_list->refusals())
        m_messages << QStringLiteral("%1: %2").arg(name.left(40), why);
    io.dropTables(kTemp);
    return staged && m_list->methodList().size() > before;
}

bool MethodBackup::importMethods(const QDir &dir, const QString &suffix, bool deleteFiles, bool sanitize)
{
    m_list->clearMethods();
    if (!ImportExport::isValidSuffix(suffix))
        return false;
    ImportExport().clearTables(suffix);
    bool any = false;
    for (const QString &file : jsonFiles(dir)) {
        const QString path = dir.absoluteFilePath(file);
        any = stageFile(path, sanitize) || any;
        if (deleteFiles)
            QFile::remove(path);
    }
    return m_list->methodsToStaging(suffix) && any;
}

int MethodBackup::installAll()
{
    int installed = 0;
    for (MethodModel *entry : m_list->methodList()) {
        QString why;
        if (m_list->install(entry, &why) > 0)
            ++installed;
        else
            m_messages << QStringLiteral("%1: %2").arg(entry->methodName(), why);
    }
    return installed;
}

int MethodBackup::restoreFolder(const QDir &dir)
{
    int installed = 0;
    for (const QString &file : jsonFiles(dir)) {
        m_list->clearMethods();
        const QString path = dir.absoluteFilePath(file);
        const int before = installed;
        if (stageFile(path, true))
            installed += installAll();
        if (installed > before && installed - before == m_list->methodList().size())
            QFile::remove(path);
        else
            m_messages << QCoreApplication::translate("MethodBackup", "%1: kept for the next start").arg(file.left(40));
    }
    m_list->clearMethods();
    return installed;
}
