#include "system/updateversion.h"

#include <QRegularExpression>
#include <QStringList>

QString UpdateVersion::firmwareVersion(const QString &fileName)
{
    static const QRegularExpression rule(QStringLiteral("KestrumSlave_v(\\d+\\.\\d+)\\.hex"));
    const QRegularExpressionMatch match = rule.match(fileName);
    return match.hasMatch() ? match.captured(1) : QStringLiteral("0.0");
}

QString UpdateVersion::applicationVersion(const QString &name)
{
    static const QRegularExpression separators(QStringLiteral("(\\.|-|V)"));
    static const QRegularExpression digits(QStringLiteral("^\\d+$"));
    QStringList parts = name.split(separators).filter(digits);
    if (parts.size() < 3)
        return QStringLiteral("0.0.0.0");
    if (parts.size() == 3)
        parts << QString();
    return parts.join(QLatin1Char('.'));
}

bool UpdateVersion::weightedSum(const QString &version, quint64 *sum, int *parts)
{
    static const QRegularExpression separators(QStringLiteral("(\\.|-)"));
    const QStringList split = version.split(separators);
    *parts = split.size();
    quint64 total = 0;
    quint64 weight = 1;
    for (int i = split.size() - 1; i >= 0; --i) {
        bool ok = true;
        const quint64 value = split.at(i).isEmpty() ? 0 : split.at(i).toULongLong(&ok);
        quint64 term = 0;
        if (!ok || __builtin_mul_overflow(value, weight, &term) || __builtin_add_overflow(total, term, &total))
            return false;
        // A weight beyond 64 bits only matters when a part in front of it is not 0.
        if (i > 0 && __builtin_mul_overflow(weight, quint64(1000), &weight))
            weight = ~quint64(0);
    }
    *sum = total;
    return true;
}

bool UpdateVersion::isNewer(const QString &a, const QString &b)
{
    quint64 sumA = 0;
    quint64 sumB = 0;
    int partsA = 0;
    int partsB = 0;
    if (!weightedSum(a, &sumA, &partsA) || !weightedSum(b, &sumB, &partsB) || partsA != partsB)
        return false;
    return sumA > sumB;
}

UpdateVersion::Choice UpdateVersion::choose(const QStringList &names, const QString &applicationBuild, const QString &slaveVersion)
{
    const QString running = applicationVersion(applicationBuild);
    Choice choice;
    for (const QString &name : names) {
        if (name.contains(QLatin1String("KestrumSlave"))) {
            const QString version = firmwareVersion(name);
            if (isNewer(version, slaveVersion) && (choice.firmware.isEmpty() || isNewer(version, firmwareVersion(choice.firmware))))
                choice.firmware = name;
        } else if (name.contains(QLatin1String("Kestrum_V"))) {
            const QString version = applicationVersion(name);
            if (isNewer(version, running) && (choice.application.isEmpty() || isNewer(version, applicationVersion(choice.application))))
                choice.application = name;
        } else if (name.contains(QLatin1String("vantorProV400Updates_"))) {
            if (isNewer(applicationVersion(name), running) && name.contains(QLatin1String("swu")) && choice.systemImage.isEmpty())
                choice.systemImage = name;
        }
    }
    return choice;
}

QStringList UpdateVersion::fileFilters()
{
    return {QStringLiteral("Kestrum_V*"), QStringLiteral("KestrumSlave*.hex"), QStringLiteral("vantorProV400Updates*.swu")};
}
