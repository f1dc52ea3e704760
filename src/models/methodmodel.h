#pragma once

#include "models/columnspec.h"
#include "models/modelproperty.h"

#include <QDateTime>
#include <QList>
#include <QObject>
#include <QQmlListProperty>
#include <QString>
#include <QStringList>
#include <QVariantList>

class ElectrodeSetupModel;
class TitrantSetupModel;
class TitrationSetupModel;
class TitrationModel;

// One method: name, password and the three setup parts (electrode, titrant,
// titration), each one row keyed by the method's id. The row 99999 is the
// working method that exists while a method is being built; at most ten
// other methods can be stored.
class MethodModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int id READ id WRITE setId NOTIFY valueChanged)
    KESTRUM_MODEL_PROPERTY(QString, methodName, setMethodName)
    KESTRUM_MODEL_PROPERTY(QString, methodPassword, setMethodPassword)
    KESTRUM_MODEL_PROPERTY(QString, lastTitration, setLastTitration)
    KESTRUM_MODEL_PROPERTY(QString, lastCalibration, setLastCalibration)
    KESTRUM_MODEL_PROPERTY(QString, lastStandardization, setLastStandardization)
    Q_PROPERTY(float titrantConcentration READ titrantConcentration WRITE setTitrantConcentration NOTIFY valueChanged)
    Q_PROPERTY(float blankConcentration READ blankConcentration WRITE setBlankConcentration NOTIFY valueChanged)
    KESTRUM_MODEL_PROPERTY(float, sampleConcentration, setSampleConcentration)
    KESTRUM_MODEL_PROPERTY(QDateTime, mcreatedAt, setMcreatedAt)
    KESTRUM_MODEL_PROPERTY(QDateTime, mupdatedAt, setMupdatedAt)
    KESTRUM_MODEL_PROPERTY(bool, isChangeFromHome, setIsChangeFromHome)
    KESTRUM_MODEL_PROPERTY(QString, calibratedElectrodeName, setCalibratedElectrodeName)
    KESTRUM_MODEL_PROPERTY(int, success, setSuccess)
    KESTRUM_MODEL_PROPERTY(bool, isNewTitrationProcessStarted, setIsNewTitrationProcessStarted)
    KESTRUM_MODEL_PROPERTY(bool, areAllFilePresent, setAreAllFilePresent)
    KESTRUM_MODEL_PROPERTY(bool, isUpdatedFromDBLog, setIsUpdatedFromDBLog)
    Q_PROPERTY(int importedMethodCount READ importedMethodCount NOTIFY valueChanged)
    Q_PROPERTY(ElectrodeSetupModel *electrodeSetupModel READ electrodeSetupModel CONSTANT)
    Q_PROPERTY(TitrantSetupModel *titrantSetupModel READ titrantSetupModel CONSTANT)
    Q_PROPERTY(TitrationSetupModel *titrationSetupModel READ titrationSetupModel CONSTANT)
    Q_PROPERTY(TitrationModel *titrationModel READ titrationModel CONSTANT)
    Q_PROPERTY(QQmlListProperty<MethodModel> methods READ methods NOTIFY valueChanged)

public:
    static const QString tableName;
    static QStringList noMigrateList;
    static const ColumnTable &columnTable();
    static constexpr int scratchMethodId = 99999;
    static constexpr int maxMethods = 10;

    // With ensureScratchMethod the working method's rows are created when
    // missing; list entries and staged methods pass false.
    explicit MethodModel(QObject *parent = nullptr, bool ensureScratchMethod = true);
    ~MethodModel() override;

    static bool createTables();
    static bool migrate(const QString &fromVersion);
    // Stored methods, the working method not counted.
    static int methodCount();
    // A name that no stored method has: a trailing "~N" is taken off and
    // "~1", "~2"... tried in turn.
    static QString uniqueMethodName(const QString &name);

    int id() const { return m_id; }
    void setId(int id);
    float titrantConcentration() const { return m_titrantConcentration; }
    // Stores the value and, unless isUpdatedFromDBLog is set, pushes it into
    // the titrant and titration parts and the tables.
    void setTitrantConcentration(float value);
    float blankConcentration() const { return m_blankConcentration; }
    void setBlankConcentration(float value);

    ElectrodeSetupModel *electrodeSetupModel() const { return m_electrode; }
    TitrantSetupModel *titrantSetupModel() const { return m_titrant; }
    TitrationSetupModel *titrationSetupModel() const { return m_titration; }
    // The run in progress of this method, with its cycles in memory.
    TitrationModel *titrationModel() const { return m_run; }

    // The end of a run: the engine's three end-point volumes in µL (a missing
    // one is 0) become mL and go to updateTitrationCompletion. This is what
    // the data layer's titrationCompleted() does with the run's results.
    void titrationCompleted(const double resultUl[3], const QString &deviceMode, bool blankTitrationMode);
    // Results of a finished cycle from the volumes in mL: a standardisation
    // sets the titrant concentration, a blank run the blank, a titration
    // the results at the three end points. Each goes to the current cycle.
    void updateTitrationCompletion(const float volumesMl[3], const QString &deviceMode, bool blank);
    // The titrant concentration in mol/L that a titration of this method
    // uses, by the way the concentration is known and its unit.
    float titrantConcentrationForRun() const;
    // Whether the method's newest standardisation is newer than the last
    // change of its titrant (true when the titrant has no row).
    static bool isStandardized(int methodId);
    // A calibration stored for the electrode this method asked it for
    // (calibratedElectrodeName, the method's own electrode) becomes the
    // method's last calibration, in memory and in its row. False, and
    // nothing written, for a calibration of another electrode.
    bool recordCalibration(const QString &electrodeName, const QDateTime &when);

    QQmlListProperty<MethodModel> methods();
    const QList<MethodModel *> &methodList() const { return m_methods; }
    int importedMethodCount() const { return m_methods.size(); }
    void clearMethods();

    // Installs one imported entry into the live tables under a free name,
    // the method row and its three parts as one unit: the new id, or 0 with
    // nothing written (the library is full, or a part could not be stored).
    int install(MethodModel *entry, QString *error = nullptr);
    // Why methods of the last loadMethodsFromDb from staging tables were
    // left out, one line each ("Name: field: problem").
    const QStringList &refusals() const { return m_refusals; }

    // Loads a method and its three parts from the tables of a suffix. True
    // only when all three parts were found; `sanitize` clears the history
    // that belongs to the instrument the method came from.
    bool loadMethod(int id, const QString &suffix, bool sanitize);
    // Writes this method and its parts into staging tables (`_import`).
    bool insertStaged(const QString &suffix);
    // Writes every imported method to the staging tables.
    bool methodsToStaging(const QString &suffix);

public slots:
    void saveMethodValues(const QString &name, const QString &password);
    void updateMethodModel(int id, const QString &name, const QString &password);
    void updateMethodModel(int id);
    void deleteRow(int id);
    void newTitration();
    bool loadMethodsFromDb(const QString &tableSuffix, bool sanitize = false);
    void listToDb(const QVariantList &arr);

signals:
    void valueChanged();

private:
    static bool raiseIdSequenceAboveRuns();
    bool ensureScratchMethod();
    void setPartsMethodId(int id);
    // Writes the three parts under the method id `id`; false when one failed.
    bool saveParts(int id);

    int m_id = scratchMethodId;
    float m_titrantConcentration = 1.0f;
    float m_blankConcentration = 0.0f;
    bool m_loading = false;
    ElectrodeSetupModel *m_electrode = nullptr;
    TitrantSetupModel *m_titrant = nullptr;
    TitrationSetupModel *m_titration = nullptr;
    TitrationModel *m_run = nullptr;
    QList<MethodModel *> m_methods;
    QStringList m_refusals;
};
