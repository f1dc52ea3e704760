#include "models/methodmodel.h"

#include "models/modelproperty.h"

#include "models/dbtransaction.h"
#include "models/dbutil.h"
#include "models/electrodesetupmodel.h"
#include "models/methodfilevalidator.h"
#include "models/migrationframe.h"
#include "models/concentrationcalc.h"
#include "models/titrantsetupmodel.h"
#include "models/titrationmodel.h"
#include "models/titrationsetupmodel.h"
#include "system/clocaletext.h"

#include <QDebug>
#include <QRegularExpression>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>

#include <cmath>

const QString MethodModel::tableName = QStringLiteral("methodSetupTable");
QStringList MethodModel::noMigrateList;

const ColumnTable &MethodModel::columnTable()
{
    static const ColumnTable table({
        {"id", "integer primary key autoincrement", "id", ColumnSpec::AsIs},
        {"methodName", "varchar(30) UNIQUE", "methodName", ColumnSpec::AsIs},
        {"methodPassword", "varchar(30)", "methodPassword", ColumnSpec::AsIs},
        {"lastTitration", "varchar(30)", "lastTitration", ColumnSpec::AsIs},
        {"lastCalibration", "varchar(30)", "lastCalibration", ColumnSpec::AsIs},
        {"lastStandardization", "varchar(30)", "lastStandardization", ColumnSpec::AsIs},
        {"titrantConcentration", "float", "titrantConcentration", ColumnSpec::AsNumber},
        {"blankConcentration", "float", "blankConcentration", ColumnSpec::AsNumber},
        {"sampleConcentration", "float", "sampleConcentration", ColumnSpec::AsNumber},
        {"mcreatedAt", "DATETIME", "mcreatedAt", ColumnSpec::AsIs},
        {"mupdatedAt", "DATETIME", "mupdatedAt", ColumnSpec::AsIs},
        {"isChangeFromHome", "integer DEFAULT 0", "isChangeFromHome", ColumnSpec::AsIs},
        {"calibratedElectrodeName", "varchar(30)", "calibratedElectrodeName", ColumnSpec::AsIs},
    });
    return table;
}

MethodModel::MethodModel(QObject *parent, bool ensureScratch)
    : QObject(parent)
{
    // The screens read the parts through these properties (method.titrationSetupModel...).
    qRegisterMetaType<ElectrodeSetupModel *>();
    qRegisterMetaType<TitrantSetupModel *>();
    qRegisterMetaType<TitrationSetupModel *>();
    qRegisterMetaType<TitrationModel *>();
    setSuccess(1);
    m_electrode = new ElectrodeSetupModel(this);
    m_titrant = new TitrantSetupModel(this);
    m_titration = new TitrationSetupModel(this);
    m_run = new TitrationModel(this);
    connect(m_run, &TitrationModel::runStored, this, [this](bool isTitration, const QString &when) {
        if (isTitration)
            setLastTitration(when);
        else
            setLastStandardization(when);
    });
    m_titrant->setTitrantConcentrationValue(m_titrantConcentration);
    m_titration->setTitrantConcentration(m_titrantConcentration);
    m_titration->setBlankConcentration(m_blankConcentration);
    if (ensureScratch)
        ensureScratchMethod();
}

MethodModel::~MethodModel()
{
    clearMethods();
}

bool MethodModel::createTables()
{
    const bool live = DbUtil::execText(columnTable().createSql(tableName, true));
    const bool staging = DbUtil::execText(columnTable().createSql(tableName + QStringLiteral("_import"), true));
    return live && staging;
}

bool MethodModel::ensureScratchMethod()
{
    createTables();
    QSqlQuery select;
    select.prepare(QStringLiteral("SELECT * FROM methodSetupTable WHERE id=:m_id"));
    select.bindValue(QStringLiteral(":m_id"), scratchMethodId);
    if (DbUtil::exec(select) && select.next())
        return true;
    select.finish();

    const QDateTime now = QDateTime::currentDateTime();
    setMcreatedAt(now);
    setMupdatedAt(now);
    setIsChangeFromHome(false);
    const QStringList columns{QStringLiteral("id"), QStringLiteral("methodName"), QStringLiteral("methodPassword"),
                              QStringLiteral("titrantConcentration"), QStringLiteral("blankConcentration"),
                              QStringLiteral("sampleConcentration"), QStringLiteral("isChangeFromHome"),
                              QStringLiteral("mcreatedAt"), QStringLiteral("mupdatedAt")};
    QSqlQuery insert;
    insert.prepare(columnTable().insertSql(tableName, columns));
    columnTable().bindFrom(this, insert, columns);
    insert.bindValue(QStringLiteral(":id"), scratchMethodId);
    insert.bindValue(QStringLiteral(":methodName"), QString(""));
    insert.bindValue(QStringLiteral(":methodPassword"), QString(""));
    // One unit, so that the row is never there without its parts (a start
    // finding the row takes the working method as complete).
    DbTransaction unit;
    return DbUtil::exec(insert) && saveParts(scratchMethodId) && unit.commit();
}

// The id counter of the method table is raised to at least the highest
// method id that a run or a log entry names, so that a new method never takes
// the id of one whose records are still there. The counter is set directly:
// a marker row with that id would collide with the method itself when it
// still exists.
bool MethodModel::raiseIdSequenceAboveRuns()
{
    qint64 highest = 0;
    for (const char *table : {"titrationTable", "titrationLogTable", "standardisationLogTable", "calibrationLogTable"}) {
        const QString name = QString::fromLatin1(table);
        if (!DbUtil::tableExists(name) || !DbUtil::columnNames(name).contains(QStringLiteral("methodId")))
            continue;
        bool ok = false;
        const QVariant v = DbUtil::scalar(QStringLiteral("SELECT MAX(CAST(methodId AS INTEGER)) FROM %1").arg(name), &ok);
        if (!ok)
            return false;
        highest = qMax(highest, v.toLongLong());
    }
    if (highest <= 0)
        return true;
    QSqlQuery update;
    update.prepare(QStringLiteral("UPDATE sqlite_sequence SET seq = :seq WHERE name = 'methodSetupTable' AND seq < :floor"));
    update.bindValue(QStringLiteral(":seq"), highest);
    update.bindValue(QStringLiteral(":floor"), highest);
    QSqlQuery insert;
    insert.prepare(QStringLiteral("INSERT INTO sqlite_sequence (name, seq) SELECT 'methodSetupTable', :seq "
                                  "WHERE NOT EXISTS (SELECT 1 FROM sqlite_sequence WHERE name = 'methodSetupTable')"));
    insert.bindValue(QStringLiteral(":seq"), highest);
    return DbUtil::exec(update) && DbUtil::exec(insert);
}

bool MethodModel::migrate(const QString &fromVersion)
{
    MigrationFrame frame;
    frame.modelName = QStringLiteral("MethodModel");
    frame.noMigrateList = noMigrateList;
    frame.handledVersions = DbUtil::versionRange(QStringLiteral("1.1"), QStringLiteral("1.7"));
    frame.step = [](const QString &) {
        // Rebuilt with AUTOINCREMENT, so that an id that old run records
        // still point to is never given to a new method. One unit: a power
        // loss leaves the old table or the new one.
        const QString columns = columnTable().names().join(QStringLiteral(", "));
        QString backupColumns = columnTable().createSql(QStringLiteral("methodSetupTable_backup"), false);
        backupColumns.replace(QStringLiteral("integer primary key autoincrement"), QStringLiteral("integer primary key"));
        backupColumns.replace(QStringLiteral("CREATE TABLE"), QStringLiteral("CREATE TEMPORARY TABLE"));
        const QStringList statements{
            backupColumns,
            QStringLiteral("INSERT INTO methodSetupTable_backup SELECT %1 FROM methodSetupTable;").arg(columns),
            QStringLiteral("DROP TABLE methodSetupTable;"),
            columnTable().createSql(tableName, false),
            QStringLiteral("INSERT INTO methodSetupTable SELECT %1 FROM methodSetupTable_backup;").arg(columns),
            QStringLiteral("DROP TABLE methodSetupTable_backup"),
        };
        DbTransaction unit;
        bool ok = true;
        for (const QString &s : statements)
            ok = DbUtil::execText(s) && ok;
        return ok && raiseIdSequenceAboveRuns() && unit.commit();
    };
    return frame.run(fromVersion);
}

int MethodModel::methodCount()
{
    QSqlQuery query;
    query.prepare(QStringLiteral("SELECT count(*) FROM methodSetupTable WHERE id != :scratch"));
    query.bindValue(QStringLiteral(":scratch"), scratchMethodId);
    if (!DbUtil::exec(query) || !query.next())
        return 0;
    return query.value(0).toInt();
}

QString MethodModel::uniqueMethodName(const QString &name)
{
    static const QRegularExpression counter(QStringLiteral("~[0-9]+$"));
    QString base = name;
    base.remove(counter);
    QString candidate = base;
    qint64 n = 1;
    for (;;) {
        QSqlQuery query;
        query.prepare(QStringLiteral("SELECT methodName FROM methodSetupTable WHERE methodName = :methodName"));
        query.bindValue(QStringLiteral(":methodName"), candidate);
        if (!DbUtil::exec(query) || !query.next())
            break;
        candidate = base + QStringLiteral("~%1").arg(n);
        ++n;
    }
    qDebug() << "Unique method name: " << candidate;
    return candidate;
}

void MethodModel::setId(int id)
{
    if (m_id == id)
        return;
    m_id = id;
    emit valueChanged();
}

void MethodModel::setTitrantConcentration(float value)
{
    m_titrantConcentration = value;
    if (!isUpdatedFromDBLog() && !m_loading) {
        m_titrant->setTitrantConcentrationValue(value);
        m_titration->setTitrantConcentration(value);
        m_titrant->updateMethodTable(m_id, value);
    }
    setIsUpdatedFromDBLog(false);
    emit valueChanged();
}

void MethodModel::setBlankConcentration(float value)
{
    m_blankConcentration = value;
    if (!isUpdatedFromDBLog() && !m_loading) {
        m_titration->setBlankConcentration(value);
        m_titration->updateMethodTable(m_id, value);
    }
    setIsUpdatedFromDBLog(false);
    emit valueChanged();
}

void MethodModel::saveMethodValues(const QString &name, const QString &password)
{
    createTables();
    if (methodCount() >= maxMethods) {
        qDebug() << "Method log is full, new method cannot be saved.";
        setSuccess(0);
        return;
    }
    setIsChangeFromHome(false);
    m_titrantConcentration = m_titrant->titrantConcentrationValue();
    const QDateTime now = QDateTime::currentDateTime();
    const QStringList columns{QStringLiteral("methodName"), QStringLiteral("methodPassword"),
                              QStringLiteral("titrantConcentration"), QStringLiteral("mcreatedAt"),
                              QStringLiteral("mupdatedAt"), QStringLiteral("isChangeFromHome"),
                              QStringLiteral("calibratedElectrodeName"), QStringLiteral("lastStandardization")};
    QSqlQuery insert;
    insert.prepare(columnTable().insertSql(tableName, columns));
    columnTable().bindFrom(this, insert, columns);
    insert.bindValue(QStringLiteral(":methodName"), name);
    insert.bindValue(QStringLiteral(":methodPassword"), password);
    insert.bindValue(QStringLiteral(":mcreatedAt"), now);
    insert.bindValue(QStringLiteral(":mupdatedAt"), now);
    // The method row and its three parts are one unit: a refused part, or a
    // process killed half way, leaves no method behind.
    DbTransaction unit;
    if (!DbUtil::exec(insert)) {
        setSuccess(0);
        return;
    }
    const int newId = insert.lastInsertId().toInt();
    m_blankConcentration = 0.0f;
    m_titrant->setTitrantConcentrationValue(m_titrantConcentration);
    m_titration->setTitrantConcentration(m_titrantConcentration);
    m_titration->setBlankConcentration(m_blankConcentration);
    if (!saveParts(newId) || !unit.commit()) {
        unit.rollback();
        qDebug() << "MethodModel: the method" << name << "was not stored, nothing of it kept";
        setPartsMethodId(m_id); // the parts in memory belong to the loaded method again
        setSuccess(0);
        return;
    }
    setSuccess(1);
    setId(newId);
    updateMethodModel(m_id);
}

void MethodModel::setPartsMethodId(int id)
{
    m_electrode->setMethodId(id);
    m_titrant->setMethodId(id);
    m_titration->setMethodId(id);
}

bool MethodModel::saveParts(int id)
{
    setPartsMethodId(id);
    const QString type = m_electrode->electrodeType();
    return m_electrode->setElectrodeSetupValues() && m_titrant->setTitrantSetupValues(type, true)
        && m_titration->setTitrationSetupValues(type);
}

bool MethodModel::recordCalibration(const QString &electrodeName, const QDateTime &when)
{
    if (electrodeName.isEmpty() || electrodeName != m_calibratedElectrodeName
        || electrodeName != m_electrode->electrodeName())
        return false;
    const QString text = CLocaleText::upperDateTime(when, QStringLiteral("hh:mm a | MM/dd/yyyy"));
    QSqlQuery update;
    update.prepare(QStringLiteral("UPDATE methodSetupTable SET lastCalibration=:lastCalibration, "
                                  "calibratedElectrodeName=:calibratedElectrodeName WHERE id=:ID"));
    update.bindValue(QStringLiteral(":lastCalibration"), text);
    update.bindValue(QStringLiteral(":calibratedElectrodeName"), electrodeName);
    update.bindValue(QStringLiteral(":ID"), m_id);
    if (!DbUtil::exec(update))
        return false;
    setLastCalibration(text);
    return true;
}

void MethodModel::updateMethodModel(int id, const QString &name, const QString &password)
{
    QSqlQuery update;
    update.prepare(QStringLiteral("UPDATE methodSetupTable SET methodName=:newName, methodPassword=:newPassword, "
                                  "mupdatedAt=:newmupdatedAt WHERE id=:ID"));
    update.bindValue(QStringLiteral(":newName"), name);
    update.bindValue(QStringLiteral(":newPassword"), password);
    update.bindValue(QStringLiteral(":newmupdatedAt"), QDateTime::currentDateTime());
    update.bindValue(QStringLiteral(":ID"), id);
    setSuccess(DbUtil::exec(update) ? 1 : 0);
}

void MethodModel::updateMethodModel(int id)
{
    loadMethod(id, QString(), false);
}

bool MethodModel::loadMethod(int id, const QString &suffix, bool sanitize)
{
    QSqlQuery query;
    query.prepare(QStringLiteral("SELECT *  FROM methodSetupTable%1 WHERE id=:ID").arg(suffix));
    query.bindValue(QStringLiteral(":ID"), id);
    if (!query.exec() || !query.next()) {
        qDebug() << "MethodModel: no method" << id << query.lastError().text();
        return false;
    }
    const QSqlRecord record = query.record();
    query.finish();
    // Loading writes nothing back: the two concentrations are taken as read.
    m_loading = true;
    columnTable().loadInto(this, record);
    m_loading = false;
    emit valueChanged();
    const bool electrode = m_electrode->updateElectrodeSetupModel(id, suffix);
    const bool titrant = m_titrant->updateTitrantSetupModel(id, suffix);
    const bool titration = m_titration->updateTitrationSetupModel(id, suffix);
    if (sanitize) {
        setLastTitration(QString());
        setLastCalibration(QString());
        setLastStandardization(QString());
        setCalibratedElectrodeName(QString());
    }
    return electrode && titrant && titration;
}

void MethodModel::deleteRow(int id)
{
    DbTransaction unit;
    bool ok = true;
    for (const char *child : {"electrodeSetupTable", "titrantSetupTable", "titrationSetupTable"}) {
        QSqlQuery del;
        del.prepare(QStringLiteral("DELETE FROM %1 WHERE methodId=:id").arg(QString::fromLatin1(child)));
        del.bindValue(QStringLiteral(":id"), id);
        ok = DbUtil::exec(del) && ok;
    }
    QSqlQuery del;
    del.prepare(QStringLiteral("DELETE FROM methodSetupTable WHERE id=:id"));
    del.bindValue(QStringLiteral(":id"), id);
    ok = DbUtil::exec(del) && ok;
    if (ok)
        unit.commit();
}

void MethodModel::newTitration()
{
    const int electrodeRow = m_electrode->id();
    const int titrantRow = m_titrant->id();
    const int titrationRow = m_titration->id();
    setLastCalibration(QString());
    setLastStandardization(QString());
    setLastTitration(QString());
    setIsChangeFromHome(false);

    QSqlQuery update;
    update.prepare(QStringLiteral("UPDATE methodSetupTable SET lastStandardization=:lastStandardization, "
                                  "lastTitration=:lastTitration, lastCalibration=:lastCalibration,  "
                                  "mupdatedAt=:newmupdatedAt, isChangeFromHome=:newisChangeFromHome, "
                                  "calibratedElectrodeName=:calibratedElectrodeName WHERE id=:ID"));
    update.bindValue(QStringLiteral(":lastStandardization"), QString(""));
    update.bindValue(QStringLiteral(":lastTitration"), QString(""));
    update.bindValue(QStringLiteral(":lastCalibration"), QString(""));
    update.bindValue(QStringLiteral(":newmupdatedAt"), QDateTime::currentDateTime());
    update.bindValue(QStringLiteral(":newisChangeFromHome"), 0);
    update.bindValue(QStringLiteral(":calibratedElectrodeName"), m_calibratedElectrodeName);
    update.bindValue(QStringLiteral(":ID"), m_id);
    DbUtil::exec(update);

    ElectrodeSetupModel electrode;
    TitrantSetupModel titrant;
    TitrationSetupModel titration;
    titrant.setTitrantConcentrationValue(1.0f);
    titration.setTitrantConcentration(1.0f);
    titration.setBlankConcentration(0.0f);
    electrode.setId(electrodeRow);
    titrant.setId(titrantRow);
    titration.setId(titrationRow);
    electrode.setMethodId(m_id);
    titrant.setMethodId(m_id);
    titration.setMethodId(m_id);
    electrode.setElectrodeSetupValues();
    titrant.setTitrantSetupValues(electrode.electrodeType(), false);
    titration.setTitrationSetupValues(electrode.electrodeType());
}

QQmlListProperty<MethodModel> MethodModel::methods()
{
    return QQmlListProperty<MethodModel>(this, &m_methods);
}

void MethodModel::clearMethods()
{
    releaseLater(m_methods);
}

bool MethodModel::loadMethodsFromDb(const QString &tableSuffix, bool sanitize)
{
    if (!tableSuffix.isEmpty() && !DbUtil::isPlainIdentifier(tableSuffix.mid(1)))
        return false;
    QList<MethodModel *> loaded;
    QSqlQuery query;
    query.prepare(QStringLiteral("SELECT * from methodSetupTable%1 WHERE id!=:scratch").arg(tableSuffix));
    query.bindValue(QStringLiteral(":scratch"), scratchMethodId);
    if (!DbUtil::exec(query))
        return false;
    QList<QPair<int, QString>> rows;
    while (query.next())
        rows.append({query.value(QStringLiteral("id")).toInt(), query.value(QStringLiteral("methodName")).toString()});
    query.finish();
    // What comes through staging tables came from a file: a method that the
    // method screens could not have made is left out, with its reason.
    m_refusals.clear();
    const MethodFileValidator validator(MethodFileValidator::storedBuretteMl());
    for (const auto &row : rows) {
        const QString refused = tableSuffix.isEmpty() ? QString() : validator.checkStaged(tableSuffix, row.first);
        if (!refused.isEmpty()) {
            qDebug() << "Refused " << row.second << refused;
            m_refusals << row.second.left(30) + QStringLiteral(": ") + refused;
            continue;
        }
        qDebug() << "Adding " << row.second;
        auto *entry = new MethodModel(nullptr, false);
        entry->loadMethod(row.first, tableSuffix, sanitize);
        loaded.append(entry);
    }
    for (MethodModel *entry : loaded) {
        if (entry->id() == scratchMethodId)
            delete entry;
        else
            m_methods.append(entry);
    }
    emit valueChanged();
    return !loaded.isEmpty();
}

bool MethodModel::insertStaged(const QString &suffix)
{
    const QDateTime now = QDateTime::currentDateTime();
    setMcreatedAt(now);
    setMupdatedAt(now);
    QSqlQuery insert;
    insert.prepare(columnTable().insertSql(tableName + suffix, columnTable().names()));
    columnTable().bindFrom(this, insert, columnTable().names());
    bool ok = DbUtil::exec(insert);
    ok = m_electrode->insertStaged(suffix) && ok;
    ok = m_titrant->insertStaged(suffix) && ok;
    ok = m_titration->insertStaged(suffix) && ok;
    return ok;
}

bool MethodModel::methodsToStaging(const QString &suffix)
{
    bool ok = true;
    for (MethodModel *entry : qAsConst(m_methods))
        ok = entry->insertStaged(suffix) && ok;
    return ok;
}

int MethodModel::install(MethodModel *entry, QString *error)
{
    QString why;
    if (methodCount() >= maxMethods)
        why = QStringLiteral("Method log is full, new method cannot be saved.");
    const QString requested = entry->methodName();
    DbTransaction unit;
    int newId = 0;
    if (why.isEmpty()) {
        entry->setMethodName(uniqueMethodName(requested));
        QStringList columns = columnTable().names();
        columns.removeAll(QStringLiteral("id"));
        QSqlQuery insert;
        insert.prepare(columnTable().insertSql(tableName, columns));
        columnTable().bindFrom(entry, insert, columns);
        if (DbUtil::exec(insert))
            newId = insert.lastInsertId().toInt();
        if (newId <= 0 || !entry->saveParts(newId) || !unit.commit())
            why = QStringLiteral("the method or one of its parts could not be stored");
    }
    if (!why.isEmpty()) {
        unit.rollback();
        entry->setMethodName(requested);
        qDebug() << "MethodModel: not installed:" << requested << why;
        if (error)
            *error = why;
        return 0;
    }
    entry->setId(newId);
    return newId;
}

void MethodModel::listToDb(const QVariantList &arr)
{
    qDebug() << "===================Methods Getting Installed======================";
    for (const QVariant &v : arr) {
        const int id = v.toInt();
        if (id == 0)
            continue;
        for (MethodModel *entry : qAsConst(m_methods)) {
            if (entry->id() != id)
                continue;
            // The entry keeps its staged id, so that the same id listed twice
            // installs the method twice.
            install(entry);
            entry->setId(id);
        }
    }
}

void MethodModel::titrationCompleted(const double resultUl[3], const QString &deviceMode, bool blankTitrationMode)
{
    static constexpr double uLtomL = 1000.0;
    float volumes[3];
    for (int i = 0; i < 3; ++i)
        volumes[i] = ConcentrationCalc::finiteOrZero(resultUl[i] / uLtomL, "end-point volume");
    updateTitrationCompletion(volumes, deviceMode, blankTitrationMode);
}

bool MethodModel::isStandardized(int methodId)
{
    QSqlQuery run;
    run.prepare(QStringLiteral("SELECT * FROM titrationTable WHERE methodId = :id AND titrationType LIKE 'Standardization' "
                               "order by datetime(mcreatedAt) DESC"));
    run.bindValue(QStringLiteral(":id"), methodId);
    if (!DbUtil::exec(run) || !run.next())
        return false;
    const QDateTime standardised = run.value(QStringLiteral("mupdatedAt")).toDateTime();
    QSqlQuery titrant;
    titrant.prepare(QStringLiteral("SELECT mupdatedAt FROM titrantSetupTable WHERE methodId = :id"));
    titrant.bindValue(QStringLiteral(":id"), methodId);
    if (!DbUtil::exec(titrant) || !titrant.next())
        return true;
    return standardised > titrant.value(0).toDateTime();
}

float MethodModel::titrantConcentrationForRun() const
{
    float conc = m_titrant->titrantConcentrationValue();
    QString unit;
    if (m_titrant->concInputMode() == QLatin1String("Manual Entry"))
        unit = m_titrant->concInputMode_Unit();
    else if (isStandardized(m_id))
        unit = m_titrant->resultUnits();
    else
        unit = m_titrant->nominalConc_Unit();
    if (unit == QLatin1String("mM"))
        conc = static_cast<float>(static_cast<double>(conc) * 0.001);
    return conc;
}

void MethodModel::updateTitrationCompletion(const float volumesMl[3], const QString &deviceMode, bool blank)
{
    if (deviceMode != QLatin1String("Titration")) {
        const int index = qBound(0, m_titrant->noOfEndPoints() - 1, 2);
        const float volume = volumesMl[index];
        const float result = ConcentrationCalc::finiteOrZero(m_titrant->calculateTitrantConcentration(volume, m_id),
                                                             "standardisation");
        m_titrantConcentration = result;
        emit valueChanged();
        m_run->updateTitrationCompletion(result, volume);
        return;
    }

    const float conc = titrantConcentrationForRun();
    if (std::fabs(m_titration->titrantConcentration() - conc) > 1e-5f) {
        qDebug() << " ******** ERROR:  titration-titrant-concentration did not have correct value ********";
        qDebug() << " ******** corrected value: " << conc << " originally: " << m_titration->titrantConcentration();
    }
    m_titration->setTitrantConcentration(conc);

    if (blank) {
        const float volume = volumesMl[0];
        const bool back = m_titration->titrationType() == QLatin1String("Back Titration");
        const float ratio = back ? m_titration->titrantReactionRatio() : m_titration->reactionRatio();
        const float blankMmol = ConcentrationCalc::blank(volume, conc, ratio);
        m_blankConcentration = blankMmol;
        emit valueChanged();
        m_run->updateTitrationCompletion(blankMmol, volume);
        return;
    }

    float results[3];
    for (int i = 0; i < 3; ++i) {
        qDebug() << "Endpoint " << i + 1 << volumesMl[i];
        results[i] = m_titration->calculateResult(volumesMl[i]);
    }
    m_run->updateTitrationCompletion(results, volumesMl);
}
