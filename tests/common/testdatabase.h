#pragma once

#include "testsupport.h"

#include <QString>
#include <QStringList>

// A fresh database file in a temporary sandbox on the default connection,
// as the application opens it. Closing and opening again stands for a
// restart of the application.
class TestDatabase
{
public:
    TestDatabase();
    ~TestDatabase();
    QString path() const;
    bool open();
    void close();
    bool reopen();
    // `sqlite3 .dump` of the named tables (all when empty), as text.
    QString dump(const QStringList &tables = QStringList()) const;
    // Runs SQL text through the sqlite3 shell (for building files of older
    // shapes exactly as written).
    bool runScript(const QString &sql) const;
    // Column names from PRAGMA table_info, in order.
    static QStringList columns(const QString &table);
    static int rowCount(const QString &table, const QString &where = QString());
    static bool exec(const QString &sql);

private:
    TempSandbox m_sandbox;
};
