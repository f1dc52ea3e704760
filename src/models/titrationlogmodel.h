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

#include <functional>

class ElectrodeSetupModel;
class LogLayout;
class MethodModel;
class StandardisationLogModel;
class TitrantSetupModel;
class TitrationSetupModel;

// One entry of the titration log (`titrationLogTable`): a frozen copy of the
// method, its three setup parts and the run, with the calibration and the
// standardisation the run relied on. The run and calibration values come in
// as plain rows by column name.
class TitrationLogModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int id READ id WRITE setId NOTIFY valueChanged)
    Q_PROPERTY(MethodModel *methodModel READ methodModel CONSTANT)
    Q_PROPERTY(ElectrodeSetupModel *electrodeSetupModel READ electrodeSetupModel CONSTANT)
    Q_PROPERTY(TitrantSetupModel *titrantSetupModel READ titrantSetupModel CONSTANT)
    Q_PROPERTY(TitrationSetupModel *titrationSetupModel READ titrationSetupModel CONSTANT)
    Q_PROPERTY(StandardisationLogModel *standardisationLogModel READ standardisationLogModel CONSTANT)
    KESTRUM_MODEL_PROPERTY(QVariantMap, calibrationValues, setCalibrationValues)
    KESTRUM_MODEL_PROPERTY(QVariantMap, calibrationCycleValues, setCalibrationCycleValues)
    KESTRUM_MODEL_PROPERTY(QVariantMap, runValues, setRunValues)
    KESTRUM_MODEL_PROPERTY(QDateTime, createdAt, setCreatedAt)
    KESTRUM_MODEL_PROPERTY(QDateTime, updatedAt, setUpdatedAt)
    KESTRUM_MODEL_PROPERTY(int, count, setCount)
    KESTRUM_MODEL_PROPERTY(QString, rsd, setRsd)
    KESTRUM_MODEL_PROPERTY(QString, AvgConc, setAvgConc)
    KESTRUM_MODEL_PROPERTY(int, standardisationId, setStandardisationId)

public:
    static const QString tableName;
    static QStringList noMigrateList;
    static constexpr int defaultId = 400001;
    static const LogLayout &layout();

    explicit TitrationLogModel(QObject *parent = nullptr);

    static bool createTable();
    static bool migrate(const QString &fromVersion);

    int id() const { return m_id; }
    void setId(int id);
    MethodModel *methodModel() const { return m_method; }
    ElectrodeSetupModel *electrodeSetupModel() const { return m_electrode; }
    TitrantSetupModel *titrantSetupModel() const { return m_titrant; }
    TitrationSetupModel *titrationSetupModel() const { return m_titration; }
    StandardisationLogModel *standardisationLogModel() const { return m_standardisation; }

    // The method whose parts a save copies (not owned).
    void setCurrentMethod(MethodModel *method) { m_current = method; }
    // Whether a method counts as standardised without a log entry of its
    // own (a copied method); the data manager installs its check.
    void setStandardizedFetch(std::function<bool(int methodId)> fetch) { m_standardizedFetch = std::move(fetch); }
    // Deletes the oldest entry with its run, cycles (or MKA rows) and
    // report, as one unit.
    static bool pruneOldest();

    void loadFromRecord(const QSqlRecord &row);
    static QString newestFirstSql();
    static QList<TitrationLogModel *> newestFirst(QObject *parent);

public slots:
    // Writes the entry (and drops the oldest one past the capacity);
    // false when the entry was not written.
    bool saveLogValues(bool isDataLogNotifOn);
    // With the log-full warning switch as the settings serve it.
    bool saveLogValues();
    bool deleteRow(int id);
    bool updateLog();
    bool saveBlankConc(float blankConc);

signals:
    void valueChanged();
    void notificationSignal(QVariant etype);

private:
    void findStandardisation(int titrantSetupId, const QDateTime &titrantUpdatedAt, int methodId);

    int m_id = defaultId;
    MethodModel *m_method = nullptr;
    ElectrodeSetupModel *m_electrode = nullptr;
    TitrantSetupModel *m_titrant = nullptr;
    TitrationSetupModel *m_titration = nullptr;
    StandardisationLogModel *m_standardisation = nullptr;
    MethodModel *m_current = nullptr;
    std::function<bool(int)> m_standardizedFetch;
};
