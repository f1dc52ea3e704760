#pragma once

#include <map>
#include <stdexcept>

// The process-control presets of the titration algorithms: per row, electrode
// (pH 0, Redox 1, monovalent ion 2, divalent ion 3) to process control
// ("Routine" 0, "Quick" 1, "Careful" 2, "User Defined" 3) to value.
//
// A look-up falls back where a row has no entry of its own: an electrode
// without one reads the monovalent ion's (for ions, where the row has it) or
// the pH electrode's; a process control without one reads Routine. So a row
// given once for the pH electrode serves all, and "User Defined" reads
// Routine wherever no user value was set.
class ProcessControlPresets
{
public:
    template <typename T>
    using Row = std::map<int, std::map<int, T>>;

    static constexpr int kUserDefined = 3;

    ProcessControlPresets();

    // Throws std::out_of_range when even the fallbacks have no entry.
    template <typename T>
    static T lookup(const Row<T> &row, int electrode, int processControl)
    {
        const std::map<int, T> &controls = row.at(resolveElectrode(row, electrode));
        const auto it = controls.find(processControl);
        return it != controls.end() ? it->second : controls.at(0);
    }

    // Stores a value under "User Defined" for the electrode the look-up would
    // read, whatever the run's own process control.
    template <typename T>
    static void setUserValue(Row<T> &row, int electrode, T value)
    {
        row[resolveElectrode(row, electrode)][kUserDefined] = value;
    }

    Row<unsigned int> defaultDose;    // µL, first dose of the frame
    Row<float> dEdt;                  // mV/s, stability slope
    Row<unsigned int> tMin;           // ms, least wait after a dose
    Row<unsigned int> tMax;           // ms, most wait after a dose
    Row<unsigned int> settleTMin;     // ms, after the pre-dose
    Row<unsigned int> settleTMax;     // ms, after the pre-dose; initial reading in pH
    Row<float> curvatureLimit;        // mV/µL²
    Row<float> slopeThreshold;        // mV/µL
    Row<float> deltaE;                // mV, potential step per dose
    Row<unsigned int> deltaVmax;      // µL
    Row<unsigned int> deltaVmin;      // µL
    Row<unsigned int> firstDose;      // µL, first dose of the dose law
    Row<float> endPointBand;          // mV
    Row<float> mkaDeltaE;             // mV
    Row<float> mkaDEdt;               // mV/s
    Row<unsigned int> mkaTMin;        // ms
    Row<unsigned int> mkaTMax;        // ms
    Row<unsigned int> mkaDeltaVmax;   // µL
    Row<unsigned int> mkaDeltaVmin;   // µL
    Row<float> mkaSlope;              // mV/decade
    Row<float> mkaSlopeLow;           // mV/decade
    Row<float> mkaSlopeHigh;          // mV/decade

private:
    template <typename T>
    static int resolveElectrode(const Row<T> &row, int electrode)
    {
        if (row.empty())
            throw std::out_of_range("map::at");
        if (row.count(electrode))
            return electrode;
        return (electrode >= 2 && row.count(2)) ? 2 : 0;
    }
};
