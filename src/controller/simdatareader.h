#pragma once

#include <QFile>
#include <QString>
#include <QTextStream>

// Plays recorded curves instead of the slave: "data-1.txt", "data-2.txt"...
// below the log root's "simdata/", one file per run, wrapping back to the
// first. Each line is "volume µL, reading mV"; lines whose first field is not
// a number are skipped.
class SimDataReader
{
public:
    SimDataReader();

    // Whether the current file exists; if not, starts again at index 1 and
    // looks once more.
    bool exists();
    // The next point of the current file, opening it if needed; false at the
    // end of the file (then the last reading and a volume of 50000 µL).
    bool next(double &data, double &volume);
    // One line "volume µL, reading mV": false for a line that is not one
    // (a header, a volume beyond 50000 µL or not finite, no finite reading).
    static bool parseLine(const QString &line, double &volume, double &data);
    // Closes the file and moves on to the next index.
    void closeAndAdvance();

    int index() const { return m_index; }
    QString fileName() const;

    // Longest line taken; a longer one is skipped whole.
    static constexpr int MaxLineChars = 256;
    static constexpr double EndOfFileVolume = 50000.0;
    static constexpr double MaxReading = 100000.0; // mV

private:
    QString m_directory;
    QString m_baseName;
    int m_index = 1;
    QFile m_file;
    QTextStream m_stream;
    double m_lastData = 0.0;
};
