#pragma once

#include <QObject>

class QFileSystemWatcher;

// Watches what is plugged into the instrument's USB ports: a memory stick
// (a device node "sd*1" in /dev/), the POS printer ("ttyPOS") and a host
// computer on the device port (the bus folder /dev/bus/usb/002 goes away
// while a host is attached). It reports changes as signals; mounting is
// USBDisk's job.
class USB : public QObject
{
    Q_OBJECT
public:
    explicit USB(QObject *parent = nullptr);

    // Each reads the file system anew.
    bool isDiskPresent() const;
    bool isPrinterPresent() const;
    bool isHostAttached() const;
    // The first stick's device node ("" when none), as the mount names it.
    static QString diskDevice();

public slots:
    // On any change in /dev/: a stick or a printer that came or went.
    void usbDevChanged();
    // On any change in /dev/bus/usb: a host computer that came or went.
    void usbHostChanged();

signals:
    void usbDiskAttached();
    void usbDiskDetached();
    void usbPOSPrinterAttached();
    void usbPOSPrinterDetached();
    void usbNetworkDeviceAttached();
    void usbNetworkDeviceDetached();
    void usbHostAttached();
    void usbHostDetached();
    void usbToggle();

private:
    void watch();

    QFileSystemWatcher *m_devWatcher = nullptr;
    QFileSystemWatcher *m_busWatcher = nullptr;
    bool m_diskAttached = false;
    bool m_printerAttached = false;
    bool m_hostAttached = false;
};
