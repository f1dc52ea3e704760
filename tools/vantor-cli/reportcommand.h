#pragma once

#include <QStringList>

class QTextStream;

// vantor-cli report export: the Log section's export of one log, for lab
// scripts and for checking reports without a screen. The files are those the
// screens put on the USB disk, with the same names and contents.
class ReportCommand
{
public:
    static QString usage();
    static int run(const QStringList &args, QTextStream &out, QTextStream &err);
};
