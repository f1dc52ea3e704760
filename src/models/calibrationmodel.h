#pragma once

#include "models/columnspec.h"
#include "models/modelproperty.h"

#include <QDateTime>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

class CalibrationCycleModel;
class QSqlRecord;

// One electrode calibration: which electrode, how it is read, and the
// average slope of its points. One row of `calibrationTable`; the points
// are CalibrationCycleModel rows.
class CalibrationModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int id READ id NOTIFY valueChanged)
    KESTRUM_MODEL_PROPERTY(QString, electrodeName, setElectrodeName)
    KESTRUM_MODEL_PROPERTY(QString, electrodeType, setElectrodeType)
    KESTRUM_MODEL_PROPERTY(QString, iseType, setIseType)
    KESTRUM_MODEL_PROPERTY(QString, directMeasureUnit, setDirectMeasureUnit)
    KESTRUM_MODEL_PROPERTY(float, resolution, setResolution)
    KESTRUM_MODEL_PROPERTY(int, significantDigits, setSignificantDigits)
    KESTRUM_MODEL_PROPERTY(int, calNo, setCalNo)
    KESTRUM_MODEL_PROPERTY(int, stirSpeed, setStirSpeed)
    KESTRUM_MODEL_PROPERTY(bool, isCalibrationRunning, setIsCalibrationRunning)
    KESTRUM_MODEL_PROPERTY(bool, stability, setStability)
    KESTRUM_MODEL_PROPERTY(double, avgSlope, setAvgSlope)
    KESTRUM_MODEL_PROPERTY(float, avgOffset, setAvgOffset)
    KESTRUM_MODEL_PROPERTY(QDateTime, mcreatedAt, setMcreatedAt)
    KESTRUM_MODEL_PROPERTY(QDateTime, mupdatedAt, setMupdatedAt)

public:
    static const QString tableName;
    static QStringList noMigrateList;
    static const ColumnTable &columnTable();

    explicit CalibrationModel(QObject *parent = nullptr);

    // The calibration table and its points' table, each only when missing.
    static bool createTables();
    static bool migrate(const QString &fromVersion);

    int id() const { return m_id; }
    // Whether this calibration is a row of the table (read or written); the
    // id of one never stored is a placeholder.
    bool isStored() const { return m_stored; }
    QString bufferGroup() const { return m_bufferGroup; }
    void setBufferGroup(const QString &group) { m_bufferGroup = group; }
    QString sampleId() const { return m_sampleId; }
    void setSampleId(const QString &sampleId) { m_sampleId = sampleId; }
    // Takes a stored row, its id included.
    void load(const QSqlRecord &record);

    // Writes the calibration and then its points, as one unit: a failure
    // stores none of it (logged); true when all was stored.
    bool setCalibrationValues(bool isChangeFromHome, const QList<CalibrationCycleModel *> &cycles,
                              const QString &action);

public slots:
    void updateAvgSlopeValue(float val);

signals:
    void valueChanged();

private:
    bool writeCalibration(const QList<CalibrationCycleModel *> &cycles);

    int m_id = 0;
    bool m_stored = false;
    QString m_bufferGroup;
    QString m_sampleId;
};
