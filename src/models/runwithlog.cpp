#include "models/runwithlog.h"

#include "models/dbtransaction.h"
#include "models/standardisationlogmodel.h"
#include "models/titrationcyclemodel.h"
#include "models/titrationlogmodel.h"
#include "models/titrationmodel.h"

#include <QDebug>

namespace {

template <class Log>
bool store(TitrationModel *run, Log *log, bool isChangeFromHome, bool isDataLogNotifOn)
{
    DbTransaction unit;
    if (run->setTitrationValues(isChangeFromHome) && log->saveLogValues(isDataLogNotifOn) && unit.commit())
        return true;
    unit.rollback();
    qDebug() << "RunWithLog: the run and its log entry were not stored; the run stays in memory";
    run->setId(0);
    for (int i = 0; i < run->titrationCyclesCount(); ++i)
        run->titrationCycle(i)->setId(0);
    return false;
}

} // namespace

bool RunWithLog::storeTitration(TitrationModel *run, TitrationLogModel *log, bool isChangeFromHome, bool isDataLogNotifOn)
{
    return store(run, log, isChangeFromHome, isDataLogNotifOn);
}

bool RunWithLog::storeStandardisation(TitrationModel *run, StandardisationLogModel *log, bool isChangeFromHome,
                                      bool isDataLogNotifOn)
{
    return store(run, log, isChangeFromHome, isDataLogNotifOn);
}
