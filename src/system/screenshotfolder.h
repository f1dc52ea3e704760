#pragma once

#include <QString>

class QImage;
class USBDisk;

// The screenshot folder of the memory stick, /VantorPro/Screenshots/: each
// picture is a JPEG named by the clock's time ("01_01_2026_12_00_00.jpg",
// "_2", "_3" when a name is taken, never written over), written under a temporary name and
// renamed once complete, while the stick is held.
class ScreenshotFolder
{
public:
    static QString folder() { return QStringLiteral("/VantorPro/Screenshots/"); }
    // The file written, or "" with *error.
    static QString save(const QImage &image, USBDisk *disk, QString *error);
};
