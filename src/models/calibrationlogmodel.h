#pragma once

#include "models/modelproperty.h"

#include <QDateTime>
#include <QList>
#include <QObject>
#include <QSet>
#include <QSqlRecord>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVariantMap>

class CalibrationModel;
class LogLayout;
class MethodModel;

// One entry of the calibration log (`calibrationLogTable`): the method and
// electrode of the method in use and the calibration, copied when the
// calibration was saved. The calibration comes in as its row by column name.
class CalibrationLogModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int id READ id WRITE setId NOTIFY valueChanged)
    KESTRUM_MODEL_PROPERTY(QVariantMap, calibrationValues, setCalibrationValues)
    KESTRUM_MODEL_PROPERTY(QVariantMap, calibrationCycleValues, setCalibrationCycleValues)
    KESTRUM_MODEL_PROPERTY(QString, electrodeName, setElectrodeName)
    KESTRUM_MODEL_PROPERTY(QString, electrodeType, setElectrodeType)
    KESTRUM_MODEL_PROPERTY(int, calId, setCalId)
    KESTRUM_MODEL_PROPERTY(QDateTime, createdAt, setCreatedAt)
    KESTRUM_MODEL_PROPERTY(QDateTime, updatedAt, setUpdatedAt)
    KESTRUM_MODEL_PROPERTY(int, count, setCount)

public:
    static const QString tableName;
    static QStringList noMigrateList;
    static constexpr int defaultId = 200001;
    static const LogLayout &layout();
    // The columns the log list reads.
    static const QString listColumns;

    explicit CalibrationLogModel(QObject *parent = nullptr);

    static bool createTable();
    static bool migrate(const QString &fromVersion);

    int id() const { return m_id; }
    void setId(int id);

    // The method whose method and electrode rows a save copies (not owned).
    void setCurrentMethod(MethodModel *method) { m_current = method; }
    // Deletes the oldest entry with its calibration, points and report, as
    // one unit.
    static bool pruneOldest();

    // Builds the entry from a stored row (all columns or the list's).
    void loadFromRecord(const QSqlRecord &row);
    static QString newestFirstSql();
    static QList<CalibrationLogModel *> newestFirst(QObject *parent);
    // The calibration's slope as it stands now: the slope screen may have
    // edited it since the entry was written.
    void refreshSlope();

public slots:
    // `calibration` is the saved calibration's row of `calibrationTable`.
    void saveLogValues(bool isDataLogNotifOn, const QVariantMap &calibration);
    // With the log-full warning switch as the settings serve it.
    void saveLogValues(const QVariantMap &calibration);
    // The calibration the screens hold, once it is stored; false (logged)
    // for none or one never stored.
    bool saveLogValues(bool isDataLogNotifOn, CalibrationModel *calibration);
    bool deleteRow(int id);

signals:
    void valueChanged();
    void notificationSignal(QVariant etype);

private:
    static QSet<int> calibrationsInUse(bool *ok);
    static bool deleteCalibration(const QVariant &calibrationId);

    int m_id = defaultId;
    MethodModel *m_current = nullptr;
};
