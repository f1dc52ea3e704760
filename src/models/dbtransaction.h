#pragma once

#include <QString>

// One all-or-nothing unit of work on the default connection. Built on
// savepoints so that units nest: the outermost one is the transaction, an
// inner one rolls back only its own part. Rolls back unless commit() was
// called and succeeded.
class DbTransaction
{
public:
    DbTransaction();
    ~DbTransaction();
    DbTransaction(const DbTransaction &) = delete;
    DbTransaction &operator=(const DbTransaction &) = delete;

    bool isOpen() const { return m_open; }
    bool commit();
    void rollback();

private:
    QString m_name;
    bool m_open = false;
};
