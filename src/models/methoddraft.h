#pragma once

#include <QString>

class MethodModel;

// A method given by the few choices a run needs, stored as the method
// screens store one: the electrode, titrant and titration parts, with the
// parts' defaults for everything else. The console runner builds its method
// from its options with it; tests build theirs.
struct MethodDraft
{
    QString electrodeType = QStringLiteral("pH"); // "pH", "Redox", "ISE-Titration", "ISE-MKA"
    QString iseType;                              // ion electrodes: "Monovalent Cation", ...
    float resolution = 0.01f;

    QString titrantName = QStringLiteral("NaOH");
    float titrantMolPerL = 0.1f;                  // entered by hand, mol/L

    QString technique = QStringLiteral("Equivalence Pt.");
    QString processControl = QStringLiteral("Routine");
    int endPoints = 1;
    float endPointMv[3] = {0.f, 0.f, 0.f};        // end points in mV ("mV" on the chart)
    float maxVolumeMl = 20.f;
    float preDoseMl = 0.f;
    int preStirS = 0;
    QString stirSpeed = QStringLiteral("Medium");
    float sampleMl = 10.f;                        // a fixed volume of sample
    float totalSolutionMl = 50.f;                 // known addition: all the liquid in the beaker
    float mkaPrecisionPct = 2.f;                  // known addition: ends when the last three agree this well
    QString resultUnits = QStringLiteral("M");

    // "User Defined" process control: the routine values to start from.
    float deltaE = 10.f;
    float deltaVmin = 0.01f;
    float deltaVmax = 0.4f;
    float stabilityCriteria = 8.f;
    int tMin = 2;
    int tMax = 8;
    int threshold = 200;

    // Stores the method under `name` (made unique among the stored ones).
    // The new method's id, or 0 with a message for the user in *error.
    int save(const QString &name, QString *error) const;
    // Writes this draft over the stored method `id` (its name, id and
    // records stay). The id, or 0 with a message in *error.
    int replace(int id, QString *error) const;
    // The id of the stored method of that name, 0 if there is none.
    static int findByName(const QString &name);

private:
    void fill(MethodModel &m) const;
};
