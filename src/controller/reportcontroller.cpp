#include "controller/reportcontroller.h"

#include <QDebug>

void ReportController::handleScreenShotImage()
{
    qDebug() << "ReportController: screenshots go to a USB disk, and none is watched yet";
}
