#pragma once

#include "controller/algorithms/maths/volumeseries.h"

#include <QObject>

#include <map>

// One point of a run's series: the slave's time stamp (ms), the volume asked
// for so far (µL) and the reading (mV).
struct DataPoint
{
    long timeStamp = 0;
    double volume = 0.0;
    double data = 0.0;
};

// The common store of a run's series: points under a running index from 0.
// An absent point reads as time stamp -1, volume -1.0 and data -1.0.
class DataStoreBase : public QObject, public VolumeSeries
{
    Q_OBJECT
public:
    explicit DataStoreBase(QObject *parent = nullptr);
    ~DataStoreBase() override;

public slots:
    virtual void addPoint(long timeStamp, double volume, double data);
    virtual bool getPoint(int index, long &timeStamp, double &volume, double &data) const;
    int size() const override;
    virtual bool getLastPoint(long &timeStamp, double &volume, double &data) const;

public:
    bool getVolumeAndData(int index, double &volume, double &data) const;
    double lastVolume() const;
    double lastData() const;
    // Volume of the point n places before the last, 0.0 if there is none.
    double volumeBackFromLast(int n) const;

    // Plain reads for the stores' own arithmetic; -1.0 for an absent point.
    double volumeAt(int index) const override;
    double dataAt(int index) const override;

signals:
    void NewDataReceived();

private:
    const DataPoint *find(int index) const;

    std::map<int, DataPoint> m_points;
    // Walks of the series go point by point; the last point found is kept
    // so that the next one costs a step instead of a search.
    mutable std::map<int, DataPoint>::const_iterator m_cached;
    mutable bool m_cacheValid = false;
};
