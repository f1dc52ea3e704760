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
    // ROLLBACK TO keeps the savepoint on the stack; RELEASE then removes it,
    // which for the outermost one ends the (now empty) transaction.
    DbUtil::execText(QStringLiteral("ROLLBACK TO SAVEPOINT %1").arg(m_name));
    DbUtil::execText(QStringLiteral("RELEASE SAVEPOINT %1").arg(m_name));
    m_open = false;
    --g_depth;
}
