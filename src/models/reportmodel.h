#pragma once

#include "models/columnspec.h"

#include <QObject>
#include <QString>
#include <QStringList>

// Owner of `reportSetupTable`, the stored report texts and images. A report
// row points to its log entry through the id column of its type
// (`titrationId`, `standardizationId`, `measurementId`, `calibrationId`), so
// the logs delete it with the entry.
class ReportModel : public QObject
{
    Q_OBJECT

public:
    static const QString tableName;
    static QStringList noMigrateList;
    static const ColumnTable &columnTable();

    explicit ReportModel(QObject *parent = nullptr);

    static bool createTable();
    static bool migrate(const QString &fromVersion);
};
