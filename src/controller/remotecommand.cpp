#include "controller/remotecommand.h"

#include <QRegularExpression>
#include <QStringList>

namespace {

QStringList words(const QString &line, Qt::SplitBehavior empties)
{
    static const QRegularExpression blanks(QStringLiteral("\\s+"));
    return line.split(blanks, empties);
}

bool starts(const QString &line, const char *name)
{
    return line.startsWith(QLatin1String(name), Qt::CaseInsensitive);
}

} // namespace

RemoteCommand RemoteCommand::parse(const QString &line)
{
    RemoteCommand c;
    if (starts(line, "daq")) {
        c.kind = Daq;
        const QStringList w = words(line, Qt::SkipEmptyParts);
        c.daqOn = w.size() == 2 && w.at(1).contains(QLatin1String("on"), Qt::CaseInsensitive);
    } else if (starts(line, "beep")) {
        c.kind = Beep;
        const QStringList w = words(line, Qt::SkipEmptyParts);
        if (w.size() == 2) {
            c.beep = w.at(1).contains(QLatin1String("on"), Qt::CaseInsensitive) ? BeepOn : BeepStop;
        } else if (w.size() > 2) {
            c.beep = BeepTone;
            c.frequencyHz = w.at(1).toInt(nullptr, 10);
            c.durationMs = w.at(2).toInt(nullptr, 10);
        }
    } else if (starts(line, "rtcget")) {
        c.kind = RtcGet;
    } else if (starts(line, "rtcset")) {
        c.kind = RtcSet;
        QStringList w = words(line, Qt::KeepEmptyParts);
        w.removeFirst();
        const QDate date = w.isEmpty() ? QDate() : QDate::fromString(w.takeFirst(), QStringLiteral("yyyy-M-d"));
        const QTime time = w.isEmpty() ? QTime() : QTime::fromString(w.takeFirst(), QStringLiteral("h:m:s"));
        if (date.isValid() && time.isValid())
            c.clock = QDateTime(date, time, Qt::LocalTime);
    } else if (starts(line, "sys_reset")) {
        c.kind = SysReset;
    } else if (starts(line, "app_version")) {
        c.kind = AppVersion;
    } else if (starts(line, "model_type")) {
        c.kind = ModelType;
    } else if (starts(line, "qdb ")) {
        c.kind = Qdb;
        static const QRegularExpression word(QStringLiteral("qdb (\\S+)"), QRegularExpression::CaseInsensitiveOption);
        const QRegularExpressionMatch m = word.match(line);
        c.qdbHasWord = m.hasMatch();
        c.qdbOn = c.qdbHasWord && m.captured(1).startsWith(QLatin1String("on"), Qt::CaseInsensitive);
    }
    return c;
}
