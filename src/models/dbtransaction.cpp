#include "models/dbtransaction.h"

#include "models/dbutil.h"

namespace {
int g_depth = 0;
}

DbTransaction::DbTransaction()
    : m_name(QStringLiteral("kestrum_unit_%1").arg(g_depth))
{
    m_open = DbUtil::execText(QStringLiteral("SAVEPOINT %1").arg(m_name));
    if (m_open)
        ++g_depth;
}

DbTransaction::~DbTransaction()
{
    rollback();
}

bool DbTransaction::commit()
{
    if (!m_open)
        return false;
    if (!DbUtil::execText(QStringLiteral("RELEASE SAVEPOINT %1").arg(m_name))) {
        rollback();
        return false;
    }
    m_open = false;
    --g_depth;
    return true;
}

void DbTransaction::rollback()
{
    if (!m_open)
        return;
    if (g_depth == 1) {
        // The outermost unit ends the transaction with a plain ROLLBACK: a
        // RELEASE after ROLLBACK TO would commit the pages it restored, and
        // a file that nothing changed would still be written.
        DbUtil::execText(QStringLiteral("ROLLBACK"));
    } else {
        // ROLLBACK TO keeps the savepoint on the stack; RELEASE removes it.
        DbUtil::execText(QStringLiteral("ROLLBACK TO SAVEPOINT %1").arg(m_name));
        DbUtil::execText(QStringLiteral("RELEASE SAVEPOINT %1").arg(m_name));
    }
    m_open = false;
    --g_depth;
}
