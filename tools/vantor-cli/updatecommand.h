#pragma once

#include <QString>
#include <QStringList>

class QTextStream;

// `vantor-cli update FOLDER`: what a USB disk with these update files would
// offer the instrument (the same names and version rules as the update on
// the screens), without copying or installing anything.
class UpdateCommand
{
public:
    static QString usage();
    // 0: something newer is there; 1: nothing newer; 2: bad options or folder.
    static int run(const QStringList &args, QTextStream &out, QTextStream &err);
};
