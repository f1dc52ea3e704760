#pragma once

#include <QString>

// What the remote command port asks of the rest of the instrument: its
// versions, the beeper, the factory reset, and whether a run is going on.
// The application answers from the data layer and the resource manager;
// tests answer with a recording stand-in.
class RemotePortHost
{
public:
    virtual ~RemotePortHost() = default;
    virtual QString appVersion() const = 0;
    virtual QString modelType() const = 0;
    // A duration of 0 sounds until stopBeep().
    virtual void beep(int frequencyHz, int durationMs) = 0;
    virtual void stopBeep() = 0;
    // Empties the database and reboots the instrument.
    virtual void factoryReset() = 0;
    // True from a titration's start to its end: the poll must keep running.
    virtual bool runInProgress() const = 0;
};
