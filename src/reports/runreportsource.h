#pragma once

#include <QDateTime>
#include <QList>
#include <QObject>
#include <QString>
#include <QVariantMap>

// What a run's report is made of, as the run's log entry froze it: the
// method and its three parts (read by property name), the run row, the
// calibration and standardisation the run relied on, the stored cycles, the
// summary figures, and the instrument settings of the moment.
struct RunReportSource
{
    const QObject *method = nullptr;
    const QObject *electrode = nullptr;
    const QObject *titrant = nullptr;
    const QObject *titration = nullptr;
    QVariantMap run;             // titrationType, mcreatedAt, mupdatedAt
    QVariantMap calibration;     // id, mcreatedAt, avgSlope
    QVariantMap standardisation; // id, createdAt, AvgConc, nominalConc, nominalConc_Unit, resultUnits
    QList<const QObject *> cycles;     // titration or known-addition cycles, in order
    QList<const QObject *> additions;  // known-addition additions, in order
    QString avgConc;
    QString rsd;
    QString sampleId;
    QString instrumentName;
    int dateFormat = 0;
    int timeFormat = 0;
    int temperatureFormat = 0;
    QString titrantConcentrationUnit;
    QDateTime lastBlankInput;

    QString text(const QObject *part, const char *key) const;
    double number(const QObject *part, const char *key) const;
    QString electrodeType() const { return text(electrode, "electrodeType"); }
    bool isMka() const { return electrodeType() == QLatin1String("ISE-MKA"); }
    QString runType() const { return run.value(QStringLiteral("titrationType")).toString(); }
    // The n-th (from 0) "|" part of a summary figure, blanks removed.
    static QString part(const QString &figures, int n);
};

// The report text and curves of a run, ready for `reportSetupTable`.
struct RunReportText
{
    QString reportString;
    QString graphString;
};
