#pragma once

#include <QString>
#include <QStringList>

class QTextStream;

// `vantor-cli discover`: asks the network for instruments (one datagram to
// the discovery group) and prints one line per instrument that answers.
// Without --interface it asks on loopback only.
class DiscoverCommand
{
public:
    static QString usage();
    // 0: at least one answer; 1: none; 2: bad options or no such interface.
    static int run(const QStringList &args, QTextStream &out, QTextStream &err);
    // One answer as a line of key=value fields, or "" when the datagram is
    // no instrument's reply. Values lose control characters and are cut at
    // 100 characters.
    static QString replyLine(const QByteArray &datagram, const QString &from);
};
