#include "controller/algorithms/volumetricdatastore.h"

#include "controller/algorithms/maths/volumetricmath.h"
#include "controller/algorithms/storelogrow.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

const double kCoefficients[2] = {0.5, 0.5};
const int kConfirmations = 5;
const int kValleyWindow = 5;
// The slope series begins with two entries that hold no measurement.
const int kFirstMeasuredSlope = 2;
// A break rises above the lowest slope before it by this many times the
// noise of the slope.
const double kNoiseRise = 8.0;
// Breaks the end-of-run search keeps.
const int kMaxBreaks = 64;
// A slope counts as a maximum inside the curve only if the slope rose to it
// from below this part of it, past the minimum volume. Where the slope only
// falls (the steep start of a weak acid, a weak base or a redox couple) the
// first points hold the greatest slope, and that is not an equivalence point.
// Half, not any lower value, so that the noise on a falling start cannot
// make a maximum of its own.
const double kRiseFraction = 0.5;
// A break is passed when the slope after it fell below this part of it.
const double kFallFraction = 0.9;
const double kFallNoise = 3.0;

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

int VolumetricDataStore::findBreaks(int first, double sign, int *breaks, int capacity) const
{
    const int n = int(m_slope.size());
    auto m = [&](int k) {
        const double s = sign * m_slope[size_t(k)];
        return std::isfinite(s) ? s : 0.0;
    };
    // The noise of the slope: the typical change from one slope to the
    // next (the median absolute change, as a standard deviation). A break
    // rises above the lowest slope before it by many times this.
    std::vector<double> changes;
    changes.reserve(size_t(std::max(n - first, 0)));
    for (int k = first + 1; k < n; ++k)
        changes.push_back(std::abs(m(k) - m(k - 1)));
    double noise = 0.0;
    if (!changes.empty()) {
        std::nth_element(changes.begin(), changes.begin() + changes.size() / 2, changes.end());
        noise = changes[changes.size() / 2] * 1.4826 / std::sqrt(2.0);
    }
    // Maxima inside the curve: the greatest slope within two places either
    // side, risen to from below half of it by more than the noise, passed
    // (below), and not alone above half of it (a break spans two slopes of
    // three points; a single noisy reading makes a lone one).
    int count = 0;
    double lowest = std::numeric_limits<double>::infinity();
    for (int k = first; k < n; ++k) {
        const double s = m(k);
        bool peak = s > 0.0 && lowest < s * kRiseFraction && s - lowest > kNoiseRise * noise;
        for (int j = std::max(first, k - 2); peak && j <= std::min(n - 1, k + 2); ++j)
            peak = j == k || (j < k ? m(j) < s : m(j) <= s);
        const bool wide = (k > first && m(k - 1) > s * kRiseFraction) || (k + 1 < n && m(k + 1) > s * kRiseFraction);
        lowest = std::min(lowest, s);
        // The curve has passed the break: after it the slope falls below
        // half of it (by more than the rise's noise) before any slope rises
        // above it by more than the noise; or, where the data end first,
        // two slopes at least follow it and the least of them lies below it
        // by a tenth of it and by more than the noise. A curve cut off while
        // still rising has no break yet: its bumps are overtaken by the
        // slopes after them.
        bool fell = false;
        double least = s;
        for (int j = k + 1; peak && j < n && m(j) <= s + kFallNoise * noise; ++j) {
            least = std::min(least, m(j));
            const bool valley = least < s * kRiseFraction && s - least > kNoiseRise * noise;
            fell = valley
                   || (j == n - 1 && j >= k + 2 && least < s * kFallFraction && s - least > kFallNoise * noise);
            if (valley)
                break;
        }
        if (!peak || !wide || !fell)
            continue;
        // One break with the last unless a valley lies between them: a
        // minimum below half of the smaller peak, more than the noise
        // window away from the last peak.
        bool lower = false;
        while (count > 0 && !lower) {
            const int last = breaks[count - 1];
            double valley = std::numeric_limits<double>::infinity();
            for (int j = last + 1; j < k; ++j)
                valley = std::min(valley, m(j));
            if (k - last > kValleyWindow && valley < std::min(m(last), s) * kRiseFraction)
                break;
            lower = m(last) >= s;
            if (!lower)
                --count; // the new one is the higher summit of the same break
        }
        if (!lower && count < capacity)
            breaks[count++] = k;
    }
    return count;
}

int VolumetricDataStore::finalizePeaks(int wanted)
{
    // Peaks the run confirmed are kept.
    if (m_peakCount == wanted || m_peakCount >= 2)
        return m_peakCount;
    const int n = size();
    if (n < 1 || wanted < 1)
        return 0;

    int start = -1;
    for (int k = 0; k < n; ++k) {
        if (volumeAt(k) > m_minimumVolume) {
            start = k;
            break;
        }
    }
    // No point past the minimum volume: nothing to search. The first slopes
    // of the series hold no measurement and are never compared.
    if (start < 0)
        return 0;
    start = std::max(start, kFirstMeasuredSlope);

    // The search is on signed slopes: for a falling curve the greatest slope
    // is the most negative one.
    const double sign = lastData() - dataAt(0) > 0.0 ? 1.0 : -1.0;
    int breaks[kMaxBreaks];
    const int count = findBreaks(start, sign, breaks, kMaxBreaks);
    auto steep = [&](int k) { return std::abs(m_slope[size_t(breaks[k])]) >= double(m_slopeThreshold); };

    // The peaks in order of choice: the confirmed one, then the breaks
    // steep enough to be equivalence points in the order of the curve, then
    // the steepest of the others.
    int chosen[2] = {-1, -1};
    int taken = 0;
    auto take = [&](int index) {
        for (int t = 0; t < taken; ++t) {
            if (std::abs(chosen[t] - index) <= kValleyWindow)
                return;
        }
        if (taken < std::min(wanted, 2))
            chosen[taken++] = index;
    };
    if (m_peakCount == 1)
        take(m_peakIndex[0]);
    for (int k = 0; k < count; ++k) {
        if (steep(k))
            take(breaks[k]);
    }
    while (taken < std::min(wanted, 2)) {
        int best = -1;
        for (int k = 0; k < count; ++k) {
            bool free = true;
            for (int t = 0; t < taken; ++t)
                free = free && std::abs(chosen[t] - breaks[k]) > kValleyWindow;
            if (free && (best < 0 || std::abs(m_slope[size_t(breaks[k])]) > std::abs(m_slope[size_t(breaks[best])])))
                best = k;
        }
        if (best < 0)
            break;
        take(breaks[best]);
    }
    if (taken == 0)
        return 0;
    if (taken == 2 && chosen[1] < chosen[0])
        std::swap(chosen[0], chosen[1]);
    for (int t = 0; t < taken; ++t)
        setPeakFromSlope(t, chosen[t]);
    return taken;
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
