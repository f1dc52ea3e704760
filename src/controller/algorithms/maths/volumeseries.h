#pragma once

// A run's series as the fits read it: points by index from 0, each a
// volume (µL) and a reading (mV). The data stores provide it.
class VolumeSeries
{
public:
    virtual ~VolumeSeries() = default;
    virtual int size() const = 0;
    virtual double volumeAt(int index) const = 0;
    virtual double dataAt(int index) const = 0;
};
