#pragma once

#include "interfaces/remoteporthost.h"

class DataManagerBase;
class ResourceManager;
class TitrationController;

// The remote port's answers in the application: versions and model from the
// data layer, the beeper from the resource manager, the run's state from the
// run controller.
class InstrumentConsoleHost : public RemotePortHost
{
public:
    // The run controller comes later in the start-up; until it is set no run is going on.
    InstrumentConsoleHost(DataManagerBase *dm, ResourceManager *rm, TitrationController *tc = nullptr);
    void setRunController(TitrationController *tc) { m_tc = tc; }

    QString appVersion() const override;
    QString modelType() const override;
    void beep(int frequencyHz, int durationMs) override;
    void stopBeep() override;
    void factoryReset() override;
    bool runInProgress() const override;

private:
    DataManagerBase *m_dm;
    ResourceManager *m_rm;
    TitrationController *m_tc;
};
