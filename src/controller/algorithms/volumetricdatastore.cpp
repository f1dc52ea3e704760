#include "controller/algorithms/volumetricdatastore.h"

#include "controller/algorithms/maths/volumetricmath.h"
#include "controller/algorithms/storelogrow.h"

#include <cmath>
#include <limits>

namespace {

const double kCoefficients[2] = {0.5, 0.5};
const int kConfirmations = 5;
const int kValleyWindow = 5;
// A slope counts as a maximum inside the curve only if the slope rose to it
// from below this part of it, past the minimum volume. Where the slope only
// falls (the steep start of a weak acid, a weak base or a redox couple) the
// first points hold the greatest slope, and that is not an equivalence point.
// Half, not any lower value, so that the noise on a falling start cannot
// make a maximum of its own.
const double kRiseFraction = 0.5;

int signOf(double x)
{
    return (x > 0.0) - (x < 0.0);
}

} // namespace

VolumetricDataStore::VolumetricDataStore(QObject *parent)
    : DataStoreBase(parent)
    , m_slope(2, 0.0)
    , m_secondDerivative(3, 0.0)
    , m_filteredSlope(2, 0.0)
    , m_filter(1, kCoefficients)
{
    m_slope.reserve(kReservedPoints);
    m_secondDerivative.reserve(kReservedPoints);
    m_filteredSlope.reserve(kReservedPoints);

    m_log.setLogfileDir(QStringLiteral("logFiles/volumetricLogs"));
    m_log.setLogfileBasename(QStringLiteral("vlog"));
    m_log.newCyclicFile(100);
    m_log.write(QStringLiteral("I'm a log, look at me!\r\n"));
    m_log.write(QStringLiteral("Vol., Data, 1st_der, 2nd_der\r\n"));
}

VolumetricDataStore::~VolumetricDataStore() = default;

void VolumetricDataStore::setMinimumVolume(double volume)
{
    if (volume > 0.0)
        m_minimumVolume = volume;
}

void VolumetricDataStore::addPoint(double volume, double data)
{
    DataStoreBase::addPoint(0, volume, data);
    const int n = size();
    if (n >= 3) {
        const double s = VolumetricMath::lastSlope(*this);
        m_filteredSlope.push_back(m_filter.step(s));
        m_slope.push_back(s);
    }
    if (n >= 4) {
        const double second = (std::abs(m_slope[n - 1]) - std::abs(m_slope[n - 2]))
                              / (volumeAt(n - 1) - volumeAt(n - 2));
        m_secondDerivative.push_back(second);
        searchPeaks();
    }

    StoreLogRow row;
    row.add(volume).add(data).add(std::abs(m_slope.back())).add(m_secondDerivative.back()).end();
    m_log.write(row.text(), row.length());
}

bool VolumetricDataStore::lastSlopesFollow(double direction) const
{
    const int sign = signOf(direction);
    const size_t n = m_slope.size();
    for (size_t k = n - 3; k < n; ++k) {
        if (signOf(m_slope[k]) != sign)
            return false;
    }
    return true;
}

double VolumetricDataStore::midpointVolume(int index) const
{
    const int before = index >= 2 ? index - 2 : 0;
    const double v0 = volumeAt(before);
    return v0 + (volumeAt(index) - v0) * 0.5;
}

void VolumetricDataStore::searchPeaks()
{
    const int i = m_peakCount;
    if (i > 1)
        return;
    const int n = size();

    if (!m_searchingValley) {
        const double magnitude = std::abs(m_slope.back());
        const bool pastMinimum = lastVolume() > m_minimumVolume;
        // The second peak is looked for only after a valley: it rose by then.
        const bool rose = i > 0 || m_lowestSlope < magnitude * kRiseFraction;
        if (pastMinimum && qIsFinite(magnitude) && magnitude < m_lowestSlope)
            m_lowestSlope = magnitude;
        if (pastMinimum && rose && qIsFinite(magnitude) && magnitude > m_peakSlope[i]
            && lastSlopesFollow(lastData() - dataAt(0))) {
            m_peakSlope[i] = magnitude;
            if (m_baseSlope == 0.f && magnitude > m_slopeThreshold)
                m_baseSlope = float(magnitude);
            m_peakVolume[i] = volumeAt(n - 3) + (volumeAt(n - 1) - volumeAt(n - 3)) * 0.5;
            m_peakIndex[i] = n - 1;
            m_confirmCount = 0;
            return;
        }
        // The curvature is of the slope's magnitude, so a slope falling away
        // after the peak (strongly negative) meets the limit.
        if (m_peakSlope[i] > m_slopeThreshold && m_peakSlope[i] > m_valleyValue
            && m_secondDerivative.back() < m_curvatureLimit) {
            if (++m_confirmCount < kConfirmations)
                return;
            ++m_peakCount;
            m_confirmCount = 0;
            m_searchingValley = true;
            // Two peaks are all there is room for: no valley after the second.
            if (m_peakCount > 1)
                return;
        } else {
            m_confirmCount = 0;
        }
    }

    if (m_searchingValley)
        searchValley(m_peakCount);
}

bool VolumetricDataStore::searchValley(int next)
{
    // The smallest slope since the last peak.
    float valley = 1e7f;
    const int count = int(m_filteredSlope.size());
    for (int k = m_peakIndex[next - 1]; k < count; ++k) {
        const float value = float(std::abs(m_filteredSlope[k]));
        if (value < valley)
            valley = value;
    }
    m_valleyValue = valley;

    // Still among the newest points: the slope may yet go lower.
    for (int k = count - kValleyWindow; k < count; ++k) {
        if (k >= 0 && std::abs(double(float(std::abs(m_filteredSlope[k]))) - double(valley)) <= 1e-9)
            return false;
    }
    // Not yet down half way between the base and the first peak.
    if (!(valley < m_baseSlope + (m_peakSlope[0] - m_baseSlope) * 0.5))
        return false;

    m_searchingValley = false;
    const int n = int(m_slope.size());
    int best = n - kValleyWindow;
    for (int k = best + 1; k < n; ++k) {
        if (std::abs(m_slope[k]) > std::abs(m_slope[best]))
            best = k;
    }
    m_peakSlope[next] = std::abs(m_slope[best]);
    m_peakIndex[next] = best;
    m_peakVolume[next] = midpointVolume(best);
    return true;
}

void VolumetricDataStore::setPeakFromSlope(int i, int index)
{
    m_peakSlope[i] = std::abs(m_slope[index]);
    m_peakIndex[i] = index;
    m_peakVolume[i] = midpointVolume(index);
}

int VolumetricDataStore::finalizePeaks(int wanted)
{
    if (m_peakCount == wanted)
        return m_peakCount;
    const int n = size();
    if (n < 1 || wanted < 1)
        return 0;

    // The search is on signed slopes: for a falling curve the greatest slope
    // is the most negative one and a valley is a local maximum.
    const bool rising = lastData() - dataAt(0) > 0.0;
    auto beats = [rising](double a, double b) { return rising ? a > b : a < b; };
    const std::vector<double> &slope = m_slope;
    const std::vector<double> &filtered = m_filteredSlope;
    auto isValley = [&](int k) { return beats(filtered[k - 1], filtered[k]) && beats(filtered[k + 1], filtered[k]); };
    auto bestIn = [&](int from, int to) { // [from, to), from < to
        int best = from;
        for (int k = from + 1; k < to; ++k) {
            if (beats(slope[k], slope[best]))
                best = k;
        }
        return best;
    };
    // The greatest slope in [from, to) that the slope rose to from a lower
    // value inside the range; -1 where the slope only falls.
    auto interiorBestIn = [&](int from, int to) {
        const double sign = rising ? 1.0 : -1.0;
        double lowest = std::numeric_limits<double>::infinity();
        int best = -1;
        for (int k = from; k < to; ++k) {
            const double s = sign * slope[k];
            if (std::isfinite(s) && s > 0.0 && lowest < s * kRiseFraction && (best < 0 || beats(slope[k], slope[best])))
                best = k;
            if (std::isfinite(s) && s < lowest)
                lowest = s;
        }
        return best;
    };

    int start = -1;
    for (int k = 0; k < n; ++k) {
        if (volumeAt(k) > m_minimumVolume) {
            start = k;
            break;
        }
    }
    // No point past the minimum volume: nothing to search.
    if (start < 0)
        return 0;

    const int p1 = interiorBestIn(start, n);
    if (p1 < 0)
        return 0;
    if (wanted == 1) {
        setPeakFromSlope(0, p1);
        return 1;
    }

    int forwardValley = n - 1;
    for (int k = p1 + 2; k + 1 < n; ++k) {
        if (isValley(k)) {
            forwardValley = k;
            break;
        }
    }
    const int q = bestIn(forwardValley, n);
    const bool later = q != forwardValley;
    const double a = slope[q];

    int backwardValley = start;
    for (int k = p1 - 2; k > start; --k) {
        if (isValley(k)) {
            backwardValley = k;
            break;
        }
    }
    const int r = backwardValley > start ? interiorBestIn(start, backwardValley) : -1;

    int p2 = p1;
    if (later && (r < 0 || std::abs(a) > std::abs(slope[r])))
        p2 = q;
    else if (r >= 0)
        p2 = r;

    setPeakFromSlope(0, std::min(p1, p2));
    setPeakFromSlope(1, std::max(p1, p2));
    return p2 == p1 ? 1 : 2;
}

int VolumetricDataStore::peakIndex(int i) const
{
    return (i >= 0 && i <= 1) ? m_peakIndex[i] : 0;
}

double VolumetricDataStore::peakVolume(int i) const
{
    return (i >= 0 && i <= 1) ? m_peakVolume[i] : 0.0;
}

double VolumetricDataStore::peakSlope(int i) const
{
    return (i >= 0 && i <= 1) ? m_peakSlope[i] : 0.0;
}

double VolumetricDataStore::peakData(int i) const
{
    return (i >= 0 && i <= 1) ? dataAt(m_peakIndex[i]) : 0.0;
}

double VolumetricDataStore::peakVolumeStep(int i) const
{
    if (i < 0 || i > 1 || m_peakIndex[i] <= 0)
        return 0.0;
    return volumeAt(m_peakIndex[i]) - volumeAt(m_peakIndex[i] - 1);
}
