#pragma once

#include "models/columnspec.h"
#include "models/modelproperty.h"

#include <QByteArray>
#include <QDateTime>
#include <QObject>
#include <QString>
#include <QStringList>

// Owner of `reportSetupTable`, the stored report texts and images. A report
// row points to its log entry through the id column of its type
// (`titrationId`, `standardizationId`, `measurementId`, `calibrationId`), so
// the logs delete it with the entry. The properties hold the report in hand;
// setReportValues() writes them.
class ReportModel : public QObject
{
    Q_OBJECT
    KESTRUM_MODEL_PROPERTY(int, id, setId)
    KESTRUM_MODEL_PROPERTY(QString, reportString, setReportString)
    KESTRUM_MODEL_PROPERTY(int, titrationId, setTitrationId)
    KESTRUM_MODEL_PROPERTY(QByteArray, cycleImage1, setCycleImage1)
    KESTRUM_MODEL_PROPERTY(QByteArray, cycleImage2, setCycleImage2)
    KESTRUM_MODEL_PROPERTY(QByteArray, cycleImage3, setCycleImage3)
    KESTRUM_MODEL_PROPERTY(QByteArray, cycleImage4, setCycleImage4)
    KESTRUM_MODEL_PROPERTY(QByteArray, cycleImage5, setCycleImage5)
    KESTRUM_MODEL_PROPERTY(QDateTime, mcreatedAt, setMcreatedAt)
    KESTRUM_MODEL_PROPERTY(QDateTime, mupdatedAt, setMupdatedAt)
    KESTRUM_MODEL_PROPERTY(QString, reportType, setReportType)
    KESTRUM_MODEL_PROPERTY(QDateTime, logTimeStamp, setLogTimeStamp)
    KESTRUM_MODEL_PROPERTY(QString, graphString, setGraphString)
    KESTRUM_MODEL_PROPERTY(int, dateFormat, setDateFormat)
    KESTRUM_MODEL_PROPERTY(int, timeFormat, setTimeFormat)
    KESTRUM_MODEL_PROPERTY(int, standardizationId, setStandardizationId)

public:
    static const QString tableName;
    static QStringList noMigrateList;
    static const ColumnTable &columnTable();
    static constexpr int imageCount = 5;

    explicit ReportModel(QObject *parent = nullptr);

    static bool createTable();
    static bool migrate(const QString &fromVersion);

    // The image of the n-th cycle (1 to 5).
    QByteArray cycleImage(int n) const;
    void setCycleImage(int n, const QByteArray &png);
    void clearImages();

public slots:
    // Writes the row from the properties: a titration or standardisation
    // report replaces the text of its log entry's row (keeping the time
    // stamp, curves and images of the first write), any other is a new row.
    // False when nothing was written; `id` is then 0, never an older row's.
    bool setReportValues(int logId, const QString &reportType, const QDateTime &titrationTimeStamp);

signals:
    void valueChanged();

private:
    bool insertRow(int logId);
    bool updateRow(const QString &idColumn, int logId);
};
