#include "meterrecords.h"

#include "models/modelproperty.h"

#include "enginedataport.h"
#include "meter/cmeasurementcontext.h"
#include "models/calibrationcyclemodel.h"
#include "models/calibrationmodel.h"
#include "models/dbutil.h"
#include "models/electrodesetupmodel.h"
#include "models/loglayout.h"
#include "models/measurementlogmodel.h"
#include "models/measurementmodel.h"
#include "system/clock.h"
#include "system/clocaletext.h"

#include <QDebug>
#include <QSqlQuery>
#include <QSqlRecord>

MeterRecords::MeterRecords(QObject *parent)
    : QObject(parent)
    , m_measurement(new MeasurementModel(this))
    , m_livePoint(new CalibrationCycleModel(this))
{
    CalibrationModel::createTables();
    m_measurement->createMeasurementTableAndLoadModel();
}

MeterRecords::~MeterRecords() = default;

QString MeterRecords::pointTimestamp()
{
    return CLocaleText::upperDateTime(Clock::now(), QStringLiteral("dd/MM/yyyy | hh:mm a"));
}

void MeterRecords::clearCycles()
{
    releaseLater(m_cycles);
}

void MeterRecords::replaceCalibration(CalibrationModel *calibration)
{
    if (m_calibration)
        m_calibration->deleteLater();
    m_calibration = calibration;
    clearCycles();
    emit changed();
}

void MeterRecords::deleteCalibrationModelAndPoints()
{
    replaceCalibration(nullptr);
}

void MeterRecords::initiateFromElectrode(const ElectrodeSetupModel *electrode)
{
    auto *c = new CalibrationModel(this);
    if (electrode) {
        c->setElectrodeName(electrode->electrodeName());
        c->setElectrodeType(CMeasurementContext::FoldProbe(electrode->electrodeType()));
        c->setBufferGroup(electrode->bufferGroup());
        c->setResolution(electrode->resolution());
        c->setIseType(electrode->iseType());
        c->setSignificantDigits(electrode->significantDigits());
        c->setDirectMeasureUnit(electrode->directMeasureUnit());
    }
    c->setIsCalibrationRunning(true);
    m_livePoint->setResolution(EngineDataPort::resolutionDecimals(c->resolution()));
    replaceCalibration(c);
}

void MeterRecords::initiateFromMeasure()
{
    auto *c = new CalibrationModel(this);
    c->setElectrodeName(m_measurement->sensorName());
    c->setElectrodeType(m_measurement->readMode());
    c->setBufferGroup(m_measurement->bufferGroup());
    c->setResolution(m_measurement->resolution());
    c->setIseType(m_measurement->iseType());
    c->setSignificantDigits(m_measurement->significantDigits());
    c->setDirectMeasureUnit(m_measurement->directMeasurementUnit());
    c->setIsCalibrationRunning(true);
    m_livePoint->setResolution(EngineDataPort::resolutionDecimals(c->resolution()));
    replaceCalibration(c);
}

void MeterRecords::updateCalibrationPoint(float fmV, float value, float buffer, float slope, float offset,
                                          float celsius, bool probePresent)
{
    auto *point = new CalibrationCycleModel(this);
    point->setCalValue(value);
    point->setSlope(slope);
    point->setVoltage(fmV);
    point->setOffset(offset);
    point->setBuffer(buffer);
    point->setTemperature(celsius);
    point->setTimestamp(pointTimestamp());
    point->setTemperatureMode(probePresent ? QStringLiteral("ATC") : QStringLiteral("MAN"));
    point->setResolution(m_livePoint->resolution());
    point->setCycleNo(m_cycles.size() + 1);
    m_cycles.append(point);
    emit changed();
}

bool MeterRecords::insertCalibrationValue(bool isChangeFromHome)
{
    if (!m_calibration) {
        qDebug() << "MeterRecords: no calibration to store";
        return false;
    }
    m_calibration->setIsCalibrationRunning(false);
    return m_calibration->setCalibrationValues(isChangeFromHome, m_cycles, QStringLiteral("INSERT"));
}

void MeterRecords::loadLastCalibration(const QString &probeType, const QString &iseType)
{
    replaceCalibration(nullptr);
    QSqlQuery select;
    if (probeType.startsWith(QLatin1String("ISE"), Qt::CaseInsensitive)) {
        select.prepare(QStringLiteral("SELECT * FROM calibrationTable WHERE electrodeType = 'ISE' AND iseType = :iseType "
                                      "ORDER BY datetime(mcreatedAt) DESC, id DESC LIMIT 1"));
        select.bindValue(QStringLiteral(":iseType"), iseType);
    } else {
        select.prepare(QStringLiteral("SELECT * FROM calibrationTable WHERE electrodeType = :type "
                                      "ORDER BY datetime(mcreatedAt) DESC, id DESC LIMIT 1"));
        select.bindValue(QStringLiteral(":type"), probeType);
    }
    if (!DbUtil::exec(select) || !select.next())
        return;
    const QSqlRecord row = select.record();
    select.finish();
    auto *c = new CalibrationModel(this);
    c->load(row);
    m_calibration = c;
    loadCalibrationPoints(c->id());
}

void MeterRecords::loadCalibrationPoints(int calId)
{
    clearCycles();
    QSqlQuery select;
    select.prepare(QStringLiteral("SELECT * FROM calibrationCycleTable WHERE calibrationID = :id "
                                  "ORDER BY datetime(mcreatedAt), id"));
    select.bindValue(QStringLiteral(":id"), QString::number(calId));
    if (DbUtil::exec(select)) {
        while (select.next()) {
            CalibrationCycleModel *point = CalibrationCycleModel::fromRecord(select.record(), this);
            point->setCycleNo(m_cycles.size() + 1);
            m_cycles.append(point);
        }
    }
    emit changed();
}

bool MeterRecords::getCalibrationCyclesFromDb(int calId)
{
    QSqlQuery select;
    select.prepare(QStringLiteral("SELECT * FROM calibrationTable WHERE id = :id"));
    select.bindValue(QStringLiteral(":id"), calId);
    if (!DbUtil::exec(select) || !select.next()) {
        qDebug() << "calibrationTable calId does not exist. calId: " << calId;
        return false;
    }
    const QSqlRecord row = select.record();
    select.finish();
    auto *c = new CalibrationModel(this);
    c->load(row);
    replaceCalibration(c);
    loadCalibrationPoints(calId);
    return true;
}

bool MeterRecords::insertATCCalibrationValues(float probeTemperature, float tempInputATC, float offset,
                                              bool probePresent)
{
    auto *c = new CalibrationModel(this);
    c->setElectrodeType(QStringLiteral("ATC"));
    replaceCalibration(c);
    auto *point = new CalibrationCycleModel(this);
    point->setCalValue(probeTemperature);
    point->setTemperature(tempInputATC);
    point->setOffset(offset);
    point->setTimestamp(pointTimestamp());
    point->setTemperatureMode(probePresent ? QStringLiteral("ATC") : QStringLiteral("MAN"));
    point->setCycleNo(1);
    m_cycles.append(point);
    return c->setCalibrationValues(false, m_cycles, QStringLiteral("INSERT"));
}

QVariantMap MeterRecords::storedCalibrationRow() const
{
    QVariantMap row;
    if (!m_calibration)
        return row;
    QSqlQuery select;
    select.prepare(QStringLiteral("SELECT * FROM calibrationTable WHERE id = :id"));
    select.bindValue(QStringLiteral(":id"), m_calibration->id());
    if (DbUtil::exec(select) && select.next()) {
        const QSqlRecord r = select.record();
        for (int i = 0; i < r.count(); ++i)
            row.insert(r.fieldName(i), r.value(i));
    }
    return row;
}

bool MeterRecords::logMeasurement(MeasurementLogModel *log, bool isDataLogNotifOn)
{
    if (!log)
        return false;
    if (m_calibration) {
        m_measurement->setCalDateTime(m_calibration->mcreatedAt());
        m_measurement->setCalAvg(float(m_calibration->avgSlope()));
        m_measurement->setCalLogId(m_calibration->id());
    }
    QVariantMap values = LogLayout::rowOf(m_measurement, MeasurementModel::columnTable());
    values.insert(QStringLiteral("stability"), m_measurement->stability());
    log->setId(0);
    log->setMeasurementValues(values);
    log->saveLogValues(isDataLogNotifOn);
    const bool logged = log->id() > 0;
    m_measurement->setMeasurementValues(m_measurement);
    return logged;
}
