#pragma once

#include <QList>
#include <QString>

class CMeasurementContext;
class CalibrationCycleModel;
class CalibrationModel;
class ElectrodeSetupModel;
class MeasurementModel;
class MeterRecords;

// What the meter controller asks of the data layer: the meter's records
// (measurement state, the calibration in hand and its points), the current
// method's electrode, the working temperature and the mode of the
// instrument. The data layer serves it; the meter depends on this alone.
class MeterDataInterface
{
public:
    virtual ~MeterDataInterface() = default;

    // The meter lends its measurement engine for the data layer's
    // conversions (nullptr takes it back).
    virtual void setMeasurementContext(CMeasurementContext *context) = 0;
    virtual CMeasurementContext *measurementContext() const = 0;
    virtual MeterRecords *meterRecords() = 0;

    virtual MeasurementModel *measurementModel() = 0;
    virtual CalibrationModel *calibrationModel() = 0;
    virtual CalibrationCycleModel *calibrationCycleModel() = 0;
    virtual const QList<CalibrationCycleModel *> &calibrationCycleList() = 0;
    virtual void loadLastCalibration(const QString &probeType, const QString &iseType) = 0;
    virtual void updateCalibrationPoint(float fmV, float pH, float Buff, float Slope, float Offset, float Temp) = 0;

    virtual ElectrodeSetupModel *electrodeSetupModel() const = 0;
    virtual float getTemperature() const = 0;
    virtual QString deviceMode() const = 0;
    virtual void setMillivolts(float mv) = 0;
};
