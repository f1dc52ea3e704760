#pragma once

#include <QDir>
#include <QSet>
#include <QString>
#include <QStringList>

#include <functional>

class MethodModel;

// Methods as files, one per method: out of the tables into a folder, and
// from a folder into the staging tables and the list `methods` of a
// MethodModel (what the install dialogue offers). The live tables change
// only through install.
class MethodBackup
{
public:
    // More files than this in one folder are not read.
    static constexpr int maxFiles = 100;

    // `list` receives the imported methods; not owned.
    explicit MethodBackup(MethodModel *list);

    // Asked before each file is written; false stops the export (the USB
    // disk went away).
    void setWritableCheck(std::function<bool()> check) { m_writable = std::move(check); }

    // One file per method of the tables of `suffix` ("" live, "_import"),
    // the working method never. The number of files written; 0 when there
    // is no method; -1 when any file could not be written completely.
    int exportMethods(const QDir &dir, const QString &suffix);
    // Every "*.json" of the folder that is a valid method file goes into
    // `methods` and the staging tables of `suffix`. True when one did.
    bool importMethods(const QDir &dir, const QString &suffix, bool deleteFiles, bool sanitize);
    // Installs every method of `methods` under a free name. The number installed.
    int installAll();
    // Each file of the folder: checked, installed, and removed once its
    // method is in; a file that could not be installed stays. The number installed.
    int restoreFolder(const QDir &dir);

    // Why files or methods were left out, one line each ("file: why").
    const QStringList &messages() const { return m_messages; }

    // A method name as a file name of its own in one folder: no "/", "\",
    // control or reserved characters, no leading dot, at most 60
    // characters; a name already in `taken` (compared without case, as a
    // FAT disk does) gets "_2", "_3"...
    static QString safeFileName(const QString &methodName, QSet<QString> *taken);

private:
    QStringList jsonFiles(const QDir &dir);
    // Stages one file through the "_temp" tables into `methods`.
    bool stageFile(const QString &path, bool sanitize);

    MethodModel *m_list;
    std::function<bool()> m_writable;
    QStringList m_messages;
};
