#pragma once

#include "controller/algorithms/datastorebase.h"
#include "controller/algorithms/firfilter.h"
#include "reports/logmanager.h"

#include <vector>

// Every sample of a run by the slave's time stamp, with the filtered signal
// and its first and second derivative (mV/s, mV/s²) that decide stability.
// The derivative series start with zeros so that their index is the point's.
class TemporalDataStore : public DataStoreBase
{
    Q_OBJECT
public:
    explicit TemporalDataStore(QObject *parent = nullptr);
    ~TemporalDataStore() override;

    using DataStoreBase::addPoint;
    void addPoint(long timeStamp, double data);

    // The reading the algorithms work on; -1.0 and false on an empty store.
    bool lastFiltered(double &value) const;
    double lastFirstDerivative() const { return m_firstDerivative.back(); }
    double lastSecondDerivative() const { return m_secondDerivative.back(); }

    const std::vector<double> &filtered() const { return m_filtered; }
    const std::vector<double> &firstDerivative() const { return m_firstDerivative; }
    const std::vector<double> &secondDerivative() const { return m_secondDerivative; }

    // Points held without growing the series (about 68 minutes of samples).
    static constexpr int kReservedPoints = 16384;

private:
    std::vector<double> m_filtered;
    std::vector<double> m_firstDerivative;
    std::vector<double> m_secondDerivative;
    FirFilter m_filter;
    bool m_firstSample = true;
    LogManager m_log;
};
