#include "models/logsnapshot.h"

#include "models/dbutil.h"
#include "models/electrodesetupmodel.h"
#include "models/methodmodel.h"
#include "models/titrantsetupmodel.h"
#include "models/titrationmodel.h"
#include "models/titrationsetupmodel.h"

#include <QDebug>
#include <QSqlError>
#include <QSqlQuery>

LogSourceRows LogSnapshot::methodRows(const MethodModel *method)
{
    LogSourceRows rows;
    if (!method)
        return rows;
    rows.insert(LogBlock::Method, LogLayout::rowOf(method, MethodModel::columnTable()));
    rows.insert(LogBlock::Electrode, LogLayout::rowOf(method->electrodeSetupModel(), ElectrodeSetupModel::columnTable()));
    rows.insert(LogBlock::Titrant, LogLayout::rowOf(method->titrantSetupModel(), TitrantSetupModel::columnTable()));
    rows.insert(LogBlock::TitrationSetup, LogLayout::rowOf(method->titrationSetupModel(), TitrationSetupModel::columnTable()));
    return rows;
}

QVariantMap LogSnapshot::runRow(const MethodModel *method, const QVariantMap &unwritten)
{
    const TitrationModel *run = method ? method->titrationModel() : nullptr;
    if (!run || run->id() <= 0)
        return unwritten;
    return LogLayout::rowOf(run, TitrationModel::columnTable());
}

QVariantMap LogSnapshot::lastCalibration(const QString &electrodeType)
{
    QVariantMap calibration;
    if (!DbUtil::tableExists(QStringLiteral("calibrationTable")))
        return calibration;
    QSqlQuery last;
    last.prepare(QStringLiteral("Select id,avgSlope,mcreatedAt from calibrationTable where electrodeType = :electrodetype "
                                "order by datetime(mcreatedAt) DESC"));
    last.bindValue(QStringLiteral(":electrodetype"), electrodeType);
    if (!DbUtil::exec(last) || !last.next())
        return calibration;
    const QVariant id = last.value(0);
    calibration.insert(QStringLiteral("id"), id);
    calibration.insert(QStringLiteral("avgSlope"), last.value(1).toDouble());
    calibration.insert(QStringLiteral("mcreatedAt"), last.value(2));
    double sum = 0.0;
    int n = 0;
    if (DbUtil::tableExists(QStringLiteral("calibrationCycleTable"))) {
        QSqlQuery offsets;
        offsets.prepare(QStringLiteral("Select offset from calibrationCycleTable where calibrationID = :calId"));
        offsets.bindValue(QStringLiteral(":calId"), id.toString());
        if (DbUtil::exec(offsets)) {
            while (offsets.next()) {
                sum += offsets.value(0).toDouble();
                ++n;
            }
        }
    }
    calibration.insert(QStringLiteral("avgOffset"), n > 0 ? static_cast<float>(sum / n) : 0.0f);
    return calibration;
}

int LogSnapshot::insert(const LogLayout &layout, const QString &table, const LogSourceRows &rows, const char *errorText)
{
    QSqlQuery insert;
    if (!insert.prepare(layout.insertSql(table))) {
        qDebug() << errorText << insert.lastError().text();
        return -1;
    }
    layout.bind(insert, rows);
    if (!insert.exec()) {
        qDebug() << errorText << insert.lastError().text();
        return -1;
    }
    return insert.lastInsertId().toInt();
}

QVariantMap LogSnapshot::blockValues(const LogLayout &layout, const QSqlRecord &row, LogBlock block)
{
    const QSqlRecord record = layout.blockRecord(row, block);
    QVariantMap values;
    for (int i = 0; i < record.count(); ++i)
        values.insert(record.fieldName(i), record.value(i));
    return values;
}

QVariantMap LogSnapshot::storedCalibration(const LogLayout &layout, const QSqlRecord &row)
{
    QVariantMap values = blockValues(layout, row, LogBlock::Calibration);
    const int id = values.value(QStringLiteral("id")).toInt();
    QSqlQuery slope;
    if (id != 0 && DbUtil::tableExists(QStringLiteral("calibrationTable"))
        && slope.prepare(QStringLiteral("Select avgSlope from calibrationTable where id = :id"))) {
        slope.bindValue(QStringLiteral(":id"), id);
        if (DbUtil::exec(slope) && slope.next())
            values.insert(QStringLiteral("avgSlope"), slope.value(0).toDouble());
    }
    return values;
}

void LogSnapshot::loadParts(const LogLayout &layout, const QSqlRecord &row, MethodModel *method,
                            ElectrodeSetupModel *electrode, TitrantSetupModel *titrant, TitrationSetupModel *titration)
{
    if (method)
        MethodModel::columnTable().loadInto(method, layout.blockRecord(row, LogBlock::Method));
    if (electrode)
        ElectrodeSetupModel::columnTable().loadInto(electrode, layout.blockRecord(row, LogBlock::Electrode));
    if (titrant)
        TitrantSetupModel::columnTable().loadInto(titrant, layout.blockRecord(row, LogBlock::Titrant));
    if (titration)
        TitrationSetupModel::columnTable().loadInto(titration, layout.blockRecord(row, LogBlock::TitrationSetup));
}

bool LogSnapshot::deleteRow(const QString &table, int id)
{
    QSqlQuery query;
    query.prepare(QStringLiteral("DELETE FROM %1 WHERE id=:ID").arg(table));
    query.bindValue(QStringLiteral(":ID"), id);
    return DbUtil::exec(query);
}

QString LogSnapshot::newestFirstSql(const QString &table, const QString &columns)
{
    return QStringLiteral("SELECT %1 FROM %2 order by datetime(logCreatedAt) DESC, id DESC").arg(columns, table);
}

QList<QSqlRecord> LogSnapshot::newestFirstRows(const QString &sql)
{
    QList<QSqlRecord> rows;
    QSqlQuery query;
    if (!DbUtil::exec(query, sql))
        return rows;
    while (query.next())
        rows.append(query.record());
    return rows;
}

