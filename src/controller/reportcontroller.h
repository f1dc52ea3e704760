#pragma once

#include <QObject>
#include <QPointer>

// "reportController" of the screens: report files and screenshots. The shell
// hands it the window to capture (a QQuickWindow, kept as a QObject so that
// the controllers stay free of Qt Quick); the reports are built in their own
// part.
class ReportController : public QObject
{
    Q_OBJECT
public:
    explicit ReportController(QObject *parent = nullptr)
        : QObject(parent) {}
    void loadImageCapturingWindow(QObject *window) { m_window = window; }
    QObject *capturingWindow() const { return m_window; }

public slots:
    // The screen into the USB disk's screenshot folder; false when it could
    // not be saved (no disk, the disk went away, a failed write).
    bool handleScreenShotImage();

private:
    QPointer<QObject> m_window;
};
