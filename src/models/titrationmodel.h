#pragma once

#include "models/columnspec.h"
#include "models/modelproperty.h"

#include <QDateTime>
#include <QImage>
#include <QList>
#include <QObject>
#include <QQmlListProperty>
#include <QString>
#include <QStringList>

class MKAadditionModel;
class MKATitrationCycleModel;
class TitrationCycleModel;

// One run of a method (a titration, a standardisation or a blank): one row of
// `titrationTable`. During the run its cycles live here in memory; they reach
// the tables together when the screens call setTitrationValues().
class TitrationModel : public QObject
{
    Q_OBJECT
    KESTRUM_MODEL_PROPERTY(int, id, setId)
    KESTRUM_MODEL_PROPERTY(QString, titrationType, setTitrationType)
    KESTRUM_MODEL_PROPERTY(QString, titrationDateTime, setTitrationDateTime)
    KESTRUM_MODEL_PROPERTY(QString, methodName, setMethodName)
    KESTRUM_MODEL_PROPERTY(QString, titrantName, setTitrantName)
    KESTRUM_MODEL_PROPERTY(float, titrantPercentage, setTitrantPercentage)
    KESTRUM_MODEL_PROPERTY(QString, sensorName, setSensorName)
    Q_PROPERTY(int cycleno READ cycleno WRITE setCycleno NOTIFY cyclenoChanged)
    KESTRUM_MODEL_PROPERTY(int, methodId, setMethodId)
    KESTRUM_MODEL_PROPERTY(QDateTime, mcreatedAt, setMcreatedAt)
    KESTRUM_MODEL_PROPERTY(QDateTime, mupdatedAt, setMupdatedAt)
    KESTRUM_MODEL_PROPERTY(float, sampleAmountValue, setSampleAmountValue)
    KESTRUM_MODEL_PROPERTY(float, reagentAmountValue, setReagentAmountValue)
    KESTRUM_MODEL_PROPERTY(float, standAmountValue, setStandAmountValue)
    KESTRUM_MODEL_PROPERTY(float, temperature, setTemperature)
    KESTRUM_MODEL_PROPERTY(QString, electrodeType, setElectrodeType)
    Q_PROPERTY(QQmlListProperty<TitrationCycleModel> titrationCycles READ titrationCyclesList NOTIFY titrationCyclesChanged)
    Q_PROPERTY(QQmlListProperty<MKATitrationCycleModel> mkaTitrationCycles READ mkaTitrationCyclesList NOTIFY mkaTitrationCycleChanged)
    Q_PROPERTY(QQmlListProperty<MKAadditionModel> mkaaddcycles READ mkaAdditionList NOTIFY mkaAdditionCycleCheanged)

public:
    static const QString tableName;
    static QStringList noMigrateList;
    static const ColumnTable &columnTable();
    // Longest text of one list handed over by the screens.
    static constexpr int maxInputChars = 1 << 20;

    explicit TitrationModel(QObject *parent = nullptr);
    ~TitrationModel() override;

    // The run table and the three cycle tables, each only when missing.
    static bool createTables();
    static bool migrate(const QString &fromVersion);

    int cycleno() const { return m_cycleno; }
    // A new cycle of the number in `cycleno`, in place of an unfinished one.
    TitrationCycleModel *startCycle();
    void setCycleno(int cycleno);

    const QList<TitrationCycleModel *> &titrationCycles() const { return m_titrationCycles; }
    const QList<MKATitrationCycleModel *> &mkaTitrationCycles() const { return m_mkaCycles; }
    const QList<MKAadditionModel *> &mkaAdditionCycles() const { return m_mkaAdditions; }
    // Takes ownership.
    void appendTitrationCycle(TitrationCycleModel *cycle);
    // Empties the cycle lists; the objects go with deleteLater(), since a
    // screen may still hold them.
    void clearTitrationCycles();

    // The cycle in progress, made when missing, with the per-cycle inputs.
    TitrationCycleModel *currentTitrationCycle();
    void setDirectMeasureData();
    void updateTitrationCompletion(float result, float volume);
    void updateTitrationCompletion(const float results[3], const float volumes[3]);
    void updateEndPointValues(float ep1, float ep2);

public slots:
    TitrationCycleModel *titrationCycle(int idx);
    int titrationCyclesCount() const { return m_titrationCycles.size(); }
    // Writes the run and its cycles as one unit: true when all of it was
    // stored. On a failure nothing of the run is stored and it stays here.
    bool setTitrationValues(bool isChangeFromHome);
    void stopCycle();
    void insertCycleImage(const QImage &image);
    void updateInculeInAvgCondition(int ID, bool check);
    void updateInculeInAvgConditioninMKA(int ID, bool check);
    QDateTime getLastBlankInput(const QString &blankTitrationType);
    void mkaCycleInput(const QString &mkaCycleArray, const QString &mkaAdditionArray);

signals:
    void valueChanged();
    void cyclenoChanged();
    void titrationCyclesChanged();
    void mkaTitrationCycleChanged();
    void mkaAdditionCycleCheanged();
    // A run was stored: the method's lastTitration (isTitration) or
    // lastStandardization now holds `when`.
    void runStored(bool isTitration, const QString &when);

private:
    TitrationCycleModel *cycleNumbered(int cycleNo) const;
    QQmlListProperty<TitrationCycleModel> titrationCyclesList();
    QQmlListProperty<MKATitrationCycleModel> mkaTitrationCyclesList();
    QQmlListProperty<MKAadditionModel> mkaAdditionList();
    bool writeRun(bool isChangeFromHome);
    void copyInputs(TitrationCycleModel *cycle) const;

    int m_cycleno = 0;
    QList<TitrationCycleModel *> m_titrationCycles;
    QList<MKATitrationCycleModel *> m_mkaCycles;
    QList<MKAadditionModel *> m_mkaAdditions;
};
