#include "meter/cmeasurementcontext.h"

#include "meter/cmeasurementise.h"
#include "meter/cmeasurementorp.h"
#include "meter/cmeasurementph.h"

#include <QByteArray>

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
