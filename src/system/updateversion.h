#pragma once

#include <QString>
#include <QStringList>

// The versions in the names of update files, and which of two is newer.
//
// A slave firmware file "KestrumSlave_v1.35.hex" has the version "1.35"; a
// name without that form has "0.0". An application or system image name
// ("Kestrum_V3.3.0-12", "vantorProV400Updates_3.3.0.swu") keeps its runs of
// digits between ".", "-" and "V": fewer than three give "0.0.0.0", exactly
// three get an empty fourth part ("3.2.0."). The running application's own
// version ("V3.2.0") goes through the same rule.
class UpdateVersion
{
public:
    static QString firmwareVersion(const QString &fileName);
    static QString applicationVersion(const QString &name);
    // a is newer than b: both have the same number of parts (split at "."
    // and "-") and a's weighted sum is greater. The last part weighs 1, the
    // one before 1000, then 1000000 and so on; an empty part counts 0. A
    // part that is not a number, or a sum beyond 64 bits, is never newer.
    static bool isNewer(const QString &a, const QString &b);
    // The weighted sum; false when it can't be formed.
    static bool weightedSum(const QString &version, quint64 *sum, int *parts);

    // What a disk's file names offer against the running application's
    // build ("V3.2.0") and the slave's firmware version ("1.35"): the newest
    // firmware and application newer than these, and whether a newer
    // system image is there. Of equal versions the first name stays.
    struct Choice {
        QString firmware;
        QString application;
        QString systemImage;
    };
    static Choice choose(const QStringList &names, const QString &applicationBuild, const QString &slaveVersion);
    // The name patterns of the files an update folder is searched for.
    static QStringList fileFilters();
};
