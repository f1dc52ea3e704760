#pragma once

#include <QString>

// Puts a new program in place of the old one so that nothing half-written
// is ever left under the program's name: the file is copied to a temporary
// file beside the target, checked (its size, executable, for this board)
// and only then renamed over the target. A failed step removes the
// temporary file and leaves the old program as it was.
class ProgramInstaller
{
public:
    // expectedBytes: the size the file had on the USB disk (-1: not checked).
    static bool install(const QString &source, const QString &target, qint64 expectedBytes, QString *why);
    // The temporary file beside the target.
    static QString temporaryFile(const QString &target) { return target + QStringLiteral(".new"); }
};
