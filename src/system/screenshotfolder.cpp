#include "system/screenshotfolder.h"

#include "system/clock.h"
#include "system/usbdir.h"

#include <QFile>
#include <QImage>

QString ScreenshotFolder::save(const QImage &image, USBDisk *disk, QString *error)
{
    if (image.isNull()) {
        *error = QStringLiteral("the screen could not be grabbed");
        return QString();
    }
    USBDir dir(folder(), disk);
    if (!dir.isUsable() || !dir.mkpath(dir.absolutePath())) {
        *error = QStringLiteral("USB Device not connected");
        return QString();
    }
    const QString stem = Clock::now().toString(QStringLiteral("dd_MM_yyyy_hh_mm_ss"));
    QString name = stem + QStringLiteral(".jpg");
    for (int n = 2; dir.exists(name); ++n)
        name = QStringLiteral("%1_%2.jpg").arg(stem).arg(n);
    const QString target = dir.absoluteFilePath(name);
    const QString temporary = target + QStringLiteral(".part");
    const bool saved = image.save(temporary, "JPG") && dir.isUsable() && QFile::rename(temporary, target);
    if (!saved) {
        QFile::remove(temporary);
        *error = QStringLiteral("the screenshot could not be written to the USB disk");
        return QString();
    }
    return target;
}
