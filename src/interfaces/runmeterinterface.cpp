#include "interfaces/runmeterinterface.h"

#include <QDebug>

namespace {

RunMeterInterface *installedMeter = nullptr;

class LoggingMeter : public RunMeterInterface
{
public:
    void repointAtMethodProbe() override { qDebug() << "Meter: probe of the method (no meter attached)"; }
    void startMeasure() override { qDebug() << "Meter: start measure (no meter attached)"; }
    void stopMeasure() override { qDebug() << "Meter: stop measure (no meter attached)"; }
};

} // namespace

RunMeterInterface *RunMeterInterface::standIn()
{
    static LoggingMeter meter;
    return &meter;
}

RunMeterInterface *RunMeterInterface::instrumentMeter()
{
    return installedMeter ? installedMeter : standIn();
}

void RunMeterInterface::setInstrumentMeter(RunMeterInterface *meter)
{
    installedMeter = meter;
}
