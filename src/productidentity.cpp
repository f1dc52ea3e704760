#include "productidentity.h"

#include "models/sysinfomodel.h"

#include <QRegularExpression>

namespace {

struct Identity {
    const char *productType;
    const char *modelString;
    const char *modelNo;
};

// The first row is the default for an unknown product type.
constexpr Identity kIdentities[] = {
    {"All-in-one", "Vantor Pro V440 All-in-One", "V440"},
    {"pH", "Vantor Pro V410 pH", "V410"},
    {"Redox", "Vantor Pro V420 Redox", "V420"},
    {"ISE", "Vantor Pro V430 Ion", "V430"},
};

} // namespace

ProductIdentity::ProductIdentity(QObject *parent)
    : QObject(parent)
    , m_sysInfo(new SysInfoModel(this))
    , m_buildNumber(buildString())
    , m_mspVersion(tr("Unknown Version"))
{
    m_sysInfo->setAppVersion(buildString());
}

QString ProductIdentity::buildString()
{
    return QStringLiteral("V" KESTRUM_VERSION);
}

void ProductIdentity::setTitrationQMLVersion(const QString &v)
{
    m_qmlVersion = v;
    emit changed();
}

void ProductIdentity::setTitrationQMLCoreVersion(const QString &v)
{
    m_qmlCoreVersion = v;
    emit changed();
}

void ProductIdentity::setMspQmlVersion(const QString &v)
{
    m_mspQmlVersion = v;
    emit changed();
}

void ProductIdentity::setBuildNumber(const QString &v)
{
    m_buildNumber = v;
    emit changed();
}

QString ProductIdentity::appVersionNumber() const
{
    QString number = m_buildNumber;
    return number.remove(QRegularExpression(QStringLiteral("-g.*")));
}

QString ProductIdentity::mspVersion() const
{
    return tr(m_mspVersion.toUtf8().constData());
}

void ProductIdentity::setMspVersion(const QString &version)
{
    m_mspVersion = version;
    emit mspVersionUpdated();
}

void ProductIdentity::showMspVersion()
{
    setMspQmlVersion(mspVersion());
}

void ProductIdentity::setMfgSerialNum(const QString &serial)
{
    if (m_serial == serial)
        return;
    m_serial = serial;
    // Kept with the versions, so that reports written without the slave
    // (vantor-cli) are named by the same serial.
    if (!serial.isEmpty())
        m_sysInfo->setMfgSerialNum(serial);
    emit serialChanged();
}

void ProductIdentity::setTitratorModelString(const QString &v)
{
    if (m_modelString == v)
        return;
    m_modelString = v;
    emit modelStringChanged();
}

void ProductIdentity::setTitratorModelNo(const QString &v)
{
    if (m_modelNo == v)
        return;
    m_modelNo = v;
    emit modelNoChanged();
}

void ProductIdentity::setProductType(const QString &productType)
{
    const Identity *identity = &kIdentities[0];
    for (const Identity &candidate : kIdentities) {
        if (productType == QLatin1String(candidate.productType))
            identity = &candidate;
    }
    m_sysInfo->setProductType(QLatin1String(identity->productType));
    setTitratorModelString(QLatin1String(identity->modelString));
    setTitratorModelNo(QLatin1String(identity->modelNo));
}
