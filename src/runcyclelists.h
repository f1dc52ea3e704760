#pragma once

#include "models/mkaadditionmodel.h"
#include "models/mkatitrationcyclemodel.h"
#include "models/titrationcyclemodel.h"

#include <QList>
#include <QObject>
#include <QQmlListProperty>

#include <functional>

class TitrationModel;

// The cycle lists the summary and log screens show: those of the run in
// progress, or, once a stored run was asked for, that run's cycles (or
// known-addition cycles and additions) read from the tables. Reading a list
// changes nothing; a stored run's list stays until the screens go back to
// the run (showRun(), which a run's start and initializeTitration() call).
class RunCycleLists : public QObject
{
    Q_OBJECT
public:
    using RunSource = std::function<TitrationModel *()>;
    explicit RunCycleLists(RunSource run, QObject *parent = nullptr);

    QQmlListProperty<TitrationCycleModel> titrationCycles();
    QQmlListProperty<MKATitrationCycleModel> mkaCycles();
    QQmlListProperty<MKAadditionModel> mkaAdditions();

    void loadStoredCycles(int titrationId);
    void loadStoredMkaCycles(int titrationId);
    void loadStoredMkaAdditions(int titrationId);
    // Back to the run in progress.
    void showRun();

private:
    template <class Entry>
    static void loadStored(QList<Entry *> &list, const QString &sql, int titrationId);

    const QList<TitrationCycleModel *> &cycleList() const;
    const QList<MKATitrationCycleModel *> &mkaCycleList() const;
    const QList<MKAadditionModel *> &mkaAdditionList() const;

    RunSource m_run;
    QList<TitrationCycleModel *> m_storedCycles;
    QList<MKATitrationCycleModel *> m_storedMkaCycles;
    QList<MKAadditionModel *> m_storedMkaAdditions;
    bool m_storedCyclesShown = false;
    bool m_storedMkaCyclesShown = false;
    bool m_storedMkaAdditionsShown = false;
};
