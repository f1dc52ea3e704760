#include "controller/algorithms/temporaldatastore.h"

#include "controller/algorithms/storelogrow.h"

namespace {
const double kCoefficients[4] = {-0.003058780395146781, 0.5030587803951466, 0.5030587803951468,
                                 -0.003058780395146781};
}

TemporalDataStore::TemporalDataStore(QObject *parent)
    : DataStoreBase(parent)
    , m_firstDerivative(1, 0.0)
    , m_secondDerivative(2, 0.0)
    , m_filter(3, kCoefficients)
{
    m_filtered.reserve(kReservedPoints);
    m_firstDerivative.reserve(kReservedPoints);
    m_secondDerivative.reserve(kReservedPoints);

    m_log.setLogfileDir(QStringLiteral("logFiles/temporalLogs"));
    m_log.setLogfileBasename(QStringLiteral("tlog"));
    m_log.newCyclicFile(100);
    m_log.write(QStringLiteral("I'm a log, look at me!\r\n"));
    m_log.write(QStringLiteral("time, data, filtered\r\n"));
}

TemporalDataStore::~TemporalDataStore() = default;

void TemporalDataStore::addPoint(long timeStamp, double data)
{
    long previousTime = 0;
    double volume = 0.0, previousData = 0.0;
    getLastPoint(previousTime, volume, previousData);

    DataStoreBase::addPoint(timeStamp, 0.0, data);

    if (data != 0.0 && m_firstSample) {
        m_firstSample = false;
        m_filter.prime(data);
    }
    m_filtered.push_back(m_filter.step(data));

    const size_t i = m_filtered.size() - 1;
    if (i > 0) {
        // A repeated time stamp carries no time to divide by: the derivatives
        // hold their last values instead of going infinite.
        const double dt = double(timeStamp - previousTime);
        const bool timed = dt != 0.0;
        m_firstDerivative.push_back(timed ? (m_filtered[i] - m_filtered[i - 1]) / dt * 1000.0
                                          : m_firstDerivative.back());
        if (i > 1)
            m_secondDerivative.push_back(timed ? (m_firstDerivative[i] - m_firstDerivative[i - 1]) / dt * 1000.0
                                               : m_secondDerivative.back());
    }

    StoreLogRow row;
    row.add(timeStamp).add(data).add(m_filtered.back()).end();
    m_log.write(row.text(), row.length());
}

bool TemporalDataStore::lastFiltered(double &value) const
{
    if (m_filtered.empty()) {
        value = -1.0;
        return false;
    }
    value = m_filtered.back();
    return true;
}
