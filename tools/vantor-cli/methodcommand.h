#pragma once

#include <QString>
#include <QStringList>

class QTextStream;

// "vantor-cli method": puts a method file on the instrument as the method
// library installs an import, and lists the stored methods, so that a
// method reaches the database of a sandbox without a USB disk.
class MethodCommand
{
public:
    // Installs the method of a method file (the JSON of a method export:
    // its rows of the method, electrode, titrant and titration tables) as
    // the method library installs an imported method: checked field by
    // field, staged in the "_temp" tables, read back, then written to the
    // live tables under a unique name. The new method's id and the name it
    // got, or 0 with the reason (the first bad field, a full library); never
    // the id of a stored method that merely has the same name. The "_temp"
    // tables are gone on every way out. Needs the database open.
    static int installFile(const QString &fileName, QString *error, QString *installedName = nullptr);

    static QString usage();
    // Exit status: 0 done, 2 a bad option, a file or database that cannot
    // be used, a method that was refused.
    static int run(const QStringList &args, QTextStream &out, QTextStream &err);

private:
    static int install(const QString &file, QTextStream &out, QTextStream &err);
    static int list(QTextStream &out);
};
