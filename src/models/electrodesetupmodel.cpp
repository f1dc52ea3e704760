#include "models/electrodesetupmodel.h"

#include "models/dbutil.h"
#include "models/migrationframe.h"

#include <QDebug>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>

const QString ElectrodeSetupModel::tableName = QStringLiteral("electrodeSetupTable");
QStringList ElectrodeSetupModel::noMigrateList = DbUtil::versionRange(QStringLiteral("1.1"), QStringLiteral("1.7"));

const QMap<QString, int> ElectrodeSetupModel::electrodeIndexMap{
    {QStringLiteral("pH"), 0}, {QStringLiteral("Redox"), 1}, {QStringLiteral("ISE-Titration"), 2},
    {QStringLiteral("ISE-MKA"), 2}, {QStringLiteral("Ammonia"), 2}, {QStringLiteral("Ammonium"), 2},
    {QStringLiteral("Bromide"), 2}, {QStringLiteral("Cadmium"), 3}, {QStringLiteral("Calcium"), 3},
    {QStringLiteral("Carbon Dioxide"), 2}, {QStringLiteral("Chloride"), 2}, {QStringLiteral("Chlorine"), 3},
    {QStringLiteral("Copper"), 3}, {QStringLiteral("Cyanide"), 2}, {QStringLiteral("Fluoride"), 2},
    {QStringLiteral("Fluoroborate"), 2}, {QStringLiteral("Iodide"), 2}, {QStringLiteral("Lead"), 3},
    {QStringLiteral("Nitrate"), 2}, {QStringLiteral("Potassium"), 2}, {QStringLiteral("Silver"), 2},
    {QStringLiteral("Sodium"), 2}, {QStringLiteral("Sulfide"), 3}, {QStringLiteral("Surfactant"), 2},
    {QStringLiteral("Thiocyanate"), 2}, {QStringLiteral("Monovalent Anion"), 2},
    {QStringLiteral("Monovalent Cation"), 2}, {QStringLiteral("Divalent Anion"), 3},
    {QStringLiteral("Divalent Cation"), 3},
};

const QMap<QString, int> ElectrodeSetupModel::directMeasureUnitIndexMap{
    {QStringLiteral("pH"), 0}, {QStringLiteral("ppm"), 1}, {QStringLiteral("Molar"), 2}, {QStringLiteral("mg/L"), 3},
    {QStringLiteral("%"), 4},  {QStringLiteral("ppb"), 5}, {QStringLiteral("None"), 6},  {QStringLiteral("RmV"), 7},
};

const ColumnTable &ElectrodeSetupModel::columnTable()
{
    static const ColumnTable table({
        {"id", "integer primary key", "id", ColumnSpec::AsIs},
        {"electrodeName", "varchar(30)", "electrodeName", ColumnSpec::AsText},
        {"electrodeType", "varchar(30)", "electrodeType", ColumnSpec::AsText},
        {"bufferGroup", "varchar(30)", "bufferGroup", ColumnSpec::AsText},
        {"resolution", "varchar(30)", "resolution", ColumnSpec::AsText},
        {"iseType", "varchar(30)", "iseType", ColumnSpec::AsText},
        {"significantDigits", "varchar(30)", "significantDigits", ColumnSpec::AsText},
        {"methodId", "integer UNIQUE", "methodId", ColumnSpec::AsIs},
        {"directMeasureUnit", "varchar(30)", "directMeasureUnit", ColumnSpec::AsText},
        {"mcreatedAt", "DATETIME", "mcreatedAt", ColumnSpec::AsIs},
        {"mupdatedAt", "DATETIME", "mupdatedAt", ColumnSpec::AsIs},
    });
    return table;
}

ElectrodeSetupModel::ElectrodeSetupModel(QObject *parent)
    : QObject(parent)
{
    m_electrodeName.clear();
    m_bufferGroup = QStringLiteral("USA");
    m_resolution = 0.001f;
    m_iseType = QStringLiteral("Ammonia (NH3)");
    m_significantDigits = 4;
    m_methodId = 0;
    setElectrodeType(QStringLiteral("pH"));
    setDirectMeasureUnit(QStringLiteral("pH"));
    createTables();
}

bool ElectrodeSetupModel::createTables()
{
    const bool live = DbUtil::execText(columnTable().createSql(tableName, true));
    const bool staging = DbUtil::execText(columnTable().createSql(tableName + QStringLiteral("_import"), true));
    return live && staging;
}

bool ElectrodeSetupModel::migrate(const QString &fromVersion)
{
    MigrationFrame frame;
    frame.modelName = QStringLiteral("ElectrodeSetupModel");
    frame.noMigrateList = noMigrateList;
    return frame.run(fromVersion);
}

int ElectrodeSetupModel::lookupIndex(const QMap<QString, int> &map, const QString &name)
{
    if (name.isEmpty()) {
        qDebug() << "name is empty";
        return 0;
    }
    const QString key = name.section(QLatin1Char('('), 0, 0).simplified();
    return map.value(key, 0);
}

void ElectrodeSetupModel::setId(int id)
{
    if (m_id == id)
        return;
    m_id = id;
    emit idChanged();
}

void ElectrodeSetupModel::setElectrodeType(const QString &type)
{
    m_electrodeType = type;
    m_electrodeIndex = lookupIndex(electrodeIndexMap, type);
    if (m_electrodeIndex > 1) {
        const int ise = lookupIndex(electrodeIndexMap, m_iseType);
        if (ise > 1)
            m_electrodeIndex = ise;
    }
    emit valueChanged();
}

void ElectrodeSetupModel::setIseType(const QString &type)
{
    m_iseType = type;
    if (m_electrodeIndex >= 2) {
        const int ise = lookupIndex(electrodeIndexMap, type);
        if (ise > 1)
            m_electrodeIndex = ise;
    }
    emit valueChanged();
}

void ElectrodeSetupModel::setDirectMeasureUnit(const QString &unit)
{
    m_directMeasureUnit = unit;
    m_directMeasureUnitIndex = lookupIndex(directMeasureUnitIndexMap, unit);
    emit valueChanged();
}

bool ElectrodeSetupModel::setElectrodeSetupValues()
{
    QSqlQuery select;
    select.prepare(QStringLiteral("SELECT * FROM electrodeSetupTable WHERE methodId=:methodId"));
    select.bindValue(QStringLiteral(":methodId"), m_methodId);
    if (!DbUtil::exec(select))
        return false;
    const bool exists = select.next();
    const bool isPh = m_electrodeType == QLatin1String("pH");
    const bool isRedox = m_electrodeType == QLatin1String("Redox");

    if (exists) {
        setId(select.value(QStringLiteral("id")).toInt());
        select.finish();
        setMupdatedAt(QDateTime::currentDateTime());
        const QStringList columns{QStringLiteral("electrodeName"), QStringLiteral("electrodeType"),
                                  QStringLiteral("bufferGroup"), QStringLiteral("resolution"),
                                  QStringLiteral("iseType"), QStringLiteral("significantDigits"),
                                  QStringLiteral("methodId"), QStringLiteral("directMeasureUnit"),
                                  QStringLiteral("mupdatedAt")};
        QSqlQuery update;
        update.prepare(columnTable().updateSql(tableName, columns, QStringLiteral("id")));
        columnTable().bindFrom(this, update, columns);
        // What a type does not use is blanked in the row.
        if (!isPh) {
            update.bindValue(QStringLiteral(":bufferGroup"), QString());
            update.bindValue(QStringLiteral(":resolution"), QStringLiteral(".001"));
        }
        if (isRedox)
            update.bindValue(QStringLiteral(":iseType"), QString());
        if (isPh || isRedox)
            update.bindValue(QStringLiteral(":significantDigits"), QStringLiteral("4"));
        update.bindValue(QStringLiteral(":where_id"), m_id);
        return DbUtil::exec(update);
    }

    select.finish();
    const QDateTime now = QDateTime::currentDateTime();
    setMcreatedAt(now);
    setMupdatedAt(now);
    QStringList columns{QStringLiteral("electrodeName"), QStringLiteral("electrodeType"), QStringLiteral("methodId"),
                        QStringLiteral("directMeasureUnit"), QStringLiteral("mcreatedAt"), QStringLiteral("mupdatedAt")};
    if (isPh)
        columns << QStringLiteral("bufferGroup") << QStringLiteral("resolution") << QStringLiteral("iseType")
                << QStringLiteral("significantDigits");
    else if (!isRedox)
        columns << QStringLiteral("iseType") << QStringLiteral("significantDigits");
    QSqlQuery insert;
    insert.prepare(columnTable().insertSql(tableName, columns));
    columnTable().bindFrom(this, insert, columns);
    if (!DbUtil::exec(insert))
        return false;
    setId(insert.lastInsertId().toInt());
    return true;
}

bool ElectrodeSetupModel::insertStaged(const QString &suffix)
{
    const QStringList columns{QStringLiteral("electrodeName"), QStringLiteral("electrodeType"),
                              QStringLiteral("bufferGroup"), QStringLiteral("resolution"),
                              QStringLiteral("iseType"), QStringLiteral("significantDigits"),
                              QStringLiteral("methodId"), QStringLiteral("directMeasureUnit"),
                              QStringLiteral("mcreatedAt"), QStringLiteral("mupdatedAt")};
    return columnTable().insertRow(this, tableName + suffix, columns);
}

void ElectrodeSetupModel::resetElectrodeValues()
{
    setElectrodeName(QString());
    setBufferGroup(QStringLiteral("USA"));
    setResolution(0.001f);
    setIseType(QStringLiteral("Ammonia (NH3)"));
    setSignificantDigits(4);
    setDirectMeasureUnit(QStringLiteral("ppm"));
}

bool ElectrodeSetupModel::updateElectrodeSetupModel(int methodId, const QString &suffix)
{
    QSqlQuery query;
    query.prepare(QStringLiteral("SELECT *  FROM electrodeSetupTable%1 WHERE methodId=:ID").arg(suffix));
    query.bindValue(QStringLiteral(":ID"), methodId);
    if (!query.exec()) {
        qDebug() << "query err " << query.lastError().text();
    } else if (query.next()) {
        columnTable().loadInto(this, query.record());
        // The type again, now that the ISE type of the row is known.
        setElectrodeType(m_electrodeType);
        return true;
    }
    setElectrodeType(QStringLiteral("pH"));
    setBufferGroup(QStringLiteral("USA"));
    setIseType(QStringLiteral("Ammonia (NH3)"));
    return false;
}

int ElectrodeSetupModel::makeIdUnique()
{
    setId(ColumnTable::firstFreeId(tableName, m_id));
    return m_id;
}
