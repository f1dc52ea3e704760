#pragma once

#include "system/usbdisk.h"

#include <QDir>

// A folder on the memory stick that keeps the stick mounted while it
// lives. Paths are places on the stick (USBDisk::resolve); a folder is made
// only while the mount is the present stick's.
class USBDir : public QDir
{
public:
    explicit USBDir(const QString &path, USBDisk *disk = USBDisk::instance());
    USBDir(const USBDir &) = delete;
    USBDir &operator=(const USBDir &) = delete;

    void setPath(const QString &path);
    bool mkpath(const QString &path) const;
    // The stick is mounted for this folder and is still the same stick.
    bool isUsable() const { return m_hold.isValid(); }

private:
    USBHold m_hold;
};
