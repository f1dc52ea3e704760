#include "system/usb.h"

#include "system/platform.h"

#include <QDebug>
#include <QDir>
#include <QFileSystemWatcher>

namespace {

QStringList devEntries(const QString &nameFilter)
{
    return QDir(Platform::path(QStringLiteral("/dev/")), nameFilter, QDir::Name, QDir::System | QDir::Files)
        .entryList();
}

QString busFolder()
{
    return Platform::path(QStringLiteral("/dev/bus/usb"));
}

} // namespace

USB::USB(QObject *parent)
    : QObject(parent)
    , m_devWatcher(new QFileSystemWatcher(this))
    , m_busWatcher(new QFileSystemWatcher(this))
{
    connect(m_devWatcher, &QFileSystemWatcher::directoryChanged, this, &USB::usbDevChanged);
    connect(m_busWatcher, &QFileSystemWatcher::directoryChanged, this, &USB::usbHostChanged);
    watch();
}

void USB::watch()
{
    const QString dev = Platform::path(QStringLiteral("/dev/"));
    if (QDir(dev).exists() && !m_devWatcher->addPath(dev))
        qDebug() << "USB: cannot watch" << dev;
    if (QDir(busFolder()).exists())
        m_busWatcher->addPath(busFolder());
}

QString USB::diskDevice()
{
    const QStringList disks = devEntries(QStringLiteral("sd*1"));
    return disks.isEmpty() ? QString() : Platform::path(QStringLiteral("/dev/")) + disks.first();
}

bool USB::isDiskPresent() const
{
    return !devEntries(QStringLiteral("sd*1")).isEmpty();
}

bool USB::isPrinterPresent() const
{
    return !devEntries(QStringLiteral("ttyPOS")).isEmpty();
}

bool USB::isHostAttached() const
{
    return !QDir(busFolder() + QStringLiteral("/002")).exists();
}

void USB::usbDevChanged()
{
    const bool disk = isDiskPresent();
    if (disk != m_diskAttached) {
        m_diskAttached = disk;
        if (disk)
            emit usbDiskAttached();
        else
            emit usbDiskDetached();
        emit usbToggle();
    }
    const bool printer = isPrinterPresent();
    if (printer != m_printerAttached) {
        m_printerAttached = printer;
        if (printer)
            emit usbPOSPrinterAttached();
        else
            emit usbPOSPrinterDetached();
    }
}

void USB::usbHostChanged()
{
    const bool host = isHostAttached();
    if (host == m_hostAttached)
        return;
    m_hostAttached = host;
    if (host) {
        qDebug() << "Host Connected";
        emit usbHostAttached();
    } else {
        qDebug() << "Host Disconnected";
        emit usbHostDetached();
    }
}
