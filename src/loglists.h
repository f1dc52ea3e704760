#pragma once

#include "models/calibrationlogmodel.h"
#include "models/loglistfetch.h"
#include "models/measurementlogmodel.h"
#include "models/objectlistmodel.h"
#include "models/standardisationlogmodel.h"
#include "models/titrationlogmodel.h"

#include <QObject>
#include <QString>

#include <memory>

// The four log lists of the screens ("TITRATION", "STANDARDIZATION",
// "CALIBRATION", "MEASUREMENT"), loaded one row per event-loop turn into
// view models, their counts, and the deletion of a whole log with what it
// leans on.
class LogLists : public QObject
{
    Q_OBJECT
public:
    explicit LogLists(QObject *parent = nullptr);
    ~LogLists() override;

    ObjectListModel *titrationView() const { return m_titrationView; }
    ObjectListModel *standardisationView() const { return m_standView; }
    ObjectListModel *calibrationView() const { return m_calibrationView; }
    ObjectListModel *measurementView() const { return m_measurementView; }
    const QList<TitrationLogModel *> &titrationEntries() const { return m_titration->list(); }
    const QList<StandardisationLogModel *> &standardisationEntries() const { return m_stand->list(); }
    const QList<CalibrationLogModel *> &calibrationEntries() const { return m_calibration->list(); }
    const QList<MeasurementLogModel *> &measurementEntries() const { return m_measurement->list(); }

    // Starts loading a list, newest first; another name is logged and ignored.
    void start(const QString &process);
    bool running(const QString &process) const;
    // One row of a list (the timer's tick, callable by hand).
    void tickTitration() { m_titration->tick(); }
    void tickStandardisation() { m_stand->tick(); }
    void tickCalibration() { m_calibration->tick(); }
    void tickMeasurement() { m_measurement->tick(); }

    // Whether any log holds a row; the rows of one (1 titration, 2
    // standardisation, 3 calibration, 4 measurement; another number answers
    // the last count).
    bool anyRow() const;
    int rows(int log);

    // A whole log with its runs (or calibrations) and reports, in one unit;
    // a fetch of that log in progress ends.
    bool deleteLog(const QString &process);

signals:
    void titrationChanged();
    void standardisationChanged();
    void calibrationChanged();
    void measurementChanged();

private:
    void stop(const QString &process);

    ObjectListModel *m_titrationView;
    ObjectListModel *m_standView;
    ObjectListModel *m_calibrationView;
    ObjectListModel *m_measurementView;
    std::unique_ptr<LogListFetch<TitrationLogModel>> m_titration;
    std::unique_ptr<LogListFetch<StandardisationLogModel>> m_stand;
    std::unique_ptr<LogListFetch<CalibrationLogModel>> m_calibration;
    std::unique_ptr<LogListFetch<MeasurementLogModel>> m_measurement;
    int m_measurementRows = 0;
    int m_count = 1;
};
