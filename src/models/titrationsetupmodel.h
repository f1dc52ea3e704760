#pragma once

#include "models/columnspec.h"
#include "models/modelproperty.h"

#include "models/concentrationcalc.h"

#include <QDateTime>
#include <QDebug>
#include <QMap>
#include <QObject>
#include <QString>
#include <QStringList>

// The titration part of a method: how the sample is titrated and every
// number that turns an end-point volume into a reported result. One row of
// `titrationSetupTable` per method.
class TitrationSetupModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int id READ id WRITE setId NOTIFY idChanged)
    Q_PROPERTY(QString titrationTechnique READ titrationTechnique WRITE setTitrationTechnique NOTIFY valueChanged)
    Q_PROPERTY(QString titrationType READ titrationType WRITE setTitrationType NOTIFY valueChanged)
    Q_PROPERTY(QString resultUnits READ resultUnits WRITE setResultUnits NOTIFY valueChanged)
    Q_PROPERTY(float reactionRatio READ reactionRatio WRITE setReactionRatio NOTIFY valueChanged)
    Q_PROPERTY(QString reagentAmount READ reagentAmount WRITE setReagentAmount NOTIFY valueChanged)
    Q_PROPERTY(float sampleAmountValue READ sampleAmountValue WRITE setSampleAmountValue NOTIFY valueChanged)
    KESTRUM_MODEL_PROPERTY(QString, titrantName, setTitrantName)
    KESTRUM_MODEL_PROPERTY(int, noOfEndPoints, setNoOfEndPoints)
    KESTRUM_MODEL_PROPERTY(float, endPointValues, setEndPointValues)
    KESTRUM_MODEL_PROPERTY(float, endPointValues_Second, setEndPointValues_Second)
    KESTRUM_MODEL_PROPERTY(float, endPointValues_Third, setEndPointValues_Third)
    KESTRUM_MODEL_PROPERTY(QString, displayUnits, setDisplayUnits)
    KESTRUM_MODEL_PROPERTY(QString, blankRequired, setBlankRequired)
    KESTRUM_MODEL_PROPERTY(float, blankRequiredValue, setBlankRequiredValue)
    KESTRUM_MODEL_PROPERTY(float, resultUnitsValue, setResultUnitsValue)
    KESTRUM_MODEL_PROPERTY(float, reagentAmountValue, setReagentAmountValue)
    KESTRUM_MODEL_PROPERTY(float, reagentMolecularWeight, setReagentMolecularWeight)
    KESTRUM_MODEL_PROPERTY(float, reagentPurity, setReagentPurity)
    KESTRUM_MODEL_PROPERTY(float, reagentWeight, setReagentWeight)
    KESTRUM_MODEL_PROPERTY(float, reagentVolume, setReagentVolume)
    KESTRUM_MODEL_PROPERTY(float, reagentConcentration, setReagentConcentration)
    KESTRUM_MODEL_PROPERTY(float, sampleMolecularWeight, setSampleMolecularWeight)
    KESTRUM_MODEL_PROPERTY(float, sampleDensity, setSampleDensity)
    KESTRUM_MODEL_PROPERTY(float, preDoseTitrantVolume, setPreDoseTitrantVolume)
    KESTRUM_MODEL_PROPERTY(float, maxTotalTitrantVolume, setMaxTotalTitrantVolume)
    KESTRUM_MODEL_PROPERTY(QString, titrationProcessControl, setTitrationProcessControl)
    KESTRUM_MODEL_PROPERTY(float, preStirDuration, setPreStirDuration)
    KESTRUM_MODEL_PROPERTY(QString, stirSpeed, setStirSpeed)
    KESTRUM_MODEL_PROPERTY(QString, sampleID, setSampleID)
    KESTRUM_MODEL_PROPERTY(QString, sampleIDValue, setSampleIDValue)
    KESTRUM_MODEL_PROPERTY(QString, sampleAmount, setSampleAmount)
    KESTRUM_MODEL_PROPERTY(float, reagentReactionRatio, setReagentReactionRatio)
    KESTRUM_MODEL_PROPERTY(float, titrantReactionRatio, setTitrantReactionRatio)
    KESTRUM_MODEL_PROPERTY(QString, iseType, setIseType)
    KESTRUM_MODEL_PROPERTY(float, totalSolutionVolume, setTotalSolutionVolume)
    KESTRUM_MODEL_PROPERTY(QString, mkaProcessControl, setMkaProcessControl)
    KESTRUM_MODEL_PROPERTY(float, mkaProcessControlConstant, setMkaProcessControlConstant)
    KESTRUM_MODEL_PROPERTY(float, mkaProcessControlMeasurement, setMkaProcessControlMeasurement)
    KESTRUM_MODEL_PROPERTY(float, mkaProcessControlPrecision, setMkaProcessControlPrecision)
    KESTRUM_MODEL_PROPERTY(int, methodId, setMethodId)
    KESTRUM_MODEL_PROPERTY(QDateTime, mcreatedAt, setMcreatedAt)
    KESTRUM_MODEL_PROPERTY(QDateTime, mupdatedAt, setMupdatedAt)
    KESTRUM_MODEL_PROPERTY(float, titrantConcentration, setTitrantConcentration)
    KESTRUM_MODEL_PROPERTY(float, blankConcentration, setBlankConcentration)
    KESTRUM_MODEL_PROPERTY(QString, reagentWeightType, setReagentWeightType)
    KESTRUM_LOGGED_PROPERTY(float, deltaE, setDeltaE, "ΔE = ")
    KESTRUM_LOGGED_PROPERTY(float, deltaVmin, setDeltaVmin, "ΔVmin = ")
    KESTRUM_LOGGED_PROPERTY(float, deltaVmax, setDeltaVmax, "ΔVmax = ")
    KESTRUM_LOGGED_PROPERTY(float, stablityCriteria, setStablityCriteria, "dE/dt = ")
    KESTRUM_LOGGED_PROPERTY(int, tMin, setTMin, "tmin = ")
    KESTRUM_LOGGED_PROPERTY(int, tMax, setTMax, "tMax = ")
    KESTRUM_MODEL_PROPERTY(int, threshold, setThreshold)
    KESTRUM_MODEL_PROPERTY(QString, avgConc, setAvgConc)
    KESTRUM_MODEL_PROPERTY(float, servingSize, setServingSize)
    KESTRUM_MODEL_PROPERTY(QString, servingUnit, setServingUnit)
    KESTRUM_MODEL_PROPERTY(bool, isTitrationChanged, setIsTitrationChanged)
    KESTRUM_MODEL_PROPERTY(int, resultUnitsIndex, setResultUnitsIndex)
    KESTRUM_MODEL_PROPERTY(float, fixedSampleVolumeValue, setFixedSampleVolumeValue)
    KESTRUM_MODEL_PROPERTY(float, fixedSampleWeightValue, setFixedSampleWeightValue)
    Q_PROPERTY(bool isReactionRatio READ isReactionRatio NOTIFY valueChanged)
    Q_PROPERTY(float servingNo READ servingNo WRITE setServingNo NOTIFY valueChanged)

public:
    static const QString tableName;
    static QStringList noMigrateList;
    static const ColumnTable &columnTable();
    static const QMap<QString, int> titrationProcessCtrlMap;
    static const QMap<QString, int> titrationTechniqueMap;

    explicit TitrationSetupModel(QObject *parent = nullptr);

    // The table and its `_import` twin, each only when missing.
    static bool createTables();
    static bool migrate(const QString &fromVersion);

    int id() const { return m_id; }
    void setId(int id);
    QString titrationTechnique() const { return m_titrationTechnique; }
    void setTitrationTechnique(const QString &v);
    QString titrationType() const { return m_titrationType; }
    void setTitrationType(const QString &v);
    QString reagentAmount() const { return m_reagentAmount; }
    void setReagentAmount(const QString &v);
    QString resultUnits() const { return m_resultUnits; }
    void setResultUnits(const QString &v);
    float reactionRatio() const { return m_reactionRatio; }
    void setReactionRatio(float v);
    float sampleAmountValue() const { return m_sampleAmountValue; }
    void setSampleAmountValue(float v);
    bool isReactionRatio() const { return m_isReactionRatio; }
    // Known addition by servings: the number of servings in the beaker is the
    // sample amount of such a run, so it is stored as both (memory only).
    float servingNo() const { return m_servingNo; }
    void setServingNo(float servings);

    bool updateTitrationSetupModel(int methodId, const QString &suffix = QString());
    bool insertStaged(const QString &suffix);
    int makeIdUnique();
    // Stores the average shown on the summary screen.
    void updateAvgConcentration(const QString &avg);

    // The inputs of the formulas, taken from the fields.
    ConcentrationCalc::Sample sampleInputs() const;
    ConcentrationCalc::Direct directInputs(float volumeMl) const;
    ConcentrationCalc::Back backInputs(float volumeMl) const;
    // The result of an end-point volume in mL by the direct formula, the back
    // formula, or the one that `titrationType` names. Never infinite or NaN.
    float calculateConcentration(float volumeMl) const;
    float calculateBackConcentration(float volumeMl) const;
    float calculateResult(float volumeMl) const;
    // Multiple known addition: the sample basis, and a result in mol/L
    // converted to the chosen unit.
    float mkaSampleBasis() const;
    float mkaConvertResult(float molPerL) const;

public slots:
    // Writes the row; false (logged) when it was not written.
    bool setTitrationSetupValues(const QString &electrodeType);
    float calculateBlankConcentration(float VtEP, int methodId);
    void resetTitrationValues();
    void updateMethodTable(int methodId, float blankConcentration);

signals:
    void idChanged();
    void valueChanged();

private:
    void applyDefaults();

    int m_id = 0;
    QString m_titrationTechnique;
    QString m_titrationType;
    QString m_reagentAmount;
    QString m_resultUnits;
    float m_reactionRatio = 1.0f;
    float m_sampleAmountValue = 1.0f;
    bool m_isReactionRatio = true;
    float m_servingNo = 1.0f;
};
