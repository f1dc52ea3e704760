#pragma once

#include <QObject>

// The USB watch of the screens ("usbHandler" in QML): tells when a disk
// comes or goes. Until the device watch is built no disk is ever seen, so
// the screens answer "USB Device not connected".
class USB : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool usbIsReady READ usbIsReady NOTIFY usbToggle)
public:
    explicit USB(QObject *parent = nullptr)
        : QObject(parent) {}
    bool usbIsReady() const { return false; }

public slots:
    // A forced refresh of the status, so that a disk present at start reaches the handlers.
    void usbDevChanged() { emit usbToggle(); }

signals:
    void usbToggle();
    void usbDiskAttached();
    void usbDiskDetached();
};
