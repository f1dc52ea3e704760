#pragma once

#include <QDateTime>
#include <QString>

// One input line of the remote command port, read into what it asks for.
// Names match at the start of the line, in any case, in a fixed order, so
// "BEEPER" is "beep" and "qdb" without a blank goes to the slave. Anything
// that is no command of the port is a pass-through to the slave.
struct RemoteCommand
{
    enum Kind { Daq, Beep, RtcGet, RtcSet, SysReset, AppVersion, ModelType, Qdb, PassThrough };
    enum BeepAction { BeepThreeSeconds, BeepOn, BeepStop, BeepTone };

    Kind kind = PassThrough;
    bool daqOn = false;             // Daq: exactly two words, the second holds "on"
    BeepAction beep = BeepThreeSeconds;
    int frequencyHz = 0;            // BeepTone; words that are no number give 0
    int durationMs = 0;
    QDateTime clock;                // RtcSet, local time; invalid when date or time doesn't parse
    bool qdbHasWord = false;        // Qdb: "qdb " followed by a word
    bool qdbOn = false;             // the word starts with "on"

    static RemoteCommand parse(const QString &line);
};
