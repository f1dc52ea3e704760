#pragma once

#include "models/columnspec.h"
#include "models/modelproperty.h"

#include <QDateTime>
#include <QJsonObject>
#include <QObject>
#include <QString>
#include <QTime>

class QSqlRecord;

// One cycle of a multiple known addition run: the averages over its
// additions. The run screen collects these and hands them over as JSON.
class MKATitrationCycleModel : public QObject
{
    Q_OBJECT
    KESTRUM_MODEL_PROPERTY(int, id, setId)
    KESTRUM_MODEL_PROPERTY(int, cycleno, setCycleno)
    KESTRUM_MODEL_PROPERTY(int, titrationID, setTitrationID)
    KESTRUM_MODEL_PROPERTY(float, avgCalconc, setAvgCalconc)
    KESTRUM_MODEL_PROPERTY(float, avgVolume, setAvgVolume)
    KESTRUM_MODEL_PROPERTY(float, sampleAmountValue, setSampleAmountValue)
    KESTRUM_MODEL_PROPERTY(float, temperature, setTemperature)
    KESTRUM_MODEL_PROPERTY(QTime, runningDuration, setRunningDuration)
    KESTRUM_MODEL_PROPERTY(float, avgmVvalue, setAvgmVvalue)
    KESTRUM_MODEL_PROPERTY(float, avgPrecision, setAvgPrecision)
    KESTRUM_MODEL_PROPERTY(float, spikeRecovery, setSpikeRecovery)
    KESTRUM_MODEL_PROPERTY(float, slope, setSlope)
    KESTRUM_MODEL_PROPERTY(QDateTime, mcreatedAt, setMcreatedAt)
    KESTRUM_MODEL_PROPERTY(QDateTime, mupdatedAt, setMupdatedAt)
    KESTRUM_MODEL_PROPERTY(QString, lastRunTime, setLastRunTime)
    KESTRUM_MODEL_PROPERTY(int, inclAvg, setInclAvg)
    Q_PROPERTY(QString runningDurationText READ runningDurationText NOTIFY valueChanged)

public:
    static const QString tableName;
    static const ColumnTable &columnTable();

    explicit MKATitrationCycleModel(QObject *parent = nullptr);

    // Only made when missing; the table has no migration.
    static bool createTable();
    // From one element of the screen's list; nullptr for an element that
    // isn't an object with a cycle number.
    static MKATitrationCycleModel *fromJson(const QJsonObject &object, QObject *parent = nullptr);
    static MKATitrationCycleModel *fromRecord(const QSqlRecord &record, QObject *parent = nullptr);

    QString runningDurationText() const;

public slots:
    bool setMKATitrationCycleValues(int id, const QDateTime &createdAt);

signals:
    void valueChanged();
};
