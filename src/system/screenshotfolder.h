#pragma once

#include <QString>

class QImage;
class USBDisk;

// The screenshot folder of the memory stick, /VantorPro/Screenshots/: each
// picture is a PNG named by the clock's time ("screenshot_20260101_120000.png",
// "_2", "_3" when a name is taken), written under a temporary name and
// renamed once complete, while the stick is held.
class ScreenshotFolder
{
public:
    static QString folder() { return QStringLiteral("/VantorPro/Screenshots/"); }
    // The file written, or "" with *error.
    static QString save(const QImage &image, USBDisk *disk, QString *error);
};
