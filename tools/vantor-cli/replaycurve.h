#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

// A measured curve from a file of this or another instrument, read as
// untrusted text and brought to the lines the simulation path plays
// ("volume µL, reading mV"). Columns are separated by commas, semicolons,
// tabs or blanks; where the separator is not a comma, a comma inside a
// number is its decimal mark. A header line may name the units: volume in mL
// or µL (uL), signal in mV or pH, and which columns hold them; without one
// the first column is µL and the second mV. A pH becomes mV with the ideal
// electrode's Nernst slope at the given temperature, 0 mV at pH 7.
class ReplayCurve
{
public:
    struct Point {
        double volumeUl;
        double mv;
    };

    // False with the reason for text that holds no readable curve.
    bool parse(const QByteArray &text, double temperatureC, QString *error);

    const std::vector<Point> &points() const { return m_points; }
    // The curve as the simulation path reads it, full precision.
    QByteArray simulationText() const;

    static constexpr int MaxLineChars = 256;
    static constexpr int MaxPoints = 100000;

private:
    bool readHeader(const QStringList &fields);

    std::vector<Point> m_points;
    int m_volumeColumn = 0;
    int m_signalColumn = 1;
    bool m_volumeMl = false;
    bool m_ph = false;
};
