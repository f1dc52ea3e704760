#pragma once

#include <QString>
#include <QStringList>

// The options of "vantor-cli titrate", checked. parse() answers false with a
// message for the user on any bad option.
struct TitrateOptions
{
    QString scenarioFile;      // a live run against the virtual instrument
    QString replayFile;        // or a curve replayed through the simulation path
    int technique = 1;         // "Equivalence Pt."
    int endpoints = 1;
    float endpointMv[3] = {0.f, 0.f, 0.f};
    int processControl = 0;    // "Routine"
    float maxVolumeMl = 20.f;
    float preDoseMl = 0.f;
    int preStirS = 0;
    float sampleMl = 10.f;     // the sample, a fixed volume
    QString methodName;        // run this stored method instead of building one
    QString methodFile;        // or the method of this method file (JSON), installed first
    double speed = 50.0;
    int timeoutS = 600;        // of wall time
    QString sandbox;           // where logs go; a temporary folder if empty
    bool verbose = false;
    int runs = 1;              // titrations back to back in one process
    double temperatureC = 25.0; // of a replayed curve in pH, for its Nernst slope
    float mkaPrecisionPct = 2.f; // known addition ends when the last three agree this well

    bool parse(const QStringList &arguments, QString *error);
    static QString usage();

    static int techniqueIndex(const QString &name);      // -1 if unknown
    static int processControlIndex(const QString &name); // -1 if unknown
};
