#include "models/reportmodel.h"

#include "models/dbtransaction.h"
#include "models/dbutil.h"
#include "models/migrationframe.h"
#include "system/clock.h"

#include <QDebug>
#include <QSqlQuery>

const QString ReportModel::tableName = QStringLiteral("reportSetupTable");
QStringList ReportModel::noMigrateList = {QStringLiteral("1.6"), QStringLiteral("1.7")};

const ColumnTable &ReportModel::columnTable()
{
    static const ColumnTable table({
        {"id", "integer primary key AUTOINCREMENT", "id", ColumnSpec::AsIs},
        {"reportType", "varchar(20)", "reportType", ColumnSpec::AsIs},
        {"titrationId", "integer", "titrationId", ColumnSpec::AsIs},
        {"reportString", "varchar(20000)", "reportString", ColumnSpec::AsIs},
        {"cycleImage1", "BLOB", "cycleImage1", ColumnSpec::AsIs},
        {"cycleImage2", "BLOB", "cycleImage2", ColumnSpec::AsIs},
        {"cycleImage3", "BLOB", "cycleImage3", ColumnSpec::AsIs},
        {"cycleImage4", "BLOB", "cycleImage4", ColumnSpec::AsIs},
        {"cycleImage5", "BLOB", "cycleImage5", ColumnSpec::AsIs},
        {"logTimeStamp", "DATETIME", "logTimeStamp", ColumnSpec::AsIs},
        {"graphString", "varchar(2000)", "graphString", ColumnSpec::AsIs},
        {"mcreatedAt", "DATETIME", "mcreatedAt", ColumnSpec::AsIs},
        {"mupdatedAt", "DATETIME", "mupdatedAt", ColumnSpec::AsIs},
        {"measurementId", "integer", "measurementId", ColumnSpec::AsIs},
        {"calibrationId", "integer", "calibrationId", ColumnSpec::AsIs},
        {"dateFormat", "integer", "dateFormat", ColumnSpec::AsIs},
        {"timeFormat", "integer", "timeFormat", ColumnSpec::AsIs},
        {"standardizationId", "integer", "standardizationId", ColumnSpec::AsIs},
    });
    return table;
}

ReportModel::ReportModel(QObject *parent)
    : QObject(parent)
{
    createTable();
}

bool ReportModel::createTable()
{
    return DbUtil::execText(columnTable().createSql(tableName, true));
}

bool ReportModel::migrate(const QString &fromVersion)
{
    MigrationFrame frame;
    frame.modelName = QStringLiteral("ReportModel");
    frame.noMigrateList = noMigrateList;
    frame.handledVersions = DbUtil::versionRange(QStringLiteral("1.1"), QStringLiteral("1.5"));
    frame.step = [](const QString &from) {
        if (DbUtil::versionRange(QStringLiteral("1.1"), QStringLiteral("1.3")).contains(from))
            return DbUtil::execText(QStringLiteral("DROP TABLE reportSetupTable"));
        // The runs these reports point to were dropped in the same step.
        DbTransaction unit;
        const bool ok = DbUtil::execText(QStringLiteral("ALTER TABLE reportSetupTable ADD COLUMN standardizationId integer"))
            && DbUtil::execText(QStringLiteral("DELETE FROM reportSetupTable WHERE reportType='Titration'"))
            && DbUtil::execText(QStringLiteral("DELETE FROM reportSetupTable WHERE reportType='Standardization'"));
        return ok && unit.commit();
    };
    return frame.run(fromVersion);
}

QByteArray ReportModel::cycleImage(int n) const
{
    switch (n) {
    case 1: return m_cycleImage1;
    case 2: return m_cycleImage2;
    case 3: return m_cycleImage3;
    case 4: return m_cycleImage4;
    case 5: return m_cycleImage5;
    default: return QByteArray();
    }
}

void ReportModel::setCycleImage(int n, const QByteArray &png)
{
    switch (n) {
    case 1: setCycleImage1(png); break;
    case 2: setCycleImage2(png); break;
    case 3: setCycleImage3(png); break;
    case 4: setCycleImage4(png); break;
    case 5: setCycleImage5(png); break;
    default: break;
    }
}

void ReportModel::clearImages()
{
    for (int n = 1; n <= imageCount; ++n)
        setCycleImage(n, QByteArray());
}

bool ReportModel::setReportValues(int logId, const QString &reportType, const QDateTime &titrationTimeStamp)
{
    setTitrationId(logId);
    setStandardizationId(logId);
    setReportType(reportType);
    setLogTimeStamp(titrationTimeStamp);
    const QDateTime now = Clock::now();
    setMcreatedAt(now);
    setMupdatedAt(now);
    createTable();

    QString idColumn;
    if (reportType == QLatin1String("Titration"))
        idColumn = QStringLiteral("titrationId");
    else if (reportType == QLatin1String("Standardization"))
        idColumn = QStringLiteral("standardizationId");
    if (!idColumn.isEmpty()) {
        QSqlQuery find;
        find.prepare(QStringLiteral("SELECT id FROM reportSetupTable WHERE %1 = :logId ORDER BY id DESC").arg(idColumn));
        find.bindValue(QStringLiteral(":logId"), logId);
        if (!DbUtil::exec(find)) {
            setId(0);
            return false;
        }
        if (find.next()) {
            const int rowId = find.value(0).toInt();
            find.finish();
            const bool ok = updateRow(idColumn, logId);
            setId(ok ? rowId : 0);
            return ok;
        }
    }
    return insertRow(logId);
}

bool ReportModel::insertRow(int logId)
{
    // QML clears an image by assigning 0, which arrives as the text "0".
    for (int n = 1; n <= imageCount; ++n) {
        if (cycleImage(n) == "0")
            setCycleImage(n, QByteArray());
    }
    QSqlQuery insert;
    insert.prepare(QStringLiteral(
        "INSERT INTO reportSetupTable (reportType, titrationId, reportString, cycleImage1, cycleImage2, cycleImage3, "
        "cycleImage4, cycleImage5, logTimeStamp, graphString, mcreatedAt, mupdatedAt, measurementId, calibrationId, "
        "dateFormat, timeFormat, standardizationId) VALUES (:reportType, :titrationId, :reportString, :cycleImage1, "
        ":cycleImage2, :cycleImage3, :cycleImage4, :cycleImage5, :logTimeStamp, :graphString, :mcreatedAt, :mupdatedAt, "
        ":measurementId, :calibrationId, :dateFormat, :timeFormat, :standardizationId)"));
    auto idFor = [&](const char *type) { return m_reportType == QLatin1String(type) ? logId : 0; };
    insert.bindValue(QStringLiteral(":reportType"), m_reportType);
    insert.bindValue(QStringLiteral(":titrationId"), idFor("Titration"));
    insert.bindValue(QStringLiteral(":reportString"), m_reportString);
    for (int n = 1; n <= imageCount; ++n)
        insert.bindValue(QStringLiteral(":cycleImage%1").arg(n), cycleImage(n));
    insert.bindValue(QStringLiteral(":logTimeStamp"), m_logTimeStamp);
    insert.bindValue(QStringLiteral(":graphString"), m_graphString);
    insert.bindValue(QStringLiteral(":mcreatedAt"), m_mcreatedAt);
    insert.bindValue(QStringLiteral(":mupdatedAt"), m_mupdatedAt);
    insert.bindValue(QStringLiteral(":measurementId"), idFor("Measurement"));
    insert.bindValue(QStringLiteral(":calibrationId"), idFor("Calibration"));
    insert.bindValue(QStringLiteral(":dateFormat"), m_dateFormat);
    insert.bindValue(QStringLiteral(":timeFormat"), m_timeFormat);
    insert.bindValue(QStringLiteral(":standardizationId"), idFor("Standardization"));
    if (!DbUtil::exec(insert)) {
        qDebug() << "ReportModel: the" << m_reportType << "report of log entry" << logId << "was not stored";
        setId(0);
        return false;
    }
    setId(insert.lastInsertId().toInt());
    return true;
}

bool ReportModel::updateRow(const QString &idColumn, int logId)
{
    QSqlQuery update;
    update.prepare(QStringLiteral("UPDATE reportSetupTable SET reportString = :reportString, mcreatedAt = :mcreatedAt, "
                                  "mupdatedAt = :mupdatedAt, dateFormat = :dateFormat, timeFormat = :timeFormat "
                                  "WHERE %1 = :logId")
                       .arg(idColumn));
    update.bindValue(QStringLiteral(":reportString"), m_reportString);
    update.bindValue(QStringLiteral(":mcreatedAt"), m_mcreatedAt);
    update.bindValue(QStringLiteral(":mupdatedAt"), m_mupdatedAt);
    update.bindValue(QStringLiteral(":dateFormat"), m_dateFormat);
    update.bindValue(QStringLiteral(":timeFormat"), m_timeFormat);
    update.bindValue(QStringLiteral(":logId"), logId);
    if (!DbUtil::exec(update)) {
        qDebug() << "ReportModel: the" << m_reportType << "report of log entry" << logId << "was not updated";
        return false;
    }
    return true;
}
