#pragma once

#include "models/columnspec.h"
#include "models/modelproperty.h"

#include <QDateTime>
#include <QObject>
#include <QString>
#include <QStringList>

class QSqlRecord;

// One point of an electrode calibration: the standard's value, the mV read
// for it, the slope and offset found. One row of `calibrationCycleTable`.
class CalibrationCycleModel : public QObject
{
    Q_OBJECT
    KESTRUM_MODEL_PROPERTY(int, id, setId)
    KESTRUM_MODEL_PROPERTY(int, calibrationID, setCalibrationID)
    KESTRUM_MODEL_PROPERTY(QString, timestamp, setTimestamp)
    KESTRUM_MODEL_PROPERTY(float, voltage, setVoltage)
    KESTRUM_MODEL_PROPERTY(float, volume, setVolume)
    KESTRUM_MODEL_PROPERTY(float, slope, setSlope)
    KESTRUM_MODEL_PROPERTY(float, calValue, setCalValue)
    KESTRUM_MODEL_PROPERTY(float, temperature, setTemperature)
    KESTRUM_MODEL_PROPERTY(int, cycleNo, setCycleNo)
    KESTRUM_MODEL_PROPERTY(float, offset, setOffset)
    KESTRUM_MODEL_PROPERTY(QString, temperatureMode, setTemperatureMode)
    KESTRUM_MODEL_PROPERTY(int, resolution, setResolution)
    KESTRUM_MODEL_PROPERTY(QDateTime, mcreatedAt, setMcreatedAt)
    KESTRUM_MODEL_PROPERTY(QDateTime, mupdatedAt, setMupdatedAt)
    KESTRUM_MODEL_PROPERTY(float, buffer, setBuffer)
    // The standard's value the user typed on the live point (not stored).
    KESTRUM_MODEL_PROPERTY(float, calValueUser, setCalValueUser)

public:
    static const QString tableName;
    static QStringList noMigrateList;
    static const ColumnTable &columnTable();

    explicit CalibrationCycleModel(QObject *parent = nullptr);

    static bool createTable();
    static bool migrate(const QString &fromVersion);
    // A stored point, read by position; cycleNo is the caller's numbering.
    static CalibrationCycleModel *fromRecord(const QSqlRecord &record, QObject *parent = nullptr);

public slots:
    // Inserts this point under calibration `id`; false when it failed.
    bool setcalibrationCycleValues(int id);
    void updateSlopeValue(float val);

signals:
    void valueChanged();
};
