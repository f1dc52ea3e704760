#include "system/usbfile.h"

USBFile::USBFile(USBDisk *disk)
    : m_hold(disk)
{
}

USBFile::USBFile(const QString &name, USBDisk *disk)
    : m_hold(disk)
{
    setFileName(name);
}

void USBFile::setFileName(const QString &name)
{
    QFile::setFileName(USBDisk::resolve(name));
}

bool USBFile::open(OpenMode mode)
{
    if (!m_hold.isValid() || fileName().isEmpty()) {
        setErrorString(QStringLiteral("the USB disk is not mounted"));
        return false;
    }
    return QFile::open(mode);
}

void USBFile::close()
{
    const bool wasOpen = isOpen();
    QFile::close();
    if (wasOpen)
        emit usbFileClosed();
}
