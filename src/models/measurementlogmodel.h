#pragma once

#include "models/measurementmodel.h"
#include "models/modelproperty.h"

#include <QDateTime>
#include <QList>
#include <QObject>
#include <QSqlRecord>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVariantMap>

class LogLayout;

// One logged reading of the meter (`measurementLogTable`). The meter state
// comes in as its row by the column names of `MeasurementTable`, with
// `stability` added.
class MeasurementLogModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int id READ id WRITE setId NOTIFY valueChanged)
    KESTRUM_MODEL_PROPERTY(QVariantMap, measurementValues, setMeasurementValues)
    // Written by the screens: the meter's record whose values the next save takes.
    Q_PROPERTY(MeasurementModel *measurementModel READ measurementModel WRITE takeMeasurement NOTIFY valueChanged)
    KESTRUM_MODEL_PROPERTY(QDateTime, createdAt, setCreatedAt)
    KESTRUM_MODEL_PROPERTY(QDateTime, updatedAt, setUpdatedAt)

public:
    static const QString tableName;
    static QStringList noMigrateList;
    static const LogLayout &layout();

    explicit MeasurementLogModel(QObject *parent = nullptr);

    static bool createTable();
    static bool migrate(const QString &fromVersion);

    int id() const { return m_id; }
    void setId(int id);
    // The logged reading as a meter record, for the screens.
    MeasurementModel *measurementModel() const { return m_measurement; }
    // The values of the next save from the meter's record.
    void takeMeasurement(MeasurementModel *measurement);

    // Deletes the oldest entry with its report, as one unit.
    static bool pruneOldest();

    void loadFromRecord(const QSqlRecord &row);
    static QString newestFirstSql();
    static QList<MeasurementLogModel *> newestFirst(QObject *parent);

public slots:
    bool saveLogValues(bool isDataLogNotifOn);
    // With the log-full warning switch as the settings serve it.
    bool saveLogValues();
    bool deleteRow(int id);

signals:
    void valueChanged();
    void notificationSignal(QVariant etype);
    void logSaved();

private:
    int m_id = 0;
    MeasurementModel *m_measurement = nullptr;
};
