#pragma once

#include "system/usbdisk.h"

#include <QFile>

// A file on the memory stick that keeps the stick mounted while it lives.
// Its name is a place on the stick (USBDisk::resolve); it opens only while
// its mount is the present stick's, so nothing is written to the mount
// point of a stick that is not there.
class USBFile : public QFile
{
    Q_OBJECT
public:
    explicit USBFile(USBDisk *disk = USBDisk::instance());
    explicit USBFile(const QString &name, USBDisk *disk = USBDisk::instance());

    void setFileName(const QString &name);
    bool open(OpenMode mode) override;
    void close() override;
    bool isUsable() const { return m_hold.isValid(); }

signals:
    void usbFileClosed();

private:
    USBHold m_hold;
};
