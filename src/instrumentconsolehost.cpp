#include "instrumentconsolehost.h"

#include "controller/titrationcontroller.h"
#include "datamanagerbase.h"
#include "datamigrator.h"
#include "system/platform.h"
#include "resourcemanager.h"

InstrumentConsoleHost::InstrumentConsoleHost(DataManagerBase *dm, ResourceManager *rm, TitrationController *tc)
    : m_dm(dm)
    , m_rm(rm)
    , m_tc(tc)
{
}

QString InstrumentConsoleHost::appVersion() const
{
    return m_dm->appVersionNumber();
}

QString InstrumentConsoleHost::modelType() const
{
    return m_dm->titratorModelString();
}

void InstrumentConsoleHost::beep(int frequencyHz, int durationMs)
{
    m_rm->beep(frequencyHz, durationMs);
}

void InstrumentConsoleHost::stopBeep()
{
    m_rm->stopBeep();
}

void InstrumentConsoleHost::factoryReset()
{
    DataMigrator::dmPtr()->wipeDatabaseRebuildSysInfo();
    Platform::run(QStringLiteral("/sbin/reboot"), {}, 10000);
}

bool InstrumentConsoleHost::runInProgress() const
{
    return m_tc && m_tc->state() != TitrationController::TITRATION_STATE_IDLE;
}
