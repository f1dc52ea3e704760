#pragma once

#include <QObject>
#include <QPointer>

#include <QQuickWindow>

// "reportController" of the screens: report files and screenshots. The shell
// hands it the window to capture; the reports are built in their own part.
class ReportController : public QObject
{
    Q_OBJECT
public:
    explicit ReportController(QObject *parent = nullptr)
        : QObject(parent) {}
    void loadImageCapturingWindow(QQuickWindow *window) { m_window = window; }
    QQuickWindow *capturingWindow() const { return m_window; }

public slots:
    // The screens call this only when a USB disk is ready.
    void handleScreenShotImage();

private:
    QPointer<QQuickWindow> m_window;
};
