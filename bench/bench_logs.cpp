// Cost of the end of a run in the database: saving a titration log entry with
// its copy of the method, its three setup parts, the calibration and the run,
// into a log at capacity (so the oldest entry goes with its run, cycles and
// report), and the prune alone. The database file is opened as the
// application opens it, with SQLite's default durability.
#include "logrecords.h"
#include "models/dbtransaction.h"
#include "models/logcapacity.h"
#include "models/measurementlogmodel.h"
#include "models/methodmodel.h"
#include "models/reportmodel.h"
#include "models/titrationlogmodel.h"
#include "testdatabase.h"

#include <QCoreApplication>
#include <QFile>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

#include <memory>

namespace {

// A log of titrations at capacity, as after months of use. The full file is
// made once per process and copied for every benchmark run.
class FullTitrationLog
{
public:
    FullTitrationLog() { m_log.setCurrentMethod(&m_method); }

    // A run with its cycles, its log entry and its report, as the end of a
    // titration leaves them.
    void prepareRun() { m_log.setRunValues(LogRecords::addRun(QStringLiteral("Titration"), QStringLiteral("pH"), 3)); }
    void save() { m_log.saveLogValues(false); }
    void addReport() { LogRecords::addReport(QStringLiteral("Titration"), "titrationId", m_log.id()); }
    void addEntry()
    {
        prepareRun();
        save();
        addReport();
    }
    static int count() { return LogCapacity::count(LogCapacity::titration.table); }
    bool ready() const { return m_copied && count() == LogCapacity::titration.capacity; }

private:
    // Puts the full file in place of the fresh one, before the models open it.
    static bool copyFull(TestDatabase &db, const QString &full)
    {
        if (full.isEmpty())
            return false;
        db.close();
        QFile::remove(db.path());
        const bool copied = QFile::copy(full, db.path());
        return db.open() && copied;
    }

    // The filled file, or "" when it could not be made.
    static QString fullFile()
    {
        static QTemporaryDir dir;
        static const QString path = [] {
            QString file;
            {
                TestDatabase db;
                LogRecords::createTables();
                ReportModel reports;
                MethodModel method;
                TitrationLogModel log;
                log.setCurrentMethod(&method);
                // One entry saved as the application saves it, the others
                // copies of it, each on a run of its own with its report: the
                // filling is not what is measured.
                DbTransaction unit;
                log.setRunValues(LogRecords::addRun(QStringLiteral("Titration"), QStringLiteral("pH"), 3));
                log.saveLogValues(false);
                LogRecords::addReport(QStringLiteral("Titration"), "titrationId", log.id());
                QStringList columns = TestDatabase::columns(TitrationLogModel::tableName);
                columns.removeAll(QStringLiteral("id"));
                const QString list = columns.join(QLatin1Char(','));
                for (int i = 1; i < LogCapacity::titration.capacity; ++i) {
                    const QVariantMap run = LogRecords::addRun(QStringLiteral("Titration"), QStringLiteral("pH"), 3);
                    QSqlQuery copy;
                    copy.exec(QStringLiteral("INSERT INTO %1 (%2) SELECT %2 FROM %1 WHERE id=%3")
                                  .arg(TitrationLogModel::tableName, list)
                                  .arg(log.id()));
                    const int id = copy.lastInsertId().toInt();
                    copy.exec(QStringLiteral("UPDATE %1 SET titration_Id=%2 WHERE id=%3")
                                  .arg(TitrationLogModel::tableName)
                                  .arg(run.value(QStringLiteral("id")).toInt())
                                  .arg(id));
                    LogRecords::addReport(QStringLiteral("Titration"), "titrationId", id);
                }
                if (unit.commit() && count() == LogCapacity::titration.capacity) {
                    db.close();
                    file = dir.filePath(QStringLiteral("full.db"));
                    if (!QFile::copy(db.path(), file))
                        file.clear();
                }
            }
            return file;
        }();
        return path;
    }

    const QString m_full = fullFile();
    TestDatabase m_db;
    const bool m_copied = copyFull(m_db, m_full);
    ReportModel m_reports;
    MethodModel m_method;
    TitrationLogModel m_log;
};

void BM_TitrationLogSaveAtFull(benchmark::State &state)
{
    FullTitrationLog log;
    if (!log.ready()) {
        state.SkipWithError("the full log could not be made");
        return;
    }
    for (auto _ : state) {
        state.PauseTiming();
        log.prepareRun();
        state.ResumeTiming();
        log.save();
        state.PauseTiming();
        log.addReport();
        state.ResumeTiming();
    }
    if (FullTitrationLog::count() != LogCapacity::titration.capacity)
        state.SkipWithError("the log did not stay at its capacity");
}
BENCHMARK(BM_TitrationLogSaveAtFull);

// The oldest entry with its run, cycles and report, as one unit.
void BM_TitrationLogPrune(benchmark::State &state)
{
    FullTitrationLog log;
    if (!log.ready()) {
        state.SkipWithError("the full log could not be made");
        return;
    }
    bool pruned = true;
    for (auto _ : state) {
        pruned = TitrationLogModel::pruneOldest() && pruned;
        state.PauseTiming();
        log.addEntry();
        state.ResumeTiming();
    }
    if (!pruned || FullTitrationLog::count() != LogCapacity::titration.capacity)
        state.SkipWithError("the prune failed");
}
BENCHMARK(BM_TitrationLogPrune);

// The reading log, saved once per logged reading, also at capacity.
void BM_MeasurementLogSaveAtFull(benchmark::State &state)
{
    TestDatabase db;
    ReportModel reports;
    MeasurementLogModel log;
    {
        DbTransaction unit;
        for (int i = 0; i < LogCapacity::measurement.capacity; ++i) {
            log.setMeasurementValues(LogRecords::measurement(true));
            log.saveLogValues(false);
        }
        unit.commit();
    }
    log.setMeasurementValues(LogRecords::measurement(true));
    for (auto _ : state)
        log.saveLogValues(false);
    if (LogCapacity::count(LogCapacity::measurement.table) != LogCapacity::measurement.capacity)
        state.SkipWithError("the log did not stay at its capacity");
}
BENCHMARK(BM_MeasurementLogSaveAtFull);

void quiet(QtMsgType, const QMessageLogContext &, const QString &)
{
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    qInstallMessageHandler(quiet);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
