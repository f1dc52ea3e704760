#pragma once

#include <QList>
#include <QObject>
#include <QSqlRecord>
#include <QStringList>

#include "models/loglayout.h"

#include <QSqlRecord>
#include <QString>
#include <QVariantMap>

class ElectrodeSetupModel;
class MethodModel;
class TitrantSetupModel;
class TitrationSetupModel;

// What the log models share: taking the copied rows from the live models,
// writing a wide row, and giving a stored row back to the models.
class LogSnapshot
{
public:
    // The method's own row and the rows of its three setup parts.
    static LogSourceRows methodRows(const MethodModel *method);
    // The method's run as its table holds it, once the run has been written;
    // until then the values given.
    static QVariantMap runRow(const MethodModel *method, const QVariantMap &unwritten);
    // The newest calibration of an electrode type: `id`, `avgSlope`, `mcreatedAt` and
    // `avgOffset`, the mean offset of its points (0 without points). Empty
    // when there is none.
    static QVariantMap lastCalibration(const QString &electrodeType);
    // Inserts a row of the layout; the new id, or -1 with `errorText` logged.
    static int insert(const LogLayout &layout, const QString &table, const LogSourceRows &rows, const char *errorText);
    // The values of one block of a stored row, by the source's column names.
    static QVariantMap blockValues(const LogLayout &layout, const QSqlRecord &row, LogBlock block);
    // A run's stored calibration block with the average slope of that
    // calibration, which the block has no column for (kept while the
    // calibration is).
    static QVariantMap storedCalibration(const LogLayout &layout, const QSqlRecord &row);
    // Loads the parts that exist in the layout from a stored row; a null
    // part is skipped.
    static void loadParts(const LogLayout &layout, const QSqlRecord &row, MethodModel *method,
                          ElectrodeSetupModel *electrode, TitrantSetupModel *titrant, TitrationSetupModel *titration);
    // DELETE FROM <table> WHERE id=:ID.
    static bool deleteRow(const QString &table, int id);
    // The log's rows, newest first (ties by id).
    static QString newestFirstSql(const QString &table, const QString &columns = QStringLiteral("*"));
    // The stored rows of a newest-first query (empty when it fails).
    static QList<QSqlRecord> newestFirstRows(const QString &sql);

    // One model per stored row, newest first; `prepare` finishes each entry.
    template <typename Log, typename Prepare>
    static QList<Log *> newestFirst(const QString &sql, QObject *parent, Prepare prepare)
    {
        QList<Log *> list;
        const QList<QSqlRecord> rows = newestFirstRows(sql);
        for (const QSqlRecord &row : rows) {
            auto *entry = new Log(parent);
            entry->loadFromRecord(row);
            prepare(entry);
            list.append(entry);
        }
        return list;
    }
};
