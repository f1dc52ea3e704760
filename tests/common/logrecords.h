#pragma once

#include <QDateTime>
#include <QString>
#include <QVariantMap>

// The record rows that log entries point to (runs with cycles or MKA rows,
// calibrations with points, reports), written straight into the tables as
// the record models write them, for tests of the logs.
class LogRecords
{
public:
    // Creates the record tables with the columns the logs and these helpers
    // use, where the record models haven't made them yet.
    static void createTables();
    // A run of `type` with `cycles` cycles (MKA cycles with two additions each
    // for "ISE-MKA"); its titrationTable row by column name.
    static QVariantMap addRun(const QString &type, const QString &electrodeType, int cycles, int methodId = 1,
                              const QString &methodName = QStringLiteral("Acidity"));
    // A calibration with `points` points; its calibrationTable row.
    static QVariantMap addCalibration(const QString &electrodeType, int points, double avgSlope = 98.5);
    // A report row filed under `idColumn` = id.
    static int addReport(const QString &reportType, const char *idColumn, int id);
    // The meter state as MeasurementTable holds it, with `stability`.
    static QVariantMap measurement(bool stable, double value = 7.01);
    // Output of the sqlite3 shell on the file (separator '|', one line a row).
    static QString sqlite(const QString &file, const QString &sql);
    static int sqliteCount(const QString &file, const QString &sql);
};
