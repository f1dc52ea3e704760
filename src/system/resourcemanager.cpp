#include "system/resourcemanager.h"

#include <QDebug>
#include <QHostAddress>
#include <QNetworkInterface>
#include <QStringList>

ResourceManager *ResourceManager::rmPtr()
{
    static ResourceManager *instance = new ResourceManager();
    return instance;
}

ResourceManager::ResourceManager(QObject *parent)
    : QObject(parent)
    , usb(new USB(this))
{
    connect(usb, &USB::usbToggle, this, &ResourceManager::usbIsReadyChanged);
}

void ResourceManager::setVersionStatusQml(const QString &text)
{
    if (text == m_versionStatus)
        return;
    m_versionStatus = text;
    emit versionStatusQmlChanged();
}

void ResourceManager::refreshIpAddress()
{
    // Every IPv4 address but 127.0.0.1, comma separated (two interfaces, two addresses).
    QStringList addresses;
    const auto all = QNetworkInterface::allAddresses();
    for (const QHostAddress &a : all) {
        if (a.protocol() == QAbstractSocket::IPv4Protocol && a != QHostAddress(QHostAddress::LocalHost)) {
            qDebug() << "Found IP Address:" << a.toString();
            addresses << a.toString();
        }
    }
    const QString address = addresses.join(QLatin1Char(','));
    if (address != m_ipAddress) {
        m_ipAddress = address;
        emit ipAddressChanged();
    }
}

void ResourceManager::updateSystem()
{
    qDebug() << "ResourceManager: no software update is available here";
    setVersionStatusQml(QStringLiteral("No update found"));
}

void ResourceManager::beep(int freq_hz, int duration_ms)
{
    qDebug() << "ResourceManager: beep" << freq_hz << "Hz for" << duration_ms << "ms";
}

void ResourceManager::stopBeep()
{
    qDebug() << "ResourceManager: beeper stopped";
}
