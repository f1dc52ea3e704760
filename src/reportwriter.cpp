#include "reportwriter.h"

#include "models/calibrationcyclemodel.h"
#include "models/calibrationmodel.h"
#include "models/dbutil.h"
#include "models/electrodesetupmodel.h"
#include "models/measurementlogmodel.h"
#include "models/measurementmodel.h"
#include "models/methodmodel.h"
#include "models/mkaadditionmodel.h"
#include "models/mkatitrationcyclemodel.h"
#include "models/reportmodel.h"
#include "models/standardisationlogmodel.h"
#include "models/titrantsetupmodel.h"
#include "models/titrationcyclemodel.h"
#include "models/titrationlogmodel.h"
#include "models/titrationsetupmodel.h"
#include "reports/meterreport.h"
#include "reports/reportrows.h"
#include "reports/standardisationreport.h"
#include "reports/titrationreport.h"

#include <QDebug>
#include <QSqlQuery>
#include <QSqlRecord>

#include <memory>

namespace {
// One row by id, or an empty record.
QSqlRecord rowById(const QString &table, int id)
{
    QSqlQuery query;
    query.prepare(QStringLiteral("SELECT * FROM %1 WHERE id = :id").arg(table));
    query.bindValue(QStringLiteral(":id"), id);
    if (!DbUtil::exec(query) || !query.next())
        return QSqlRecord();
    return query.record();
}

// The rows of `table` whose `column` is `id`, in `order`, as models owned by `parent`.
template <class Entry>
QList<const QObject *> childRows(const QString &table, const QString &column, int id, const QString &order, QObject *parent)
{
    QList<const QObject *> list;
    QSqlQuery query;
    query.prepare(QStringLiteral("SELECT * FROM %1 WHERE %2 = :id ORDER BY %3").arg(table, column, order));
    query.bindValue(QStringLiteral(":id"), id);
    if (!DbUtil::exec(query))
        return list;
    while (query.next())
        list.append(Entry::fromRecord(query.record(), parent));
    return list;
}

// What a run's report starts from, common to a titration's and a
// standardisation's log entry: the method's parts as they were, the run, the
// calibration and the summary's figures.
template <class LogEntry>
RunReportSource sourceOf(const LogEntry *entry, const QString &avgConc, const QString &rsd)
{
    RunReportSource source;
    source.method = entry->methodModel();
    source.electrode = entry->electrodeSetupModel();
    source.titrant = entry->titrantSetupModel();
    source.run = entry->runValues();
    source.calibration = entry->calibrationValues();
    source.avgConc = avgConc;
    source.rsd = rsd;
    return source;
}

QDateTime lastBlankInput(int methodId)
{
    QSqlQuery query;
    query.prepare(QStringLiteral("SELECT mupdatedAt FROM titrationTable WHERE titrationType = 'Direct Blank' AND methodId = :m "
                                 "ORDER BY id DESC LIMIT 1"));
    query.bindValue(QStringLiteral(":m"), methodId);
    return DbUtil::exec(query) && query.next() ? query.value(0).toDateTime() : QDateTime();
}
} // namespace

ReportWriter::ReportWriter(SettingsSource settings, StandardisedCheck standardised, QObject *parent)
    : QObject(parent)
    , m_model(new ReportModel(this))
    , m_settings(std::move(settings))
    , m_standardised(std::move(standardised))
{
}

void ReportWriter::fillSettings(RunReportSource &source) const
{
    const Settings s = m_settings ? m_settings() : Settings();
    source.instrumentName = s.instrumentName;
    source.dateFormat = s.dateFormat;
    source.timeFormat = s.timeFormat;
    source.temperatureFormat = s.temperatureFormat;
}

bool ReportWriter::write(int logId, const QString &type, const QDateTime &at)
{
    const Settings s = m_settings ? m_settings() : Settings();
    m_model->setDateFormat(s.dateFormat);
    m_model->setTimeFormat(s.timeFormat);
    return m_model->setReportValues(logId, type, at);
}

bool ReportWriter::storeRunReport(QObject *logEntry, const QString &sampleId)
{
    if (auto *t = qobject_cast<TitrationLogModel *>(logEntry))
        return storeTitration(t->id(), t->AvgConc(), t->rsd(), sampleId);
    if (auto *s = qobject_cast<StandardisationLogModel *>(logEntry))
        return storeStandardisation(s->id(), s->AvgConc(), s->RSD());
    return false;
}

bool ReportWriter::storeMeterReport(const QString &reportType, int id)
{
    // One report per calibration or reading: a log save that failed leaves
    // the id of the entry before it, whose report must not be doubled.
    const QString column = reportType == QLatin1String("Calibration") ? QStringLiteral("calibrationId") : QStringLiteral("measurementId");
    QSqlQuery existing;
    existing.prepare(QStringLiteral("SELECT count(*) FROM reportSetupTable WHERE %1 = :id").arg(column));
    existing.bindValue(QStringLiteral(":id"), id);
    if (id <= 0 || (DbUtil::exec(existing) && existing.next() && existing.value(0).toInt() > 0)) {
        qDebug() << "ReportWriter: the" << reportType << id << "has its report already, or no entry";
        return false;
    }
    existing.finish();
    if (reportType == QLatin1String("Calibration"))
        return storeCalibration(id);
    if (reportType == QLatin1String("Measurement"))
        return storeMeasurement(id);
    return false;
}

bool ReportWriter::storeTitration(int logId, const QString &avgConc, const QString &rsd, const QString &sampleId)
{
    const QSqlRecord row = rowById(TitrationLogModel::tableName, logId);
    if (row.isEmpty()) {
        qDebug() << "ReportWriter: no titration log entry" << logId;
        return false;
    }
    QObject owner;
    auto *entry = new TitrationLogModel(&owner);
    entry->loadFromRecord(row);
    RunReportSource source = sourceOf(entry, avgConc, rsd);
    source.titration = entry->titrationSetupModel();
    fillSettings(source);

    const int runId = source.run.value(QStringLiteral("id")).toInt();
    const int methodId = entry->methodModel()->id();
    const TitrantSetupModel *titrant = entry->titrantSetupModel();
    const int standardisationId = entry->standardisationId();
    if (standardisationId > 0) {
        const QSqlRecord s = rowById(StandardisationLogModel::tableName, standardisationId);
        source.standardisation = {{"id", standardisationId},
                                  {"AvgConc", s.value(QStringLiteral("AvgConc"))},
                                  {"nominalConc", s.value(QStringLiteral("titrantSetup_nominalConc"))},
                                  {"nominalConc_Unit", s.value(QStringLiteral("titrantSetup_nominalConc_Unit"))},
                                  {"resultUnits", s.value(QStringLiteral("titrantSetup_resultUnits"))},
                                  {"createdAt", s.value(QStringLiteral("logCreatedAt"))}};
    } else if (standardisationId < 0) {
        // A copied method: the standardisation of its original, as the titrant holds it.
        source.standardisation = {{"id", standardisationId},
                                  {"AvgConc", QString::number(titrant->titrantConcentrationValue(), 'g', 6)},
                                  {"nominalConc", titrant->nominalConc()},
                                  {"nominalConc_Unit", titrant->nominalConc_Unit()},
                                  {"resultUnits", titrant->resultUnits()},
                                  {"createdAt", titrant->mupdatedAt()}};
    }
    if (source.isMka())
        source.titrantConcentrationUnit = titrant->titrantConcentration();
    else
        source.titrantConcentrationUnit = m_standardised && m_standardised(methodId) ? titrant->concInputMode_Unit()
                                                                                     : titrant->nominalConc_Unit();
    source.lastBlankInput = lastBlankInput(methodId);

    QList<QByteArray> images;
    if (source.isMka()) {
        source.cycles = childRows<MKATitrationCycleModel>(QStringLiteral("mkaTitrationCycleTable"), QStringLiteral("titrationID"),
                                                          runId, QStringLiteral("cycleNo"), &owner);
        source.additions = childRows<MKAadditionModel>(QStringLiteral("mkaAdditionTable"), QStringLiteral("titrationID"), runId,
                                                       QStringLiteral("cycleNo, additionNo"), &owner);
    } else {
        source.cycles = childRows<TitrationCycleModel>(TitrationCycleModel::tableName, QStringLiteral("titrationId"), runId,
                                                       QStringLiteral("cycleNo"), &owner);
        for (const QObject *c : source.cycles)
            images << c->property("cycleImage").toByteArray();
    }
    // The id the run was made with: the summary's, else the one its cycles were stored with.
    source.sampleId = sampleId;
    if (source.sampleId.isEmpty() && !source.cycles.isEmpty())
        source.sampleId = source.cycles.last()->property("sampleId").toString();
    if (source.sampleId.isEmpty())
        source.sampleId = entry->titrationSetupModel()->sampleIDValue();
    const RunReportText text = TitrationReport(source).build();
    m_model->setReportString(text.reportString);
    m_model->setGraphString(text.graphString);
    m_model->clearImages();
    for (int n = 1; n <= ReportModel::imageCount && n <= images.size(); ++n)
        m_model->setCycleImage(n, images.at(n - 1));
    return write(logId, QStringLiteral("Titration"), source.run.value(QStringLiteral("mcreatedAt")).toDateTime());
}

bool ReportWriter::storeStandardisation(int logId, const QString &avgConc, const QString &rsd)
{
    const QSqlRecord row = rowById(StandardisationLogModel::tableName, logId);
    if (row.isEmpty()) {
        qDebug() << "ReportWriter: no standardisation log entry" << logId;
        return false;
    }
    QObject owner;
    auto *entry = new StandardisationLogModel(&owner);
    entry->loadFromRecord(row);
    RunReportSource source = sourceOf(entry, avgConc, rsd);
    fillSettings(source);
    const int runId = source.run.value(QStringLiteral("id")).toInt();
    source.cycles = childRows<TitrationCycleModel>(TitrationCycleModel::tableName, QStringLiteral("titrationId"), runId,
                                                   QStringLiteral("cycleNo"), &owner);
    const RunReportText text = StandardisationReport(source).build();
    m_model->setReportString(text.reportString);
    m_model->setGraphString(text.graphString);
    m_model->clearImages();
    for (int n = 1; n <= ReportModel::imageCount && n <= source.cycles.size(); ++n)
        m_model->setCycleImage(n, source.cycles.at(n - 1)->property("cycleImage").toByteArray());
    return write(logId, QStringLiteral("Standardization"), source.run.value(QStringLiteral("mcreatedAt")).toDateTime());
}

bool ReportWriter::storeCalibration(int calibrationId)
{
    const QSqlRecord row = rowById(CalibrationModel::tableName, calibrationId);
    if (row.isEmpty()) {
        qDebug() << "ReportWriter: no calibration" << calibrationId;
        return false;
    }
    QObject owner;
    auto *calibration = new CalibrationModel(&owner);
    calibration->load(row);
    const QList<const QObject *> points = childRows<CalibrationCycleModel>(
        CalibrationCycleModel::tableName, QStringLiteral("calibrationID"), calibrationId, QStringLiteral("id"), &owner);
    const Settings s = m_settings ? m_settings() : Settings();
    const MeterReport::Settings page{s.buildNumber, s.dateFormat, s.timeFormat, s.temperatureFormat};
    m_model->setReportString(ReportRows::meterText(MeterReport::calibration(calibration, points, page)));
    m_model->setGraphString(QString());
    m_model->clearImages();
    return write(calibrationId, QStringLiteral("Calibration"), calibration->mcreatedAt());
}

bool ReportWriter::storeMeasurement(int logId)
{
    const QSqlRecord row = rowById(MeasurementLogModel::tableName, logId);
    if (row.isEmpty()) {
        qDebug() << "ReportWriter: no measurement log entry" << logId;
        return false;
    }
    QObject owner;
    auto *entry = new MeasurementLogModel(&owner);
    entry->loadFromRecord(row);
    const Settings s = m_settings ? m_settings() : Settings();
    const MeterReport::Settings page{s.buildNumber, s.dateFormat, s.timeFormat, s.temperatureFormat};
    m_model->setReportString(ReportRows::meterText(MeterReport::measurement(entry->measurementModel(), entry->createdAt(), page)));
    m_model->setGraphString(QString());
    m_model->clearImages();
    return write(logId, QStringLiteral("Measurement"), entry->createdAt());
}
