#include "system/usbhost.h"

#include "system/platform.h"
#include "system/usb.h"

#include <QDebug>

USBHost::USBHost(USB *usb, QObject *parent)
    : QObject(parent)
{
    if (usb && usb->isHostAttached())
        hostAttached();
}

void USBHost::hostAttached()
{
    const Platform::Result r = Platform::run(QStringLiteral("/usr/bin/connmanctl"),
                                             {QStringLiteral("enable"), QStringLiteral("gadget")}, 30000);
    if (!r.ok())
        qDebug() << "USBHost: the network gadget did not come up:" << r.exitCode << r.standardError;
}
