#pragma once

#include <QDateTime>
#include <QDir>
#include <QString>
#include <QStringList>

// Where report files go and what they are called. Every file is written
// into the staging folder of its kind under /var/Kestrum/VantorPro/ and then
// moved to the same folder below /VantorPro/ on the USB disk.
namespace ReportFiles {
// The folder of a kind: "TitrationReport", "StandardizationReport",
// "CalibrationReport", "MeasurementReport"; "" for an unknown kind.
// Kinds are the screens' words: "Titration Log", "Titrant Log",
// "Calibration Log", "Direct Measure Log" (also "Titration",
// "Standardization", "Calibration", "Measurement").
QString folderOf(const QString &kind);
// The staging folder of a kind, as a full path of this profile.
QString stagingFolder(const QString &kind);

// "serial_yyyyMMdd_HHmm_007" + suffix for runs; "007_yyyyMMdd_HHmm" +
// suffix for calibrations and readings. The serial keeps only letters,
// digits, "-" and "." so that it never names another folder.
QString runName(const QString &serial, const QDateTime &timeStamp, int logId, const QString &suffix);
QString meterName(const QDateTime &timeStamp, int logId, const QString &suffix);
// "serial_yyyyMMdd_HHmm_NAME_method.csv", the name kept to letters, digits,
// blanks, ".", "_" and "-".
QString methodFileName(const QString &serial, const QDateTime &time, const QString &methodName);

// One cell of a CSV line: a text a spreadsheet would run as a formula
// (beginning with "=", "+", "-" or "@" and not a number) gets a leading
// apostrophe; a cell holding a comma, a quote or a line end is quoted.
QString csvCell(const QString &text);

// Puts a finished temporary file in place: synced to the medium, then
// renamed over `path` in one step (the old file or the new, never neither).
// The temporary is removed when it fails; false then.
bool publish(const QString &temporary, const QString &path);

// Writes a whole file through a temporary name; false when it failed.
bool writeFile(const QString &path, const QByteArray &bytes);

// Moves one file across file systems: copied to a temporary name beside
// `to`, published over it, and only then removed from `from`; false (and
// `from` kept) when the copy or the rename failed.
bool moveFile(const QString &from, const QString &to);

// Moves every file of `from` into `to` (made when missing): each is copied
// to a temporary name beside its target, synced, renamed over the target
// and only then removed from `from`. A file that fails stays in `from`.
// Returns the names moved; `failed` gets the names that were not.
QStringList moveAll(const QDir &from, const QString &to, QStringList *failed);
} // namespace ReportFiles
