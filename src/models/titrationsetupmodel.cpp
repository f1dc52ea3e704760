#include "models/titrationsetupmodel.h"

#include "models/dbtransaction.h"
#include "models/dbutil.h"
#include "models/migrationframe.h"
#include "models/titrantsetupmodel.h"

#include <QDebug>
#include <QSqlQuery>
#include <QSqlRecord>

#include <cstdlib>

const QString TitrationSetupModel::tableName = QStringLiteral("titrationSetupTable");
QStringList TitrationSetupModel::noMigrateList = {QStringLiteral("1.7")};
const QMap<QString, int> TitrationSetupModel::titrationProcessCtrlMap{
    {QStringLiteral("Routine"), 0}, {QStringLiteral("Quick"), 1}, {QStringLiteral("Careful"), 2}, {QStringLiteral("User Defined"), 3}};
const QMap<QString, int> TitrationSetupModel::titrationTechniqueMap{
    {QStringLiteral("Preset End Pt."), 0}, {QStringLiteral("Equivalence Pt."), 1},
    {QStringLiteral("Engineering Basic pH"), 2}, {QStringLiteral("Multiple Known Addition"), 3}};

const ColumnTable &TitrationSetupModel::columnTable()
{
    static const ColumnTable table({
        {"id", "integer primary key", "id", ColumnSpec::AsIs},
        {"titrantName", "varchar(30)", "titrantName", ColumnSpec::AsText},
        {"titrationTechnique", "varchar(30)", "titrationTechnique", ColumnSpec::AsText},
        {"noOfEndPoints", "varchar(30)", "noOfEndPoints", ColumnSpec::AsText},
        {"endPointValues", "varchar(30)", "endPointValues", ColumnSpec::AsText},
        {"endPointValues_Second", "varchar(30)", "endPointValues_Second", ColumnSpec::AsText},
        {"endPointValues_Third", "varchar(30)", "endPointValues_Third", ColumnSpec::AsText},
        {"displayUnits", "varchar(30)", "displayUnits", ColumnSpec::AsText},
        {"titrationType", "varchar(30)", "titrationType", ColumnSpec::AsText},
        {"blankRequired", "varchar(30)", "blankRequired", ColumnSpec::AsText},
        {"blankRequiredValue", "varchar(30)", "blankRequiredValue", ColumnSpec::AsText},
        {"resultUnits", "varchar(30)", "resultUnits", ColumnSpec::AsText},
        {"resultUnitsValue", "varchar(30)", "resultUnitsValue", ColumnSpec::AsText},
        {"reactionRatio", "varchar(30)", "reactionRatio", ColumnSpec::AsText},
        {"reagentAmount", "varchar(30)", "reagentAmount", ColumnSpec::AsText},
        {"reagentAmountValue", "varchar(30)", "reagentAmountValue", ColumnSpec::AsText},
        {"reagentMolecularWeight", "varchar(30)", "reagentMolecularWeight", ColumnSpec::AsText},
        {"reagentPurity", "varchar(30)", "reagentPurity", ColumnSpec::AsText},
        {"reagentWeight", "varchar(30)", "reagentWeight", ColumnSpec::AsText},
        {"reagentVolume", "varchar(30)", "reagentVolume", ColumnSpec::AsText},
        {"reagentConcentration", "varchar(30)", "reagentConcentration", ColumnSpec::AsText},
        {"sampleMolecularWeight", "varchar(30)", "sampleMolecularWeight", ColumnSpec::AsText},
        {"sampleDensity", "varchar(30)", "sampleDensity", ColumnSpec::AsText},
        {"preDoseTitrantVolume", "varchar(30)", "preDoseTitrantVolume", ColumnSpec::AsText},
        {"maxTotalTitrantVolume", "varchar(30)", "maxTotalTitrantVolume", ColumnSpec::AsText},
        {"titrationProcessControl", "varchar(30)", "titrationProcessControl", ColumnSpec::AsText},
        {"preStirDuration", "varchar(30)", "preStirDuration", ColumnSpec::AsText},
        {"stirSpeed", "varchar(30)", "stirSpeed", ColumnSpec::AsText},
        {"sampleID", "varchar(30)", "sampleID", ColumnSpec::AsText},
        {"sampleIDValue", "varchar(30)", "sampleIDValue", ColumnSpec::AsText},
        {"sampleAmount", "varchar(30)", "sampleAmount", ColumnSpec::AsText},
        {"sampleAmountValue", "varchar(30)", "sampleAmountValue", ColumnSpec::AsText},
        {"reagentReactionRatio", "varchar(30)", "reagentReactionRatio", ColumnSpec::AsText},
        {"titrantReactionRatio", "varchar(30)", "titrantReactionRatio", ColumnSpec::AsText},
        {"iseType", "varchar(30)", "iseType", ColumnSpec::AsText},
        {"totalSolutionVolume", "varchar(30)", "totalSolutionVolume", ColumnSpec::AsText},
        {"mkaProcessControl", "varchar(30)", "mkaProcessControl", ColumnSpec::AsText},
        {"mkaProcessControlConstant", "varchar(30)", "mkaProcessControlConstant", ColumnSpec::AsText},
        {"mkaProcessControlMeasurement", "varchar(30)", "mkaProcessControlMeasurement", ColumnSpec::AsText},
        {"mkaProcessControlPrecision", "varchar(30)", "mkaProcessControlPrecision", ColumnSpec::AsText},
        {"methodId", "int UNIQUE", "methodId", ColumnSpec::AsIs},
        {"mcreatedAt", "DATETIME", "mcreatedAt", ColumnSpec::AsIs},
        {"mupdatedAt", "DATETIME", "mupdatedAt", ColumnSpec::AsIs},
        {"titrantConcentration", "float", "titrantConcentration", ColumnSpec::AsNumber},
        {"blankConcentration", "float", "blankConcentration", ColumnSpec::AsNumber},
        {"reagentWeightType", "varchar(30)", "reagentWeightType", ColumnSpec::AsText},
        {"deltaE", "float", "deltaE", ColumnSpec::AsNumber},
        {"deltaVmin", "float", "deltaVmin", ColumnSpec::AsNumber},
        {"deltaVmax", "float", "deltaVmax", ColumnSpec::AsNumber},
        {"stabilityCriteria", "float", "stablityCriteria", ColumnSpec::AsNumber},
        {"tMin", "int", "tMin", ColumnSpec::AsNumber},
        {"tMax", "int", "tMax", ColumnSpec::AsNumber},
        {"threshold", "int", "threshold", ColumnSpec::AsNumber},
        {"avgConcentration", "varchar(30)", "avgConc", ColumnSpec::AsText},
        {"servingSize", "float", "servingSize", ColumnSpec::AsNumber},
        {"servingUnit", "varchar(30)", "servingUnit", ColumnSpec::AsText},
    });
    return table;
}

TitrationSetupModel::TitrationSetupModel(QObject *parent)
    : QObject(parent)
{
    m_id = std::rand() % 10 + 21;
    applyDefaults();
    createTables();
}

void TitrationSetupModel::applyDefaults()
{
    setTitrantName(QString());
    setTitrationTechnique(QStringLiteral("Equivalence Pt."));
    setNoOfEndPoints(1);
    setEndPointValues(7.0f);
    setEndPointValues_Second(7.0f);
    setEndPointValues_Third(7.0f);
    setDisplayUnits(QStringLiteral("pH"));
    setTitrationType(QStringLiteral("Direct Titration"));
    setBlankRequired(QStringLiteral("No"));
    setBlankRequiredValue(0.0f);
    setResultUnits(QStringLiteral("M"));
    setResultUnitsValue(1.0f);
    setReactionRatio(1.0f);
    setReagentAmount(QStringLiteral("Manual Calc."));
    setReagentAmountValue(1.0f);
    setReagentMolecularWeight(1.0f);
    setReagentPurity(100.0f);
    setReagentWeight(1.0f);
    setReagentVolume(1.0f);
    setReagentConcentration(1.0f);
    setSampleMolecularWeight(1.0f);
    setSampleDensity(1.0f);
    setPreDoseTitrantVolume(0.0f);
    setMaxTotalTitrantVolume(20.0f);
    setTitrationProcessControl(QStringLiteral("Routine"));
    setPreStirDuration(0.0f);
    setStirSpeed(QStringLiteral("Medium"));
    setSampleID(QStringLiteral("None"));
    setSampleIDValue(QString());
    setSampleAmount(QStringLiteral("Fixed Volume"));
    setSampleAmountValue(1.0f);
    setReagentReactionRatio(1.0f);
    setTitrantReactionRatio(1.0f);
    setIseType(QString());
    setTotalSolutionVolume(1.0f);
    setMkaProcessControl(QStringLiteral("Routine"));
    setMkaProcessControlConstant(18.0f);
    setMkaProcessControlMeasurement(3.0f);
    setMkaProcessControlPrecision(2.0f);
    setTitrantConcentration(1.0f);
    setBlankConcentration(0.0f);
    setReagentWeightType(QStringLiteral("Fixed Weight"));
    setDeltaE(15.0f);
    setDeltaVmin(0.02f);
    setDeltaVmax(0.5f);
    setStablityCriteria(10.0f);
    setTMin(2);
    setTMax(10);
    setThreshold(100);
    setAvgConc(QString());
    setServingSize(1.0f);
    setServingUnit(QStringLiteral("g"));
    setIsTitrationChanged(false);
    setFixedSampleVolumeValue(1.0f);
    setFixedSampleWeightValue(1.0f);
}

bool TitrationSetupModel::createTables()
{
    bool ok = true;
    for (const QString &name : {tableName, tableName + QStringLiteral("_import")}) {
        if (!DbUtil::tableExists(name))
            ok = DbUtil::execText(columnTable().createSql(name, false)) && ok;
    }
    return ok;
}

bool TitrationSetupModel::migrate(const QString &fromVersion)
{
    MigrationFrame frame;
    frame.modelName = QStringLiteral("TitrationSetupModel");
    frame.noMigrateList = noMigrateList;
    frame.handledVersions = DbUtil::versionRange(QStringLiteral("1.1"), QStringLiteral("1.6"));
    frame.step = [](const QString &) {
        if (DbUtil::tableExists(tableName + QStringLiteral("_import"))
            && !DbUtil::execText(QStringLiteral("DROP TABLE %1_import").arg(tableName)))
            return false;
        if (!DbUtil::tableExists(tableName))
            return true;
        const bool size = DbUtil::execText(QStringLiteral("ALTER TABLE titrationSetupTable ADD COLUMN servingSize float"));
        const bool unit = DbUtil::execText(QStringLiteral("ALTER TABLE titrationSetupTable ADD COLUMN servingUnit varchar(30)"));
        return size && unit;
    };
    return frame.run(fromVersion);
}

void TitrationSetupModel::setId(int id)
{
    if (m_id == id)
        return;
    m_id = id;
    emit idChanged();
}

void TitrationSetupModel::setTitrationTechnique(const QString &v)
{
    m_titrationTechnique = v;
    setNoOfEndPoints(1);
    emit valueChanged();
}

void TitrationSetupModel::setTitrationType(const QString &v)
{
    m_titrationType = v;
    if (v == QLatin1String("Direct Titration"))
        setReagentWeightType(QStringLiteral("Fixed Weight"));
    emit valueChanged();
}

void TitrationSetupModel::setReagentAmount(const QString &v)
{
    m_reagentAmount = v;
    if (v != QLatin1String("Manual Weight"))
        setReagentWeightType(QStringLiteral("Fixed Weight"));
    emit valueChanged();
}

void TitrationSetupModel::setResultUnits(const QString &v)
{
    m_resultUnits = v;
    if (v.contains(QLatin1String("Consumption mmol")))
        m_isReactionRatio = false;
    emit valueChanged();
}

void TitrationSetupModel::setReactionRatio(float v)
{
    m_reactionRatio = v;
    m_isReactionRatio = !m_resultUnits.contains(QLatin1String("Consumption mmol"));
    qDebug() << (m_isReactionRatio ? "Reaction Ratio - TRUE" : "Reaction Ratio - FALSE");
    emit valueChanged();
}

void TitrationSetupModel::setSampleAmountValue(float v)
{
    m_sampleAmountValue = v;
    if (m_sampleAmount == QLatin1String("Fixed Volume")) {
        setFixedSampleVolumeValue(v);
        setFixedSampleWeightValue(1.0f);
    } else if (m_sampleAmount == QLatin1String("Fixed Weight")) {
        setFixedSampleWeightValue(v);
        setFixedSampleVolumeValue(1.0f);
    } else {
        setFixedSampleVolumeValue(1.0f);
        setFixedSampleWeightValue(1.0f);
    }
    emit valueChanged();
}

void TitrationSetupModel::setServingNo(float servings)
{
    m_servingNo = servings;
    setSampleAmountValue(servings);
}

bool TitrationSetupModel::updateTitrationSetupModel(int methodId, const QString &suffix)
{
    QSqlQuery query;
    query.prepare(QStringLiteral("SELECT *  FROM titrationSetupTable%1 WHERE methodId=:ID").arg(suffix));
    query.bindValue(QStringLiteral(":ID"), methodId);
    if (DbUtil::exec(query) && query.next()) {
        columnTable().loadInto(this, query.record());
        emit idChanged();
        return true;
    }
    applyDefaults();
    return false;
}

bool TitrationSetupModel::setTitrationSetupValues(const QString &electrodeType)
{
    if (!TitrantSetupModel::electrodeTypes.contains(electrodeType)) {
        qDebug() << "TitrationSetupModel: no statement for electrode type" << electrodeType;
        return false;
    }
    QSqlQuery select;
    select.prepare(QStringLiteral("SELECT * FROM titrationSetupTable WHERE methodId=:m_id"));
    select.bindValue(QStringLiteral(":m_id"), m_methodId);
    if (!DbUtil::exec(select))
        return false;
    const QDateTime now = QDateTime::currentDateTime();
    if (select.next()) {
        setId(select.value(QStringLiteral("id")).toInt());
        select.finish();
        setMupdatedAt(now);
        QStringList columns = columnTable().names();
        for (const char *skip : {"mcreatedAt", "titrantConcentration", "blankConcentration"})
            columns.removeAll(QString::fromLatin1(skip));
        return columnTable().updateRow(this, tableName, columns, m_id);
    }
    select.finish();
    setId(std::rand() % 100000);
    makeIdUnique();
    setMcreatedAt(now);
    setMupdatedAt(now);
    return columnTable().insertRow(this, tableName, QStringList());
}

bool TitrationSetupModel::insertStaged(const QString &suffix)
{
    QStringList columns = columnTable().names();
    columns.removeAll(QStringLiteral("id"));
    return columnTable().insertRow(this, tableName + suffix, columns);
}

int TitrationSetupModel::makeIdUnique()
{
    setId(ColumnTable::firstFreeId(tableName, m_id));
    return m_id;
}

void TitrationSetupModel::updateAvgConcentration(const QString &avg)
{
    setAvgConc(avg);
    QSqlQuery query;
    query.prepare(QStringLiteral("UPDATE titrationSetupTable SET avgConcentration=:avgConcentration WHERE id=:oldID"));
    query.bindValue(QStringLiteral(":avgConcentration"), avg);
    query.bindValue(QStringLiteral(":oldID"), m_id);
    DbUtil::exec(query);
}

float TitrationSetupModel::calculateBlankConcentration(float VtEP, int methodId)
{
    Q_UNUSED(methodId)
    return ConcentrationCalc::blank(VtEP, m_titrantConcentration, m_reactionRatio);
}

ConcentrationCalc::Sample TitrationSetupModel::sampleInputs() const
{
    ConcentrationCalc::Sample s;
    s.resultUnits = m_resultUnits;
    s.resultUnitsValue = m_resultUnitsValue;
    s.sampleAmount = m_sampleAmount;
    s.amount = m_sampleAmountValue;
    s.density = m_sampleDensity;
    s.molecularWeight = m_sampleMolecularWeight;
    return s;
}

ConcentrationCalc::Direct TitrationSetupModel::directInputs(float volumeMl) const
{
    ConcentrationCalc::Direct d;
    d.volume = volumeMl;
    d.titrantConc = m_titrantConcentration;
    d.reactionRatio = m_reactionRatio;
    d.isReactionRatio = m_isReactionRatio;
    d.blankRequired = m_blankRequired;
    d.blankRequiredValue = m_blankRequiredValue;
    d.blankConcentration = m_blankConcentration;
    return d;
}

ConcentrationCalc::Back TitrationSetupModel::backInputs(float volumeMl) const
{
    ConcentrationCalc::Back b;
    b.volume = volumeMl;
    b.titrantConc = m_titrantConcentration;
    b.titrantReactionRatio = m_titrantReactionRatio;
    b.reagentReactionRatio = m_reagentReactionRatio;
    b.reagentAmount = m_reagentAmount;
    b.reagentAmountValue = m_reagentAmountValue;
    b.blankConcentration = m_blankConcentration;
    b.reagentConcentration = m_reagentConcentration;
    b.reagentVolume = m_reagentVolume;
    b.reagentWeight = m_reagentWeight;
    b.reagentPurity = m_reagentPurity;
    b.reagentMolecularWeight = m_reagentMolecularWeight;
    return b;
}

float TitrationSetupModel::calculateConcentration(float volumeMl) const
{
    return ConcentrationCalc::directConcentration(sampleInputs(), directInputs(volumeMl));
}

float TitrationSetupModel::calculateBackConcentration(float volumeMl) const
{
    return ConcentrationCalc::backConcentration(sampleInputs(), backInputs(volumeMl));
}

float TitrationSetupModel::calculateResult(float volumeMl) const
{
    if (m_titrationType == QLatin1String("Back Titration"))
        return calculateBackConcentration(volumeMl);
    return calculateConcentration(volumeMl);
}

float TitrationSetupModel::mkaSampleBasis() const
{
    return ConcentrationCalc::mkaSampleBasis(sampleInputs(), m_servingSize);
}

float TitrationSetupModel::mkaConvertResult(float molPerL) const
{
    return ConcentrationCalc::mkaConvertResult(molPerL, sampleInputs());
}

void TitrationSetupModel::resetTitrationValues()
{
    applyDefaults();
    setIseType(QStringLiteral("ISE-MKA"));
    setServingUnit(QStringLiteral("g"));
}

void TitrationSetupModel::updateMethodTable(int methodId, float blankConcentration)
{
    const QDateTime now = QDateTime::currentDateTime();
    DbTransaction unit;
    QSqlQuery method;
    method.prepare(QStringLiteral("UPDATE methodSetupTable SET blankConcentration=:blankConcentration,  mupdatedAt=:newmupdatedAt WHERE id=:ID"));
    method.bindValue(QStringLiteral(":blankConcentration"), static_cast<double>(blankConcentration));
    method.bindValue(QStringLiteral(":newmupdatedAt"), now);
    method.bindValue(QStringLiteral(":ID"), methodId);
    QSqlQuery titration;
    titration.prepare(QStringLiteral("UPDATE titrationSetupTable SET blankConcentration=:blankConcentration, "
                                     "blankRequiredValue=:blankRequiredValue ,mupdatedAt=:newmupdatedAt WHERE methodId=:methodId"));
    titration.bindValue(QStringLiteral(":blankConcentration"), static_cast<double>(blankConcentration));
    titration.bindValue(QStringLiteral(":blankRequiredValue"), QString::number(blankConcentration, 'g', 6));
    titration.bindValue(QStringLiteral(":newmupdatedAt"), now);
    titration.bindValue(QStringLiteral(":methodId"), methodId);
    if (DbUtil::exec(method) && DbUtil::exec(titration))
        unit.commit();
}
