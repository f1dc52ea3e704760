#pragma once

#include <QString>
#include <QStringList>

class QTextStream;

// `vantor-cli remote --port DEVICE COMMAND...`: sends each command to an
// instrument's remote port (115200 8N1), one at a time, and prints what comes
// back until the line has been quiet for --wait milliseconds.
class RemotePortCommand
{
public:
    static QString usage();
    // 0: all sent; 2: bad options or the port can't be opened or written.
    static int run(const QStringList &args, QTextStream &out, QTextStream &err);
};
