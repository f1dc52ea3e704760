#include "controller/algorithms/datastorebase.h"

DataStoreBase::DataStoreBase(QObject *parent)
    : QObject(parent)
{
}

DataStoreBase::~DataStoreBase() = default;

void DataStoreBase::addPoint(long timeStamp, double volume, double data)
{
    m_points.emplace_hint(m_points.end(), int(m_points.size()), DataPoint{timeStamp, volume, data});
    emit NewDataReceived();
}

const DataPoint *DataStoreBase::find(int index) const
{
    if (index < 0 || index >= int(m_points.size()))
        return nullptr;
    if (m_cacheValid) {
        if (m_cached->first == index)
            return &m_cached->second;
        if (m_cached->first + 1 == index) {
            ++m_cached;
            return &m_cached->second;
        }
        if (m_cached->first - 1 == index) {
            --m_cached;
            return &m_cached->second;
        }
    }
    m_cached = m_points.find(index);
    m_cacheValid = true;
    return &m_cached->second;
}

bool DataStoreBase::getPoint(int index, long &timeStamp, double &volume, double &data) const
{
    const DataPoint *point = find(index);
    if (!point) {
        timeStamp = -1;
        volume = -1.0;
        data = -1.0;
        return false;
    }
    timeStamp = point->timeStamp;
    volume = point->volume;
    data = point->data;
    return true;
}

int DataStoreBase::size() const
{
    return int(m_points.size());
}

bool DataStoreBase::getLastPoint(long &timeStamp, double &volume, double &data) const
{
    return getPoint(size() - 1, timeStamp, volume, data);
}

bool DataStoreBase::getVolumeAndData(int index, double &volume, double &data) const
{
    long timeStamp;
    return getPoint(index, timeStamp, volume, data);
}

double DataStoreBase::lastVolume() const
{
    return volumeAt(size() - 1);
}

double DataStoreBase::lastData() const
{
    return dataAt(size() - 1);
}

double DataStoreBase::volumeBackFromLast(int n) const
{
    const DataPoint *point = find(size() - 1 - n);
    return point ? point->volume : 0.0;
}

double DataStoreBase::volumeAt(int index) const
{
    const DataPoint *point = find(index);
    return point ? point->volume : -1.0;
}

double DataStoreBase::dataAt(int index) const
{
    const DataPoint *point = find(index);
    return point ? point->data : -1.0;
}
