#include "meter/cmeasurementcontext.h"

#include "meter/cmeasurementise.h"
#include "meter/cmeasurementorp.h"
#include "meter/cmeasurementph.h"

#include <QByteArray>

#include <cmath>

CMeasurementContext::CMeasurementContext(QObject *parent)
    : QObject(parent),
      m_kindPh(new CMeasurementPH(this)),
      m_kindOrp(new CMeasurementOrp(this)),
      m_kindIse(new CMeasurementIse(this))
{
}

CMeasurementContext::~CMeasurementContext() = default;

CMeasurementPH *CMeasurementContext::phKind() const { return static_cast<CMeasurementPH *>(m_kindPh); }
CMeasurementOrp *CMeasurementContext::orpKind() const { return static_cast<CMeasurementOrp *>(m_kindOrp); }
CMeasurementIse *CMeasurementContext::iseKind() const { return static_cast<CMeasurementIse *>(m_kindIse); }

MeasurementBase *CMeasurementContext::activeKind() const
{
    switch (m_activeKind) {
    case KindPh:
        return m_kindPh;
    case KindIse:
        return m_kindIse;
    case KindRedox:
        return m_kindOrp;
    default:
        return nullptr;
    }
}

QString CMeasurementContext::FoldProbe(const QString &probe)
{
    static const QString ise = QStringLiteral("ISE");
    return probe.startsWith(ise, Qt::CaseSensitive) ? ise : probe;
}

int CMeasurementContext::KindOfProbe(const QString &probe)
{
    const QString folded = FoldProbe(probe);
    if (folded == QLatin1String("pH"))
        return KindPh;
    if (folded == QLatin1String("ISE"))
        return KindIse;
    if (folded == QLatin1String("Redox"))
        return KindRedox;
    return -1;
}

void CMeasurementContext::SetActiveKind(int kind) { m_activeKind = kind; }

void CMeasurementContext::SetRawMv(double mv)
{
    // Every kind keeps its input current, so a switch of kind needs no new sample.
    m_kindPh->SetRawMv(mv);
    m_kindOrp->SetRawMv(mv);
    m_kindIse->SetRawMv(mv);
}

void CMeasurementContext::SetTemperatuteDegreC(double celsius)
{
    m_kindPh->SetTemperatureDegreeC(celsius);
    m_kindOrp->SetTemperatureDegreeC(celsius);
    m_kindIse->SetTemperatureDegreeC(celsius);
}

void CMeasurementContext::SetInsoPotentialPoint(double iso) { m_kindPh->SetInsoPotentialPoint(iso); }

void CMeasurementContext::SetDisplayResolutionInFloat(float resolution)
{
    if (MeasurementBase *kind = activeKind()) {
        kind->SetDisplayResolutionInFloat(resolution);
        return;
    }
    m_kindPh->SetDisplayResolutionInFloat(resolution);
    m_kindIse->SetDisplayResolutionInFloat(resolution);
    m_kindOrp->SetDisplayResolutionInFloat(0.1f);
}

void CMeasurementContext::ConfigurePh(int bufferGroup, float resolution, double iso)
{
    m_kindPh->SetDisplayResolutionInFloat(resolution);
    m_kindPh->SetBufferGroup(bufferGroup);
    m_kindPh->SetInsoPotentialPoint(iso);
}

void CMeasurementContext::ConfigureIse(int digits, double sampleScale)
{
    m_kindIse->SetResolutionIndex(digits);
    m_kindIse->SetInsoPotentialPoint(sampleScale);
}

void CMeasurementContext::ConfigureOrp(float resolution, double iso)
{
    m_kindOrp->SetDisplayResolutionInFloat(resolution);
    m_kindOrp->SetInsoPotentialPoint(iso);
}

void CMeasurementContext::SetOrpOffset(double offset) { m_kindOrp->SetRelativeOffset(static_cast<float>(offset)); }

void CMeasurementContext::SetIonName(const QString &ion)
{
    if (m_activeKind != KindIse)
        return;
    iseKind()->record().setIonName(ion.toUtf8().constData());
}

void CMeasurementContext::LoadPhCalibration(const float *mv, const float *slope, const float *offset,
                                            const float *temperature, const float *value, const float *buffer,
                                            int count, float averageSlope)
{
    if (count > 0 && !(mv && slope && offset && temperature && value && buffer))
        count = 0;
    phKind()->record().load(mv, slope, offset, temperature, value, buffer, count, averageSlope);
}

void CMeasurementContext::LoadIseCalibration(const float *mv, const float *concentration, const float *slope,
                                             const float *offset, const float *temperature, const QString &ion,
                                             int count, float averageSlope)
{
    if (count > 0 && !(mv && concentration && slope && offset && temperature))
        count = 0;
    iseKind()->record().load(mv, concentration, slope, offset, temperature, ion.toUtf8().constData(), count,
                             averageSlope);
}

void CMeasurementContext::UpdateMeasurement()
{
    if (MeasurementBase *kind = activeKind()) {
        kind->UpdateMeasurement();
        return;
    }
    m_kindPh->UpdateMeasurement();
    m_kindIse->UpdateMeasurement();
    m_kindOrp->UpdateMeasurement();
}

double CMeasurementContext::GetMeasuredValue()
{
    MeasurementBase *kind = activeKind();
    return kind ? kind->GetMeasuredValue() : kNoKind;
}

double CMeasurementContext::GetStableMv()
{
    MeasurementBase *kind = activeKind();
    return kind ? kind->GetStableMv() : kNoKind;
}

bool CMeasurementContext::IsStable() const
{
    const MeasurementBase *kind = activeKind();
    return kind && kind->IsStable();
}

bool CMeasurementContext::IsOutOfRange() const
{
    const MeasurementBase *kind = activeKind();
    return kind && kind->IsOutOfRange();
}

int CMeasurementContext::GetRangeFlag() const
{
    const MeasurementBase *kind = activeKind();
    return kind ? kind->GetRangeFlag() : -1;
}

void CMeasurementContext::ResetStability()
{
    if (MeasurementBase *kind = activeKind()) {
        kind->ResetStability();
        return;
    }
    m_kindPh->ResetStability();
    m_kindIse->ResetStability();
    m_kindOrp->ResetStability();
}

double CMeasurementContext::Get_Mv_From_pH(float pH, float celsius)
{
    switch (m_activeKind) {
    case KindPh:
        return m_kindPh->Get_Mv_From_pH(pH, celsius);
    case KindIse:
    case KindRedox:
        return 0.0;
    default:
        return kNoKind;
    }
}

double CMeasurementContext::GetAverageSlope() const
{
    switch (m_activeKind) {
    case KindPh:
        return phKind()->record().averageSlopePercent;
    case KindIse:
        return iseKind()->record().averageSlope;
    default:
        return 0.0;
    }
}

double CMeasurementContext::GetOrpOffset() const
{
    return m_activeKind == KindRedox ? m_kindOrp->GetRelativeOffset() : 0.0;
}

// ---- Electrode calibration ----

void CMeasurementContext::resetCalibration()
{
    switch (m_activeKind) {
    case KindPh:
        phKind()->record().startCalibration();
        m_pointCount = 0;
        break;
    case KindIse:
        iseKind()->record().startCalibration();
        m_pointCount = 0;
        break;
    case KindRedox:
        orpKind()->record().offset = 0.0f;
        break;
    default:
        break;
    }
}

void CMeasurementContext::StartCalibration()
{
    MeasurementBase *kind = activeKind();
    if (!kind)
        return;
    resetCalibration();
    m_overridden = false;
    m_lastValue = 0.0f;
    if (m_activeKind == KindRedox)
        m_editedValue = 0.0f;
    kind->ResetStability();
}

void CMeasurementContext::CancelCalibration()
{
    if (!activeKind())
        return;
    m_status = StatusBusy;
    resetCalibration();
}

double CMeasurementContext::GetCalibrationValue(bool)
{
    MeasurementBase *kind = activeKind();
    if (!kind)
        return kNoKind;
    float value = 0.0f;
    switch (m_activeKind) {
    case KindPh: {
        float nominal = m_recognisedBuffer;
        value = phKind()->RecogniseCalibrationValue(m_status, nominal);
        m_recognisedBuffer = nominal;
        break;
    }
    case KindIse:
        value = static_cast<float>(kind->GetMeasuredValue());
        break;
    default:
        value = std::fabs(m_editedValue) < 0.001f ? static_cast<float>(kind->GetMeasuredValue()) : m_editedValue;
        break;
    }
    m_lastValue = value;
    m_lastMv = static_cast<float>(kind->GetStableMv());
    return value;
}

void CMeasurementContext::OverrideCalibrationPoint(float &value, float &mv, bool &accepted)
{
    MeasurementBase *kind = activeKind();
    accepted = false;
    if (!kind || kind->IsOutOfRange())
        return;
    if (m_activeKind == KindPh) {
        GetCalibrationValue(false);
    } else {
        m_lastValue = static_cast<float>(kind->GetMeasuredValue());
        m_lastMv = static_cast<float>(kind->GetStableMv());
    }
    value = m_lastValue;
    mv = m_lastMv;
    m_overridden = true;
    accepted = true;
}

void CMeasurementContext::EditCalibrationValue(double v)
{
    if (m_activeKind == KindRedox)
        m_editedValue = static_cast<float>(v);
    else if (activeKind())
        m_lastValue = static_cast<float>(v);
}

void CMeasurementContext::StartNextPoint()
{
    m_overridden = false;
    ResetStability();
}

void CMeasurementContext::AcceptCalibrationPoint(bool edited)
{
    if (!activeKind())
        return;
    m_status = StatusBusy;
    switch (m_activeKind) {
    case KindPh:
        acceptPhPoint();
        break;
    case KindIse:
        acceptIsePoint();
        break;
    default:
        acceptRedoxPoint(edited);
        break;
    }
}

void CMeasurementContext::acceptPhPoint()
{
    CMeasurementPH *ph = phKind();
    PhCalRecord &record = ph->record();
    m_status = record.addPoint(m_lastValue, static_cast<float>(ph->GetStableMv()),
                               static_cast<float>(ph->GetTemperature()));
    if (m_status == StatusPhPointTooClose)
        return;
    m_pointCount = record.workingCount;
    for (int i = 0; i < m_pointCount; ++i) {
        m_pointMv[i] = record.working.mv[i];
        m_pointValue[i] = record.working.value[i];
        m_pointBuffer[i] = record.working.buffer[i];
        m_pointTemperature[i] = record.working.temperature[i];
    }
}

void CMeasurementContext::acceptIsePoint()
{
    CMeasurementIse *ise = iseKind();
    m_status = ise->record().addPoint(m_lastValue, static_cast<float>(ise->GetStableMv()),
                                      static_cast<float>(ise->GetTemperature()), ise->GetResolutionIndex());
}

void CMeasurementContext::acceptRedoxPoint(bool edited)
{
    CMeasurementOrp *orp = orpKind();
    float target = 0.0f;
    float mv = static_cast<float>(orp->GetStableMv());
    if (edited) {
        target = m_editedValue;
        m_lastValue = target;
    } else if (m_overridden) {
        target = m_lastValue;
        mv = m_lastMv;
    } else {
        target = static_cast<float>(orp->GetMeasuredValue());
        m_lastValue = target;
    }
    m_lastMv = mv;
    const float offset = target - mv;
    orp->record().offset = offset;
    const float shifted = mv + offset;
    if (std::fabs(offset) > kRedoxMaxOffset || shifted > kRedoxLimit || shifted < -kRedoxLimit)
        m_status = StatusRedoxOffsetOutOfRange;
    else
        m_status = StatusOk;
    m_editedValue = 0.0f;
}

void CMeasurementContext::FinishCalibration()
{
    switch (m_activeKind) {
    case KindPh:
        finishPh();
        break;
    case KindIse:
        finishIse();
        break;
    default:
        break;
    }
}

void CMeasurementContext::finishPh()
{
    CMeasurementPH *ph = phKind();
    PhCalRecord &record = ph->record();
    m_status = record.finish(static_cast<float>(ph->GetInsoPotentialPoint()));
    const PhCalSet &set = record.committed;
    m_pointCount = record.committedCount;
    for (int i = 0; i < m_pointCount; ++i) {
        m_pointMv[i] = set.mv[i];
        m_pointValue[i] = set.value[i];
        m_pointBuffer[i] = set.buffer[i];
        m_pointTemperature[i] = set.temperature[i];
        m_pointOffset[i] = set.offset[i];
        m_pointSlope[i] = PhCalRecord::percentOf(set.slope[i]);
    }
    // The last point closes no segment: it shows the slope of its neighbour.
    if (m_pointCount > 1) {
        int flat = -1;
        for (int i = 0; i < m_pointCount; ++i) {
            if (m_pointSlope[i] < 0.001f)
                flat = i;
        }
        if (flat == m_pointCount - 1)
            m_pointSlope[flat] = m_pointSlope[flat - 1];
        else if (flat == 0)
            m_pointSlope[0] = m_pointSlope[1];
    }
}

void CMeasurementContext::finishIse()
{
    IseCalRecord &record = iseKind()->record();
    m_status = record.finish();
    record.commit();
    const IseCalSet &set = record.committed;
    m_pointCount = record.committedCount < kMaxPoints ? record.committedCount : kMaxPoints;
    for (int i = 0; i < m_pointCount; ++i) {
        m_pointMv[i] = set.mv[i];
        m_pointValue[i] = set.concentration[i];
        m_pointBuffer[i] = static_cast<float>(set.digits[i]);
        m_pointTemperature[i] = set.temperature[i];
        m_pointOffset[i] = set.offset[i];
        m_pointSlope[i] = set.slope[i];
    }
}

int CMeasurementContext::GetCalPointCount() const
{
    const MeasurementBase *kind = activeKind();
    return kind ? kind->GetCalPointCount() : 0;
}

CalibrationResult CMeasurementContext::GetCalibrationResult() const
{
    CalibrationResult result;
    result.kind = m_activeKind;
    result.status = m_status;
    if (m_activeKind == KindRedox) {
        CalibrationPointRow &row = result.points[0];
        row.mv = m_lastMv;
        row.value = m_lastValue;
        row.buffer = 0.0f;
        row.slope = 0.0f;
        row.offset = orpKind()->GetRelativeOffset();
        row.temperature = static_cast<float>(orpKind()->GetTemperature());
        result.count = 1;
        result.averageSlope = row.offset;
        return result;
    }
    if (m_activeKind != KindPh && m_activeKind != KindIse)
        return result;
    result.count = m_pointCount;
    for (int i = 0; i < m_pointCount; ++i) {
        CalibrationPointRow &row = result.points[i];
        row.mv = m_pointMv[i];
        row.value = m_pointValue[i];
        row.buffer = m_pointBuffer[i];
        row.slope = m_pointSlope[i];
        row.offset = m_pointOffset[i];
        row.temperature = m_pointTemperature[i];
    }
    result.averageSlope = static_cast<float>(GetAverageSlope());
    return result;
}

void CMeasurementContext::LoadCalibration(const CalibrationResult &stored, const QString &ion)
{
    const int count = stored.count < 0 ? 0 : (stored.count > kMaxPoints ? kMaxPoints : stored.count);
    float mv[kMaxPoints] = {};
    float value[kMaxPoints] = {};
    float buffer[kMaxPoints] = {};
    float slope[kMaxPoints] = {};
    float offset[kMaxPoints] = {};
    float temperature[kMaxPoints] = {};
    const bool percent = stored.kind == KindPh;
    for (int i = 0; i < count; ++i) {
        const CalibrationPointRow &row = stored.points[i];
        mv[i] = row.mv;
        value[i] = row.value;
        buffer[i] = row.buffer;
        slope[i] = percent ? PhCalRecord::slopeOfPercent(row.slope) : row.slope;
        offset[i] = row.offset;
        temperature[i] = row.temperature;
    }
    switch (stored.kind) {
    case KindPh:
        if (count == 0)
            LoadPhCalibration(mv, slope, offset, temperature, value, buffer, 0, PhCalRecord::kIdealSlope);
        else
            LoadPhCalibration(mv, slope, offset, temperature, value, buffer, count,
                              PhCalRecord::slopeOfPercent(stored.averageSlope));
        break;
    case KindIse:
        if (count > 0)
            LoadIseCalibration(mv, value, slope, offset, temperature, ion, count, stored.averageSlope);
        break;
    case KindRedox:
        SetOrpOffset(count > 0 ? stored.points[0].offset : 0.0);
        break;
    default:
        break;
    }
}
