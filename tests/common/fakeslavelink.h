#pragma once

#include "interfaces/slavelink.h"

#include <QStringList>

// The slave in-process, for unit tests of the controllers: every motion is
// recorded in the slave's own command words ("BDS 2000", "BES", "BHS", "SH",
// "SSS 3", "BLS 5") and is over by the next look (a query answers "not busy",
// a dose is done at once). sample() stands for one MG reply.
class FakeSlaveLink : public SlaveLink
{
public:
    using SlaveLink::SlaveLink;

    QStringList commands;
    bool atLoad = true;
    bool busy = false;
    bool dispenseDone = true;
    mspInfoRecord info;
    mspProbeRecord probe;

    void sample(long timeStamp, double millivolts) { emit mspNewDataSignal(timeStamp, millivolts); }

    void dispense(int microlitres) override;
    void setHomeBurette() override;
    void setEndBurette() override;
    void queryBurette() override { busy = false; }
    void setBuretteBusy() override { busy = true; }
    void stopAndHomeBurette() override;
    void setBuretteSize(int millilitres) override;
    void getBuretteSize() override {}
    bool isBuretteAtLoad() const override { return atLoad; }
    bool isBuretteBusy() const override { return busy; }
    bool isDispenseDone() const override { return dispenseDone; }
    void getInfo(mspInfoRecord &record) const override { record = info; }
    void getProbeRecord(mspProbeRecord &record) const override { record = probe; }
    void setStirSpeed(int speed) override { commands << QStringLiteral("SSS %1").arg(speed); }
    void stopStirrer() override { setStirSpeed(0); }
    void setBacklight(int brightness) override { commands << QStringLiteral("BLS %1").arg(brightness); }
};
