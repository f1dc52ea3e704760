#include "logrecords.h"

#include <QDebug>
#include <QProcess>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

namespace {

void run(const QString &sql)
{
    QSqlQuery q;
    if (!q.exec(sql))
        qDebug() << "log records:" << q.lastError().text() << sql;
}

int insert(const QString &table, const QVariantMap &row)
{
    QStringList names;
    QStringList marks;
    for (auto it = row.begin(); it != row.end(); ++it) {
        names << it.key();
        marks << QLatin1Char(':') + it.key();
    }
    QSqlQuery q;
    q.prepare(QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)").arg(table, names.join(QLatin1Char(',')), marks.join(QLatin1Char(','))));
    for (auto it = row.begin(); it != row.end(); ++it)
        q.bindValue(QLatin1Char(':') + it.key(), it.value());
    if (!q.exec()) {
        qDebug() << "log records:" << q.lastError().text() << table;
        return -1;
    }
    return q.lastInsertId().toInt();
}

} // namespace

void LogRecords::createTables()
{
    run(QStringLiteral("CREATE TABLE IF NOT EXISTS titrationTable (id integer primary key AUTOINCREMENT, "
                       "titrationType varchar(30), titrationDateTime varchar(30), methodName varchar(30), "
                       "titrantName varchar(30), titrantPercentage float, sensorName varchar(30), cycleno integer, "
                       "methodId integer, mcreatedAt DATETIME, mupdatedAt DATETIME)"));
    run(QStringLiteral("CREATE TABLE IF NOT EXISTS titrationCycleTable (id integer primary key AUTOINCREMENT, "
                       "cycleNo integer, sampleId varchar(30), calcon varchar(50), "
                       "inclInAvg BOOLEAN NOT NULL CHECK (inclInAvg IN (0,1)), titrationId integer, "
                       "graphPoints varchar(400), mcreatedAt DATETIME, mupdatedAt DATETIME)"));
    run(QStringLiteral("CREATE TABLE IF NOT EXISTS mkaTitrationCycleTable (id integer primary key AUTOINCREMENT, "
                       "cycleNo integer, titrationID integer, avgCalconc float, mcreatedAt DATETIME)"));
    run(QStringLiteral("CREATE TABLE IF NOT EXISTS mkaAdditionTable (id integer primary key AUTOINCREMENT, "
                       "additionNo integer, cycleNo integer, titrationID integer, volume float, mcreatedAt DATETIME)"));
    run(QStringLiteral("CREATE TABLE IF NOT EXISTS calibrationTable (id integer primary key AUTOINCREMENT, "
                       "electrodeSetupId varchar(30), electrodeName varchar(30), electrodeType varchar(30), "
                       "bufferGroup varchar(30), resolution varchar(30), iseType varchar(30), "
                       "significantDigits varchar(30), directMeasureUnit varchar(30), methodId varchar(30), "
                       "calNo varchar(30), sampleId varchar(30), stirSpeed varchar(30), mcreatedAt DATETIME, "
                       "mupdatedAt DATETIME, avgSlope DOUBLE)"));
    run(QStringLiteral("CREATE TABLE IF NOT EXISTS calibrationCycleTable (id integer primary key AUTOINCREMENT, "
                       "calibrationID varchar(30), timestamp varchar(30), voltage varchar(30), volume varchar(30), "
                       "slope varchar(30), calValue varchar(30), temperature varchar(30), cycleNo int, offset float, "
                       "temperatureMode varchar(10), resolution int, mcreatedAt DATETIME, mupdatedAt DATETIME, "
                       "buffer float)"));
}

QVariantMap LogRecords::addRun(const QString &type, const QString &electrodeType, int cycles, int methodId,
                               const QString &methodName)
{
    const QDateTime now = QDateTime::currentDateTime();
    QVariantMap row{{QStringLiteral("titrationType"), type},
                    {QStringLiteral("titrationDateTime"), now.toString(QStringLiteral("hh:mm AP | MM/dd/yyyy"))},
                    {QStringLiteral("methodName"), methodName},
                    {QStringLiteral("titrantName"), QStringLiteral("NaOH")},
                    {QStringLiteral("titrantPercentage"), 12.5f},
                    {QStringLiteral("sensorName"), QStringLiteral("pH 3in1")},
                    {QStringLiteral("cycleno"), cycles},
                    {QStringLiteral("methodId"), methodId},
                    {QStringLiteral("mcreatedAt"), now},
                    {QStringLiteral("mupdatedAt"), now}};
    const int id = insert(QStringLiteral("titrationTable"), row);
    row.insert(QStringLiteral("id"), id);
    for (int c = 1; c <= cycles; ++c) {
        if (electrodeType == QLatin1String("ISE-MKA")) {
            insert(QStringLiteral("mkaTitrationCycleTable"),
                   {{QStringLiteral("cycleNo"), c}, {QStringLiteral("titrationID"), id}, {QStringLiteral("avgCalconc"), 1.5}});
            for (int a = 1; a <= 2; ++a)
                insert(QStringLiteral("mkaAdditionTable"), {{QStringLiteral("additionNo"), a}, {QStringLiteral("cycleNo"), c},
                                                            {QStringLiteral("titrationID"), id}, {QStringLiteral("volume"), 0.5 * a}});
        } else {
            insert(QStringLiteral("titrationCycleTable"),
                   {{QStringLiteral("cycleNo"), c}, {QStringLiteral("sampleId"), QStringLiteral("S%1").arg(c)},
                    {QStringLiteral("calcon"), QStringLiteral("0.1021")}, {QStringLiteral("inclInAvg"), 1},
                    {QStringLiteral("titrationId"), id}, {QStringLiteral("graphPoints"), QStringLiteral("(0.000|7.00),(1.000|8.20)")}});
        }
    }
    return row;
}

QVariantMap LogRecords::addCalibration(const QString &electrodeType, int points, double avgSlope)
{
    const QDateTime now = QDateTime::currentDateTime();
    QVariantMap row{{QStringLiteral("electrodeName"), QStringLiteral("pH 3in1")},
                    {QStringLiteral("electrodeType"), electrodeType},
                    {QStringLiteral("bufferGroup"), QStringLiteral("USA")},
                    {QStringLiteral("resolution"), QStringLiteral("0.01")},
                    {QStringLiteral("iseType"), QString("")},
                    {QStringLiteral("significantDigits"), QStringLiteral("4")},
                    {QStringLiteral("directMeasureUnit"), QStringLiteral("pH")},
                    {QStringLiteral("calNo"), QString::number(points)},
                    {QStringLiteral("sampleId"), QStringLiteral("None")},
                    {QStringLiteral("stirSpeed"), QStringLiteral("3")},
                    {QStringLiteral("mcreatedAt"), now},
                    {QStringLiteral("mupdatedAt"), now},
                    {QStringLiteral("avgSlope"), avgSlope}};
    const int id = insert(QStringLiteral("calibrationTable"), row);
    row.insert(QStringLiteral("id"), id);
    for (int p = 0; p < points; ++p)
        insert(QStringLiteral("calibrationCycleTable"),
               {{QStringLiteral("calibrationID"), QString::number(id)}, {QStringLiteral("voltage"), QString::number(170 - 59 * p)},
                {QStringLiteral("offset"), 2.0 * (p + 1)}, {QStringLiteral("mcreatedAt"), now}});
    return row;
}

int LogRecords::addReport(const QString &reportType, const char *idColumn, int id)
{
    QVariantMap row{{QStringLiteral("reportType"), reportType}, {QStringLiteral("titrationId"), 0},
                    {QStringLiteral("standardizationId"), 0},   {QStringLiteral("measurementId"), 0},
                    {QStringLiteral("calibrationId"), 0},       {QStringLiteral("reportString"), QStringLiteral("[]")},
                    {QStringLiteral("mcreatedAt"), QDateTime::currentDateTime()}};
    row.insert(QLatin1String(idColumn), id);
    return insert(QStringLiteral("reportSetupTable"), row);
}

QVariantMap LogRecords::measurement(bool stable, double value)
{
    return {{QStringLiteral("readMode"), QStringLiteral("pH")},
            {QStringLiteral("iseType"), QString("")},
            {QStringLiteral("stirSpeed"), QStringLiteral("Medium")},
            {QStringLiteral("sampleId"), QStringLiteral("Manual")},
            {QStringLiteral("sampleIdValue"), QStringLiteral("Tank 4")},
            {QStringLiteral("significantDigit"), 4},
            {QStringLiteral("directMeasurementUnit"), QStringLiteral("pH")},
            {QStringLiteral("scaledValue"), value},
            {QStringLiteral("mv"), -1.5},
            {QStringLiteral("sensorName"), QStringLiteral("pH 3in1")},
            {QStringLiteral("temperature"), 24.5f},
            {QStringLiteral("isAtc"), true},
            {QStringLiteral("resolution"), 0.01f},
            {QStringLiteral("calLogId"), 3},
            {QStringLiteral("calAvg"), 98.5},
            {QStringLiteral("calDateTime"), QDateTime(QDate(2025, 6, 1), QTime(9, 30))},
            {QStringLiteral("stability"), stable}};
}

QString LogRecords::sqlite(const QString &file, const QString &sql)
{
    QProcess p;
    p.start(QStringLiteral("sqlite3"), {file, sql});
    p.waitForFinished(30000);
    return QString::fromUtf8(p.readAllStandardOutput()).trimmed();
}

int LogRecords::sqliteCount(const QString &file, const QString &sql)
{
    bool ok = false;
    const int n = sqlite(file, sql).toInt(&ok);
    return ok ? n : -1;
}
