#include "system/usbhandler.h"

#include <QDebug>

void UsbHandler::onDevInserted()
{
    qDebug() << "USB Storage Available";
}

void UsbHandler::onDevRemoved()
{
    qDebug() << "USB Storage Removed";
}
