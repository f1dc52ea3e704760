#pragma once

#include <QString>
#include <QVariant>

#include <functional>

// How full a log may get: from `warnFrom` entries on the user is warned (with
// the notification `etype`), above `capacity` the oldest entry goes.
struct LogCapacityRule
{
    const char *table;
    int warnFrom;
    int capacity;
    int etype;
};

// The capacity rule shared by the four logs, and the deletions of the records
// that hang on a log entry. Every deletion here is bound by value; a child
// table that doesn't exist yet has nothing to delete.
class LogCapacity
{
public:
    static const LogCapacityRule titration;
    static const LogCapacityRule standardisation;
    static const LogCapacityRule calibration;
    static const LogCapacityRule measurement;

    // Entries in the log, -1 when it can't be counted.
    static int count(const char *table);
    static bool warningDue(const LogCapacityRule &rule, int n, bool isDataLogNotifOn);
    // Deletes the oldest entries while the log is above its capacity.
    // `pruneOldest` deletes one entry with its records as one unit and returns
    // false when it couldn't; the log is then left as it is.
    static void trim(const LogCapacityRule &rule, int n, const std::function<bool()> &pruneOldest);

    // DELETE FROM <table> WHERE <column> = value, skipped when the table
    // doesn't exist. Table and column are this program's own names.
    static bool deleteWhere(const char *table, const char *column, const QVariant &value);
    // A run with its cycles: the MKA tables for an "ISE-MKA" electrode, the
    // titration cycles otherwise.
    static bool deleteRun(const QVariant &titrationId, const QString &electrodeType);
};

// The instrument's log-full warning switch as the settings serve it. Until
// the settings install their source the warning is on.
class DataLogSetting
{
public:
    static bool isDatalogFullNotifOn();
    // nullptr goes back to the default.
    static void setSource(std::function<bool()> source);
};
