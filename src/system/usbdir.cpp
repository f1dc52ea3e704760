#include "system/usbdir.h"

USBDir::USBDir(const QString &path, USBDisk *disk)
    : m_hold(disk)
{
    setPath(path);
}

void USBDir::setPath(const QString &path)
{
    const QString resolved = USBDisk::resolve(path);
    // A name that would leave the stick names a folder that cannot exist.
    QDir::setPath(resolved.isEmpty() ? QStringLiteral("/nonexistent/usb") : resolved);
}

bool USBDir::mkpath(const QString &path) const
{
    if (!m_hold.isValid())
        return false;
    const QString resolved = USBDisk::resolve(path);
    return !resolved.isEmpty() && QDir::mkpath(resolved);
}
