#include "models/titrationmodel.h"

#include "models/modelproperty.h"

#include "models/dbtransaction.h"
#include "models/dbutil.h"
#include "models/migrationframe.h"
#include "models/mkaadditionmodel.h"
#include "models/mkatitrationcyclemodel.h"
#include "models/titrationcyclemodel.h"
#include "system/clock.h"
#include "system/clocaletext.h"

#include <QBuffer>
#include <QDebug>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>
#include <QSqlQuery>

const QString TitrationModel::tableName = QStringLiteral("titrationTable");
QStringList TitrationModel::noMigrateList = DbUtil::versionRange(QStringLiteral("1.4"), QStringLiteral("1.7"));

const ColumnTable &TitrationModel::columnTable()
{
    static const ColumnTable table({
        {"id", "integer primary key AUTOINCREMENT", "id", ColumnSpec::AsIs},
        {"titrationType", "varchar(30)", "titrationType", ColumnSpec::AsIs},
        {"titrationDateTime", "varchar(30)", "titrationDateTime", ColumnSpec::AsIs},
        {"methodName", "varchar(30)", "methodName", ColumnSpec::AsIs},
        {"titrantName", "varchar(30)", "titrantName", ColumnSpec::AsIs},
        {"titrantPercentage", "float", "titrantPercentage", ColumnSpec::AsNumber},
        {"sensorName", "varchar(30)", "sensorName", ColumnSpec::AsIs},
        {"cycleno", "integer", "cycleno", ColumnSpec::AsIs},
        {"methodId", "integer", "methodId", ColumnSpec::AsIs},
        {"mcreatedAt", "DATETIME", "mcreatedAt", ColumnSpec::AsIs},
        {"mupdatedAt", "DATETIME", "mupdatedAt", ColumnSpec::AsIs},
    });
    return table;
}

TitrationModel::TitrationModel(QObject *parent)
    : QObject(parent)
{
    createTables();
}

TitrationModel::~TitrationModel()
{
    qDeleteAll(m_titrationCycles);
    qDeleteAll(m_mkaCycles);
    qDeleteAll(m_mkaAdditions);
}

bool TitrationModel::createTables()
{
    const bool run = DbUtil::execText(columnTable().createSql(tableName, true));
    const bool cycles = TitrationCycleModel::createTable();
    const bool mka = MKATitrationCycleModel::createTable();
    const bool additions = MKAadditionModel::createTable();
    return run && cycles && mka && additions;
}

bool TitrationModel::migrate(const QString &fromVersion)
{
    return MigrationFrame::dropOnOldVersions("TitrationModel", tableName, noMigrateList, "1.1", "1.3", fromVersion);
}

void TitrationModel::setCycleno(int cycleno)
{
    if (m_cycleno == cycleno)
        return;
    m_cycleno = cycleno;
    emit cyclenoChanged();
}

void TitrationModel::appendTitrationCycle(TitrationCycleModel *cycle)
{
    m_titrationCycles.append(cycle);
    emit titrationCyclesChanged();
}

void TitrationModel::clearTitrationCycles()
{
    for (TitrationCycleModel *cycle : qAsConst(m_titrationCycles))
        cycle->deleteLater();
    m_titrationCycles.clear();
    emit titrationCyclesChanged();
}

void TitrationModel::copyInputs(TitrationCycleModel *cycle) const
{
    cycle->setSampleAmountValue(m_sampleAmountValue);
    cycle->setReagentAmountValue(m_reagentAmountValue);
    cycle->setStandAmountValue(m_standAmountValue);
    cycle->setTemperature(m_temperature);
}

// The cycle in progress is the one whose number the run holds: its points
// stay on it however the cycle number and the list's length relate (a run
// whose number is still 0, or a cycle that was not stopped).
TitrationCycleModel *TitrationModel::cycleNumbered(int cycleNo) const
{
    for (auto it = m_titrationCycles.crbegin(); it != m_titrationCycles.crend(); ++it) {
        if ((*it)->cycleNo() == cycleNo)
            return *it;
    }
    return nullptr;
}

TitrationCycleModel *TitrationModel::currentTitrationCycle()
{
    TitrationCycleModel *cycle = cycleNumbered(m_cycleno);
    if (!cycle) {
        cycle = new TitrationCycleModel();
        cycle->setCycleNo(m_cycleno);
        appendTitrationCycle(cycle);
    }
    copyInputs(cycle);
    return cycle;
}

TitrationCycleModel *TitrationModel::startCycle()
{
    // A cycle of this number from a start that neither completed into the
    // next number nor was stopped is replaced: one curve per cycle.
    if (TitrationCycleModel *stale = cycleNumbered(m_cycleno)) {
        qDebug() << "TitrationModel: cycle" << m_cycleno << "started again; its earlier points are dropped";
        m_titrationCycles.removeOne(stale);
        stale->deleteLater();
    }
    auto *cycle = new TitrationCycleModel();
    cycle->setCycleNo(m_cycleno);
    appendTitrationCycle(cycle);
    return cycle;
}

void TitrationModel::setDirectMeasureData()
{
    currentTitrationCycle();
}

void TitrationModel::updateTitrationCompletion(float result, float volume)
{
    qDebug() << "TitrationModel::updateTitrationCompletion";
    currentTitrationCycle()->addTitrationCompletion(result, volume);
}

void TitrationModel::updateTitrationCompletion(const float results[3], const float volumes[3])
{
    qDebug() << "TitrationModel::updateTitrationCompletion";
    currentTitrationCycle()->addTitrationCompletion(results, volumes);
}

void TitrationModel::updateEndPointValues(float ep1, float ep2)
{
    TitrationCycleModel *cycle = currentTitrationCycle();
    cycle->setEpValue1(ep1);
    cycle->setEpValue2(ep2);
}

TitrationCycleModel *TitrationModel::titrationCycle(int idx)
{
    if (idx < 0 || idx >= m_titrationCycles.size())
        return nullptr;
    return m_titrationCycles.at(idx);
}

bool TitrationModel::setTitrationValues(bool isChangeFromHome)
{
    const bool ok = writeRun(isChangeFromHome);
    if (!ok) {
        qDebug() << "TitrationModel: the run was not stored and stays in memory";
        for (TitrationCycleModel *cycle : qAsConst(m_titrationCycles))
            cycle->setId(0);
    }
    return ok;
}

bool TitrationModel::writeRun(bool isChangeFromHome)
{
    DbTransaction unit;
    const QDateTime now = Clock::now();
    setMcreatedAt(now);
    setMupdatedAt(now);
    const int newId = columnTable().insertRowWithNewId(this, tableName);
    if (newId < 0)
        return false;
    setId(newId);

    if (m_electrodeType != QLatin1String("ISE-MKA")) {
        for (TitrationCycleModel *cycle : qAsConst(m_titrationCycles)) {
            if (!cycle->setTitrationCycleValues(m_id, m_mcreatedAt))
                return false;
        }
    } else {
        for (MKATitrationCycleModel *cycle : qAsConst(m_mkaCycles)) {
            if (!cycle->setMKATitrationCycleValues(m_id, m_mcreatedAt))
                return false;
        }
        for (MKAadditionModel *addition : qAsConst(m_mkaAdditions)) {
            if (!addition->setMKAadditionValues(m_id))
                return false;
        }
    }

    const bool isTitration = m_titrationType == QLatin1String("Titration");
    const QString when = CLocaleText::upperDateTime(m_mcreatedAt, QStringLiteral("hh:mm a | MM/dd/yyyy"));
    QSqlQuery method;
    method.prepare(isTitration
                       ? QStringLiteral("UPDATE methodSetupTable SET lastTitration=:lastRun, mupdatedAt=:newmupdatedAt, "
                                        "isChangeFromHome=:newisChangeFromHome WHERE id=:ID")
                       : QStringLiteral("UPDATE methodSetupTable SET lastStandardization=:lastRun, "
                                        "mupdatedAt=:newmupdatedAt, isChangeFromHome=:newisChangeFromHome WHERE id=:ID"));
    method.bindValue(QStringLiteral(":lastRun"), when);
    method.bindValue(QStringLiteral(":newmupdatedAt"), now);
    method.bindValue(QStringLiteral(":newisChangeFromHome"), isChangeFromHome ? 1 : 0);
    method.bindValue(QStringLiteral(":ID"), m_methodId);
    if (!DbUtil::exec(method) || !unit.commit())
        return false;
    emit runStored(isTitration, when);
    return true;
}

void TitrationModel::stopCycle()
{
    for (int i = m_titrationCycles.size() - 1; i >= 0; --i) {
        if (m_titrationCycles.at(i)->cycleNo() == m_cycleno) {
            m_titrationCycles.takeAt(i)->deleteLater();
            emit titrationCyclesChanged();
        }
    }
}

void TitrationModel::insertCycleImage(const QImage &image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, "PNG")) {
        qDebug() << "TitrationModel: the cycle image could not be written as PNG";
        return;
    }
    currentTitrationCycle()->setCycleImage(bytes);
}

void TitrationModel::updateInculeInAvgCondition(int ID, bool check)
{
    QSqlQuery update;
    update.prepare(QStringLiteral("UPDATE titrationCycleTable SET inclInAvg = :inclInAvg WHERE id = :ID"));
    update.bindValue(QStringLiteral(":inclInAvg"), check ? 1 : 0);
    update.bindValue(QStringLiteral(":ID"), ID);
    DbUtil::exec(update);
}

void TitrationModel::updateInculeInAvgConditioninMKA(int ID, bool check)
{
    QSqlQuery update;
    update.prepare(QStringLiteral("UPDATE mkaTitrationCycleTable SET inclAvg = :inclAvg WHERE id = :ID"));
    update.bindValue(QStringLiteral(":inclAvg"), check ? 1 : 0);
    update.bindValue(QStringLiteral(":ID"), ID);
    DbUtil::exec(update);
}

QDateTime TitrationModel::getLastBlankInput(const QString &blankTitrationType)
{
    QSqlQuery query;
    query.prepare(QStringLiteral("SELECT mcreatedAt FROM titrationTable WHERE titrationType = :type "
                                 "ORDER BY datetime(mcreatedAt) DESC LIMIT 1"));
    query.bindValue(QStringLiteral(":type"), blankTitrationType);
    if (!DbUtil::exec(query) || !query.next())
        return QDateTime();
    return query.value(0).toDateTime();
}

namespace {

// Elements of a list the screens joined with " | ", each a JSON object.
QList<QJsonObject> jsonElements(const QString &text, const char *what)
{
    QList<QJsonObject> objects;
    if (text.size() > TitrationModel::maxInputChars) {
        qDebug() << "TitrationModel:" << what << "list too long, dropped:" << text.size() << "characters";
        return objects;
    }
    const QStringList parts = text.split(QStringLiteral(" | "), Qt::SkipEmptyParts);
    for (const QString &part : parts) {
        QJsonParseError error{};
        const QJsonDocument doc = QJsonDocument::fromJson(part.toUtf8(), &error);
        if (error.error != QJsonParseError::NoError || !doc.isObject()) {
            qDebug() << "TitrationModel:" << what << "element is not a JSON object, dropped:" << part.left(80);
            continue;
        }
        objects.append(doc.object());
    }
    return objects;
}

} // namespace

void TitrationModel::mkaCycleInput(const QString &mkaCycleArray, const QString &mkaAdditionArray)
{
    releaseLater(m_mkaCycles);
    releaseLater(m_mkaAdditions);
    for (const QJsonObject &o : jsonElements(mkaCycleArray, "cycle")) {
        if (MKATitrationCycleModel *cycle = MKATitrationCycleModel::fromJson(o))
            m_mkaCycles.append(cycle);
    }
    for (const QJsonObject &o : jsonElements(mkaAdditionArray, "addition")) {
        if (MKAadditionModel *addition = MKAadditionModel::fromJson(o))
            m_mkaAdditions.append(addition);
    }
    emit mkaTitrationCycleChanged();
    emit mkaAdditionCycleCheanged();
}

QQmlListProperty<TitrationCycleModel> TitrationModel::titrationCyclesList()
{
    return QQmlListProperty<TitrationCycleModel>(this, &m_titrationCycles);
}

QQmlListProperty<MKATitrationCycleModel> TitrationModel::mkaTitrationCyclesList()
{
    return QQmlListProperty<MKATitrationCycleModel>(this, &m_mkaCycles);
}

QQmlListProperty<MKAadditionModel> TitrationModel::mkaAdditionList()
{
    return QQmlListProperty<MKAadditionModel>(this, &m_mkaAdditions);
}
