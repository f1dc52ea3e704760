#include "models/titrationlogmodel.h"

#include "models/dbtransaction.h"
#include "models/dbutil.h"
#include "models/electrodesetupmodel.h"
#include "models/logcapacity.h"
#include "models/loglayout.h"
#include "models/logsnapshot.h"
#include "models/methodmodel.h"
#include "models/migrationframe.h"
#include "models/standardisationlogmodel.h"
#include "models/titrantsetupmodel.h"
#include "models/titrationsetupmodel.h"
#include "system/clock.h"

#include <QDebug>
#include <QSqlQuery>

const QString TitrationLogModel::tableName = QStringLiteral("titrationLogTable");
QStringList TitrationLogModel::noMigrateList = DbUtil::versionRange(QStringLiteral("1.6"), QStringLiteral("1.7"));

const LogLayout &TitrationLogModel::layout()
{
    return LogLayout::titration();
}

TitrationLogModel::TitrationLogModel(QObject *parent)
    : QObject(parent)
{
    m_method = new MethodModel(this, false);
    m_electrode = new ElectrodeSetupModel(this);
    m_titrant = new TitrantSetupModel(this);
    m_titration = new TitrationSetupModel(this);
    m_standardisation = new StandardisationLogModel(this);
    createTable();
}

bool TitrationLogModel::createTable()
{
    return DbUtil::execText(layout().createSql(tableName));
}

bool TitrationLogModel::migrate(const QString &fromVersion)
{
    return MigrationFrame::dropOnOldVersions("TitrationLogModel", tableName, noMigrateList, "1.1", "1.5", fromVersion);
}

void TitrationLogModel::setId(int id)
{
    if (m_id == id)
        return;
    m_id = id;
    emit valueChanged();
}

bool TitrationLogModel::saveLogValues()
{
    return saveLogValues(DataLogSetting::isDatalogFullNotifOn());
}

bool TitrationLogModel::saveLogValues(bool isDataLogNotifOn)
{
    createTable();
    LogSourceRows rows = LogSnapshot::methodRows(m_current);
    const QVariantMap electrode = rows.value(LogBlock::Electrode);
    const QVariantMap titrant = rows.value(LogBlock::Titrant);
    setCalibrationValues(LogSnapshot::lastCalibration(electrode.value(QStringLiteral("electrodeType")).toString()));
    setCalibrationCycleValues(QVariantMap());
    rows.insert(LogBlock::Calibration, calibrationValues());
    rows.insert(LogBlock::CalibrationPoint, calibrationCycleValues());
    setRunValues(LogSnapshot::runRow(m_current, runValues()));
    rows.insert(LogBlock::Run, runValues());

    const QDateTime now = Clock::now();
    setCreatedAt(now);
    setUpdatedAt(now);
    setAvgConc(QString());
    setRsd(QString());
    findStandardisation(titrant.value(QStringLiteral("id")).toInt(), titrant.value(QStringLiteral("mupdatedAt")).toDateTime(),
                        rows.value(LogBlock::Method).value(QStringLiteral("id")).toInt());
    rows.insert(LogBlock::Own, {{QStringLiteral("AvgConc"), QString("")},
                                {QStringLiteral("RSD"), QString("")},
                                {QStringLiteral("logCreatedAt"), now},
                                {QStringLiteral("logUpdatedAt"), now},
                                {QStringLiteral("standardizationId"), standardisationId()}});
    const int id = LogSnapshot::insert(layout(), tableName, rows, "titrationLog Save err");
    if (id > 0)
        setId(id);

    const LogCapacityRule &rule = LogCapacity::titration;
    const int n = LogCapacity::count(rule.table);
    if (LogCapacity::warningDue(rule, n, isDataLogNotifOn))
        emit notificationSignal(rule.etype);
    LogCapacity::trim(rule, n, &TitrationLogModel::pruneOldest);
    return id > 0;
}

void TitrationLogModel::findStandardisation(int titrantSetupId, const QDateTime &titrantUpdatedAt, int methodId)
{
    setStandardisationId(0);
    StandardisationLogModel *s = m_standardisation;
    QSqlQuery query;
    query.prepare(QStringLiteral("Select id,AvgConc,RSD,titrantSetup_nominalConc,titrantSetup_nominalConc_Unit,"
                                 "titrantSetup_resultUnits,logCreatedAt from standardisationLogTable where "
                                 "titrantSetup_Id = :titrantSetup_Id order by datetime(logCreatedAt) DESC"));
    query.bindValue(QStringLiteral(":titrantSetup_Id"), titrantSetupId);
    if (DbUtil::exec(query) && query.next()) {
        const QDateTime created = query.value(6).toDateTime();
        if (!titrantUpdatedAt.isValid() || created >= titrantUpdatedAt) {
            setStandardisationId(query.value(0).toInt());
            s->setId(query.value(0).toInt());
            s->setAvgConc(query.value(1).toString());
            s->setRSD(query.value(2).toString());
            s->titrantSetupModel()->setNominalConc(query.value(3).toFloat());
            s->titrantSetupModel()->setNominalConc_Unit(query.value(4).toString());
            s->titrantSetupModel()->setResultUnits(query.value(5).toString());
            s->setCreatedAt(created);
            return;
        }
    }
    query.finish();
    if (!m_current || !m_standardizedFetch || !m_standardizedFetch(methodId))
        return;
    // A copied method has the run of its original but no log entry of its own.
    setStandardisationId(-1);
    const TitrantSetupModel *t = m_current->titrantSetupModel();
    s->setId(-1);
    s->setAvgConc(QString::number(t->titrantConcentrationValue(), 'g', 6));
    s->setRSD(QString());
    s->titrantSetupModel()->setNominalConc(t->nominalConc());
    s->titrantSetupModel()->setNominalConc_Unit(t->nominalConc_Unit());
    s->titrantSetupModel()->setResultUnits(t->resultUnits());
    QSqlQuery run;
    run.prepare(QStringLiteral("SELECT mcreatedAt FROM titrationTable WHERE methodId = :id AND titrationType LIKE "
                               "'Standardization' order by datetime(mupdatedAt) DESC LIMIT 1"));
    run.bindValue(QStringLiteral(":id"), methodId);
    s->setCreatedAt(DbUtil::exec(run) && run.next() ? run.value(0).toDateTime() : QDateTime());
}

bool TitrationLogModel::pruneOldest()
{
    DbTransaction unit;
    QSqlQuery oldest;
    if (!DbUtil::exec(oldest, QStringLiteral("SELECT id, titration_Id, electrodeSetup_Type FROM titrationLogTable order by id limit 1"))
        || !oldest.next())
        return false;
    const int id = oldest.value(0).toInt();
    const QVariant titrationId = oldest.value(1);
    const QString electrodeType = oldest.value(2).toString();
    oldest.finish();
    const bool ok = LogSnapshot::deleteRow(tableName, id)
        && LogCapacity::deleteRun(titrationId, electrodeType)
        && LogCapacity::deleteWhere("reportSetupTable", "titrationId", id);
    return ok && unit.commit();
}

bool TitrationLogModel::deleteRow(int id)
{
    return LogSnapshot::deleteRow(tableName, id);
}

bool TitrationLogModel::updateLog()
{
    QSqlQuery update;
    update.prepare(QStringLiteral("UPDATE titrationLogTable SET AvgConc=:AvgConc,  RSD=:RSD WHERE id=:ID"));
    update.bindValue(QStringLiteral(":AvgConc"), AvgConc());
    update.bindValue(QStringLiteral(":RSD"), rsd());
    update.bindValue(QStringLiteral(":ID"), m_id);
    return DbUtil::exec(update);
}

bool TitrationLogModel::saveBlankConc(float blankConc)
{
    QSqlQuery update;
    update.prepare(QStringLiteral("UPDATE titrationLogTable SET titrationSetup_blankConcentration=:blankConc WHERE id=:id"));
    update.bindValue(QStringLiteral(":blankConc"), QString::number(blankConc, 'g', 6));
    update.bindValue(QStringLiteral(":id"), m_id);
    return DbUtil::exec(update);
}

void TitrationLogModel::loadFromRecord(const QSqlRecord &row)
{
    const LogLayout &l = layout();
    setId(row.value(QStringLiteral("id")).toInt());
    LogSnapshot::loadParts(l, row, m_method, m_electrode, m_titrant, m_titration);
    setCalibrationValues(LogSnapshot::storedCalibration(l, row));
    setCalibrationCycleValues(LogSnapshot::blockValues(l, row, LogBlock::CalibrationPoint));
    setRunValues(LogSnapshot::blockValues(l, row, LogBlock::Run));
    setCreatedAt(row.value(QStringLiteral("logCreatedAt")).toDateTime());
    setUpdatedAt(row.value(QStringLiteral("logUpdatedAt")).toDateTime());
    setAvgConc(row.value(QStringLiteral("AvgConc")).toString());
    setRsd(row.value(QStringLiteral("RSD")).toString());
    setStandardisationId(row.value(QStringLiteral("standardizationId")).toInt());
}

QString TitrationLogModel::newestFirstSql()
{
    return LogSnapshot::newestFirstSql(tableName);
}

QList<TitrationLogModel *> TitrationLogModel::newestFirst(QObject *parent)
{
    return LogSnapshot::newestFirst<TitrationLogModel>(newestFirstSql(), parent, [](TitrationLogModel *entry) { entry->setCount(entry->id()); });
}
