#pragma once

#include <QStringList>

class QTextStream;

// vantor-cli method export --out DIR, method import DIR, and backup --out
// FILE: the method files and the database copy of the USB jobs, on a
// sandbox's database and any folder.
class TransferCommand
{
public:
    static QString usage();
    // "method export", "method import" (args after "method"), or "backup".
    static bool handles(const QString &command, const QStringList &args);
    static int run(const QString &command, const QStringList &args, QTextStream &out, QTextStream &err);
};
