#include "system/resourcemanager.h"

#include <QDebug>
#include <QHostAddress>
#include <QNetworkInterface>

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
    QString address;
    const auto all = QNetworkInterface::allAddresses();
    for (const QHostAddress &a : all) {
        if (a.protocol() == QAbstractSocket::IPv4Protocol && !a.isLoopback()) {
            address = a.toString();
            break;
        }
    }
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
