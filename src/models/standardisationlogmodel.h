#pragma once

#include "models/modelproperty.h"

#include <QDateTime>
#include <QList>
#include <QObject>
#include <QSqlRecord>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVariantMap>

class ElectrodeSetupModel;
class LogLayout;
class MethodModel;
class TitrantSetupModel;

// One entry of the standardisation log (`standardisationLogTable`): a frozen
// copy of the method, its electrode and titrant parts and the run, so the
// entry still reads as it was when the method has been edited or deleted.
// The run and calibration values come in as plain rows by column name.
class StandardisationLogModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int id READ id WRITE setId NOTIFY valueChanged)
    Q_PROPERTY(MethodModel *methodModel READ methodModel CONSTANT)
    Q_PROPERTY(ElectrodeSetupModel *electrodeSetupModel READ electrodeSetupModel CONSTANT)
    Q_PROPERTY(TitrantSetupModel *titrantSetupModel READ titrantSetupModel CONSTANT)
    KESTRUM_MODEL_PROPERTY(QVariantMap, calibrationValues, setCalibrationValues)
    KESTRUM_MODEL_PROPERTY(QVariantMap, calibrationCycleValues, setCalibrationCycleValues)
    KESTRUM_MODEL_PROPERTY(QVariantMap, runValues, setRunValues)
    KESTRUM_MODEL_PROPERTY(QDateTime, createdAt, setCreatedAt)
    KESTRUM_MODEL_PROPERTY(QDateTime, updatedAt, setUpdatedAt)
    KESTRUM_MODEL_PROPERTY(int, count, setCount)
    KESTRUM_MODEL_PROPERTY(QString, AvgConc, setAvgConc)
    KESTRUM_MODEL_PROPERTY(QString, RSD, setRSD)

public:
    static const QString tableName;
    static QStringList noMigrateList;
    static constexpr int defaultId = 300001;
    static const LogLayout &layout();

    explicit StandardisationLogModel(QObject *parent = nullptr);

    static bool createTable();
    static bool migrate(const QString &fromVersion);

    int id() const { return m_id; }
    void setId(int id);
    MethodModel *methodModel() const { return m_method; }
    ElectrodeSetupModel *electrodeSetupModel() const { return m_electrode; }
    TitrantSetupModel *titrantSetupModel() const { return m_titrant; }

    // The method whose parts a save copies (not owned).
    void setCurrentMethod(MethodModel *method) { m_current = method; }
    // Deletes the oldest entry with its run, cycles and report, as one unit.
    static bool pruneOldest();

    // Builds the entry from a stored row.
    void loadFromRecord(const QSqlRecord &row);
    static QString newestFirstSql();
    static QList<StandardisationLogModel *> newestFirst(QObject *parent);

public slots:
    // Writes the entry (and drops the oldest one past the capacity);
    // false when the entry was not written.
    bool saveLogValues(bool isDataLogNotifOn);
    // With the log-full warning switch as the settings serve it.
    bool saveLogValues();
    bool deleteRow(int id);
    bool updateStandardisationLog();

signals:
    void valueChanged();
    void notificationSignal(QVariant etype);

private:
    int m_id = defaultId;
    MethodModel *m_method = nullptr;
    ElectrodeSetupModel *m_electrode = nullptr;
    TitrantSetupModel *m_titrant = nullptr;
    MethodModel *m_current = nullptr;
};
