#pragma once

class StandardisationLogModel;
class TitrationLogModel;
class TitrationModel;

// The store at the end of the summary path: the run row with its cycles (or
// known-addition cycles and additions), the method's last-run date, and the
// run's log entry with the pruning of the oldest entry, all as one unit. A
// failure (logged) or a process killed half way leaves none of it, so there
// is never a run without its log entry, which no pruning would ever remove.
// The run then stays in memory, without ids, and can be stored again.
class RunWithLog
{
public:
    static bool storeTitration(TitrationModel *run, TitrationLogModel *log, bool isChangeFromHome,
                               bool isDataLogNotifOn);
    static bool storeStandardisation(TitrationModel *run, StandardisationLogModel *log, bool isChangeFromHome,
                                     bool isDataLogNotifOn);
};
