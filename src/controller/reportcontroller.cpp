#include "controller/reportcontroller.h"

#include "system/screenshotfolder.h"
#include "system/usbdisk.h"

#include <QDebug>
#include <QImage>
#include <QQuickWindow>

bool ReportController::handleScreenShotImage()
{
    auto *window = qobject_cast<QQuickWindow *>(m_window.data());
    QString error;
    const QString file = ScreenshotFolder::save(window ? window->grabWindow() : QImage(), USBDisk::instance(), &error);
    qDebug() << "ReportController: screenshot" << (file.isEmpty() ? error : file);
    return !file.isEmpty();
}
