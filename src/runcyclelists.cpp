#include "runcyclelists.h"

#include "models/dbutil.h"
#include "models/modelproperty.h"
#include "models/titrationmodel.h"

#include <QSqlQuery>
#include <QSqlRecord>

namespace {

const QList<TitrationCycleModel *> kNoCycles;
const QList<MKATitrationCycleModel *> kNoMkaCycles;
const QList<MKAadditionModel *> kNoMkaAdditions;

// A read-only list property over a list that a function answers.
template <class Entry, class Owner, const QList<Entry *> &(Owner::*List)() const>
QQmlListProperty<Entry> listOf(Owner *owner)
{
    return QQmlListProperty<Entry>(
        owner, owner, [](QQmlListProperty<Entry> *p) { return (static_cast<Owner *>(p->data)->*List)().size(); },
        [](QQmlListProperty<Entry> *p, int i) { return (static_cast<Owner *>(p->data)->*List)().value(i); });
}

} // namespace

RunCycleLists::RunCycleLists(RunSource run, QObject *parent)
    : QObject(parent)
    , m_run(std::move(run))
{
}

const QList<TitrationCycleModel *> &RunCycleLists::cycleList() const
{
    if (m_storedCyclesShown)
        return m_storedCycles;
    TitrationModel *run = m_run();
    return run ? run->titrationCycles() : kNoCycles;
}

const QList<MKATitrationCycleModel *> &RunCycleLists::mkaCycleList() const
{
    if (m_storedMkaCyclesShown)
        return m_storedMkaCycles;
    TitrationModel *run = m_run();
    return run ? run->mkaTitrationCycles() : kNoMkaCycles;
}

const QList<MKAadditionModel *> &RunCycleLists::mkaAdditionList() const
{
    if (m_storedMkaAdditionsShown)
        return m_storedMkaAdditions;
    TitrationModel *run = m_run();
    return run ? run->mkaAdditionCycles() : kNoMkaAdditions;
}

QQmlListProperty<TitrationCycleModel> RunCycleLists::titrationCycles()
{
    return listOf<TitrationCycleModel, RunCycleLists, &RunCycleLists::cycleList>(this);
}

QQmlListProperty<MKATitrationCycleModel> RunCycleLists::mkaCycles()
{
    return listOf<MKATitrationCycleModel, RunCycleLists, &RunCycleLists::mkaCycleList>(this);
}

QQmlListProperty<MKAadditionModel> RunCycleLists::mkaAdditions()
{
    return listOf<MKAadditionModel, RunCycleLists, &RunCycleLists::mkaAdditionList>(this);
}

template <class Entry>
void RunCycleLists::loadStored(QList<Entry *> &list, const QString &sql, int titrationId)
{
    releaseLater(list);
    QSqlQuery query;
    query.prepare(sql);
    query.bindValue(QStringLiteral(":id"), titrationId);
    if (!DbUtil::exec(query))
        return;
    while (query.next())
        list.append(Entry::fromRecord(query.record()));
}

void RunCycleLists::loadStoredCycles(int titrationId)
{
    loadStored(m_storedCycles, QStringLiteral("SELECT * FROM titrationCycleTable where titrationId = :id ORDER BY cycleNo"),
               titrationId);
    m_storedCyclesShown = true;
}

void RunCycleLists::loadStoredMkaCycles(int titrationId)
{
    loadStored(m_storedMkaCycles,
               QStringLiteral("SELECT * FROM mkaTitrationCycleTable where titrationID = :id ORDER BY cycleNo"), titrationId);
    m_storedMkaCyclesShown = true;
}

void RunCycleLists::loadStoredMkaAdditions(int titrationId)
{
    loadStored(m_storedMkaAdditions,
               QStringLiteral("SELECT * FROM mkaAdditionTable where titrationID = :id order by cycleNo, datetime(mcreatedAt)"),
               titrationId);
    m_storedMkaAdditionsShown = true;
}

void RunCycleLists::showRun()
{
    m_storedCyclesShown = false;
    m_storedMkaCyclesShown = false;
    m_storedMkaAdditionsShown = false;
}
