#pragma once

#include "models/columnspec.h"
#include "models/modelproperty.h"

#include <QByteArray>
#include <QDateTime>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTime>

class QSqlRecord;

// One cycle (one sample) of a run: its results at up to three end points,
// the curve as text, how long it took and a picture of the curve. The object
// is made when the cycle starts, since its stopwatch is the cycle's running
// time. One row of `titrationCycleTable` once the run is written.
class TitrationCycleModel : public QObject
{
    Q_OBJECT
    KESTRUM_MODEL_PROPERTY(int, id, setId)
    KESTRUM_MODEL_PROPERTY(int, cycleNo, setCycleNo)
    KESTRUM_MODEL_PROPERTY(QString, sampleId, setSampleId)
    KESTRUM_MODEL_PROPERTY(float, calCon, setCalCon)
    KESTRUM_MODEL_PROPERTY(float, calCon2, setCalCon2)
    KESTRUM_MODEL_PROPERTY(float, calCon3, setCalCon3)
    KESTRUM_MODEL_PROPERTY(float, veqp, setVeqp)
    KESTRUM_MODEL_PROPERTY(float, veqp2, setVeqp2)
    KESTRUM_MODEL_PROPERTY(float, veqp3, setVeqp3)
    KESTRUM_MODEL_PROPERTY(QString, initialpH, setInitialpH)
    KESTRUM_MODEL_PROPERTY(int, inclInAvg, setInclInAvg)
    KESTRUM_MODEL_PROPERTY(int, titrationId, setTitrationId)
    KESTRUM_MODEL_PROPERTY(QString, graphPoints, setGraphPoints)
    KESTRUM_MODEL_PROPERTY(QDateTime, mcreatedAt, setMcreatedAt)
    KESTRUM_MODEL_PROPERTY(QDateTime, mupdatedAt, setMupdatedAt)
    KESTRUM_MODEL_PROPERTY(QString, lastRunTime, setLastRunTime)
    KESTRUM_MODEL_PROPERTY(float, sampleAmountValue, setSampleAmountValue)
    KESTRUM_MODEL_PROPERTY(float, reagentAmountValue, setReagentAmountValue)
    KESTRUM_MODEL_PROPERTY(float, standAmountValue, setStandAmountValue)
    KESTRUM_MODEL_PROPERTY(float, temperature, setTemperature)
    KESTRUM_MODEL_PROPERTY(QTime, runningDuration, setRunningDuration)
    KESTRUM_MODEL_PROPERTY(QByteArray, cycleImage, setCycleImage)
    KESTRUM_MODEL_PROPERTY(float, epValue1, setEpValue1)
    KESTRUM_MODEL_PROPERTY(float, epValue2, setEpValue2)
    Q_PROPERTY(QString runningDurationText READ runningDurationText NOTIFY valueChanged)

public:
    static const QString tableName;
    static QStringList noMigrateList;
    static const ColumnTable &columnTable();
    // The shown and stored form of a duration.
    static const QString durationFormat;

    explicit TitrationCycleModel(QObject *parent = nullptr);

    static bool createTable();
    static bool migrate(const QString &fromVersion);

    // A cycle as stored, for the log screens.
    static TitrationCycleModel *fromRecord(const QSqlRecord &record, QObject *parent = nullptr);

    // "hh:mm:ss", empty while the cycle runs.
    QString runningDurationText() const;
    // Milliseconds since the cycle object was made.
    qint64 elapsedMs() const;

    void addTitrationCompletion(float result, float volume);
    void addTitrationCompletion(const float results[3], const float volumes[3]);

public slots:
    void addPoint(float x, float y, float resolution, const QString &displayUnits);
    // Inserts the cycle under run `id`; false when the statement failed.
    bool setTitrationCycleValues(int id, const QDateTime &createdAt);

signals:
    void valueChanged();
    void veqpChanged();
    void calConChanged();

private:
    void stopTheClock();

    qint64 m_startMs = 0;
};
