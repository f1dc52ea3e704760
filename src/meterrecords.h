#pragma once

#include "models/objectlistmodel.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QVariantMap>

class CalibrationCycleModel;
class CalibrationModel;
class ElectrodeSetupModel;
class MeasurementLogModel;
class MeasurementModel;

// The meter's records as the data manager keeps them: the meter state
// (`MeasurementModel`), the calibration being made or last loaded, its points
// in memory, and the live point the calibration screens show. Nothing reaches
// the tables before insertCalibrationValue(), so a cancelled calibration
// leaves no trace.
class MeterRecords : public QObject
{
    Q_OBJECT
public:
    // Loads the meter state row (or writes the default one).
    explicit MeterRecords(QObject *parent = nullptr);
    ~MeterRecords() override;

    MeasurementModel *measurementModel() const { return m_measurement; }
    // The calibration in hand; null when none was started or found.
    CalibrationModel *calibrationModel() const { return m_calibration; }
    // The point the screens show while a calibration runs.
    CalibrationCycleModel *calibrationCycleModel() const { return m_livePoint; }
    QList<CalibrationCycleModel *> &cycles() { return m_cycles; }
    const QList<CalibrationCycleModel *> &cycles() const { return m_cycles; }
    // The points of the calibration in hand as the screens list them.
    ObjectListModel *cycleView() const { return m_cycleView; }

    // A new calibration of the given electrode, or of the meter's own
    // settings; the previous one and its points go.
    void initiateFromElectrode(const ElectrodeSetupModel *electrode);
    void initiateFromMeasure();
    // One finished point into memory; `probePresent` gives "ATC" or "MAN".
    void updateCalibrationPoint(float fmV, float value, float buffer, float slope, float offset, float celsius,
                                bool probePresent);
    // Stores the calibration and its points; false when nothing was stored.
    bool insertCalibrationValue(bool isChangeFromHome);
    // The newest stored calibration of a probe ("ISE..." by its ion too),
    // with its points; none found leaves no calibration in hand.
    void loadLastCalibration(const QString &probeType, const QString &iseType);
    void loadCalibrationPoints(int calId);
    // A stored calibration for the log screens; false when the id is unknown.
    bool getCalibrationCyclesFromDb(int calId);
    void deleteCalibrationModelAndPoints();
    // A temperature calibration: one point, the probe's reading against the
    // entered value, and the offset between them.
    bool insertATCCalibrationValues(float probeTemperature, float tempInputATC, float offset, bool probePresent);
    // The stored row of the calibration in hand, by column name (empty when
    // it was never stored): what its log entry copies.
    QVariantMap storedCalibrationRow() const;

    // Logs the current reading: the calibration in use goes with it, then
    // the log entry, then the meter state row. False when the entry failed.
    bool logMeasurement(MeasurementLogModel *log, bool isDataLogNotifOn);

    // The time text of a point: "14/03/2026 | 09:05 PM".
    static QString pointTimestamp();

signals:
    void changed();

private:
    void clearCycles();
    void replaceCalibration(CalibrationModel *calibration);

    MeasurementModel *m_measurement = nullptr;
    CalibrationModel *m_calibration = nullptr;
    CalibrationCycleModel *m_livePoint = nullptr;
    QList<CalibrationCycleModel *> m_cycles;
    ObjectListModel *m_cycleView = nullptr;
};
