#include "controller/metercontroller.h"

#include "controller/mspcontroller.h"
#include "meter/cmeasurementcontext.h"
#include "models/calibrationcyclemodel.h"
#include "models/calibrationmodel.h"
#include "models/electrodesetupmodel.h"
#include "models/measurementmodel.h"

#include <QDebug>

namespace {

const QString kPh = QStringLiteral("pH");
const QString kRedox = QStringLiteral("Redox");
const QString kIse = QStringLiteral("ISE");
const QString kPleaseCalibrate = QStringLiteral("Please Calibrate ");

// A stored pH slope in percent, as the engine takes it: mV per pH at 25 degrees.
float phSlopeOfPercent(double percent)
{
    return float(percent / 100.0 * MeterController::kIdealPhSlope);
}

} // namespace

MeterController *MeterController::mcPtr(MeterDataInterface *dataLayer)
{
    // Made on the first call, which start-up makes with the data layer.
    static MeterController *instance = [dataLayer] {
        auto *meter = new MeterController(mspController::mspcPtr(), dataLayer);
        RunMeterInterface::setInstrumentMeter(meter);
        return meter;
    }();
    return instance;
}

MeterController::MeterController(SlaveLink *msp, MeterDataInterface *dataManager, QObject *parent)
    : QObject(parent)
    , m_dataManager(dataManager)
    , m_dataGuard(dynamic_cast<QObject *>(dataManager))
    , m_context(new CMeasurementContext())
    , m_msp(msp)
{
    if (data()) {
        data()->setMeasurementContext(m_context);
        data()->meterRecords();
    }
}

MeterController::~MeterController()
{
    stopMeterConnection();
    if (data() && data()->measurementContext() == m_context)
        data()->setMeasurementContext(nullptr);
    delete m_context;
}

// ---- Start and stop ----

void MeterController::startAcquisition(const QString &probe, const QString &iseType, float resolution, int digits,
                                       const QString &bufferGroup)
{
    stopMeterConnection();
    measEngProbeUpdate(probe, iseType, resolution, digits);
    m_bufferGroupIndex = bufferGroup == QLatin1String("USA") ? 0 : 1;
}

void MeterController::qmlStartMeasure()
{
    if (!data())
        return;
    MeasurementModel *m = data()->measurementModel();
    startAcquisition(m->readMode(), m->iseType(), m->resolution(), m->significantDigits(), m->bufferGroup());
    data()->loadLastCalibration(m->readMode(), m->iseType());
    reInitializeCalibration(m_meterProbeType, m_meterIseProbeType);
    startMeterConnection();
    m_meterState = Running;
    qDebug() << "Measurement Started";
    m_context->ResetStability();
    m_meterMode = ModeMeasurement;
}

void MeterController::qmlStopMeasure()
{
    if (m_meterState == Running) {
        m_meterState = Idle;
        qDebug() << "Measurement Stopped";
    }
}

void MeterController::qmlStartCalibration()
{
    if (!data())
        return;
    CalibrationModel *c = data()->calibrationModel();
    if (!c) {
        qDebug() << "MeterController: no calibration was initiated";
        return;
    }
    startAcquisition(c->electrodeType(), c->iseType(), c->resolution(), c->significantDigits(), c->bufferGroup());
    reInitializeCalibration(m_meterProbeType, m_meterIseProbeType);
    startMeterConnection();
    m_meterState = Running;
    qDebug() << "Calibration Started";
    m_context->StartCalibration();
    m_calDonePoint = 0;
    m_meterMode = ModeCalibration;
}

void MeterController::qmlStopCalibration()
{
    if (m_meterState == Running) {
        m_meterState = Idle;
        qDebug() << "Calibration Stopped";
    }
    m_meterMode = ModeMeasurement;
}

void MeterController::reInitiateMeterModel()
{
    m_meterState = Idle;
}

void MeterController::repointAtMethodProbe()
{
    if (!data())
        return;
    ElectrodeSetupModel *e = data()->electrodeSetupModel();
    if (!e) {
        qDebug() << "MeterController: no method loaded, the meter keeps its probe";
        return;
    }
    stopMeterConnection();
    measEngProbeUpdate(e->electrodeType(), e->iseType(), e->resolution(), e->significantDigits());
    data()->loadLastCalibration(e->electrodeType(), e->iseType());
    reInitializeCalibration(e->electrodeType(), e->iseType());
    startMeterConnection();
}

// ---- The sample stream ----

void MeterController::startMeterConnection()
{
    if (m_connected || !m_msp)
        return;
    m_probeLogged = false;
    connect(m_msp, &SlaveLink::mspNewDataSignal, this, &MeterController::execute);
    m_connected = true;
}

void MeterController::stopMeterConnection()
{
    if (!m_connected)
        return;
    if (m_msp)
        disconnect(m_msp, &SlaveLink::mspNewDataSignal, this, &MeterController::execute);
    m_connected = false;
}

void MeterController::execute(long timeStamp, double mvData)
{
    Q_UNUSED(timeStamp)
    if (!data())
        return;
    const float temperature = data()->getTemperature();
    if (!m_probeLogged) {
        m_probeLogged = true;
        qDebug() << "-- execute -- m_meterProbeType: " << m_meterProbeType << " m_meterIseProbeType: "
                 << m_meterIseProbeType;
    }
    switch (m_meterState) {
    case Idle:
        return;
    case Stopping:
        m_meterState = Idle;
        return;
    case Running:
        break;
    default:
        qDebug() << "ERROR: Unknown Meter State!  Halting!";
        return;
    }
    m_context->SetRawMv(mvData);
    m_context->SetTemperatuteDegreC(temperature);
    m_context->UpdateMeasurement();
    const bool stable = m_context->IsStable();
    if (data()->deviceMode() == QLatin1String("Measurement"))
        measurementSample(stable);
    else
        calibrationSample(mvData, stable);
}

void MeterController::measurementSample(bool stable)
{
    MeasurementModel *m = data()->measurementModel();
    m->setScaledValue(float(m_context->GetMeasuredValue()));
    const float stableMv = float(m_context->GetStableMv());
    data()->setMillivolts(stableMv);
    m->setMV(stableMv);
    m->setStability(stable);
    if (stable)
        emit qmlStableCalibration();
    else
        emit qmlUnStableCalibration();
}

void MeterController::calibrationSample(double mvData, bool stable)
{
    if (CalibrationModel *c = data()->calibrationModel())
        c->setStability(stable);
    CalibrationCycleModel *point = data()->calibrationCycleModel();
    const bool outOfRange = m_context->IsOutOfRange();
    if (!stable) {
        point->setCalValue(float(m_context->GetMeasuredValue()));
        point->setVoltage(float(mvData));
        data()->setMillivolts(float(mvData));
        if (outOfRange) {
            point->setCalValue(float(kOutOfRangeValue));
            point->setVoltage(float(m_context->GetStableMv()));
        }
        emit qmlUnStableCalibration();
        return;
    }
    const double value = m_context->GetCalibrationValue(stable);
    if (m_context->IsOutOfRange()) {
        point->setCalValue(float(kOutOfRangeValue));
        point->setVoltage(float(m_context->GetStableMv()));
        return;
    }
    point->setCalValue(float(value));
    point->setVoltage(float(m_context->GetStableMv()));
    emit qmlStableCalibration();
}

bool MeterController::isMeasureOutOfRange() const
{
    return m_context->GetRangeFlag() != 0;
}

// ---- Calibration points ----

void MeterController::qmlStartCalPoint()
{
    m_context->StartNextPoint();
    m_meterState = Running;
}

void MeterController::slopeError()
{
    m_slopeError = true;
    emit showQmlSlopeError();
}

void MeterController::qmlOverrideCalibration()
{
    float value = 0.0f;
    float mv = 0.0f;
    bool accepted = false;
    m_context->OverrideCalibrationPoint(value, mv, accepted);
    if (!accepted) {
        slopeError();
        return;
    }
    m_slopeError = false;
    m_meterState = Idle;
    if (data()) {
        CalibrationCycleModel *point = data()->calibrationCycleModel();
        point->setCalValue(value);
        point->setVoltage(mv);
    }
    emit qmlStableCalibration();
}

void MeterController::accptCalibration(bool userEditCalValue)
{
    m_context->AcceptCalibrationPoint(userEditCalValue);
    const int status = m_context->GetStatus();
    if (status == CMeasurementContext::StatusPhPointTooClose || status == CMeasurementContext::StatusRedoxOffsetOutOfRange
        || status == CMeasurementContext::StatusIsePointRefused) {
        m_context->CancelCalibration();
        slopeError();
    } else {
        m_slopeError = false;
        m_calDonePoint = m_context->GetCalPointCount();
    }
    m_meterState = Running;
}

void MeterController::calEdit(float calvalue)
{
    m_meterState = Idle;
    m_context->EditCalibrationValue(calvalue);
    if (data())
        data()->calibrationCycleModel()->setCalValue(calvalue);
}

void MeterController::storePhPoints()
{
    for (int i = 0; i < m_context->GetPointCount(); ++i) {
        data()->updateCalibrationPoint(m_context->GetPointMv(i), m_context->GetPointValue(i),
                                              m_context->GetPointBuffer(i), m_context->GetPointSlope(i),
                                              m_context->GetPointOffset(i), m_context->GetPointTemperature(i));
    }
}

void MeterController::calDone()
{
    m_context->FinishCalibration();
    if (!data())
        return;
    CalibrationModel *c = data()->calibrationModel();
    if (m_meterProbeType == kPh) {
        const int status = m_context->GetStatus();
        if (status == CMeasurementContext::StatusPhSlopeOutOfRange || status == CMeasurementContext::StatusPhPointTooClose) {
            m_context->CancelCalibration();
            qDebug() << "T Slope Error";
            slopeError();
            return;
        }
        m_slopeError = false;
        storePhPoints();
        const double average = m_context->GetAverageSlope();
        if (c)
            c->setAvgSlope(average);
        qDebug() << "Average Slope" << average;
    } else if (m_meterProbeType == kRedox) {
        const double offset = m_context->GetOrpOffset();
        data()->updateCalibrationPoint(m_context->GetLastMv(), m_context->GetLastValue(), 0.0f, 0.0f,
                                              float(offset), data()->getTemperature());
        m_slopeError = false;
        if (c)
            c->setAvgSlope(offset);
        qDebug() << "Offset (Average Slope column)" << offset;
    } else if (m_meterProbeType == kIse) {
        m_slopeError = false;
        storePhPoints();
        const double average = m_context->GetAverageSlope();
        if (c)
            c->setAvgSlope(average);
        qDebug() << "Average Slope" << average;
    }
}

// ---- Probe and engine configuration ----

void MeterController::measEngProbeUpdate(QString newProbeType, QString newIseType, float newResolution,
                                         int newSignificantDigits)
{
    if (newProbeType.startsWith(kIse))
        newProbeType = kIse;
    if (newProbeType == kIse) {
        if (newProbeType != m_meterProbeType || newIseType != m_meterIseProbeType) {
            m_meterProbeType = newProbeType;
            m_meterIseProbeType = newIseType;
        }
    } else if (newProbeType != m_meterProbeType) {
        m_meterProbeType = newProbeType;
        m_meterIseProbeType.clear();
    }
    m_resolution = newResolution;
    m_significantDigits = newSignificantDigits;
}

void MeterController::reInitializeCalibration(const QString &probeType, const QString &iseType)
{
    qDebug() << " -- reInitialize calibration --- probeType: " << probeType << " iseType: " << iseType;
    if (!data())
        return;
    data()->measurementModel()->setMeasureMessage(QString());
    const QString probe = CMeasurementContext::FoldProbe(probeType);
    if (probe == kPh)
        configurePh();
    else if (probe == kRedox)
        configureRedox();
    else if (probe == kIse)
        configureIse(iseType);
}

void MeterController::configurePh()
{
    m_context->SetActiveKind(CMeasurementContext::KindPh);
    m_context->ConfigurePh(m_bufferGroupIndex, m_resolution, 7.0);
    CalibrationModel *c = data()->calibrationModel();
    const QList<CalibrationCycleModel *> &cycles = data()->calibrationCycleList();
    float mv[CMeasurementContext::kMaxPoints] = {};
    float slope[CMeasurementContext::kMaxPoints] = {};
    float offset[CMeasurementContext::kMaxPoints] = {};
    float temperature[CMeasurementContext::kMaxPoints] = {};
    float value[CMeasurementContext::kMaxPoints] = {};
    float buffer[CMeasurementContext::kMaxPoints] = {};
    if (!c) {
        qDebug() << " -- pH cal USING DEFAULT - (nothing to load)";
        return;
    }
    if (cycles.isEmpty()) {
        m_context->LoadPhCalibration(mv, slope, offset, temperature, value, buffer, 0, kIdealPhSlope);
        qDebug() << " -- Loading pH cal DEFAULT (probably starting pH cal)";
        return;
    }
    const int count = qMin(int(cycles.size()), int(CMeasurementContext::kMaxPoints));
    for (int i = 0; i < count; ++i) {
        const CalibrationCycleModel *p = cycles.at(i);
        mv[i] = p->voltage();
        slope[i] = phSlopeOfPercent(p->slope());
        offset[i] = p->offset();
        temperature[i] = p->temperature();
        value[i] = p->calValue();
        buffer[i] = p->buffer();
    }
    m_context->LoadPhCalibration(mv, slope, offset, temperature, value, buffer, count, phSlopeOfPercent(c->avgSlope()));
    qDebug() << " -- Loading pH cal: " << count << " points";
}

void MeterController::configureRedox()
{
    m_context->SetActiveKind(CMeasurementContext::KindRedox);
    m_context->ConfigureOrp(0.001f, 7.0);
    CalibrationModel *c = data()->calibrationModel();
    const QList<CalibrationCycleModel *> &cycles = data()->calibrationCycleList();
    if (c && !cycles.isEmpty()) {
        m_context->SetOrpOffset(cycles.first()->offset());
        qDebug() << " -- Loading Redox cal: " << cycles.first()->offset();
        return;
    }
    m_context->SetOrpOffset(0.0);
    if (c)
        qDebug() << " -- Loading Redox cal DEFAULT (starting Redox cal)";
    else
        qDebug() << " -- Loading Redox cal DEFAULT - (nothing to load)";
}

void MeterController::configureIse(const QString &iseType)
{
    m_context->SetActiveKind(CMeasurementContext::KindIse);
    m_context->ConfigureIse(m_significantDigits, 1.0);
    m_context->SetIonName(iseType);
    MeasurementModel *m = data()->measurementModel();
    CalibrationModel *c = data()->calibrationModel();
    const QList<CalibrationCycleModel *> &cycles = data()->calibrationCycleList();
    if (!c) {
        qDebug() << " -- ISE cal USING DEFAULT - (nothing to load)";
        m->setMeasureMessage(kPleaseCalibrate);
        return;
    }
    if (cycles.isEmpty()) {
        qDebug() << " -- Loading ISE cal DEFAULT (probably starting ISE cal)";
        return;
    }
    float mv[CMeasurementContext::kMaxPoints] = {};
    float concentration[CMeasurementContext::kMaxPoints] = {};
    float slope[CMeasurementContext::kMaxPoints] = {};
    float offset[CMeasurementContext::kMaxPoints] = {};
    float temperature[CMeasurementContext::kMaxPoints] = {};
    const int count = qMin(int(cycles.size()), int(CMeasurementContext::kMaxPoints));
    for (int i = 0; i < count; ++i) {
        const CalibrationCycleModel *p = cycles.at(i);
        mv[i] = p->voltage();
        concentration[i] = p->calValue();
        slope[i] = p->slope();
        offset[i] = p->offset();
        temperature[i] = p->temperature();
    }
    m_context->LoadIseCalibration(mv, concentration, slope, offset, temperature, iseType, count, float(c->avgSlope()));
    qDebug() << " -- Loading ISE cal: " << count << " points";
    if (c->directMeasureUnit() != m->directMeasurementUnit())
        m->setMeasureMessage(kPleaseCalibrate);
}
