#pragma once

#include "controller/algorithms/datastorebase.h"
#include "controller/algorithms/firfilter.h"
#include "reports/logmanager.h"

#include <QtGlobal>

#include <limits>
#include <vector>

// The titration curve: one point per settled volume (µL) with its reading
// (mV). As the curve grows it keeps the slope dE/dV (mV per µL), the slope's
// curvature and a search for up to two equivalence points, the peaks of the
// slope's magnitude. The series start with zeros so that their index is the
// point's.
class VolumetricDataStore : public DataStoreBase
{
    Q_OBJECT
public:
    explicit VolumetricDataStore(QObject *parent = nullptr);
    ~VolumetricDataStore() override;

    using DataStoreBase::addPoint;
    void addPoint(double volume, double data);

    // Searches the whole curve afresh for `wanted` peaks, when the run has
    // ended with fewer found; the peaks it confirmed are kept. Answers how
    // many it found (a peak is a maximum inside the curve, never its steep
    // start; two peaks are two only with a valley between them). Breaks
    // steep enough to count come first, in the order of the curve; where
    // too few are, the steepest other maxima. Where it found none the peak
    // fields keep what they hold.
    int finalizePeaks(int wanted);

    void setMinimumVolume(double volume);
    void setSlopeThreshold(float threshold) { m_slopeThreshold = threshold; }
    void setCurvatureLimit(float limit) { m_curvatureLimit = limit; }
    double minimumVolume() const { return m_minimumVolume; }
    float slopeThreshold() const { return m_slopeThreshold; }
    float curvatureLimit() const { return m_curvatureLimit; }

    int peakCount() const { return m_peakCount; }
    // Each answers 0 for i outside 0 and 1.
    int peakIndex(int i) const;
    double peakVolume(int i) const;
    double peakData(int i) const;
    double peakVolumeStep(int i) const;
    double peakSlope(int i) const;

    const std::vector<double> &slope() const { return m_slope; }
    const std::vector<double> &secondDerivative() const { return m_secondDerivative; }
    const std::vector<double> &filteredSlope() const { return m_filteredSlope; }

    // Points held without growing the series.
    static constexpr int kReservedPoints = 4096;

private:
    void searchPeaks();
    bool searchValley(int next);
    bool lastSlopesFollow(double direction) const;
    double midpointVolume(int index) const;
    void setPeakFromSlope(int i, int index);
    // The breaks of the curve from slope index `first` on, in order: each
    // the greatest slope of its break, in the direction of `sign`.
    int findBreaks(int first, double sign, int *breaks, int capacity) const;

    LogManager m_log;
    std::vector<double> m_slope;
    std::vector<double> m_secondDerivative;
    std::vector<double> m_filteredSlope;
    FirFilter m_filter;
    double m_peakSlope[2] = {0.0, 0.0};
    float m_valleyValue = 0.f;
    double m_peakVolume[2] = {0.0, 0.0};
    int m_peakIndex[2] = {0, 0};
    int m_peakCount = 0;
    quint8 m_confirmCount = 0;
    bool m_searchingValley = false;
    float m_baseSlope = 0.f;
    // Smallest slope magnitude past the minimum volume so far.
    double m_lowestSlope = std::numeric_limits<double>::infinity();
    float m_slopeThreshold = 0.2f;
    double m_minimumVolume = 10.0;
    float m_curvatureLimit = 0.0001f;
};
