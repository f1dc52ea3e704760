#pragma once

#include <QString>
#include <QTemporaryDir>

#include <memory>

class QTextStream;

// The sandbox of one console command: the platform rooted in it (a
// temporary folder when none is given), and its database open on the
// default connection and brought to this version as the application's
// start brings it. Everything is undone when the session goes.
class SandboxSession
{
public:
    explicit SandboxSession(const QString &root);
    ~SandboxSession();

    // False after a message on `err`.
    bool open(QTextStream &err);
    // False when the database takes no writes: what the command does is
    // shown, and reported as not stored.
    bool stores() const { return m_stores; }

private:
    QTemporaryDir m_temporary;
    QString m_previousRoot;
    bool m_rooted = false;
    bool m_databaseOpen = false;
    bool m_stores = true;
};
