#pragma once

#include <QObject>

class USB;

// A host computer on the device port: the USB network gadget is brought up
// so the computer reaches the instrument over USB.
class USBHost : public QObject
{
    Q_OBJECT
public:
    explicit USBHost(USB *usb, QObject *parent = nullptr);

public slots:
    void hostAttached();
    void hostDetached() {}
};
