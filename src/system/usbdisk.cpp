#include "system/usbdisk.h"

#include "system/clock.h"
#include "system/platform.h"
#include "system/usb.h"
#include "system/usbfile.h"

#include <QDebug>
#include <QDir>

namespace {

USBDisk *&current()
{
    static USBDisk *disk = nullptr;
    return disk;
}

QString mountPoint()
{
    return Platform::path(QStringLiteral("/media/usb"));
}

} // namespace

USBDisk::USBDisk(USB *usb, QObject *parent)
    : QObject(parent)
    , m_usb(usb)
{
    current() = this;
    m_debounceTimer.setInterval(debounceCheckMs);
    connect(&m_debounceTimer, &QTimer::timeout, this, &USBDisk::debounceTick);
    setReadonly(mountPoint());
}

USBDisk::~USBDisk()
{
    if (current() == this)
        current() = nullptr;
}

USBDisk *USBDisk::instance()
{
    return current();
}

QString USBDisk::mountPath()
{
    return mountPoint() + QLatin1Char('/');
}

QString USBDisk::resolve(const QString &name)
{
    const QString root = mountPoint();
    const QString target = QStringLiteral("/media/usb");
    QString path = name.startsWith(QLatin1Char('/')) ? name : QLatin1Char('/') + name;
    if (path.startsWith(root + QLatin1Char('/')) || path == root)
        ; // already on the stick
    else if (path.startsWith(target + QLatin1Char('/')) || path == target)
        path = root + path.mid(target.size());
    else
        path = root + path;
    path = QDir::cleanPath(path);
    return path == root || path.startsWith(root + QLatin1Char('/')) ? path : QString();
}

void USBDisk::startDebounceTimer()
{
    if (m_debouncing)
        return;
    qDebug() << "Debouncing USB...";
    m_debouncing = true;
    m_debounceStart = Clock::monotonicMs();
    m_debounceTimer.start();
}

void USBDisk::debounceTick()
{
    if (!m_debouncing || Clock::monotonicMs() - m_debounceStart < debounceMs)
        return;
    m_debounceTimer.stop();
    testDevice();
}

void USBDisk::testDevice()
{
    qDebug() << "Debouncing complete.";
    qDebug() << "USBDISK::testDevice";
    m_debounceTimer.stop();
    if (!m_usb || !m_usb->isDiskPresent()) {
        qDebug() << "Mass storage no longer attached after debounce.";
    } else {
        qDebug() << "Mass storage attached.  Testing...";
        const quint64 generation = m_generation;
        const bool mounted = mount();
        if (mounted)
            release(generation);
        m_checked = mounted;
        emit usbDiskStatusChanged();
    }
    m_debouncing = false;
}

bool USBDisk::mountIsGood() const
{
    return Platform::isWritableMount(mountPoint());
}

void USBDisk::setError(bool error)
{
    if (error == m_hasError)
        return;
    m_hasError = error;
    if (error)
        emit usbHasError();
    else
        emit usbClearError();
}

bool USBDisk::mount()
{
    const bool wasMounted = m_mounted;
    if (!m_mounted && mountIsGood()) {
        m_mounted = true;
        m_mountCount = 1;
        setError(false);
        qDebug() << "For some reason we already had the USB mounted";
    }
    if (!m_mounted) {
        QDir().mkpath(mountPoint());
        const QString device = USB::diskDevice();
        if (device.isEmpty()) {
            m_mountCount = 0;
            m_mounted = false;
            return false;
        }
        const QStringList arguments{device, mountPoint()};
        m_command = QStringLiteral("mount ") + arguments.join(QLatin1Char(' '));
        const Platform::Result r = Platform::run(QStringLiteral("mount"), arguments, commandTimeoutMs);
        if (r.ok()) {
            qDebug() << "usbflash mounted with: " << m_command;
            m_mountCount = 1;
            m_mounted = true;
            setError(false);
        } else {
            qDebug() << "usbflash mount failed: " << r.standardOutput << r.standardError << r.exitCode
                     << "ExitStatus" << r.started;
            m_mountCount = 0;
            m_mounted = false;
            setError(true);
            return false;
        }
    } else if (wasMounted) {
        ++m_mountCount;
    }
    qDebug() << "USB mounted " << m_mountCount << " times";
    if (m_mounted && !m_hasError && !mountIsGood()) {
        qDebug() << "USB: the mount is not a writable volume";
        m_mounted = false;
        m_mountCount = 0;
        setError(true);
    }
    return m_mounted;
}

void USBDisk::unmount()
{
    --m_mountCount;
    qDebug() << "USB unmount request. Open mounts: " << m_mountCount;
    if (m_mountCount > 0)
        return;
    const Platform::Result r = Platform::run(QStringLiteral("umount"), {mountPoint()}, commandTimeoutMs);
    if (r.ok()) {
        qDebug() << "usbflash unmounted";
        m_mounted = false;
        setReadonly(mountPoint());
    } else {
        qDebug() << "usbflash unmount failed: " << r.standardError;
        if (r.standardError.contains("not mounted")) {
            qDebug() << "nothing to see here move along";
            m_mounted = false;
        }
    }
    m_mountCount = 0;
}

bool USBDisk::setReadonly(const QString &path)
{
    qDebug() << "USBDISK::setReadonly";
    QDir().mkpath(path);
    const Platform::Result r = Platform::run(QStringLiteral("chmod"), {QStringLiteral("444"), path}, commandTimeoutMs);
    if (!r.ok()) {
        qDebug() << "Error: Unable to set USB mount point to read-only " << r.exitCode << r.standardError;
        return false;
    }
    return true;
}

void USBDisk::resetState()
{
    qDebug() << "USBDISK::resetState";
    // Holders of the stick that went keep their generation: letting go
    // later unmounts nothing of a stick inserted since.
    ++m_generation;
    m_debouncing = false;
    m_debounceTimer.stop();
    m_checked = false;
    if (m_mounted || m_mountCount > 0) {
        m_mountCount = 1;
        unmount();
    }
    m_mountCount = 0;
    m_mounted = false;
    m_hasError = false;
    emit usbClearError();
}

void USBDisk::release(quint64 generation)
{
    if (generation != m_generation) {
        qDebug() << "USB: a holder of a stick since pulled lets go; the mount now is not its own";
        return;
    }
    unmount();
}

bool USBDisk::holds(quint64 generation) const
{
    return generation == m_generation && m_mounted && m_usb && m_usb->isDiskPresent();
}

USBFile *USBDisk::openFile()
{
    auto *file = new USBFile(this);
    connect(file, &USBFile::usbFileClosed, this, [] { qDebug() << "USB: file closed"; });
    return file;
}

USBFile *USBDisk::openFile(const QString &name)
{
    USBFile *file = openFile();
    file->setFileName(name);
    return file;
}

USBHold::USBHold(USBDisk *disk)
    : m_disk(disk)
{
    if (!m_disk)
        return;
    m_generation = m_disk->generation();
    m_mounted = m_disk->mount();
}

USBHold::~USBHold()
{
    if (m_disk && m_mounted)
        m_disk->release(m_generation);
}

bool USBHold::isValid() const
{
    return m_disk && m_mounted && m_disk->holds(m_generation);
}
