#include "reports/reportfiles.h"

#include "system/platform.h"

#include <QFile>
#include <QRegularExpression>

#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace {
struct Kind {
    const char *names[2];
    const char *folder;
};
constexpr Kind kKinds[] = {
    {{"Titration Log", "Titration"}, "TitrationReport"},
    {{"Titrant Log", "Standardization"}, "StandardizationReport"},
    {{"Calibration Log", "Calibration"}, "CalibrationReport"},
    {{"Direct Measure Log", "Measurement"}, "MeasurementReport"},
};

QString stamp(const QDateTime &timeStamp)
{
    return timeStamp.toString(QStringLiteral("yyyyMMdd_HHmm"));
}

QString number(int logId)
{
    return QStringLiteral("%1").arg(logId, 3, 10, QLatin1Char('0'));
}

bool closed(QFile &file)
{
    const bool ok = file.flush();
    file.close();
    return ok && file.error() == QFileDevice::NoError;
}

bool copy(const QString &from, const QString &to)
{
    QFile in(from);
    QFile out(to);
    if (!in.open(QIODevice::ReadOnly) || !out.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    while (!in.atEnd()) {
        const QByteArray chunk = in.read(1 << 16);
        if (chunk.isEmpty() || out.write(chunk) != chunk.size())
            return false;
    }
    return closed(out);
}
} // namespace

QString ReportFiles::folderOf(const QString &kind)
{
    for (const Kind &k : kKinds) {
        if (kind == QLatin1String(k.names[0]) || kind == QLatin1String(k.names[1]))
            return QLatin1String(k.folder);
    }
    return QString();
}

QString ReportFiles::stagingFolder(const QString &kind)
{
    const QString folder = folderOf(kind);
    return folder.isEmpty() ? QString() : Platform::path(QStringLiteral("/var/Kestrum/VantorPro/") + folder);
}

namespace {
QString kept(const QString &text, const char *allowed)
{
    QString safe = text;
    safe.remove(QRegularExpression(QLatin1String(allowed)));
    while (safe.startsWith(QLatin1Char('.')))
        safe.remove(0, 1);
    return safe;
}
} // namespace

QString ReportFiles::methodFileName(const QString &serial, const QDateTime &time, const QString &methodName)
{
    return kept(serial, "[^A-Za-z0-9.\\-]") + QLatin1Char('_') + stamp(time) + QLatin1Char('_')
        + kept(methodName, "[^A-Za-z0-9 ._\\-]") + QStringLiteral("_method.csv");
}

QString ReportFiles::runName(const QString &serial, const QDateTime &timeStamp, int logId, const QString &suffix)
{
    return kept(serial, "[^A-Za-z0-9.\\-]") + QLatin1Char('_') + stamp(timeStamp) + QLatin1Char('_') + number(logId) + suffix;
}

QString ReportFiles::meterName(const QDateTime &timeStamp, int logId, const QString &suffix)
{
    return number(logId) + QLatin1Char('_') + stamp(timeStamp) + suffix;
}

QString ReportFiles::csvCell(const QString &text)
{
    QString cell = text;
    static const QString risky = QStringLiteral("=+-@");
    // A number, alone or followed by its unit ("-91.0 mV", "+5 %"), stays as it is.
    static const QRegularExpression measured(
        QStringLiteral("^[+-]?(\\d+\\.?\\d*|\\.\\d+)([eE][+-]?\\d+)?( [^=+\\-@\\s\"][^=+@\"]*)?$"));
    if (!cell.isEmpty() && risky.contains(cell.at(0)) && !measured.match(cell).hasMatch())
        cell.prepend(QLatin1Char('\''));
    if (cell.contains(QLatin1Char(',')) || cell.contains(QLatin1Char('"')) || cell.contains(QLatin1Char('\n'))
        || cell.contains(QLatin1Char('\r')))
        cell = QLatin1Char('"') + cell.replace(QLatin1Char('"'), QStringLiteral("\"\"")) + QLatin1Char('"');
    return cell;
}

bool ReportFiles::publish(const QString &temporary, const QString &path)
{
    const int fd = ::open(QFile::encodeName(temporary).constData(), O_RDONLY);
    const bool synced = fd >= 0 && ::fsync(fd) == 0;
    if (fd >= 0)
        ::close(fd);
    if (!synced || std::rename(QFile::encodeName(temporary).constData(), QFile::encodeName(path).constData()) != 0) {
        QFile::remove(temporary);
        return false;
    }
    return true;
}

bool ReportFiles::writeFile(const QString &path, const QByteArray &bytes)
{
    const QString temporary = path + QStringLiteral(".part");
    QFile out(temporary);
    if (!out.open(QIODevice::WriteOnly | QIODevice::Truncate) || out.write(bytes) != bytes.size() || !closed(out)) {
        QFile::remove(temporary);
        return false;
    }
    return publish(temporary, path);
}

bool ReportFiles::moveFile(const QString &from, const QString &to)
{
    // The target of the same name is replaced in one step, never removed first.
    const QString temporary = to + QStringLiteral(".part");
    if (!copy(from, temporary)) {
        QFile::remove(temporary);
        return false;
    }
    if (!publish(temporary, to))
        return false;
    QFile::remove(from);
    return true;
}

QStringList ReportFiles::moveAll(const QDir &from, const QString &to, QStringList *failed)
{
    QStringList moved;
    const QStringList names = from.entryList(QDir::Files, QDir::Name);
    if (!QDir().mkpath(to)) {
        *failed = names;
        return moved;
    }
    const QDir target(to);
    for (const QString &name : names) {
        if (name.endsWith(QLatin1String(".part")))
            continue;
        if (moveFile(from.absoluteFilePath(name), target.absoluteFilePath(name)))
            moved.append(name);
        else
            failed->append(name);
    }
    return moved;
}
