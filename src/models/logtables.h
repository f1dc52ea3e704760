#pragma once

#include <QList>
#include <QString>

// Counting and emptying the four run logs (titration, standardisation,
// calibration, measurement) together with the run records and report rows
// they lean on. Every delete leaves the id counters so that numbering
// carries on from what is left (from 1 in an emptied table).
class LogTables
{
public:
    enum Log { Titration = 1, Standardisation = 2, Calibration = 3, Measurement = 4 };

    // Whether any of the four log tables has a row.
    static bool anyLogRow();
    // Rows of one log; -1 for a log that cannot be counted.
    static int rowCount(Log log);
    // The numbers a log's report rows go by, newest entry first: the
    // entry's id, a calibration's own id for the calibration log. Empty for
    // a log that cannot be read.
    static QList<int> reportIds(Log log);

    // Each empties its log in one unit; false (and the log whole) on failure.
    static bool deleteTitrationLog();
    static bool deleteTitrantLog();
    static bool deleteCalibrationLog();
    static bool deleteMeasurementLog();

private:
    // Cycles of each logged run (but those of multiple known addition),
    // the run rows of the given types, and the report rows of a type.
    static bool deleteRunsOfLog(const QString &logTable, const QString &typeCondition, const QString &reportType);
    static bool emptyTable(const QString &table);
};
