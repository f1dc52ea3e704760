#include "system/hostspeed.h"

#include "controller/burettecontroller.h"
#include "controller/mspcontroller.h"
#include "controller/slaveclock.h"
#include "models/setupmodel.h"
#include "system/clock.h"
#include "system/platform.h"
#include "titrationcontrollerbase.h"

#include <QDebug>

#include <algorithm>

double HostSpeed::fromEnvironment()
{
    const QByteArray text = qgetenv("KESTRUM_SPEED");
    if (Platform::isTarget() || text.isEmpty())
        return 1.0;
    bool ok = false;
    const double factor = text.toDouble(&ok);
    if (!ok || factor < 0.1 || factor > 1000) {
        qDebug() << "Kestrum: KESTRUM_SPEED must be between 0.1 and 1000, not" << text << "- running at real time";
        return 1.0;
    }
    return factor;
}

void HostSpeed::apply(double factor, mspController *msp, BuretteController *bc, TitrationControllerBase *tc,
                      SetupModel *setup)
{
    if (factor == 1.0)
        return;
    qDebug() << "Kestrum: the clock runs" << factor << "times real time";
    msp->setPollInterval(std::max(1, int(250 / factor)));
    msp->setReadInterval(std::max(1, std::min(40, int(40 / factor))));
    bc->setTickInterval(std::max(1, int(250 / factor)));
    tc->setTimeScale(factor);
    setup->setDueCheckInterval(std::max(1, int(SetupModel::dueCheckIntervalMs / factor)));
    // Owned by the slave controller, which lives as long as the process.
    Clock::setSource(new SlaveClock(msp, msp));
}
