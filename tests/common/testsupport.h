#pragma once

#include "system/platform.h"

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>

// Points the platform layer at a fresh temporary sandbox for its lifetime.
class TempSandbox
{
public:
    TempSandbox();
    ~TempSandbox();
    QString root() const { return m_dir.path(); }
    // The sandboxed path of a target path.
    QString path(const QString &targetPath) const { return Platform::path(targetPath); }

private:
    QTemporaryDir m_dir;
    QString m_previous;
};

// Runs the Qt event loop until pred() holds or timeoutMs passes; returns pred().
// For waiting on another process (the virtual instrument), never on a timing
// of our own: those take the injectable clock.
bool waitUntil(const std::function<bool()> &pred, int timeoutMs = 5000);

// Runs build/bin/vantor-cli with `args` (from `dir` if given) and answers
// its standard output and error; *exitCode is -1 if it crashed or hung.
QString runVantorCli(const QStringList &args, int *exitCode, const QString &dir = QString());
// The same with `file` mounted read only (a mount namespace of its own, as
// root too); the answer starts "unshare:" where no namespace can be made.
QString runVantorCliReadOnly(const QString &file, const QStringList &args, int *exitCode);

// Reads a whole text file ("" when missing).
QString readTextFile(const QString &path);
// Writes a whole text file, making its folder.
bool writeTextFile(const QString &path, const QString &text);
