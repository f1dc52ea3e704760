#include "models/titrantsetupmodel.h"

#include "models/dbtransaction.h"
#include "models/dbutil.h"
#include "models/migrationframe.h"

#include <QDebug>
#include <QSqlQuery>
#include <QSqlRecord>

#include <cmath>
#include <cstdlib>

const QString TitrantSetupModel::tableName = QStringLiteral("titrantSetupTable");
QStringList TitrantSetupModel::noMigrateList = DbUtil::versionRange(QStringLiteral("1.1"), QStringLiteral("1.7"));
const QStringList TitrantSetupModel::electrodeTypes{QStringLiteral("pH"), QStringLiteral("Redox"),
                                                    QStringLiteral("ISE-Titration"), QStringLiteral("ISE-MKA")};

const ColumnTable &TitrantSetupModel::columnTable()
{
    static const ColumnTable table({
        {"id", "integer primary key", "id", ColumnSpec::AsIs},
        {"titrantName", "varchar(30)", "titrantName", ColumnSpec::AsText},
        {"titrantName_userDefined", "varchar(30)", "titrantName_userDefined", ColumnSpec::AsText},
        {"titrantID", "varchar(30)", "titrantID", ColumnSpec::AsText},
        {"concInputMode", "varchar(30)", "concInputMode", ColumnSpec::AsText},
        {"concInputMode_manualEntry", "varchar(30)", "concInputMode_manualEntry", ColumnSpec::AsText},
        {"concInputMode_Unit", "varchar(30)", "concInputMode_Unit", ColumnSpec::AsText},
        {"nominalConc", "varchar(30)", "nominalConc", ColumnSpec::AsText},
        {"nominalConc_Unit", "varchar(30)", "nominalConc_Unit", ColumnSpec::AsText},
        {"titerRatio", "varchar(30)", "titerRatio", ColumnSpec::AsText},
        {"standTechnique", "varchar(30)", "standTechnique", ColumnSpec::AsText},
        {"noOfEndPoints", "varchar(30)", "noOfEndPoints", ColumnSpec::AsText},
        {"endPointsValues", "varchar(30)", "endPointsValues", ColumnSpec::AsText},
        {"endPointsValueSecond", "varchar(30)", "endPointsValueSecond", ColumnSpec::AsText},
        {"endPoint_Unit", "varchar(30)", "endPoint_Unit", ColumnSpec::AsText},
        {"resultUnits", "varchar(30)", "resultUnits", ColumnSpec::AsText},
        {"standReactionRatio", "varchar(30)", "standReactionRatio", ColumnSpec::AsText},
        {"standardName", "varchar(30)", "standardName", ColumnSpec::AsText},
        {"standardName_userDefined", "varchar(30)", "standardName_userDefined", ColumnSpec::AsText},
        {"standAmount", "varchar(30)", "standAmount", ColumnSpec::AsText},
        {"standAmount_Value", "varchar(30)", "standAmount_Value", ColumnSpec::AsText},
        {"standAmount_Unit", "varchar(30)", "standAmount_Unit", ColumnSpec::AsText},
        {"standMolecularWeight", "varchar(30)", "standMolecularWeight", ColumnSpec::AsText},
        {"standardPurity", "varchar(30)", "standardPurity", ColumnSpec::AsText},
        {"standConcentration", "varchar(30)", "standConcentration", ColumnSpec::AsText},
        {"preDoseTitrantVolume", "varchar(30)", "preDoseTitrantVolume", ColumnSpec::AsText},
        {"maxTotalVolume", "varchar(30)", "maxTotalVolume", ColumnSpec::AsText},
        {"standProcessControl", "varchar(30)", "standProcessControl", ColumnSpec::AsText},
        {"preStirDuration", "varchar(30)", "preStirDuration", ColumnSpec::AsText},
        {"stirSpeed", "varchar(30)", "stirSpeed", ColumnSpec::AsText},
        {"titrantConcentration", "varchar(30)", "titrantConcentration", ColumnSpec::AsText},
        {"titrantConcentration_Value", "float", "titrantConcentrationValue", ColumnSpec::AsNumber},
        {"titrantMolecularWeight", "varchar(30)", "titrantMolecularWeight", ColumnSpec::AsText},
        {"methodId", "int UNIQUE", "methodId", ColumnSpec::AsIs},
        {"mcreatedAt", "DATETIME", "mcreatedAt", ColumnSpec::AsIs},
        {"mupdatedAt", "DATETIME", "mupdatedAt", ColumnSpec::AsIs},
        {"standMolecularWeight_Unit", "varchar(30)", "standMolecularWeight_Unit", ColumnSpec::AsText},
        {"standardPurity_Unit", "varchar(30)", "standardPurity_Unit", ColumnSpec::AsText},
        {"standConcentration_Unit", "varchar(30)", "standConcentration_Unit", ColumnSpec::AsText},
        {"preDoseTitrantVolume_Unit", "varchar(30)", "preDoseTitrantVolume_Unit", ColumnSpec::AsText},
        {"maxTotalVolume_Unit", "varchar(30)", "maxTotalVolume_Unit", ColumnSpec::AsText},
        {"preStirDuration_Unit", "varchar(30)", "preStirDuration_Unit", ColumnSpec::AsText},
        {"titrantMolecularWeight_Unit", "varchar(30)", "titrantMolecularWeight_Unit", ColumnSpec::AsText},
        {"deltaE", "float", "deltaE", ColumnSpec::AsNumber},
        {"deltaVmin", "float", "deltaVmin", ColumnSpec::AsNumber},
        {"deltaVmax", "float", "deltaVmax", ColumnSpec::AsNumber},
        {"stabilityCriteria", "float", "stablityCriteria", ColumnSpec::AsNumber},
        {"tMin", "int", "tMin", ColumnSpec::AsNumber},
        {"tMax", "int", "tMax", ColumnSpec::AsNumber},
        {"threshold", "int", "threshold", ColumnSpec::AsNumber},    });
    return table;
}

TitrantSetupModel::TitrantSetupModel(QObject *parent)
    : QObject(parent)
{
    m_id = std::rand() % 10 + 11;
    applyDefaults();
    createTables();
}

void TitrantSetupModel::applyDefaults()
{
    setTitrantName(QStringLiteral("NaOH"));
    setTitrantName_userDefined(QString());
    setTitrantID(QString());
    setConcInputMode(QStringLiteral("Manual Entry"));
    setConcInputMode_manualEntry(1.0f);
    setConcInputMode_Unit(QStringLiteral("M"));
    setNominalConc(1.0f);
    setNominalConc_Unit(QStringLiteral("M"));
    setTiterRatio(1.0f);
    setStandTechnique(QStringLiteral("Equivalence Pt."));
    setNoOfEndPoints(1);
    setEndPointsValues(1.0f);
    setEndPointsValueSecond(1.0f);
    setEndPoint_Unit(QStringLiteral("pH"));
    setResultUnits(QStringLiteral("M"));
    setStandReactionRatio(1.0f);
    setStandardName(QStringLiteral("AgNO3"));
    setStandardName_userDefined(QString());
    setStandAmount(QStringLiteral("Fixed Volume"));
    setStandAmount_Value(1.0f);
    setStandAmount_Unit(QStringLiteral("mL"));
    setStandMolecularWeight(1.0f);
    setStandardPurity(100.0f);
    setStandConcentration(1.0f);
    setPreDoseTitrantVolume(0.0f);
    setMaxTotalVolume(5.0f);
    setStandProcessControl(QStringLiteral("Routine"));
    setPreStirDuration(0.0f);
    setStirSpeed(QStringLiteral("Medium"));
    setTitrantConcentration(QStringLiteral("mg/L"));
    setTitrantConcentrationValue(1.0f);
    setTitrantMolecularWeight(1.0f);
    setStandMolecularWeight_Unit(QStringLiteral("g/mol"));
    setStandardPurity_Unit(QStringLiteral("%"));
    setStandConcentration_Unit(QStringLiteral("M"));
    setPreDoseTitrantVolume_Unit(QStringLiteral("mL"));
    setMaxTotalVolume_Unit(QStringLiteral("mL"));
    setPreStirDuration_Unit(QStringLiteral("sec"));
    setTitrantMolecularWeight_Unit(QStringLiteral("g/mol"));
    setDeltaE(15.0f);
    setDeltaVmin(0.02f);
    setDeltaVmax(0.5f);
    setStablityCriteria(10.0f);
    setTMin(2);
    setTMax(10);
    setThreshold(100);    setIsTitrantChanged(false);
    setFixedStandAmountVolume(1.0f);
    setFixedStandAmountWeight(1.0f);
}

bool TitrantSetupModel::createTables()
{
    const bool live = DbUtil::execText(columnTable().createSql(tableName, true));
    const bool staging = DbUtil::execText(columnTable().createSql(tableName + QStringLiteral("_import"), true));
    return live && staging;
}

bool TitrantSetupModel::migrate(const QString &fromVersion)
{
    MigrationFrame frame;
    frame.modelName = QStringLiteral("TitrantSetupModel");
    frame.noMigrateList = noMigrateList;
    return frame.run(fromVersion);
}

void TitrantSetupModel::setId(int id)
{
    if (m_id == id)
        return;
    m_id = id;
    emit idChanged();
}

void TitrantSetupModel::setStandTechnique(const QString &technique)
{
    m_standTechnique = technique;
    setNoOfEndPoints(1);
    emit valueChanged();
}

void TitrantSetupModel::updateFixedAmounts()
{
    if (m_standAmount == QLatin1String("Fixed Volume")) {
        setFixedStandAmountVolume(m_standAmount_Value);
        setFixedStandAmountWeight(1.0f);
    } else if (m_standAmount == QLatin1String("Fixed Weight")) {
        setFixedStandAmountWeight(m_standAmount_Value);
        setFixedStandAmountVolume(1.0f);
    } else {
        setFixedStandAmountVolume(1.0f);
        setFixedStandAmountWeight(1.0f);
    }
}

bool TitrantSetupModel::updateTitrantSetupModel(int methodId, const QString &suffix)
{
    QSqlQuery query;
    query.prepare(QStringLiteral("SELECT *  FROM titrantSetupTable%1 WHERE methodId=:ID").arg(suffix));
    query.bindValue(QStringLiteral(":ID"), methodId);
    if (DbUtil::exec(query) && query.next()) {
        columnTable().loadInto(this, query.record());
        updateFixedAmounts();
        emit idChanged();
        return true;
    }
    applyDefaults();
    return false;
}

bool TitrantSetupModel::setTitrantSetupValues(const QString &electrodeType, bool isTitrantChanged)
{
    if (!electrodeTypes.contains(electrodeType)) {
        qDebug() << "TitrantSetupModel: no statement for electrode type" << electrodeType;
        return false;
    }
    if (electrodeType != QLatin1String("ISE-MKA") && m_concInputMode == QLatin1String("Manual Entry"))
        setTitrantConcentrationValue(m_concInputMode_manualEntry);

    QSqlQuery select;
    select.prepare(QStringLiteral("SELECT * FROM titrantSetupTable WHERE methodId=:m_id"));
    select.bindValue(QStringLiteral(":m_id"), m_methodId);
    if (!DbUtil::exec(select))
        return false;
    const QDateTime now = QDateTime::currentDateTime();
    if (select.next()) {
        if (isTitrantChanged)
            setMupdatedAt(now);
        setId(select.value(QStringLiteral("id")).toInt());
        select.finish();
        QStringList columns = columnTable().names();
        columns.removeAll(QStringLiteral("mcreatedAt"));
        return columnTable().updateRow(this, tableName, columns, m_id);
    }
    select.finish();
    setId(std::rand() % 100000);
    makeIdUnique();
    setMcreatedAt(now);
    if (isTitrantChanged)
        setMupdatedAt(now);
    return columnTable().insertRow(this, tableName, QStringList());
}

bool TitrantSetupModel::insertStaged(const QString &suffix)
{
    QStringList columns = columnTable().names();
    columns.removeAll(QStringLiteral("id"));
    return columnTable().insertRow(this, tableName + suffix, columns);
}

int TitrantSetupModel::makeIdUnique()
{
    setId(ColumnTable::firstFreeId(tableName, m_id));
    return m_id;
}

float TitrantSetupModel::titrantConcentrationMolar() const
{
    if (m_titrantConcentration == QLatin1String("mM"))
        return m_titrantConcentrationValue / 1000.0f;
    if (m_titrantConcentration == QLatin1String("mg/L"))
        return m_titrantConcentrationValue / (m_titrantMolecularWeight * 1000.0f);
    return m_titrantConcentrationValue;
}

float TitrantSetupModel::standardisationResult(float volumeMl) const
{
    const float v = volumeMl;
    float conc = m_standConcentration;
    if (m_standConcentration_Unit == QLatin1String("mM"))
        conc = conc / 1000.0f;
    float result = 0.0f;
    if (m_standAmount == QLatin1String("Fixed Volume") || m_standAmount == QLatin1String("Variable Volume")) {
        result = (conc * m_standAmount_Value) / (v * m_standReactionRatio);
    } else {
        const float millimoles = static_cast<float>(static_cast<double>(m_standardPurity) * 0.01
                                                    * static_cast<double>(m_standAmount_Value) * 1000.0);
        result = millimoles / m_standMolecularWeight / (v * m_standReactionRatio);
    }
    if (m_resultUnits == QLatin1String("mM"))
        result *= 1000.0f;
    return result;
}

float TitrantSetupModel::calculateTitrantConcentration(float volume, int methodId)
{
    const float value = standardisationResult(volume);
    // A zero or missing volume, amount, ratio or molecular weight gives no
    // concentration: the value is returned for display but never stored.
    if (!(volume > 0.0f) || !(m_standAmount_Value > 0.0f) || !std::isfinite(value) || !(value > 0.0f)) {
        qDebug() << "TitrantSetupModel: standardisation gives no concentration for volume" << volume
                 << "and amount" << m_standAmount_Value << "- nothing stored";
        return value;
    }
    setTitrantConcentrationValue(value);
    updateMethodTable(methodId, value);
    return value;
}

void TitrantSetupModel::updateMethodTable(int methodId, float titrantConcentration)
{
    DbTransaction unit;
    QSqlQuery method;
    method.prepare(QStringLiteral("UPDATE methodSetupTable SET titrantConcentration=:titantConcentration WHERE id=:ID"));
    method.bindValue(QStringLiteral(":titantConcentration"), static_cast<double>(titrantConcentration));
    method.bindValue(QStringLiteral(":ID"), methodId);
    QSqlQuery titrant;
    titrant.prepare(QStringLiteral("UPDATE titrantSetupTable SET titrantConcentration_Value=:titrantConcentrationValue WHERE methodId=:methodId"));
    titrant.bindValue(QStringLiteral(":titrantConcentrationValue"), static_cast<double>(titrantConcentration));
    titrant.bindValue(QStringLiteral(":methodId"), methodId);
    QSqlQuery titration;
    titration.prepare(QStringLiteral("UPDATE titrationSetupTable SET titrantConcentration=:titantConcentration WHERE methodId=:methodId"));
    titration.bindValue(QStringLiteral(":titantConcentration"), static_cast<double>(titrantConcentration));
    titration.bindValue(QStringLiteral(":methodId"), methodId);
    if (DbUtil::exec(method) && DbUtil::exec(titrant) && DbUtil::exec(titration))
        unit.commit();
}

void TitrantSetupModel::resetTitrantValues(const QString &electrodeType)
{
    applyDefaults();
    setTitrantName(electrodeType == QLatin1String("ISE-MKA") ? QStringLiteral("Ammonia (NH3)") : QStringLiteral("NaOH"));
    setPreDoseTitrantVolume(1.0f);
    setMaxTotalVolume(1.0f);
    setStandAmount_Value(1.0f);
}

int TitrantSetupModel::checkDecimal(float value)
{
    const QString text = QString::number(value, 'g', 6);
    const int dot = text.indexOf(QLatin1Char('.'));
    return dot < 0 ? 0 : text.size() - dot - 1;
}
