#pragma once

#include "models/columnspec.h"
#include "models/modelproperty.h"

#include <QDateTime>
#include <QObject>
#include <QString>
#include <QStringList>

class QSqlRecord;

// The meter's own state: which probe is read, how it is shown, and the last
// reading. `MeasurementTable` holds exactly one row of it, so the meter comes
// back after a restart as the user left it.
class MeasurementModel : public QObject
{
    Q_OBJECT
    KESTRUM_MODEL_PROPERTY(int, id, setId)
    KESTRUM_NOTIFY_PROPERTY(QString, readMode, setReadMode, readModeChanged)
    KESTRUM_QUIET_PROPERTY(QString, iseType, setIseType)
    KESTRUM_QUIET_PROPERTY(QString, bufferGroup, setBufferGroup)
    KESTRUM_QUIET_PROPERTY(float, resolution, setResolution)
    KESTRUM_NOTIFY_PROPERTY(QString, stirSpeed, setStirSpeed, stirSpeedChanged)
    KESTRUM_NOTIFY_PROPERTY(QString, sampleId, setSampleId, sampleIdChanged)
    Q_PROPERTY(QString sampleIdValue READ sampleIdValue WRITE setSampleIdValue NOTIFY sampleIdValueChanged)
    KESTRUM_NOTIFY_PROPERTY(int, significantDigits, setSignificantDigits, significantDigitsChanged)
    KESTRUM_NOTIFY_PROPERTY(QString, directMeasurementUnit, setDirectMeasurementUnit, directMeasurementUnitChanged)
    KESTRUM_NOTIFY_PROPERTY(float, scaledValue, setScaledValue, scaledValueChanged)
    KESTRUM_QUIET_PROPERTY(float, mV, setMV)
    KESTRUM_NOTIFY_PROPERTY(QString, sensorName, setSensorName, sensorNameChanged)
    KESTRUM_NOTIFY_PROPERTY(float, temp, setTemp, tempChanged)
    KESTRUM_NOTIFY_PROPERTY(bool, isATC, setIsATC, measurementValueChanged)
    KESTRUM_QUIET_PROPERTY(QDateTime, mcreatedAt, setMcreatedAt)
    KESTRUM_QUIET_PROPERTY(QDateTime, mupdatedAt, setMupdatedAt)
    KESTRUM_NOTIFY_PROPERTY(int, calLogId, setCalLogId, calLogIdValueChanged)
    KESTRUM_NOTIFY_PROPERTY(float, calAvg, setCalAvg, calAvgValueChanged)
    KESTRUM_NOTIFY_PROPERTY(QDateTime, calDateTime, setCalDateTime, calDateTimeValueChanged)
    KESTRUM_QUIET_PROPERTY(int, sno, setSno)
    KESTRUM_NOTIFY_PROPERTY(bool, stability, setStability, valueChanged)
    KESTRUM_QUIET_PROPERTY(QString, sampleIDAutoInc, setSampleIDAutoInc)
    KESTRUM_QUIET_PROPERTY(QString, sampleIDManual, setSampleIDManual)
    KESTRUM_QUIET_PROPERTY(int, count, setCount)
    KESTRUM_NOTIFY_PROPERTY(QString, measureMessage, setMeasureMessage, measureMessageChanged)

public:
    static const QString tableName;
    static QStringList noMigrateList;
    static const ColumnTable &columnTable();

    explicit MeasurementModel(QObject *parent = nullptr);

    // Takes the version by value: a file of 1.1 is first brought to 1.2 and
    // then goes through the step of 1.2.
    static bool migrate(QString fromVersion);

    QString sampleIdValue() const { return m_sampleIdValue; }
    void setSampleIdValue(const QString &value);

    // Fills the model from a stored row, by column name.
    void load(const QSqlRecord &record);
    // Makes the table, loads its row, or writes the default row when there
    // is none.
    void createMeasurementTableAndLoadModel();

public slots:
    // Stores the given object's values in the one row.
    bool setMeasurementValues(MeasurementModel *measurement);

signals:
    void readModeChanged();
    void stirSpeedChanged();
    void sampleIdChanged();
    void significantDigitsChanged();
    void directMeasurementUnitChanged();
    void scaledValueChanged();
    void sensorNameChanged();
    void tempChanged();
    void sampleIdValueChanged();
    void valueChanged();
    void measurementValueChanged();
    void calLogIdValueChanged();
    void calAvgValueChanged();
    void calDateTimeValueChanged();
    void measureMessageChanged();

private:
    QString m_sampleIdValue;
};
