#include "loglists.h"

#include "models/logtables.h"

#include <QDebug>
#include <QSqlQuery>

namespace {

const QString kTitration = QStringLiteral("TITRATION");
const QString kStandardisation = QStringLiteral("STANDARDIZATION");
const QString kCalibration = QStringLiteral("CALIBRATION");
const QString kMeasurement = QStringLiteral("MEASUREMENT");

// A fetch whose rows also go into a view model as they come.
template <class Entry, class Signal>
std::unique_ptr<LogListFetch<Entry>> makeFetch(LogLists *owner, ObjectListModel *view, Signal changed,
                                               typename LogListFetch<Entry>::Build build)
{
    auto fetch = std::make_unique<LogListFetch<Entry>>(std::move(build), std::function<void()>());
    LogListFetch<Entry> *raw = fetch.get();
    fetch->setChanged([owner, view, raw, changed] {
        view->append(raw->list().last());
        emit(owner->*changed)();
    });
    return fetch;
}

} // namespace

LogLists::LogLists(QObject *parent)
    : QObject(parent)
    , m_titrationView(new ObjectListModel(this))
    , m_standView(new ObjectListModel(this))
    , m_calibrationView(new ObjectListModel(this))
    , m_measurementView(new ObjectListModel(this))
{
    m_titration = makeFetch<TitrationLogModel>(this, m_titrationView, &LogLists::titrationChanged, [](const QSqlRecord &row) {
        auto *entry = new TitrationLogModel();
        entry->loadFromRecord(row);
        entry->setCount(entry->id());
        return entry;
    });
    m_stand = makeFetch<StandardisationLogModel>(this, m_standView, &LogLists::standardisationChanged,
                                                 [](const QSqlRecord &row) {
                                                     auto *entry = new StandardisationLogModel();
                                                     entry->loadFromRecord(row);
                                                     return entry;
                                                 });
    m_calibration = makeFetch<CalibrationLogModel>(this, m_calibrationView, &LogLists::calibrationChanged,
                                                   [](const QSqlRecord &row) {
                                                       auto *entry = new CalibrationLogModel();
                                                       entry->loadFromRecord(row);
                                                       entry->refreshSlope();
                                                       return entry;
                                                   });
    // The newest reading has the highest number.
    m_measurement = makeFetch<MeasurementLogModel>(this, m_measurementView, &LogLists::measurementChanged,
                                                   [this](const QSqlRecord &row) {
                                                       auto *entry = new MeasurementLogModel();
                                                       entry->loadFromRecord(row);
                                                       entry->measurementModel()->setSno(m_measurementRows--);
                                                       return entry;
                                                   });
}

LogLists::~LogLists() = default;

void LogLists::start(const QString &process)
{
    if (process == kTitration) {
        m_titrationView->reset(QList<QObject *>());
        m_titration->start(TitrationLogModel::newestFirstSql());
    } else if (process == kStandardisation) {
        m_standView->reset(QList<QObject *>());
        m_stand->start(StandardisationLogModel::newestFirstSql());
    } else if (process == kCalibration) {
        m_calibrationView->reset(QList<QObject *>());
        m_calibration->start(CalibrationLogModel::newestFirstSql());
    } else if (process == kMeasurement) {
        m_measurementView->reset(QList<QObject *>());
        m_measurementRows = 0;
        m_measurement->start(MeasurementLogModel::newestFirstSql(), [this](QSqlQuery &query) {
            if (query.last())
                m_measurementRows = query.at() + 1;
            query.first();
            query.previous();
        });
    } else {
        qDebug() << "Error::::Invalid Process Type Selected";
    }
}

bool LogLists::running(const QString &process) const
{
    if (process == kTitration)
        return m_titration->running();
    if (process == kStandardisation)
        return m_stand->running();
    if (process == kCalibration)
        return m_calibration->running();
    if (process == kMeasurement)
        return m_measurement->running();
    return false;
}

void LogLists::stop(const QString &process)
{
    if (process == kTitration)
        m_titration->stop();
    else if (process == kStandardisation)
        m_stand->stop();
    else if (process == kCalibration)
        m_calibration->stop();
    else if (process == kMeasurement)
        m_measurement->stop();
}

bool LogLists::anyRow() const
{
    return LogTables::anyLogRow();
}

int LogLists::rows(int log)
{
    if (log >= LogTables::Titration && log <= LogTables::Measurement)
        m_count = qMax(0, LogTables::rowCount(LogTables::Log(log)));
    return m_count;
}

bool LogLists::deleteLog(const QString &process)
{
    bool ok = false;
    if (process == kTitration)
        ok = LogTables::deleteTitrationLog();
    else if (process == kStandardisation)
        ok = LogTables::deleteTitrantLog();
    else if (process == kCalibration)
        ok = LogTables::deleteCalibrationLog();
    else if (process == kMeasurement)
        ok = LogTables::deleteMeasurementLog();
    stop(process);
    return ok;
}
