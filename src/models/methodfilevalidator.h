#pragma once

#include <QString>
#include <QVariantMap>

// Decides whether a method that comes from a file (a method export, a
// methods backup, a file given to the console) may be installed: every
// field within what the method screens let a user enter, the three parts
// present and belonging to the method, a name the screens would accept.
// The answer is empty when the method may go in, otherwise a message that
// names the first bad field. Nothing here writes to the database.
class MethodFileValidator
{
public:
    // A method file is a few kB; anything far larger is not one.
    static constexpr qint64 maxFileBytes = 1024 * 1024;

    // Pre-dose volumes are checked against the burette of this size (mL).
    explicit MethodFileValidator(double buretteMl);
    // The burette size stored in the settings (20 mL when there are none).
    static double storedBuretteMl();

    // A method file as it lies on the disk: readable, JSON, one method with
    // one row of each part, every field valid.
    QString checkFile(const QString &fileName) const;
    // The method `methodId` staged in the tables of `suffix` ("_temp",
    // "_import"), read back as the install will read it.
    QString checkStaged(const QString &suffix, int methodId) const;
    // The four rows of one method by column name.
    QString checkRows(const QVariantMap &method, const QVariantMap &electrode, const QVariantMap &titrant,
                      const QVariantMap &titration) const;

    // A method name as the name page accepts it: after taking off the
    // counter ("~3") that the installer adds, 1 to 14 letters, digits,
    // blanks and . - _ ?
    static bool isAcceptableName(const QString &name);

private:
    double m_buretteMl;
};
