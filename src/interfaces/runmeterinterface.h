#pragma once

// What the run controller asks of the meter: before a run, point the meter
// at the method's probe (stop its connection, update the probe from the
// electrode record, load that probe's last calibration, start again), and
// start or stop direct measurement. The meter controller serves it on the
// instrument; until one is given, a stand-in that only logs.
class RunMeterInterface
{
public:
    virtual ~RunMeterInterface() = default;
    virtual void repointAtMethodProbe() = 0;
    virtual void startMeasure() = 0;
    virtual void stopMeasure() = 0;

    // The process-wide stand-in.
    static RunMeterInterface *standIn();
    // The instrument's meter once it was made (the meter controller installs
    // itself when it is created), else the stand-in.
    static RunMeterInterface *instrumentMeter();
    static void setInstrumentMeter(RunMeterInterface *meter);
};
