#include "models/methoddraft.h"

#include "models/dbutil.h"
#include "models/electrodesetupmodel.h"
#include "models/methodmodel.h"
#include "models/titrantsetupmodel.h"
#include "models/titrationsetupmodel.h"

#include <QSqlQuery>

void MethodDraft::fill(MethodModel &m) const
{
    ElectrodeSetupModel *e = m.electrodeSetupModel();
    e->setElectrodeType(electrodeType);
    if (!iseType.isEmpty())
        e->setIseType(iseType);
    e->setResolution(resolution);

    TitrantSetupModel *t = m.titrantSetupModel();
    t->setTitrantName(titrantName);
    t->setConcInputMode(QStringLiteral("Manual Entry"));
    t->setConcInputMode_manualEntry(titrantMolPerL);
    t->setConcInputMode_Unit(QStringLiteral("M"));
    t->setNominalConc(titrantMolPerL);
    t->setNominalConc_Unit(QStringLiteral("M"));
    t->setTitrantConcentration(QStringLiteral("M"));
    t->setTitrantConcentrationValue(titrantMolPerL);
    t->setStirSpeed(stirSpeed);

    TitrationSetupModel *s = m.titrationSetupModel();
    s->setTitrationTechnique(technique);
    s->setTitrationProcessControl(processControl);
    s->setTitrationType(QStringLiteral("Direct Titration"));
    s->setNoOfEndPoints(endPoints);
    s->setEndPointValues(endPointMv[0]);
    s->setEndPointValues_Second(endPointMv[1]);
    s->setEndPointValues_Third(endPointMv[2]);
    s->setDisplayUnits(QStringLiteral("mV"));
    s->setSampleAmount(QStringLiteral("Fixed Volume"));
    s->setSampleAmountValue(sampleMl);
    s->setTotalSolutionVolume(totalSolutionMl);
    s->setMkaProcessControlPrecision(mkaPrecisionPct);
    s->setResultUnits(resultUnits);
    s->setReactionRatio(1.0f);
    s->setBlankRequired(QStringLiteral("No"));
    s->setPreDoseTitrantVolume(preDoseMl);
    s->setMaxTotalTitrantVolume(maxVolumeMl);
    s->setPreStirDuration(float(preStirS));
    s->setStirSpeed(stirSpeed);
    s->setDeltaE(deltaE);
    s->setDeltaVmin(deltaVmin);
    s->setDeltaVmax(deltaVmax);
    s->setStablityCriteria(stabilityCriteria);
    s->setTMin(tMin);
    s->setTMax(tMax);
    s->setThreshold(threshold);
}

int MethodDraft::save(const QString &name, QString *error) const
{
    MethodModel::createTables();
    if (MethodModel::methodCount() >= MethodModel::maxMethods) {
        *error = QStringLiteral("the database holds %1 methods already, the most it can").arg(MethodModel::maxMethods);
        return 0;
    }
    MethodModel m;
    fill(m);
    m.saveMethodValues(MethodModel::uniqueMethodName(name), QString());
    if (m.success() != 1 || m.id() <= 0) {
        *error = QStringLiteral("the method could not be stored");
        return 0;
    }
    return m.id();
}

int MethodDraft::replace(int id, QString *error) const
{
    MethodModel m(nullptr, false);
    if (!m.loadMethod(id, QString(), false)) {
        *error = QStringLiteral("the method %1 could not be read").arg(id);
        return 0;
    }
    fill(m);
    // The rows are written over where they are; the method keeps its name,
    // its id and its history.
    ElectrodeSetupModel *e = m.electrodeSetupModel();
    e->setElectrodeSetupValues();
    m.titrantSetupModel()->setTitrantSetupValues(e->electrodeType(), true);
    m.titrationSetupModel()->setTitrationSetupValues(e->electrodeType());
    m.titrantSetupModel()->updateMethodTable(id, titrantMolPerL);
    return id;
}

int MethodDraft::findByName(const QString &name)
{
    QSqlQuery query;
    query.prepare(QStringLiteral("SELECT id FROM methodSetupTable WHERE methodName = :name AND id != :scratch"));
    query.bindValue(QStringLiteral(":name"), name);
    query.bindValue(QStringLiteral(":scratch"), MethodModel::scratchMethodId);
    if (!DbUtil::exec(query) || !query.next())
        return 0;
    return query.value(0).toInt();
}
