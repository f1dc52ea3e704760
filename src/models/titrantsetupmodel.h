#pragma once

#include "models/columnspec.h"
#include "models/modelproperty.h"

#include <QDateTime>
#include <QObject>
#include <QString>
#include <QStringList>

// The titrant part of a method: what the titrant is, how its concentration
// is known (typed in, or found by a standardisation against a standard of
// known amount), and how a standardisation run is set up.
class TitrantSetupModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int id READ id WRITE setId NOTIFY idChanged)
    Q_PROPERTY(QString standTechnique READ standTechnique WRITE setStandTechnique NOTIFY valueChanged)
    KESTRUM_MODEL_PROPERTY(QString, titrantName, setTitrantName)
    KESTRUM_MODEL_PROPERTY(QString, titrantName_userDefined, setTitrantName_userDefined)
    KESTRUM_MODEL_PROPERTY(QString, titrantID, setTitrantID)
    KESTRUM_MODEL_PROPERTY(QString, concInputMode, setConcInputMode)
    KESTRUM_MODEL_PROPERTY(float, concInputMode_manualEntry, setConcInputMode_manualEntry)
    KESTRUM_MODEL_PROPERTY(QString, concInputMode_Unit, setConcInputMode_Unit)
    KESTRUM_MODEL_PROPERTY(float, nominalConc, setNominalConc)
    KESTRUM_MODEL_PROPERTY(QString, nominalConc_Unit, setNominalConc_Unit)
    KESTRUM_MODEL_PROPERTY(float, titerRatio, setTiterRatio)
    KESTRUM_MODEL_PROPERTY(int, noOfEndPoints, setNoOfEndPoints)
    KESTRUM_MODEL_PROPERTY(float, endPointsValues, setEndPointsValues)
    KESTRUM_MODEL_PROPERTY(float, endPointsValueSecond, setEndPointsValueSecond)
    KESTRUM_MODEL_PROPERTY(QString, endPoint_Unit, setEndPoint_Unit)
    KESTRUM_MODEL_PROPERTY(QString, resultUnits, setResultUnits)
    KESTRUM_MODEL_PROPERTY(float, standReactionRatio, setStandReactionRatio)
    KESTRUM_MODEL_PROPERTY(QString, standardName, setStandardName)
    KESTRUM_MODEL_PROPERTY(QString, standardName_userDefined, setStandardName_userDefined)
    KESTRUM_MODEL_PROPERTY(QString, standAmount, setStandAmount)
    KESTRUM_MODEL_PROPERTY(float, standAmount_Value, setStandAmount_Value)
    KESTRUM_MODEL_PROPERTY(QString, standAmount_Unit, setStandAmount_Unit)
    KESTRUM_MODEL_PROPERTY(float, standMolecularWeight, setStandMolecularWeight)
    KESTRUM_MODEL_PROPERTY(float, standardPurity, setStandardPurity)
    KESTRUM_MODEL_PROPERTY(float, standConcentration, setStandConcentration)
    KESTRUM_MODEL_PROPERTY(float, preDoseTitrantVolume, setPreDoseTitrantVolume)
    KESTRUM_MODEL_PROPERTY(float, maxTotalVolume, setMaxTotalVolume)
    KESTRUM_MODEL_PROPERTY(QString, standProcessControl, setStandProcessControl)
    KESTRUM_MODEL_PROPERTY(float, preStirDuration, setPreStirDuration)
    KESTRUM_MODEL_PROPERTY(QString, stirSpeed, setStirSpeed)
    KESTRUM_MODEL_PROPERTY(QString, titrantConcentration, setTitrantConcentration)
    KESTRUM_MODEL_PROPERTY(float, titrantConcentrationValue, setTitrantConcentrationValue)
    KESTRUM_MODEL_PROPERTY(float, titrantMolecularWeight, setTitrantMolecularWeight)
    KESTRUM_MODEL_PROPERTY(int, methodId, setMethodId)
    KESTRUM_MODEL_PROPERTY(QDateTime, mcreatedAt, setMcreatedAt)
    KESTRUM_MODEL_PROPERTY(QDateTime, mupdatedAt, setMupdatedAt)
    KESTRUM_MODEL_PROPERTY(QString, standMolecularWeight_Unit, setStandMolecularWeight_Unit)
    KESTRUM_MODEL_PROPERTY(QString, standardPurity_Unit, setStandardPurity_Unit)
    KESTRUM_MODEL_PROPERTY(QString, standConcentration_Unit, setStandConcentration_Unit)
    KESTRUM_MODEL_PROPERTY(QString, preDoseTitrantVolume_Unit, setPreDoseTitrantVolume_Unit)
    KESTRUM_MODEL_PROPERTY(QString, maxTotalVolume_Unit, setMaxTotalVolume_Unit)
    KESTRUM_MODEL_PROPERTY(QString, preStirDuration_Unit, setPreStirDuration_Unit)
    KESTRUM_MODEL_PROPERTY(QString, titrantMolecularWeight_Unit, setTitrantMolecularWeight_Unit)
    KESTRUM_MODEL_PROPERTY(float, deltaE, setDeltaE)
    KESTRUM_MODEL_PROPERTY(float, deltaVmin, setDeltaVmin)
    KESTRUM_MODEL_PROPERTY(float, deltaVmax, setDeltaVmax)
    KESTRUM_MODEL_PROPERTY(float, stablityCriteria, setStablityCriteria)
    KESTRUM_MODEL_PROPERTY(int, tMin, setTMin)
    KESTRUM_MODEL_PROPERTY(int, tMax, setTMax)
    KESTRUM_MODEL_PROPERTY(int, threshold, setThreshold)    KESTRUM_MODEL_PROPERTY(bool, isTitrantChanged, setIsTitrantChanged)
    KESTRUM_MODEL_PROPERTY(float, fixedStandAmountVolume, setFixedStandAmountVolume)
    KESTRUM_MODEL_PROPERTY(float, fixedStandAmountWeight, setFixedStandAmountWeight)

public:
    static const QString tableName;
    static QStringList noMigrateList;
    static const ColumnTable &columnTable();
    static const QStringList electrodeTypes;

    explicit TitrantSetupModel(QObject *parent = nullptr);

    static bool createTables();
    static bool migrate(const QString &fromVersion);

    int id() const { return m_id; }
    void setId(int id);
    QString standTechnique() const { return m_standTechnique; }
    // Stores the technique and returns to one end point.
    void setStandTechnique(const QString &technique);

    // Loads the row of a method; without a row the defaults stand. False when
    // no row was found.
    bool updateTitrantSetupModel(int methodId, const QString &suffix = QString());
    // Writes every column into a staging table (`_import`, `_temp`).
    bool insertStaged(const QString &suffix);
    int makeIdUnique();
    // "ISE-MKA": the standard's concentration in mol/L.
    float titrantConcentrationMolar() const;
    // The standardisation result for an end-point volume in mL, in mol/L
    // (mmol/L with the result unit "mM"); stores nothing.
    float standardisationResult(float volumeMl) const;

public slots:
    // Writes the row; false (logged) when it was not written, as for an
    // electrode type that has no titrant statement.
    bool setTitrantSetupValues(const QString &electrodeType, bool isTitrantChanged);
    float calculateTitrantConcentration(float volume, int methodId);
    void updateMethodTable(int methodId, float titrantConcentration);
    void resetTitrantValues(const QString &electrodeType);
    int checkDecimal(float value);

signals:
    void idChanged();
    void valueChanged();

private:
    void applyDefaults();
    void updateFixedAmounts();

    int m_id = 0;
    QString m_standTechnique;
};
